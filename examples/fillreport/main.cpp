// Fills a report from a schema and named values, and says what was refused.
//
// usage: fillreport SCHEMA REPORT [NAME=VALUE...]
//
// exit status: 0 when everything was taken and nothing mandatory is missing, 1 when not (the report is written all the
// same), 2 for a wrong command line, 3 when the schema cannot be read.

#include <cstdio>

#include <QCoreApplication>

#include <reportfiller/reportfiller.h>

namespace {

enum ExitStatus { Complete = 0, Incomplete = 1, WrongUsage = 2, NoSchema = 3 };

int usage()
{
    std::fprintf(stderr,
                 "usage: fillreport SCHEMA REPORT [NAME=VALUE...]\n"
                 "  NAME is Element, Parent/Element or Element@Attribute; give a name again for a repeated element\n");
    return WrongUsage;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        return usage();
    }
    std::list<ReportFiller::Value> values;
    for (int i = 3; i < arguments.size(); ++i) {
        const int separator = static_cast<int>(arguments.at(i).indexOf(QLatin1Char('=')));
        if (separator < 1) {
            return usage();
        }
        values.push_back({arguments.at(i).left(separator), arguments.at(i).mid(separator + 1), false});
    }

    ReportFiller filler(values);
    if (!filler.Fill(arguments.at(1), arguments.at(2))) {
        std::fprintf(stderr, "%s cannot be read as a schema\n", qPrintable(arguments.at(1)));
        return NoSchema;
    }
    const QStringList complaints = filler.Complaints();
    for (const QString& complaint : complaints) {
        std::printf("%s\n", qUtf8Printable(complaint));
    }
    return complaints.isEmpty() ? Complete : Incomplete;
}
