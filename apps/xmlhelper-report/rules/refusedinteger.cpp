#include "rule.h"

#include "../annotations.h"

namespace reportcheck {

// An integer removes the type before its range is looked at.
Remarks refusedInteger(const ReportElement& element, const RuleContext& context)
{
    const QStringList bounds = annotationsOf(element, context.declared, {AnnotationKind::Range});
    if (bounds.isEmpty() || !element.IsWithoutContent()
        || !annotationsOf(element, context.declared, {AnnotationKind::Type}).isEmpty()) {
        return {};
    }
    QStringList limits;
    for (const QString& bound : bounds) {
        limits.append(QStringLiteral("%1 %2").arg(bound, element.Find(bound)->value));
    }
    return {{Severity::Error,
             Texts::tr("The element has no value: an integer was offered and refused, because it is out of range "
                       "(%1).")
                 .arg(limits.join(QStringLiteral(", "))),
             Texts::tr("Offer a value within the range, or widen the range in the schema.")}};
}

} // namespace reportcheck
