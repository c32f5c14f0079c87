#include <QtTest>

#include <cmath>

#include <QFile>
#include <QTemporaryDir>
#include <QXmlSimpleReader>

#include <xmlhelper/xmlhelper.h>
#include <xmlhelper/xmlschemahandler.h>

#include "countedcalls.h"
#include "inputs.h"
#include "observers.h"

QT_WARNING_DISABLE_DEPRECATED

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Filling)

/// What the library does must grow with the work and not faster. Counted are calls, never time: a count is the same on
/// every machine and at every load.
class TestPerformanceCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWhatItShallCount();
    void announcesEveryElementAsOftenAsTheWalkSays_data();
    void announcesEveryElementAsOftenAsTheWalkSays();
    void visitsNodesInProportionToTheSchema_data();
    void visitsNodesInProportionToTheSchema();
    void visitsNodesInProportionToTheIncludedFiles();
    void visitsNodesInProportionToTheSearchedContent_data();
    void visitsNodesInProportionToTheSearchedContent();
    void visitsNodesInProportionToTheContentRead();
    void asksForOccurrencesWithoutLookingAtEveryOwner();
    void asksForOccurrencesWithoutLookingAtEveryCopy();
    void looksAtEveryContentElementOnce();
    void savesAWriterInOneCall();
    void savesAReportInOneCall();
    void readsASchemaInAFewCalls();
};

namespace {

/// Twice the input may cost 2 to the power of 1.02 times the visits.
const double GreatestGrowth = std::pow(2.0, 1.02);

constexpr int Elements = 1000;
constexpr int Groups = Elements / (ValuesOfGroup + 1);

/// A file holds about a megabyte with so many elements.
constexpr int ElementsOfMegabyte = 25000;

QString writtenFile(const QTemporaryDir& folder, const QString& name, const QByteArray& content)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        return QString();
    }
    return file.fileName();
}

/// The visits of one job; negative when it fails.
long visitsOfJob(Shape shape, Filling filling, int elements)
{
    const QTemporaryDir folder;
    const QString schema = writtenFile(folder, QStringLiteral("schema.xsd"), schemaText(shape, elements));
    ReportFiller filler(filling);
    const long before = nodeVisits();
    const bool isWritten = filler.Write(schema, folder.filePath(QStringLiteral("report.xml")));
    return isWritten ? nodeVisits() - before : -1;
}

/// The visits of reading a schema in which one element waits for a part of every included file.
long visitsOfIncludedFiles(int files)
{
    const QTemporaryDir folder;
    QString references;
    QString includes;
    for (int i = 0; i < files; ++i) {
        const QString part = QStringLiteral("part%1").arg(i, 4, 10, QLatin1Char('0'));
        const QString declaration = QStringLiteral("<xs:schema><xs:element name='%1'><xs:complexType>"
                                                   "<xs:element name='leaf' type='xs:string' minOccurs='5'/>"
                                                   "</xs:complexType></xs:element></xs:schema>")
                                        .arg(part);
        writtenFile(folder, part + QStringLiteral(".xsd"), declaration.toUtf8());
        references += QStringLiteral("<xs:element ref='%1'/>").arg(part);
        includes += QStringLiteral("<xs:include schemaLocation='%1.xsd'/>").arg(part);
    }
    const QString schema = QStringLiteral("<xs:schema><xs:element name='whole'><xs:complexType>%1</xs:complexType>"
                                          "</xs:element>%2</xs:schema>")
                               .arg(references, includes);
    const QString schemaPath = writtenFile(folder, QStringLiteral("schema.xsd"), schema.toUtf8());
    CountingObserver observer;
    XmlSchemaHandler handler(&observer, schemaPath);
    QXmlSimpleReader parser;
    const long before = nodeVisits();
    const bool isRead = handler.ReadFile(schemaPath, parser);
    const long visits = nodeVisits() - before;
    const QDomElement whole = handler.GetDocument()->documentElement();
    return isRead && whole.elementsByTagName(QStringLiteral("leaf")).count() == 5 * files ? visits : -1;
}

struct NamedFilling
{
    const char* name;
    Filling filling;
};

