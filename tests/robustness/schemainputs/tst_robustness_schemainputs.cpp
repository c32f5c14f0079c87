#include <QtTest>

#include <algorithm>
#include <memory>

#include <QDir>
#include <QTemporaryDir>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlcreatereport.h>

#include "confined.h"
#include "cputime.h"
#include "domtext.h"
#include "hostilecontent.h"
#include "scriptedobserver.h"
#include "smallstack.h"
#include "tracecollector.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

QT_WARNING_DISABLE_DEPRECATED

/// Whatever a schema holds or is, the builder comes to its end, says by its result whether it could be read, and leaves
/// a file.
class TestRobustnessSchemaInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsWhatTheParserTakes_data();
    void readsWhatTheParserTakes();
    void goesOnWithoutABrokenIncludedFile_data();
    void goesOnWithoutABrokenIncludedFile();
    void takesAnythingButARegularFileForMissing_data();
    void takesAnythingButARegularFileForMissing();
    void includesFilesOnly_data();
    void includesFilesOnly();
    void readsNamesOfAnyKind_data();
    void readsNamesOfAnyKind();
    void readsFacetsOfAnyKind_data();
    void readsFacetsOfAnyKind();
    void readsNumbersOfOccurrencesOfAnyKind_data();
    void readsNumbersOfOccurrencesOfAnyKind();
    void readsTagsInAnyPlaceWithAnyAttributes_data();
    void readsTagsInAnyPlaceWithAnyAttributes();
    void fillsAnElementOfManyValues();

private:
    QString pathOf(const QString& name) const { return QDir(m_pFolder->path()).filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const;
    QString writeSchema(const QString& declarations) const;
    double fill(int values) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

namespace {

struct Outcome
{
    bool result = false;
    QDomDocument report;
    bool isReportThere = false;
    bool isReportReadable = false; ///< holds no element, or a parser reads it
    QString traces; ///< but those of characters that were dropped
};

/// Offers every element a value of each kind, each of its attributes too, and a second occurrence.
void answer(XmlCreateReport& builder, ElemBeginEvent& event, int& copies)
{
    const QXmlAttributes attributes = event.GetElementAttributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.qName(i);
        if (name == QLatin1String("type")) {
            continue; // The element's own, without which it takes no value.
        }
        builder.SetAttributeValue(name, 1.5);
        builder.SetAttributeValue(name, 1);
        builder.SetAttributeValue(name, QDateTime(QDate(2026, 1, 2), QTime(3, 4)));
        builder.SetAttributeValue(name, QStringLiteral("x"));
    }
    if (++copies < 100) {
        builder.SetElementMaxOccurs(event.GetElementName(), 2);
    }
    builder.SetXmlValue(1.5);
    builder.SetXmlValue(1);
    builder.SetXmlValue(true);
    builder.SetXmlValue(QDateTime(QDate(2026, 1, 2), QTime(3, 4)));
    builder.SetXmlValue(QTime(3, 4));
    builder.SetXmlValue(QStringLiteral("x"));
}

bool isHoldingElements(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && file.readAll().count('<') > 1; // More than the declaration.
}

QString tracesOfFailures(const TraceCollector& traces)
{
    QStringList messages;
    for (const TraceCollector::Trace& trace : traces.Traces()) {
        if (!trace.message.contains(QStringLiteral("XML cannot carry"))) {
            messages.append(trace.message);
        }
    }
    return messages.join(QLatin1Char('\n'));
}

/// Builds a report from the file called @p schema, on a small stack.
Outcome build(const QString& schema, const QString& report, bool isAnswering = true)
{
    Outcome outcome;
    QFile::remove(report);
    TraceCollector traces;
    runOnSmallStack([&] {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        int copies = 0;
        if (isAnswering) {
            observer.OnEveryElement([&](ElemBeginEvent& event) { answer(builder, event, copies); });
        }
        outcome.result = builder.CreateXmlFromSchema(schema, report, false);
    });
    outcome.traces = tracesOfFailures(traces);
    outcome.isReportThere = QFile::exists(report);
    outcome.report = documentInFile(report);
    outcome.isReportReadable = !isHoldingElements(report) || !outcome.report.documentElement().isNull();
    return outcome;
}

bool isTakenByTheParser(const QString& fileName)
{
    QFile file(fileName);
    QXmlDefaultHandler nobody;
    QXmlSimpleReader parser;
    parser.setContentHandler(&nobody);
    return parser.parse(QXmlInputSource(&file));
}

QString escaped(const QString& text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

/// Qt 6, unlike other parsers, reads no document with names that are very long or begin with a colon.
bool isNameForTheReader(const QString& name)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    Q_UNUSED(name)
    return true;
#else
    return name.size() < 4096 && !name.startsWith(QLatin1Char(':'));
#endif
}

/// What is known to stop a schema that is sound XML.
QString missingTrace()
{
    return QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates...");
}

const char SoundSchema[] = "<xs:schema><xs:element name='root'><xs:complexType>"
                           "<xs:element name='leaf' type='xs:string'/></xs:complexType></xs:element></xs:schema>";

} // namespace

