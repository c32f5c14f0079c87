// Says what finished reports still lack, and validates them. The man page tells the rest.

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <xmlhelper/xmlhelperversion.h>

#include "language.h"
#include "rendering.h"

namespace {

using namespace reportcheck;

void print(FILE* stream, const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
}

// Wrong usage ends like a file that cannot be read: nothing was checked.
int refuse(const QString& reason)
{
    print(stderr, QStringLiteral("xmlhelper-report: %1\nTry --help.\n").arg(reason).toLocal8Bit());
    return Unreadable;
}

struct Options
{
    const QCommandLineOption schema {{QStringLiteral("schema"), QStringLiteral("against")},
                                     QStringLiteral("Validate by this schema, not by the one that the report names."),
                                     QStringLiteral("file")};
    const QCommandLineOption json {QStringLiteral("json"), QStringLiteral("Print JSON, for programs.")};
    const QCommandLineOption language {
        QStringLiteral("language"), QStringLiteral("Use this language: de, en or fr; by default that of the system."),
        QStringLiteral("code")};
};

void describe(QCommandLineParser& parser, const Options& options)
{
    parser.setApplicationDescription(QStringLiteral(
        "Says what finished reports still lack, and validates them.\n\n"
        "Exit status: 0 nothing to say, 1 warnings, 2 errors, 3 something cannot be read; of the worst report."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({options.schema, options.json, options.language});
    parser.addPositionalArgument(QStringLiteral("report"), QStringLiteral("The reports to check."),
                                 QStringLiteral("report..."));
}

/// What is wrong with a command line, for its author; empty when nothing is. Ends the program that shall only help.
QString faultOf(QCommandLineParser& parser, const Options& options)
{
    if (!parser.parse(QCoreApplication::arguments())) {
        return parser.errorText();
    }
    if (parser.isSet(QStringLiteral("help"))) {
        parser.showHelp();
    }
    if (parser.isSet(QStringLiteral("version"))) {
        parser.showVersion();
    }
    if (parser.positionalArguments().isEmpty()) {
        return QStringLiteral("no report is given");
    }
    return parser.isSet(options.schema) && parser.value(options.schema).isEmpty()
        ? QStringLiteral("--schema needs a file")
        : QString();
}

/// Checks each report, and prints at once what is text.
int check(const QStringList& reports, const QString& schema, bool isJson)
{
    std::vector<Result> results;
    for (const QString& report : reports) {
        results.push_back(checkReport(report, schema));
        if (!isJson) {
            print(stdout, textOf(results.back()).toUtf8());
        }
    }
    if (isJson) {
        print(stdout, jsonOf(results));
    }
    return exitStatusOf(results);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("xmlhelper-report"));
    QCoreApplication::setApplicationVersion(QStringLiteral(XMLHELPER_VERSION_STRING));

    const Options options;
    QCommandLineParser parser;
    describe(parser, options);
    const QString fault = faultOf(parser, options);
    if (!fault.isEmpty()) {
        return refuse(fault);
    }
    const QString language = parser.value(options.language);
    if (!speak({QStringLiteral("ReportCheck")}, language)) {
        return refuse(QStringLiteral("there are no texts in the language '%1'").arg(language));
    }
    return check(parser.positionalArguments(), parser.value(options.schema), parser.isSet(options.json));
}
