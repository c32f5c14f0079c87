#include <QFileInfo>

#include "rule.h"

namespace schemadoctor {

namespace {

void look(const IncludedFile& file, Findings& findings)
{
    for (const IncludedFile& included : file.includes) {
        if (included.state == IncludeState::Missing) {
            const QString beside = QFileInfo(included.place.file).path() + QLatin1Char('/') + included.written;
            findings.Add(
                Severity::Error, included.place, included.written,
                QStringLiteral("The file '%1' is included and cannot be read.").arg(included.written),
                QStringLiteral("It is looked for as '%1', and passed over without a word.").arg(included.file),
                QFileInfo::exists(beside)
                    ? QStringLiteral("Write the location as seen from the top file: includes of included files count "
                                     "from there, too.")
                    : QStringLiteral("Give the location as seen from the folder of the top file."));
        }
        look(included, findings);
    }
}

} // namespace

void missingInclude(const Schema& schema, Findings& findings)
{
    look(schema.GetPlan().GetIncludes(), findings);
}

} // namespace schemadoctor
