#include <algorithm>

#include "rule.h"

namespace schemadoctor {

namespace {

bool hasAttributes(const TextNode& type)
{
    return std::any_of(type.children.begin(), type.children.end(), [](const std::unique_ptr<TextNode>& child) {
        return child->IsAnyOf({"attribute", "attributeGroup", "simpleContent"});
    });
}

} // namespace

void nestedTypeInNamedType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"complexType"})) {
        const TextNode* const type = tag->attributes.isEmpty() ? namedTypeAround(*tag) : nullptr;
        if (!type) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            Texts::tr("An anonymous complex type stands inside of the named type '%1'.").arg(type->Value("name")),
            Texts::tr("Its elements are laid out beside the element that they belong to, and the place for references "
                      "and attributes moves inside of the global element that was read last."),
            hasAttributes(*tag)
                ? Texts::tr("Write '%1', and each named type that it is used in, inside of the element that is of "
                            "it, up to the global element: a type with attributes can have no name.")
                      .arg(type->Value("name"))
                : Texts::tr("Give the inner type a name, at the top of the schema, and refer to it with type."));
        addTrees(schema, *type, finding);
    }
}

} // namespace schemadoctor
