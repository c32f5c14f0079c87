#include "commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("CommandLine", source);
}

struct Options
{
    QCommandLineOption help {{QStringLiteral("h"), QStringLiteral("help")}, text("Show this help.")};
    QCommandLineOption press {QStringLiteral("press"),
                              text("Press the report button <times> times, print the paths of the reports and end. "
                                   "Needs no screen."),
                              QStringLiteral("times")};
    QCommandLineOption reports {QStringLiteral("reports"),
                                text("Write the reports into <directory>, which must exist; by default the current "
                                     "one, but with --press it must be given."),
                                QStringLiteral("directory")};
    QCommandLineOption schema {QStringLiteral("schema"),
                               text("Use the schema <file>; by default the one beside the "
                                    "program."),
                               QStringLiteral("file"), QStringLiteral("measurementreport.xsd")};
    QCommandLineOption comment {QStringLiteral("comment"),
                                text("With --press: ask for the comment dialog and answer it with <text>."),
                                QStringLiteral("text")};
    QCommandLineOption screenshot {QStringLiteral("screenshot"),
                                   text("With --press: save a picture of the window as <file> (PNG), and one of the "
                                        "dialog beside it."),
                                   QStringLiteral("file")};
};

QString absolute(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

/// What is wrong with arguments that each by itself are known.
QString faultIn(const QCommandLineParser& parser, const Options& options, int presses)
{
    if (!parser.positionalArguments().isEmpty()) {
        return text("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    }
    const bool isPressing = parser.isSet(options.press);
    if (isPressing && presses < 1) {
        return text("'%1' is no number of presses.").arg(parser.value(options.press));
    }
    if (isPressing && !parser.isSet(options.reports)) {
        return text("--press needs --reports.");
    }
    if (!isPressing && (parser.isSet(options.comment) || parser.isSet(options.screenshot))) {
        return text("--comment and --screenshot need --press.");
    }
    for (const QCommandLineOption& path : {options.reports, options.schema, options.screenshot}) {
        if (parser.isSet(path) && parser.value(path).isEmpty()) {
            return text("The path after --%1 is empty.").arg(path.names().constFirst());
        }
    }
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(text("A measurement screen with the report button, on simulated values."));
    parser.addOptions(
        {options.help, options.press, options.reports, options.schema, options.comment, options.screenshot});

    CommandLine commandLine;
    const bool isParsed = parser.parse(arguments);
    commandLine.help = parser.helpText();
    commandLine.isHelpWanted = isParsed && parser.isSet(options.help);
    commandLine.presses = parser.value(options.press).toInt();
    commandLine.fault = isParsed ? faultIn(parser, options, commandLine.presses) : parser.errorText();
    commandLine.reportDirectory = QDir(parser.value(options.reports)).absolutePath();
    // A bare name would be looked for beside the program: what is typed belongs to the current directory.
    commandLine.schema
        = parser.isSet(options.schema) ? absolute(parser.value(options.schema)) : parser.value(options.schema);
    if (parser.isSet(options.comment)) {
        commandLine.comment = parser.value(options.comment);
    }
    if (parser.isSet(options.screenshot)) {
        commandLine.screenshot = absolute(parser.value(options.screenshot));
    }
    return commandLine;
}
