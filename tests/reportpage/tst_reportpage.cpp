#include <algorithm>

#include <QDomDocument>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextFragment>
#include <QTranslator>
#include <QtTest>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/reportnews.h>
#include <xmlhelperreports/reportpage.h>

#include "cputime.h"
#include "expectedfile.h"

/// What a report becomes as a page.
class TestReportPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReportBecomesAPage_data();
    void aReportBecomesAPage();
    void aPageOfEveryReportIsWellFormed_data();
    void aPageOfEveryReportIsWellFormed();
    void nothingForeignBecomesMarkup_data();
    void nothingForeignBecomesMarkup();
    void richTextHasTheSameContent_data();
    void richTextHasTheSameContent();
    void labelsAreInTheLanguageOfThePage();
    void aReportWithoutSchemaHasNoMarks();
    void lacksAreWhatThePageMarks_data();
    void lacksAreWhatThePageMarks();
    void aReportThatCannotBeReadLacksAPage();
    void aSchemaThatDoesNotServeGivesAPageThatSaysSo_data();
    void aSchemaThatDoesNotServeGivesAPageThatSaysSo();
    void whatIsNoReportIsRefused_data();
    void whatIsNoReportIsRefused();
    void aReportBeyondTheLimitsIsRefused_data();
    void aReportBeyondTheLimitsIsRefused();
    void titleFaultsAndPictureAreShown();
    void readingAgainForgetsTheReport();
    void aReportNeedsNoFile();
    void nobodyHearsOfAReport();
    void aPageMayMove();
    void filesAreSaved();
    void aFileThatCannotBeSavedSaysWhy();
    void longPagesAreNumbered();
    void workGrowsWithTheReport_data();
    void workGrowsWithTheReport();
    void aSchemaCannotAskForMoreThanAPageShows();
    void whatCouldNotBeToldIsSaid();
    void aUnitThatWasNeverFilledIsMarked_data();
    void aUnitThatWasNeverFilledIsMarked();
};

namespace {

QString dataFile(const QString& name)
{
    return QStringLiteral(PROJECT_FOLDER "/tests/reportpage/data/") + name;
}

QString surveySchema()
{
    return dataFile(QStringLiteral("survey.xsd"));
}

QString measurementSchema()
{
    return QStringLiteral(PROJECT_FOLDER "/examples/measurementpanel/measurementreport.xsd");
}

/// What is behind the style sheet, which is no matter of reports.
QString bodyOf(const QString& page)
{
    return page.mid(page.indexOf(QLatin1String("<body>")));
}

ReportPage pageOf(const QString& report, const QString& schema)
{
    ReportPage page;
    if (!page.Read(report, schema)) {
        qWarning("%s", qPrintable(page.GetError()));
    }
    return page;
}

QDomDocument documentOf(const QString& page)
{
    QDomDocument document;
    QString fault;
    if (!document.setContent(page, &fault)) {
        qWarning("%s", qPrintable(fault));
    }
    return document;
}

QString writtenFile(const QTemporaryDir& folder, const QByteArray& content,
                    const QString& name = QStringLiteral("report.xml"))
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

QByteArray readFile(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The texts of all elements of a class.
QStringList textsOfClass(const QDomDocument& page, const QString& name)
{
    QStringList texts;
    const QDomNodeList spans = page.elementsByTagName(QStringLiteral("span"));
    for (int i = 0; i < spans.count(); ++i) {
        const QDomElement span = spans.at(i).toElement();
        if (span.attribute(QStringLiteral("class")) == name) {
            texts.append(span.text());
        }
    }
    return texts;
}

void addElements(const QDomElement& element, QVector<QDomElement>& all)
{
    all.append(element);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        addElements(child, all);
    }
}

void addReports()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("schema");
    QTest::newRow("values-have-labels-and-units") << "measurement" << measurementSchema();
    QTest::newRow("repeated-containers-are-tables") << "repeated" << surveySchema();
    QTest::newRow("required-and-absent-is-missing") << "nearlyempty" << surveySchema();
    QTest::newRow("never-filled-is-missing-and-its-notes-are-left-over") << "neverfilled" << surveySchema();
    QTest::newRow("undeclared-is-left-over") << "leftover" << surveySchema();
    QTest::newRow("markup-in-values-is-text") << "hostile" << dataFile(QStringLiteral("hostile.xsd"));
}

