#include <QApplication>
#include <QHashFunctions>
#include <QTextStream>

#include "commandline.h"
#include "measurementtree.h"
#include "operator.h"
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

int refuse(const QString& reason, const QString& help)
{
    QTextStream(stderr) << reason << "\n\n" << help;
    return WrongUsage;
}

} // namespace

int main(int argc, char* argv[])
{
    useFixedHashSeed();
    const bool isOffscreen = isWithoutScreen();
    if (isOffscreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("measurementpanel"));
    QApplication::setStyle(QStringLiteral("Fusion"));

    const CommandLine commandLine = readCommandLine(QApplication::arguments());
    if (commandLine.isHelpWanted) {
        QTextStream(stdout) << commandLine.help;
        return Success;
    }
    if (!commandLine.fault.isEmpty()) {
        return refuse(commandLine.fault, commandLine.help);
    }
    if (isOffscreen && commandLine.presses == 0) {
        return refuse(QStringLiteral("There is no screen; use --press."), commandLine.help);
    }

    const MeasurementTree tree;
    SimulatedReceiver receiver(tree);
    PanelWindow window(tree, receiver, commandLine.schema, commandLine.reportDirectory);
    if (commandLine.presses > 0) {
        Operator robot(window, receiver, {commandLine.presses, commandLine.comment, commandLine.screenshot});
        return robot.Work() ? Success : Failure;
    }
    receiver.Start();
    window.show();
    return QApplication::exec();
}
