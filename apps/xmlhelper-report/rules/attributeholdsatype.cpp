#include "rule.h"

#include <QRegularExpression>

#include "../annotations.h"

namespace reportcheck {

namespace {

bool isPrefixedType(const QString& value)
{
    static const QRegularExpression pattern(QStringLiteral("^xs:(\\w+)$"));
    const QRegularExpressionMatch match = pattern.match(value);
    return match.hasMatch() && isBuiltInType(match.captured(1));
}

bool hasFacetsOf(const QString& attribute, const ReportElement& element, const DeclaredAttributes& declared)
{
    for (const ReportAttribute& candidate : element.attributes) {
        const Annotation annotation = annotationIn(candidate, declared);
        if (annotation.kind == AnnotationKind::AttributeFacet && annotation.attribute == attribute) {
            return true;
        }
    }
    return false;
}

// The element's own annotations hold types, numbers and values by their nature.
bool isOfTheAuthor(const ReportAttribute& attribute, const DeclaredAttributes& declared)
{
    return annotationIn(attribute, declared).kind == AnnotationKind::None
        && !attribute.name.startsWith(QLatin1String("xsi:"));
}

Remark unfilled(const ReportAttribute& attribute)
{
    if (attribute.value.isEmpty()) {
        return {Severity::Error,
                Texts::tr("The attribute %1 is empty: its declaration names no type, so nothing can fill it.")
                    .arg(attribute.name),
                Texts::tr("Declare it with a type, or declare it globally with its simple type inside and refer to "
                          "it.")};
    }
    return {Severity::Error,
            Texts::tr("The attribute %1 still holds its type, \"%2\": it was never set, or what was offered was "
                      "refused.")
                .arg(attribute.name, attribute.value),
            Texts::tr("Set the attribute, or remove it with RemoveAttribute(\"%1\").").arg(attribute.name)};
}

} // namespace

// An attribute holds its type until it is set. Types of global declarations come without prefix, so that without a
// schema an attribute with the value "time" may be either.
Remarks attributeHoldsAType(const ReportElement& element, const RuleContext& context)
{
    Remarks remarks;
    for (const ReportAttribute& attribute : element.attributes) {
        if (!isOfTheAuthor(attribute, context.declared)) {
            continue;
        }
        if (isPrefixedType(attribute.value) || context.declared.IsPlaceholder(attribute.name, attribute.value)
            || (isBuiltInType(attribute.value) && hasFacetsOf(attribute.name, element, context.declared))) {
            remarks.push_back(unfilled(attribute));
        } else if (!context.declared.IsKnown() && isBuiltInType(attribute.value)) {
            remarks.push_back({Severity::Warning,
                               Texts::tr("The attribute %1 holds \"%2\", which may be its type.")
                                   .arg(attribute.name, attribute.value),
                               Texts::tr("Check with the schema: an attribute that was never set holds its type.")});
        }
    }
    return remarks;
}

} // namespace reportcheck
