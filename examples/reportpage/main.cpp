#include <iostream>

#include <QGuiApplication>
#include <QStringList>

#include <xmlhelperreports/reportpage.h>

/// Writes a report as a page for a browser and as PDF.
///
/// usage: reportpage REPORT.xml SCHEMA.xsd PAGE.html PAGE.pdf
int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ReportPage page;
    if (!page.Read(arguments.value(1), arguments.value(2))) {
        std::cerr << qPrintable(page.GetError()) << std::endl;
        return 1;
    }
    QString reason;
    if (!page.SaveHtml(arguments.value(3), &reason) || !page.SavePdf(arguments.value(4), &reason)) {
        std::cerr << qPrintable(reason) << std::endl;
        return 1;
    }
    return 0;
}