/// Speaks one word: the language.
class OneWord : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool isLanguage = qstrcmp(context, "ReportPage") == 0 && qstrcmp(text, "en") == 0;
        return isLanguage ? QStringLiteral("de") : QString();
    }
};

QByteArray reportOfEmissions(int count)
{
    QByteArray report = "<Survey><Station>N</Station><Begin>x</Begin><Gain>1</Gain>";
    for (int i = 0; i < count; ++i) {
        report += "<Emission Id='1'><Frequency>1</Frequency><Place><Latitude>1</Latitude></Place>"
                  "<Line><Offset>1</Offset></Line><Line/></Emission>";
    }
    return report + "</Survey>";
}

QByteArray reportOfDifferentNames(int count)
{
    QByteArray report = "<Survey>";
    for (int i = 0; i < count; ++i) {
        report += QStringLiteral("<Emission><E%1>1</E%1></Emission><F%1/>").arg(i).toUtf8();
    }
    return report + "</Survey>";
}

QByteArray reportOfAttributes(int count)
{
    QByteArray report = "<Survey>";
    for (int i = 0; i < count; ++i) {
        report += QStringLiteral("<Station a%1='' b%1=''/>").arg(i).toUtf8();
    }
    return report + "</Survey>";
}

} // namespace

void TestReportPage::aReportBecomesAPage_data()
{
    addReports();
}

void TestReportPage::aReportBecomesAPage()
{
    QFETCH(QString, name);
    QFETCH(QString, schema);
    ReportPage page;
    QVERIFY(page.Read(dataFile(name + QStringLiteral(".xml")), schema));
    QCOMPARE(page.GetError(), QString());
    COMPARE_WITH_FILE(bodyOf(page.ToHtml()), dataFile(name + QStringLiteral(".page")));
}

void TestReportPage::aPageOfEveryReportIsWellFormed_data()
{
    addReports();
}

void TestReportPage::aPageOfEveryReportIsWellFormed()
{
    QFETCH(QString, name);
    QFETCH(QString, schema);
    const ReportPage page = pageOf(dataFile(name + QStringLiteral(".xml")), schema);
    for (const QString& text : {page.ToHtml(), page.ToRichText()}) {
        const QDomElement html = documentOf(text).documentElement();
        QCOMPARE(html.tagName(), QStringLiteral("html"));
        QCOMPARE(html.attribute(QStringLiteral("lang")), QStringLiteral("en"));
        QVERIFY(!html.firstChildElement(QStringLiteral("head"))
                     .firstChildElement(QStringLiteral("title"))
                     .text()
                     .isEmpty());
    }
    QVERIFY(page.ToHtml().contains(QLatin1String("prefers-color-scheme: dark")));
    QVERIFY(page.ToHtml().contains(QLatin1String("@media print")));
}

void TestReportPage::nothingForeignBecomesMarkup_data()
{
    QTest::addColumn<QString>("schema");
    QTest::newRow("with-schema") << dataFile(QStringLiteral("hostile.xsd"));
    QTest::newRow("without-schema") << QString();
}

