#include "validation.h"

#include <memory>

#include <QDataStream>
#include <QFile>

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include "model/texts.h"

namespace schemadoctor {

namespace {

constexpr int MaxErrors = 100; // of one report

template <auto Free> struct Release
{
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Release<xmlSchemaFreeParserCtxt>>;
using CompiledSchema = std::unique_ptr<xmlSchema, Release<xmlSchemaFree>>;
using Validator = std::unique_ptr<xmlSchemaValidCtxt, Release<xmlSchemaFreeValidCtxt>>;
using Document = std::unique_ptr<xmlDoc, Release<xmlFreeDoc>>;

struct Listener
{
    QVector<ValidityError>* pErrors;
    int report;
    int left; // cppcheck-suppress unusedStructMember ; counted down by collectError()
};

QString stringOf(const xmlChar* text)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

QStringList namesUpTo(const xmlNode* node)
{
    QStringList names;
    for (; node && node->type != XML_DOCUMENT_NODE; node = node->parent) {
        if (node->type == XML_ELEMENT_NODE) {
            names.prepend(stringOf(node->name));
        }
    }
    return names;
}

void ignore(void*, xmlError*) { }

void collectError(void* data, xmlError* error)
{
    auto* const listener = static_cast<Listener*>(data);
    if (listener->left-- > 0) {
        listener->pErrors->append({listener->report, namesUpTo(static_cast<const xmlNode*>(error->node)),
                                   error->code == XML_SCHEMAV_ELEMENT_CONTENT,
                                   QString::fromUtf8(error->message).trimmed()});
    }
}

void validateOne(xmlSchema* schema, const QByteArray& bytes, Listener listener)
{
    const Document document(xmlReadMemory(bytes.constData(), int(bytes.size()), nullptr, nullptr, XML_PARSE_NONET));
    if (!document) {
        listener.pErrors->append({listener.report, {}, false, Texts::tr("The report is no well-formed XML.")});
        return;
    }
    const Validator validator(xmlSchemaNewValidCtxt(schema));
    xmlSchemaSetValidStructuredErrors(validator.get(), collectError, &listener);
    xmlSchemaValidateDoc(validator.get(), document.get());
}

} // namespace

QDataStream& operator<<(QDataStream& stream, const ValidityError& error)
{
    return stream << error.report << error.names << error.isOfContent << error.sentence;
}

// cppcheck-suppress constParameter ; the stream writes into it
QDataStream& operator>>(QDataStream& stream, ValidityError& error)
{
    return stream >> error.report >> error.names >> error.isOfContent >> error.sentence;
}

bool validate(const QString& schema, const QVector<QByteArray>& reports, QVector<ValidityError>& errors)
{
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
    xmlSetStructuredErrorFunc(nullptr, ignore);
    const SchemaParser parser(xmlSchemaNewParserCtxt(QFile::encodeName(schema).constData()));
    xmlSchemaSetParserStructuredErrors(parser.get(), ignore, nullptr);
    const CompiledSchema compiled(xmlSchemaParse(parser.get()));
    if (!compiled) {
        return false;
    }
    for (int report = 0; report < int(reports.size()); ++report) {
        validateOne(compiled.get(), reports.at(report), {&errors, report, MaxErrors});
    }
    return true;
}

} // namespace schemadoctor
