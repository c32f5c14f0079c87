#include <QAbstractItemModel>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPlainTextEdit>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QTreeWidget>

#include "doctorwindow.h"
#include "examine.h"
#include "htmlrendering.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

using namespace schemadoctor;

namespace {

/// Speaks a language for as long as it lives.
class Speaking
{
public:
    explicit Speaking(const QString& language)
    {
        for (QTranslator* const catalogue : {&m_ofLibrary, &m_ofDoctor}) {
            const QString name
                = catalogue == &m_ofDoctor ? QStringLiteral("SchemaDoctor_") : QStringLiteral("XMLHelper_");
            m_isLoaded = catalogue->load(name + language, QStringLiteral(TRANSLATIONS_COMPILED)) && m_isLoaded;
            QCoreApplication::installTranslator(catalogue);
        }
    }

    bool IsLoaded() const { return m_isLoaded; }

private:
    QTranslator m_ofLibrary;
    QTranslator m_ofDoctor;
    bool m_isLoaded = true;
};

QString schemaOf(const QString& rule)
{
    return QStringLiteral(RULES_FOLDER "/%1/triggers.xsd").arg(rule);
}

Examination examinedIn(const QString& language, const QString& schema)
{
    const Speaking speaking(language);
    return examine(schema);
}

/// Of the rule; a default finding when there is none.
Finding findingOf(const Examination& examination, const QString& rule)
{
    for (const Finding& finding : examination.findings) {
        if (finding.rule == rule) {
            return finding;
        }
    }
    return {};
}

/// What programs read of the findings: everything but the sentences.
QStringList identifiersIn(const Examination& examination)
{
    QStringList identifiers;
    const QJsonObject json = QJsonDocument::fromJson(jsonOf(examination)).object();
    identifiers.append(json.value(QLatin1String("includes")).toObject().value(QLatin1String("state")).toString());
    const QJsonArray findings = json.value(QLatin1String("findings")).toArray();
    for (const QJsonValue& finding : findings) {
        for (const char* const key : {"severity", "rule", "subject", "path"}) {
            identifiers.append(finding.toObject().value(QLatin1String(key)).toString());
        }
    }
    return identifiers;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("german") << QStringLiteral("de");
    QTest::newRow("french") << QStringLiteral("fr");
}

} // namespace

class TestSchemaDoctorLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingsAreSentencesOfTheLanguage_data();
    void findingsAreSentencesOfTheLanguage();
    void noFindingStaysEnglish_data();
    void noFindingStaysEnglish();
    void whatProgramsReadStays_data() { addLanguages(); }
    void whatProgramsReadStays();
    void textSpeaksTheLanguage();
    void limitsOfTheLibraryAreTranslated();
    void pageNamesItsLanguage_data();
    void pageNamesItsLanguage();
    void windowSpeaksGerman();
};

void TestSchemaDoctorLanguages::findingsAreSentencesOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("remedy");

    QTest::newRow("german") << QStringLiteral("de")
                            << QStringLiteral("type=\"st:Level\" hat ein Präfix, das nicht 'xs:' ist.")
                            << QStringLiteral("'Level' für eine Definition des Schemas schreiben, 'xs:Level' für einen "
                                              "Typ von XML Schema.");
    QTest::newRow("french") << QStringLiteral("fr")
                            << QStringLiteral("type=\"st:Level\" a un préfixe qui n'est pas 'xs:'.")
                            << QStringLiteral("Écrire 'Level' pour une définition du schéma, 'xs:Level' pour un type "
                                              "de XML Schema.");
}

void TestSchemaDoctorLanguages::findingsAreSentencesOfTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, what);
    QFETCH(const QString, remedy);
    QVERIFY(Speaking(language).IsLoaded());

    const QString rule = QStringLiteral("prefixed-type");
    const Finding finding = findingOf(examinedIn(language, schemaOf(rule)), rule);
    QCOMPARE(finding.what, what);
    QCOMPARE(finding.remedy, remedy);
}

void TestSchemaDoctorLanguages::noFindingStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("schema");
    const QStringList rules = QDir(QStringLiteral(RULES_FOLDER)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!rules.isEmpty());
    for (const char* const language : {"de", "fr"}) {
        for (const QString& rule : rules) {
            QTest::addRow("%s: %s", language, qPrintable(rule)) << QString::fromLatin1(language) << schemaOf(rule);
        }
    }
}