void TestReportPage::nothingForeignBecomesMarkup()
{
    QFETCH(QString, schema);
    const QString foreign = QStringLiteral("<script>\"'&") + QChar(0x1) + QChar(0xD800) + QStringLiteral("</script>");
    ReportPage page = pageOf(dataFile(QStringLiteral("hostile.xml")), schema);
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    page.SetTitle(foreign);
    page.SetFaults({foreign});
    page.SetPicture(picture, foreign);

    const QSet<QString> tags {
        QStringLiteral("html"),  QStringLiteral("head"),  QStringLiteral("meta"), QStringLiteral("title"),
        QStringLiteral("style"), QStringLiteral("body"),  QStringLiteral("h1"),   QStringLiteral("h2"),
        QStringLiteral("div"),   QStringLiteral("p"),     QStringLiteral("ul"),   QStringLiteral("li"),
        QStringLiteral("img"),   QStringLiteral("table"), QStringLiteral("tr"),   QStringLiteral("th"),
        QStringLiteral("td"),    QStringLiteral("span"),  QStringLiteral("br"),
    };
    for (const QString& text : {page.ToHtml(), page.ToRichText()}) {
        const QDomDocument document = documentOf(text);
        QVector<QDomElement> all;
        addElements(document.documentElement(), all);
        QVERIFY(all.size() > 20);
        int pictures = 0;
        for (const QDomElement& element : all) {
            QVERIFY2(tags.contains(element.tagName()), qPrintable(element.tagName()));
            pictures += element.tagName() == QLatin1String("img") ? 1 : 0;
            for (const char* const attribute : {"onload", "onerror", "style", "href"}) {
                QVERIFY(!element.hasAttribute(QLatin1String(attribute)));
            }
        }
        QCOMPARE(pictures, 1);
        QCOMPARE(document.elementsByTagName(QStringLiteral("style")).count(), 1);
        QVERIFY(textsOfClass(document, QStringLiteral("value"))
                    .contains(QStringLiteral("</td></table><img src=\"http://example.org/\" onerror=\"alert(5)\">")));
        QCOMPARE(document.elementsByTagName(QStringLiteral("h1")).at(0).toElement().text(),
                 QStringLiteral("<script>\"'&</script>"));
    }
}

void TestReportPage::richTextHasTheSameContent_data()
{
    addReports();
}

void TestReportPage::richTextHasTheSameContent()
{
    QFETCH(QString, name);
    QFETCH(QString, schema);
    const ReportPage page = pageOf(dataFile(name + QStringLiteral(".xml")), schema);
    QTextDocument shown;
    shown.setHtml(page.ToRichText());
    const QRegularExpression blanks(QStringLiteral("\\s"));
    QString text = documentOf(page.ToHtml()).documentElement().firstChildElement(QStringLiteral("body")).text();
    QCOMPARE(shown.toPlainText().remove(blanks), text.remove(blanks));
}

void TestReportPage::labelsAreInTheLanguageOfThePage()
{
    const ReportPage page = pageOf(dataFile(QStringLiteral("repeated.xml")), surveySchema());
    OneWord german;
    QCoreApplication::installTranslator(&german);
    const QDomElement html = documentOf(page.ToHtml()).documentElement();
    QCoreApplication::removeTranslator(&german);

    QCOMPARE(html.attribute(QStringLiteral("lang")), QStringLiteral("de"));
    QVERIFY(html.text().contains(QStringLiteral("Bandübersicht")));
    QVERIFY(html.text().contains(QStringLiteral("Début"))); // There is no German text, so the first counts.
    QVERIFY(bodyOf(page.ToHtml()).contains(QLatin1String("Survey of a band")));
    QVERIFY(bodyOf(page.ToHtml()).contains(QLatin1String("Start</th>")));
}

void TestReportPage::aReportWithoutSchemaHasNoMarks()
{
    const QTemporaryDir folder;
    const QString report
        = writtenFile(folder, "<Report><Gain Unit='dB' type='x'/><Group><Gain Unit='dB'>3</Gain></Group></Report>");
    const ReportPage page = pageOf(report, QString());
    QCOMPARE(page.GetError(), QString());
    const QDomDocument document = documentOf(page.ToHtml());
    QCOMPARE(textsOfClass(document, QStringLiteral("missing")), QStringList());
    QCOMPARE(textsOfClass(document, QStringLiteral("leftover")), QStringList());
    QCOMPARE(textsOfClass(document, QStringLiteral("value")), QStringList {QStringLiteral("3")});
    QVERIFY(textsOfClass(document, QStringLiteral("attributes")).contains(QStringLiteral("(type: x)")));
    QCOMPARE(document.elementsByTagName(QStringLiteral("h2")).at(0).toElement().text(), QStringLiteral("Group"));
}

