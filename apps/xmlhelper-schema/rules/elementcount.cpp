#include "reading/doctorlimits.h"
#include "rule.h"

namespace schemadoctor {

void elementCount(const Schema& schema, Findings& findings)
{
    const LayoutPlan& plan = schema.GetPlan();
    const Place place {plan.GetIncludes().file, 0};
    if (plan.GetEnd() == LayoutPlan::End::LimitExceeded) {
        findings.Add(Severity::Error, place, QString(), plan.GetLimit(),
                     QStringLiteral("The whole schema is given up: the report holds nothing."),
                     QStringLiteral("Lay out less: lower minOccurs, and split the schema into several."));
    } else if (plan.GetEnd() == LayoutPlan::End::TooMuchForTheDoctor) {
        findings.Add(
            Severity::Note, place, QString(), plan.GetLimit(),
            QStringLiteral("The library still reads it; its tree is not shown here, and rules that need the tree "
                           "are silent."),
            QStringLiteral("Lay out less, if reports are to be written quickly."));
    } else if (plan.GetCount().elements > MaxShownElements || plan.GetElementsOfAllDefinitions() > MaxLaidOutElements) {
        findings.Add(
            Severity::Note, place, QString(),
            QStringLiteral("The schema lays out %1 elements, and %2 on the way.")
                .arg(plan.GetCount().elements)
                .arg(plan.GetElementsOfAllDefinitions()),
            QStringLiteral("The library reads it; its tree is not shown here, and rules that need the tree are "
                           "silent."),
            QStringLiteral("Lay out less, if reports are to be written quickly."));
    }
}

} // namespace schemadoctor
