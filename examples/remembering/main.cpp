#include <iostream>

#include <QCoreApplication>
#include <QDir>

#include <xmlhelperreports/reportfiller.h>
#include <xmlhelperreports/reportjournal.h>
#include <xmlhelperreports/reportsupervisor.h>

/// Makes a report in a folder and prints what the journal in that folder remembers of it.
///
/// usage: remembering SCHEMA.xsd FOLDER
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(2));
    ReportSupervisor supervisor;
    ReportJournal journal;
    QString message;
    const bool isOpen = journal.Open(folder.filePath(QStringLiteral("journal.sqlite")), &message);
    if (!message.isEmpty()) {
        std::cerr << qPrintable(message) << std::endl; // It cannot be opened, or was damaged and is made anew.
    }
    journal.SetValueNames({QStringLiteral("Frequency"), QStringLiteral("Frequency@Unit")});
    journal.Watch(supervisor);
    journal.TakeIn(folder.path()); // What others have written there is remembered, too.
    QObject::connect(&journal, &ReportJournal::Changed, &application, [&journal](const QString& id) {
        const ReportJournal::Entry entry = journal.Find(id);
        if (!entry.values.isEmpty()) { // They are read once the report is written and checked.
            std::cout << qPrintable(entry.verdict) << ": "
                      << qPrintable(entry.values.value(QStringLiteral("Frequency"))) << ' '
                      << qPrintable(entry.values.value(QStringLiteral("Frequency@Unit"))) << std::endl;
            QCoreApplication::quit();
        }
    });
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    filler.Add(QStringLiteral("Frequency"), 98.5e6);
    filler.Add(QStringLiteral("Frequency@Unit"), QStringLiteral("Hz"));
    filler.Add(QStringLiteral("Level"), -42.5);
    if (!isOpen || !filler.Fill(arguments.value(1), folder.filePath(QStringLiteral("report.xml")))) {
        std::cerr << qPrintable(filler.Complaints().join(QLatin1Char('\n'))) << std::endl;
        return 1;
    }
    return QCoreApplication::exec();
}
