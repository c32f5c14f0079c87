#include <QtTest>

#include <memory>

#include <QTemporaryDir>

#include <valueframework/node.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/xmlwriter.h>

#include "answeredreport.h"
#include "domtext.h"
#include "strictreading.h"
#include "tracecollector.h"

/// What XML cannot carry, in every place where a text or a name from outside enters a document: the file can be read
/// by every parser, and the loss is traced.
class TestRobustnessBuilderTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void valuesKeepWhatXmlCanCarry_data() { addTexts(); }
    void valuesKeepWhatXmlCanCarry();
    void attributesKeepWhatXmlCanCarry_data() { addTexts(); }
    void attributesKeepWhatXmlCanCarry();
    void enumerationsCompareWhatXmlCanCarry();
    void refusedValuesAreNotTraced();
    void schemaFileNamesKeepWhatXmlCanCarry();
    void valuesOfTheSchemaKeepWhatXmlCanCarry_data();
    void valuesOfTheSchemaKeepWhatXmlCanCarry();
    void localNamesThatXmlForbidsFailTheSchema_data();
    void localNamesThatXmlForbidsFailTheSchema();
    void globalNamesThatXmlForbidsAreLeftOut();
    void whatALeftOutGlobalSaysGoesNowhere();

    void writerTextsKeepWhatXmlCanCarry_data() { addTexts(); }
    void writerTextsKeepWhatXmlCanCarry();
    void writerRefusesNamesThatXmlForbids_data();
    void writerRefusesNamesThatXmlForbids();
    void writerLeavesOutTreeItemsWithSuchNames();
    void writerTakesElementsNested512Deep();
    void savesTenMillionCharactersThatNeedEscaping();

private:
    static void addTexts();
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    /// Builds a report from a schema whose root holds @p declarations.
    bool create(IXMLHelper& observer, const std::function<void(XmlCreateReport&)>& take, const QString& declarations,
                const QString& globals = QString(), const char* schemaName = "schema.xsd") const;
    bool create(const QString& declarations, const QString& globals = QString()) const;
    QDomElement root() const { return documentInFile(path("written.xml")).documentElement(); }
    QString readError() const { return strictErrorOf(path("written.xml")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QString highHalf()
{
    return QString(QChar(0xD83D));
}

bool isDropTraced(const TraceCollector& traces, const char* place)
{
    return traces.Messages().contains(QLatin1String(place) + QStringLiteral(": XML cannot carry "));
}

} // namespace

void TestRobustnessBuilderTexts::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestRobustnessBuilderTexts::addTexts()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const QString ab = QStringLiteral("ab");
    QTest::newRow("null-character") << QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b") << ab;
    QTest::newRow("control-characters") << QStringLiteral("\u0001a\u0008\u000B\u001Fb\u001B") << ab;
    QTest::newRow("first-half-of-a-pair") << QStringLiteral("a") + highHalf() + QStringLiteral("b") << ab;
    QTest::newRow("second-half-of-a-pair") << QStringLiteral("ab") + QChar(0xDE00) << ab;
    QTest::newRow("fffe-and-ffff") << QChar(0xFFFE) + QStringLiteral("ab") + QChar(0xFFFF) << ab;
    QTest::newRow("nothing-that-can-be-kept") << QStringLiteral("\u0001") + highHalf() << QString();
    const QString representable = QString::fromUtf8("\t<&>\"' ]]> \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \xEF\xBF\xBD");
    QTest::newRow("all-that-can-be-kept") << representable << representable;
}

bool TestRobustnessBuilderTexts::create(IXMLHelper& observer, const std::function<void(XmlCreateReport&)>& take,
                                        const QString& declarations, const QString& globals,
                                        const char* schemaName) const
{
    QFile file(path(schemaName));
    const QString schema = QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>%1"
                                          "<xs:element name='report'><xs:complexType><xs:sequence>%2</xs:sequence>"
                                          "</xs:complexType></xs:element></xs:schema>")
                               .arg(globals, declarations);
    if (!file.open(QIODevice::WriteOnly) || file.write(schema.toUtf8()) < 0) {
        return false;
    }
    file.close();
    XmlCreateReport builder(&observer);
    take(builder);
    return builder.CreateXmlFromSchema(file.fileName(), path("written.xml"), false);
}

