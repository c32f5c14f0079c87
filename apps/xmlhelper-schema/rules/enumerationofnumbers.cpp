#include "rule.h"

namespace schemadoctor {

namespace {

/// Whether values are enumerated that only a text can be held against.
template <class Declared> bool isNeverChecked(const Declared& declared)
{
    return !declared.enumeration.isEmpty() && declared.setters != Setters() && !declared.setters.testFlag(Setter::Text);
}

} // namespace

/// Only texts are compared with an enumeration, and only that takes it away.
void enumerationOfNumbers(const Schema& schema, Findings& findings)
{
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        const auto tell = [&](const auto& declared, const QString& what) {
            if (isNeverChecked(declared) && told.Add(declared.place, declared.name, declared.type)) {
                findings.Add(Severity::Error, declared.place, declared.name, what.arg(declared.name, declared.type),
                             Texts::tr("Any value is taken, and the enumeration stays in the report as attributes "
                                       "that the schema does not allow."),
                             Texts::tr("Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive."),
                             index);
            }
        };
        tell(element, Texts::tr("The element '%1' enumerates values of the type '%2'."));
        for (const DeclaredAttribute& attribute : element.attributes) {
            tell(attribute, Texts::tr("The attribute '%1' enumerates values of the type '%2'."));
        }
    }
}

} // namespace schemadoctor
