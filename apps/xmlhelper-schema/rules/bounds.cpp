#include "bounds.h"

namespace schemadoctor {

Bounds boundsInside(const TextNode& restriction)
{
    Bounds bounds;
    for (const auto& child : restriction.children) {
        if (child->Is("minInclusive")) {
            bounds.minInclusive = child.get();
        } else if (child->Is("maxInclusive")) {
            bounds.maxInclusive = child.get();
        } else if (child->Is("minExclusive")) {
            bounds.minExclusive = child.get();
        } else if (child->Is("maxExclusive")) {
            bounds.maxExclusive = child.get();
        }
    }
    return bounds;
}

Bounds boundsBeside(const TextNode& facet)
{
    const TextNode* const restriction = facet.Around("restriction");
    return restriction ? boundsInside(*restriction) : Bounds();
}

} // namespace schemadoctor
