#ifndef XMLHELPER_CONSTANTS_P_H
#define XMLHELPER_CONSTANTS_P_H

#include <QLatin1String>

// Deliberate oddities.

/// What all four range facets have in common; attributes are recognised as range facets by containing it.
/// One might expect the four exact names. It is kept because declared attributes carry facets named facet + attribute,
/// which are found by the same substring.
inline const QLatin1String RangeFacetMark("clusive");

/// The element that carries the annotations of a simple type: users of the type receive its attributes and no child.
/// One might expect a dedicated record. It is kept because every reader of a fragment recognises carriers by this name.
inline const QLatin1String CarrierName("dummy");

/// The element that a content handler stands on between the start of a document and the first start tag.
/// One might expect a null element. It is kept because searches below the current element rely on there being one.
inline const QLatin1String PlaceholderName("dummy");

/// The name that replaces an element name which is lost right after it was entered into the occurrence map.
/// One might expect an assertion, since this cannot happen. The guard and its word are kept as they have always been.
inline const QLatin1String LostElementName("scheisse");

/// Stands for a range facet that is not given.
/// One might expect an optional. A facet whose value is exactly this number counts as not given and stays on the
/// element; schemas rely on it to have no bound and still to show one.
constexpr int AbsentBound = 65535;

/// The pending value of the report button while none is pending.
/// One might expect zero or a flag. A number that is retried as integer without a pending value writes this number;
/// readers of reports know it as "no value".
constexpr double IdlePendingValue = 65535.0;

/// No report item is being written.
/// One might expect -1. Kept together with the other sentinels of the suite.
constexpr int NO_INDEX = -100;

/// maxOccurs or minOccurs was not given.
/// One might expect an optional. An optional unbounded element has the same number as its occurs code
/// (UnboundedOccurs * OptionalOccursFactor), and the builder's arithmetic relies on that number.
constexpr int OccursNotGiven = -100;

/// maxOccurs was "unbounded".
constexpr int UnboundedOccurs = -1;

/// The occurs code of an element with minOccurs 0 is its maxOccurs times this factor.
/// One might expect two numbers. Kept because the codes are compared with counts as they are, so that an optional
/// element with maxOccurs n takes up to n * 100 occurrences; screens rely on that reserve.
constexpr int OptionalOccursFactor = 100;

/// Of the number of a choice alternative only the remainder by this counts when it is held against how many have been
/// discarded. One might expect the number itself, or one within its choice. Kept with the numbering, which runs over
/// the whole schema.
constexpr int DiscardGuardModulus = 100;

static_assert(UnboundedOccurs * OptionalOccursFactor == OccursNotGiven, "The two meanings of -100 coincide.");

#endif
