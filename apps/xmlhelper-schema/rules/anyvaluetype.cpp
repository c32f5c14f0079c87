#include <QSet>

#include "rule.h"

namespace schemadoctor {

void anyValueType(const Schema& schema, Findings& findings)
{
    QSet<QPair<QString, int>> told;
    const LaidOutTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const LaidOutElement& element = tree.elements[std::size_t(index)];
        const QPair<QString, int> place(element.place.file, element.place.line);
        if (!element.setters.testFlag(Setter::Text) || !element.setters.testFlag(Setter::Integer)
            || told.contains(place)) {
            continue;
        }
        told.insert(place);
        findings.Add(Severity::Note, element.place, element.name,
                     Texts::tr("The element '%1' is of the type '%2'.").arg(element.name, element.type),
                     Texts::tr("Every setter takes it: any text, truth or time that is offered is written, whether "
                               "it is a number or not."),
                     Texts::tr("Write xs:integer, restricted to the range, or offer it integers only."), index);
    }
}

} // namespace schemadoctor
