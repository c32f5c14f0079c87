#include <QtTest>

#include "schemafixture.h"
#include "tracecollector.h"

QT_WARNING_DISABLE_DEPRECATED

/// The maps that a schema leaves behind, how they are handed over, and how reading fails.
class TestXmlSchemaHandlerModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entersOccurs_data();
    void entersOccurs();
    void entersOwners_data();
    void entersOwners();
    void laysOutCopies_data();
    void laysOutCopies();
    void numbersChoices_data();
    void numbersChoices();
    void definesNames_data();
    void definesNames();
    void marksUsedDefinitions_data();
    void marksUsedDefinitions();
    void recordsReferences_data();
    void recordsReferences();
    void servesReferences_data();
    void servesReferences();
    void keepsTheRecordsAtTheEnd();
    void failsForMissingDefinitions_data();
    void failsForMissingDefinitions();
    void failsForDefinitionsThatWaitForEachOther_data();
    void failsForDefinitionsThatWaitForEachOther();
    void failsWhenANameLeavesNoRoot_data();
    void failsWhenANameLeavesNoRoot();
    void givesSeveralRootsWithATrace();
    void keepsTheMapsOfAFailedSchema();
    void failsForMalformedSchemas();
    void hasAnEmptyDocumentUntilTheEnd();
    void handsCopiesOver();
    void handsOverIntoItsOwnMaps();
    void tracesAMissingObserver();
    void tracesNothingWithoutItsBitInTheMask();
    void refusesTheEndOfADocumentWithoutObserver();
};

namespace {

QString named(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:complexType name='%1'><xs:sequence>%2</xs:sequence></xs:complexType>")
        .arg(name, content);
}

QString simple(const QString& name)
{
    return QStringLiteral("<xs:simpleType name='%1'><xs:restriction base='xs:int'/></xs:simpleType>").arg(name);
}

QString global(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType>%2</xs:complexType></xs:element>").arg(name, content);
}

/// The definitions that wait for others: "name count, name count".
QString pendingDefinitions(SchemaFixture& schema)
{
    QStringList pending;
    const QStringList lines = schema.Definitions().split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QString count = line.section(QLatin1Char(' '), 2, 2);
        if (count.toInt() > 0) {
            pending.append(line.section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ') + count);
        }
    }
    return pending.join(QStringLiteral(", "));
}

QString missingTrace()
{
    return QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates...");
}

/// Lets a test name private members, which an explicit instantiation may do.
template <typename Tag, typename Tag::Type Member> struct Reveal
{
    friend typename Tag::Type revealed(Tag) { return Member; }
};

#define REVEAL(Tag, MapType, member)                                                                                   \
    struct Tag                                                                                                         \
    {                                                                                                                  \
        using Type = MapType XmlSchemaHandler::*;                                                                      \
        friend Type revealed(Tag);                                                                                     \
    };                                                                                                                 \
    template struct Reveal<Tag, &XmlSchemaHandler::member>

REVEAL(OwnReferences, UnresolvedTypeMap, m_unresolvedTypes);
REVEAL(OwnOccurs, OccursMap, m_occurs);
REVEAL(OwnDefinitions, TypeDefinitionMap, m_typeDefinitions);
REVEAL(OwnChoices, ChoiceMap, m_choices);

} // namespace

void TestXmlSchemaHandlerModel::entersOccurs_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("codes"); // of the element, in its only owner

    const QString none;
    QTest::newRow("nothing-given-has-no-entry") << QString() << none;
    QTest::newRow("required-without-maximum-has-no-entry") << QStringLiteral("minOccurs='1'") << none;
    QTest::newRow("repeated-without-maximum-has-no-entry") << QStringLiteral("minOccurs='2'") << none;
    QTest::newRow("negative-minimum-without-maximum-has-no-entry") << QStringLiteral("minOccurs='-2'") << none;
    QTest::newRow("sentinel-as-minimum-counts-as-not-given") << QStringLiteral("minOccurs='-100'") << none;
    QTest::newRow("sentinel-as-maximum-counts-as-not-given") << QStringLiteral("maxOccurs='-100'") << none;
    QTest::newRow("optional-without-maximum-is-0") << QStringLiteral("minOccurs='0'") << QStringLiteral("0");
    QTest::newRow("optional-with-sentinel-as-maximum-is-0")
        << QStringLiteral("minOccurs='0' maxOccurs='-100'") << QStringLiteral("0");
    QTest::newRow("minimum-that-is-no-number-is-0") << QStringLiteral("minOccurs='many'") << QStringLiteral("0");
    QTest::newRow("unbounded-as-minimum-is-no-number")
        << QStringLiteral("minOccurs='unbounded'") << QStringLiteral("0");
    QTest::newRow("maximum-alone-is-itself") << QStringLiteral("maxOccurs='5'") << QStringLiteral("5");
    QTest::newRow("maximum-of-a-required-element-is-itself")
        << QStringLiteral("minOccurs='1' maxOccurs='1'") << QStringLiteral("1");
    QTest::newRow("maximum-of-a-repeated-element-is-itself")
        << QStringLiteral("maxOccurs='7' minOccurs='3'") << QStringLiteral("7");
    QTest::newRow("maximum-0-is-0") << QStringLiteral("maxOccurs='0'") << QStringLiteral("0");
    QTest::newRow("maximum-that-is-no-number-is-0") << QStringLiteral("maxOccurs='many'") << QStringLiteral("0");
    QTest::newRow("unbounded-is-case-sensitive") << QStringLiteral("maxOccurs='Unbounded'") << QStringLiteral("0");
    QTest::newRow("numbers-are-decimal") << QStringLiteral("maxOccurs='010'") << QStringLiteral("10");
    QTest::newRow("hexadecimal-is-no-number") << QStringLiteral("maxOccurs='0x10'") << QStringLiteral("0");
    QTest::newRow("negative-maximum-is-itself") << QStringLiteral("maxOccurs='-7'") << QStringLiteral("-7");
    QTest::newRow("unbounded-is-minus-1") << QStringLiteral("maxOccurs='unbounded'") << QStringLiteral("-1");
    QTest::newRow("optional-with-maximum-is-100-times-as-much")
        << QStringLiteral("minOccurs='0' maxOccurs='5'") << QStringLiteral("500");
    QTest::newRow("optional-with-maximum-1-is-100")
        << QStringLiteral("minOccurs='0' maxOccurs='1'") << QStringLiteral("100");
    QTest::newRow("optional-with-maximum-0-is-0")
        << QStringLiteral("minOccurs='0' maxOccurs='0'") << QStringLiteral("0");
    QTest::newRow("optional-unbounded-is-the-sentinel")
        << QStringLiteral("minOccurs='0' maxOccurs='unbounded'") << QStringLiteral("-100");
}

