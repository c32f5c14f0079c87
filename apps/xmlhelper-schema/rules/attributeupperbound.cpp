#include "bounds.h"
#include "rule.h"

namespace schemadoctor {

void attributeUpperBound(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"maxInclusive"})) {
        const Bounds bounds = boundsBeside(*tag);
        if (tag->Around("attribute") && (bounds.minInclusive || bounds.minExclusive)) {
            findings.Add(
                Severity::Warning, *tag,
                Texts::tr("maxInclusive of an attribute is '%1', beside a lower bound.").arg(tag->Value("value")),
                Texts::tr("The value %1 itself is refused.").arg(tag->Value("value")),
                Texts::tr("Write the next greater integer, or leave the lower bound out."));
        }
    }
}

} // namespace schemadoctor
