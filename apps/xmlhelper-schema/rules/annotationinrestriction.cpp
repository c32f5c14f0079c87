#include "rule.h"

namespace schemadoctor {

void annotationInRestriction(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"annotation"})) {
        if (tag->Around("restriction")) {
            findings.Add(Severity::Error, *tag, Texts::tr("An xs:annotation stands inside of a restriction."),
                         Texts::tr("Every tag in there counts as a facet: 'annotation' and the tags inside become "
                                   "attributes of the report and stay there."),
                         Texts::tr("Put the annotation in front of the restriction, or write a comment."));
        }
    }
}

} // namespace schemadoctor
