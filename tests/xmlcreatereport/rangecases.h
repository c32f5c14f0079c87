#ifndef XMLHELPER_TESTS_RANGECASES_H
#define XMLHELPER_TESTS_RANGECASES_H

/// A value and its range facets, for everything that has facets: elements and attributes, integers and others.
struct RangeCase
{
    const char* rule;
    const char* facets; ///< "name=value name=value"
    int value;
    bool isElementAccepting;
    bool isAttributeAccepting; ///< differs where the value is equal to maxInclusive behind a lower bound
    const char* usedFacets; ///< what goes when the value is accepted
};

constexpr RangeCase RangeCases[] = {
    {"no-bound-accepts-everything", "", -5, true, true, ""},

    {"minInclusive-accepts-its-own-value", "minInclusive=0", 0, true, true, "minInclusive"},
    {"minInclusive-accepts-more", "minInclusive=0", 1, true, true, "minInclusive"},
    {"minInclusive-refuses-less", "minInclusive=0", -1, false, false, ""},
    {"minExclusive-refuses-its-own-value", "minExclusive=0", 0, false, false, ""},
    {"minExclusive-accepts-more", "minExclusive=0", 1, true, true, "minExclusive"},
    {"minExclusive-refuses-less", "minExclusive=0", -1, false, false, ""},
    {"maxInclusive-accepts-its-own-value-without-lower-bound", "maxInclusive=10", 10, true, true, "maxInclusive"},
    {"maxInclusive-accepts-less", "maxInclusive=10", -70000, true, true, "maxInclusive"},
    {"maxInclusive-refuses-more", "maxInclusive=10", 11, false, false, ""},
    {"maxExclusive-refuses-its-own-value", "maxExclusive=10", 10, false, false, ""},
    {"maxExclusive-accepts-less", "maxExclusive=10", 9, true, true, "maxExclusive"},
    {"maxExclusive-refuses-more", "maxExclusive=10", 11, false, false, ""},

    {"inclusive-bounds-accept-the-lower-one", "minInclusive=0 maxInclusive=10", 0, true, true,
     "maxInclusive minInclusive"},
    {"inclusive-bounds-accept-between", "minInclusive=0 maxInclusive=10", 9, true, true, "maxInclusive minInclusive"},
    {"value-equal-to-upper-bound-behind-minInclusive", "minInclusive=0 maxInclusive=10", 10, true, false,
     "maxInclusive minInclusive"},
    {"inclusive-bounds-refuse-more", "minInclusive=0 maxInclusive=10", 11, false, false, ""},
    {"inclusive-bounds-refuse-less", "minInclusive=0 maxInclusive=10", -1, false, false, ""},

    {"minInclusive-and-maxExclusive-accept-the-lower-one", "minInclusive=0 maxExclusive=10", 0, true, true,
     "maxExclusive minInclusive"},
    {"minInclusive-and-maxExclusive-accept-between", "minInclusive=0 maxExclusive=10", 9, true, true,
     "maxExclusive minInclusive"},
    {"minInclusive-and-maxExclusive-refuse-the-upper-one", "minInclusive=0 maxExclusive=10", 10, false, false, ""},
    {"minInclusive-and-maxExclusive-refuse-less", "minInclusive=0 maxExclusive=10", -1, false, false, ""},

    {"minExclusive-and-maxInclusive-refuse-the-lower-one", "minExclusive=0 maxInclusive=10", 0, false, false, ""},
    {"minExclusive-and-maxInclusive-accept-between", "minExclusive=0 maxInclusive=10", 9, true, true,
     "maxInclusive minExclusive"},
    {"value-equal-to-upper-bound-behind-minExclusive", "minExclusive=0 maxInclusive=10", 10, true, false,
     "maxInclusive minExclusive"},
    {"minExclusive-and-maxInclusive-refuse-more", "minExclusive=0 maxInclusive=10", 11, false, false, ""},

    {"exclusive-bounds-refuse-the-lower-one", "minExclusive=0 maxExclusive=10", 0, false, false, ""},
    {"exclusive-bounds-accept-between", "minExclusive=0 maxExclusive=10", 9, true, true, "maxExclusive minExclusive"},
    {"exclusive-bounds-refuse-the-upper-one", "minExclusive=0 maxExclusive=10", 10, false, false, ""},

    // Two facets on one side: the order of the steps decides, and what it does not use stays.
    {"satisfied-minInclusive-hides-minExclusive", "minInclusive=0 minExclusive=5", 3, true, true, "minInclusive"},
    {"unsatisfied-minInclusive-gives-way-to-minExclusive", "minInclusive=5 minExclusive=0", 3, true, true,
     "minExclusive"},
    {"both-lower-bounds-unsatisfied", "minInclusive=5 minExclusive=0", 0, false, false, ""},
    {"minInclusive-is-asked-before-minExclusive", "minInclusive=5 minExclusive=0", 5, true, true, "minInclusive"},
    {"satisfied-maxInclusive-hides-maxExclusive", "maxInclusive=10 maxExclusive=5", 7, true, true, "maxInclusive"},
    {"unsatisfied-maxInclusive-gives-way-to-maxExclusive", "maxInclusive=5 maxExclusive=10", 7, true, true,
     "maxExclusive"},
    {"maxInclusive-is-asked-before-maxExclusive", "maxInclusive=5 maxExclusive=10", 5, true, true, "maxInclusive"},
    {"both-upper-bounds-unsatisfied", "maxInclusive=5 maxExclusive=10", 10, false, false, ""},
    {"maxInclusive-alone-counts-behind-minInclusive", "minInclusive=0 maxInclusive=10 maxExclusive=5", 7, true, true,
     "maxInclusive minInclusive"},
    {"unsatisfied-maxInclusive-refuses-behind-minInclusive", "minInclusive=0 maxInclusive=5 maxExclusive=10", 7, false,
     false, ""},
    {"maxInclusive-alone-counts-behind-minExclusive", "minExclusive=0 maxInclusive=10 maxExclusive=5", 7, true, true,
     "maxInclusive minExclusive"},
    {"unsatisfied-maxInclusive-refuses-behind-minExclusive", "minExclusive=0 maxInclusive=5 maxExclusive=10", 7, false,
     false, ""},
    {"minExclusive-in-place-of-minInclusive-below-maxInclusive", "minInclusive=5 minExclusive=0 maxInclusive=10", 3,
     true, true, "maxInclusive minExclusive"},
    {"value-equal-to-upper-bound-behind-minExclusive-in-place-of-minInclusive",
     "minInclusive=20 minExclusive=0 maxInclusive=10", 10, true, false, "maxInclusive minExclusive"},
    {"minExclusive-in-place-of-minInclusive-below-maxExclusive", "minInclusive=5 minExclusive=0 maxExclusive=10", 3,
     true, true, "maxExclusive minExclusive"},
    {"both-lower-bounds-unsatisfied-below-maxInclusive", "minInclusive=5 minExclusive=0 maxInclusive=10", 0, false,
     false, ""},
    {"both-lower-bounds-unsatisfied-below-maxExclusive", "minInclusive=5 minExclusive=0 maxExclusive=10", 0, false,
     false, ""},
    {"inclusive-facets-are-used-of-all-four", "minInclusive=0 minExclusive=0 maxInclusive=10 maxExclusive=10", 5, true,
     true, "maxInclusive minInclusive"},
    {"exclusive-upper-bound-does-not-help-below-minInclusive", "minInclusive=20 maxInclusive=5 maxExclusive=10", 7,
     false, false, ""},
    {"exclusive-upper-bound-does-not-help-below-minExclusive", "minExclusive=20 maxInclusive=5 maxExclusive=10", 7,
     false, false, ""},

    // 65535 stands for a facet that is not given.
    {"minInclusive-of-65535-is-absent-and-stays", "minInclusive=65535", 5, true, true, ""},
    {"minExclusive-of-65535-is-absent-and-stays", "minExclusive=65535", 5, true, true, ""},
    {"maxInclusive-of-65535-is-absent-and-stays", "maxInclusive=65535", 70000, true, true, ""},
    {"maxExclusive-of-65535-is-absent-and-stays", "maxExclusive=65535", 70000, true, true, ""},
    {"maxInclusive-of-65535-is-absent-behind-minInclusive", "minInclusive=0 maxInclusive=65535", 70000, true, true,
     "minInclusive"},
    {"lower-bound-counts-beside-a-maxInclusive-of-65535", "minInclusive=0 maxInclusive=65535", -1, false, false, ""},
    {"maxExclusive-counts-beside-a-maxInclusive-of-65535", "maxInclusive=65535 maxExclusive=10", 9, true, true,
     "maxExclusive"},
    {"minExclusive-counts-beside-a-minInclusive-of-65535", "minInclusive=65535 minExclusive=0", 1, true, true,
     "minExclusive"},
    {"65534-is-a-bound", "maxInclusive=65534", 65535, false, false, ""},
    {"65536-is-a-bound", "maxInclusive=65536", 70000, false, false, ""},

    {"bound-that-is-no-number-counts-as-0", "maxInclusive=many", 1, false, false, ""},
    {"bound-that-is-no-number-goes-like-any-other", "maxInclusive=many", 0, true, true, "maxInclusive"},
    {"empty-bound-counts-as-0", "minInclusive=", -1, false, false, ""},
    {"negative-bounds", "minInclusive=-10 maxInclusive=-5", -6, true, true, "maxInclusive minInclusive"},
    {"bounds-are-compared-with-their-sign", "minInclusive=-10", -2147483647, false, false, ""},
};

#endif
