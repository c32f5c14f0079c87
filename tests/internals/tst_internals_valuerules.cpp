#include <QtTest>

#include <limits>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/valuerules_p.h>

Q_DECLARE_METATYPE(Setters)

class TestValueRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typesAreTaken_data();
    void typesAreTaken();
    void shortAndLongAreTakenAsThemselves();
    void eachSetterHasABuiltInType();
    void onlyTypedElementsHoldValues();
    void namesAreEnumerationValues_data();
    void namesAreEnumerationValues();
    void namesAreRangeFacets_data();
    void namesAreRangeFacets();
    void namesAreTakenApart_data();
    void namesAreTakenApart();
    void limitsHaveACode_data();
    void limitsHaveACode();
    void codesAllowCounts_data();
    void codesAllowCounts();
};

namespace {

constexpr Setters Nothing;
constexpr int Greatest = std::numeric_limits<int>::max();

QString textOf(QLatin1String text)
{
    return text;
}

} // namespace

void TestValueRules::typesAreTaken_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<Setters>("ofElements");
    QTest::addColumn<Setters>("ofAttributes");
    const Setters all
        = Setter::Text | Setter::Floating | Setter::Integer | Setter::Truth | Setter::DateTime | Setter::Time;
    const auto row = [](const char* name, const char* type, Setters ofElements, Setters ofAttributes) {
        QTest::newRow(name) << QString::fromLatin1(type) << ofElements << ofAttributes;
    };
    row("no-type-takes-nothing", "", Nothing, Nothing);
    row("string", "string", Setter::Text, Setter::Text);
    row("double", "double", Setter::Floating, Setter::Floating);
    row("integer", "integer", Setter::Integer, Setter::Integer);
    row("int-is-an-integer-for-elements-only", "int", Setter::Integer, Nothing);
    row("int-with-prefix-is-none", "xs:int", Nothing, Nothing);
    row("boolean-is-a-truth-for-elements-only", "boolean", Setter::Truth, Nothing);
    row("dateTime", "dateTime", Setter::DateTime, Setter::DateTime);
    row("time-is-for-elements-only", "time", Setter::Time, Nothing);
    row("short-takes-everything-for-elements-only", "short", all, Nothing);
    row("long-takes-everything-for-elements-only", "long", all, Nothing);
    row("unsignedLong-is-no-long", "unsignedLong", Nothing, Nothing);
    row("word-within-the-type", "nonNegativeinteger", Setter::Integer, Setter::Integer);
    row("case-counts", "nonNegativeInteger", Nothing, Nothing);
    row("declared-type-with-prefix", "xs:string", Setter::Text, Setter::Text);
    row("several-words", "stringtime", Setter::Text | Setter::Time, Setter::Text);
    row("decimal-takes-nothing", "decimal", Nothing, Nothing);
}

void TestValueRules::typesAreTaken()
{
    QFETCH(QString, type);
    QFETCH(Setters, ofElements);
    QFETCH(Setters, ofAttributes);
    QCOMPARE(settersOfElement(type), ofElements);
    QCOMPARE(settersOfAttribute(type), ofAttributes);
}

void TestValueRules::shortAndLongAreTakenAsThemselves()
{
    const QString word = wordOf(Setter::Floating);
    QCOMPARE(typeTakenBy(word, QStringLiteral("short")), textOf(ShortType));
    QCOMPARE(typeTakenBy(word, QStringLiteral("myshortlong")), textOf(ShortType));
    QCOMPARE(typeTakenBy(word, QStringLiteral("long")), QStringLiteral("long"));
    QCOMPARE(typeTakenBy(word, QStringLiteral("shortdouble")), QStringLiteral("shortdouble"));
}

void TestValueRules::eachSetterHasABuiltInType()
{
    const QStringList ofElements {QStringLiteral("string"),  QStringLiteral("double"),   QStringLiteral("integer"),
                                  QStringLiteral("boolean"), QStringLiteral("dateTime"), QStringLiteral("time")};
    const QStringList ofAttributes {QStringLiteral("string"), QStringLiteral("double"), QStringLiteral("integer"),
                                    QStringLiteral("dateTime")};
    QCOMPARE(builtInTypesOfElements(), ofElements);
    QCOMPARE(builtInTypesOfAttributes(), ofAttributes);
    for (const QString& type : ofElements) {
        QVERIFY2(settersOfElement(type), qPrintable(type));
    }
    for (const QString& type : ofAttributes) {
        QVERIFY2(settersOfAttribute(type), qPrintable(type));
    }
}

