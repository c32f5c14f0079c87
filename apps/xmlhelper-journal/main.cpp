// Lists, searches, exports and verifies the reports that a journal remembers, and takes in those of a folder. The man
// page has the details.

#include <cstdio>
#include <utility>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <xmlhelper/xmlhelperversion.h>
#include <xmlhelperreports/reportjournal.h>

namespace {

enum ExitStatus { Good = 0, Faults = 1, NoJournal = 2, WrongUsage = 3 };

void print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

void complain(const QString& line)
{
    std::fprintf(stderr, "xmlhelper-journal: %s\n", qUtf8Printable(line));
}

int refuse(const QString& line)
{
    complain(line);
    return WrongUsage;
}

const QLatin1String VerdictOption("verdict");
const QLatin1String LabelOption("label");
const QLatin1String FromOption("from");
const QLatin1String ToOption("to");
const QLatin1String LimitOption("limit");
const QLatin1String BeforeOption("before");
const QLatin1String ElementOption("element");
const QLatin1String OutputOption("output");

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral("Looks into the journal of reports: an SQLite file, or the URL of "
                                                    "a shared PostgreSQL database."));
    parser.addHelpOption();
    parser.addVersionOption();
    const auto add = [&parser](QLatin1String name, const char* what, const char* value) {
        parser.addOption({QString(name), QLatin1String(what), QLatin1String(value)});
    };
    add(VerdictOption, "Only reports of this verdict, such as Written.", "verdict");
    add(LabelOption, "Only reports with this label.", "label");
    add(FromOption, "Only reports begun then or later, as 2026-03-01 or 2026-03-01T12:00:00, UTC.", "time");
    add(ToOption, "Only reports begun before.", "time");
    add(LimitOption, "At most so many, the newest. list and search show 100 when it is not given.", "number");
    add(BeforeOption, "Only entries with lower numbers: the next page.", "number");
    add(ElementOption, "export: a column with this element of the reports; may be given again.", "name");
    add(OutputOption, "export: write into this file.", "file");
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("list, search, export, verify or read-in."));
    parser.addPositionalArgument(QStringLiteral("journal"), QStringLiteral("The journal."));
    parser.addPositionalArgument(QStringLiteral("text or folder"),
                                 QStringLiteral("search: the text to look for. read-in: the folder to take in."),
                                 QStringLiteral("[text|folder]"));
}

/// A time of the command line; what is none makes a fault.
QDateTime timeFrom(const QCommandLineParser& parser, QLatin1String option, QString& fault)
{
    if (!parser.isSet(option)) {
        return QDateTime();
    }
    QDateTime time = QDateTime::fromString(parser.value(option), Qt::ISODate);
    if (!time.isValid()) {
        fault = QStringLiteral("%1 is no time").arg(parser.value(option));
    } else if (time.timeSpec() == Qt::LocalTime) {
        time.setTimeSpec(Qt::UTC);
    }
    return time;
}

/// A number of the command line; what is none makes a fault.
qint64 numberFrom(const QCommandLineParser& parser, QLatin1String option, qint64 otherwise, QString& fault)
{
    bool isNumber = true;
    const qint64 number = parser.isSet(option) ? parser.value(option).toLongLong(&isNumber) : otherwise;
    if (!isNumber || (parser.isSet(option) && number < 1) || number > 1000000000) {
        fault = QStringLiteral("%1 is no number from 1 to 1000000000").arg(parser.value(option));
    }
    return number;
}

ReportJournal::Query queryFrom(const QCommandLineParser& parser, int limit, QString& fault)
{
    ReportJournal::Query query;
    query.verdict = parser.value(VerdictOption);
    query.label = parser.value(LabelOption);
    query.from = timeFrom(parser, FromOption, fault);
    query.to = timeFrom(parser, ToOption, fault);
    query.limit = int(numberFrom(parser, LimitOption, limit, fault));
    query.before = numberFrom(parser, BeforeOption, 0, fault);
    return query;
}

int list(const ReportJournal& journal, const ReportJournal::Query& query)
{
    const std::vector<ReportJournal::Entry> entries = journal.Search(query);
    for (const ReportJournal::Entry& entry : entries) {
        QString line
            = QStringLiteral("%1 %2 %3 %4")
                  .arg(QString::number(entry.number), entry.begun.toString(Qt::ISODate), entry.verdict, entry.path);
        line += entry.label.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(entry.label);
        line += entry.reason.isEmpty() ? QString() : QStringLiteral(": ") + entry.reason;
        print(line);
    }
    return entries.empty() ? Faults : Good;
}

