#include "rule.h"

namespace schemadoctor {

void cyclicInclude(const Schema& schema, Findings& findings)
{
    for (const IncludedFile* const included : includesBelow(schema.GetRecord().GetIncludes())) {
        if (included->state == IncludeState::Cyclic || included->state == IncludeState::TooDeep) {
            findings.Add(Severity::Warning, included->place, included->written,
                         included->state == IncludeState::Cyclic
                             ? Texts::tr("The file '%1' is included while it is being read.").arg(included->written)
                             : Texts::tr("The include of '%1' is too deep.").arg(included->written),
                         Texts::tr("It is skipped."),
                         Texts::tr("Include all files in the top file, and none in the others."));
        }
    }
}

} // namespace schemadoctor
