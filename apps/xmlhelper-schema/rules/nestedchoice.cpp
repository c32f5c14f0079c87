#include "rule.h"

namespace schemadoctor {

void nestedChoice(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"choice"})) {
        if (tag->Around("choice")) {
            findings.Add(Severity::Warning, *tag, Texts::tr("An xs:choice stands inside of another."),
                         Texts::tr("Its end ends the outer one too: the alternatives behind it are mandatory, unless "
                                   "their own minOccurs is 0."),
                         Texts::tr("Write the alternatives of both as one choice, or put the inner choice last."));
        }
    }
}

} // namespace schemadoctor
