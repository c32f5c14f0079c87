#include <QTextStream>
#include <xmlhelperreports/reportfiller.h>

int main(int argc, char** argv)
{
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    filler.Add(QStringLiteral("Emission[1]/Frequency"), 98.5e6);
    filler.Add(QStringLiteral("Emission[1]/Level"), -42.5);
    filler.Add(QStringLiteral("Emission[2]/Frequency"), 121.5e6);
    filler.Add(QStringLiteral("Emission[2]/Level"), -61);
    const bool isComplete = argc == 3 && filler.Fill(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    QTextStream(stdout) << (isComplete ? QStringLiteral("complete") : filler.Complaints().join(QLatin1Char('\n')))
                        << Qt::endl;
    return isComplete ? 0 : 1;
}