bool TestRobustnessBuilderTexts::create(const QString& declarations, const QString& globals) const
{
    ScriptedObserver observer;
    return create(
        observer, [](XmlCreateReport&) {}, declarations, globals);
}

void TestRobustnessBuilderTexts::valuesKeepWhatXmlCanCarry()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    const TraceCollector traces;
    ScriptedObserver observer;
    const auto answer = [&](XmlCreateReport& builder) {
        observer.OnElement(QStringLiteral("e"), [&](ElemBeginEvent&) { builder.SetXmlValue(text); });
    };
    QVERIFY(create(observer, answer, elementOfType("string")));
    QCOMPARE(readError(), QString());
    QCOMPARE(root().firstChildElement().text(), kept);
    QCOMPARE(isDropTraced(traces, "XmlCreateReport::SetXmlValue"), text != kept);
}

void TestRobustnessBuilderTexts::attributesKeepWhatXmlCanCarry()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    const TraceCollector traces;
    ScriptedObserver observer;
    const auto answer = [&](XmlCreateReport& builder) {
        observer.OnElement(QStringLiteral("e"),
                           [&](ElemBeginEvent&) { builder.SetAttributeValue(QStringLiteral("Unit"), text); });
    };
    QVERIFY(create(observer, answer, elementWithAttributes("Unit=xs:string")));
    QCOMPARE(readError(), QString());
    QCOMPARE(root().firstChildElement().attribute(QStringLiteral("Unit")), kept);
    QCOMPARE(isDropTraced(traces, "XmlCreateReport::SetAttributeValue"), text != kept);
}

void TestRobustnessBuilderTexts::enumerationsCompareWhatXmlCanCarry()
{
    ScriptedObserver observer;
    const auto answer = [&](XmlCreateReport& builder) {
        observer.OnElement(QStringLiteral("e"),
                           [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("A\u0001M")); });
    };
    QVERIFY(create(observer, answer, restrictedElement("string", "enumeration=AM enumeration=FM")));
    QCOMPARE(lineOf(root().firstChildElement()), QStringLiteral("<e> \"AM\" </e>"));
}

void TestRobustnessBuilderTexts::refusedValuesAreNotTraced()
{
    const TraceCollector traces;
    ScriptedObserver observer;
    const auto answer = [&](XmlCreateReport& builder) {
        observer.OnElement(QStringLiteral("e"),
                           [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("\u0001")); });
    };
    QVERIFY(create(observer, answer, elementOfType("double")));
    QCOMPARE(traces.Messages(), QString());
}

void TestRobustnessBuilderTexts::schemaFileNamesKeepWhatXmlCanCarry()
{
#ifdef Q_OS_WIN
    QSKIP("File names have no control characters here.");
#endif
    const TraceCollector traces;
    ScriptedObserver observer;
    QVERIFY(create(
        observer, [](XmlCreateReport&) {}, elementOfType("string"), QString(), "sche\x01ma.xsd"));
    QCOMPARE(readError(), QString());
    QCOMPARE(root().attribute(QStringLiteral("xsi:noNamespaceSchemaLocation")), path("schema.xsd"));
    QVERIFY(isDropTraced(traces, "XmlCreateReport::CreateXmlFromSchema"));
}

void TestRobustnessBuilderTexts::valuesOfTheSchemaKeepWhatXmlCanCarry_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("element");
    QTest::newRow("type-of-an-element") << QStringLiteral("<xs:element name='e' type='xs:dou\u0001ble'/>")
                                        << QStringLiteral("<e type=\"double\"/>");
    QTest::newRow("default-of-an-element")
        << QStringLiteral("<xs:element name='e' type='xs:double' default='1\u0001'/>")
        << QStringLiteral("<e default=\"1\" type=\"double\"/>");
    QTest::newRow("value-of-an-enumeration") << restrictedElement("string", "enumeration=A\x01M")
                                             << QStringLiteral("<e enumeration1=\"AM\" type=\"string\"/>");
    QTest::newRow("type-of-an-attribute")
        << elementWithAttributes("a=xs:in\x01t") << QStringLiteral("<e a=\"xs:int\"/>");
    QTest::newRow("name-of-an-element") << QStringLiteral("<xs:element type='xs:int' name='\u0002e'/>")
                                        << QStringLiteral("<e type=\"int\"/>");
}

