#ifndef SCHEMADOCTOR_DRYRUN_H
#define SCHEMADOCTOR_DRYRUN_H

#include <functional>

#include <QString>

namespace schemadoctor {

enum class DryRunEnd {
    Complete, ///< every value was taken, and nothing mandatory is missing
    Incomplete,
    NoSchema, ///< the schema cannot be read, or not by the doctor's limits
    NoValues, ///< the file of the values cannot be read
};

/// Fills a report for a schema from a file of values and writes down, line by line, what happens: each
/// announcement, call, refusal, retry and removal, what is left to complain about, and the report itself.
///
/// The values are those of xmlhelper-fill: JSON, CSV, or lines name=value. No file is left behind.
DryRunEnd dryRun(const QString& schema, const QString& valuesFile, const std::function<void(const QString&)>& write);

} // namespace schemadoctor

#endif
