#include "rule.h"

namespace schemadoctor {

/// A facet may be fixed too, which only concerns other schemas.
void fixed(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element", "attribute"})) {
        if (tag->Has("fixed")) {
            findings.Add(
                Severity::Warning, *tag,
                Texts::tr("%1 has the fixed value '%2'.").arg(described(*tag), tag->Value("fixed")),
                Texts::tr("The value is neither written nor checked: any other is accepted."),
                Texts::tr("Restrict xs:string to an enumeration of this one value, and have it set like any other: "
                          "a default that nobody sets leaves the annotations."));
        }
    }
}

} // namespace schemadoctor
