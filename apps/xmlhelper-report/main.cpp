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

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("xmlhelper-report"));
    QCoreApplication::setApplicationVersion(QStringLiteral(XMLHELPER_VERSION_STRING));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Says what finished reports still lack, and validates them.\n\n"
        "Exit status: 0 nothing to say, 1 warnings, 2 errors, 3 something cannot be read; of the worst report."));
    const QCommandLineOption schema({QStringLiteral("schema"), QStringLiteral("against")},
                                    QStringLiteral("Validate by this schema, not by the one that the report names."),
                                    QStringLiteral("file"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print JSON, for programs."));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Use this language: de, en or fr; by default that of the system."),
                                      QStringLiteral("code"));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({schema, json, language});
    parser.addPositionalArgument(QStringLiteral("report"), QStringLiteral("The reports to check."),
                                 QStringLiteral("report..."));
    if (!parser.parse(QCoreApplication::arguments())) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    if (parser.isSet(version)) {
        parser.showVersion();
    }
    if (parser.positionalArguments().isEmpty()) {
        return refuse(QStringLiteral("no report is given"));
    }
    if (parser.isSet(schema) && parser.value(schema).isEmpty()) {
        return refuse(QStringLiteral("--schema needs a file"));
    }

    if (!speak({QStringLiteral("ReportCheck")}, parser.value(language))) {
        return refuse(QStringLiteral("there are no texts in the language '%1'").arg(parser.value(language)));
    }

    std::vector<Result> results;
    const QStringList reports = parser.positionalArguments();
    for (const QString& report : reports) {
        results.push_back(checkReport(report, parser.value(schema)));
        if (!parser.isSet(json)) {
            print(stdout, textOf(results.back()).toUtf8());
        }
    }
    if (parser.isSet(json)) {
        print(stdout, jsonOf(results));
    }
    return exitStatusOf(results);
}
