#include "rule.h"

namespace schemadoctor {

void substitutionGroup(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        if (tag->Has("substitutionGroup")) {
            findings.Add(Severity::Warning, *tag,
                         Texts::tr("%1 may stand for '%2'.").arg(described(*tag), tag->Value("substitutionGroup")),
                         Texts::tr("It never does: a reference to '%1' lays out only that one. A member that nothing "
                                   "refers to competes for the root of the report.")
                             .arg(tag->Value("substitutionGroup")),
                         Texts::tr("Write the members as alternatives of an xs:choice."));
        }
    }
}

} // namespace schemadoctor