void TestRobustnessSchemaInputs::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_pFolder->path()).mkdir(QStringLiteral("inner")));
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(pathOf(QStringLiteral("pipe.xsd"))).constData(), 0600), 0);
#endif
}

QString TestRobustnessSchemaInputs::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(pathOf(name));
    file.remove(); // Some file systems wait for the disk when a file is written over.
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

QString TestRobustnessSchemaInputs::writeSchema(const QString& declarations) const
{
    const QString text = QStringLiteral("<xs:schema>%1</xs:schema>").arg(declarations);
    return write(QStringLiteral("schema.xsd"), text.toUtf8());
}

void TestRobustnessSchemaInputs::readsWhatTheParserTakes_data()
{
    addRowsOfHostileContent();
}

void TestRobustnessSchemaInputs::readsWhatTheParserTakes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Verdict, verdict);
    const QString schema = write(QStringLiteral("schema.xsd"), bytes);
    const Outcome outcome = build(schema, pathOf(QStringLiteral("report.xml")));
    QCOMPARE(outcome.result, verdict == Verdict::Tolerated ? isTakenByTheParser(schema) : verdict == Verdict::Sound);
    QVERIFY(outcome.isReportThere);
    QVERIFY(outcome.report.documentElement().isNull());
    QCOMPARE(outcome.traces, QString());

    // The next builder knows nothing of it.
    const Outcome next = build(write(QStringLiteral("schema.xsd"), SoundSchema), pathOf(QStringLiteral("report.xml")));
    QVERIFY(next.result);
    QCOMPARE(next.report.documentElement().firstChildElement(QStringLiteral("leaf")).text(), QStringLiteral("x"));
}

void TestRobustnessSchemaInputs::goesOnWithoutABrokenIncludedFile_data()
{
    addRowsOfHostileContent();
}

void TestRobustnessSchemaInputs::goesOnWithoutABrokenIncludedFile()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!write(QStringLiteral("part.xsd"), bytes).isEmpty());
    const QString schema = writeSchema(QStringLiteral("<xs:include schemaLocation='part.xsd'/>"
                                                      "<xs:element name='root' type='xs:string'/>"));
    const Outcome outcome = build(schema, pathOf(QStringLiteral("report.xml")));
    QVERIFY(outcome.result);
    QCOMPARE(outcome.report.documentElement().tagName(), QStringLiteral("root"));
    QCOMPARE(outcome.report.documentElement().text(), QStringLiteral("x"));
    QCOMPARE(outcome.traces, QString());
}

void TestRobustnessSchemaInputs::takesAnythingButARegularFileForMissing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no-file") << QStringLiteral("missing.xsd");
    QTest::newRow("folder") << QStringLiteral("inner");
    QTest::newRow("name-too-long-for-any-file") << QString(100000, QLatin1Char('x'));
    QTest::newRow("address-in-the-web") << QStringLiteral("http://127.0.0.1:9/schema.xsd");
#ifdef Q_OS_UNIX
    QTest::newRow("pipe-without-writer") << QStringLiteral("pipe.xsd");
    QTest::newRow("pipe-by-back-slashes") << QStringLiteral(".\\pipe.xsd");
    QTest::newRow("empty-device") << QStringLiteral("/dev/null");
    QTest::newRow("device-without-end") << QStringLiteral("/dev/zero");
