// Makes a panel without a report, and says so.

#include <cstdio>

#include <QApplication>

#include <xmlhelperreportwidgets/reportpanel.h>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    ReportSupervisor supervisor;
    ReportPanel panel(supervisor);
    std::printf("shows: %d\nmay quit: %s\n", int(panel.GetShownReport()), panel.MayQuit() ? "yes" : "no");
    return 0;
}
