#include "rule.h"

namespace schemadoctor {

namespace {

void look(const IncludedFile& file, Findings& findings)
{
    for (const IncludedFile& included : file.includes) {
        if (included.state == IncludeState::Malformed) {
            findings.Add(
                Severity::Error, {included.file, included.faultLine}, included.written,
                Texts::tr("The included file '%1' is no well-formed XML: %2").arg(included.written, included.fault),
                Texts::tr("What stands behind the fault is not read, without a word."), Texts::tr("Mend the file."));
        }
        look(included, findings);
    }
}

} // namespace

void malformedInclude(const Schema& schema, Findings& findings)
{
    look(schema.GetRecord().GetIncludes(), findings);
}

} // namespace schemadoctor
