#include "rule.h"

namespace schemadoctor {

void nestedTypeInNamedType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"complexType"})) {
        const TextNode* const type = tag->attributes.isEmpty() ? namedTypeAround(*tag) : nullptr;
        if (!type) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            QStringLiteral("An anonymous complex type stands inside of the named type '%1'.").arg(type->Value("name")),
            QStringLiteral(
                "Its elements are laid out beside the element that they belong to, and the place for references "
                "and attributes moves inside of the global element that was read last."),
            QStringLiteral("Give the inner type a name, at the top of the schema, and refer to it with type."));
        addTrees(schema, *type, finding);
    }
}

} // namespace schemadoctor
