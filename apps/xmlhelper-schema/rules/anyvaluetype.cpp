#include "rule.h"

namespace schemadoctor {

void anyValueType(const Schema& schema, Findings& findings)
{
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        if (!element.setters.testFlag(Setter::Text) || !element.setters.testFlag(Setter::Integer)
            || !told.Add(element.place, element.name, element.type)) {
            continue;
        }
        findings.Add(Severity::Note, element.place, element.name,
                     Texts::tr("The element '%1' is of the type '%2'.").arg(element.name, element.type),
                     Texts::tr("Every setter takes it: any text, truth or time that is offered is written, whether "
                               "it is a number or not."),
                     Texts::tr("Write xs:integer, restricted to the range, or offer it integers only."), index);
    }
}

} // namespace schemadoctor