constexpr NamedFilling Fillings[]
    = {{"unfilled", Filling::Unfilled}, {"half filled", Filling::HalfFilled}, {"filled", Filling::Filled}};

QDomDocument documentOf(const QByteArray& content)
{
    QDomDocument document;
    document.setContent(content);
    return document;
}

/// The visits of a search for a name that is there once in every group.
long visitsOfSearch(int bytes, const QString& owner)
{
    CountingObserver observer;
    XMLReader reader(&observer, nullptr);
    const QByteArray content = reportText(bytes);
    reader.SetXmlContent(documentOf(content));
    const long before = nodeVisits();
    const auto found = static_cast<int>(reader.GetElement(QStringLiteral("Level"), owner)->size());
    const int expected = owner.isEmpty() ? static_cast<int>(content.count("<Level ")) : 1;
    return found == expected ? nodeVisits() - before : -1;
}

QByteArray schemaOf(const QString& declarations)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Survey'>"
                          "<xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType></xs:element></xs:schema>")
        .arg(declarations)
        .toUtf8();
}

/// A builder whose walk has ended on the last element of its schema and which therefore acts on it.
class OpenReport
{
public:
    explicit OpenReport(const QString& declarations)
        : m_builder(&m_observer)
    {
        const QString schema = writtenFile(m_folder, QStringLiteral("schema.xsd"), schemaOf(declarations));
        m_builder.CreateXmlFromSchema(schema, m_folder.filePath(QStringLiteral("report.xml")), false);
    }

    /// The visits of one question; the first of all may have to look around.
    long VisitsOfQuestion()
    {
        m_builder.SetElementMaxOccurs(QStringLiteral("A"), 1);
        m_observer = CountingObserver();
        const long before = nodeVisits();
        m_builder.SetElementMaxOccurs(QStringLiteral("B"), 1);
        const bool isRefused = m_observer.Count(XmlEvent::EVENT_ERROR) > 0;
        return isRefused ? -1 : nodeVisits() - before;
    }

    XmlCreateReport& Builder() { return m_builder; }

private:
    QTemporaryDir m_folder;
    CountingObserver m_observer;
    XmlCreateReport m_builder;
};

/// Containers that all declare the names "A" and "B".
QString stations(int count)
{
    QString declarations;
    for (int i = 0; i < count; ++i) {
        declarations += QStringLiteral("<xs:element name='Station%1'><xs:complexType><xs:sequence>"
                                       "<xs:element name='A' type='xs:double' maxOccurs='5'/>"
                                       "<xs:element name='B' type='xs:double' maxOccurs='5'/>"
                                       "</xs:sequence></xs:complexType></xs:element>")
                            .arg(i);
    }
    return declarations;
}

} // namespace

/// Without this every bound would be kept by a counter that does not count.
void TestPerformanceCounts::countsWhatItShallCount()
{
    const QDomDocument document = documentOf("<a><b/></a>");
    const long visits = nodeVisits();
    QVERIFY(document.documentElement().firstChild().nextSibling().isNull());
    QCOMPARE(nodeVisits() - visits, 2L);

    const QTemporaryDir folder;
    const long writes = writeCalls();
    const long reads = readCalls();
    QFile file(writtenFile(folder, QStringLiteral("file"), "text"));
    QCOMPARE(writeCalls() - writes, 1L);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("text"));
    QVERIFY(readCalls() > reads);
}