void TestXmlSchemaHandlerModel::entersOccurs()
{
    QFETCH(QString, attributes);
    QFETCH(QString, codes);
    const QString element = QStringLiteral("<xs:element name='a' type='xs:int' %1/>").arg(attributes);
    const QString entry = codes.isEmpty() ? QString() : QStringLiteral("a %1: root\n").arg(codes);

    SchemaFixture inElement;
    QVERIFY(inElement.Read(global(QStringLiteral("root"), element)));
    QCOMPARE(inElement.Occurs(), entry);
    SchemaFixture inType;
    QVERIFY(inType.Read(named(QStringLiteral("root"), element)));
    QCOMPARE(inType.Occurs(), entry);
}

void TestXmlSchemaHandlerModel::entersOwners_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("occurs");
    const QString a = QStringLiteral("<xs:element name='a' maxOccurs='2'/>");

    QTest::newRow("owner-in-a-global-element-is-that-element")
        << global(QStringLiteral("root"), a) << QStringLiteral("a 2: root\n");
    QTest::newRow("owner-in-a-nested-anonymous-type-is-its-element")
        << global(QStringLiteral("root"),
                  QStringLiteral("<xs:element name='b'><xs:complexType>") + a
                      + QStringLiteral("</xs:complexType></xs:element>") + a)
        << QStringLiteral("a 2: b, root\n");
    QTest::newRow("owner-in-a-named-type-is-its-name")
        << named(QStringLiteral("Type"), a) << QStringLiteral("a 2: Type\n");
    QTest::newRow("owner-in-an-anonymous-type-of-a-named-type-is-that-type") << named(
        QStringLiteral("Type"),
        QStringLiteral("<xs:element name='b'><xs:complexType>") + a + QStringLiteral("</xs:complexType></xs:element>"))
                                                                             << QStringLiteral("a 2: Type\n");
    QTest::newRow("owner-in-a-type-with-attributes-inside-a-global-is-the-current-element")
        << QStringLiteral("<xs:element name='root'><xs:complexType mixed='true'><xs:element name='a' maxOccurs='3'/>"
                          "</xs:complexType></xs:element>")
        << QStringLiteral("a 3: root\n");
    QTest::newRow("owners-of-one-code-stand-in-reading-order")
        << named(QStringLiteral("Type"), a) + global(QStringLiteral("root"), a) + named(QStringLiteral("Other"), a)
        << QStringLiteral("a 2: Type, root, Other\n");
    QTest::newRow("owner-stands-as-often-as-it-declares")
        << named(QStringLiteral("Type"), a + a) << QStringLiteral("a 2: Type, Type\n");
    QTest::newRow("codes-of-one-name-stand-beside-each-other")
        << named(QStringLiteral("Type"), a + QStringLiteral("<xs:element name='a' minOccurs='0'/>"))
        << QStringLiteral("a 0: Type\na 2: Type\n");
    QTest::newRow("copies-of-an-element-are-entered-once")
        << named(QStringLiteral("Type"), QStringLiteral("<xs:element name='a' minOccurs='3' maxOccurs='4'/>"))
        << QStringLiteral("a 4: Type\n");
    QTest::newRow("reference-is-entered-under-its-name") << QStringLiteral("<xs:element name='a'/>")
            + global(QStringLiteral("root"), QStringLiteral("<xs:element ref='a' minOccurs='0'/>"))
                                                         << QStringLiteral("a 0: root\n");
    QTest::newRow("later-reference-is-entered-under-its-name")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='a' maxOccurs='3'/>"))
            + QStringLiteral("<xs:element name='a'/>")
        << QStringLiteral("a 3: root\n");
    QTest::newRow("name-wins-over-reference")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='b' name='a' maxOccurs='3'/>"))
        << QStringLiteral("a 3: root\n");
    QTest::newRow("element-without-name-and-reference-has-no-entry")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element maxOccurs='3'/>")) << QString();
    QTest::newRow("global-elements-have-no-entry")
        << QStringLiteral("<xs:element name='root' minOccurs='0' maxOccurs='3'/>") << QString();
    QTest::newRow("element-of-a-later-type-is-entered")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' maxOccurs='3'/>"))
            + named(QStringLiteral("Later"), QString())
        << QStringLiteral("a 3: root\n");
    QTest::newRow("repeated-element-of-a-later-type-leaves-the-owner-as-it-is")
        << named(QStringLiteral("Type"),
                 QStringLiteral("<xs:element name='a' type='Later' minOccurs='2' maxOccurs='3'/>"
                                "<xs:element name='b' maxOccurs='4'/>"))
            + named(QStringLiteral("Later"), QString())
        << QStringLiteral("a 3: Type\nb 4: Type\n");
    QTest::newRow("names-are-case-sensitive-and-ordered-by-code-units")
        << named(QStringLiteral("Type"),
                 QStringLiteral("<xs:element name='b' maxOccurs='2'/>"
                                "<xs:element name='a' maxOccurs='2'/>"
                                "<xs:element name='B' maxOccurs='2'/>"))
        << QStringLiteral("B 2: Type\na 2: Type\nb 2: Type\n");
}

void TestXmlSchemaHandlerModel::entersOwners()
{
    QFETCH(QString, declarations);
    QFETCH(QString, occurs);
    SchemaFixture schema;
    QVERIFY(schema.Read(declarations));
    QCOMPARE(schema.Occurs(), occurs);
}

