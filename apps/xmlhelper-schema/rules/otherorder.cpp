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

/// Knows where tags stand in their files.
class Positions
{
public:
    explicit Positions(const std::vector<const TextFile*>& files)
    {
        for (const TextFile* const file : files) {
            for (const TextNode* const tag : file->tags) {
                m_positions.insert(tag, int(m_positions.size()));
            }
        }
    }

    /// Whether both stand in one sequence, @p first behind @p second.
    bool AreReversed(const TextNode* first, const TextNode* second) const
    {
        return first && second && first->parent && first->parent == second->parent && first->parent->Is("sequence")
            && m_positions.value(first) > m_positions.value(second);
    }

private:
    QHash<const TextNode*, int> m_positions;
};

} // namespace

/// What is referred to before it is read comes in later: behind the element that stood last by then, in the order of
/// names.
void otherOrder(const Schema& schema, Findings& findings)
{
    const SkeletonTree& tree = schema.GetTree();
    const std::vector<SchemaRecord::ElementOrigin>& origins = schema.GetRecord().GetOrigins();
    const Positions positions(schema.GetFiles());
    std::set<std::pair<const TextNode*, const TextNode*>> told;
    for (const SkeletonElement& element : tree.elements) {
        for (std::size_t child = 1; child < element.children.size(); ++child) {
            const int index = element.children[child];
            const TextNode* const first = particleOf(origins[std::size_t(element.children[child - 1])]);
            const TextNode* const second = particleOf(origins[std::size_t(index)]);
            if (!positions.AreReversed(first, second) || !told.emplace(first, second).second) {
                continue;
            }
            findings.Add(Severity::Error, second->GetPlace(), nameOf(*second),
                         Texts::tr("%1 stands in front of %2.").arg(described(*second), described(*first)),
                         Texts::tr("It is laid out behind it: what is read behind the reference to it comes in "
                                   "at the end, in the order of names."),
                         Texts::tr("Declare '%1' and '%2' in front of the element that refers to them.")
                             .arg(nameOf(*second), nameOf(*first)),
                         index);
        }
    }
}

} // namespace schemadoctor