#endif
}

void TestRobustnessSchemaInputs::takesAnythingButARegularFileForMissing()
{
    QFETCH(QString, name);
    const Outcome outcome = build(pathOf(name), pathOf(QStringLiteral("report.xml")));
    QVERIFY(!outcome.result);
    QVERIFY(outcome.isReportThere);
    QVERIFY(outcome.report.documentElement().isNull());
}

void TestRobustnessSchemaInputs::includesFilesOnly_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("file-of-the-folder") << QStringLiteral("part.xsd") << true;
    QTest::newRow("file-of-the-folder-above-the-inner-one") << QStringLiteral("inner/../part.xsd") << true;
    QTest::newRow("file-by-back-slashes") << QStringLiteral("inner\\..\\part.xsd") << true;
    QTest::newRow("file-of-the-folder-above") << QStringLiteral("../part.xsd") << false;
    QTest::newRow("folder-far-above-the-top")
        << QStringLiteral("../").repeated(1000) + QStringLiteral("part.xsd") << false;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("blank") << QStringLiteral(" ") << false;
    QTest::newRow("folder") << QStringLiteral("inner") << false;
    QTest::newRow("very-long-name") << QString(100000, QLatin1Char('x')) << false;
    QTest::newRow("address-in-the-web") << QStringLiteral("http://127.0.0.1:9/part.xsd") << false;
    QTest::newRow("address-of-a-file") << QStringLiteral("file:part.xsd") << false;
#ifdef Q_OS_UNIX
    QTest::newRow("absolute-name-counts-from-the-folder") << QStringLiteral("/etc/passwd") << false;
    QTest::newRow("pipe-without-writer") << QStringLiteral("pipe.xsd") << false;
    QTest::newRow("device-without-end") << QStringLiteral("../").repeated(64) + QStringLiteral("dev/zero") << false;
#endif
}

void TestRobustnessSchemaInputs::includesFilesOnly()
{
    QFETCH(QString, location);
    QFETCH(bool, isFound);
    QVERIFY(!write(QStringLiteral("part.xsd"), "<xs:schema><xs:element name='part'/></xs:schema>").isEmpty());
    const QString schema = writeSchema(
        QStringLiteral("<xs:include schemaLocation='%1'/><xs:element name='root'><xs:complexType>"
                       "<xs:element name='leaf' type='xs:string'/><xs:element ref='part'/></xs:complexType>"
                       "</xs:element>")
            .arg(location));
    const Outcome outcome = build(schema, pathOf(QStringLiteral("report.xml")));
    QCOMPARE(outcome.result, isFound);
    QCOMPARE(outcome.traces, isFound ? QString() : missingTrace());
    QCOMPARE(!outcome.report.documentElement().firstChildElement(QStringLiteral("part")).isNull(), isFound);
}

void TestRobustnessSchemaInputs::readsNamesOfAnyKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("name-of-a-carrier") << QStringLiteral("dummy");
    QTest::newRow("name-of-a-type-annotation") << QStringLiteral("type");
    QTest::newRow("name-of-a-default-annotation") << QStringLiteral("default");
    QTest::newRow("name-of-a-range-facet") << QStringLiteral("minInclusive");
    QTest::newRow("name-of-an-enumeration-value") << QStringLiteral("enumeration1");
    QTest::newRow("name-that-is-part-of-all-facets") << QStringLiteral("clusive");
    QTest::newRow("name-of-the-lost") << QStringLiteral("scheisse");
    QTest::newRow("name-of-one-letter") << QStringLiteral("e");
    QTest::newRow("name-of-a-hundred-thousand-letters") << QString(100000, QLatin1Char('x'));
    QTest::newRow("name-beyond-ascii") << QStringLiteral("\u00E4\u20AC").left(1);
    QTest::newRow("name-with-a-prefix") << QStringLiteral("p:name");
    QTest::newRow("name-of-a-schema-tag") << QStringLiteral("xs:element");
    QTest::newRow("name-of-a-text") << QStringLiteral("#text");
    QTest::newRow("name-with-colons-only") << QStringLiteral("::");
    QTest::newRow("name-with-blanks") << QStringLiteral("a b");
    QTest::newRow("blank") << QStringLiteral(" ");
    QTest::newRow("nothing") << QString();
    QTest::newRow("name-that-begins-with-a-digit") << QStringLiteral("1");
    QTest::newRow("markup") << QStringLiteral("<a>&'\"");
    QTest::newRow("name-with-a-control-character") << QStringLiteral("a\u0001b");
    QTest::newRow("name-with-a-line-feed") << QStringLiteral("a\nb");
}

