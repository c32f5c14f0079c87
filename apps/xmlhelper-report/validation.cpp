#include "validation.h"

#include <memory>

#include <libxml/xmlschemas.h>

#include <QFileInfo>
#include <QUrl>

#include "xmlfile.h"

namespace reportcheck {

namespace {

template <auto Free> struct Release
{
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Release<xmlSchemaFreeParserCtxt>>;
using Schema = std::unique_ptr<xmlSchema, Release<xmlSchemaFree>>;
using Validator = std::unique_ptr<xmlSchemaValidCtxt, Release<xmlSchemaFreeValidCtxt>>;

// What takes the messages of one run.
struct Listener
{
    QString file; // that the messages are about
    const char* rule;
    ElementPaths* pPaths; // null for messages about a schema
    std::vector<Finding>* pMessages;
};

Severity severityOf(const xmlError& error)
{
    return error.level == XML_ERR_WARNING ? Severity::Warning : Severity::Error;
}

// A URL, because libxml2 takes file names for URLs where it follows the includes of a schema.
QByteArray urlOf(const QString& file)
{
    return QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()).toEncoded();
}

QString fileOf(const xmlError& error, const QString& otherwise)
{
    const QUrl url = QUrl::fromEncoded(QByteArray(error.file));
    return url.isLocalFile() ? url.toLocalFile() : otherwise;
}

const xmlNode* elementOf(const xmlError& error)
{
    const auto* const node = static_cast<const xmlNode*>(error.node);
    return node && node->type == XML_ATTRIBUTE_NODE ? node->parent : node;
}

void takeMessage(void* data, xmlErrorPtr error)
{
    const auto* const listener = static_cast<Listener*>(data);
    const xmlNode* const element = elementOf(*error);
    Finding message;
    message.severity = severityOf(*error);
    message.rule = QLatin1String(listener->rule);
    message.line = element ? lineOf(element) : error->line;
    message.text = QString::fromUtf8(error->message).trimmed();
    if (listener->pPaths) {
        message.file = listener->file;
        message.path = listener->pPaths->PathOf(element);
    } else {
        message.file = fileOf(*error, listener->file);
    }
    listener->pMessages->push_back(message);
}

Schema readSchema(const QString& file, std::vector<Finding>& messages)
{
    Listener listener {file, "schema", nullptr, &messages};
    const SchemaParser parser(xmlSchemaNewParserCtxt(urlOf(file).constData()));
    xmlSchemaSetParserStructuredErrors(parser.get(), takeMessage, &listener);
    return Schema(xmlSchemaParse(parser.get()));
}

} // namespace

Validation validate(xmlDoc* document, const QString& report, const QString& schema, ElementPaths& paths)
{
    const Seclusion seclusion;
    Validation validation;
    const Schema parsed = readSchema(schema, validation.messages);
    if (!parsed) {
        return validation;
    }
    Listener listener {report, "validation", &paths, &validation.messages};
    const Validator validator(xmlSchemaNewValidCtxt(parsed.get()));
    xmlSchemaSetValidStructuredErrors(validator.get(), takeMessage, &listener);
    validation.isDone = xmlSchemaValidateDoc(validator.get(), document) >= 0;
    return validation;
}

} // namespace reportcheck
