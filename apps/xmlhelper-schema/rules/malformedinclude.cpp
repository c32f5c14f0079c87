#include "rule.h"

namespace schemadoctor {

void malformedInclude(const Schema& schema, Findings& findings)
{
    for (const IncludedFile* const included : includesBelow(schema.GetRecord().GetIncludes())) {
        if (included->state == IncludeState::Malformed) {
            findings.Add(
                Severity::Error, {included->file, included->faultLine}, included->written,
                Texts::tr("The included file '%1' is no well-formed XML: %2").arg(included->written, included->fault),
                Texts::tr("What stands behind the fault is not read, without a word."), Texts::tr("Mend the file."));
        }
    }
}

} // namespace schemadoctor