void TestXmlSchemaHandlerModel::laysOutCopies_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("copies");

    QTest::newRow("no-minimum-gives-one") << QString() << 1;
    QTest::newRow("minimum-0-gives-one") << QStringLiteral("minOccurs='0'") << 1;
    QTest::newRow("minimum-1-gives-one") << QStringLiteral("minOccurs='1'") << 1;
    QTest::newRow("minimum-3-gives-three") << QStringLiteral("minOccurs='3'") << 3;
    QTest::newRow("negative-minimum-gives-one") << QStringLiteral("minOccurs='-3'") << 1;
    QTest::newRow("sentinel-as-minimum-gives-one") << QStringLiteral("minOccurs='-100'") << 1;
    QTest::newRow("minimum-that-is-no-number-gives-one") << QStringLiteral("minOccurs='many'") << 1;
    QTest::newRow("minimum-with-a-fraction-is-no-number") << QStringLiteral("minOccurs='2.5'") << 1;
    QTest::newRow("minimum-beyond-32-bits-is-no-number") << QStringLiteral("minOccurs='99999999999'") << 1;
    QTest::newRow("minimum-with-a-leading-zero-is-decimal") << QStringLiteral("minOccurs='010'") << 10;
    QTest::newRow("maximum-gives-no-copies") << QStringLiteral("maxOccurs='5'") << 1;
}

void TestXmlSchemaHandlerModel::laysOutCopies()
{
    QFETCH(QString, attributes);
    QFETCH(int, copies);
    const QString copied = QStringLiteral("Type 1 0 [%1]\n");
    const QString own = QStringLiteral("<xs:element name='a' type='xs:int' %1/>").arg(attributes);
    const QString ofType = QStringLiteral("<xs:element name='a' type='Known' %1/>").arg(attributes);
    const QString names = QStringList(QVector<QString>(copies, QStringLiteral("a")).toList()).join(QLatin1Char(' '));

    SchemaFixture builtIn;
    QVERIFY(builtIn.Read(named(QStringLiteral("Type"), own)));
    QCOMPARE(builtIn.Definitions(), copied.arg(names));
    SchemaFixture known;
    QVERIFY(known.Read(simple(QStringLiteral("Known")) + named(QStringLiteral("Type"), ofType)));
    QCOMPARE(known.Definitions(), QStringLiteral("Known 1 0 [dummy]\n") + copied.arg(names));
}

void TestXmlSchemaHandlerModel::numbersChoices_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("choices");
    const auto type = [](const QString& content) { return named(QStringLiteral("Type"), content); };
    const QString a = QStringLiteral("<xs:element name='a' type='xs:int'/>");
    const QString b = QStringLiteral("<xs:element name='b' type='xs:int' maxOccurs='2'/>");
    const QString c = QStringLiteral("<xs:element name='c' minOccurs='0'/>");
    const QString begin = QStringLiteral("<xs:choice>");
    const QString end = QStringLiteral("</xs:choice>");

    QTest::newRow("elements-outside-of-a-choice-are-not-numbered") << type(a + b) << QString();
    QTest::newRow("every-named-alternative-is-numbered-with-or-without-occurs-code")
        << type(begin + a + b + c + end) << QStringLiteral("0 a\n1 b\n2 c\n");
    QTest::newRow("two-choices-are-numbered-without-gap")
        << type(begin + a + b + end + c + begin + c + a + end) << QStringLiteral("0 a\n1 b\n2 c\n3 a\n");
    QTest::newRow("choices-of-all-definitions-are-numbered-in-one-run")
        << type(begin + a + end) + global(QStringLiteral("root"), begin + b + end) + type(begin + c + end)
        << QStringLiteral("0 a\n1 b\n2 c\n");
    QTest::newRow("alternative-without-name-is-skipped")
        << type(begin + a + QStringLiteral("<xs:element type='xs:int'/>") + b + end) << QStringLiteral("0 a\n1 b\n");
    QTest::newRow("reference-is-numbered-by-its-name") << QStringLiteral("<xs:element name='known'/>")
            + global(QStringLiteral("root"),
                     begin + QStringLiteral("<xs:element ref='known'/><xs:element ref='later'/>") + end)
            + QStringLiteral("<xs:element name='later'/>")
                                                       << QStringLiteral("0 known\n1 later\n");
    QTest::newRow("copies-of-an-alternative-are-numbered-once")
        << type(begin + QStringLiteral("<xs:element name='a' minOccurs='3'/>") + end) << QStringLiteral("0 a\n");
    QTest::newRow("elements-nested-in-an-alternative-are-numbered")
        << global(QStringLiteral("root"),
                  begin + QStringLiteral("<xs:element name='outer'><xs:complexType>") + a
                      + QStringLiteral("</xs:complexType></xs:element>") + end)
        << QStringLiteral("0 outer\n1 a\n");
    QTest::newRow("end-of-an-inner-choice-ends-the-outer-one")
        << type(begin + a + begin + b + end + c + end) << QStringLiteral("0 a\n1 b\n");
    QTest::newRow("alternatives-in-a-sequence-are-numbered")
        << type(begin + QStringLiteral("<xs:sequence>") + a + b + QStringLiteral("</xs:sequence>") + end)
        << QStringLiteral("0 a\n1 b\n");
    QTest::newRow("global-elements-in-a-choice-are-not-numbered")
        << begin + QStringLiteral("<xs:element name='a'/>") + end << QString();
    QTest::newRow("choice-in-a-restriction-is-a-facet")
        << QStringLiteral("<xs:simpleType name='S'><xs:restriction base='xs:int'><xs:choice/></xs:restriction>") + a
            + QStringLiteral("</xs:simpleType>")
        << QString();
    QTest::newRow("choice-with-another-prefix-is-none")
        << type(QStringLiteral("<xsd:choice>") + a + QStringLiteral("</xsd:choice>")) << QString();
}

