#include "rule.h"

namespace schemadoctor {

void optionalWithMaximum(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const int maxOccurs = occursOf(*tag, "maxOccurs", -1);
        if (!tag->IsGlobal() && maxOccurs > 0 && tag->Has("minOccurs") && occursOf(*tag, "minOccurs", 1) == 0) {
            findings.Add(Severity::Warning, *tag,
                         QStringLiteral("%1 is optional with maxOccurs=\"%2\".").arg(described(*tag)).arg(maxOccurs),
                         QStringLiteral("Counts up to %1 are accepted: a hundred times as many as the schema allows.")
                             .arg(100 * qint64(maxOccurs)),
                         maxOccurs == 1 ? QStringLiteral("Leave maxOccurs out.")
                                        : QStringLiteral("Write maxOccurs=\"unbounded\", or make the element required "
                                                         "inside of an optional one."));
        }
    }
}

} // namespace schemadoctor
