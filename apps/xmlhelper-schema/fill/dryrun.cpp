#include "dryrun.h"

#include <QFile>
#include <QTemporaryDir>

#include <xmlhelperreports/reportfiller.h>

#include <validityfaults.h>

#include "examine.h"
#include "model/texts.h"

namespace schemadoctor {

namespace {

void writeReport(const QString& fileName, const std::function<void(const QString&)>& write)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).trimmed().split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            write(line);
        }
    }
}

} // namespace

DryRunEnd dryRun(const QString& schema, const QString& valuesFile, const std::function<void(const QString&)>& write)
{
    ReportFiller filler;
    QString fault;
    if (!filler.AddFile(valuesFile, &fault)) {
        write(fault + QLatin1Char('.'));
        return DryRunEnd::NoValues;
    }
    // The limits of the doctor hold for this, too.
    const Examination examination = examine(schema, false);
    if (!examination.IsReadable() || examination.tree.IsEmpty()) {
        write(QStringLiteral("%1: %2").arg(
            schema, examination.IsReadable() ? examination.noTreeReason : examination.unreadableReason));
        return DryRunEnd::NoSchema;
    }
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report.xml"));
    filler.SetJournal(write);
    filler.SetValidator(reportcheck::validityFaults);
    const bool isComplete = filler.Fill(schema, report);
    if (!filler.IsSchemaRead()) {
        return DryRunEnd::NoSchema;
    }
    const QStringList complaints = filler.Complaints();
    for (const QString& complaint : complaints) {
        write(Texts::tr("complaint: %1").arg(complaint));
    }
    writeReport(report, write);
    return isComplete ? DryRunEnd::Complete : DryRunEnd::Incomplete;
}

} // namespace schemadoctor