/// The name stands for a type, an attribute, a global and a local element at once, and is referred to as each of them.
void TestRobustnessSchemaInputs::readsNamesOfAnyKind()
{
    QFETCH(QString, name);
    const QString n = escaped(name);
    const QStringList definitions {
        QStringLiteral("<xs:element name='%1' type='xs:double' default='1'/>"),
        QStringLiteral("<xs:attribute name='%1' type='xs:string'/>"),
        QStringLiteral("<xs:complexType name='%1'><xs:element name='inner' type='xs:string'/></xs:complexType>"),
        QStringLiteral("<xs:simpleType name='%1'><xs:restriction base='xs:int'><xs:minInclusive value='1'/>"
                       "</xs:restriction></xs:simpleType>"),
    };
    const QString users = QStringLiteral("<xs:element name='user' type='%1'/><xs:element ref='%1' minOccurs='0'/>"
                                         "<xs:attribute name='%1' type='xs:int'/><xs:attribute ref='%1'/>"
                                         "<xs:element name='%1' type='%1' minOccurs='2' maxOccurs='3'/>"
                                         "<xs:element name='%1'><xs:complexType><xs:extension base='%1'/>"
                                         "</xs:complexType></xs:element>");
    const QString root = QStringLiteral("<xs:element name='zzroot'><xs:complexType>%1</xs:complexType></xs:element>");
    for (const QString& definition : definitions) {
        for (const bool isDefinedFirst : {true, false}) {
            const QString used = root.arg(users);
            const QString schema
                = QString(isDefinedFirst ? definition + used : used + definition).replace(QLatin1String("%1"), n);
            const QString fileName = writeSchema(schema);
            const Outcome outcome = build(fileName, pathOf(QStringLiteral("report.xml")));
            QVERIFY(outcome.isReportThere);
            // What makes a schema fail that the parser takes is traced.
            QCOMPARE(outcome.traces.isEmpty(), outcome.result || !isTakenByTheParser(fileName));
            QVERIFY(outcome.isReportReadable || !isNameForTheReader(name));
        }
    }
}

void TestRobustnessSchemaInputs::readsFacetsOfAnyKind_data()
{
    QTest::addColumn<QString>("least");
    QTest::addColumn<QString>("greatest");
    QTest::newRow("not-a-number") << QStringLiteral("NaN") << QStringLiteral("NaN");
    QTest::newRow("infinite") << QStringLiteral("-INF") << QStringLiteral("INF");
    QTest::newRow("beyond-every-number") << QStringLiteral("-1e400") << QStringLiteral("1e400");
    QTest::newRow("beyond-32-bits") << QStringLiteral("-99999999999") << QStringLiteral("99999999999");
    QTest::newRow("least-above-greatest") << QStringLiteral("2") << QStringLiteral("1");
    QTest::newRow("the-mark-of-no-bound") << QStringLiteral("65535") << QStringLiteral("65535");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("words") << QStringLiteral("few") << QStringLiteral("many");
    QTest::newRow("hundred-thousand-digits") << QString(100000, QLatin1Char('1')) << QString(100000, QLatin1Char('9'));
    QTest::newRow("control-character") << QStringLiteral("\u0001") << QStringLiteral("\u0001");
}

