#ifndef XMLHELPER_RANGECHECK_P_H
#define XMLHELPER_RANGECHECK_P_H

#include <initializer_list>

#include <QLatin1String>
#include <QVarLengthArray>

#include "constants_p.h"
#include "skeletonwords_p.h"

/// What the range check answers: whether the value is accepted, and which facets have been used up then, in the order
/// in which they are to be removed.
struct RangeVerdict
{
    bool isAccepted;
    QVarLengthArray<QLatin1String, 2> usedFacets;
};

/// How a value is compared with maxInclusive once it has passed a lower bound.
enum class UpperBoundBehindLower {
    Inclusive, ///< elements

    /// Attributes. One might expect the bound to be inclusive, as its name says and as it is without a lower bound. It
    /// is kept because modules that write attributes treat the bound as a limit never reached.
    Strict
};

/// The bounds of a value and the check against them, shared by elements and attributes. For at most one lower and one
/// upper bound it accepts what satisfies both; for two on one side the order of the steps decides, and the facets that
/// are not named in the verdict stay. Comparisons follow IEEE rules: NaN is on neither side of a bound.
template <typename Number> struct RangeBounds
{
    Number minInclusive = AbsentBound;
    Number maxInclusive = AbsentBound;
    Number minExclusive = AbsentBound;
    Number maxExclusive = AbsentBound;

    /// Takes a bound. Facets without a name are passed over.
    void Set(QLatin1String facet, Number bound)
    {
        if (facet == MinInclusiveFacet) {
            minInclusive = bound;
        } else if (facet == MaxInclusiveFacet) {
            maxInclusive = bound;
        } else if (facet == MinExclusiveFacet) {
            minExclusive = bound;
        } else if (facet == MaxExclusiveFacet) {
            maxExclusive = bound;
        }
    }

    RangeVerdict Check(Number value, UpperBoundBehindLower rule) const
    {
        if (isGiven(minInclusive) && !(value < minInclusive)) {
            return checkBehindLower(MinInclusiveFacet, value, rule);
        }
        if (!isGiven(minInclusive) && !isGiven(minExclusive) && !isGiven(maxInclusive) && !isGiven(maxExclusive)) {
            return accept({});
        }
        if (isGiven(minExclusive) && !(value <= minExclusive)) {
            return checkBehindLower(MinExclusiveFacet, value, rule);
        }
        if (isGiven(maxInclusive) && !(value > maxInclusive)) {
            return checkBelow(MaxInclusiveFacet);
        }
        if (isGiven(maxExclusive) && !(value >= maxExclusive)) {
            return checkBelow(MaxExclusiveFacet);
        }
        return refuse();
    }

private:
    static bool isGiven(Number bound) { return bound != Number(AbsentBound); }
    static RangeVerdict accept(std::initializer_list<QLatin1String> usedFacets) { return {true, usedFacets}; }
    static RangeVerdict refuse() { return {false, {}}; }

    bool isAboveMaxInclusive(Number value, UpperBoundBehindLower rule) const
    {
        return rule == UpperBoundBehindLower::Strict ? value >= maxInclusive : value > maxInclusive;
    }

    /// The value has passed the lower bound @p lower.
    RangeVerdict checkBehindLower(QLatin1String lower, Number value, UpperBoundBehindLower rule) const
    {
        if (isGiven(maxInclusive)) {
            return isAboveMaxInclusive(value, rule) ? refuse() : accept({MaxInclusiveFacet, lower});
        }
        if (isGiven(maxExclusive)) {
            return value >= maxExclusive ? refuse() : accept({MaxExclusiveFacet, lower});
        }
        return accept({lower});
    }

    /// The value has passed the upper bound @p upper but no lower one: if there is one, it refuses the value.
    RangeVerdict checkBelow(QLatin1String upper) const
    {
        return isGiven(minInclusive) || isGiven(minExclusive) ? refuse() : accept({upper});
    }
};

#endif
