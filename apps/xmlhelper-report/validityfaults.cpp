#include "validityfaults.h"

#include "texts.h"
#include "validation.h"
#include "xmlfile.h"

namespace reportcheck {

namespace {

/// "schema.xsd:7: text" about a schema, "/Report/Site: text" about a report.
QString sentenceFor(const Finding& finding, const QString& report)
{
    const QString place = finding.file == report ? finding.path
        : finding.line > 0                       ? QStringLiteral("%1:%2").arg(finding.file).arg(finding.line)
                                                 : finding.file;
    QString sentence = place.isEmpty() ? finding.text : QStringLiteral("%1: %2").arg(place, finding.text);
    while (sentence.endsWith(QLatin1Char('.'))) {
        sentence.chop(1);
    }
    return sentence;
}

} // namespace

QStringList validityFaults(const QString& schema, const QString& report)
{
    const ReadFile read = readXmlFile(report);
    if (!read.document) {
        return {read.reason};
    }
    ElementPaths paths;
    const Validation validation = validate(read.document.get(), report, schema, paths);
    QStringList faults;
    for (const Finding& message : validation.messages) {
        // Behind warnings only, of a schema that was understood, the report is valid.
        if (message.severity == Severity::Error || !validation.isDone) {
            faults.append(sentenceFor(message, report));
        }
    }
    if (faults.isEmpty() && !validation.isDone) {
        faults.append(QStringLiteral("%1: it cannot be validated by this schema").arg(schema));
    }
    return faults;
}

} // namespace reportcheck
