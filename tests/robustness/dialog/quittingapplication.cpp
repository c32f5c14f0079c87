#include <QApplication>
#include <QTimer>
#include <QToolButton>

#include <xmlhelper/vcreporting.h>

#include "fakeclock.h"

/// An application that makes three reports with comments and quits while their dialogs are open.
///
/// usage: quittingapplication SCHEMA DIRECTORY quit|close-windows|return
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    FakeClock clock(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56, 1)));
    VCReporting reporting(arguments.at(1), arguments.at(2), nullptr, true, "ToReport", false, QPixmap());
    reporting.SetShowCommentDialog(true);
    for (int report = 0; report < 3; ++report) {
        reporting.GetReportButton()->click();
        clock.Advance(1);
    }
    const QString end = arguments.at(3);
    if (end == QLatin1String("return")) {
        return 0;
    }
    QTimer::singleShot(0, &application, [end] {
        if (end == QLatin1String("close-windows")) {
            QApplication::closeAllWindows();
        }
        QApplication::quit();
    });
    return QApplication::exec();
}
