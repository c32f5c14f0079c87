#ifndef SCHEMADOCTOR_BOUNDS_H
#define SCHEMADOCTOR_BOUNDS_H

#include <initializer_list>

#include "reading/schematext.h"

namespace schemadoctor {

inline const std::initializer_list<const char*> RangeFacetTags
    = {"minInclusive", "maxInclusive", "minExclusive", "maxExclusive"};

/// The range facets of a restriction; null where one is not given.
struct Bounds
{
    const TextNode* minInclusive = nullptr;
    const TextNode* maxInclusive = nullptr;
    const TextNode* minExclusive = nullptr;
    const TextNode* maxExclusive = nullptr;
};

Bounds boundsInside(const TextNode& restriction);

/// Of the restriction around a facet.
Bounds boundsBeside(const TextNode& facet);

} // namespace schemadoctor

#endif
