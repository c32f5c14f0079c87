#include <QtTest>

#include <QRegularExpression>
#include <QSet>

#include "htmlrendering.h"
#include "htmlwriter.h"
#include "mendpage.h"
#include "sampleexamination.h"

using namespace schemadoctor;

namespace {

QString pageOf(const Examination& examination)
{
    return QString::fromUtf8(htmlOf(examination));
}

QStringList captures(const QString& page, const QString& pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(page);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found;
}

} // namespace

class TestHtmlRendering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapes_data();
    void escapes();
    void escapesEverythingThatTheSchemaHolds();
    void runsNoScriptButItsOwn();
    void needsNothingButItself();
    void leadsEveryLinkSomewhere();
    void showsEachElementWithItsFacts();
    void marksTheElementOfAFinding();
    void showsAFindingWithBothTrees();
    void headsFindingsOfOneCause();
    void givesEachLineOfTheSchemaAPlace();
    void saysWhyThereIsNoTree();
    void saysWhyTheSchemaCannotBeRead();
    void showsLargeSchemasInPart();
    void showsLongTextsInPart();
    void listsWhatWasMendedBesideBothSchemas();
};

void TestHtmlRendering::escapes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("html");

    QTest::newRow("markup") << "<b> & </b>"
                            << "&lt;b&gt; &amp; &lt;/b&gt;";
    QTest::newRow("quotes") << "\"a\" 'b'"
                            << "&quot;a&quot; &#39;b&#39;";
    QTest::newRow("characters-that-no-page-may-hold") << QString(QChar(1)) + QStringLiteral("a") + QChar(0)
                                                      << QString(QChar(0xfffd)) + QStringLiteral("a") + QChar(0xfffd);
    QTest::newRow("lines-and-tabulators-stay") << "a\n\tb"
                                               << "a\n\tb";
    QTest::newRow("other-scripts-stay") << QString::fromUtf8("dBµV ß") << QString::fromUtf8("dBµV ß");
}

void TestHtmlRendering::escapes()
{
    QFETCH(const QString, text);
    QTEST(escaped(text), "html");
}

void TestHtmlRendering::escapesEverythingThatTheSchemaHolds()
{
    const QString hostile = QStringLiteral("\"'><x-evil onload=bad()></script></style>");
    const QString page = pageOf(sampleExamination(hostile));
    QVERIFY(!page.contains(QLatin1String("<x-evil")));
    QVERIFY(!page.contains(QLatin1String("\"'>")));
    QVERIFY(page.count(QLatin1String("&lt;x-evil")) > 30);
    QCOMPARE(page.count(QLatin1String("</script>")), 1);
    QCOMPARE(page.count(QLatin1String("</style>")), 1);
}

void TestHtmlRendering::runsNoScriptButItsOwn()
{
    const QString page = pageOf(sampleExamination());
    const QStringList policies = captures(page, QStringLiteral("Content-Security-Policy\" content=\"([^\"]*)\""));
    QCOMPARE(policies.size(), 1);
    QVERIFY(policies.first().contains(QLatin1String("default-src &#39;none&#39;")));
    for (const QString& tag : {QStringLiteral("script"), QStringLiteral("style")}) {
        const QString content
            = page.section(QStringLiteral("<%1>").arg(tag), 1).section(QStringLiteral("</%1>").arg(tag), 0, 0);
        QVERIFY(content.size() > 100);
        const QString hash
            = QString::fromLatin1(QCryptographicHash::hash(content.toUtf8(), QCryptographicHash::Sha256).toBase64());
        QVERIFY2(policies.first().contains(QStringLiteral("%1-src &#39;sha256-%2&#39;").arg(tag, hash)),
                 qPrintable(policies.first()));
    }
}

void TestHtmlRendering::needsNothingButItself()
{
    const QString page = pageOf(sampleExamination());
    for (const char* reference : {"src=", "url(", "@import", "http:", "https:", "<link", "<iframe", "fetch("}) {
        QVERIFY2(!page.contains(QLatin1String(reference)), reference);
    }
}

void TestHtmlRendering::leadsEveryLinkSomewhere()
{
    const QString page = pageOf(sampleExamination());
    const QStringList ids = captures(page, QStringLiteral(" id=\"([^\"]+)\""));
    const QSet<QString> places(ids.begin(), ids.end());
    QCOMPARE(places.size(), ids.size()); // each is there once
    const QStringList links = captures(page, QStringLiteral(" href=\"#([^\"]+)\""));
    QVERIFY(links.size() > 10);
    for (const QString& link : links) {
        QVERIFY2(places.contains(link), qPrintable(link));
    }
}