void TestRobustnessBuilderTexts::valuesOfTheSchemaKeepWhatXmlCanCarry()
{
    QFETCH(QString, declaration);
    const TraceCollector traces;
    QVERIFY(create(declaration));
    QCOMPARE(readError(), QString());
    QTEST(lineOf(root().firstChildElement()), "element");
    QVERIFY(isDropTraced(traces, "XmlSchemaHandler"));
}

void TestRobustnessBuilderTexts::localNamesThatXmlForbidsFailTheSchema_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("name");
    QTest::newRow("element-with-a-blank")
        << QStringLiteral("<xs:element name='a b' type='xs:int'/>") << QStringLiteral("a b");
    QTest::newRow("element-with-a-digit-in-front")
        << QStringLiteral("<xs:element name='1a' type='xs:int'/>") << QStringLiteral("1a");
    QTest::newRow("element-that-holds-a-tag")
        << QStringLiteral("<xs:element name='a/&gt;&lt;b' type='xs:int'/>") << QStringLiteral("a/><b");
    QTest::newRow("attribute-with-a-blank")
        << QStringLiteral("<xs:element name='e'><xs:complexType><xs:attribute name='a b' type='xs:int'/>"
                          "</xs:complexType></xs:element>")
        << QStringLiteral("a b");
    QTest::newRow("facet-with-a-digit-in-front")
        << QStringLiteral("<xs:element name='e'><xs:simpleType><xs:restriction base='xs:int'><xs:1 value='1'/>"
                          "</xs:restriction></xs:simpleType></xs:element>")
        << QStringLiteral("1");
}

void TestRobustnessBuilderTexts::localNamesThatXmlForbidsFailTheSchema()
{
    QFETCH(QString, declaration);
    QFETCH(QString, name);
    const TraceCollector traces;
    QVERIFY(!create(declaration));
    // What has been read is written: the declaration alone.
    QVERIFY(root().isNull());
    QCOMPARE(traces.Messages(),
             QStringLiteral("XmlSchemaHandler: XML does not allow the name \"%1\", it was refused!").arg(name));
}

void TestRobustnessBuilderTexts::globalNamesThatXmlForbidsAreLeftOut()
{
    const TraceCollector traces;
    QVERIFY(create(elementOfType("string"),
                   QStringLiteral("<xs:element name='z z' type='xs:int'/><xs:attribute default='5' name='a'/>")));
    QCOMPARE(readError(), QString());
    QCOMPARE(root().tagName(), QStringLiteral("report"));
    QCOMPARE(traces.Messages(),
             QStringLiteral("XmlSchemaHandler: XML does not allow the name \"z z\", it was refused!\n"
                            "XmlSchemaHandler: XML does not allow the name \"5\", it was refused!"));
}

void TestRobustnessBuilderTexts::whatALeftOutGlobalSaysGoesNowhere()
{
    // The last global in the order of names is the root.
    QVERIFY(create(elementOfType("string"),
                   QStringLiteral("<xs:element name='zebra'/>"
                                  "<xs:element name='z z' type='xs:int' default='5'/>")));
    QCOMPARE(root().tagName(), QStringLiteral("zebra"));
    QVERIFY(!root().hasAttribute(QStringLiteral("type")));
    QVERIFY(!root().hasAttribute(QStringLiteral("default")));
}

