#include <QDir>
#include <QTest>
#include <QTranslator>

#include "rendering.h"

using namespace reportcheck;

namespace {

QString reportIn(const QString& folder, const QString& name)
{
    return QStringLiteral(REPORTCHECK_RULES_FOLDER "/../%1%2").arg(folder, name);
}

/// All findings of all reports in the folders of the rules, in the language that is spoken.
std::vector<Finding> findingsOfAllRules()
{
    std::vector<Finding> findings;
    const QDir rules(QStringLiteral(REPORTCHECK_RULES_FOLDER));
    const QStringList folders = rules.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& folder : folders) {
        const QDir reports(rules.filePath(folder));
        const QStringList names = reports.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
        for (const QString& name : names) {
            const Result result = checkReport(reports.filePath(name));
            findings.insert(findings.end(), result.findings.begin(), result.findings.end());
        }
    }
    return findings;
}

QTranslator* spoken(const QString& language, QObject* parent)
{
    auto* const catalogue = new QTranslator(parent);
    return catalogue->load(QStringLiteral("ReportCheck_") + language, QStringLiteral(TRANSLATIONS_COMPILED))
            && QCoreApplication::installTranslator(catalogue)
        ? catalogue
        : nullptr;
}

} // namespace

class TestReportCheckLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noFindingStaysEnglish_data();
    void noFindingStaysEnglish();
    void textSpeaksTheLanguage_data();
    void textSpeaksTheLanguage();
    void whatProgramsReadStays();
};

void TestReportCheckLanguages::noFindingStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("german") << QStringLiteral("de");
    QTest::newRow("french") << QStringLiteral("fr");
}

void TestReportCheckLanguages::noFindingStaysEnglish()
{
    QFETCH(const QString, language);
    const std::vector<Finding> english = findingsOfAllRules();
    QVERIFY(!english.empty());

    QObject scope;
    QVERIFY(spoken(language, &scope));
    const std::vector<Finding> translated = findingsOfAllRules();
    QCOMPARE(translated.size(), english.size());
    for (std::size_t i = 0; i < english.size(); ++i) {
        QCOMPARE(translated[i].rule, english[i].rule);
        QVERIFY2(translated[i].text != english[i].text, qPrintable(english[i].text));
        QVERIFY2(translated[i].advice != english[i].advice, qPrintable(english[i].advice));
        QVERIFY2(!translated[i].text.contains(QLatin1Char('%')), qPrintable(translated[i].text));
    }
}

void TestReportCheckLanguages::textSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("end");

    QTest::newRow("german") << QStringLiteral("de") << QStringLiteral("unnamed.xml")
                            << QStringLiteral(": 1 Warnung; nicht validiert, kein Schema\n");
    QTest::newRow("french") << QStringLiteral("fr") << QStringLiteral("unnamed.xml")
                            << QStringLiteral(" : 1 avertissement ; non validé, aucun schéma\n");
    QTest::newRow("german-missing-file") << QStringLiteral("de") << QStringLiteral("nowhere.xml")
                                         << QStringLiteral(": nicht prüfbar. Diese Datei gibt es nicht.\n");
    QTest::newRow("french-missing-file") << QStringLiteral("fr") << QStringLiteral("nowhere.xml")
                                         << QStringLiteral(" : impossible à vérifier. Ce fichier n'existe pas.\n");
}

void TestReportCheckLanguages::textSpeaksTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, report);
    QFETCH(const QString, end);
    QObject scope;
    QVERIFY(spoken(language, &scope));
    const QString text = textOf(checkReport(reportIn(QString(), report)));
    QVERIFY2(text.endsWith(end), qPrintable(text));
}

void TestReportCheckLanguages::whatProgramsReadStays()
{
    const QString report = reportIn(QString(), QStringLiteral("unnamed.xml"));
    QObject scope;
    QVERIFY(spoken(QStringLiteral("de"), &scope));
    const QByteArray json = jsonOf(std::vector<Result> {checkReport(report)});
    QVERIFY2(json.contains("\"severity\": \"warning\""), json.constData());
    QVERIFY2(json.contains("\"rule\": \"schema-out-of-reach\""), json.constData());
}

QTEST_GUILESS_MAIN(TestReportCheckLanguages)

#include "tst_reportcheck_languages.moc"
