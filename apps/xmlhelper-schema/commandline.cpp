#include "commandline.h"

#include <QCommandLineParser>

namespace schemadoctor {

namespace {

/// What stands inside of itself more often is no report that anybody fills.
constexpr int MostLevels = 10;

QCommandLineOption option(const char* name, const char* help)
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(help));
}

QCommandLineOption option(const char* name, const char* help, const char* value)
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(help), QLatin1String(value));
}

/// The options, and what follows from those that are given.
class Options
{
public:
    Options();

    CommandLine Read(const QStringList& arguments);

private:
    bool isSet(const QCommandLineOption& one) const { return m_parser.isSet(one); }
    QString fault(const QStringList& arguments);
    QString faultOfMending() const;

    const QCommandLineOption m_tree = option("tree", "Print the tree and the findings as text (the default).");
    const QCommandLineOption m_json = option("json", "Print them as JSON, for programs.");
    const QCommandLineOption m_html = option("html", "Write them as a page of HTML into <file>.", "file");
    const QCommandLineOption m_window = option("window", "Show them in a window.");
    const QCommandLineOption m_noProof = option("no-proof", "Do not try the schema by filling and validating reports.");
    const QCommandLineOption m_asButton
        = option("as-button", "Print also what the report button can fill, and with which items.");
    const QCommandLineOption m_fill
        = option("fill", "Fill a report from the values of <file>, and print what happens.", "file");
    const QCommandLineOption m_language
        = option("language", "Use this language: de, en or fr; by default that of the system.", "code");
    const QCommandLineOption m_mend = option(
        "mend", "Rewrite the schema so that the library understands it, into <file>, and show what was rewritten.",
        "file");
    const QCommandLineOption m_keepFormat
        = option("keep-format", "With --mend: make only rewrites that keep reports valid by the original.");
    const QCommandLineOption m_levels
        = option("levels", "With --mend: how deep an element may contain itself, 1 to 10.", "number");
    const QCommandLineOption m_root
        = option("root", "With --mend: the global element that is the root of reports.", "name");
    QCommandLineParser m_parser;
    const QCommandLineOption m_help;
    const QCommandLineOption m_version;
};

Options::Options()
    : m_help(m_parser.addHelpOption())
    , m_version(m_parser.addVersionOption())
{
    m_parser.setApplicationDescription(
        QStringLiteral("Shows how XMLHelper understands an XML schema, and what to change.\n\n"
                       "Exit status: 0 nothing to say, 1 warnings, 2 errors, 3 unreadable or wrong usage."));
    m_parser.addOptions({m_tree, m_json, m_html, m_window, m_fill, m_mend, m_keepFormat, m_levels, m_root, m_noProof,
                         m_asButton, m_language});
    m_parser.addPositionalArgument(QStringLiteral("schema"), QStringLiteral("The schema to examine, an .xsd file."));
}

CommandLine Options::Read(const QStringList& arguments)
{
    using Show = CommandLine::Show;
    CommandLine line;
    line.message = fault(arguments);
    if (!line.message.isEmpty()) {
        line.show = Show::WrongUsage;
    } else if (isSet(m_help)) {
        line.show = Show::Help;
        line.message = m_parser.helpText();
    } else if (isSet(m_version)) {
        line.show = Show::Version;
    } else {
        line.show = isSet(m_json) ? Show::Json
            : isSet(m_html)       ? Show::Html
            : isSet(m_window)     ? Show::Window
            : isSet(m_fill)       ? Show::Fill
                                  : Show::Tree;
        line.schema = m_parser.positionalArguments().constFirst();
        line.page = m_parser.value(m_html);
        line.values = m_parser.value(m_fill);
        line.isToMend = isSet(m_mend);
        line.mended = m_parser.value(m_mend);
        line.mending = {isSet(m_keepFormat), m_parser.value(m_levels).toInt(), m_parser.value(m_root)};
        line.isToProve = !isSet(m_noProof);
        line.isAsButton = isSet(m_asButton);
        line.language = m_parser.value(m_language);
    }
    return line;
}

/// Says what is wrong with the arguments; empty when nothing is.
QString Options::fault(const QStringList& arguments)
{
    if (!m_parser.parse(arguments)) {
        return m_parser.errorText();
    }
    if (isSet(m_help) || isSet(m_version)) {
        return QString();
    }
    if (m_parser.positionalArguments().size() != 1) {
        return QStringLiteral("Name one schema.");
    }
    if (int(isSet(m_tree)) + int(isSet(m_json)) + int(isSet(m_html)) + int(isSet(m_window)) + int(isSet(m_fill)) > 1) {
        return QStringLiteral("Give one of --tree, --json, --html, --window and --fill.");
    }
    return faultOfMending();
}

QString Options::faultOfMending() const
{
    if (!isSet(m_mend)) {
        return isSet(m_keepFormat) || isSet(m_levels) || isSet(m_root)
            ? QStringLiteral("--keep-format, --levels and --root belong to --mend.")
            : QString();
    }
    if (isSet(m_fill) || isSet(m_noProof) || isSet(m_asButton)) {
        return QStringLiteral("--fill, --no-proof and --as-button do not go with --mend.");
    }
    const int levels = m_parser.value(m_levels).toInt();
    return isSet(m_levels) && (levels < 1 || levels > MostLevels)
        ? QStringLiteral("Give --levels a number from 1 to %1.").arg(MostLevels)
        : QString();
}

} // namespace

CommandLine commandLineOf(const QStringList& arguments)
{
    return Options().Read(arguments);
}

} // namespace schemadoctor
