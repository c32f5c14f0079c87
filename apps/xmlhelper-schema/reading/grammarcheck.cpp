#include "grammarcheck.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <confinedchild.h>

#include "model/texts.h"

namespace schemadoctor {

namespace {

/// More than findings are shown, because those of one cause are told once.
constexpr int MaxFaults = 10000;

void collectFault(void* userData, xmlError* error)
{
    auto* const faults = static_cast<QJsonArray*>(userData);
    if (faults->size() < MaxFaults) {
        faults->append(QJsonObject {{QStringLiteral("file"), QString::fromUtf8(error->file)},
                                    {QStringLiteral("line"), error->line},
                                    {QStringLiteral("message"), QString::fromUtf8(error->message).trimmed()}});
    }
}

QByteArray checked(const QString& file)
{
    QJsonArray faults;
    // Imports are not the library's business either, and may name places in a network.
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
    // The XML parser below the schema parser reports on its own.
    xmlSetStructuredErrorFunc(&faults, collectFault);
    xmlSchemaParserCtxt* const parser = xmlSchemaNewParserCtxt(QFile::encodeName(file).constData());
    xmlSchemaSetParserStructuredErrors(parser, collectFault, &faults);
    xmlSchemaFree(xmlSchemaParse(parser));
    xmlSchemaFreeParserCtxt(parser);
    return QJsonDocument(faults).toJson(QJsonDocument::Compact);
}

} // namespace

QVector<GrammarFault> grammarFaultsOf(const QString& file)
{
    const ChildResult result = resultOfChild([&file](const auto& write) { write(checked(file)); });
    if (!result.isWhole) {
        return {{{file, 0}, Texts::tr("libxml2 needs too much time or memory to check the schema.")}};
    }
    QVector<GrammarFault> faults;
    const QJsonArray all = QJsonDocument::fromJson(result.bytes).array();
    for (const QJsonValue& fault : all) {
        const Place place {fault[QStringLiteral("file")].toString(), fault[QStringLiteral("line")].toInt()};
        // Without a file the lines are those of an entity.
        faults.append({place.file.isEmpty() ? Place {file, 0} : place, fault[QStringLiteral("message")].toString()});
    }
    return faults;
}

} // namespace schemadoctor
