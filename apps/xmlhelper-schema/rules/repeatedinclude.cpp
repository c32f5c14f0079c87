#include "rule.h"

namespace schemadoctor {

namespace {

void look(const IncludedFile& file, Findings& findings)
{
    for (const IncludedFile& included : file.includes) {
        if (included.state == IncludeState::ReadAgain) {
            findings.Add(
                Severity::Note, included.place, included.written,
                Texts::tr("The file '%1' is included once more.").arg(included.written),
                Texts::tr("It is read again, and its definitions take the place of those that it gave before."),
                Texts::tr("Include each file once, in the top file."));
        }
        look(included, findings);
    }
}

} // namespace

void repeatedInclude(const Schema& schema, Findings& findings)
{
    look(schema.GetRecord().GetIncludes(), findings);
}

} // namespace schemadoctor
