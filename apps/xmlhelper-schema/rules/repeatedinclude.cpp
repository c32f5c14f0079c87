#include "rule.h"

namespace schemadoctor {

void repeatedInclude(const Schema& schema, Findings& findings)
{
    for (const IncludedFile* const included : includesBelow(schema.GetRecord().GetIncludes())) {
        if (included->state == IncludeState::ReadAgain) {
            findings.Add(
                Severity::Note, included->place, included->written,
                Texts::tr("The file '%1' is included once more.").arg(included->written),
                Texts::tr("It is read again, and its definitions take the place of those that it gave before."),
                Texts::tr("Include each file once, in the top file."));
        }
    }
}

} // namespace schemadoctor
