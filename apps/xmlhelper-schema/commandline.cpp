#include "commandline.h"

#include <QCommandLineParser>

namespace schemadoctor {

namespace {

/// What stands inside of itself more often is no report that anybody fills.
constexpr int MostLevels = 10;

} // namespace

CommandLine commandLineOf(const QStringList& arguments)
{
    const QCommandLineOption tree(QStringLiteral("tree"),
                                  QStringLiteral("Print the tree and the findings as text (the default)."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print them as JSON, for programs."));
    const QCommandLineOption html(QStringLiteral("html"), QStringLiteral("Write them as a page of HTML into <file>."),
                                  QStringLiteral("file"));
    const QCommandLineOption window(QStringLiteral("window"), QStringLiteral("Show them in a window."));
    const QCommandLineOption noProof(QStringLiteral("no-proof"),
                                     QStringLiteral("Do not fill and validate reports on trial."));
    const QCommandLineOption asButton(QStringLiteral("as-button"),
                                      QStringLiteral("Say too what the report button fills, by which items."));
    const QCommandLineOption fill(
        QStringLiteral("fill"),
        QStringLiteral("Fill a report from the values of <file>, and print what happens."),
        QStringLiteral("file"));
    const QCommandLineOption language(
        QStringLiteral("language"), QStringLiteral("Speak this language: de, en or fr; by default that of the system."),
        QStringLiteral("code"));
    const QCommandLineOption mend(QStringLiteral("mend"),
                                  QStringLiteral("Write the schema in what the library understands into <file>, and "
                                                 "print what was written otherwise."),
                                  QStringLiteral("file"));
    const QCommandLineOption keepFormat(QStringLiteral("keep-format"),
                                        QStringLiteral("With --mend: write otherwise only what keeps reports valid by "
                                                       "the original."));
    const QCommandLineOption levels(
        QStringLiteral("levels"),
        QStringLiteral("With --mend: how many of one element may stand inside of each other, 1 to 10."),
        QStringLiteral("number"));
    const QCommandLineOption root(QStringLiteral("root"),
                                  QStringLiteral("With --mend: the global element that reports begin with."),
                                  QStringLiteral("name"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows how XMLHelper understands an XML schema, and what its author should know.\n\n"
                       "Exit status: 0 nothing to say, 1 warnings, 2 errors, 3 unreadable or wrong usage."));
    parser.addOptions({tree, json, html, window, fill, mend, keepFormat, levels, root, noProof, asButton, language});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("schema"), QStringLiteral("The schema to examine, an .xsd file."));

    CommandLine line;
    const auto wrong = [&line](const QString& message) {
        line.show = CommandLine::Show::WrongUsage;
        line.message = message;
        return line;
    };
    if (!parser.parse(arguments)) {
        return wrong(parser.errorText());
    }
    if (parser.isSet(help)) {
        line.show = CommandLine::Show::Help;
        line.message = parser.helpText();
        return line;
    }
    if (parser.isSet(version)) {
        line.show = CommandLine::Show::Version;
        return line;
    }
    if (parser.positionalArguments().size() != 1) {
        return wrong(QStringLiteral("Name one schema."));
    }
    line.language = parser.value(language);
    if (!parser.isSet(mend) && (parser.isSet(keepFormat) || parser.isSet(levels) || parser.isSet(root))) {
        return wrong(QStringLiteral("--keep-format, --levels and --root belong to --mend."));
    }
    line.mending = {parser.isSet(keepFormat), parser.value(levels).toInt(), parser.value(root)};
    if (parser.isSet(levels) && (line.mending.levels < 1 || line.mending.levels > MostLevels)) {
        return wrong(QStringLiteral("Give --levels a number from 1 to %1.").arg(MostLevels));
    }
    line.isForPrograms = parser.isSet(json);
    line.isToProve = !parser.isSet(noProof);
    line.isAsButton = parser.isSet(asButton);
    line.schema = parser.positionalArguments().constFirst();
    const bool isOfMending = parser.isSet(mend) && parser.isSet(json) != parser.isSet(html);
    if (int(parser.isSet(tree)) + int(parser.isSet(json)) + int(parser.isSet(html)) + int(parser.isSet(window))
            + int(parser.isSet(fill)) + int(parser.isSet(mend) && !isOfMending)
        > 1) {
        return wrong(QStringLiteral("Give one of --tree, --json, --html, --window, --fill and --mend."));
    }
    line.show = parser.isSet(mend) ? CommandLine::Show::Mend
        : parser.isSet(json)       ? CommandLine::Show::Json
        : parser.isSet(html)       ? CommandLine::Show::Html
        : parser.isSet(window)     ? CommandLine::Show::Window
        : parser.isSet(fill)       ? CommandLine::Show::Fill
                                   : CommandLine::Show::Tree;
    line.otherFile = parser.value(parser.isSet(mend) ? mend : parser.isSet(html) ? html : fill);
    line.page = parser.isSet(mend) ? parser.value(html) : QString();
    return line;
}

} // namespace schemadoctor
