// Stands for a program that keeps reports, until it is killed or its standard input ends.
//
// usage: xmlhelper_keeping lose EMERGENCYFOLDER REPORT...  lets reports fail, and says how many copies were made
//        xmlhelper_keeping take EMERGENCYFOLDER            takes over what others have left, and says how many

#include <iostream>

#include <QCoreApplication>

#include <xmlhelper/reportnews.h>
#include <xmlhelperreports/reportsupervisor.h>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ReportSupervisor supervisor;
    supervisor.SetEmergencyFolder(arguments.value(2));
    if (arguments.value(1) == QLatin1String("take")) {
        supervisor.TakeOverEarlier();
    }
    for (int i = 3; i < arguments.size(); ++i) {
        Q_EMIT ReportNews::Instance().Begun(quint64(i), arguments[i], QStringLiteral("survey.xsd"));
        Q_EMIT ReportNews::Instance().NotWritten(quint64(i), QStringLiteral("the folder is gone"),
                                                 "<report>" + arguments[i].toUtf8() + "</report>");
    }
    int safe = 0;
    for (const ReportSupervisor::Verdict& verdict : supervisor.GetKept()) {
        safe += verdict.isSafe ? 1 : 0;
    }
    std::cout << safe << std::endl;
    std::cin.get();
    return 0;
}