void TestReportPage::lacksAreWhatThePageMarks_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QStringList>("lacks");
    const QString survey = surveySchema();
    QTest::newRow("nothing-is-marked") << "measurement.xml" << measurementSchema() << QStringList();
    QTest::newRow("missing") << "nearlyempty.xml" << survey << QStringList {QStringLiteral("Missing: 3")};
    QTest::newRow("left-over") << "leftover.xml" << survey << QStringList {QStringLiteral("Left over: 5")};
    QTest::newRow("both") << "neverfilled.xml" << survey
                          << QStringList {QStringLiteral("Missing: 3"), QStringLiteral("Left over: 5")};
    QTest::newRow("no-schema") << "nearlyempty.xml" << QString() << QStringList();
    QTest::newRow("schema-of-another-root")
        << "measurement.xml" << survey
        << QStringList {QStringLiteral("The schema is one of 'Survey', and the report is none")};
}

void TestReportPage::lacksAreWhatThePageMarks()
{
    QFETCH(QString, report);
    QFETCH(QString, schema);
    QFETCH(QStringList, lacks);
    QCOMPARE(ReportPage::LacksOf(schema, dataFile(report)), lacks);
}

void TestReportPage::aReportThatCannotBeReadLacksAPage()
{
    const QStringList lacks = ReportPage::LacksOf(surveySchema(), QStringLiteral("none.xml"));
    QCOMPARE(lacks.size(), 1);
    QVERIFY(!lacks.first().endsWith(QLatin1Char('.')));
}

void TestReportPage::aSchemaThatDoesNotServeGivesAPageThatSaysSo_data()
{
    QTest::addColumn<QByteArray>("schema"); // null: there is none
    QTest::addColumn<QString>("words");
    const QByteArray begin = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>";
    QTest::newRow("no-such-file") << QByteArray() << "cannot be opened";
    QTest::newRow("not-well-formed") << begin + "<xs:element"
                                     << "not well-formed";
    QTest::newRow("lays-out-nothing") << begin + "</xs:schema>"
                                      << "The schema is not understood";
    QTest::newRow("type-is-missing") << begin
            + "<xs:element name='Survey'><xs:complexType><xs:sequence><xs:element name='A' type='Nowhere'/>"
              "</xs:sequence></xs:complexType></xs:element></xs:schema>"
                                     << "'Nowhere'";
    QTest::newRow("of-another-root") << begin
            + "<xs:element name='Other'><xs:complexType><xs:sequence><xs:element name='A' type='xs:string'/>"
              "</xs:sequence></xs:complexType></xs:element></xs:schema>"
                                     << "'Other'";
}

void TestReportPage::aSchemaThatDoesNotServeGivesAPageThatSaysSo()
{
    QFETCH(QByteArray, schema);
    QFETCH(QString, words);
    const QTemporaryDir folder;
    const QString file = schema.isNull() ? folder.filePath(QStringLiteral("none.xsd"))
                                         : writtenFile(folder, schema, QStringLiteral("schema.xsd"));
    ReportPage page;
    QVERIFY(page.Read(dataFile(QStringLiteral("repeated.xml")), file));
    QVERIFY2(page.GetError().contains(words), qPrintable(page.GetError()));
    const QDomDocument document = documentOf(page.ToHtml());
    QVERIFY(document.documentElement().text().contains(page.GetError()));
    QVERIFY(textsOfClass(document, QStringLiteral("value")).contains(QStringLiteral("105.5")));
    QCOMPARE(textsOfClass(document, QStringLiteral("leftover")), QStringList());
}