void TestValueRules::onlyTypedElementsHoldValues()
{
    QVERIFY(isValueType(QStringLiteral("decimal")));
    QVERIFY(!isValueType(QString()));
}

void TestValueRules::namesAreEnumerationValues_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("ofElement");
    QTest::addColumn<bool>("ofAttributeUnit");
    QTest::newRow("of-the-element") << QStringLiteral("enumeration12") << true << false;
    QTest::newRow("of-the-attribute") << QStringLiteral("enumeration1Unit") << false << true;
    QTest::newRow("of-an-attribute-with-a-longer-name") << QStringLiteral("enumeration1SubUnit") << false << true;
    QTest::newRow("of-an-attribute-that-ends-with-a-digit") << QStringLiteral("enumeration1Unit2") << true << true;
    QTest::newRow("word-anywhere") << QStringLiteral("myenumeration1") << true << false;
    QTest::newRow("without-number") << QStringLiteral("enumeration") << false << false;
    QTest::newRow("attribute-itself") << QStringLiteral("Unit") << false << false;
    QTest::newRow("empty") << QString() << false << false;
}

void TestValueRules::namesAreEnumerationValues()
{
    QFETCH(QString, name);
    QFETCH(bool, ofElement);
    QFETCH(bool, ofAttributeUnit);
    QCOMPARE(isEnumerationOfElement(name), ofElement);
    QCOMPARE(isEnumerationOfAttribute(name, QStringLiteral("Unit")), ofAttributeUnit);
    QCOMPARE(isPossibleFacet(name), name.contains(QLatin1String("enumeration")));
}

void TestValueRules::namesAreRangeFacets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ofElement");
    QTest::addColumn<QString>("ofAttributeLevel");
    QTest::addColumn<bool>("ofType");
    const auto row = [](const char* rule, const char* name, const char* ofElement, const char* ofLevel, bool ofType) {
        QTest::newRow(rule) << QString::fromLatin1(name) << QString::fromLatin1(ofElement)
                            << QString::fromLatin1(ofLevel) << ofType;
    };
    row("minInclusive", "minInclusive", "minInclusive", "", true);
    row("maxInclusive", "maxInclusive", "maxInclusive", "", true);
    row("minExclusive", "minExclusive", "minExclusive", "", true);
    row("maxExclusive", "maxExclusive", "maxExclusive", "", true);
    row("of-the-attribute", "maxInclusiveLevel", "", "maxInclusive", true);
    row("of-an-attribute-with-a-longer-name", "minExclusiveLevels", "", "minExclusive", true);
    row("of-another-attribute", "minInclusiveUnit", "", "", true);
    row("facet-anywhere-in-the-name", "LevelminInclusive", "", "minInclusive", true);
    row("mark-of-no-facet", "clusiveLevel", "", "", true);
    row("attribute-itself", "Level", "", "", false);
    row("other-facet", "pattern", "", "", false);
}

void TestValueRules::namesAreRangeFacets()
{
    QFETCH(QString, name);
    QFETCH(QString, ofElement);
    QFETCH(QString, ofAttributeLevel);
    QFETCH(bool, ofType);
    QCOMPARE(textOf(rangeFacetOfElement(name)), ofElement);
    QCOMPARE(textOf(rangeFacetOfAttribute(name, QStringLiteral("Level"))), ofAttributeLevel);
    QCOMPARE(isFacetOfType(name), ofType);
    QCOMPARE(isPossibleFacet(name), ofType && name != QLatin1String("clusiveLevel"));
}

