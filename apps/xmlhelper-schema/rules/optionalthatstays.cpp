#include <algorithm>

#include "rule.h"

namespace schemadoctor {

namespace {

struct Cause
{
    QString what;
    QString effect;
    QString remedy;
};

/// Owners of optional elements are known by the name under which they were read: for a named type that of the type,
/// which is looked for among the elements of the report.
Cause unknownOwner(const QString& name)
{
    return {Texts::tr("The element '%1' is optional, but not known to be.").arg(name),
            Texts::tr("When nothing fills it, it stays, with its annotations: what is optional is looked for below "
                      "the first element that is called like its owner, and in a named type the owner is the "
                      "type."),
            Texts::tr("Write the type inside of the element that is of it, or call that element like the type, or "
                      "fill '%1' in every report.")
                .arg(name)};
}

Cause firstCopyOnly(const QString& name)
{
    return {Texts::tr("The element '%1' is optional inside of one that may be repeated.").arg(name),
            Texts::tr("When nothing fills it, it is removed from the first copy only, and stays in the others, "
                      "with its annotations: what is optional is looked for below the first element that is called "
                      "like its owner."),
            Texts::tr("Fill '%1' in every copy but the first, or make it required.").arg(name)};
}

Cause goneInstead(const QString& name, const QString& other)
{
    return {Texts::tr("The element '%1' is optional, and stands behind '%2', which is optional and empty.")
                .arg(name, other),
            Texts::tr("When nothing fills '%1', '%2' is removed in its place, and the report goes on where that "
                      "stood: '%1' stays, with its annotations, and what follows is not asked for.")
                .arg(name, other),
            Texts::tr("Put an element with a value into '%1', or '%1' in front of one of its siblings.").arg(other)};
}

Cause noValue(const QString& name)
{
    return {Texts::tr("The element '%1' is optional, and nothing inside of it takes a value.").arg(name),
            Texts::tr("Attributes alone do not fill it and do not remove it: it stays, with its annotations, unless "
                      "a value behind it is unfilled. That one removes it."),
            Texts::tr("Put an element with a value into '%1', or make it required and set its attributes in every "
                      "report.")
                .arg(name)};
}

/// Of an element in which there is nothing to be set at all.
Cause alwaysEmpty(const QString& name, Fate fate)
{
    return {Texts::tr("The element '%1' is optional, and nothing inside of it takes a value.").arg(name),
            fate == Fate::Stays
                ? Texts::tr("Nothing fills it and nothing removes it: it stays, whether a report is meant to have it "
                            "or not.")
                : Texts::tr("Nothing fills it: it stays, whether a report is meant to have it or not, unless a value "
                            "behind it is unfilled. That one removes it."),
            Texts::tr("Give '%1' a type that takes a value, such as xs:boolean, or make it required.").arg(name)};
}

/// Whether the element or one inside of it has any.
bool isAnyAttributeIn(const SkeletonTree& tree, int index)
{
    const auto begin = tree.elements.begin() + index;
    const auto end = std::find_if(begin + 1, tree.elements.end(),
                                  [index](const SkeletonElement& other) { return other.parent < index; });
    return std::any_of(begin, end, [](const SkeletonElement& element) { return !element.attributes.isEmpty(); });
}

Cause causeOf(const SkeletonTree& tree, int index)
{
    const SkeletonElement& element = tree.elements[std::size_t(index)];
    if (element.staysInCopies) {
        return firstCopyOnly(element.name);
    }
    if (element.goesInstead != SkeletonElement::None) {
        return goneInstead(element.name, tree.elements[std::size_t(element.goesInstead)].name);
    }
    if (!element.counts.takesZero) {
        return unknownOwner(element.name);
    }
    return isAnyAttributeIn(tree, index) ? noValue(element.name) : alwaysEmpty(element.name, element.fate);
}

} // namespace

void optionalThatStays(const Schema& schema, Findings& findings)
{
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        const bool mayStay = element.fate == Fate::Stays || element.fate == Fate::IsRemovedWithAnother;
        if (element.minOccurs != 0 || (!mayStay && !element.staysInCopies)
            || !told.Add(element.particle, element.name, element.type)) {
            continue;
        }
        const Cause cause = causeOf(tree, index);
        findings.Add(Severity::Warning, element.particle, element.name, cause.what, cause.effect, cause.remedy, index);
    }
}

} // namespace schemadoctor
