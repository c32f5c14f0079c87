#include "rendering.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "texts.h"

namespace reportcheck {

namespace {

QString lineFor(const Finding& finding)
{
    const QString place = finding.line > 0 ? QStringLiteral("%1:%2").arg(finding.file).arg(finding.line) : finding.file;
    const QString path = finding.path.isEmpty() ? QString() : finding.path + QStringLiteral(": ");
    return place + QStringLiteral(": ") + wordFor(finding.severity) + QStringLiteral(": ") + path + finding.text
        + QStringLiteral(" [") + finding.rule + QStringLiteral("]\n");
}

QString linesOf(const std::vector<Finding>& findings)
{
    QString lines;
    for (const Finding& finding : findings) {
        lines += lineFor(finding);
        if (!finding.advice.isEmpty()) {
            lines += QStringLiteral("    ") + finding.advice + QLatin1Char('\n');
        }
    }
    return lines;
}

QString wordsForMany(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return Texts::tr("errors");
    case Severity::Warning:
        return Texts::tr("warnings");
    default:
        return Texts::tr("notes");
    }
}

QString counted(int count, Severity severity)
{
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? wordFor(severity) : wordsForMany(severity));
}

QString countsOf(const Result& result)
{
    QStringList counts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        int count = 0;
        for (const std::vector<Finding>* const findings : {&result.findings, &result.validation}) {
            for (const Finding& finding : *findings) {
                count += finding.severity == severity ? finding.count : 0;
            }
        }
        if (count > 0) {
            counts.append(counted(count, severity));
        }
    }
    return counts.isEmpty() ? Texts::tr("nothing to say") : counts.join(QStringLiteral(", "));
}

QString validationOf(const Result& result)
{
    if (result.schema.isEmpty()) {
        return Texts::tr("not validated, no schema");
    }
    if (result.isStopped) {
        return Texts::tr("not validated to the end, by %1").arg(result.schema);
    }
    if (!result.isValidated) {
        return Texts::tr("not validated, the schema is no valid one: %1").arg(result.schema);
    }
    return (result.validation.empty() ? Texts::tr("valid by %1") : Texts::tr("validated by %1")).arg(result.schema);
}

QJsonArray jsonOf(const std::vector<Finding>& findings)
{
    QJsonArray array;
    for (const Finding& finding : findings) {
        array.append(QJsonObject {{QStringLiteral("severity"), nameOf(finding.severity)},
                                  {QStringLiteral("rule"), finding.rule},
                                  {QStringLiteral("file"), finding.file},
                                  {QStringLiteral("line"), finding.line},
                                  {QStringLiteral("path"), finding.path},
                                  {QStringLiteral("text"), finding.text},
                                  {QStringLiteral("advice"), finding.advice},
                                  {QStringLiteral("count"), finding.count}});
    }
    return array;
}

QJsonObject jsonOf(const Result& result)
{
    return {{QStringLiteral("report"), result.report},
            {QStringLiteral("exitStatus"), exitStatusOf(result)},
            {QStringLiteral("readable"), result.IsReadable()},
            {QStringLiteral("unreadableReason"), result.unreadableReason},
            {QStringLiteral("schema"), result.schema},
            {QStringLiteral("validated"), result.isValidated},
            {QStringLiteral("stopped"), result.isStopped},
            {QStringLiteral("findings"), jsonOf(result.findings)},
            {QStringLiteral("validation"), jsonOf(result.validation)}};
}

} // namespace

QString textOf(const Result& result)
{
    if (!result.IsReadable()) {
        return Texts::tr("%1: cannot be checked. %2").arg(result.report, result.unreadableReason) + QLatin1Char('\n');
    }
    return linesOf(result.findings) + linesOf(result.validation)
        + Texts::tr("%1: %2; %3").arg(result.report, countsOf(result), validationOf(result)) + QLatin1Char('\n');
}

QByteArray jsonOf(const std::vector<Result>& results)
{
    QJsonArray reports;
    for (const Result& result : results) {
        reports.append(jsonOf(result));
    }
    return QJsonDocument(QJsonObject {{QStringLiteral("exitStatus"), exitStatusOf(results)},
                                      {QStringLiteral("reports"), reports}})
        .toJson();
}

ExitStatus exitStatusOf(const std::vector<Result>& results)
{
    ExitStatus worst = NothingToSay;
    for (const Result& result : results) {
        worst = std::max(worst, exitStatusOf(result));
    }
    return worst;
}

} // namespace reportcheck
