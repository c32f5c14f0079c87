#include "rule.h"

namespace schemadoctor {

/// For an element that occurs exactly once this is right; nobody asks for a count then.
void requiredWithoutMaximum(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const int minOccurs = occursOf(*tag, "minOccurs", 1);
        if (tag->IsGlobal() || tag->Has("maxOccurs") || minOccurs == 0
            || (minOccurs == 1 && !isInRepeatedGroup(*tag))) {
            continue;
        }
        findings.Add(Severity::Warning, *tag,
                     minOccurs > 1
                         ? Texts::tr("%1 is required %2 times, without maxOccurs.").arg(described(*tag)).arg(minOccurs)
                         : Texts::tr("%1 is required without maxOccurs, in a group that may occur repeatedly.")
                               .arg(described(*tag)),
                     Texts::tr("It has no limits at all: every count is refused, also that of one."),
                     Texts::tr("Write maxOccurs at the element."));
    }
}

} // namespace schemadoctor
