#include <QtTest>

#include <QDir>
#include <QTemporaryDir>

#include <xmlhelper/limits_p.h>

#include "schemafixture.h"
#include "tracecollector.h"

/// What protects the process that reads a schema: each limit refuses with one trace and fails the parse, and nothing
/// takes longer than seconds, whatever the schema says.
class TestXmlSchemaHandlerLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads512NestedTags();
    void refusesMoreNestedTags_data();
    void refusesMoreNestedTags();
    void countsTheNestingOfEachFile();
    void refusesIncludesThatAreNestedTooDeepTogether();
    void laysOut512NestedElements_data();
    void laysOut512NestedElements();
    void laysOutAsManyElementsAsAllowed_data();
    void laysOutAsManyElementsAsAllowed();
    void countsTheElementsOfNamedTypes();
    void countsTheElementsOfAllDefinitions();
    void countsElementsWhereTheyLand();
    void countsAttributesThatAreCopied_data();
    void countsAttributesThatAreCopied();
    void refusesCopiesThatHaveTooManyAttributes_data();
    void refusesCopiesThatHaveTooManyAttributes();
    void refusesADocumentTypeOfManyEntities();
    void refusesCopiesOfTooManyValuesBeforeTheFirst_data();
    void refusesCopiesOfTooManyValuesBeforeTheFirst();
    void refusesSchemasThatGrowWithoutEnd_data();
    void refusesSchemasThatGrowWithoutEnd();
    void endsWhenNothingIsLaidOutCountlessTimes_data();
    void endsWhenNothingIsLaidOutCountlessTimes();
    void limitsTheValuesOfAnEnumeration();
    void keepsOccursCodesInRange();
    void failsTheIncludingFilesToo();
};

namespace {

QString named(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:complexType name='%1'>%2</xs:complexType>").arg(name, content);
}

QString global(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType>%2</xs:complexType></xs:element>").arg(name, content);
}

QString element(const QString& name, const QString& type, int minOccurs = 1)
{
    return QStringLiteral("<xs:element name='%1' type='%2' minOccurs='%3'/>").arg(name, type).arg(minOccurs);
}

QString reference(const QString& name, int minOccurs = 1)
{
    return QStringLiteral("<xs:element ref='%1' minOccurs='%2'/>").arg(name).arg(minOccurs);
}

/// @p content inside of @p levels tags.
QString nested(const QString& content, int levels)
{
    return QStringLiteral("<xs:sequence>").repeated(levels) + content
        + QStringLiteral("</xs:sequence>").repeated(levels);
}

/// Types T0 to T@p last, each of which holds @p content of the one before; in this order or the other way round.
QString typeChain(int last, const QString& innermost, const QString& content, bool isBackwards = false)
{
    QString types;
    for (int i = 0; i <= last; ++i) {
        const QString type = named(QStringLiteral("T%1").arg(i), i == 0 ? innermost : content.arg(i - 1));
        types = isBackwards ? type + types : types + type;
    }
    return types;
}

int elementsOf(const QDomNode& top)
{
    int count = top.isElement() ? 1 : 0;
    for (QDomNode child = top.firstChild(); !child.isNull(); child = child.nextSibling()) {
        count += elementsOf(child);
    }
    return count;
}

int levelsOf(QDomNode node)
{
    int levels = 0;
    for (QDomElement element = node.firstChildElement(); !element.isNull(); element = element.firstChildElement()) {
        ++levels;
    }
    return levels;
}

QString nestedTagsTrace()
{
    return QStringLiteral("The schema is nested deeper than 512 elements!");
}

QString nestedElementsTrace()
{
    return QStringLiteral("The schema lays out elements nested deeper than 512!");
}

QString elementsTrace()
{
    return QStringLiteral("The schema lays out more than 500 elements!");
}

QString attributesTrace()
{
    return QStringLiteral("The schema lays out more than 2000 attributes!");
}

QString valuesTrace()
{
    return QStringLiteral("The schema gives elements more than 500 values of enumerations!");
}

/// A thousandth of the library's, in the same proportions.
Limits smallLimits()
{
    Limits limits;
    limits.elements = 500;
    limits.elementsOfAllDefinitions = 2000;
    limits.elementsOfNamedTypes = 600;
    limits.attributes = 2000;
    limits.enumerationValues = 100;
    limits.copiedEnumerationValues = 500;
    return limits;
}

QString enumeration(int values)
{
    return QStringLiteral("<xs:restriction base='xs:string'>%1</xs:restriction>")
        .arg(QStringLiteral("<xs:enumeration value='v'/>").repeated(values));
}

} // namespace

