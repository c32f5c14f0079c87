#include "rule.h"

#include <xmlhelper/valuerules_p.h>

#include "../annotations.h"

namespace reportcheck {

// The first value that an element takes removes its type, whatever comes afterwards.
Remarks neverFilled(const ReportElement& element, const RuleContext& context)
{
    const QStringList types = annotationsOf(element, context.declared, {AnnotationKind::Type});
    if (types.isEmpty() || !element.IsWithoutContent()) {
        return {};
    }
    const QString type = element.Find(types.first())->value;
    if (!canBeFilled(type)) {
        return {{Severity::Error,
                 Texts::tr("The element has no value and still carries its annotations: nothing can fill its type, "
                           "\"%1\".")
                     .arg(type),
                 Texts::tr("Give it a type in the schema that can be filled, one of %1.")
                     .arg(builtInTypesOfElements().join(QLatin1String(", ")))}};
    }
    return {{Severity::Error,
             Texts::tr("The element has no value and still carries its annotations: nothing of the type \"%1\" was "
                       "offered, or what was offered was refused.")
                 .arg(type),
             Texts::tr("Offer a value of that type within its range or enumeration, or let the element be missing: "
                       "minOccurs=\"0\" in the schema. Where that is there already it does not help, in any copy "
                       "of a container but the first and in a type that is called otherwise than the element that "
                       "is of it: there the value has to be offered.")}};
}

} // namespace reportcheck
