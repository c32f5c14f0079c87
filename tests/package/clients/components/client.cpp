// Looks into a value tree, fills a report by a schema that is not there, makes a panel without a report, and says so.

#include <cstdio>

#include <QApplication>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <xmlhelperreports/reportfiller.h>
#include <xmlhelperreportwidgets/reportpanel.h>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const Tree tree;
    new ValueItem(new ValueNumeric(QStringLiteral("Level"), 17.5), tree.GetRoot());
    std::printf("level: %s\n", qPrintable(tree.GetValue(QStringLiteral("Level"))->GetText()));

    ReportFiller filler;
    const bool isFilled = filler.Fill(QStringLiteral("nowhere.xsd"), QStringLiteral("nowhere/report.xml"));
    std::printf("filled: %s\nsays: %s\n", isFilled ? "yes" : "no", qPrintable(filler.Complaints().constFirst()));

    ReportSupervisor supervisor;
    ReportPanel panel(supervisor);
    std::printf("shows: %d\nmay quit: %s\n", int(panel.GetShownReport()), panel.MayQuit() ? "yes" : "no");
    return 0;
}
