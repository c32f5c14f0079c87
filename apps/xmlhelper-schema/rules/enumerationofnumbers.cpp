#include <set>
#include <tuple>

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
    std::set<std::tuple<QString, int, QString>> told;
    const LaidOutTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const LaidOutElement& element = tree.elements[std::size_t(index)];
        const auto tell = [&](const Place& place, const QString& name, const QString& what) {
            if (told.emplace(place.file, place.line, name).second) {
                findings.Add(Severity::Error, place, name, what,
                             Texts::tr("Any value is taken, and the enumeration stays in the report as attributes "
                                       "that the schema does not allow."),
                             Texts::tr("Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive."),
                             index);
            }
        };
        if (isNeverChecked(element)) {
            tell(element.place, element.name,
                 Texts::tr("The element '%1' enumerates values of the type '%2'.").arg(element.name, element.type));
        }
        for (const DeclaredAttribute& attribute : element.attributes) {
            if (isNeverChecked(attribute)) {
                tell(attribute.place, attribute.name,
                     Texts::tr("The attribute '%1' enumerates values of the type '%2'.")
                         .arg(attribute.name, attribute.type));
            }
        }
    }
}

} // namespace schemadoctor
