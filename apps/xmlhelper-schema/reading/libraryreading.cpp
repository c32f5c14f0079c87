#include "libraryreading.h"

#include <QXmlParseException>
#include <QXmlSimpleReader>

#include <xmlhelper/documentfile_p.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlschemahandler.h>

QT_WARNING_DISABLE_DEPRECATED

namespace schemadoctor {

namespace {

/// Schema reading asks for an observer and sends it nothing.
class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { }
};

IXMLHelper* observer()
{
    static SilentObserver silent;
    return &silent;
}

} // namespace

/// A handler that remembers why its parse failed.
class LibraryReading::Handler : public XmlSchemaHandler
{
public:
    using XmlSchemaHandler::XmlSchemaHandler;

    bool fatalError(const QXmlParseException& exception) override
    {
        message = exception.message();
        line = exception.lineNumber();
        return false;
    }

    QString message;
    int line = 0;
};

LibraryReading::LibraryReading(const QString& file)
{
    const QString schemaPath = QString(file).replace(QLatin1Char('\\'), QLatin1Char('/'));
    m_handler = std::make_unique<Handler>(observer(), schemaPath);
    QXmlSimpleReader parser;
    m_isParsed = m_handler->ReadFile(openableFileName(file), parser);
    m_fault = m_handler->message;
    m_faultLine = m_handler->line;
    if (!m_isParsed && m_fault.isEmpty()) {
        m_fault = QStringLiteral("it is more than the library reads.");
    }
    m_handler->HandOver(m_unresolvedTypes, m_occurs, m_definitions, m_choices);
}

LibraryReading::~LibraryReading() = default;

QDomElement LibraryReading::GetRoot() const
{
    return m_handler->GetDocument()->documentElement();
}

} // namespace schemadoctor
