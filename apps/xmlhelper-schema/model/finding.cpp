#include "finding.h"

#include "texts.h"

namespace schemadoctor {

namespace {

const char* englishFor(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "note");
    case Severity::Warning:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "warning");
    case Severity::Error:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "error");
    }
    return "";
}

} // namespace

QString nameOf(Severity severity)
{
    return QString::fromLatin1(englishFor(severity));
}

QString wordFor(Severity severity)
{
    return Texts::tr(englishFor(severity));
}

QString causeOf(const Finding& finding)
{
    return finding.cause.isEmpty() ? finding.rule : finding.cause;
}

QVector<FindingGroup> groupsOf(const QVector<Finding>& findings)
{
    QVector<FindingGroup> groups;
    for (int index = 0; index < int(findings.size()); ++index) {
        const QString cause = causeOf(findings.at(index));
        if (groups.isEmpty() || groups.constLast().cause != cause) {
            groups.append({cause, index, 0});
        }
        ++groups.last().count;
    }
    return groups;
}

QString wordsFor(const FindingGroup& group)
{
    return Texts::tr("%1: %2 findings").arg(group.cause).arg(group.count);
}

} // namespace schemadoctor
