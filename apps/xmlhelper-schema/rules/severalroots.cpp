#include "rule.h"

namespace schemadoctor {

/// XML has one element at the top.
void severalRoots(const Schema& schema, Findings& findings)
{
    const SkeletonTree& tree = schema.GetTree();
    if (tree.rootCount < 2) {
        return;
    }
    const SkeletonElement& first = tree.elements.front();
    findings.Add(
        Severity::Error, first.place, first.name,
        Texts::tr("%1 elements are laid out as roots, of which '%2' is the first.").arg(tree.rootCount).arg(first.name),
        Texts::tr("The report gets all of them, one behind the other: it is no XML document, and no program reads "
                  "it."),
        Texts::tr("Declare one global element around them, behind all includes, and refer to it nowhere."));
}

} // namespace schemadoctor