void TestPerformanceCounts::announcesEveryElementAsOftenAsTheWalkSays_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<Filling>("filling");
    QTest::addColumn<int>("announced");
    QTest::addColumn<int>("errors");

    // The root, and every value once.
    constexpr int FlatValues = 1 + Elements;
    // The root, each container twice because it goes on probation at the top level, and every value once.
    constexpr int FilledGroups = 1 + Groups * (2 + ValuesOfGroup);
    // The root, the first container twice, and then each container with its first value, which removes it: the walk
    // goes on below the top level, where containers on probation are announced once.
    constexpr int UnfilledGroups = 1 + 1 + Groups * 2;

    QTest::newRow("optional-values-filled") << Shape::Flat << Filling::Filled << FlatValues << 0;
    QTest::newRow("optional-values-unfilled") << Shape::Flat << Filling::Unfilled << FlatValues << 0;
    QTest::newRow("required-values-filled") << Shape::RequiredFlat << Filling::Filled << FlatValues << 0;
    QTest::newRow("alternatives-filled") << Shape::Choice << Filling::Filled << FlatValues << 0;
    // Each alternative has no limits of its own, which is reported before it is removed.
    QTest::newRow("alternatives-unfilled") << Shape::Choice << Filling::Unfilled << FlatValues << Elements;
    QTest::newRow("groups-filled") << Shape::Groups << Filling::Filled << FilledGroups << 0;
    QTest::newRow("groups-unfilled") << Shape::Groups << Filling::Unfilled << UnfilledGroups << 0;
    QTest::newRow("shared-names-filled") << Shape::SharedNames << Filling::Filled << FilledGroups << 0;
    QTest::newRow("shared-names-unfilled") << Shape::SharedNames << Filling::Unfilled << UnfilledGroups << 0;
    QTest::newRow("named-types-filled") << Shape::NamedTypes << Filling::Filled << FilledGroups << 0;
    QTest::newRow("named-types-unfilled") << Shape::NamedTypes << Filling::Unfilled << UnfilledGroups << 0;
}

void TestPerformanceCounts::announcesEveryElementAsOftenAsTheWalkSays()
{
    QFETCH(Shape, shape);
    QFETCH(Filling, filling);
    const QTemporaryDir folder;
    const QString schema = writtenFile(folder, QStringLiteral("schema.xsd"), schemaText(shape, Elements));
    ReportFiller filler(filling);
    QVERIFY(filler.Write(schema, folder.filePath(QStringLiteral("report.xml"))));
    QTEST(filler.Count(XmlEvent::EVENT_ELEM_BEGIN), "announced");
    QTEST(filler.Count(XmlEvent::EVENT_ERROR), "errors");
    QCOMPARE(filler.Count(XmlEvent::EVENT_DOC_BEGIN), 1);
    QCOMPARE(filler.Count(XmlEvent::EVENT_DOC_END), 1);
}

void TestPerformanceCounts::visitsNodesInProportionToTheSchema_data()
{
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<Filling>("filling");
    for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::SharedNames, Shape::NamedTypes, Shape::Choice,
                              Shape::RequiredFlat, Shape::RequiredGroups}) {
        for (const NamedFilling& named : Fillings) {
            QTest::addRow("%s, %s", qPrintable(toText(shape)), named.name) << shape << named.filling;
        }
    }
}

void TestPerformanceCounts::visitsNodesInProportionToTheSchema()
{
    QFETCH(Shape, shape);
    QFETCH(Filling, filling);
    const long once = visitsOfJob(shape, filling, Elements);
    const long twice = visitsOfJob(shape, filling, 2 * Elements);
    QVERIFY(once > 0 && twice > 0);
    const double growth = static_cast<double>(twice) / static_cast<double>(once);
    QVERIFY2(growth <= GreatestGrowth, qPrintable(QString::number(growth)));
}

/// What waits for many files must not be measured at the end of each.
void TestPerformanceCounts::visitsNodesInProportionToTheIncludedFiles()
{
    const long once = visitsOfIncludedFiles(100);
    const long twice = visitsOfIncludedFiles(200);
    QVERIFY(once > 0 && twice > 0);
    const double growth = static_cast<double>(twice) / static_cast<double>(once);
    QVERIFY2(growth <= GreatestGrowth, qPrintable(QString::number(growth)));
}

void TestPerformanceCounts::visitsNodesInProportionToTheSearchedContent_data()
{
    QTest::addColumn<QString>("owner");
    QTest::newRow("in-the-whole-content") << QString();
    QTest::newRow("below-the-first-element-of-a-name") << QStringLiteral("Station");
}

void TestPerformanceCounts::visitsNodesInProportionToTheSearchedContent()
{
    QFETCH(QString, owner);
    const long once = visitsOfSearch(100000, owner);
    const long twice = visitsOfSearch(200000, owner);
    QVERIFY(once > 0 && twice > 0);
    // Below the first element of a name there is one group, however many follow it.
    const double greatest = owner.isEmpty() ? GreatestGrowth : 1;
    QVERIFY(static_cast<double>(twice) / static_cast<double>(once) <= greatest);
}

