#include "rule.h"

namespace schemadoctor {

void repeatedInlineType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        if (tag->IsGlobal() || occursOf(*tag, "minOccurs", 1) < 2) {
            continue;
        }
        for (const auto& child : tag->children) {
            if (child->IsAnyOf({"complexType", "simpleType"}) && child->attributes.isEmpty()) {
                Finding& finding
                    = findings.Add(Severity::Error, *tag,
                                   Texts::tr("%1 is required %2 times and has its type written inside of it.")
                                       .arg(described(*tag), tag->Value("minOccurs")),
                                   Texts::tr("Only the last of its copies gets what the type says."),
                                   Texts::tr("Give the type a name, in front of this one, and refer to it with type."));
                if (const TextNode* const global = globalAround(*tag)) {
                    addTrees(schema, *global, finding);
                }
            }
        }
    }
}

} // namespace schemadoctor
