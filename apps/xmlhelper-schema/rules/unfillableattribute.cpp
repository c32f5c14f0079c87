#include "rule.h"
#include "typeadvice.h"

namespace schemadoctor {

void unfillableAttribute(const Schema& schema, Findings& findings)
{
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        for (const DeclaredAttribute& attribute : tree.elements[std::size_t(index)].attributes) {
            if (attribute.setters != Setters() || !told.Add(attribute.place, attribute.name, attribute.type)) {
                continue;
            }
            findings.Add(
                Severity::Warning, attribute.place, attribute.name,
                attribute.type.isEmpty()
                    ? Texts::tr("The attribute '%1' has no type of its own.").arg(attribute.name)
                    : Texts::tr("The attribute '%1' is of the type '%2'.").arg(attribute.name, attribute.type),
                Texts::tr("No setter takes it: the attribute can be removed, and otherwise stays and holds '%1'.")
                    .arg(attribute.type),
                adviceForAttribute(attribute.type), index);
        }
    }
}

} // namespace schemadoctor
