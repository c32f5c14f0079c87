#ifndef SCHEMADOCTOR_DOCTORLIMITS_H
#define SCHEMADOCTOR_DOCTORLIMITS_H

namespace schemadoctor {

// What the doctor examines, besides the limits of the library: every answer comes within two seconds and 512 MB.

/// Characters of all files that the library reads for the schema, a file counted as often as it is read.
constexpr int MaxSchemaBytes = 4 * 1024 * 1024;

/// Elements of which a tree is shown. The library lays out more, but its documents need too much for every schema that
/// is only looked at; the number is computed for those all the same.
constexpr int MaxShownElements = 30000;

/// Elements of all definitions that the library is let to lay out for the doctor.
constexpr int MaxSkeletonElements = 100000;

/// Attributes of these elements: types, facets, enumeration values, declared attributes.
constexpr int MaxLaidOutAnnotations = 300000;

/// Declarations that the library may have to look at in one walk on trial.
constexpr int MaxTrialSteps = 20'000'000;

/// Findings of one rule; behind them only their number is told.
constexpr int MaxFindingsOfARule = 100;

/// Elements of all reports together that are filled on trial.
constexpr int MaxProofElements = 20000;

/// Lines of each of the two trees beside each other.
constexpr int MaxTreeLines = 24;

} // namespace schemadoctor

#endif
