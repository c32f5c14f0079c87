#include "rule.h"

#include <algorithm>

#include "../annotations.h"

namespace reportcheck {

// Elements with annotations are the business of other rules.
Remarks emptyElement(const ReportElement& element, const RuleContext& context)
{
    const bool isAnnotated
        = std::any_of(element.attributes.begin(), element.attributes.end(), [&](const ReportAttribute& attribute) {
              const AnnotationKind kind = annotationIn(attribute, context.declared).kind;
              return kind != AnnotationKind::None && kind != AnnotationKind::AttributeFacet;
          });
    if (isAnnotated || !element.IsWithoutContent()) {
        return {};
    }
    const bool hasAttributes
        = std::any_of(element.attributes.begin(), element.attributes.end(), [](const ReportAttribute& attribute) {
              return !attribute.name.startsWith(QLatin1String("xsi:"));
          });
    if (hasAttributes) {
        return {{Severity::Note, Texts::tr("The element has attributes, but no content."),
                 Texts::tr("If it should hold a value, an empty text was set.")}};
    }
    return {{Severity::Warning, Texts::tr("The element is empty."),
             Texts::tr("Either an empty text was set, or it is mandatory and lost all that it held, or nothing of "
                       "its type is laid out. Elements that may be missing are removed when they are not filled.")}};
}

} // namespace reportcheck
