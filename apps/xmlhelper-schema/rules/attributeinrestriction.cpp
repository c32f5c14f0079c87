#include "rule.h"

namespace schemadoctor {

void attributeInRestriction(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"attribute", "attributeGroup", "anyAttribute"})) {
        if (tag->Around("restriction")) {
            findings.Add(Severity::Error, *tag, Texts::tr("%1 stands inside of a restriction.").arg(described(*tag)),
                         Texts::tr("Every tag in there counts as a facet: the report gets an attribute called '%1', "
                                   "which stays, and not the one that is declared.")
                             .arg(tag->localName),
                         Texts::tr("Restrict in a named xs:simpleType, and add the attribute in an xs:extension of "
                                   "it."));
        }
    }
}

} // namespace schemadoctor