void TestRobustnessSchemaInputs::readsFacetsOfAnyKind()
{
    QFETCH(QString, least);
    QFETCH(QString, greatest);
    QString declarations;
    QString elements;
    for (const char* const type : {"xs:double", "xs:int", "xs:integer", "xs:short", "xs:string", "xs:boolean"}) {
        const QString name = QString::fromLatin1(type).mid(3);
        const QString facets = QStringLiteral("<xs:restriction base='%1'><xs:minInclusive value='%2'/>"
                                              "<xs:maxInclusive value='%3'/><xs:minExclusive value='%2'/>"
                                              "<xs:maxExclusive value='%3'/><xs:enumeration value='%2'/>"
                                              "<xs:enumeration value='%3'/></xs:restriction>")
                                   .arg(QString::fromLatin1(type), least, greatest);
        declarations += QStringLiteral("<xs:simpleType name='T-%1'>%2</xs:simpleType>"
                                       "<xs:attribute name='a-%1'><xs:simpleType>%2</xs:simpleType></xs:attribute>")
                            .arg(name, facets);
        elements += QStringLiteral("<xs:element name='e-%1' type='T-%1'/><xs:attribute ref='a-%1'/>").arg(name);
    }
    const Outcome outcome = build(
        writeSchema(
            declarations
            + QStringLiteral("<xs:element name='root'><xs:complexType>%1</xs:complexType></xs:element>").arg(elements)),
        pathOf(QStringLiteral("report.xml")));
    QVERIFY(outcome.result);
    QCOMPARE(outcome.traces, QString());
    QVERIFY(outcome.isReportReadable);
    QCOMPARE(outcome.report.documentElement().elementsByTagName(QStringLiteral("e-double")).count(), 1);
}

void TestRobustnessSchemaInputs::readsNumbersOfOccurrencesOfAnyKind_data()
{
    QTest::addColumn<QString>("minOccurs");
    QTest::addColumn<QString>("maxOccurs");
    QTest::addColumn<int>("copies");
    // What is no number, as none in 32 bits is, counts as 0, which is laid out once.
    QTest::newRow("words") << QStringLiteral("few") << QStringLiteral("many") << 1;
    QTest::newRow("nothing") << QString() << QString() << 1;
    QTest::newRow("negative") << QStringLiteral("-2147483648") << QStringLiteral("-2147483648") << 1;
    QTest::newRow("the-mark-of-no-number") << QStringLiteral("-100") << QStringLiteral("-100") << 1;
    QTest::newRow("beyond-32-bits") << QStringLiteral("4294967297") << QStringLiteral("4294967297") << 1;
    QTest::newRow("fraction") << QStringLiteral("2.5") << QStringLiteral("2.5") << 1;
    QTest::newRow("unbounded-minimum") << QStringLiteral("unbounded") << QStringLiteral("unbounded") << 1;
    QTest::newRow("blanks-around") << QStringLiteral(" 2 ") << QStringLiteral(" 3 ") << 2;
    QTest::newRow("minimum-above-maximum") << QStringLiteral("3") << QStringLiteral("2") << 3;
    QTest::newRow("nothing-at-most") << QStringLiteral("0") << QStringLiteral("0") << 1;
}

void TestRobustnessSchemaInputs::readsNumbersOfOccurrencesOfAnyKind()
{
    QFETCH(QString, minOccurs);
    QFETCH(QString, maxOccurs);
    QFETCH(int, copies);
    // Required by its content: the walk takes nothing away that it would not fill.
    const QString schema = writeSchema(
        QStringLiteral("<xs:element name='root'><xs:complexType><xs:element name='e' type='xs:double' minOccurs='%1' "
                       "maxOccurs='%2'/></xs:complexType></xs:element>")
            .arg(minOccurs, maxOccurs));
    int announced = 0;
    bool result = false;
    runOnSmallStack([&] {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        observer.OnElement(QStringLiteral("e"), [&](ElemBeginEvent&) {
            ++announced;
            builder.SetXmlValue(1.5);
        });
        result = builder.CreateXmlFromSchema(schema, pathOf(QStringLiteral("report.xml")), false);
    });
    QVERIFY(result);
    QCOMPARE(announced, copies);
}

void TestRobustnessSchemaInputs::readsTagsInAnyPlaceWithAnyAttributes_data()
{
    QTest::addColumn<QString>("outer");
    QTest::addColumn<QString>("inner");
    const QStringList tags {QStringLiteral("include"),     QStringLiteral("complexType"), QStringLiteral("simpleType"),
                            QStringLiteral("element"),     QStringLiteral("attribute"),   QStringLiteral("restriction"),
                            QStringLiteral("enumeration"), QStringLiteral("extension"),   QStringLiteral("choice"),
                            QStringLiteral("sequence")};
    for (const QString& outer : tags) {
        for (const QString& inner : tags) {
            QTest::newRow(qPrintable(inner + QStringLiteral("-in-") + outer)) << outer << inner;
        }
    }
}

