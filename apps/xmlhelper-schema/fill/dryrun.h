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

/// Fills a report for a schema from a text of name=value lines and writes down, line by line, what happens: each
/// announcement, call, refusal, retry and removal, what is left to complain about, and the report itself.
///
/// Names are those of fillreport: Element, Parent/Element or Element@Attribute; equal names go to repeated elements.
/// Empty lines and lines that begin with # are passed over. No file is left behind.
DryRunEnd dryRun(const QString& schema, const QString& valuesFile, const std::function<void(const QString&)>& write);

} // namespace schemadoctor

#endif
