#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include "examine.h"
#include "rules/rule.h"

using namespace schemadoctor;

namespace {

/// Every rule has a folder of its name: in the files around triggers.xsd, a comment such as <!-- error --> stands in
/// each line that the rule has something to say about, as often as it does; about quiet.xsd it says nothing.
QString folderOf(const QString& rule)
{
    return QStringLiteral(RULES_FOLDER "/") + rule;
}

QString finding(const QString& file, int line, const QString& severity)
{
    return QStringLiteral("%1:%2 %3").arg(QFileInfo(file).fileName()).arg(line).arg(severity);
}

QStringList markedFindings(const QString& rule)
{
    static const QRegularExpression mark(QStringLiteral("<!-- (error|warning|note)(: the file as a whole)? -->"));
    QStringList marked;
    const QDir folder(folderOf(rule));
    const QStringList names = folder.entryList({QStringLiteral("*.xsd")});
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (name == QLatin1String("quiet.xsd") || !file.open(QIODevice::ReadOnly)) {
            continue;
        }
        for (int line = 1; !file.atEnd(); ++line) {
            QRegularExpressionMatchIterator marks = mark.globalMatch(QString::fromUtf8(file.readLine()));
            while (marks.hasNext()) {
                const QRegularExpressionMatch match = marks.next();
                marked.append(finding(name, match.captured(2).isEmpty() ? line : 0, match.captured(1)));
            }
        }
    }
    marked.sort();
    return marked;
}

QStringList findingsOf(const QString& rule, const QString& file)
{
    QStringList found;
    const Examination examination = examine(folderOf(rule) + QLatin1Char('/') + file);
    for (const Finding& one : examination.findings) {
        if (one.rule == rule) {
            found.append(finding(one.place.file, one.place.line, nameOf(one.severity)));
        }
    }
    found.sort();
    return found;
}

void addRules()
{
    QTest::addColumn<QString>("rule");
    for (const Rule& rule : allRules()) {
        QTest::newRow(rule.name) << QString::fromLatin1(rule.name);
    }
}

} // namespace

class TestSchemaDoctorRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFolderIsOfARule();
    void speaks_data() { addRules(); }
    void speaks();
    void isSilent_data() { addRules(); }
    void isSilent();
    void saysWhatHappensAndWhatToWrite_data() { addRules(); }
    void saysWhatHappensAndWhatToWrite();
    void manPageNamesEveryRule_data() { addRules(); }
    void manPageNamesEveryRule();
};

void TestSchemaDoctorRules::everyFolderIsOfARule()
{
    QStringList rules;
    for (const Rule& rule : allRules()) {
        rules.append(QString::fromLatin1(rule.name));
    }
    rules.sort();
    QCOMPARE(QDir(QStringLiteral(RULES_FOLDER)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), rules);
}

void TestSchemaDoctorRules::speaks()
{
    QFETCH(QString, rule);
    const QStringList marked = markedFindings(rule);
    QVERIFY(!marked.isEmpty());
    QCOMPARE(findingsOf(rule, QStringLiteral("triggers.xsd")), marked);
}

void TestSchemaDoctorRules::isSilent()
{
    QFETCH(QString, rule);
    QVERIFY(QFile::exists(folderOf(rule) + QStringLiteral("/quiet.xsd")));
    QCOMPARE(findingsOf(rule, QStringLiteral("quiet.xsd")), QStringList());
}

void TestSchemaDoctorRules::saysWhatHappensAndWhatToWrite()
{
    QFETCH(QString, rule);
    const Examination examination = examine(folderOf(rule) + QStringLiteral("/triggers.xsd"));
    for (const Finding& one : examination.findings) {
        for (const QString& text : {one.what, one.effect, one.remedy}) {
            QVERIFY2(!text.isEmpty(), qPrintable(one.rule));
            QVERIFY2(!text.contains(QRegularExpression(QStringLiteral("%[1-9]"))), qPrintable(text));
        }
    }
}

void TestSchemaDoctorRules::manPageNamesEveryRule()
{
    QFETCH(QString, rule);
    QFile page(QStringLiteral(RULES_FOLDER "/../../man/xmlhelper-schema.1"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().contains(".B " + rule.toLatin1() + '\n'));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorRules)
#include "tst_schemadoctor_rules.moc"
