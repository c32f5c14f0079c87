#include "finding.h"

namespace schemadoctor {

QString nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Error:
        return QStringLiteral("error");
    }
    return QString();
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
    return QStringLiteral("%1: %2 findings").arg(group.cause).arg(group.count);
}

} // namespace schemadoctor