void TestRobustnessBuilderTexts::writerTextsKeepWhatXmlCanCarry()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    const TraceCollector traces;
    Node node(QStringLiteral("Node"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Value"), text), &node);
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(path("written.xml"), QStringLiteral("report")));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("a"), text));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("e"), text, false));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(readError(), QString());
    QCOMPARE(root().attribute(QStringLiteral("a")), kept);
    QCOMPARE(root().firstChildElement(QStringLiteral("e")).text(), kept);
    QCOMPARE(root().firstChildElement(QStringLiteral("Node")).firstChildElement().text(), kept);
    QCOMPARE(int(traces.Traces().size()), text == kept ? 0 : 3);
}

void TestRobustnessBuilderTexts::writerRefusesNamesThatXmlForbids_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << QStringLiteral("a b");
    QTest::newRow("digit-in-front") << QStringLiteral("1");
    QTest::newRow("control-character") << QStringLiteral("a\u0001");
    QTest::newRow("half-of-a-pair") << QStringLiteral("a") + highHalf();
    QTest::newRow("tag") << QStringLiteral("a/><b");
}

void TestRobustnessBuilderTexts::writerRefusesNamesThatXmlForbids()
{
    QFETCH(QString, name);
    const TraceCollector traces;
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(path("written.xml"), QStringLiteral("report")));
    QVERIFY(!writer.CreateXmlElement(name, QStringLiteral("text"), true));
    QVERIFY(!writer.SetXmlAttribute(name, QStringLiteral("value")));
    QCOMPARE(int(traces.Traces().size()), 2);
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(readError(), QString());
    QCOMPARE(lineOf(root()), QStringLiteral("<report/>"));

    XMLWriter otherWriter;
    QVERIFY(otherWriter.CreateXmlFile(path("other.xml"), QStringLiteral("r a='\u0001'")));
    QVERIFY(otherWriter.SaveXmlFile());
    QVERIFY(documentInFile(path("other.xml")).documentElement().isNull());
}

void TestRobustnessBuilderTexts::writerLeavesOutTreeItemsWithSuchNames()
{
    const TraceCollector traces;
    Node node(QStringLiteral("Receiver"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Center Frequency"), QStringLiteral("98.5")), &node);
    new ValueItem(new ValueText(QStringLiteral("below"), QStringLiteral("x")), new Node(QStringLiteral("1st"), &node));
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), &node);
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(path("written.xml"), QStringLiteral("report")));
    QVERIFY(!writer.CreateElementsFromNode(&node));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("behind"), QString(), false));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(readError(), QString());
    QCOMPARE(lineOf(root()),
             QStringLiteral("<report> <Receiver> <Mode> \"FM\" </Mode> </Receiver> <behind/> </report>"));
    QCOMPARE(int(traces.Traces().size()), 2);
}

void TestRobustnessBuilderTexts::writerTakesElementsNested512Deep()
{
    const TraceCollector traces;
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(path("written.xml"), QStringLiteral("e")));
    for (int level = 2; level <= 512; ++level) {
        QVERIFY(writer.CreateXmlElement(QStringLiteral("e"), QString(), true));
    }
    QCOMPARE(traces.Messages(), QString());
    Node node(QStringLiteral("Node"), nullptr);
    for (int attempt = 0; attempt < 3; ++attempt) {
        QVERIFY(!writer.CreateXmlElement(QStringLiteral("e"), QString(), true));
        QVERIFY(!writer.CreateElementsFromNode(&node));
    }
    QCOMPARE(int(traces.Traces().size()), 6);
    QCOMPARE(traces.Traces().front().message,
             QStringLiteral("XMLWriter: Elements nested deeper than 512 are refused!"));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(readError(), QString());
}

/// At one go they would take Qt an hour.
void TestRobustnessBuilderTexts::savesTenMillionCharactersThatNeedEscaping()
{
    const QString text = QStringLiteral("<").repeated(10000000);
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(path("written.xml"), QStringLiteral("report")));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("e"), text, false));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(readError(), QString());
    QCOMPARE(QFileInfo(path("written.xml")).size(),
             qint64(qstrlen("<?xml version='1.0' encoding='UTF-8'?>\n<report>\n    <e></e>\n</report>\n"))
                 + 4 * text.size());
}

QTEST_GUILESS_MAIN(TestRobustnessBuilderTexts)
#include "tst_robustness_builder_texts.moc"
