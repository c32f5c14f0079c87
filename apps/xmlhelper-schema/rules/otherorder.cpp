#include <algorithm>
#include <set>
#include <utility>

#include "rule.h"

namespace schemadoctor {

namespace {

/// The tag by which an element stands where it does; null when it is unknown.
const TextNode* particleOf(const SchemaRecord::ElementOrigin& origin)
{
    const bool isReferred = origin.reference && !origin.reference->Has("name");
    return isReferred ? origin.reference : origin.declaration;
}

/// Whether both stand in one sequence, @p first behind @p second.
bool isReversed(const TextNode* first, const TextNode* second)
{
    if (!first || !second || first == second || first->parent != second->parent || !first->parent
        || !first->parent->Is("sequence")) {
        return false;
    }
    const auto& children = first->parent->children;
    const auto isOneOfThem
        = [&](const std::unique_ptr<TextNode>& child) { return child.get() == first || child.get() == second; };
    return std::find_if(children.begin(), children.end(), isOneOfThem)->get() == second;
}

} // namespace

/// What is referred to before it is read comes in later: behind the element that stood last by then, in the order of
/// names.
void otherOrder(const Schema& schema, Findings& findings)
{
    const LaidOutTree& tree = schema.GetTree();
    const std::vector<SchemaRecord::ElementOrigin>& origins = schema.GetRecord().GetOrigins();
    std::set<std::pair<const TextNode*, const TextNode*>> told;
    for (const LaidOutElement& element : tree.elements) {
        for (std::size_t child = 1; child < element.children.size(); ++child) {
            const int index = element.children[child];
            const TextNode* const first = particleOf(origins[std::size_t(element.children[child - 1])]);
            const TextNode* const second = particleOf(origins[std::size_t(index)]);
            if (!isReversed(first, second) || !told.emplace(first, second).second) {
                continue;
            }
            findings.Add(Severity::Error, second->GetPlace(), nameOf(*second),
                         QStringLiteral("%1 stands in front of %2.").arg(described(*second), described(*first)),
                         QStringLiteral("It is laid out behind it: what is read behind the reference to it comes in "
                                        "at the end, in the order of names."),
                         QStringLiteral("Declare '%1' and '%2' in front of the element that refers to them.")
                             .arg(nameOf(*second), nameOf(*first)),
                         index);
        }
    }
}

} // namespace schemadoctor
