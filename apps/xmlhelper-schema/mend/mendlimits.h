#ifndef SCHEMADOCTOR_MENDLIMITS_H
#define SCHEMADOCTOR_MENDLIMITS_H

namespace schemadoctor {

// What is mended, besides the limits of the doctor, who is asked several times on the way.

/// Elements of a mended schema, with all groups and types written out.
constexpr int MaxMendedElements = 10000;

/// Groups, types and groups of attributes that are followed on the way, each as often as it is referred to.
constexpr int MaxFollowed = 50000;

/// Elements of all trees together that the doctor is asked about.
constexpr int MaxAskedElements = 20000;

} // namespace schemadoctor

#endif
