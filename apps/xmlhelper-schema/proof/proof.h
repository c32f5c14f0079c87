#ifndef SCHEMADOCTOR_PROOF_H
#define SCHEMADOCTOR_PROOF_H

#include <vector>

#include <QString>
#include <QVector>

#include "model/examination.h"
#include "reading/schematext.h"

namespace schemadoctor {

/// Fills reports for a schema as its author may, validates each by the schema as it is written, and holds what is
/// wrong with them against what the rules have found. What no finding explains is added to the findings, under the
/// name "unforetold".
///
/// The reports stay in memory. The work is done in a process of its own and is bounded; the examination says what was
/// tried and what was left out.
void prove(const QString& file, const std::vector<const TextFile*>& files, Examination& examination);

} // namespace schemadoctor

#endif
