#include <QApplication>
#include <QDir>
#include <QHashFunctions>
#include <QTextStream>

#include "commandline.h"
#include "languages.h"
#include "measurementtree.h"
#include "operator.h"
#include "panelsettings.h"
#include "panelwindow.h"
#include "simulatedreceiver.h"

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

/// Qt writes the attributes of an element in the order of a hash: with this, the same report is the same text in every
/// run. An application may do so; a library may not.
void useFixedHashSeed()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    qSetGlobalQHashSeed(0);
#else
    QHashSeed::setDeterministicGlobalSeed();
#endif
}

bool isWithoutScreen()
{
#ifdef Q_OS_LINUX
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

/// Lies beside the program.
QString ownSchema()
{
    return QStringLiteral("measurementreport.xsd");
}

int refuse(const QString& reason, const QString& help)
{
    QTextStream(stderr) << reason << "\n\n" << help;
    return WrongUsage;
}

/// What the robot does depends on nothing but its command line: it speaks English unless told otherwise.
int workByItself(const CommandLine& commandLine, Languages& languages)
{
    languages.Use(commandLine.language.value_or(QString()));
    const MeasurementTree tree;
    SimulatedReceiver receiver(tree);
    PanelWindow window(tree, receiver, commandLine.schema.value_or(ownSchema()), *commandLine.reportDirectory);
    Operator robot(window, receiver, {commandLine.presses, commandLine.comment, commandLine.screenshot});
    return robot.Work() ? Success : Failure;
}

/// The command line goes before what the operator has chosen last, for this session.
int serveOperator(const CommandLine& commandLine, Languages& languages)
{
    PanelSettings settings(commandLine.settings.value_or(PanelSettings::DefaultFile()));
    const auto chosen = [](const QString& remembered, const QString& otherwise) {
        return remembered.isEmpty() ? otherwise : remembered;
    };
    languages.Use(commandLine.language.value_or(chosen(settings.GetLanguage(), languages.OfSystem())));

    const MeasurementTree tree;
    SimulatedReceiver receiver(tree);
    QString directory = commandLine.reportDirectory.value_or(settings.GetReportDirectory());
    if (directory.isEmpty()) {
        directory = PanelSettings::DefaultReportDirectory();
    }
    PanelWindow window(tree, receiver, commandLine.schema.value_or(chosen(settings.GetSchema(), ownSchema())),
                       directory);
    window.AskForComment(settings.GetAskForComment());
    window.OfferLanguages(languages);
    window.Remember(settings);
    receiver.Start();
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    useFixedHashSeed();
    const bool isOffscreen = isWithoutScreen();
    if (isOffscreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // else the button's picture is coarse on fine screens
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("measurementpanel"));
    QApplication::setStyle(QStringLiteral("Fusion"));

    Languages languages(QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("translations")));
    languages.Use(languages.OfSystem());
    const CommandLine commandLine = readCommandLine(QApplication::arguments());
    if (commandLine.isHelpWanted) {
        QTextStream(stdout) << commandLine.help;
        return Success;
    }
    if (!commandLine.fault.isEmpty()) {
        return refuse(commandLine.fault, commandLine.help);
    }
    if (isOffscreen && commandLine.presses == 0) {
        return refuse(QCoreApplication::translate("CommandLine", "There is no screen; use --press."), commandLine.help);
    }
    return commandLine.presses > 0 ? workByItself(commandLine, languages) : serveOperator(commandLine, languages);
}
