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

} // namespace schemadoctor
