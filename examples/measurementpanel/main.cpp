#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <QTextStream>
#include <QThread>
#include <QToolButton>

#include <xmlhelper/reportnews.h>

#include "panelwindow.h"

namespace {

/// Among the user's documents, and made when it is missing, so that the first press finds it.
QString firstReportDirectory()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    documents.mkpath(QStringLiteral("Measurement Reports"));
    return documents.filePath(QStringLiteral("Measurement Reports"));
}

/// Presses the button on one channel after the other, and prints where the reports are. Stops at one that is not good.
bool press(int times, const PanelWindow& window, const ReportSupervisor& supervisor, SimulatedReceiver& receiver)
{
    window.findChild<VCReporting*>()->SetShowCommentDialog(false);
    quint64 report = 0;
    const QObject listener;
    QObject::connect(&ReportNews::Instance(), &ReportNews::Begun, &listener, [&](quint64 number) { report = number; });
    for (; times > 0; --times, report = 0) {
        QThread::msleep(1); // reports are named after the millisecond
        window.findChild<VCReporting*>()->GetReportButton()->click();
        const ReportSupervisor::Verdict verdict = supervisor.GetReport(report);
        if (verdict.state != ReportSupervisor::State::Written || !verdict.schemaFault.isEmpty()) {
            QTextStream(stderr) << PanelWindow::tr("No report is made.") << ' ' << verdict.schemaFault << verdict.reason
                                << '\n';
            return false;
        }
        QTextStream(stdout) << QDir::toNativeSeparators(verdict.fileName) << '\n';
        receiver.MeasureNextChannel();
    }
    return true;
}

/// What must be set before the application is there.
void prepareQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // else the button's picture is coarse on fine screens
    qSetGlobalQHashSeed(0); // so that attributes have the same order in every run; a library must not do so
#else
    QHashSeed::setDeterministicGlobalSeed();
#endif
}

void describe(QCommandLineParser& parser)
{
    parser.addHelpOption();
    parser.addOptions({{QStringLiteral("press"), QStringLiteral("Press the button and end."), QStringLiteral("times")},
                       {QStringLiteral("reports"), QStringLiteral("Where reports go."), QStringLiteral("directory")},
                       {QStringLiteral("schema"), QStringLiteral("What reports look like."), QStringLiteral("file")},
                       {QStringLiteral("language"), QStringLiteral("Such as de."), QStringLiteral("code")}});
}

} // namespace

int main(int argc, char* argv[])
{
    prepareQt();
    QApplication application(argc, argv);
    QCommandLineParser parser;
    describe(parser);
    parser.process(application);
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("measurementpanel"));
    const auto chosen = [&](const QString& name) {
        return parser.isSet(name) ? parser.value(name) : settings.value(name).toString();
    };
    PanelWindow::Speak(chosen(QStringLiteral("language")));
    const QString schema = chosen(QStringLiteral("schema"));
    const QString reports = chosen(QStringLiteral("reports"));
    SimulatedReceiver receiver;
    ReportSupervisor supervisor;
    if (parser.isSet(QStringLiteral("press"))) {
        supervisor.SetEmergencyFolder(QString()); // whoever has started this sees at once what is not written
    }
    PanelWindow window(receiver, supervisor, settings,
                       schema.isEmpty() ? QApplication::applicationDirPath() + QStringLiteral("/measurementreport.xsd")
                                        : QFileInfo(schema).absoluteFilePath(),
                       reports.isEmpty() ? firstReportDirectory() : QFileInfo(reports).absoluteFilePath());
    window.show();
    if (!parser.isSet(QStringLiteral("press"))) {
        receiver.Start();
        return QApplication::exec();
    }
    return press(parser.value(QStringLiteral("press")).toInt(), window, supervisor, receiver) ? 0 : 1;
}
