#include "rule.h"

#include <QMap>
#include <QStringList>

#include "../annotations.h"

namespace reportcheck {

namespace {

bool isStillToBeFilled(const ReportElement& element, const QString& attribute, const RuleContext& context)
{
    const ReportAttribute* const found = element.Find(attribute);
    return found
        && (isBuiltInType(found->value) || found->value.startsWith(QLatin1String("xs:"))
            || context.declared.IsPlaceholder(attribute, found->value));
}

QString whyTheyStay(const ReportElement& element, const QString& attribute)
{
    return element.Find(attribute)
        ? Texts::tr("A value removes the facets that it was checked by: one bound below and one above, or the "
                    "enumeration. A bound of 65535 counts as not given. Take the others out of the schema.")
        : Texts::tr("An attribute that is removed leaves its facets behind. Set the attribute, or declare it "
                    "without facets.");
}

} // namespace

// An attribute that still holds its type has its facets rightly; that is the business of another rule.
Remarks leftoverAttributeFacet(const ReportElement& element, const RuleContext& context)
{
    QMap<QString, QStringList> facetsOfAttribute;
    for (const ReportAttribute& candidate : element.attributes) {
        const Annotation annotation = annotationIn(candidate, context.declared);
        if (annotation.kind == AnnotationKind::AttributeFacet) {
            facetsOfAttribute[annotation.attribute].append(candidate.name);
        }
    }

    Remarks remarks;
    for (auto facets = facetsOfAttribute.cbegin(); facets != facetsOfAttribute.cend(); ++facets) {
        const QString& attribute = facets.key();
        if (!isStillToBeFilled(element, attribute, context)) {
            remarks.push_back({Severity::Error,
                               Texts::tr("Facets of the attribute %1 are left over: %2.")
                                   .arg(attribute, facets.value().join(QStringLiteral(", "))),
                               whyTheyStay(element, attribute)});
        }
    }
    return remarks;
}

} // namespace reportcheck