int exportTable(const ReportJournal& journal, const ReportJournal::Query& query, const QCommandLineParser& parser)
{
    QFile file(parser.value(OutputOption));
    const bool isOpen
        = parser.isSet(OutputOption) ? file.open(QIODevice::WriteOnly) : file.open(stdout, QIODevice::WriteOnly);
    if (!isOpen) {
        return refuse(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    }
    QStringList faults = journal.Export(file, query, parser.values(ElementOption));
    if (!file.flush()) {
        faults.append(file.errorString());
    }
    for (const QString& fault : std::as_const(faults)) {
        complain(fault);
    }
    return faults.isEmpty() ? Good : Faults;
}

int verify(const ReportJournal& journal, const ReportJournal::Query& query)
{
    const std::vector<ReportJournal::Finding> findings = journal.Verify(query);
    for (const ReportJournal::Finding& finding : findings) {
        print(QStringLiteral("%1: %2").arg(finding.entry.path, finding.fault));
    }
    return findings.empty() ? Good : Faults;
}

int readIn(ReportJournal& journal, const QString& folder)
{
    QObject::connect(&journal, &ReportJournal::TakenIn, &journal, [](const QString&, int added) {
        print(QStringLiteral("%1 reports are new").arg(added));
        QCoreApplication::exit(Good);
    });
    QObject::connect(&journal, &ReportJournal::Troubled, &journal, [] { QCoreApplication::exit(Faults); });
    journal.TakeIn(folder);
    return QCoreApplication::exec();
}

const QLatin1String ListCommand("list");
const QLatin1String SearchCommand("search");
const QLatin1String ExportCommand("export");
const QLatin1String VerifyCommand("verify");
const QLatin1String ReadInCommand("read-in");

bool isShared(const QString& place)
{
    const QString scheme = QUrl(place).scheme(); // what ReportJournal::Open() takes for one
    return scheme == QLatin1String("postgresql") || scheme == QLatin1String("postgres");
}

/// What is wrong with the arguments; empty when nothing is.
QString faultOf(const QStringList& arguments)
{
    const QString command = arguments.value(0);
    const bool isReadIn = command == ReadInCommand;
    const int count = isReadIn || command == SearchCommand ? 3 : 2;
    const QStringList commands {ListCommand, SearchCommand, ExportCommand, VerifyCommand, ReadInCommand};
    if (!commands.contains(command) || arguments.size() != count) {
        return QStringLiteral("give a command and a journal; --help says more");
    }
    if (isReadIn && isShared(arguments.at(1))) {
        return QStringLiteral("a shared journal gets its reports from those of the stations");
    }
    return isReadIn && !QFileInfo(arguments.at(2)).isDir() ? QStringLiteral("%1 is no folder").arg(arguments.at(2))
                                                           : QString();
}

/// A journal is made, and made anew, only by those who write into it.
bool open(ReportJournal& journal, const QString& place, bool isToWrite)
{
    QString message;
    const bool isOpen = isToWrite ? journal.Open(place, &message) : journal.OpenToRead(place, &message);
    if (!message.isEmpty()) {
        complain(message);
    }
    return isOpen;
}

int run(const QCommandLineParser& parser)
{
    const QStringList arguments = parser.positionalArguments();
    const QString command = arguments.value(0);
    const bool isShown = command == ListCommand || command == SearchCommand;
    QString fault = faultOf(arguments);
    ReportJournal::Query query = queryFrom(parser, isShown ? 100 : -1, fault);
    if (!fault.isEmpty()) {
        return refuse(fault);
    }
    ReportJournal journal;
    bool isTroubled = false;
    QObject::connect(&journal, &ReportJournal::Troubled, &journal, [&isTroubled](const QString& message) {
        isTroubled = true;
        complain(message);
    });
    if (!open(journal, arguments.at(1), command == ReadInCommand)) {
        return NoJournal;
    }
    query.text = arguments.value(2);
    const int status = isShown     ? list(journal, query)
        : command == VerifyCommand ? verify(journal, query)
        : command == ExportCommand ? exportTable(journal, query, parser)
                                   : readIn(journal, arguments.at(2));
    return isTroubled ? NoJournal : status; // What was found so far may not be all.
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
        return Good;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        print(QStringLiteral("xmlhelper-journal " XMLHELPER_VERSION_STRING));
        return Good;
    }
    return run(parser);
}