void TestReportPage::whatIsNoReportIsRefused_data()
{
    QTest::addColumn<QByteArray>("content"); // null: there is no file
    QTest::addColumn<QString>("words");
    QTest::newRow("no-file") << QByteArray() << "There is no such file.";
    QTest::newRow("empty-file") << QByteArray("") << "not well-formed XML, line 1";
    QTest::newRow("no-xml") << QByteArray("%PDF-1.4\n\0\1", 11) << "not well-formed XML, line 1";
    QTest::newRow("cut-off") << QByteArray("<A>\n<B>1") << "not well-formed XML, line 2";
    QTest::newRow("two-roots") << QByteArray("<A/>\n<B/>") << "not well-formed XML, line 2";
    QTest::newRow("with-document-type") << QByteArray("<!DOCTYPE A>\n<A/>") << "document type";
    QTest::newRow("with-entities") << QByteArray(
        "<!DOCTYPE A [<!ENTITY a 'aaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>\n<A>&b;&b;</A>")
                                   << "document type";
    QTest::newRow("with-unknown-entity") << QByteArray("<A>&b;</A>") << "not well-formed XML";
}

void TestReportPage::whatIsNoReportIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, words);
    const QTemporaryDir folder;
    const QString file = content.isNull() ? folder.filePath(QStringLiteral("none.xml")) : writtenFile(folder, content);
    ReportPage page;
    QVERIFY(!page.Read(file, surveySchema()));
    QVERIFY2(page.GetError().contains(words), qPrintable(page.GetError()));
    QCOMPARE(page.ToHtml(), QString());
    QCOMPARE(page.ToRichText(), QString());
}

void TestReportPage::aReportBeyondTheLimitsIsRefused_data()
{
    QTest::addColumn<QByteArray>("allowed");
    QTest::addColumn<QByteArray>("refused");
    QTest::newRow("elements") << QByteArray("<A><B/><B/><B/></A>") << QByteArray("<A><B/><B/><B/><B/></A>");
    QTest::newRow("nesting") << QByteArray("<A><B><C/></B></A>") << QByteArray("<A><B><C><D/></C></B></A>");
    QTest::newRow("attributes") << QByteArray("<A a='' b=''/>") << QByteArray("<A a='' b='' c=''/>");
    QByteArray many = "<A><!--'--><?a '?><![CDATA[']]><B ";
    for (int i = 0; i < 50000; ++i) {
        many += QByteArray("a") + QByteArray::number(i) + "=\"\" ";
    }
    QTest::newRow("attributes-of-a-tag") << QByteArray("<A><!--'--><B/></A>") << many + "/></A>";
}

void TestReportPage::aReportBeyondTheLimitsIsRefused()
{
    QFETCH(QByteArray, allowed);
    QFETCH(QByteArray, refused);
    const QTemporaryDir folder;
    Limits small;
    small.elements = 4;
    small.elementNesting = 3;
    small.attributes = refused.size() < 1000 ? 2 : small.attributes;
    const LimitsInForce inForce(small);
    ReportPage page;
    QVERIFY2(page.Read(writtenFile(folder, allowed), QString()), qPrintable(page.GetError()));
    QVERIFY(!page.Read(writtenFile(folder, refused), QString()));
    QVERIFY2(page.GetError().startsWith(QLatin1String("It holds more than any report")), qPrintable(page.GetError()));
}

