// Fills a report with a repeating container from values by path.
//
// usage: records_filler SCHEMA REPORT

#include <cstdio>

#include <QCoreApplication>

#include <xmlhelperreports/reportfiller.h>

#include "records.h"

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    for (const Record& record : records()) {
        filler.Add(QStringLiteral("Frequency"), record.frequency);
        filler.Add(QStringLiteral("Frequency@Unit"), QStringLiteral("Hz"));
        filler.Add(QStringLiteral("Level"), record.level);
        filler.Add(QStringLiteral("Remark"), record.remark);
    }
    filler.Add(QStringLiteral("Operator"), QStringLiteral("Ada"));
    filler.Add(QStringLiteral("Operator"), QStringLiteral("Ben"));

    const bool isComplete = filler.Fill(arguments.value(1), arguments.value(2));
    const QStringList complaints = filler.Complaints();
    for (const QString& complaint : complaints) {
        std::printf("%s\n", qUtf8Printable(complaint));
    }
    return isComplete ? 0 : 1;
}
