#include "dryrun.h"

#include <list>
#include <optional>

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <reportfiller/reportfiller.h>

#include "examine.h"
#include "model/texts.h"

namespace schemadoctor {

namespace {

/// The values of a file; nothing when it cannot be read or has a line that is none.
std::optional<std::list<ReportFiller::Value>> valuesOf(const QString& fileName,
                                                       const std::function<void(const QString&)>& write)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        write(Texts::tr("%1: The file cannot be opened.").arg(fileName));
        return std::nullopt;
    }
    std::list<ReportFiller::Value> values;
    for (int number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const int separator = int(line.indexOf(QLatin1Char('=')));
        if (separator < 1) {
            write(Texts::tr("%1:%2: The line is not of the form name=value.").arg(fileName).arg(number));
            return std::nullopt;
        }
        values.push_back({line.left(separator).trimmed(), line.mid(separator + 1).trimmed(), false});
    }
    return values;
}

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
    const auto values = valuesOf(valuesFile, write);
    if (!values) {
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
    ReportFiller filler(*values);
    filler.SetJournal(write);
    if (!filler.Fill(schema, report)) {
        return DryRunEnd::NoSchema;
    }
    const QStringList complaints = filler.Complaints();
    for (const QString& complaint : complaints) {
        write(Texts::tr("complaint: %1").arg(complaint));
    }
    writeReport(report, write);
    return complaints.isEmpty() ? DryRunEnd::Complete : DryRunEnd::Incomplete;
}

} // namespace schemadoctor