/// In the same order, too: what is translated decides nothing.
void TestSchemaDoctorLanguages::noFindingStaysEnglish()
{
    QFETCH(const QString, language);
    QFETCH(const QString, schema);

    const Examination english = examine(schema);
    const Examination translated = examinedIn(language, schema);
    QCOMPARE(translated.findings.size(), english.findings.size());
    for (int i = 0; i < english.findings.size(); ++i) {
        const Finding& original = english.findings.at(i);
        const Finding& finding = translated.findings.at(i);
        QCOMPARE(finding.rule, original.rule);
        QCOMPARE(finding.place.line, original.place.line);
        QVERIFY2(finding.what != original.what, qPrintable(finding.what));
        QVERIFY2(finding.effect != original.effect, qPrintable(finding.effect));
        QVERIFY2(finding.remedy != original.remedy, qPrintable(finding.remedy));
        QVERIFY2(!(finding.what + finding.effect + finding.remedy).contains(QLatin1Char('%')),
                 qPrintable(finding.what + finding.effect + finding.remedy));
    }
}

void TestSchemaDoctorLanguages::whatProgramsReadStays()
{
    QFETCH(const QString, language);
    const QString schema = schemaOf(QStringLiteral("optional-that-stays"));
    const QStringList english = identifiersIn(examine(schema));
    const Speaking speaking(language);
    QCOMPARE(identifiersIn(examine(schema)), english);
    QVERIFY(english.contains(QStringLiteral("warning")));
}

void TestSchemaDoctorLanguages::textSpeaksTheLanguage()
{
    const QString schema = schemaOf(QStringLiteral("optional-that-stays"));
    const Speaking speaking(QStringLiteral("de"));
    const QString text = textOf(examine(schema));
    QVERIFY(text.startsWith(QLatin1String("19 Elemente werden angelegt.\nReport: Container; Vorkommen 1, Anzahl: ")));
    QVERIFY(text.contains(QStringLiteral("wird entfernt (nur in der ersten Kopie); gesetzt durch double")));
    QVERIFY(text.contains(QStringLiteral("optional-that-stays: 6 Befunde\n")));
    QVERIFY(text.contains(QStringLiteral("triggers.xsd:6: Warnung: Das Element 'Height' ist optional, ")));
    QVERIFY(text.contains(QStringLiteral("0 Fehler, 6 Warnungen, 0 Hinweise.\n")));
}

/// The library traces them in English; the doctor says them like its own.
void TestSchemaDoctorLanguages::limitsOfTheLibraryAreTranslated()
{
    const QString schema = schemaOf(QStringLiteral("element-count"));
    QVERIFY(!examine(schema).count.limit.isEmpty());
    const QString german = examinedIn(QStringLiteral("de"), schema).count.limit;
    QVERIFY2(german.startsWith(QLatin1String("Das Schema legt mehr als ")) && german.endsWith(QLatin1Char('.')),
             qPrintable(german));
}

void TestSchemaDoctorLanguages::pageNamesItsLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("words");
    QTest::newRow("english") << QStringLiteral("en") << QStringLiteral("What the library does:");
    QTest::newRow("german") << QStringLiteral("de") << QStringLiteral("Was die Bibliothek tut:");
    QTest::newRow("french") << QStringLiteral("fr") << QStringLiteral("Ce que fait la bibliothèque :");
}

void TestSchemaDoctorLanguages::pageNamesItsLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, words);
    const Speaking speaking(language);
    const QString page = QString::fromUtf8(htmlOf(examine(schemaOf(QStringLiteral("optional-that-stays")))));
    QVERIFY(page.contains(QStringLiteral("<html lang=\"%1\">").arg(language)));
    QVERIFY(page.contains(words));
    QVERIFY(page.contains(QStringLiteral("class=\"finding warning\""))); // The style and the script know it by that.
    QCOMPARE(page.contains(QStringLiteral("Search for a name")), language == QLatin1String("en"));
}

void TestSchemaDoctorLanguages::windowSpeaksGerman()
{
    const Speaking speaking(QStringLiteral("de"));
    const DoctorWindow window(examine(schemaOf(QStringLiteral("optional-that-stays"))), {});

    QVERIFY(window.windowTitle().endsWith(QLatin1String("triggers.xsd - Schema-Doktor")));
    const auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    QCOMPARE(findings->headerItem()->text(0), QStringLiteral("Befund"));
    QCOMPARE(findings->topLevelItem(0)->text(0), QStringLiteral("Warnung"));
    const auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    QCOMPARE(tree->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Typ"));
    QCOMPARE(tree->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Grenzen"));
    const auto* const details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"));
    QVERIFY2(details->toPlainText().contains(QLatin1String("\n\nStattdessen: ")), qPrintable(details->toPlainText()));
}

QTEST_MAIN(TestSchemaDoctorLanguages)

#include "tst_schemadoctor_languages.moc"
