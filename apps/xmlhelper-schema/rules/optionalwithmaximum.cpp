#include <QSet>

#include <xmlhelper/valuerules_p.h>

#include "rule.h"

namespace schemadoctor {

namespace {

QString keyOf(const QString& name, int greatest, const Place& place)
{
    return QStringLiteral("%1 %2 %3:%4").arg(name).arg(greatest).arg(place.file).arg(place.line);
}

/// The greatest counts that are accepted of the elements, with their names and places, and once more without places.
QSet<QString> acceptedCounts(const SkeletonTree& tree)
{
    QSet<QString> keys;
    for (const SkeletonElement& element : tree.elements) {
        for (const Place& place : {element.place, Place()}) {
            keys.insert(keyOf(element.name, element.counts.greatest, place));
        }
    }
    return keys;
}

} // namespace

/// Only where the library accepts so many. What a reference lays out has the place of the global declaration.
void optionalWithMaximum(const Schema& schema, Findings& findings)
{
    const QSet<QString> accepted = acceptedCounts(schema.GetTree());
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const int maxOccurs = occursOf(*tag, "maxOccurs", -1);
        const int greatest = greatestCountOf(occursCodeOf(0, maxOccurs).value_or(0));
        if (!tag->IsGlobal() && maxOccurs > 0 && tag->Has("minOccurs") && occursOf(*tag, "minOccurs", 1) == 0
            && accepted.contains(
                keyOf(localPart(nameOf(*tag)), greatest, tag->Has("name") ? tag->GetPlace() : Place()))) {
            findings.Add(Severity::Warning, *tag,
                         Texts::tr("%1 is optional with maxOccurs=\"%2\".").arg(described(*tag)).arg(maxOccurs),
                         Texts::tr("Counts up to %1 are accepted: more than the schema allows.").arg(greatest),
                         maxOccurs == 1 ? Texts::tr("Leave maxOccurs out.")
                                        : Texts::tr("Write maxOccurs=\"unbounded\", or make the element required "
                                                    "inside of an optional one."));
        }
    }
}

} // namespace schemadoctor
