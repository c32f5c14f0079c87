#include "rule.h"

namespace schemadoctor {

/// Limits are found in the same way as what is optional: by the names of owners.
void unrepeatable(const Schema& schema, Findings& findings)
{
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        const bool isMeantToBe = element.maxOccurs == AcceptedCounts::Unbounded || element.maxOccurs > 1;
        const bool isNever = element.counts.isKnown && element.counts.greatest == 0;
        if (!isMeantToBe || (!isNever && !element.isSingleInCopies)
            || !told.Add(element.place, element.name, element.type)) {
            continue;
        }
        findings.Add(
            Severity::Warning, element.place, element.name,
            isNever ? Texts::tr("The element '%1' may be repeated, but is not known to.").arg(element.name)
                    : Texts::tr("The element '%1' may be repeated inside of one that may be, too.").arg(element.name),
            isNever ? Texts::tr("Every count is refused: limits are looked for below the first element that is "
                                "called like the owner, and in a named type the owner is the type.")
                    : Texts::tr("Counts are accepted in the first copy only, and refused in the others: limits are "
                                "looked for below the first element that is called like the owner."),
            isNever ? Texts::tr("Write the type inside of the element that is of it, or call that element like the "
                                "type.")
                    : Texts::tr("Repeat only one of the two in a report."),
            index);
    }
}

} // namespace schemadoctor