void TestReportPage::titleFaultsAndPictureAreShown()
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    ReportPage page = pageOf(dataFile(QStringLiteral("measurement.xml")), measurementSchema());
    QVERIFY(!page.ToHtml().contains(QLatin1String("<img")));
    QVERIFY(!page.ToHtml().contains(QLatin1String("class=\"faults\"")));
    page.SetTitle(QStringLiteral("Hill 3, 105.5 MHz"));
    page.SetFaults({QStringLiteral("Level is too high"), QStringLiteral("Second")});
    page.SetPicture(picture, QStringLiteral("The trace"));

    const QDomDocument document = documentOf(page.ToHtml());
    QCOMPARE(document.elementsByTagName(QStringLiteral("h1")).at(0).toElement().text(),
             QStringLiteral("Hill 3, 105.5 MHz"));
    const QDomNodeList faults = document.elementsByTagName(QStringLiteral("li"));
    QCOMPARE(faults.count(), 2);
    QCOMPARE(faults.at(0).toElement().text(), QStringLiteral("Level is too high"));
    const QDomElement image = document.elementsByTagName(QStringLiteral("img")).at(0).toElement();
    QCOMPARE(image.attribute(QStringLiteral("alt")), QStringLiteral("The trace"));
    const QString source = image.attribute(QStringLiteral("src"));
    const QString begin = QStringLiteral("data:image/png;base64,");
    QVERIFY(source.startsWith(begin));
    const QImage shown = QImage::fromData(QByteArray::fromBase64(source.mid(begin.size()).toLatin1()), "PNG");
    QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), picture);

    QTextDocument rich;
    rich.setHtml(page.ToRichText());
    QVERIFY(rich.toPlainText().contains(QLatin1String("Second")));
    QVERIFY(rich.toPlainText().contains(QChar::ObjectReplacementCharacter));
    page.SetPicture(QImage(), QString());
    QVERIFY(!page.ToHtml().contains(QLatin1String("<img")));
}

void TestReportPage::readingAgainForgetsTheReport()
{
    ReportPage page = pageOf(dataFile(QStringLiteral("measurement.xml")), measurementSchema());
    page.SetTitle(QStringLiteral("Kept"));
    QVERIFY(page.Read(dataFile(QStringLiteral("nearlyempty.xml")), surveySchema()));
    QVERIFY(!page.ToHtml().contains(QLatin1String("105.5")));
    QVERIFY(page.ToHtml().contains(QLatin1String("<h1>Kept</h1>")));
    QVERIFY(!page.Read(QStringLiteral("/nowhere/none.xml"), surveySchema()));
    QCOMPARE(page.ToHtml(), QString());
    QVERIFY(page.Read(dataFile(QStringLiteral("nearlyempty.xml")), surveySchema()));
    QCOMPARE(page.GetError(), QString());
}

void TestReportPage::aReportNeedsNoFile()
{
    const QString file = dataFile(QStringLiteral("leftover.xml"));
    ReportPage page = pageOf(file, surveySchema());
    const QString source = QStringLiteral("<p class=\"source\">leftover.xml</p>\n");
    QVERIFY(page.ToHtml().contains(source));
    const QString expected = page.ToHtml().remove(source);
    QVERIFY(page.ReadContent(readFile(file), surveySchema()));
    QCOMPARE(page.GetError(), QString());
    QCOMPARE(page.ToHtml(), expected);

    QVERIFY(!page.ReadContent("<survey>", surveySchema()));
    QVERIFY(page.GetError().startsWith(QLatin1String("It is not well-formed XML")));
    QCOMPARE(page.ToHtml(), QString());
    QVERIFY(!page.ReadContent(QByteArray(), QString()));
}

void TestReportPage::nobodyHearsOfAReport()
{
    const QSignalSpy begun(&ReportNews::Instance(), &ReportNews::Begun);
    const QSignalSpy schema(&ReportNews::Instance(), &ReportNews::SchemaRead);
    const QSignalSpy written(&ReportNews::Instance(), &ReportNews::Written);
    const ReportPage page = pageOf(dataFile(QStringLiteral("repeated.xml")), surveySchema());
    QVERIFY(!page.ToHtml().isEmpty());
    QCOMPARE(int(begun.count() + schema.count() + written.count()), 0);
}

void TestReportPage::aPageMayMove()
{
    ReportPage page = pageOf(dataFile(QStringLiteral("repeated.xml")), surveySchema());
    const QString html = page.ToHtml();
    ReportPage moved(std::move(page));
    QCOMPARE(moved.ToHtml(), html);
    ReportPage other;
    other = std::move(moved);
    QCOMPARE(other.ToHtml(), html);
}

