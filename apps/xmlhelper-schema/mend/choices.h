#ifndef SCHEMADOCTOR_CHOICES_H
#define SCHEMADOCTOR_CHOICES_H

#include <map>
#include <set>

#include "mendedelement.h"

namespace schemadoctor {

/// The branches of each choice, those of no choice under None.
std::map<int, std::set<int>> branchesOf(const MendedContent& content);

/// Makes a choice of which one alternative is left no choice.
void settleChoices(MendedContent& content);

/// Drops alternatives, by the numbers of their branches.
void dropBranches(MendedContent& content, const std::set<int>& branches);

} // namespace schemadoctor

#endif
