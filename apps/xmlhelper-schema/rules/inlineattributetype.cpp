#include "rule.h"

namespace schemadoctor {

void inlineAttributeType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"attribute"})) {
        if (tag->IsGlobal()) {
            continue; // There it is understood.
        }
        for (const auto& child : tag->children) {
            if (child->Is("simpleType")) {
                findings.Add(
                    Severity::Error, *tag, Texts::tr("%1 has a type written inside of it.").arg(described(*tag)),
                    Texts::tr("The attribute gets no type, so that no setter takes it; the type and its facets "
                              "go to an element instead."),
                    Texts::tr("Declare the attribute globally with this type, and refer to it here with "
                              "<xs:attribute ref=\"%1\"/>.")
                        .arg(tag->Value("name")));
            }
        }
    }
}

} // namespace schemadoctor