/// With none, one or several attributes, in every order that makes another one the first.
void TestRobustnessSchemaInputs::readsTagsInAnyPlaceWithAnyAttributes()
{
    QFETCH(QString, outer);
    QFETCH(QString, inner);
    const QStringList attributes {QString(),
                                  QStringLiteral(" name='n'"),
                                  QStringLiteral(" ref='n'"),
                                  QStringLiteral(" type='n'"),
                                  QStringLiteral(" base='n'"),
                                  QStringLiteral(" name='n' type='xs:int' minOccurs='2' maxOccurs='3' default='1'"),
                                  QStringLiteral(" type='later' minOccurs='2' name='n' base='xs:int'"),
                                  QStringLiteral(" base='xs:int' ref='later' type='later'"),
                                  QStringLiteral(" default='1' value='n' name='later'")};
#ifdef Q_OS_WIN
    constexpr bool areAllTried = false; // Each takes two files, which are slow there.
#else
    const bool areAllTried = !isSanitized(); // Else too many builders stay.
#endif
    for (int i = 0; i < attributes.size(); ++i) {
        for (int j = 0; j < attributes.size(); ++j) {
            if (!areAllTried && i != j) {
                continue;
            }
            const QString schema = QStringLiteral("<xs:%1%2><xs:%3%4/><xs:%3%4><xs:%3%2/></xs:%3></xs:%1>"
                                                  "<xs:element name='n'><xs:%1%4><xs:%3%2/></xs:%1></xs:element>"
                                                  "<xs:complexType name='later'><xs:element name='leaf'/>"
                                                  "</xs:complexType>")
                                       .arg(outer, attributes.at(i), inner, attributes.at(j));
            const Outcome outcome = build(writeSchema(schema), pathOf(QStringLiteral("report.xml")));
            QVERIFY2(outcome.isReportThere && outcome.isReportReadable, qPrintable(schema));
            // Whatever makes the schema fail is traced: all of it is sound XML.
            QVERIFY2(outcome.result || !outcome.traces.isEmpty(), qPrintable(schema));
        }
    }
}

/// Builds a report from one element with @p values values, of which it takes the last; gives the processor time; 0 when
/// that fails.
double TestRobustnessSchemaInputs::fill(int values) const
{
    QString enumeration;
    for (int i = 0; i < values; ++i) {
        enumeration += QStringLiteral("<xs:enumeration value='value%1'/>").arg(i);
    }
    const QString schema = writeSchema(
        QStringLiteral("<xs:simpleType name='S'><xs:restriction base='xs:string'>%1</xs:restriction></xs:simpleType>"
                       "<xs:element name='root'><xs:complexType><xs:element name='e' type='S'/></xs:complexType>"
                       "</xs:element>")
            .arg(enumeration));
    const QString report = pathOf(QStringLiteral("report.xml"));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("e"),
                       [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("value%1").arg(values - 1)); });
    const double begin = cpuSeconds();
    const bool isBuilt = builder.CreateXmlFromSchema(schema, report, false);
    const double seconds = cpuSeconds() - begin;
    const QDomElement filled = documentInFile(report).documentElement().firstChildElement(QStringLiteral("e"));
    const bool isFilled = filled.text() == QStringLiteral("value%1").arg(values - 1) && filled.attributes().isEmpty();
    return isBuilt && isFilled ? std::max(seconds, CpuTimeStep) : 0;
}

/// Ten times the values take ten times as long, and would take a hundred times if each were compared with all others.
void TestRobustnessSchemaInputs::fillsAnElementOfManyValues()
{
    const double few = fill(10000);
    const double many = fill(100000);
    QVERIFY(few > 0);
    QVERIFY(many > 0);
    qInfo("%.0f ms", many * 1000);
    QVERIFY2(many < 30 * few, qPrintable(QStringLiteral("%1 s and %2 s").arg(few).arg(many)));
}

QTEST_GUILESS_MAIN(TestRobustnessSchemaInputs)
#include "tst_robustness_schemainputs.moc"
