#include "rule.h"

namespace schemadoctor {

/// For an element that occurs at most once this is right; nobody asks for a count then.
void optionalWithoutMaximum(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        if (!tag->IsGlobal() && !tag->Has("maxOccurs") && tag->Has("minOccurs") && occursOf(*tag, "minOccurs", 1) == 0
            && isInRepeatedGroup(*tag)) {
            findings.Add(Severity::Warning, *tag,
                         Texts::tr("%1 is optional without maxOccurs, in a group that may occur repeatedly.")
                             .arg(described(*tag)),
                         Texts::tr("No count above 0 is accepted for it: a second one is refused."),
                         Texts::tr("Write maxOccurs=\"unbounded\" at the element."));
        }
    }
}

} // namespace schemadoctor
