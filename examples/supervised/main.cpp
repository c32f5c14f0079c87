#include <iostream>

#include <QCoreApplication>
#include <QDateTime>
#include <QTimer>
#include <QVariant>

#include <xmlhelperreports/reportfiller.h>
#include <xmlhelperreports/reportsupervisor.h>

namespace {

/// What becomes of the report is told by the supervisor.
void makeReport(const QString& schema, const QString& folder, int number)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss-zzz"));
    ReportFiller filler;
    filler.Add(QStringLiteral("Number"), number);
    filler.Add(QStringLiteral("Level"), -100.5 + number % 60);
    filler.Fill(schema, QStringLiteral("%1/%2.xml").arg(folder, time));
}

void print(const ReportSupervisor::Verdict& verdict)
{
    const QString state = QVariant::fromValue(verdict.state).toString();
    std::cout << qPrintable(state) << ' ' << qPrintable(verdict.reportPath) << ' ' << qPrintable(verdict.reason)
              << std::endl;
}

/// Reports that could not be written are tried again as soon as the folder is back; this program has no operator who
/// would say so.
void takeOverEarlier(ReportSupervisor& supervisor)
{
    const QStringList faults = supervisor.TakeOverEarlier();
    for (const QString& fault : faults) {
        std::cerr << qPrintable(fault) << std::endl;
    }
    for (const ReportSupervisor::Verdict& kept : supervisor.GetKept()) {
        supervisor.TryAgain(kept.report);
    }
}

} // namespace

/// Makes a report every second. The folder may go away at any time, as a disk does that is unplugged, and the program
/// may be killed: each report is written in the end.
///
/// usage: supervised SCHEMA FOLDER EMERGENCY-FOLDER [REPORTS [MILLISECONDS]]
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::cerr << "usage: supervised SCHEMA FOLDER EMERGENCY-FOLDER [REPORTS [MILLISECONDS]]" << std::endl;
        return 2;
    }
    const int reports = arguments.value(4).toInt(); // 0 for no end
    int made = 0;
    ReportSupervisor supervisor;
    supervisor.SetEmergencyFolder(arguments[3]);
    takeOverEarlier(supervisor);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        makeReport(arguments[1], arguments[2], ++made);
        if (made == reports) {
            timer.stop();
        }
    });
    QObject::connect(&supervisor, &ReportSupervisor::Changed, &timer, [&](quint64 report) {
        print(supervisor.GetReport(report));
        if (!timer.isActive() && supervisor.GetKept().empty() && supervisor.MayQuit().isEmpty()) {
            QCoreApplication::quit();
        }
    });
    timer.start(arguments.value(5, QStringLiteral("1000")).toInt());
    return QCoreApplication::exec();
}
