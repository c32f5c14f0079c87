#include <algorithm>

#include "rule.h"

namespace schemadoctor {

namespace {

/// The anonymous complex type below the first level around a tag: the one whose element is not the global one.
const TextNode* nestedTypeAround(const TextNode& tag)
{
    const TextNode* outer = nullptr;
    const TextNode* nested = nullptr;
    for (const TextNode* type = tag.Around("complexType"); type; type = type->Around("complexType")) {
        nested = outer;
        outer = type;
    }
    return nested;
}

bool isInside(const TextNode& tag, const TextNode& around)
{
    const TextNode* node = &tag;
    while (node && node != &around) {
        node = node->parent;
    }
    return node;
}

/// Whether declarations follow inside of @p around that end up in the wrong place.
bool isFollowed(const TextNode& tag, const TextNode& around)
{
    const auto& tags = tag.file->tags;
    for (auto next = std::find(tags.begin(), tags.end(), &tag); next != tags.end(); ++next) {
        if (!isInside(**next, around)) {
            return false;
        }
        if ((*next)->IsAnyOf({"element", "attribute"}) && !isInside(**next, tag)) {
            return true;
        }
    }
    return false;
}

} // namespace

void simpleTypeInNestedType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"simpleType"})) {
        const TextNode* const nested = tag->attributes.isEmpty() ? nestedTypeAround(*tag) : nullptr;
        const TextNode* const element = tag->Around("element");
        if (!nested || !element || namedTypeAround(*tag) || !isFollowed(*tag, *nested)) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            Texts::tr("%1 has a simple type written inside of it, two types deep.").arg(described(*element)),
            Texts::tr("What follows it in the same place moves one level up in the report."),
            Texts::tr("Give the simple type a name, at the top of the schema, and refer to it with type."));
        if (const TextNode* const global = globalAround(*tag)) {
            addTrees(schema, *global, finding);
        }
    }
}

} // namespace schemadoctor
