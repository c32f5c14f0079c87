#include "rule.h"

namespace schemadoctor {

namespace {

void look(const IncludedFile& file, const Schema& schema, Findings& findings)
{
    for (const IncludedFile& included : file.includes) {
        if (included.state == IncludeState::Malformed) {
            QString fault;
            int line = 0;
            for (const TextFile* const read : schema.GetFiles()) {
                if (read->name == included.file) {
                    fault = read->fault;
                    line = read->faultLine;
                }
            }
            findings.Add(
                Severity::Error, {included.file, line}, included.written,
                QStringLiteral("The included file '%1' is no well-formed XML: %2").arg(included.written, fault),
                QStringLiteral("What stands behind the fault is not read, without a word."),
                QStringLiteral("Mend the file."));
        }
        look(included, schema, findings);
    }
}

} // namespace

void malformedInclude(const Schema& schema, Findings& findings)
{
    look(schema.GetPlan().GetIncludes(), schema, findings);
}

} // namespace schemadoctor
