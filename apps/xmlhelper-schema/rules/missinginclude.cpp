#include <QFileInfo>

#include "rule.h"

namespace schemadoctor {

namespace {

QString remedyFor(const IncludedFile& included, const QString& topFile)
{
    if (!topFile.contains(QLatin1Char('/'))) {
        return Texts::tr("Name the schema with its folder, such as ./%1: a name without any counts as a folder. That "
                         "goes for the path that an application gives to the library, too.")
            .arg(topFile);
    }
    const QString beside = QFileInfo(included.place.file).path() + QLatin1Char('/') + included.written;
    return QFileInfo::exists(beside)
        ? Texts::tr("Write the location as seen from the top file: includes of included files count from there, "
                    "too.")
        : Texts::tr("Give the location as seen from the folder of the top file.");
}

} // namespace

void missingInclude(const Schema& schema, Findings& findings)
{
    const IncludedFile& top = schema.GetRecord().GetIncludes();
    for (const IncludedFile* const included : includesBelow(top)) {
        if (included->state == IncludeState::Missing) {
            findings.Add(Severity::Error, included->place, included->written,
                         Texts::tr("The file '%1' is included and cannot be read.").arg(included->written),
                         Texts::tr("It is looked for as '%1', and passed over without a word.").arg(included->file),
                         remedyFor(*included, top.written));
        }
    }
}

} // namespace schemadoctor