void TestXmlSchemaHandlerLimits::reads512NestedTags()
{
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(schema.Read(nested(QStringLiteral("<xs:element name='root'/>"), 510)));
    QCOMPARE(schema.Definitions(), QStringLiteral("root 1 0 [root]\n"));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlSchemaHandlerLimits::refusesMoreNestedTags_data()
{
    QTest::addColumn<QString>("declarations");

    QTest::newRow("one-level-too-many") << nested(QStringLiteral("<xs:element name='root'/>"), 511);
    QTest::newRow("very-many-levels") << nested(QString(), 100000);
    QTest::newRow("facets-count") << QStringLiteral("<xs:simpleType name='S'><xs:restriction base='xs:int'>")
            + nested(QString(), 510) + QStringLiteral("</xs:restriction></xs:simpleType>");
    QTest::newRow("tags-without-meaning-count")
        << QStringLiteral("<a>").repeated(512) + QStringLiteral("</a>").repeated(512);
}

void TestXmlSchemaHandlerLimits::refusesMoreNestedTags()
{
    QFETCH(QString, declarations);
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(!schema.Read(declarations));
    QCOMPARE(traces.Messages(), nestedTagsTrace());
    QCOMPARE(schema.Events(), QStringList());
}

void TestXmlSchemaHandlerLimits::countsTheNestingOfEachFile()
{
    const QTemporaryDir folder;
    QFile part(folder.filePath(QStringLiteral("part.xsd")));
    QVERIFY(part.open(QIODevice::WriteOnly));
    part.write(schemaOf(nested(QStringLiteral("<xs:element name='root'/>"), 510)).toUtf8());
    part.close();
    TraceCollector traces;
    SchemaFixture schema(folder.filePath(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(QStringLiteral("<xs:include schemaLocation='part.xsd'/>")));
    QCOMPARE(schema.Definitions(), QStringLiteral("root 1 0 [root]\n"));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlSchemaHandlerLimits::refusesIncludesThatAreNestedTooDeepTogether()
{
    // Each file of the longest chain includes the next one as deep inside as it may: all of them would need more stack
    // than a thread has.
    const QTemporaryDir folder;
    for (int i = 0; i < 64; ++i) {
        QFile file(folder.filePath(QStringLiteral("file%1.xsd").arg(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(
            schemaOf(nested(QStringLiteral("<xs:include schemaLocation='file%1.xsd'/>").arg(i + 1), 510)).toUtf8());
    }
    TraceCollector traces;
    SchemaFixture schema(folder.filePath(QStringLiteral("file0.xsd")));
    QVERIFY(!schema.ReadFile(folder.filePath(QStringLiteral("file0.xsd"))));
    QCOMPARE(traces.Messages(), QStringLiteral("The schema and its includes are nested deeper than 1024 elements!"));
}

void TestXmlSchemaHandlerLimits::laysOut512NestedElements_data()
{
    QTest::addColumn<QString>("withinLimit"); // %1 stands for a fitting number of types
    QTest::addColumn<bool>("isBackwards");
    QTest::addColumn<int>("types");
    QTest::addColumn<bool>("isAllowed");

    // The root, an element for each type but the innermost, and what the innermost holds.
    const QString content = QStringLiteral("<xs:element name='e' type='T%1'/>");
    QTest::newRow("known-types") << content << false << 511 << true;
    QTest::newRow("known-types-one-level-too-many") << content << false << 512 << false;
    QTest::newRow("later-types") << content << true << 511 << true;
    QTest::newRow("later-types-one-level-too-many") << content << true << 512 << false;
}

void TestXmlSchemaHandlerLimits::laysOut512NestedElements()
{
    QFETCH(QString, withinLimit);
    QFETCH(bool, isBackwards);
    QFETCH(int, types);
    QFETCH(bool, isAllowed);
    const QString chain = typeChain(types - 1, QStringLiteral("<xs:element name='leaf'/>"), withinLimit, isBackwards);
    const QString root = QStringLiteral("<xs:element name='root' type='T%1'/>").arg(types - 1);
    TraceCollector traces;
    SchemaFixture schema;
    QCOMPARE(schema.Read(isBackwards ? root + chain : chain + root), isAllowed);
    QCOMPARE(traces.Messages(), isAllowed ? QString() : nestedElementsTrace());
    QVERIFY(schema.LevelsOfDefinitions() <= 512);
    if (isAllowed) {
        QCOMPARE(levelsOf(*schema.Handler().GetDocument()), 512);
    }
}

void TestXmlSchemaHandlerLimits::laysOutAsManyElementsAsAllowed_data()
{
    QTest::addColumn<QString>("declarations"); // %1 stands for a number of copies
    QTest::addColumn<int>("copies"); // that fit

    const QString unit = QStringLiteral("<xs:element name='unit'/>");
    const QString copies = QStringLiteral("minOccurs='%1'");
    QTest::newRow("copies-of-a-built-in-type")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='xs:int' %1/>").arg(copies)) << 499;
    QTest::newRow("copies-of-a-known-type") << named(QStringLiteral("Known"), unit)
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Known' %1/>").arg(copies))
                                            << 249;
    QTest::newRow("copies-of-a-later-type")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' %1/>").arg(copies))
            + named(QStringLiteral("Later"), unit + unit)
        << 166;
    QTest::newRow("copies-behind-those-of-a-later-type-do-not-count-as-a-named-type")
        << named(QStringLiteral("Great"), QStringLiteral("<xs:element name='e' minOccurs='150'/>"))
            + global(QStringLiteral("root"),
                     QStringLiteral("<xs:element name='a' type='Later' minOccurs='2'/><xs:element name='b' %1/>")
                         .arg(copies))
            + named(QStringLiteral("Later"), unit)
        << 495;
    QTest::newRow("known-references") << unit
            + global(QStringLiteral("root"), QStringLiteral("<xs:element ref='unit' %1/>").arg(copies))
                                      << 499;
    QTest::newRow("later-references") << global(QStringLiteral("root"),
                                                QStringLiteral("<xs:element ref='unit' %1/>").arg(copies))
            + unit << 499;
}

void TestXmlSchemaHandlerLimits::laysOutAsManyElementsAsAllowed()
{
    QFETCH(QString, declarations);
    QFETCH(int, copies);
    const LimitsInForce inForce(smallLimits());
    TraceCollector traces;
    {
        SchemaFixture schema;
        QVERIFY(schema.Read(declarations.arg(copies)));
        QCOMPARE(traces.Messages(), QString());
        const int elements = elementsOf(*schema.Handler().GetDocument());
        QVERIFY(elements <= 500);
        QVERIFY(elements > 490);
    }
    SchemaFixture schema;
    QVERIFY(!schema.Read(declarations.arg(copies + 1)));
    QCOMPARE(traces.Messages(), elementsTrace());
}

void TestXmlSchemaHandlerLimits::countsTheElementsOfNamedTypes()
{
    const LimitsInForce inForce(smallLimits());
    const auto repeated = [](const char* name, int elements) {
        return named(QLatin1String(name), QStringLiteral("<xs:element name='e' minOccurs='%1'/>").arg(elements));
    };
    const TraceCollector traces;
    QVERIFY(
        SchemaFixture().Read(repeated("A", 300) + repeated("B", 300) + QStringLiteral("<xs:element name='root'/>")));
    QCOMPARE(traces.Messages(), QString());
    QVERIFY(!SchemaFixture().Read(repeated("A", 300) + repeated("B", 301)));
    QCOMPARE(traces.Messages(), elementsTrace());
}

/// What a named type refers to lands in the global declaration that was read last, and leaves the type all its room.
void TestXmlSchemaHandlerLimits::countsElementsWhereTheyLand()
{
    const LimitsInForce inForce(smallLimits());
    const QString schema
        = global(QStringLiteral("Many"), element(QStringLiteral("m"), QStringLiteral("xs:string"), 450))
        + global(QStringLiteral("Root"), QString())
        + named(QStringLiteral("T"),
                reference(QStringLiteral("Many")) + element(QStringLiteral("x"), QStringLiteral("U")))
        + named(QStringLiteral("U"), element(QStringLiteral("u"), QStringLiteral("xs:string"), 60));
    const TraceCollector traces;
    QVERIFY(SchemaFixture().Read(schema));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlSchemaHandlerLimits::countsTheElementsOfAllDefinitions()
{
    const LimitsInForce inForce(smallLimits());
    const auto repeated = [](const char* name, int elements) {
        return global(QLatin1String(name), QStringLiteral("<xs:element name='e' minOccurs='%1'/>").arg(elements));
    };
    const QString most = repeated("a", 499) + repeated("b", 499) + repeated("c", 499);
    const QString root = QStringLiteral("<xs:element name='root'/>");
    const TraceCollector traces;
    QVERIFY(SchemaFixture().Read(most + repeated("d", 498) + root));
    QCOMPARE(traces.Messages(), QString());
    QVERIFY(!SchemaFixture().Read(most + repeated("d", 499) + root));
    QCOMPARE(traces.Messages(), elementsTrace());
}

void TestXmlSchemaHandlerLimits::countsAttributesThatAreCopied_data()
{
    QTest::addColumn<QString>("declaration"); // of 100 values
    QTest::addColumn<QString>("use");
    const QString simpleType = QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>");
    QTest::newRow("declared-attribute") << QStringLiteral(
        "<xs:attribute name='k'><xs:simpleType>%1</xs:simpleType></xs:attribute>")
                                        << QStringLiteral("<xs:attribute ref='k'/>");
    QTest::newRow("extension-of-an-element")
        << QStringLiteral("<xs:element name='S'><xs:simpleType>%1</xs:simpleType></xs:element>")
        << QStringLiteral("<xs:extension base='S'/>");
    QTest::newRow("extension-of-a-type") << simpleType << QStringLiteral("<xs:extension base='S'/>");
}

/// One element is given them again and again, which takes time and no memory. Values of enumerations count twice: as
/// attributes, and by themselves.
void TestXmlSchemaHandlerLimits::countsAttributesThatAreCopied()
{
    QFETCH(QString, declaration);
    QFETCH(QString, use);
    const auto schema = [&](int uses) {
        return declaration.arg(enumeration(100)) + global(QStringLiteral("root"), use.repeated(uses));
    };
    const TraceCollector traces;
    const LimitsInForce inForce(smallLimits());
    QVERIFY(SchemaFixture().Read(schema(5)));
    QCOMPARE(traces.Messages(), QString());
    QVERIFY(!SchemaFixture().Read(schema(6)));
    QCOMPARE(traces.Messages(), valuesTrace());

    Limits manyValues = smallLimits();
    manyValues.copiedEnumerationValues = 10000;
    const LimitsInForce other(manyValues);
    QVERIFY(SchemaFixture().Read(schema(19))); // The type is an attribute too.
    QVERIFY(!SchemaFixture().Read(schema(20)));
    QCOMPARE(traces.Messages(), valuesTrace() + QLatin1Char('\n') + attributesTrace());
}

void TestXmlSchemaHandlerLimits::refusesCopiesThatHaveTooManyAttributes_data()
{
    QTest::addColumn<QString>("schema"); // %1 stands for values
    const QString simpleType = QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>");
    const QString elements
        = global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='S' minOccurs='21'/>"));
    QTest::newRow("elements-of-a-known-type") << simpleType + elements;
    QTest::newRow("elements-of-a-later-type") << elements + simpleType;
    QTest::newRow("known-references") << QStringLiteral(
                                             "<xs:element name='e'><xs:simpleType>%1</xs:simpleType></xs:element>")
            + global(QStringLiteral("root"), QStringLiteral("<xs:element ref='e' minOccurs='21'/>"));
}

void TestXmlSchemaHandlerLimits::refusesCopiesThatHaveTooManyAttributes()
{
    QFETCH(QString, schema);
    const LimitsInForce inForce(smallLimits());
    const TraceCollector traces;
    QVERIFY(!SchemaFixture().Read(schema.arg(enumeration(100))));
    QCOMPARE(traces.Messages(), attributesTrace());
}

void TestXmlSchemaHandlerLimits::refusesCopiesOfTooManyValuesBeforeTheFirst_data()
{
    QTest::addColumn<QString>("schema"); // %1 stands for values, %2 for a number of copies
    QTest::addColumn<int>("copies"); // that fit, of 100 values each
    const QString simpleType = QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>");
    const QString elements
        = global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='S' minOccurs='%2'/>"));
    const QString type = named(QStringLiteral("T"), QStringLiteral("<xs:element name='e' type='S'/>"));
    const QString users
        = global(QStringLiteral("root"), QStringLiteral("<xs:element name='t' type='T' minOccurs='%2'/>"));
    QTest::newRow("elements-of-a-known-type") << simpleType + elements << 5;
    QTest::newRow("elements-of-a-later-type") << elements + simpleType << 4; // The template has them too.
    QTest::newRow("elements-with-values-in-a-known-type") << simpleType + type + users << 4; // and so has the type.
    QTest::newRow("known-references") << QStringLiteral(
                                             "<xs:element name='e'><xs:simpleType>%1</xs:simpleType></xs:element>")
            + global(QStringLiteral("root"), QStringLiteral("<xs:element ref='e' minOccurs='%2'/>"))
                                      << 5;
    QTest::newRow("values-of-a-declared-attribute")
        << QStringLiteral("<xs:attribute name='k'><xs:simpleType>%1</xs:simpleType></xs:attribute>")
            + named(QStringLiteral("T"), QStringLiteral("<xs:element name='e' type='xs:int'/><xs:attribute ref='k'/>"))
            + users
        << 4;
}

void TestXmlSchemaHandlerLimits::refusesCopiesOfTooManyValuesBeforeTheFirst()
{
    QFETCH(QString, schema);
    QFETCH(int, copies);
    Limits limits = smallLimits();
    limits.attributes = 10000;
    const LimitsInForce inForce(limits);
    const auto withCopies = [&](int count) {
        return QString(schema)
            .replace(QLatin1String("%1"), enumeration(100))
            .replace(QLatin1String("%2"), QString::number(count));
    };
    const TraceCollector traces;
    QVERIFY(SchemaFixture().Read(withCopies(copies)));
    QCOMPARE(traces.Messages(), QString());

    SchemaFixture refused;
    QVERIFY(!refused.Read(withCopies(copies + 1)));
    QCOMPARE(traces.Messages(), valuesTrace());
    UnresolvedTypeMap references;
    OccursMap occurs;
    TypeDefinitionMap definitions;
    ChoiceMap choices;
    QVERIFY(refused.Handler().HandOver(references, occurs, definitions, choices));
    // The root, and the one of a later type that waited for its values.
    QVERIFY(elementsOf(*definitions[QStringLiteral("root")].fragment) <= 2);
}

void TestXmlSchemaHandlerLimits::refusesADocumentTypeOfManyEntities()
{
    QString entities;
    for (int i = 0; i <= 1000; ++i) {
        entities += QStringLiteral("<!ENTITY e%1 'x'>").arg(i);
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("schema.xsd")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("<!DOCTYPE s [%1]><s/>").arg(entities).toUtf8());
    file.close();
    const TraceCollector traces;
    QVERIFY(!SchemaFixture(file.fileName()).ReadFileByHandler(file.fileName()));
    QCOMPARE(traces.Messages(), QStringLiteral("The content declares more than 1000 entities!"));
}

void TestXmlSchemaHandlerLimits::refusesSchemasThatGrowWithoutEnd_data()
{
    QTest::addColumn<QString>("declarations");
    const QString leaf = QStringLiteral("<xs:element name='leaf'/>");
    const QString twice
        = QStringLiteral("<xs:element name='a' type='T%1'/>") + QStringLiteral("<xs:element name='b' type='T%1'/>");
    const QString deferredRoot = QStringLiteral("<xs:element name='root' type='T40'/>");
    QString elements = QStringLiteral("<xs:element name='e10'/>");
    QString laterElements = elements;
    QString laterTypes = elements;
    for (int i = 11; i <= 50; ++i) {
        const QString name = QStringLiteral("e%1").arg(i);
        const QString previous = QStringLiteral("e%1").arg(i - 1);
        const QString doubling = global(name, reference(previous, 2));
        elements += doubling;
        laterElements.prepend(doubling);
        // The copies arrive in time, because the name of the element comes before that of its definition.
        laterTypes.prepend(global(name, element(previous + QLatin1Char('a'), previous, 2)));
    }

    QTest::newRow("known-types-that-double") << typeChain(40, leaf, twice);
    QTest::newRow("later-types-that-double") << deferredRoot + typeChain(40, leaf, twice, true);
    QTest::newRow("known-elements-that-double") << elements;
    QTest::newRow("later-elements-that-double") << laterElements;
    QTest::newRow("repeated-elements-of-later-types-that-double") << laterTypes;
    QTest::newRow("element-that-doubles-itself")
        << global(QStringLiteral("root"), reference(QStringLiteral("root")).repeated(100));
    QTest::newRow("type-that-multiplies-itself")
        << named(QStringLiteral("T"), element(QStringLiteral("a"), QStringLiteral("T"), 100));
    QTest::newRow("countless-copies") << named(QStringLiteral("T"),
                                               element(QStringLiteral("a"), QStringLiteral("xs:int"), 2147483647));
    QTest::newRow("countless-copies-outside-of-any-definition") << QStringLiteral("<xs:complexType>")
            + element(QStringLiteral("a"), QStringLiteral("xs:int"), 2147483647) + QStringLiteral("</xs:complexType>");
    QTest::newRow("countless-copies-of-a-later-type")
        << QStringLiteral("<xs:element name='root'>%1</xs:element>")
                .arg(QStringLiteral("<xs:complexType>%1</xs:complexType>")
                         .arg(element(QStringLiteral("a"), QStringLiteral("Later"), 2147483647)))
            + named(QStringLiteral("Later"), leaf);
    QTest::newRow("countless-later-references")
        << global(QStringLiteral("root"), reference(QStringLiteral("unit"), 2147483647))
            + QStringLiteral("<xs:element name='unit'/>");
    // Each definition stays within the limit; what it refers to lands in the last global element all the same.
    const QString misplaced = reference(QStringLiteral("a"), 200);
    QTest::newRow("references-that-land-in-another-definition")
        << QStringLiteral("<xs:element name='a'/><xs:element name='root'/>") + named(QStringLiteral("T1"), misplaced)
            + named(QStringLiteral("T2"), misplaced) + named(QStringLiteral("T3"), misplaced);
    QTest::newRow("later-references-that-land-in-another-definition") << QStringLiteral("<xs:element name='root'/>")
            + named(QStringLiteral("T1"), misplaced) + named(QStringLiteral("T2"), misplaced)
            + named(QStringLiteral("T3"), misplaced) + QStringLiteral("<xs:element name='a'/>");
}

void TestXmlSchemaHandlerLimits::refusesSchemasThatGrowWithoutEnd()
{
    QFETCH(QString, declarations);
    const LimitsInForce inForce(smallLimits());
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(!schema.Read(declarations));
    QCOMPARE(traces.Messages(), elementsTrace());
    QCOMPARE(schema.Skeleton(), QString());
}

void TestXmlSchemaHandlerLimits::endsWhenNothingIsLaidOutCountlessTimes_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("definitions");
    const QString countless = global(QStringLiteral("root"), reference(QStringLiteral("Type"), 2147483647));
    const QString empty = named(QStringLiteral("Type"), QString());
    const QString simple = QStringLiteral("<xs:simpleType name='Type'><xs:restriction base='xs:int'/></xs:simpleType>");

    QTest::newRow("known-empty-type") << empty + countless << QStringLiteral("Type 1 0 []\nroot 1 0 [root]\n");
    QTest::newRow("later-empty-type") << countless + empty << QStringLiteral("Type 1 -1 []\nroot 1 0 [root]\n");
    QTest::newRow("known-carrier") << simple + countless << QStringLiteral("Type 1 0 [dummy]\nroot 1 0 [root]\n");
    QTest::newRow("later-carrier") << countless + simple << QStringLiteral("Type 1 -1 [dummy]\nroot 1 0 [root]\n");
}

void TestXmlSchemaHandlerLimits::endsWhenNothingIsLaidOutCountlessTimes()
{
    QFETCH(QString, declarations);
    QFETCH(QString, definitions);
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(schema.Read(declarations));
    QCOMPARE(schema.Definitions(), definitions);
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlSchemaHandlerLimits::limitsTheValuesOfAnEnumeration()
{
    const LimitsInForce inForce(smallLimits());
    const auto type = [](int values) {
        return QStringLiteral("<xs:simpleType name='Type'>%1</xs:simpleType>").arg(enumeration(values));
    };
    TraceCollector traces;
    SchemaFixture greatest;
    QVERIFY(greatest.Read(type(100)));
    QCOMPARE(traces.Messages(), QString());

    SchemaFixture tooLong;
    QVERIFY(!tooLong.Read(type(101)));
    QCOMPARE(traces.Messages(), QStringLiteral("An enumeration has more than 100 values!"));
}

void TestXmlSchemaHandlerLimits::keepsOccursCodesInRange()
{
    SchemaFixture schema;
    QVERIFY(schema.Read(named(QStringLiteral("T"),
                              QStringLiteral("<xs:element name='a' minOccurs='0' maxOccurs='2147483647'/>"
                                             "<xs:element name='b' minOccurs='0' maxOccurs='-2147483648'/>"))));
    // A hundred times 21474836 and -21474836, the nearest numbers that keep the product within 32 bits.
    QCOMPARE(schema.Occurs(), QStringLiteral("a 2147483600: T\nb -2147483600: T\n"));
}

void TestXmlSchemaHandlerLimits::failsTheIncludingFilesToo()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const QString& name, const QString& declarations) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(schemaOf(declarations).toUtf8());
    };
    write(QStringLiteral("part.xsd"), QStringLiteral("<xs:include schemaLocation='deep.xsd'/>"));
    write(QStringLiteral("deep.xsd"), nested(QString(), 512));
    TraceCollector traces;
    SchemaFixture schema(folder.filePath(QStringLiteral("main.xsd")));
    QVERIFY(!schema.Read(QStringLiteral("<xs:include schemaLocation='part.xsd'/><xs:element name='root'/>")));
    QCOMPARE(schema.Definitions(), QString());
    QCOMPARE(traces.Messages(), nestedTagsTrace());
}

QTEST_GUILESS_MAIN(TestXmlSchemaHandlerLimits)
#include "tst_xmlschemahandler_limits.moc"
