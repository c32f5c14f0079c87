#ifndef REPORTCHECK_XMLFILE_H
#define REPORTCHECK_XMLFILE_H

#include <memory>

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <QString>

/// Reading files with libxml2: within its limits and the ones below, without network, external entities or messages on
/// the standard error output.
namespace reportcheck {

/// What the library lays out at most. A report with more is none of its own.
constexpr int MaximumElements = 500000;
constexpr int MaximumAttributes = 1000000;
constexpr qint64 MaximumBytes = 100LL * 1024 * 1024;

struct DocumentDeleter
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, DocumentDeleter>;

struct ReadFile
{
    Document document; ///< null when the file cannot be read; otherwise it has a root element
    QString reason; ///< why not, in a sentence
    int line = 0; ///< where, when a line is at fault
};

ReadFile readXmlFile(const QString& file);

/// What a file is that cannot be XML, by how it begins, in a sentence; empty when it may be or cannot be opened.
QString whyNoXml(const QString& file);

/// While it lives, libxml2 fetches nothing from a network and prints nothing, whatever asks it to. What the application
/// has set comes back afterwards.
class Seclusion
{
public:
    Seclusion();
    ~Seclusion();
    Seclusion(const Seclusion&) = delete;
    Seclusion& operator=(const Seclusion&) = delete;

private:
    xmlExternalEntityLoader m_pLoader;
    xmlStructuredErrorFunc m_pErrorHandler;
    void* m_pErrorContext;
};

QString textOf(const xmlChar* text);
QString qualifiedNameOf(const xmlNode* node);
QString qualifiedNameOf(const xmlAttr* attribute);
QString valueOf(const xmlAttr* attribute);

/// The first line is 1; right behind line 65535, too.
int lineOf(const xmlNode* node);

} // namespace reportcheck

#endif
