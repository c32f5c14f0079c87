#include "commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct Options
{
    QCommandLineOption help {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Show this help.")};
    QCommandLineOption press {QStringLiteral("press"),
                              Text::tr("Press the report button <times> times, print the paths of the reports and end. "
                                       "Needs no screen."),
                              QStringLiteral("times")};
    QCommandLineOption reports {
        QStringLiteral("reports"),
        Text::tr("Write the reports into <directory>; by default the one chosen last, or \"Measurement "
                 "Reports\" among your documents, but with --press it must be given."),
        QStringLiteral("directory")};
    QCommandLineOption schema {QStringLiteral("schema"),
                               Text::tr("Use the schema <file>; by default the one chosen last, or the one beside the "
                                        "program."),
                               QStringLiteral("file")};
    QCommandLineOption language {QStringLiteral("language"),
                                 Text::tr("Speak <language>, such as en, de or fr; by default the one chosen last, or "
                                          "that of the system."),
                                 QStringLiteral("language")};
    QCommandLineOption settings {QStringLiteral("settings"),
                                 Text::tr("Remember what is chosen in <file>; by default in a file of the user. With "
                                          "--press nothing is remembered."),
                                 QStringLiteral("file")};
    QCommandLineOption comment {QStringLiteral("comment"),
                                Text::tr("With --press: ask for the comment dialog and answer it with <text>."),
                                QStringLiteral("text")};
    QCommandLineOption screenshot {
        QStringLiteral("screenshot"),
        Text::tr("With --press: save a picture of the window as <file> (PNG), and one of the "
                 "dialog beside it."),
        QStringLiteral("file")};
};

QString absolute(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

std::optional<QString> givenPath(const QCommandLineParser& parser, const QCommandLineOption& option)
{
    return parser.isSet(option) ? std::make_optional(absolute(parser.value(option))) : std::nullopt;
}

/// What is wrong with arguments that each by itself are known.
QString faultIn(const QCommandLineParser& parser, const Options& options, int presses)
{
    if (!parser.positionalArguments().isEmpty()) {
        return Text::tr("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    }
    const bool isPressing = parser.isSet(options.press);
    if (isPressing && presses < 1) {
        return Text::tr("'%1' is no number of presses.").arg(parser.value(options.press));
    }
    if (isPressing && !parser.isSet(options.reports)) {
        return Text::tr("--press needs --reports.");
    }
    if (!isPressing && (parser.isSet(options.comment) || parser.isSet(options.screenshot))) {
        return Text::tr("--comment and --screenshot need --press.");
    }
    for (const QCommandLineOption& path : {options.reports, options.schema, options.settings, options.screenshot}) {
        if (parser.isSet(path) && parser.value(path).isEmpty()) {
            return Text::tr("The path after --%1 is empty.").arg(path.names().constFirst());
        }
    }
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(Text::tr("A measurement screen with the report button, on simulated values."));
    parser.addOptions({options.help, options.press, options.reports, options.schema, options.language, options.settings,
                       options.comment, options.screenshot});

    CommandLine commandLine;
    const bool isParsed = parser.parse(arguments);
    commandLine.help = parser.helpText();
    commandLine.isHelpWanted = isParsed && parser.isSet(options.help);
    commandLine.presses = parser.value(options.press).toInt();
    commandLine.fault = isParsed ? faultIn(parser, options, commandLine.presses) : parser.errorText();
    commandLine.reportDirectory = givenPath(parser, options.reports);
    // A bare name would be looked for beside the program: what is typed belongs to the current directory.
    commandLine.schema = givenPath(parser, options.schema);
    commandLine.settings = givenPath(parser, options.settings);
    if (parser.isSet(options.language)) {
        commandLine.language = parser.value(options.language);
    }
    if (parser.isSet(options.comment)) {
        commandLine.comment = parser.value(options.comment);
    }
    if (parser.isSet(options.screenshot)) {
        commandLine.screenshot = absolute(parser.value(options.screenshot));
    }
    return commandLine;
}
