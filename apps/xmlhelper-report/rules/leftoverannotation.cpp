#include "rule.h"

#include <xmlhelper/constants_p.h>

#include "../annotations.h"

namespace reportcheck {

namespace {

QString whyItStays(const ReportAttribute& attribute, AnnotationKind kind)
{
    switch (kind) {
    case AnnotationKind::Type:
        return Texts::tr("The schema gives a simple type to an element that holds others. Give simple types to "
                         "elements without children only.");
    case AnnotationKind::Default:
        return Texts::tr("A default of the schema stays until it is removed: call RemoveAttribute(\"default\"), or "
                         "declare no default.");
    case AnnotationKind::OtherFacet:
        return Texts::tr("This facet is not checked and never removed. Take it out of the schema.");
    case AnnotationKind::Range:
        if (attribute.value.toDouble() == double(AbsentBound)) {
            return Texts::tr("A bound of 65535 counts as not given and is never removed. Write another one in the "
                             "schema, such as the next number behind it with the exclusive facet.");
        }
        return Texts::tr("One bound below and one above are checked and removed. Take the other one out of the "
                         "schema, and give bounds to numbers only.");
    default:
        return Texts::tr("An enumeration is checked and removed when a text is set. Declare the element as a "
                         "string, and set it as one.");
    }
}

} // namespace

// What an element keeps although it was filled, or never had a type to be filled by. Unfilled value elements are the
// business of other rules.
Remarks leftoverAnnotation(const ReportElement& element, const RuleContext& context)
{
    const auto isAnnotated
        = [&](AnnotationKind kind) { return !annotationsOf(element, context.declared, {kind}).isEmpty(); };
    const bool isUnfilled = !element.hasChildElements && isAnnotated(AnnotationKind::Type);
    const bool isRefused = element.IsWithoutContent() && isAnnotated(AnnotationKind::Range);
    if (isUnfilled || isRefused) {
        return {};
    }

    Remarks remarks;
    for (const ReportAttribute& attribute : element.attributes) {
        const AnnotationKind kind = annotationIn(attribute, context.declared).kind;
        if (kind != AnnotationKind::None && kind != AnnotationKind::AttributeFacet) {
            remarks.push_back({Severity::Error,
                               Texts::tr("The annotation %1=\"%2\" is left over.").arg(attribute.name, attribute.value),
                               whyItStays(attribute, kind)});
        }
    }
    return remarks;
}

} // namespace reportcheck
