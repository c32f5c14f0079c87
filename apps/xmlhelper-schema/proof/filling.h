#ifndef SCHEMADOCTOR_FILLING_H
#define SCHEMADOCTOR_FILLING_H

#include <vector>

#include <QByteArray>
#include <QString>

#include "model/skeletontree.h"

namespace schemadoctor {

/// Which elements of a report are filled.
struct Filling
{
    QString verdict; ///< "A report filled with everything is not valid: %1"; for the findings
    std::vector<bool> isWanted; ///< for each element of the tree
    bool isWithOptionalAttributes = false;
    bool isTwice = false; ///< whatever may repeat
};

/// The fillings that together try what a schema allows: only what is required, and everything, each also with twice
/// what may repeat; each optional container alone. Of the alternatives of a choice the first stands for all.
///
/// @param most  how many at most are given
/// @param all   becomes how many there are
std::vector<Filling> fillingsOf(const SkeletonTree& tree, int most, int& all);

/// The report that the library makes of a schema when it is filled so, as the bytes of its file. All values fit the
/// types and the facets that the library hands out; optional attributes are filled with everything else, and removed
/// from the smallest report.
QByteArray filledReport(const QString& schema, const SkeletonTree& tree, const Filling& filling);

} // namespace schemadoctor

#endif
