#include "confined.h"

#include <QProcess>

namespace {

constexpr int PatienceInMilliseconds = 240000;

ConfinedOutcome run(const QStringList& arguments)
{
    ConfinedOutcome outcome;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(XMLHELPER_CONFINED), arguments);
    if (!process.waitForFinished(PatienceInMilliseconds)) {
        process.kill();
        process.waitForFinished();
        return outcome;
    }
    outcome.hasEnded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    QString output = QString::fromUtf8(process.readAllStandardOutput());
    output.remove(QLatin1Char('\r')); // which Windows puts in front of each line feed
    const QStringList lines = output.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QString word = line.section(QLatin1Char(' '), 0, 0);
        const QString rest = line.section(QLatin1Char(' '), 1);
        if (word == QLatin1String("result")) {
            outcome.result = rest == QLatin1String("true");
        } else if (word == QLatin1String("begun")) {
            outcome.begunElements = rest.toInt();
        } else if (word == QLatin1String("errors")) {
            outcome.errors = rest.toInt();
        } else if (word == QLatin1String("trace")) {
            outcome.traces.append(rest);
        } else if (word == QLatin1String("milliseconds")) {
            outcome.milliseconds = rest.toLongLong();
        } else if (word == QLatin1String("megabytes")) {
            outcome.megabytes = rest.toLongLong();
        }
    }
    return outcome;
}

} // namespace

ConfinedOutcome readConfined(const QString& fileName)
{
    return run({QStringLiteral("read"), fileName});
}

ConfinedOutcome buildConfined(const QString& schemaFileName, const QString& reportFileName)
{
    return run({QStringLiteral("build"), schemaFileName, reportFileName});
}

QString outcomeText(bool result, const QStringList& traces)
{
    const QString answer = result ? QStringLiteral("ended, true") : QStringLiteral("ended, false");
    return (QStringList(answer) + traces).join(QLatin1Char('\n'));
}

QString outcomeText(const ConfinedOutcome& outcome)
{
    return outcome.hasEnded ? outcomeText(outcome.result, outcome.traces) : QStringLiteral("crashed or never ended");
}

bool isSanitized()
{
    return XMLHELPER_SANITIZED;
}
