#include "rule.h"

#include "../annotations.h"

namespace reportcheck {

// The walk gives an element its default as text, but only a value that is set removes the annotations.
Remarks unconfirmedDefault(const ReportElement& element, const RuleContext& context)
{
    const QStringList types = annotationsOf(element, context.declared, {AnnotationKind::Type});
    if (types.isEmpty() || element.hasChildElements || element.IsWithoutContent()) {
        return {};
    }
    return {{Severity::Error,
             Texts::tr("The element holds \"%1\", but still carries its annotations: that is the default of the "
                       "schema, which nobody has confirmed.")
                 .arg(element.text.trimmed()),
             Texts::tr("Set the value, even if it is the default.")}};
}

} // namespace reportcheck