void TestReportPage::filesAreSaved()
{
    const QTemporaryDir folder;
    const ReportPage page = pageOf(dataFile(QStringLiteral("repeated.xml")), surveySchema());
    const QString html = folder.filePath(QStringLiteral("page.html"));
    const QString pdf = folder.filePath(QStringLiteral("page.pdf"));
    QString reason;
    QVERIFY2(page.SaveHtml(html, &reason), qPrintable(reason));
    QCOMPARE(readFile(html), page.ToHtml().toUtf8());
#if QT_CONFIG(pdf)
    QVERIFY2(page.SavePdf(pdf, &reason), qPrintable(reason));
    QVERIFY(readFile(pdf).startsWith("%PDF-"));
    QVERIFY(readFile(pdf).trimmed().endsWith("%%EOF"));
#endif
    QCOMPARE(reason, QString());
}

void TestReportPage::aFileThatCannotBeSavedSaysWhy()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("none/page"));
    const ReportPage page = pageOf(dataFile(QStringLiteral("repeated.xml")), surveySchema());
    for (const auto save : {&ReportPage::SaveHtml, &ReportPage::SavePdf}) {
        QString reason;
        QVERIFY(!(page.*save)(file, &reason));
        QVERIFY(!reason.isEmpty());
        QVERIFY(!(page.*save)(file, nullptr));
        QVERIFY(!(ReportPage().*save)(folder.filePath(QStringLiteral("page")), &reason));
        QVERIFY2(reason.contains(QLatin1String("no page")), qPrintable(reason));
    }
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("page"))));
}

void TestReportPage::longPagesAreNumbered()
{
#if QT_CONFIG(pdf)
    const QTemporaryDir folder;
    const ReportPage page = pageOf(writtenFile(folder, reportOfEmissions(60)), surveySchema());
    const QString pdf = folder.filePath(QStringLiteral("page.pdf"));
    QVERIFY(page.SavePdf(pdf));
    QVERIFY(readFile(pdf).count("/Type /Page\n") > 1);
#else
    QSKIP("Qt has no PDF here.");
#endif
}

void TestReportPage::workGrowsWithTheReport_data()
{
    QTest::addColumn<QByteArray>("small");
    QTest::addColumn<QByteArray>("large"); // four times as much
    QTest::newRow("rows") << reportOfEmissions(500) << reportOfEmissions(2000);
    QTest::newRow("different-names") << reportOfDifferentNames(1000) << reportOfDifferentNames(4000);
    QTest::newRow("attributes") << reportOfAttributes(1500) << reportOfAttributes(6000);
}

void TestReportPage::workGrowsWithTheReport()
{
    QFETCH(QByteArray, small);
    QFETCH(QByteArray, large);
    const QTemporaryDir folder;
    const QString smallFile = writtenFile(folder, small, QStringLiteral("small.xml"));
    const QString largeFile = writtenFile(folder, large, QStringLiteral("large.xml"));
    const auto costOf = [](const QString& file) {
        double least = 1000;
        for (int i = 0; i < 3; ++i) {
            const double start = cpuSeconds();
            const ReportPage page = pageOf(file, surveySchema());
            const bool isWhole = page.ToHtml().endsWith(QLatin1String("</html>\n"));
            least = std::min(least, isWhole ? cpuSeconds() - start : 1000);
        }
        return std::max(least, CpuTimeStep);
    };
    const double ratio = costOf(largeFile) / costOf(smallFile);
    QVERIFY2(ratio < 10, qPrintable(QStringLiteral("%1 times the work for four times the report").arg(ratio)));
}

