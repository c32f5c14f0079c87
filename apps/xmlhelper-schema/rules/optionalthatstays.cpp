#include <QSet>

#include "rule.h"

namespace schemadoctor {

/// Owners of optional elements are known by the name under which they were read: for a named type that of the type,
/// which is looked for among the elements of the report.
void optionalThatStays(const Schema& schema, Findings& findings)
{
    QSet<QPair<QString, int>> told;
    const LaidOutTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const LaidOutElement& element = tree.elements[std::size_t(index)];
        const QPair<QString, int> place(element.particle.file, element.particle.line);
        if (element.minOccurs != 0 || element.fate != Fate::Stays || told.contains(place)) {
            continue;
        }
        told.insert(place);
        findings.Add(Severity::Warning, element.particle, element.name,
                     QStringLiteral("The element '%1' is optional, but not known to be.").arg(element.name),
                     QStringLiteral("When nothing fills it, it stays, with its annotations: what is optional is looked "
                                    "for below the first element that is called like its owner, and in a named type "
                                    "the owner is the type."),
                     QStringLiteral("Write the type inside of the element that is of it, or call that element like the "
                                    "type, or fill '%1' in every report.")
                         .arg(element.name),
                     index);
    }
}

} // namespace schemadoctor
