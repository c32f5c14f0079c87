#include "validation.h"

#include <algorithm>
#include <functional>
#include <memory>

#include <libxml/xmlschemas.h>

#include <confinedchild.h>

#include <QDataStream>
#include <QFileInfo>
#include <QIODevice>
#include <QUrl>

#include "texts.h"
#include "xmlfile.h"

namespace reportcheck {

namespace {

/// The rule of the last message of a validation that came to its end.
const char DoneMark[] = "done";

template <auto Free> struct Release
{
    template <typename Object> void operator()(Object* object) const { Free(object); }
};
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Release<xmlSchemaFreeParserCtxt>>;
using Schema = std::unique_ptr<xmlSchema, Release<xmlSchemaFree>>;
using Validator = std::unique_ptr<xmlSchemaValidCtxt, Release<xmlSchemaFreeValidCtxt>>;

using Write = std::function<void(const QByteArray&)>;

// What takes the messages of one run, and sends the first of them off.
struct ValidationListener
{
    QString file; // that the messages are about
    const char* rule;
    ElementPaths* pPaths; // null for messages about a schema
    const Write& write;
    Finding last; // stands for those that are not sent
    int count = 0;
};

void send(const Finding& message, const Write& write)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << int(message.severity) << message.rule << message.file << message.line << message.path << message.text
           << message.count;
    write(bytes);
}

std::vector<Finding> received(const QByteArray& bytes)
{
    std::vector<Finding> messages;
    for (QDataStream stream(bytes); !stream.atEnd();) {
        Finding message;
        int severity = 0;
        stream >> severity >> message.rule >> message.file >> message.line >> message.path >> message.text
            >> message.count;
        message.severity = Severity(severity);
        if (stream.status() == QDataStream::Ok) { // The last one may have been cut off.
            messages.push_back(message);
        }
    }
    return messages;
}

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

Finding messageOf(const xmlError& error, const ValidationListener& listener)
{
    const xmlNode* const element = elementOf(error);
    Finding message;
    message.severity = severityOf(error);
    message.rule = QLatin1String(listener.rule);
    message.line = element ? lineOf(element) : error.line;
    message.text = QString::fromUtf8(error.message).trimmed();
    if (listener.pPaths) {
        message.file = listener.file;
        message.path = listener.pPaths->PathOf(element);
    } else {
        message.file = fileOf(error, listener.file);
    }
    return message;
}

void takeMessage(void* data, xmlErrorPtr error)
{
    auto* const listener = static_cast<ValidationListener*>(data);
    if (++listener->count <= MaxFindingsOfARule) {
        send(messageOf(*error, *listener), listener->write);
    } else {
        listener->last.severity = std::max(listener->last.severity, severityOf(*error));
    }
}

void sendLast(ValidationListener& listener)
{
    Finding& last = listener.last;
    last.count = listener.count - MaxFindingsOfARule;
    if (last.count > 0) {
        last.rule = QLatin1String(listener.rule);
        last.file = listener.file;
        last.text = Texts::tr("%1 more messages are left out.").arg(last.count);
        send(last, listener.write);
    }
}

Schema readSchema(const QString& file, const Write& write)
{
    const QString reason = whyNoXml(file);
    if (!reason.isEmpty()) {
        send({Severity::Error, QStringLiteral("schema"), file, 0, {}, reason, {}, 1}, write);
        return nullptr;
    }
    ValidationListener listener {file, "schema", nullptr, write, {Severity::Note, {}, {}, 0, {}, {}, {}, 1}};
    const SchemaParser parser(xmlSchemaNewParserCtxt(urlOf(file).constData()));
    xmlSchemaSetParserStructuredErrors(parser.get(), takeMessage, &listener);
    Schema schema(xmlSchemaParse(parser.get()));
    sendLast(listener);
    return schema;
}

void validateInto(xmlDoc* document, const QString& report, const QString& schema, ElementPaths& paths,
                  const Write& write)
{
    const Schema parsed = readSchema(schema, write);
    if (!parsed) {
        return;
    }
    ValidationListener listener {report, "validation", &paths, write, {Severity::Note, {}, {}, 0, {}, {}, {}, 1}};
    const Validator validator(xmlSchemaNewValidCtxt(parsed.get()));
    xmlSchemaSetValidStructuredErrors(validator.get(), takeMessage, &listener);
    const bool isDone = xmlSchemaValidateDoc(validator.get(), document) >= 0;
    sendLast(listener);
    if (isDone) {
        send({Severity::Note, QLatin1String(DoneMark), {}, 0, {}, {}, {}, 1}, write);
    }
}

} // namespace

Validation validate(xmlDoc* document, const QString& report, const QString& schema, ElementPaths& paths, int seconds)
{
    const Seclusion seclusion;
    const ChildResult result = resultOfChild(
        [&](const Write& write) { validateInto(document, report, schema, paths, write); }, {seconds, 0});
    Validation validation;
    validation.messages = received(result.bytes);
    validation.isDone = !validation.messages.empty() && validation.messages.back().rule == QLatin1String(DoneMark);
    validation.isStopped = !result.isWhole;
    if (validation.isDone) {
        validation.messages.pop_back();
    } else if (validation.isStopped) {
        Finding stopped;
        stopped.severity = Severity::Warning;
        stopped.rule = QStringLiteral("validation");
        stopped.file = report;
        stopped.text = Texts::tr("The validation was stopped after %1 seconds of work.").arg(seconds);
        validation.messages.push_back(stopped);
    }
    return validation;
}

} // namespace reportcheck
