#include <iostream>

#include <QCoreApplication>
#include <QVariant>

#include <xmlhelperreports/reportfiller.h>
#include <xmlhelperreports/reportsupervisor.h>

/// Makes a report of one value and waits until it is written. Tells what becomes of it, and of what earlier runs could
/// not write.
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ReportSupervisor supervisor;
    QObject::connect(&supervisor, &ReportSupervisor::Changed, [&supervisor](quint64 report) {
        const ReportSupervisor::Verdict verdict = supervisor.GetReport(report);
        const QString state = QVariant::fromValue(verdict.state).toString();
        std::cout << qPrintable(state) << ' ' << qPrintable(verdict.reason) << std::endl;
        if (verdict.isChecked && report < ReportSupervisor::FirstEarlier) {
            QCoreApplication::quit();
        }
    });
    const QStringList faults = supervisor.TakeOverEarlier();
    for (const QString& fault : faults) {
        std::cerr << qPrintable(fault) << std::endl;
    }
    for (const ReportSupervisor::Verdict& kept : supervisor.GetKept()) {
        supervisor.TryAgain(kept.report);
    }
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    filler.Fill(arguments.value(1), arguments.value(2));
    return QCoreApplication::exec();
}