void TestXmlSchemaHandlerModel::numbersChoices()
{
    QFETCH(QString, declarations);
    QFETCH(QString, choices);
    SchemaFixture schema;
    QVERIFY(schema.Read(declarations));
    QCOMPARE(schema.Choices(), choices);
}

void TestXmlSchemaHandlerModel::definesNames_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("definitions"); // before the end of the schema

    QTest::newRow("named-types-count-as-used")
        << named(QStringLiteral("Complex"), QStringLiteral("<xs:element name='a'/>")) + simple(QStringLiteral("Simple"))
        << QStringLiteral("Complex 1 0 [a]\nSimple 1 0 [dummy]\n");
    QTest::newRow("global-declarations-count-as-unused")
        << QStringLiteral("<xs:element name='b'/><xs:attribute name='a'/>") << QStringLiteral("a 0 0 [a]\nb 0 0 [b]\n");
    QTest::newRow("local-and-anonymous-declarations-are-no-definitions")
        << global(QStringLiteral("root"),
                  QStringLiteral("<xs:element name='a'><xs:simpleType/></xs:element>"
                                 "<xs:attribute name='b'/>"))
        << QStringLiteral("root 0 0 [root]\n");
    QTest::newRow("first-attribute-names-a-definition")
        << QStringLiteral("<xs:element id='i' name='n'/><xs:complexType abstract='t' name='n'/>"
                          "<xs:simpleType final='s'/><xs:attribute use='u'/>")
        << QStringLiteral("i 0 0 [i]\ns 1 0 []\nt 1 0 []\nu 0 0 [u]\n");
    QTest::newRow("declaration-inside-an-untyped-global-is-global")
        << QStringLiteral(
               "<xs:element name='a'><xs:element name='b'><xs:attribute name='c'/></xs:element></xs:element>")
        << QStringLiteral("a 0 0 [a]\nb 0 0 [b]\nc 0 0 [c]\n");
    QTest::newRow("type-with-attributes-inside-an-element-is-a-named-type")
        << QStringLiteral("<xs:element name='a'><xs:complexType mixed='true'/></xs:element>")
        << QStringLiteral("a 0 0 [a]\ntrue 1 0 []\n");
    QTest::newRow("later-type-replaces-the-earlier")
        << named(QStringLiteral("T"), QStringLiteral("<xs:element name='a' type='Never'/>"))
            + named(QStringLiteral("T"), QStringLiteral("<xs:element name='b'/>"))
        << QStringLiteral("T 1 0 [b]\n");
    QTest::newRow("later-global-declaration-replaces-the-earlier")
        << QStringLiteral("<xs:element name='a' type='Never'/><xs:element name='a'/>") << QStringLiteral("a 0 0 [a]\n");
    QTest::newRow("global-declaration-replaces-a-type-of-its-name") << named(QStringLiteral("a"), QString())
            + QStringLiteral("<xs:element name='a'/>") << QStringLiteral("a 0 0 [a]\n");
    QTest::newRow("template-of-a-repeated-element-waits-once")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' minOccurs='3'/>"))
        << QStringLiteral("a 1 1 [a]\nroot 0 1 [root]\n");
    QTest::newRow("template-replaces-a-definition-of-its-name")
        << named(QStringLiteral("a"), QStringLiteral("<xs:element name='b'/>"))
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' minOccurs='2'/>"))
        << QStringLiteral("a 1 1 [a]\nroot 0 1 [root]\n");
    QTest::newRow("template-takes-what-follows-in-a-named-type")
        << named(QStringLiteral("T"),
                 QStringLiteral("<xs:element name='a' type='Later' minOccurs='2'/>"
                                "<xs:element name='b'/>"))
        << QStringLiteral("T 1 1 [a]\na 1 1 [a b]\n");
    QTest::newRow("element-once-of-a-later-type-has-no-template")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' minOccurs='1'/>"))
        << QStringLiteral("root 0 1 [root]\n");
}

void TestXmlSchemaHandlerModel::definesNames()
{
    QFETCH(QString, declarations);
    QFETCH(QString, definitions);
    SchemaFixture schema;
    schema.ReadWithoutEnd(declarations);
    QCOMPARE(schema.Definitions(), definitions);
}

void TestXmlSchemaHandlerModel::marksUsedDefinitions_data()
{
    QTest::addColumn<QString>("use"); // of a global element or attribute called "known"

    QTest::newRow("type-of-a-local-element")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='known'/>"));
    QTest::newRow("type-of-a-global-element") << QStringLiteral("<xs:element name='root' type='known'/>");
    QTest::newRow("reference-of-an-element")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='known'/>"));
    QTest::newRow("reference-of-an-attribute")
        << global(QStringLiteral("root"), QStringLiteral("<xs:attribute ref='known'/>"));
    QTest::newRow("base-of-an-extension")
        << global(QStringLiteral("root"), QStringLiteral("<xs:extension base='known'/>"));
}

void TestXmlSchemaHandlerModel::marksUsedDefinitions()
{
    QFETCH(QString, use);
    const QStringList declarations {QStringLiteral("<xs:element name='known' type='xs:int'/>"),
                                    QStringLiteral("<xs:attribute name='known' type='xs:int'/>")};
    for (const QString& declaration : declarations) {
        SchemaFixture known;
        known.ReadWithoutEnd(declaration + use);
        QCOMPARE(known.Definitions().section(QLatin1Char('\n'), 0, 0), QStringLiteral("known 1 0 [known]"));

        SchemaFixture later;
        later.ReadWithoutEnd(use + declaration);
        QCOMPARE(later.Definitions(), QStringLiteral("known 0 0 [known]\nroot 0 1 [root]\n"));
        SchemaFixture resolved;
        QVERIFY(resolved.Read(use + declaration));
        QCOMPARE(resolved.Definitions(), QStringLiteral("known 1 -1 [known]\nroot 1 0 [root]\n"));
    }
}