void TestHtmlRendering::showsEachElementWithItsFacts()
{
    const QString page = pageOf(sampleExamination());
    for (const char* words : {"Report", "Station", "Signal", "Level", "Price", "@Unit", "xs:string", "minInclusive 0",
                              "pattern [0-9] (not checked)", "one of Tower, Mast", "default Mast",
                              "alternative of choice 1", "set by double", "nothing can fill it", "types.xsd:2",
                              "outside of the folder", "5 elements laid out. 1 error, 1 warning, 1 note."}) {
        QVERIFY2(page.contains(QLatin1String(words)), words);
    }
}

void TestHtmlRendering::marksTheElementOfAFinding()
{
    const QString page = pageOf(sampleExamination());
    // Price is the fifth element, its finding the first.
    const QString row = page.section(QLatin1String("id=\"e4\""), 1).section(QLatin1String("</li>"), 0, 0);
    QVERIFY2(row.contains(QLatin1String("href=\"#finding0\">error<")), qPrintable(row));
    const QString finding
        = page.section(QLatin1String("id=\"finding0\""), 1).section(QLatin1String("</article>"), 0, 0);
    QVERIFY2(finding.contains(QLatin1String("href=\"#e4\">/Report/Signal/Price<")), qPrintable(finding));
}

void TestHtmlRendering::showsAFindingWithBothTrees()
{
    const QString page = pageOf(sampleExamination());
    QVERIFY(page.contains(QLatin1String("<pre>Signal\n  Level</pre>")));
    QVERIFY(page.contains(QLatin1String("<pre>Signal\nLevel</pre>")));
}

void TestHtmlRendering::headsFindingsOfOneCause()
{
    Examination examination = sampleExamination();
    QVERIFY(!htmlOf(examination).contains("never-fillable: "));
    examination.findings.insert(1, examination.findings.constFirst());
    QVERIFY(htmlOf(examination).contains("<h3>never-fillable: 2 findings</h3>"));
}

void TestHtmlRendering::givesEachLineOfTheSchemaAPlace()
{
    const QString page = pageOf(sampleExamination());
    QVERIFY(page.contains(QLatin1String("<span id=\"t0-4\">  &lt;xs:element name=&quot;Station&quot;/&gt;</span>")));
    QVERIFY(page.contains(QLatin1String("<span id=\"t1-2\">  &lt;xs:element name=&quot;Level&quot;/&gt;</span>")));
}

void TestHtmlRendering::saysWhyThereIsNoTree()
{
    Examination examination;
    examination.noTreeReason = QStringLiteral("Nothing is declared.");
    QVERIFY(pageOf(examination).contains(examination.noTreeReason));
}

void TestHtmlRendering::saysWhyTheSchemaCannotBeRead()
{
    Examination examination;
    examination.unreadableReason = QStringLiteral("There is no such file.");
    QVERIFY(pageOf(examination).contains(QLatin1String("cannot be read: There is no such file.")));
}

void TestHtmlRendering::showsLargeSchemasInPart()
{
    const QString page = pageOf(wideExamination(25000));
    QVERIFY(page.contains(QLatin1String("The first 10000 of 25001 elements")));
    QVERIFY(page.contains(QLatin1String(">Level9998<")));
    QVERIFY(!page.contains(QLatin1String(">Level9999<")));
}

void TestHtmlRendering::showsLongTextsInPart()
{
    Examination examination = sampleExamination();
    examination.texts[QStringLiteral("/schemas/long.xsd")] = QString(5 * 1024 * 1024, QLatin1Char('a'));
    const QString page = pageOf(examination);
    QVERIFY(page.size() < 1024 * 1024);
    QVERIFY(page.contains(QLatin1String("Files that are too long for the page are left out.")));
}

void TestHtmlRendering::listsWhatWasMendedBesideBothSchemas()
{
    Mending mending;
    mending.texts[QStringLiteral("/a.xsd")] = QStringLiteral("<first>\n<second>");
    mending.text = "<mended>\n<more>";
    mending.rewrites.append({{QStringLiteral("/a.xsd"), 2}, QStringLiteral("<old>"), QStringLiteral("new"), {}});
    const QString page = QString::fromUtf8(htmlOf(mending));
    QVERIFY(page.contains(QLatin1String("href=\"#t0-2\"")));
    QVERIFY(page.contains(QLatin1String("<span id=\"t0-2\">&lt;second&gt;</span>")));
    QVERIFY(page.contains(QLatin1String("<span id=\"m-2\">&lt;more&gt;</span>")));
    QVERIFY(page.contains(QStringLiteral("&lt;old&gt; \u2192 new (reports stay valid by the original)")));
    QVERIFY(!page.contains(QLatin1String("<script")));
}

QTEST_GUILESS_MAIN(TestHtmlRendering)

#include "tst_schemadoctor_html.moc"
