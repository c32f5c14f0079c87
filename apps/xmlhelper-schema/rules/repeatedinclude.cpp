#include "rule.h"

namespace schemadoctor {

namespace {

void look(const IncludedFile& file, Findings& findings)
{
    for (const IncludedFile& included : file.includes) {
        if (included.state == IncludeState::ReadAgain) {
            findings.Add(
                Severity::Note, included.place, included.written,
                QStringLiteral("The file '%1' is included once more.").arg(included.written),
                QStringLiteral("It is read again, and its definitions take the place of those that it gave before."),
                QStringLiteral("Include each file once, in the top file."));
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
