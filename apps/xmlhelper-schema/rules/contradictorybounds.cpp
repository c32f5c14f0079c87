#include "bounds.h"
#include "rule.h"

namespace schemadoctor {

void contradictoryBounds(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"restriction"})) {
        const Bounds bounds = boundsInside(*tag);
        const TextNode* const lower = bounds.minInclusive ? bounds.minInclusive : bounds.minExclusive;
        const TextNode* const upper = bounds.maxInclusive ? bounds.maxInclusive : bounds.maxExclusive;
        if (!lower || !upper) {
            continue;
        }
        const double least = lower->Value("value").toDouble();
        const double greatest = upper->Value("value").toDouble();
        const bool isClosed = lower->Is("minInclusive") && upper->Is("maxInclusive");
        if (least > greatest || (least == greatest && !isClosed)) {
            findings.Add(Severity::Error, *upper,
                         Texts::tr("%1 is '%2', and %3 is '%4'.")
                             .arg(lower->localName, lower->Value("value"), upper->localName, upper->Value("value")),
                         Texts::tr("No value is accepted."), Texts::tr("Write the smaller bound as the lower one."));
        }
    }
}

} // namespace schemadoctor