void TestValueRules::namesAreTakenApart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("facet");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("attribute");
    const auto row = [](const char* rule, const char* name, const char* facet, int number, const char* attribute) {
        QTest::newRow(rule) << QString::fromLatin1(name) << QString::fromLatin1(facet) << number
                            << QString::fromLatin1(attribute);
    };
    row("enumeration-of-the-element", "enumeration12", "enumeration", 12, "");
    row("enumeration-of-an-attribute", "enumeration3Unit", "enumeration", 3, "Unit");
    row("enumeration-of-an-attribute-that-ends-with-a-digit", "enumeration3Unit2", "enumeration", 3, "Unit2");
    row("range-of-the-element", "maxExclusive", "maxExclusive", 0, "");
    row("range-of-an-attribute", "minInclusiveLevel", "minInclusive", 0, "Level");
    row("enumeration-without-number", "enumeration", "", 0, "");
    row("enumeration-inside", "myenumeration1", "", 0, "");
    row("no-facet", "Level", "", 0, "");
}

void TestValueRules::namesAreTakenApart()
{
    QFETCH(QString, name);
    QFETCH(QString, facet);
    QFETCH(int, number);
    QFETCH(QString, attribute);
    const FacetName found = facetNameIn(name);
    QCOMPARE(textOf(found.facet), facet);
    QCOMPARE(found.number, number);
    QCOMPARE(found.attribute, attribute);
}

void TestValueRules::limitsHaveACode_data()
{
    QTest::addColumn<int>("minOccurs");
    QTest::addColumn<int>("maxOccurs");
    QTest::addColumn<bool>("isLimited");
    QTest::addColumn<int>("code");
    QTest::newRow("required-without-maximum-has-none") << 1 << OccursNotGiven << false << 0;
    QTest::newRow("required") << 1 << 5 << true << 5;
    QTest::newRow("required-unbounded") << 2 << UnboundedOccurs << true << -1;
    QTest::newRow("optional-without-maximum") << 0 << OccursNotGiven << true << 0;
    QTest::newRow("optional-counts-a-hundredfold") << 0 << 3 << true << 300;
    QTest::newRow("optional-unbounded") << 0 << UnboundedOccurs << true << -100;
    QTest::newRow("optional-of-the-greatest-number") << 0 << Greatest << true << Greatest / 100 * 100;
}

void TestValueRules::limitsHaveACode()
{
    QFETCH(int, minOccurs);
    QFETCH(int, maxOccurs);
    QFETCH(bool, isLimited);
    QFETCH(int, code);
    const std::optional<int> found = occursCodeOf(minOccurs, maxOccurs);
    QCOMPARE(found.has_value(), isLimited);
    QCOMPARE(found.value_or(0), code);
}

void TestValueRules::codesAllowCounts_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isZeroAllowed");
    QTest::addColumn<int>("greatest");
    QTest::newRow("required") << 5 << false << 5;
    QTest::newRow("required-hundredfold-looks-optional") << 200 << true << 200;
    QTest::newRow("required-unbounded") << -1 << false << UnboundedOccurs;
    QTest::newRow("optional-without-maximum-takes-zero-only") << 0 << true << 0;
    QTest::newRow("optional-unbounded") << -100 << true << UnboundedOccurs;
    QTest::newRow("between-the-unbounded-codes") << -150 << false << UnboundedOccurs;
    QTest::newRow("negative-maximum-takes-none") << -3 << false << 0;
}

void TestValueRules::codesAllowCounts()
{
    QFETCH(int, code);
    QFETCH(bool, isZeroAllowed);
    QFETCH(int, greatest);
    QCOMPARE(isOptionalCode(code), isZeroAllowed);
    QCOMPARE(isCountAllowed(code, 0), isZeroAllowed);
    QCOMPARE(greatestCountOf(code), greatest);
    QCOMPARE(isCountAllowed(code, 1), greatest != 0);
    QCOMPARE(isCountAllowed(code, Greatest), greatest == UnboundedOccurs);
    if (greatest > 0) {
        QVERIFY(isCountAllowed(code, greatest));
        QVERIFY(!isCountAllowed(code, greatest + 1));
    }
    QVERIFY(isCountAllowed(code, -1)); // negative counts are allowed by every limit
}

QTEST_GUILESS_MAIN(TestValueRules)
#include "tst_internals_valuerules.moc"
