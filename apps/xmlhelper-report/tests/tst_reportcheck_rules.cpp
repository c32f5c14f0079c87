#include <QtTest>

#include <QDirIterator>
#include <QRegularExpression>

#include "reportcheck.h"
#include "rules/rule.h"

// Each rule has a folder of its name with reports. A report says itself what the rule has to find in it: a comment
// behind an element names the severity of each finding in that line, and, behind a colon, words that it has to use.

namespace {

using namespace reportcheck;

const char folder[] = REPORTCHECK_RULES_FOLDER;

struct Expectation
{
    QStringList severities;
    QString words;
};

QMap<int, Expectation> expectationsIn(const QString& report)
{
    static const QRegularExpression pattern(
        QStringLiteral("<!-- ((?:error|warning|note)(?: (?:error|warning|note))*)(?:: (.*))? -->"));
    QFile file(report);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QMap<int, Expectation> expectations;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QRegularExpressionMatch match = pattern.match(lines.at(i));
        if (match.hasMatch()) {
            expectations.insert(i + 1, {match.captured(1).split(QLatin1Char(' ')), match.captured(2)});
        }
    }
    return expectations;
}

QStringList reportsIn(const QString& rule)
{
    QStringList reports;
    QDirIterator files(QLatin1String(folder) + QLatin1Char('/') + rule, {QStringLiteral("*.xml")});
    while (files.hasNext()) {
        reports.append(files.next());
    }
    reports.sort();
    return reports;
}

} // namespace

class TestReportCheckRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasReportsForAndAgainst_data();
    void hasReportsForAndAgainst();
    void finds_data();
    void finds();
};

void TestReportCheckRules::hasReportsForAndAgainst_data()
{
    QTest::addColumn<QString>("rule");
    for (const Rule& rule : allRules()) {
        QTest::newRow(rule.name) << QString::fromLatin1(rule.name);
    }
}

void TestReportCheckRules::hasReportsForAndAgainst()
{
    QFETCH(const QString, rule);

    bool isTriggered = false;
    bool isSilent = false;
    const QStringList reports = reportsIn(rule);
    for (const QString& report : reports) {
        (expectationsIn(report).isEmpty() ? isSilent : isTriggered) = true;
    }
    QVERIFY(isTriggered);
    QVERIFY(isSilent);
}

void TestReportCheckRules::finds_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("report");
    for (const Rule& rule : allRules()) {
        const QString name = QString::fromLatin1(rule.name);
        const QStringList reports = reportsIn(name);
        for (const QString& report : reports) {
            QTest::addRow("%s: %s", rule.name, qPrintable(QFileInfo(report).completeBaseName())) << name << report;
        }
    }
}

void TestReportCheckRules::finds()
{
    QFETCH(const QString, rule);
    QFETCH(const QString, report);

    QMap<int, Expectation> expectations = expectationsIn(report);
    const Result result = checkReport(report);
    QVERIFY2(result.IsReadable(), qPrintable(result.unreadableReason));
    for (const Finding& finding : result.findings) {
        if (finding.rule != rule) {
            continue;
        }
        QVERIFY2(expectations.contains(finding.line),
                 qPrintable(QStringLiteral("line %1: %2").arg(finding.line).arg(finding.text)));
        Expectation& expectation = expectations[finding.line];
        QVERIFY2(!expectation.severities.isEmpty(), qPrintable(finding.text));
        QCOMPARE(nameOf(finding.severity), expectation.severities.takeFirst());
        const QString words = finding.text + QLatin1Char(' ') + finding.advice;
        QVERIFY2(words.contains(expectation.words), qPrintable(words));
        QCOMPARE(finding.file, report);
        QVERIFY(finding.path.startsWith(QLatin1String("/Report")));
        if (expectation.severities.isEmpty()) {
            expectations.remove(finding.line);
        }
    }
    for (const int line : expectations.keys()) {
        QFAIL(qPrintable(QStringLiteral("nothing is found in line %1").arg(line)));
    }
}

QTEST_GUILESS_MAIN(TestReportCheckRules)

#include "tst_reportcheck_rules.moc"