void TestReportPage::aSchemaCannotAskForMoreThanAPageShows()
{
    const QTemporaryDir folder;
    QByteArray schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Report'>"
                        "<xs:complexType><xs:sequence><xs:element name='Part' maxOccurs='unbounded'><xs:complexType>"
                        "<xs:sequence>";
    for (int i = 0; i < 2000; ++i) {
        schema += "<xs:element name='E" + QByteArray::number(i) + "' type='xs:string'/>";
    }
    schema += "</xs:sequence></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element></xs:schema>";
    QByteArray report = "<Report>";
    for (int i = 0; i < 2000; ++i) {
        report += "<Part/>";
    }
    const ReportPage page
        = pageOf(writtenFile(folder, report + "</Report>"), writtenFile(folder, schema, QStringLiteral("schema.xsd")));
    QCOMPARE(page.GetError(), QString());
    const QString html = page.ToHtml();
    QVERIFY2(html.size() < 10000000, qPrintable(QString::number(html.size())));
    QVERIFY(html.contains(QLatin1String("Missing: more than ")));
}

/// Nothing is missing, but to know that would take longer than anybody waits.
void TestReportPage::whatCouldNotBeToldIsSaid()
{
    const QTemporaryDir folder;
    QByteArray schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Report'>"
                        "<xs:complexType><xs:sequence><xs:element name='Part' maxOccurs='unbounded'><xs:complexType>"
                        "<xs:sequence>";
    for (int i = 0; i < 2000; ++i) {
        schema += "<xs:element name='E" + QByteArray::number(i) + "' type='xs:string' minOccurs='0'/>";
    }
    schema += "</xs:sequence></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element></xs:schema>";
    const QString schemaFile = writtenFile(folder, schema, QStringLiteral("schema.xsd"));
    const auto reportOf = [&folder](int parts) {
        return writtenFile(folder, "<Report>" + QByteArray("<Part/>").repeated(parts) + "</Report>");
    };
    QCOMPARE(ReportPage::LacksOf(schemaFile, reportOf(100)), QStringList());
    const QString sentence = QStringLiteral("Whether anything is missing could not be told for all of the report");
    const QString report = reportOf(3000);
    QCOMPARE(ReportPage::LacksOf(schemaFile, report), QStringList(sentence));
    QVERIFY(pageOf(report, schemaFile).ToHtml().contains(sentence));
}

void TestReportPage::aUnitThatWasNeverFilledIsMarked_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("lacks");
    const QByteArray optional = "<xs:attribute name='Unit' type='xs:string'/>";
    const QByteArray required = "<xs:attribute name='Unit' type='xs:string' use='required'/>";
    const QStringList leftOver {QStringLiteral("Left over: 1")};
    const QStringList missing {QStringLiteral("Missing: 1")};
    QTest::newRow("optional") << optional << QByteArray("xs:string") << leftOver;
    QTest::newRow("required") << required << QByteArray("xs:string") << missing;
    QTest::newRow("filled") << required << QByteArray("dBm") << QStringList();
}

void TestReportPage::aUnitThatWasNeverFilledIsMarked()
{
    QFETCH(const QByteArray, declaration);
    QFETCH(const QByteArray, value);
    QFETCH(const QStringList, lacks);
    const QTemporaryDir folder;
    const QString schema = writtenFile(
        folder,
        "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Report'><xs:complexType>"
        "<xs:sequence><xs:element name='Level'><xs:complexType><xs:simpleContent><xs:extension base='xs:double'>"
            + declaration
            + "</xs:extension></xs:simpleContent></xs:complexType></xs:element></xs:sequence></xs:complexType>"
              "</xs:element></xs:schema>",
        QStringLiteral("schema.xsd"));
    const QString report = writtenFile(folder, "<Report><Level Unit='" + value + "'>17</Level></Report>");
    QCOMPARE(ReportPage::LacksOf(schema, report), lacks);
    const QDomDocument document = documentOf(pageOf(report, schema).ToHtml());
    QCOMPARE(int(textsOfClass(document, QStringLiteral("leftover")).size()),
             int(lacks.filter(QStringLiteral("Left")).size()));
    QCOMPARE(int(textsOfClass(document, QStringLiteral("missing")).size()),
             int(lacks.filter(QStringLiteral("Missing")).size()));
}

QTEST_MAIN(TestReportPage)
#include "tst_reportpage.moc"
