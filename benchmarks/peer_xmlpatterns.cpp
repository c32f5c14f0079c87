#include <QBuffer>
#include <QFile>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamWriter>

#include "peers.h"

namespace {

QByteArray write(const std::vector<ReportElement>& elements)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Survey"));
    bool isInContainer = false;
    for (const ReportElement& element : elements) {
        if (!element.text.isEmpty()) {
            writer.writeTextElement(element.name, element.text);
            continue;
        }
        if (isInContainer) {
            writer.writeEndElement();
        }
        writer.writeStartElement(element.name);
        isInContainer = true;
    }
    writer.writeEndDocument();
    return bytes;
}

} // namespace

bool writeByXmlPatterns(const PeerInput& input)
{
    QXmlSchema schema;
    if (!schema.load(QUrl::fromLocalFile(input.schema))) {
        return false;
    }
    const QByteArray report = write(input.elements);
    QFile file(input.report);
    return QXmlSchemaValidator(schema).validate(report) && file.open(QIODevice::WriteOnly)
        && file.write(report) == report.size();
}
