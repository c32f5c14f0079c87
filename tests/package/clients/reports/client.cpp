// Fills a report by a schema that is not there, and says so.

#include <cstdio>

#include <xmlhelperreports/reportfiller.h>

int main()
{
    ReportFiller filler;
    const bool isFilled = filler.Fill(QStringLiteral("nowhere.xsd"), QStringLiteral("nowhere/report.xml"));
    std::printf("filled: %s\nsays: %s\n", isFilled ? "yes" : "no", qPrintable(filler.Complaints().constFirst()));
    return 0;
}