void TestPerformanceCounts::visitsNodesInProportionToTheContentRead()
{
    const auto visitsOfReading = [](int bytes) {
        CountingObserver observer;
        XMLReader reader(&observer, nullptr);
        reader.SetXmlContent(documentOf(reportText(bytes)));
        const long before = nodeVisits();
        return reader.ParseXml() ? nodeVisits() - before : -1;
    };
    const long once = visitsOfReading(100000);
    const long twice = visitsOfReading(200000);
    QVERIFY(once > 0 && twice > 0);
    QVERIFY(static_cast<double>(twice) / static_cast<double>(once) <= GreatestGrowth);
}

void TestPerformanceCounts::asksForOccurrencesWithoutLookingAtEveryOwner()
{
    const long few = OpenReport(stations(10)).VisitsOfQuestion();
    const long many = OpenReport(stations(1000)).VisitsOfQuestion();
    QVERIFY(few >= 0);
    QCOMPARE(many, few);
}

void TestPerformanceCounts::asksForOccurrencesWithoutLookingAtEveryCopy()
{
    const QString declarations = QStringLiteral("<xs:element name='A' type='xs:double' maxOccurs='unbounded'/>"
                                                "<xs:element name='B' type='xs:double' maxOccurs='unbounded'/>");
    OpenReport alone(declarations);
    OpenReport copied(declarations);
    copied.Builder().SetElementMaxOccurs(QStringLiteral("B"), Elements);
    const long few = alone.VisitsOfQuestion();
    QVERIFY(few >= 0);
    QCOMPARE(copied.VisitsOfQuestion(), few);
}

void TestPerformanceCounts::looksAtEveryContentElementOnce()
{
    const QTemporaryDir folder;
    const QByteArray content = reportText(100000);
    const auto elements = static_cast<int>(content.count("</"));
    CountingObserver observer;
    XMLReader reader(&observer, nullptr);
    QVERIFY(reader.SetXmlContent(writtenFile(folder, QStringLiteral("content.xml"), content)));
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Count(XmlEvent::EVENT_ELEM_BEGIN), elements);
    QCOMPARE(observer.Count(XmlEvent::EVENT_ELEM_END), elements);
}

void TestPerformanceCounts::savesAWriterInOneCall()
{
    const QTemporaryDir folder;
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(folder.filePath(QStringLiteral("written.xml")), QStringLiteral("Survey")));
    for (const ReportElement& element : reportElements(Shape::RequiredFlat, ElementsOfMegabyte)) {
        QVERIFY(writer.CreateXmlElement(element.name, element.text, false));
    }
    const long before = writeCalls();
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(writeCalls() - before, 1L);
    QVERIFY(QFileInfo(folder.filePath(QStringLiteral("written.xml"))).size() > 900000);
}

void TestPerformanceCounts::savesAReportInOneCall()
{
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report.xml"));
    const QString schema
        = writtenFile(folder, QStringLiteral("schema.xsd"), schemaText(Shape::RequiredFlat, ElementsOfMegabyte));
    ReportFiller filler;
    const long before = writeCalls();
    QVERIFY(filler.Write(schema, report));
    QCOMPARE(writeCalls() - before, 1L);
    QVERIFY(QFileInfo(report).size() > 900000);
}

/// The content, the end of the file, and what Qt looks up on the way.
void TestPerformanceCounts::readsASchemaInAFewCalls()
{
    const QTemporaryDir folder;
    const QByteArray content = schemaText(Shape::RequiredFlat, ElementsOfMegabyte);
    QVERIFY(content.size() > 1000000);
    const QString schema = writtenFile(folder, QStringLiteral("schema.xsd"), content);
    ReportFiller filler;
    const long before = readCalls();
    QVERIFY(filler.Write(schema, folder.filePath(QStringLiteral("report.xml"))));
    QVERIFY2(readCalls() - before <= 4, qPrintable(QString::number(readCalls() - before)));
}

QTEST_MAIN(TestPerformanceCounts)
#include "tst_performance_counts.moc"
