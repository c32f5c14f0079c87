#include <QSet>

#include "rule.h"

namespace schemadoctor {

void containedAttributeNames(const Schema& schema, Findings& findings)
{
    QSet<QString> told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const QVector<DeclaredAttribute>& attributes = tree.elements[std::size_t(index)].attributes;
        for (const DeclaredAttribute& shorter : attributes) {
            for (const DeclaredAttribute& longer : attributes) {
                const QString key = shorter.name + QLatin1Char(' ') + longer.name;
                const bool isAnyFacet = !longer.facets.isEmpty() || !longer.enumeration.isEmpty();
                if (shorter.name == longer.name || !longer.name.contains(shorter.name) || !isAnyFacet
                    || told.contains(key)) {
                    continue;
                }
                told.insert(key);
                findings
                    .Add(Severity::Warning, shorter.place, shorter.name,
                         Texts::tr("The name of the attribute '%1' is part of that of '%2'.")
                             .arg(shorter.name, longer.name),
                         Texts::tr("Facets and enumeration values are found by parts of names: those of '%2' are "
                                   "applied to '%1', too.")
                             .arg(shorter.name, longer.name),
                         Texts::tr("Choose names of which none is part of another."))
                    .path
                    = pathOf(tree, index);
            }
        }
    }
}

} // namespace schemadoctor
