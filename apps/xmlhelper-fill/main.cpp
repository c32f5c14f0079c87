// Fills a report by a schema from named values, and says what became of them. The man page has the details.

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <xmlhelper/xmlhelperversion.h>
#include <xmlhelperreports/reportfiller.h>

#ifdef XMLHELPER_HAS_VALIDATION
#include <validityfaults.h>
#endif

namespace {

enum ExitStatus { Complete = 0, Incomplete = 1, NoSchema = 2, WrongUsage = 3 };

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

int refuse(const QString& line)
{
    std::fprintf(stderr, "xmlhelper-fill: %s\n", qUtf8Printable(line));
    return WrongUsage;
}

QString wordFor(ReportFiller::State state)
{
    switch (state) {
    case ReportFiller::State::Written:
        return QStringLiteral("written");
    case ReportFiller::State::Refused:
        return QStringLiteral("refused");
    case ReportFiller::State::NotAskedFor:
        return QStringLiteral("not asked for");
    case ReportFiller::State::Unfilled:
        return QStringLiteral("unfilled");
    case ReportFiller::State::LeftOut:
        return QStringLiteral("left out");
    case ReportFiller::State::Doubtful:
        return QStringLiteral("doubtful");
    case ReportFiller::State::Invalid:
        return QStringLiteral("invalid");
    }
    return QString();
}

/// What happened to everything, good or bad.
void explain(const ReportFiller& filler)
{
    for (const ReportFiller::Verdict& verdict : filler.GetVerdicts()) {
        QString line = wordFor(verdict.state);
        line += verdict.path.isEmpty() ? QString() : QLatin1Char(' ') + verdict.path;
        line += verdict.value.isEmpty() ? QString() : QLatin1Char('=') + verdict.value;
        line += verdict.reason.isEmpty() ? QString() : QStringLiteral(": ") + verdict.reason;
        print(line);
    }
}

const QLatin1String ValuesOption("values");
const QLatin1String ExplainOption("explain");

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral("Fills a report from named values, by the rules of a schema."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({{ValuesOption, QStringLiteral("Read values from <file>: JSON, CSV, or lines name=value."),
                        QStringLiteral("file")},
                       {ExplainOption, QStringLiteral("Print each step, and what became of each value.")}});
    parser.addPositionalArgument(QStringLiteral("schema"), QStringLiteral("The schema of the report."));
    parser.addPositionalArgument(QStringLiteral("report"), QStringLiteral("The report to write."));
    parser.addPositionalArgument(QStringLiteral("name=value"),
                                 QStringLiteral("Values by path, such as Emission[2]/Frequency@Unit=Hz."),
                                 QStringLiteral("[name=value...]"));
}

/// Gives the filler the values of the command line, or says which of them are none.
bool addValues(const QCommandLineParser& parser, ReportFiller& filler, QString& fault)
{
    const QStringList files = parser.values(ValuesOption);
    for (const QString& file : files) {
        if (!filler.AddFile(file, &fault)) {
            return false;
        }
    }
    const QStringList values = parser.positionalArguments().mid(2);
    for (const QString& value : values) {
        const int separator = int(value.indexOf(QLatin1Char('=')));
        if (separator < 1) {
            fault = QStringLiteral("%1 is not of the form name=value").arg(value);
            return false;
        }
        filler.Add(value.left(separator), value.mid(separator + 1));
    }
    return true;
}

int fill(ReportFiller& filler, const QString& schema, const QString& report, bool isToExplain)
{
    if (isToExplain) {
        filler.SetJournal(print);
    }
    const bool isComplete = filler.Fill(schema, report);
    if (isToExplain) {
        explain(filler);
    }
    const QStringList complaints = filler.Complaints();
    for (const QString& complaint : complaints) {
        print(complaint);
    }
    return !filler.IsSchemaRead() ? NoSchema : isComplete ? Complete : Incomplete;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QCoreApplication::arguments())) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        print(parser.helpText());
        return Complete;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        print(QStringLiteral("xmlhelper-fill " XMLHELPER_VERSION_STRING));
        return Complete;
    }
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() < 2) {
        return refuse(QStringLiteral("give a schema and a report; --help says more"));
    }
    ReportFiller filler;
#ifdef XMLHELPER_HAS_VALIDATION
    filler.SetValidator(reportcheck::validityFaults);
#endif
    QString fault;
    return addValues(parser, filler, fault)
        ? fill(filler, arguments.at(0), arguments.at(1), parser.isSet(ExplainOption))
        : refuse(fault);
}
