#include "rule.h"

namespace schemadoctor {

void outsideInclude(const Schema& schema, Findings& findings)
{
    for (const IncludedFile* const included : includesBelow(schema.GetRecord().GetIncludes())) {
        if (included->isOutsideOfFolder && included->state != IncludeState::Missing) {
            findings.Add(
                Severity::Note, included->place, included->written,
                Texts::tr("The file '%1' is not in the folder of the top file.").arg(included->written),
                Texts::tr("It is read as '%1'; whoever gets the folder alone does not get it.").arg(included->file),
                Texts::tr("Keep the files of a schema in one folder."));
        }
    }
}

} // namespace schemadoctor
