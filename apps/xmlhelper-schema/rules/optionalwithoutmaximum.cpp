#include "rule.h"

namespace schemadoctor {

namespace {

/// Whether a group around the element may occur more than once, so that the element is meant to.
bool isInRepeatedGroup(const TextNode& tag)
{
    for (const TextNode* group = tag.parent; group && group->IsAnyOf({"sequence", "choice", "all"});
         group = group->parent) {
        const int maxOccurs = occursOf(*group, "maxOccurs", 1);
        if (maxOccurs < 0 || maxOccurs > 1) {
            return true;
        }
    }
    return false;
}

} // namespace

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