void TestXmlSchemaHandlerModel::recordsReferences_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("references"); // before the end of the schema
    QTest::addColumn<QString>("pending"); // the definitions that wait: "name count, name count"
    const auto root = [](const QString& content) { return global(QStringLiteral("root"), content); };
    const auto type = [](const QString& content) { return named(QStringLiteral("Type"), content); };

    QTest::newRow("known-definitions-are-not-recorded")
        << named(QStringLiteral("Known"), QStringLiteral("<xs:element name='a'/>"))
            + root(QStringLiteral("<xs:element name='b' type='Known'/>"))
        << QString() << QString();
    QTest::newRow("type-of-an-element-waits-in-that-element")
        << root(QStringLiteral("<xs:element name='a'/><xs:element name='b' type='Later'/>"))
        << QStringLiteral("Later 1: b in root\n") << QStringLiteral("root 1");
    QTest::newRow("optional-element-of-a-later-type-waits-once")
        << root(QStringLiteral("<xs:element name='b' type='Later' minOccurs='0'/>"))
        << QStringLiteral("Later 1: b in root\n") << QStringLiteral("root 1");
    QTest::newRow("type-of-an-element-in-a-named-type-waits-in-that-element")
        << type(QStringLiteral("<xs:element name='a' type='Later'/>")) << QStringLiteral("Later 1: a in Type\n")
        << QStringLiteral("Type 1");
    QTest::newRow("type-of-a-global-element-waits-in-that-element")
        << QStringLiteral("<xs:element name='root' type='Later'/>") << QStringLiteral("Later 1: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("type-of-a-global-attribute-waits-in-its-element")
        << QStringLiteral("<xs:attribute name='root' type='Later'/>") << QStringLiteral("Later 1: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("empty-type-of-a-global-element-is-recorded")
        << QStringLiteral("<xs:element name='root' type=''/>") << QStringLiteral(" 1: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("element-reference-waits-behind-the-last-child")
        << root(QStringLiteral("<xs:element name='a'/><xs:element name='b'/><xs:element ref='later'/>"))
        << QStringLiteral("later 1: root behind b in root\n") << QStringLiteral("root 1");
    QTest::newRow("element-reference-without-child-has-no-anchor")
        << root(QStringLiteral("<xs:element ref='later'/>")) << QStringLiteral("later 1: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("element-reference-waits-with-its-minimum-and-once")
        << root(QStringLiteral("<xs:element ref='later' minOccurs='3'/>")) << QStringLiteral("later 3: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("optional-element-reference-waits-with-count-0")
        << root(QStringLiteral("<xs:element ref='later' minOccurs='0'/>")) << QStringLiteral("later 0: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("element-reference-with-the-sentinel-as-minimum-waits-with-count-1")
        << root(QStringLiteral("<xs:element ref='later' minOccurs='-100'/>"))
        << QStringLiteral("later 1: root in root\n") << QStringLiteral("root 1");
    QTest::newRow("element-reference-in-a-nested-element-waits-there")
        << root(QStringLiteral("<xs:element name='a'><xs:complexType><xs:element ref='later'/></xs:complexType>"
                               "</xs:element>"))
        << QStringLiteral("later 1: a in root\n") << QStringLiteral("root 1");
    QTest::newRow("element-reference-in-a-named-type-waits-on-the-last-global-element")
        << QStringLiteral("<xs:element name='last'/>")
            + named(QStringLiteral("Holder"), QStringLiteral("<xs:element name='a'/><xs:element ref='later'/>"))
        << QStringLiteral("later 1: last in Holder\n") << QStringLiteral("Holder 1");
    QTest::newRow("element-reference-before-any-global-element-waits-on-nothing")
        << type(QStringLiteral("<xs:element name='a'/><xs:element ref='later'/>"))
        << QStringLiteral("later 1: nothing in Type\n") << QStringLiteral("Type 1");
    QTest::newRow("attribute-reference-waits-on-the-current-element")
        << root(QStringLiteral("<xs:element name='a'/><xs:attribute ref='later'/>"))
        << QStringLiteral("later 1: root in root, attribute\n") << QStringLiteral("root 1");
    QTest::newRow("attribute-reference-in-a-named-type-waits-on-the-last-global-element")
        << QStringLiteral("<xs:element name='last'/>")
            + named(QStringLiteral("Holder"), QStringLiteral("<xs:element name='a'/><xs:attribute ref='later'/>"))
        << QStringLiteral("later 1: last in Holder, attribute\n") << QStringLiteral("Holder 1");
    QTest::newRow("base-of-an-extension-waits-on-the-current-element")
        << root(QStringLiteral("<xs:extension base='Later'/>")) << QStringLiteral("Later 1: root in root\n")
        << QStringLiteral("root 1");
    QTest::newRow("base-of-an-extension-in-a-named-type-waits-on-the-carrier")
        << type(QStringLiteral("<xs:extension base='Later'/>")) << QStringLiteral("Later 1: dummy in Type\n")
        << QStringLiteral("Type 1");
    QTest::newRow("base-of-a-restriction-is-not-recorded")
        << type(QStringLiteral("<xs:restriction base='Later'/>")) << QString() << QString();
    QTest::newRow("records-of-one-name-and-count-stand-in-reading-order")
        << root(QStringLiteral("<xs:element name='a' type='Later'/><xs:element name='b' type='Later'/>"
                               "<xs:element name='c' type='Later'/>"))
        << QStringLiteral("Later 1: a in root\nLater 1: b in root\nLater 1: c in root\n") << QStringLiteral("root 3");
    QTest::newRow("counts-of-one-name-stand-beside-each-other")
        << root(QStringLiteral("<xs:element ref='later' minOccurs='2'/><xs:element name='a' type='later'/>"
                               "<xs:element ref='later' minOccurs='0'/>"))
        << QStringLiteral("later 0: root behind a in root\nlater 1: a in root\nlater 2: root in root\n")
        << QStringLiteral("root 3");
    QTest::newRow("repeated-element-of-a-later-type-waits-with-its-template")
        << root(QStringLiteral("<xs:element name='z'/><xs:element name='a' type='Later' minOccurs='3'/>"))
        << QStringLiteral("Later 1: a in root\nLater 1: a in a\na 2: root behind a in root\n")
        << QStringLiteral("a 1, root 1");
    QTest::newRow("definition-that-waits-itself-is-waited-for")
        << QStringLiteral("<xs:element name='first' type='Later'/>") + root(QStringLiteral("<xs:element ref='first'/>"))
        << QStringLiteral("Later 1: first in first\nfirst 1: root in root\n") << QStringLiteral("first 1, root 1");
    QTest::newRow("every-kind-of-reference-counts-as-pending")
        << root(QStringLiteral("<xs:element name='a' type='L1'/><xs:element ref='L2' minOccurs='4'/>"
                               "<xs:attribute ref='L3'/><xs:extension base='L4'/>"))
        << QStringLiteral("L1 1: a in root\nL2 4: root behind a in root\nL3 1: root in root, attribute\n"
                          "L4 1: a in root\n")
        << QStringLiteral("root 4");
}

void TestXmlSchemaHandlerModel::recordsReferences()
{
    QFETCH(QString, declarations);
    QFETCH(QString, references);
    QFETCH(QString, pending);
    SchemaFixture schema;
    schema.ReadWithoutEnd(declarations);
    QCOMPARE(schema.References(), references);
    QCOMPARE(pendingDefinitions(schema), pending);
}

void TestXmlSchemaHandlerModel::servesReferences_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("definitions");
    const QString later = named(QStringLiteral("Later"), QStringLiteral("<xs:element name='leaf'/>"));

    QTest::newRow("served-definition-waits-no-more")
        << named(QStringLiteral("T"), QStringLiteral("<xs:element name='a' type='Later'/>")) + later
        << QStringLiteral("Later 1 -1 [leaf]\nT 1 0 [a]\n");
    QTest::newRow("definition-served-and-waited-for-is-expanded")
        << named(QStringLiteral("T"), QStringLiteral("<xs:element name='a' type='Later'/>"))
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='b' type='T'/>")) + later
        << QStringLiteral("Later 1 -1 [leaf]\nT 1 -1 [a]\nroot 1 0 [root]\n");
    QTest::newRow("definition-nobody-waits-for-keeps-its-count")
        << named(QStringLiteral("T"), QStringLiteral("<xs:element name='a'/>")) + later
        << QStringLiteral("Later 1 0 [leaf]\nT 1 0 [a]\n");
    QTest::newRow("template-is-expanded")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later' minOccurs='3'/>")) + later
        << QStringLiteral("Later 1 -1 [leaf]\na 1 -1 [a]\nroot 1 0 [root]\n");
    QTest::newRow("count-of-a-definition-that-was-replaced-is-not-touched-below-0")
        << named(QStringLiteral("T"), QStringLiteral("<xs:element name='a' type='Later'/>"))
            + named(QStringLiteral("T"), QStringLiteral("<xs:element name='b'/>")) + later
        << QStringLiteral("Later 1 -1 [leaf]\nT 1 0 [b]\n");
    QTest::newRow("empty-name-leaves-its-definition-pending")
        << QStringLiteral("<xs:element name='root' type=''/>") << QStringLiteral("root 1 1 [root]\n");
    QTest::newRow("every-unused-global-declaration-counts-as-used-at-the-end")
        << QStringLiteral("<xs:element name='a'/><xs:element name='b'/><xs:attribute name='c'/>")
        << QStringLiteral("a 1 0 [a]\nb 1 0 [b]\nc 1 0 [c]\n");
}

void TestXmlSchemaHandlerModel::servesReferences()
{
    QFETCH(QString, declarations);
    QFETCH(QString, definitions);
    SchemaFixture schema;
    QVERIFY(schema.Read(declarations));
    QCOMPARE(schema.Definitions(), definitions);
}

void TestXmlSchemaHandlerModel::keepsTheRecordsAtTheEnd()
{
    SchemaFixture schema;
    QVERIFY(schema.Read(global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Later'/>"))
                        + named(QStringLiteral("Later"), QStringLiteral("<xs:element name='leaf'/>"))));
    QCOMPARE(schema.References(), QStringLiteral("Later 1: a in root\n"));
}

void TestXmlSchemaHandlerModel::failsForMissingDefinitions_data()
{
    QTest::addColumn<QString>("declarations");

    QTest::newRow("type-of-a-local-element")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Never'/>"));
    QTest::newRow("type-with-another-prefix")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='xsd:int'/>"));
    QTest::newRow("type-in-another-case")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='never'/>"))
            + simple(QStringLiteral("Never"));
    QTest::newRow("type-of-a-repeated-element")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='a' type='Never' minOccurs='2'/>"));
    QTest::newRow("type-of-a-global-element") << QStringLiteral("<xs:element name='root' type='Never'/>");
    QTest::newRow("reference-of-an-element")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='never'/>"));
    QTest::newRow("reference-of-an-attribute")
        << global(QStringLiteral("root"), QStringLiteral("<xs:attribute ref='never'/>"));
    QTest::newRow("base-of-an-extension")
        << global(QStringLiteral("root"), QStringLiteral("<xs:extension base='Never'/>"));
    QTest::newRow("type-in-a-definition-that-nobody-uses") << QStringLiteral("<xs:element name='root'/>")
            + named(QStringLiteral("Unused"), QStringLiteral("<xs:element name='a' type='Never'/>"));
    QTest::newRow("one-of-many") << named(QStringLiteral("Later"), QStringLiteral("<xs:element name='a' type='Zulu'/>"))
            + global(QStringLiteral("root"),
                     QStringLiteral("<xs:element name='a' type='Later'/>"
                                    "<xs:element name='b' type='Never'/>"))
            + simple(QStringLiteral("Zulu"));
}

void TestXmlSchemaHandlerModel::failsForMissingDefinitions()
{
    QFETCH(QString, declarations);
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(!schema.Read(declarations));
    QVERIFY2(traces.IsOnly(missingTrace(), QStringLiteral("tools/xmlhelper/xmlschemahandler"), 1389),
             qPrintable(traces.Messages()));
    QCOMPARE(schema.Events(), QStringList());
}

void TestXmlSchemaHandlerModel::failsForDefinitionsThatWaitForEachOther_data()
{
    QTest::addColumn<QString>("declarations");
    const auto type = [](const QString& name, const QString& other) {
        return named(name, QStringLiteral("<xs:element name='e' type='%1'/>").arg(other));
    };
    const auto element = [](const QString& name, const QString& other) {
        return global(name, QStringLiteral("<xs:element ref='%1'/>").arg(other));
    };

    QTest::newRow("two-types") << type(QStringLiteral("A"), QStringLiteral("B"))
            + type(QStringLiteral("B"), QStringLiteral("A"));
    QTest::newRow("three-types") << type(QStringLiteral("A"), QStringLiteral("B"))
            + type(QStringLiteral("B"), QStringLiteral("C")) + type(QStringLiteral("C"), QStringLiteral("A"));
    QTest::newRow("two-elements") << element(QStringLiteral("a"), QStringLiteral("b"))
            + element(QStringLiteral("b"), QStringLiteral("a"));
    QTest::newRow("two-extensions") << QStringLiteral(
        "<xs:complexType name='A'><xs:extension base='B'/></xs:complexType>"
        "<xs:complexType name='B'><xs:extension base='A'/></xs:complexType>");
    QTest::newRow("two-global-types") << QStringLiteral(
        "<xs:element name='a' type='b'/><xs:element name='b' type='a'/>");
    QTest::newRow("type-that-waits-for-another-and-for-itself")
        << named(QStringLiteral("A"), QStringLiteral("<xs:element name='x' type='B'/><xs:element name='y' type='A'/>"))
            + simple(QStringLiteral("B"));
    QTest::newRow("definition-that-waits-for-an-empty-name")
        << QStringLiteral("<xs:element name='a' type=''/>") + element(QStringLiteral("root"), QStringLiteral("a"));
    QTest::newRow("others-are-served-first") << type(QStringLiteral("A"), QStringLiteral("B"))
            + type(QStringLiteral("B"), QStringLiteral("A")) + type(QStringLiteral("C"), QStringLiteral("D"))
            + simple(QStringLiteral("D"));
}

void TestXmlSchemaHandlerModel::failsForDefinitionsThatWaitForEachOther()
{
    QFETCH(QString, declarations);
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(!schema.Read(declarations));
    QVERIFY2(traces.IsOnly(missingTrace(), QStringLiteral("tools/xmlhelper/xmlschemahandler"), 1389),
             qPrintable(traces.Messages()));
}

void TestXmlSchemaHandlerModel::failsWhenANameLeavesNoRoot_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("leftOut");
    QTest::addColumn<bool>("isRootLeft");
    const QString element = QStringLiteral("<xs:element default='5' name='Level'/>");

    QTest::newRow("only-global-element-left-out") << element << QStringLiteral("5") << false;
    QTest::newRow("only-global-attribute-left-out")
        << QStringLiteral("<xs:attribute name='a b'/>") << QStringLiteral("a b") << false;
    QTest::newRow("content-of-a-left-out-global-is-no-root")
        << QStringLiteral("<xs:element name='1'><xs:complexType><xs:element name='e'/></xs:complexType></xs:element>")
        << QStringLiteral("1") << false;
    QTest::newRow("empty-type-behind-a-left-out-global-is-no-root")
        << element + named(QStringLiteral("T"), QString()) << QStringLiteral("5") << false;
    QTest::newRow("other-global-is-the-root")
        << element + QStringLiteral("<xs:element name='root'/>") << QStringLiteral("5") << true;
    QTest::newRow("type-read-last-is-the-root")
        << element + named(QStringLiteral("T"), QStringLiteral("<xs:element name='e'/>")) << QStringLiteral("5")
        << true;
}

void TestXmlSchemaHandlerModel::failsWhenANameLeavesNoRoot()
{
    QFETCH(QString, declarations);
    QFETCH(QString, leftOut);
    QFETCH(bool, isRootLeft);
    TraceCollector traces;
    SchemaFixture schema;
    QCOMPARE(schema.Read(declarations), isRootLeft);
    QCOMPARE(traces.Messages(),
             QStringLiteral("XmlSchemaHandler: XML does not allow the name \"%1\", it was refused!").arg(leftOut));
    QCOMPARE(schema.Handler().GetDocument()->documentElement().isNull(), !isRootLeft);
    QCOMPARE(schema.Skeleton().isEmpty(), !isRootLeft);

    // Without a declaration that was left out, a schema without a root is none that fails.
    QVERIFY(SchemaFixture().Read(named(QStringLiteral("T"), QString())));
}

void TestXmlSchemaHandlerModel::givesSeveralRootsWithATrace()
{
    TraceCollector traces;
    QVERIFY(SchemaFixture().Read(named(QStringLiteral("T"), QStringLiteral("<xs:element name='a'/>"))));
    QCOMPARE(traces.Messages(), QString());
    SchemaFixture schema;
    // Without a global element the content of the type read last is laid out.
    QVERIFY(schema.Read(named(QStringLiteral("T"), QStringLiteral("<xs:element name='a'/><xs:element name='b'/>"))));
    QCOMPARE(schema.Skeleton(), QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n<a/>\n<b/>\n"));
    QCOMPARE(traces.Messages(), QStringLiteral("The schema lays out several roots, the report is no XML document!"));
}

void TestXmlSchemaHandlerModel::keepsTheMapsOfAFailedSchema()
{
    SchemaFixture schema;
    // In the order of names Able is laid out before Baker is missed, and Charlie is not looked at any more.
    QVERIFY(!schema.Read(global(QStringLiteral("root"),
                                QStringLiteral("<xs:choice><xs:element name='a' type='Able' maxOccurs='2'/>"
                                               "<xs:element name='b' type='Baker'/>"
                                               "<xs:element name='c' type='Charlie'/></xs:choice>"))
                         + simple(QStringLiteral("Able")) + simple(QStringLiteral("Charlie"))));
    QCOMPARE(schema.Definitions(), QStringLiteral("Able 1 -1 [dummy]\nCharlie 1 0 [dummy]\nroot 0 2 [root]\n"));
    QCOMPARE(schema.References(), QStringLiteral("Able 1: a in root\nBaker 1: b in root\nCharlie 1: c in root\n"));
    QCOMPARE(schema.Occurs(), QStringLiteral("a 2: root\n"));
    QCOMPARE(schema.Choices(), QStringLiteral("0 a\n1 b\n2 c\n"));
    QCOMPARE(schema.Skeleton(), QString());
}

void TestXmlSchemaHandlerModel::failsForMalformedSchemas()
{
    TraceCollector traces;
    SchemaFixture schema;
    QVERIFY(!schema.Read(QStringLiteral("<xs:element name='a'/><broken>")));
    QCOMPARE(schema.Definitions(), QStringLiteral("a 0 0 [a]\n"));
    QCOMPARE(schema.Skeleton(), QString());
    QCOMPARE(traces.Messages(), QString());
    QCOMPARE(schema.Events(), QStringList());
}

void TestXmlSchemaHandlerModel::hasAnEmptyDocumentUntilTheEnd()
{
    SchemaFixture schema;
    QDomDocument* const document = schema.Handler().GetDocument();
    QVERIFY(document);
    QVERIFY(!document->hasChildNodes());
    schema.ReadWithoutEnd(QStringLiteral("<xs:element name='root'/>"));
    QVERIFY(!document->hasChildNodes());

    QVERIFY(schema.Read(QStringLiteral("<xs:element name='root'/>")));
    QCOMPARE(schema.Handler().GetDocument(), document);
    QCOMPARE(schema.Skeleton(), QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n<root/>\n"));
}

void TestXmlSchemaHandlerModel::handsCopiesOver()
{
    SchemaFixture schema;
    QVERIFY(schema.Read(global(QStringLiteral("root"),
                               QStringLiteral("<xs:choice><xs:element name='a' type='Later'"
                                              " maxOccurs='2'/></xs:choice>"))
                        + simple(QStringLiteral("Later"))));
    // What the targets held is gone; the pointers are copied, not what they point to.
    UnresolvedTypeMap references {{QStringLiteral("old"), {}}};
    OccursMap occurs {{QStringLiteral("old"), {}}};
    TypeDefinitionMap definitions {{QStringLiteral("old"), {1, 0, nullptr}}};
    ChoiceMap choices {{7, QStringLiteral("old")}};
    QVERIFY(schema.Handler().HandOver(references, occurs, definitions, choices));
    QCOMPARE(references.size(), std::size_t(1));
    QCOMPARE(references[QStringLiteral("Later")][1].front().ownerElement->tagName(), QStringLiteral("a"));
    QCOMPARE(occurs, (OccursMap {{QStringLiteral("a"), {{2, {QStringLiteral("root")}}}}}));
    QCOMPARE(choices, (ChoiceMap {{0, QStringLiteral("a")}}));
    QCOMPARE(definitions.size(), std::size_t(2));

    UnresolvedTypeMap referencesAgain;
    OccursMap occursAgain;
    TypeDefinitionMap definitionsAgain;
    ChoiceMap choicesAgain;
    occurs.clear();
    QVERIFY(schema.Handler().HandOver(referencesAgain, occursAgain, definitionsAgain, choicesAgain));
    QCOMPARE(occursAgain.size(), std::size_t(1));
    QCOMPARE(definitionsAgain[QStringLiteral("root")].fragment, definitions[QStringLiteral("root")].fragment);
    QCOMPARE(referencesAgain[QStringLiteral("Later")][1].front().ownerElement,
             references[QStringLiteral("Later")][1].front().ownerElement);
}

void TestXmlSchemaHandlerModel::handsOverIntoItsOwnMaps()
{
    SchemaFixture schema;
    QVERIFY(schema.Read(global(QStringLiteral("root"),
                               QStringLiteral("<xs:choice><xs:element name='a' type='Later'"
                                              " maxOccurs='2'/></xs:choice>"))
                        + simple(QStringLiteral("Later"))));
    const QStringList before {schema.References(), schema.Occurs(), schema.Definitions(), schema.Choices()};
    XmlSchemaHandler& handler = schema.Handler();
    QVERIFY(handler.HandOver(handler.*revealed(OwnReferences()), handler.*revealed(OwnOccurs()),
                             handler.*revealed(OwnDefinitions()), handler.*revealed(OwnChoices())));
    QCOMPARE((QStringList {schema.References(), schema.Occurs(), schema.Definitions(), schema.Choices()}), before);
    QVERIFY(!before.contains(QString()));
}

void TestXmlSchemaHandlerModel::tracesAMissingObserver()
{
    TraceCollector traces;
    const XmlSchemaHandler handler(nullptr, QStringLiteral("schema.xsd"));
    QVERIFY(traces.IsOnly(QStringLiteral("XmlSchemaHandler: pCallback is NULL!"),
                          QStringLiteral("tools/xmlhelper/xmlschemahandler"), 35));
    QVERIFY(!handler.GetDocument());
}

void TestXmlSchemaHandlerModel::tracesNothingWithoutItsBitInTheMask()
{
    TraceCollector traces(~32u);
    const XmlSchemaHandler handler(nullptr, QStringLiteral("schema.xsd"));
    SchemaFixture schema;
    QVERIFY(!schema.Read(QStringLiteral("<xs:element name='root' type='Never'/>")));
    QVERIFY(traces.Traces().empty());
}

void TestXmlSchemaHandlerModel::refusesTheEndOfADocumentWithoutObserver()
{
    XmlSchemaHandler handler(nullptr, QStringLiteral("schema.xsd"));
    TraceCollector traces;
    QVERIFY(handler.startDocument());
    QVERIFY(handler.startElement(QString(), QString(), QStringLiteral("xs:schema"), QXmlAttributes()));
    QVERIFY(!handler.endDocument());
    QCOMPARE(traces.Messages(), QStringLiteral("Callback-Pointer is NULL!"));
}

QTEST_GUILESS_MAIN(TestXmlSchemaHandlerModel)
#include "tst_xmlschemahandler_model.moc"
