#include <QtTest>

#include <limits>

#include "answeredreport.h"
#include "rangecases.h"

class TestXmlCreateReportAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesValuesByType_data();
    void takesValuesByType();
    void writesTexts_data();
    void writesTexts();
    void checksEnumerations_data();
    void checksEnumerations();
    void checksRangesOfIntegers_data();
    void checksRangesOfIntegers();
    void checksRangesOfDoubles_data();
    void checksRangesOfDoubles();
    void excludesAnUpperBoundBehindALowerOne_data();
    void excludesAnUpperBoundBehindALowerOne();
    void readsBoundsAsIntegers_data();
    void readsBoundsAsIntegers();
    void findsFacetsByPartsOfTheirNames_data();
    void findsFacetsByPartsOfTheirNames();
    void refusesWhatIsNotDeclared_data();
    void refusesWhatIsNotDeclared();
    void refusesASecondValue_data();
    void refusesASecondValue();
    void removesAttributes_data();
    void removesAttributes();
    void setsAttributesBeforeAndAfterTheValue_data();
    void setsAttributesBeforeAndAfterTheValue();
    void hasNoCurrentElementBeforeTheReport_data();
    void hasNoCurrentElementBeforeTheReport();
    void hasNoCurrentElementAtTheBeginOfTheDocument_data();
    void hasNoCurrentElementAtTheBeginOfTheDocument();
    void doesNothingWithoutObserver_data();
    void doesNothingWithoutObserver();
    void changesNothingForAnAnnouncedText();
    void setsAttributesOfTheRoot();
    void doesNotEndTheAnnouncement_data();
    void doesNotEndTheAnnouncement();
    void doesNotKeepAnOptionalElement();
    void keepsUnsetAttributesInTheFile();
    void keepsTextsInTheFile();
    void takesAnotherTypeFromInsideARefusal();
    void takesAnotherValueFromInsideARefusal_data();
    void takesAnotherValueFromInsideARefusal();
    void setsTheElementFromInsideARefusal();
    void survivesADiscardFromInsideARefusal_data();
    void survivesADiscardFromInsideARefusal();
};

namespace {

using E = IXMLHelper;

QDateTime dateTime()
{
    return QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56));
}

/// An element that refers to a global attribute, whose type is @p base restricted by the facets "name=value".
Declarations referredAttribute(const char* name, const char* base, const QByteArray& facets)
{
    return {
        QStringLiteral("<xs:element name='e'><xs:complexType><xs:attribute ref='%1'/></xs:complexType>"
                       "</xs:element>")
            .arg(QLatin1String(name)),
        QStringLiteral("<xs:attribute name='%1'>%2</xs:attribute>").arg(QLatin1String(name), simpleType(base, facets))};
}

/// The list "name=value name=value" with @p suffix behind each name.
QByteArray suffixed(const char* list, const char* suffix)
{
    QByteArray result;
    for (const auto& [name, value] : pairsOf(list)) {
        result += name.toUtf8() + suffix + '=' + value.toUtf8() + ' ';
    }
    return result;
}

template <typename Number> void addRangeRows(const char* type)
{
    addAnswerColumns();
    for (const RangeCase& range : RangeCases) {
        QByteArray annotations = suffixed(range.facets, "Level");
        QByteArray removed;
        if (range.isAttributeAccepting) {
            annotations += "Level=" + QByteArray::number(range.value);
            const QList<QByteArray> used = QByteArray(range.usedFacets).split(' ');
            for (const QByteArray& facet : used) {
                removed += facet + "Level ";
            }
        } else {
            annotations += QByteArray("Level=") + type;
        }
        removed = removed.trimmed() == "Level" ? QByteArray() : removed;
        answerRow(range.rule, referredAttribute("Level", type, range.facets), attribute("Level", Number(range.value)),
                  annotatedLine(annotations, removed),
                  range.isAttributeAccepting ? ErrorList() : ErrorList {E::VALUE_IS_NOT_VALID});
    }
}

/// Each way to answer with an attribute, and what it sends when there is no current element.
void addOverloadRows()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QStringList>("log");
    const QStringList nothing;
    const QStringList error {QStringLiteral("error 7")};
    QTest::newRow("text") << attributeText("Level", "v") << nothing;
    QTest::newRow("date-and-time") << attribute("Level", dateTime()) << nothing;
    QTest::newRow("integer") << attribute("Level", 5) << error;
    QTest::newRow("double") << attribute("Level", 5.0) << error;
    QTest::newRow("removal") << removal("Level") << nothing;
}

QString choiceWith(const char* attributes)
{
    return QStringLiteral("<xs:choice>%1<xs:element name='follower' type='xs:string'/>"
                          "<xs:element name='next' type='xs:string'/></xs:choice>")
        .arg(elementWithAttributes(attributes));
}

} // namespace

void TestXmlCreateReportAttributes::takesValuesByType_data()
{
    struct Overload
    {
        const char* name;
        Answer answer;
        const char* text;
        E::ErrorID refusal;
    };
    const Overload overloads[] = {
        {"text", attributeText("Level", "some"), "some", E::CURRENT_TYPE_IS_NOT_STRING},
        {"date-and-time", attribute("Level", dateTime()), "2017-03-31T12:34:56", E::CURRENT_TYPE_IS_NOT_DATETIME},
        {"integer", attribute("Level", 7), "7", E::CURRENT_TYPE_IS_NOT_INTEGER},
        {"double", attribute("Level", 2.5), "2.5", E::CURRENT_TYPE_IS_NOT_DOUBLE},
    };
    struct TypeCase
    {
        const char* type;
        const char* overloads;
    };
    const TypeCase types[] = {
        {"xs:string", "text"},
        {"xs:dateTime", "date-and-time"},
        {"xs:integer", "integer"},
        {"xs:double", "double"},
        {"double", "double"},
        // The words are found anywhere in the type.
        {"my-string-type", "text"},
        {"stringOrdouble", "text double"},
        // Elements of these take everything, attributes nothing.
        {"xs:short", ""},
        {"xs:long", ""},
        // Elements of this take integers, attributes do not.
        {"xs:int", ""},
        {"xs:String", ""},
        {"xs:normalizedString", ""},
        {"xs:nonNegativeInteger", ""},
        {"xs:time", ""},
        {"xs:date", ""},
        {"xs:boolean", ""},
        {"xs:float", ""},
        {"xs:decimal", ""},
        {"", ""},
    };

    addAnswerColumns();
    for (const TypeCase& type : types) {
        const QStringList accepted = QString::fromUtf8(type.overloads).split(QLatin1Char(' '));
        for (const Overload& overload : overloads) {
            const QByteArray rule
                = QByteArray(overload.name) + (*type.type ? QByteArray("-for-") + type.type : "-for-an-empty-type");
            const QByteArray declared = QByteArray("Level=") + type.type;
            if (accepted.contains(QLatin1String(overload.name))) {
                answerRow(rule, elementWithAttributes(declared), overload.answer,
                          annotatedLine(QByteArray("Level=") + overload.text));
            } else {
                answerRow(rule, elementWithAttributes(declared), overload.answer, annotatedLine(declared),
                          {overload.refusal});
            }
        }
    }
}

void TestXmlCreateReportAttributes::takesValuesByType()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::writesTexts_data()
{
    using Double = std::numeric_limits<double>;
    using Int = std::numeric_limits<int>;
    const auto row = [](const char* rule, const char* type, const auto& number, const char* written) {
        answerRow(rule, elementWithAttributes(QByteArray("Level=xs:") + type), attribute("Level", number),
                  annotatedLine(QByteArray("Level=") + written));
    };

    addAnswerColumns();
    row("double-has-12-significant-digits", "double", 1.23456789012345, "1.23456789012");
    row("integral-double-has-no-point", "double", -100.0, "-100");
    row("double-of-13-digits-has-an-exponent", "double", 1e12, "1e+12");
    row("smaller-double-has-an-exponent", "double", 0.00001, "1e-05");
    row("double-is-never-truncated", "doubleOrshort", 1.9, "1.9");
    row("double-that-is-no-number", "double", Double::quiet_NaN(), "nan");
    row("double-without-end", "double", Double::infinity(), "inf");
    row("greatest-integer", "integer", Int::max(), "2147483647");
    row("least-integer", "integer", Int::min(), "-2147483648");

    const QTime time(12, 34, 56, 789);
    row("local-date-and-time-has-no-zone", "dateTime", QDateTime(QDate(2017, 3, 31), time), "2017-03-31T12:34:56");
    row("utc-date-and-time-ends-with-z", "dateTime", QDateTime(QDate(2017, 3, 31), time, Qt::UTC),
        "2017-03-31T12:34:56Z");
    row("invalid-date-and-time-is-empty", "dateTime", QDateTime(), "");
    answerRow("empty-text", elementWithAttributes("Level=xs:string"), attributeText("Level", ""), R"(<e Level=""/>)");
    answerRow("text-as-it-is", elementWithAttributes("Level=xs:string"), attributeText("Level", "<&'> 1.50"),
              R"(<e Level="<&'> 1.50"/>)");
}

void TestXmlCreateReportAttributes::writesTexts()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::checksEnumerations_data()
{
    const Declarations two = referredAttribute("Mode", "string", "enumeration=A enumeration=B");
    const char* const allOfTwo = R"(<e Mode="string" enumeration1Mode="A" enumeration2Mode="B"/>)";
    QByteArray manyFacets;
    QByteArray manyAnnotations = "Mode=string";
    for (int i = 1; i <= 120; ++i) {
        const QByteArray number = QByteArray::number(i);
        manyFacets += "enumeration=v" + number + ' ';
        manyAnnotations += " enumeration" + number + "Mode=v" + number;
    }

    addAnswerColumns();
    answerRow("first-value", two, attributeText("Mode", "A"), R"(<e Mode="A"/>)");
    answerRow("last-value", two, attributeText("Mode", "B"), R"(<e Mode="B"/>)");
    answerRow("other-value-changes-nothing", two, attributeText("Mode", "C"), allOfTwo, {E::VALUE_IS_NOT_VALID});
    answerRow("case-of-letters-counts", two, attributeText("Mode", "a"), allOfTwo, {E::VALUE_IS_NOT_VALID});
    answerRow("value-must-be-equal", two, attributeText("Mode", "AB"), allOfTwo, {E::VALUE_IS_NOT_VALID});
    answerRow("empty-value-is-none-of-them", two, attributeText("Mode", ""), allOfTwo, {E::VALUE_IS_NOT_VALID});
    answerRow("values-with-any-number", elementWithAttributes("Mode=xs:string enumeration3Mode=A enumeration4Mode=B"),
              attributeText("Mode", "B"), R"(<e Mode="B"/>)");
    answerRow("single-value-accepts-itself", referredAttribute("Mode", "string", "enumeration=A"),
              attributeText("Mode", "A"), R"(<e Mode="A"/>)");
    answerRow("single-value-refuses-others", referredAttribute("Mode", "string", "enumeration=A"),
              attributeText("Mode", "B"), R"(<e Mode="string" enumeration1Mode="A"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("single-empty-value-accepts-everything", referredAttribute("Mode", "string", "enumeration="),
              attributeText("Mode", "A"), R"(<e Mode="A"/>)");
    answerRow("empty-value-among-others", referredAttribute("Mode", "string", "enumeration= enumeration=A"),
              attributeText("Mode", ""), R"(<e Mode=""/>)");
    answerRow("enumeration-is-removed-whole-however-many-values", referredAttribute("Mode", "string", manyFacets),
              attributeText("Mode", "v77"), R"(<e Mode="v77"/>)");
    answerRow("enumeration-of-many-values-stays-whole-after-a-refusal", referredAttribute("Mode", "string", manyFacets),
              attributeText("Mode", "v121"), annotatedLine(manyAnnotations), {E::VALUE_IS_NOT_VALID});

    answerRow("value-needs-no-digit-in-its-name", elementWithAttributes("Mode=xs:string enumerationXMode=A"),
              attributeText("Mode", "B"), R"(<e Mode="xs:string" enumerationXMode="A"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("words-of-the-name-in-the-other-order", elementWithAttributes("Mode=xs:string ModeX-enumeration-Y=A"),
              attributeText("Mode", "B"), R"(<e Mode="xs:string" ModeX-enumeration-Y="A"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("words-of-the-name-in-the-other-order-are-removed",
              elementWithAttributes("Mode=xs:string ModeX-enumeration-Y=A"), attributeText("Mode", "A"),
              R"(<e Mode="A"/>)");
    answerRow("case-of-the-name-counts", elementWithAttributes("Mode=xs:string enumeration1mode=A Enumeration1Mode=A"),
              attributeText("Mode", "B"), R"(<e Enumeration1Mode="A" Mode="B" enumeration1mode="A"/>)");
    answerRow("enumeration-of-the-element-does-not-bind",
              elementWithAttributes("type=string Mode=xs:string "
                                    "enumeration1=A"),
              attributeText("Mode", "B"), R"(<e Mode="B" enumeration1="A" type="string"/>)");
    answerRow("range-does-not-bind-a-text", elementWithAttributes("Mode=xs:string minInclusiveMode=5"),
              attributeText("Mode", "1"), R"(<e Mode="1" minInclusiveMode="5"/>)");
    answerRow("nothing-binds-a-date-and-time",
              elementWithAttributes("Mode=xs:dateTime enumeration1Mode=A minInclusiveMode=5"),
              attribute("Mode", dateTime()),
              R"(<e Mode="2017-03-31T12:34:56" enumeration1Mode="A" minInclusiveMode="5"/>)");
    answerRow("enumeration-does-not-bind-an-integer", elementWithAttributes("Mode=xs:integer enumeration1Mode=5"),
              attribute("Mode", 6), R"(<e Mode="6" enumeration1Mode="5"/>)");
    answerRow("enumeration-does-not-bind-a-double", elementWithAttributes("Mode=xs:double enumeration1Mode=5"),
              attribute("Mode", 6.0), R"(<e Mode="6" enumeration1Mode="5"/>)");

    // An attribute called like an enumeration is a value of its own, which binds it unless it is alone.
    answerRow("attribute-that-is-its-own-enumeration-takes-everything-when-alone",
              elementWithAttributes("enumerationMode=xs:string"), attributeText("enumerationMode", "B"),
              R"(<e enumerationMode="B"/>)");
    answerRow("attribute-that-is-its-own-enumeration-takes-nothing-beside-others",
              elementWithAttributes("enumerationMode=xs:string Level=xs:integer"),
              attributeText("enumerationMode", "B"), R"(<e Level="xs:integer" enumerationMode="xs:string"/>)",
              {E::VALUE_IS_NOT_VALID});
}

void TestXmlCreateReportAttributes::checksEnumerations()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::checksRangesOfIntegers_data()
{
    addRangeRows<int>("integer");
}

void TestXmlCreateReportAttributes::checksRangesOfIntegers()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::checksRangesOfDoubles_data()
{
    addRangeRows<double>("double");
}

void TestXmlCreateReportAttributes::checksRangesOfDoubles()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::excludesAnUpperBoundBehindALowerOne_data()
{
    const Declarations integer = referredAttribute("Level", "integer", "minInclusive=0 maxInclusive=10");
    const Declarations real = referredAttribute("Level", "double", "minExclusive=0 maxInclusive=10");

    addAnswerColumns();
    answerRow("value-equal-to-upper-bound-refused-when-lower-given", integer, attribute("Level", 10),
              R"(<e Level="integer" maxInclusiveLevel="10" minInclusiveLevel="0"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("value-below-upper-bound-accepted-when-lower-given", integer, attribute("Level", 9), R"(<e Level="9"/>)");
    answerRow("value-equal-to-upper-bound-accepted-without-lower",
              referredAttribute("Level", "integer", "maxInclusive=10"), attribute("Level", 10), R"(<e Level="10"/>)");
    answerRow("double-equal-to-upper-bound-refused-when-lower-given", real, attribute("Level", 10.0),
              R"(<e Level="double" maxInclusiveLevel="10" minExclusiveLevel="0"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("double-just-below-upper-bound-accepted-when-lower-given", real, attribute("Level", 9.75),
              R"(<e Level="9.75"/>)");
    answerRow("double-equal-to-upper-bound-accepted-without-lower",
              referredAttribute("Level", "double", "maxInclusive=10"), attribute("Level", 10.0), R"(<e Level="10"/>)");
}

void TestXmlCreateReportAttributes::excludesAnUpperBoundBehindALowerOne()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::readsBoundsAsIntegers_data()
{
    const auto row = [](const char* rule, const char* type, const char* facets, const auto& number, const char* written,
                        const char* left = "") {
        const Declarations declarations = referredAttribute("Level", type, facets);
        if (written) {
            answerRow(rule, declarations, attribute("Level", number),
                      annotatedLine(QByteArray("Level=") + written + ' ' + suffixed(left, "Level")));
        } else {
            answerRow(rule, declarations, attribute("Level", number),
                      annotatedLine(QByteArray("Level=") + type + ' ' + suffixed(facets, "Level")),
                      {E::VALUE_IS_NOT_VALID});
        }
    };
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

    addAnswerColumns();
    row("fractional-lower-bound-of-a-double-counts-as-0", "double", "minInclusive=0.5", 0.2, "0.2");
    row("fractional-lower-bound-counted-as-0-refuses-less", "double", "minInclusive=0.5", -0.2, nullptr);
    row("fractional-upper-bound-of-a-double-counts-as-0", "double", "maxInclusive=10.5", 0.2, nullptr);
    row("fractional-bound-of-an-integer-counts-as-0", "integer", "minInclusive=0.5", 0, "0");
    row("bound-with-an-exponent-counts-as-0", "double", "maxInclusive=1e3", 5.0, nullptr);
    row("bound-beyond-32-bits-counts-as-0", "double", "maxInclusive=3000000000", 5.0, nullptr);
    row("65535-with-a-fraction-of-zero-counts-as-0", "double", "maxInclusive=65535.0", 5.0, nullptr);
    row("integer-bound-is-compared-with-the-whole-double", "double", "maxInclusive=10", 10.5, nullptr);
    row("greatest-bound-of-an-integer", "integer", "maxExclusive=2147483647", 2147483647, nullptr);

    row("nan-is-not-below-minInclusive", "double", "minInclusive=0", NaN, "nan");
    row("nan-is-not-at-minExclusive", "double", "minExclusive=0", NaN, "nan");
    row("nan-is-not-at-an-excluded-upper-bound", "double", "minInclusive=0 maxInclusive=10", NaN, "nan");
    row("nan-is-not-above-maxInclusive", "double", "maxInclusive=0", NaN, "nan");
    row("nan-is-not-at-maxExclusive", "double", "maxExclusive=0", NaN, "nan");
    row("infinity-is-above-every-upper-bound", "double", "maxInclusive=10", std::numeric_limits<double>::infinity(),
        nullptr);
    row("65535-of-a-double-is-absent-and-stays", "double", "maxInclusive=65535", 70000.5, "70000.5",
        "maxInclusive=65535");
}

void TestXmlCreateReportAttributes::readsBoundsAsIntegers()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::findsFacetsByPartsOfTheirNames_data()
{
    const auto taken = [](const char* rule, const char* attributes, const Answer& answer, const char* left) {
        answerRow(rule, elementWithAttributes(attributes), answer, annotatedLine(left));
    };
    const auto refused = [](const char* rule, const char* attributes, const Answer& answer) {
        answerRow(rule, elementWithAttributes(attributes), answer, annotatedLine(attributes), {E::VALUE_IS_NOT_VALID});
    };

    addAnswerColumns();
    refused("upper-bound-of-LevelMax-binds-Level", "Level=xs:integer LevelMax=xs:integer maxInclusiveLevelMax=10",
            attribute("Level", 11));
    taken("facet-of-LevelMax-stays-when-Level-is-set", "Level=xs:integer LevelMax=xs:integer maxInclusiveLevelMax=10",
          attribute("Level", 10), "Level=10 LevelMax=xs:integer maxInclusiveLevelMax=10");
    taken("facet-of-Level-does-not-bind-LevelMax", "Level=xs:integer LevelMax=xs:integer maxInclusiveLevel=10",
          attribute("LevelMax", 11), "Level=xs:integer LevelMax=11 maxInclusiveLevel=10");
    refused("bounds-of-Level-and-LevelMax-count-together",
            "Level=xs:double LevelMax=xs:double minInclusiveLevel=0 maxInclusiveLevelMax=10", attribute("Level", 10.0));
    taken("only-the-facet-of-the-exact-name-goes",
          "Level=xs:double LevelMax=xs:double minInclusiveLevel=0 maxInclusiveLevelMax=10", attribute("Level", 9.0),
          "Level=9 LevelMax=xs:double maxInclusiveLevelMax=10");
    refused("enumeration-of-LevelMax-binds-Level", "Level=xs:string LevelMax=xs:string enumeration1LevelMax=A",
            attributeText("Level", "B"));
    taken("enumeration-of-LevelMax-goes-with-Level", "Level=xs:string LevelMax=xs:string enumeration1LevelMax=A",
          attributeText("Level", "A"), "Level=A LevelMax=xs:string");
    taken("values-of-Level-and-LevelMax-count-together",
          "Level=xs:string LevelMax=xs:string enumeration1Level=A enumeration1LevelMax=B", attributeText("Level", "B"),
          "Level=B LevelMax=xs:string");
    taken("enumeration-of-Level-does-not-bind-LevelMax", "Level=xs:string LevelMax=xs:string enumeration1Level=A",
          attributeText("LevelMax", "B"), "Level=xs:string LevelMax=B enumeration1Level=A");
    taken("case-of-letters-counts", "Level=xs:integer maxInclusivelevel=10 MaxInclusiveLevel=10",
          attribute("Level", 11), "Level=11 maxInclusivelevel=10 MaxInclusiveLevel=10");

    taken("facets-of-the-element-do-not-bind", "type=double minInclusive=0 maxInclusive=10 Level=xs:integer",
          attribute("Level", 11), "type=double minInclusive=0 maxInclusive=10 Level=11");
    refused("facet-of-the-element-binds-an-attribute-whose-name-it-contains", "max=xs:integer maxInclusive=10",
            attribute("max", 11));
    taken("facet-of-the-element-stays-when-such-an-attribute-is-set", "max=xs:integer maxInclusive=10",
          attribute("max", 10), "max=10 maxInclusive=10");
    refused("enumeration-of-the-element-binds-an-attribute-whose-name-it-contains",
            "type=string enum=xs:string enumeration1=A", attributeText("enum", "B"));
    taken("enumeration-of-the-element-goes-with-such-an-attribute", "type=string enum=xs:string enumeration1=A",
          attributeText("enum", "A"), "type=string enum=A");
    refused("attribute-called-like-a-facet-bounds-itself-by-0", "minInclusiveLimit=xs:integer",
            attribute("minInclusiveLimit", -1));
    taken("attribute-called-like-a-facet-is-not-removed", "minInclusiveLimit=xs:integer",
          attribute("minInclusiveLimit", 1), "minInclusiveLimit=1");

    taken("facet-word-may-follow-the-name", "Level=xs:integer Level-maxInclusive=10", attribute("Level", 10),
          "Level=10 Level-maxInclusive=10");
    refused("facet-word-behind-the-name-binds", "Level=xs:integer Level-maxInclusive=10", attribute("Level", 11));
    taken("minInclusive-is-found-before-maxInclusive", "X=xs:integer X-maxInclusive-minInclusive=5", attribute("X", 7),
          "X=7 X-maxInclusive-minInclusive=5");
    taken("maxInclusive-is-found-before-minExclusive", "X=xs:integer X-minExclusive-maxInclusive=5", attribute("X", 5),
          "X=5 X-minExclusive-maxInclusive=5");
    taken("minExclusive-is-found-before-maxExclusive", "X=xs:integer X-maxExclusive-minExclusive=5", attribute("X", 7),
          "X=7 X-maxExclusive-minExclusive=5");

    taken("attributes-are-checked-one-by-one",
          "Level=xs:integer Mode=xs:string maxInclusiveLevel=10 enumeration1Mode=A", attribute("Level", 9),
          "Level=9 Mode=xs:string enumeration1Mode=A");
}

void TestXmlCreateReportAttributes::findsFacetsByPartsOfTheirNames()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::refusesWhatIsNotDeclared_data()
{
    const QString declared = elementWithAttributes("type=string Level=xs:integer maxInclusiveOther=5");
    const char* const unchanged = R"(<e Level="xs:integer" maxInclusiveOther="5" type="string"/>)";

    addAnswerColumns();
    answerRow("text", declared, attributeText("Other", "v"), unchanged, {E::CURRENT_TYPE_IS_NOT_STRING});
    answerRow("date-and-time", declared, attribute("Other", dateTime()), unchanged, {E::CURRENT_TYPE_IS_NOT_DATETIME});
    answerRow("integer", declared, attribute("Other", 5), unchanged, {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("double", declared, attribute("Other", 5.0), unchanged, {E::CURRENT_TYPE_IS_NOT_DOUBLE});
    answerRow("case-of-letters-counts", declared, attribute("level", 5), unchanged, {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("part-of-a-name", declared, attribute("Lev", 5), unchanged, {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("empty-name", declared, attributeText("", "v"), unchanged, {E::CURRENT_TYPE_IS_NOT_STRING});
    answerRow("element-without-attributes", QStringLiteral("<xs:element name='e'/>"), attribute("Level", 5), "<e/>",
              {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("type-is-asked-before-the-enumeration", elementWithAttributes("Level=xs:integer enumeration1Level=A"),
              attributeText("Level", "B"), R"(<e Level="xs:integer" enumeration1Level="A"/>)",
              {E::CURRENT_TYPE_IS_NOT_STRING});
    answerRow("type-is-asked-before-the-range", elementWithAttributes("Level=xs:integer maxInclusiveLevel=5"),
              attribute("Level", 6.0), R"(<e Level="xs:integer" maxInclusiveLevel="5"/>)",
              {E::CURRENT_TYPE_IS_NOT_DOUBLE});
}

void TestXmlCreateReportAttributes::refusesWhatIsNotDeclared()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::refusesASecondValue_data()
{
    addAnswerColumns();
    answerRow("text", elementWithAttributes("Level=xs:string"),
              oneAfterTheOther(attributeText("Level", "A"), attributeText("Level", "B")), R"(<e Level="A"/>)",
              {E::CURRENT_TYPE_IS_NOT_STRING});
    answerRow("date-and-time", elementWithAttributes("Level=xs:dateTime"),
              oneAfterTheOther(attribute("Level", dateTime()), attribute("Level", QDateTime())),
              R"(<e Level="2017-03-31T12:34:56"/>)", {E::CURRENT_TYPE_IS_NOT_DATETIME});
    answerRow("integer", elementWithAttributes("Level=xs:integer"),
              oneAfterTheOther(attribute("Level", 5), attribute("Level", 6)), R"(<e Level="5"/>)",
              {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("double", elementWithAttributes("Level=xs:double"),
              oneAfterTheOther(attribute("Level", 5.5), attribute("Level", 6.5)), R"(<e Level="5.5"/>)",
              {E::CURRENT_TYPE_IS_NOT_DOUBLE});
    answerRow("value-that-contains-the-word-of-its-type-is-replaced", elementWithAttributes("Level=xs:string"),
              oneAfterTheOther(attributeText("Level", "bowstring"), attributeText("Level", "B")), R"(<e Level="B"/>)");
    answerRow("value-that-names-a-type-is-taken-for-it", elementWithAttributes("Level=xs:string"),
              oneAfterTheOther(attributeText("Level", "double"), attribute("Level", 1.5)), R"(<e Level="1.5"/>)");
    answerRow("value-after-a-refused-one-is-taken", elementWithAttributes("Level=xs:integer maxInclusiveLevel=5"),
              oneAfterTheOther(attribute("Level", 6), attribute("Level", 5)), R"(<e Level="5"/>)",
              {E::VALUE_IS_NOT_VALID});
    answerRow("text-after-a-refused-one-is-taken", elementWithAttributes("Level=xs:string enumeration1Level=A"),
              oneAfterTheOther(attributeText("Level", "B"), attributeText("Level", "A")), R"(<e Level="A"/>)",
              {E::VALUE_IS_NOT_VALID});
}

void TestXmlCreateReportAttributes::refusesASecondValue()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::removesAttributes_data()
{
    addAnswerColumns();
    answerRow("default", QStringLiteral("<xs:element name='e' type='xs:string' default='d'/>"), removal("default"),
              R"(<e type="string"/>)");
    answerRow("declared-attribute-leaves-its-facets",
              elementWithAttributes("Level=xs:integer maxInclusiveLevel=5 enumeration1Level=A"), removal("Level"),
              R"(<e enumeration1Level="A" maxInclusiveLevel="5"/>)");
    answerRow("set-attribute", elementWithAttributes("Level=xs:integer"),
              oneAfterTheOther(attribute("Level", 5), removal("Level")), "<e/>");
    answerRow("type", elementOfType("string"), removal("type"), "<e/>");
    answerRow("facet", elementWithAttributes("type=double maxInclusive=5"), removal("maxInclusive"),
              R"(<e type="double"/>)");
    answerRow("name-must-be-the-whole-one", elementWithAttributes("Level=xs:integer LevelMax=xs:integer"),
              removal("Level"), R"(<e LevelMax="xs:integer"/>)");
    answerRow("missing-attribute-changes-nothing", elementWithAttributes("Level=xs:integer"), removal("level"),
              R"(<e Level="xs:integer"/>)");
    answerRow("empty-name-changes-nothing", elementWithAttributes("Level=xs:integer"), removal(""),
              R"(<e Level="xs:integer"/>)");
    answerRow("removed-attribute-cannot-be-set", elementWithAttributes("Level=xs:integer"),
              oneAfterTheOther(removal("Level"), attribute("Level", 5)), "<e/>", {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("removed-bound-does-not-bind", elementWithAttributes("Level=xs:integer maxInclusiveLevel=5"),
              oneAfterTheOther(removal("maxInclusiveLevel"), attribute("Level", 6)), R"(<e Level="6"/>)");
}

void TestXmlCreateReportAttributes::removesAttributes()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::setsAttributesBeforeAndAfterTheValue_data()
{
    const QString declared = elementWithAttributes("type=double Level=xs:integer Mode=xs:string");

    addAnswerColumns();
    answerRow("before", declared, oneAfterTheOther(attribute("Level", 5), value(1.5)),
              R"(<e Level="5" Mode="xs:string"> "1.5" </e>)");
    answerRow("after", declared, oneAfterTheOther(value(1.5), attribute("Level", 5)),
              R"(<e Level="5" Mode="xs:string"> "1.5" </e>)");
    answerRow("before-and-after", declared,
              oneAfterTheOther(oneAfterTheOther(attribute("Level", 5), value(1.5)), attributeText("Mode", "AM")),
              R"(<e Level="5" Mode="AM"> "1.5" </e>)");
    answerRow("removed-after", declared, oneAfterTheOther(value(1.5), removal("Mode")),
              R"(<e Level="xs:integer"> "1.5" </e>)");
    answerRow("after-a-refused-value", declared, oneAfterTheOther(value(true), attribute("Level", 5)),
              R"(<e Level="5" Mode="xs:string" type="double"/>)", {E::CURRENT_TYPE_IS_NOT_BOOLEAN});

    // The type of a text element is an attribute that takes texts like any other.
    answerRow("type-that-was-set-takes-the-value", elementOfType("string"),
              oneAfterTheOther(attributeText("type", "double"), value(1.5)), R"(<e> "1.5" </e>)");
    answerRow("type-that-was-set-refuses-what-the-declared-one-takes", elementOfType("string"),
              oneAfterTheOther(attributeText("type", "double"), text("v")), R"(<e type="double"/>)",
              {E::CURRENT_TYPE_IS_NOT_STRING});
}

void TestXmlCreateReportAttributes::setsAttributesBeforeAndAfterTheValue()
{
    checkAnswer();
}

void TestXmlCreateReportAttributes::hasNoCurrentElementBeforeTheReport_data()
{
    addOverloadRows();
}

void TestXmlCreateReportAttributes::hasNoCurrentElementBeforeTheReport()
{
    QFETCH(Answer, answer);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    answer(builder);
    QTEST(observer.Log(), "log");
}

void TestXmlCreateReportAttributes::hasNoCurrentElementAtTheBeginOfTheDocument_data()
{
    addOverloadRows();
}

void TestXmlCreateReportAttributes::hasNoCurrentElementAtTheBeginOfTheDocument()
{
    QFETCH(Answer, answer);
    QFETCH(QStringList, log);
    AnsweredReport report(elementWithAttributes("Level=xs:string"));
    report.Observer().OnDocument([&report, &answer] { answer(report.Builder()); });
    QVERIFY(report.Create());
    QCOMPARE(report.Observer().Log().mid(0, log.size() + 1), log + QStringList(QStringLiteral("report")));
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> <e Level="xs:string"/> </report>)"));
}

void TestXmlCreateReportAttributes::doesNothingWithoutObserver_data()
{
    addOverloadRows();
}

void TestXmlCreateReportAttributes::doesNothingWithoutObserver()
{
    QFETCH(Answer, answer);
    XmlCreateReport builder(nullptr);
    answer(builder);
    QVERIFY(!builder.CreateXmlFromSchema(QString(), QString(), false));
    answer(builder);
}

/// The walk announces a text of the root as well, which is no element and takes nothing.
void TestXmlCreateReportAttributes::changesNothingForAnAnnouncedText()
{
    AnsweredReport report(QStringLiteral("<xs:attribute name='Level' type='xs:integer'/>"
                                         "<xs:extension base='xs:string'/>"));
    report.On("report", text("v"));
    bool isAnswered = false;
    report.On("#text", [&isAnswered](XmlCreateReport& builder) {
        attributeText("Level", "v")(builder);
        attribute("Level", dateTime())(builder);
        attribute("Level", 5)(builder);
        attribute("Level", 5.0)(builder);
        removal("Level")(builder);
        isAnswered = true;
    });
    QVERIFY(report.Create());
    QVERIFY(isAnswered);
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report Level="xs:integer"> "v" </report>)"));
}

void TestXmlCreateReportAttributes::setsAttributesOfTheRoot()
{
    AnsweredReport report(QStringLiteral("<xs:attribute name='Level' type='xs:integer'/>") + elementOfType("string"));
    report.On("report", attribute("Level", 5));
    report.On("e", text("v"));
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report Level="5"> <e> "v" </e> </report>)"));
}

void TestXmlCreateReportAttributes::doesNotEndTheAnnouncement_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("startTag");
    const auto row = [](const char* rule, const char* attributes, const Answer& answer, const char* refusal,
                        const char* startTag) {
        const QString content
            = QStringLiteral("<xs:sequence><xs:element name='child' type='xs:string'/></xs:sequence>");
        QTest::newRow(rule) << elementWithAttributes(attributes, content) << answer << QString::fromUtf8(refusal)
                            << QString::fromUtf8(startTag);
    };
    row("text", "Level=xs:string", attributeText("Level", "A"), "", R"(<e Level="A">)");
    row("date-and-time", "Level=xs:dateTime", attribute("Level", dateTime()), "", R"(<e Level="2017-03-31T12:34:56">)");
    row("integer", "Level=xs:integer", attribute("Level", 5), "", R"(<e Level="5">)");
    row("double", "Level=xs:double", attribute("Level", 2.5), "", R"(<e Level="2.5">)");
    row("removal", "Level=xs:integer", removal("Level"), "", "<e>");

    row("text-outside-of-the-enumeration", "Level=xs:string enumeration1Level=A", attributeText("Level", "B"),
        "error 15 ", R"(<e Level="xs:string" enumeration1Level="A">)");
    row("text-for-another-type", "Level=xs:integer", attributeText("Level", "A"), "error 9 ",
        R"(<e Level="xs:integer">)");
    row("date-and-time-for-another-type", "Level=xs:integer", attribute("Level", dateTime()), "error 12 ",
        R"(<e Level="xs:integer">)");
    row("integer-outside-of-the-range", "Level=xs:integer maxInclusiveLevel=5", attribute("Level", 6), "error 15 ",
        R"(<e Level="xs:integer" maxInclusiveLevel="5">)");
    row("integer-for-another-type", "Level=xs:double", attribute("Level", 6), "error 11 ", R"(<e Level="xs:double">)");
    row("double-outside-of-the-range", "Level=xs:double maxInclusiveLevel=5", attribute("Level", 6.0), "error 15 ",
        R"(<e Level="xs:double" maxInclusiveLevel="5">)");
    row("double-for-another-type", "Level=xs:integer", attribute("Level", 6.0), "error 10 ",
        R"(<e Level="xs:integer">)");
    row("removal-of-a-missing-attribute", "Level=xs:integer", removal("Other"), "", R"(<e Level="xs:integer">)");
}

void TestXmlCreateReportAttributes::doesNotEndTheAnnouncement()
{
    QFETCH(QString, element);
    QFETCH(Answer, answer);
    QFETCH(QString, refusal);
    QFETCH(QString, startTag);
    AnsweredReport report(element);
    report.OnNoted(answer);
    report.On("child", text("v"));
    QVERIFY(report.Create());
    // The element is mandatory and got no value, which the walk reports; then it goes into the element.
    QCOMPARE(report.Observer().Log().join(QLatin1Char(' ')),
             QStringLiteral("report e %1error 15 error 16 child").arg(refusal));
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> %1 <child> "v" </child> </e> </report>)").arg(startTag));
}

void TestXmlCreateReportAttributes::doesNotKeepAnOptionalElement()
{
    const QString optional = QStringLiteral("<xs:element name='%1' type='xs:string' minOccurs='0' maxOccurs='1'>"
                                            "<xs:complexType><xs:attribute name='Level' type='xs:integer'/>"
                                            "</xs:complexType></xs:element>");
    AnsweredReport report(optional.arg(QStringLiteral("onlyAttribute")) + optional.arg(QStringLiteral("both")));
    report.On("onlyAttribute", attribute("Level", 5));
    report.On("both", oneAfterTheOther(attribute("Level", 5), text("v")));
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> <both Level="5"> "v" </both> </report>)"));
}

void TestXmlCreateReportAttributes::keepsUnsetAttributesInTheFile()
{
    AnsweredReport report(elementWithAttributes(
        "type=string Set=xs:integer maxInclusiveSet=5 Unset=xs:double minInclusiveUnset=0 Refused=xs:integer "
        "maxInclusiveRefused=5"));
    report.On("e", [](XmlCreateReport& builder) {
        attribute("Set", 5)(builder);
        attribute("Refused", 6)(builder);
        text("v")(builder);
    });
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(),
             QStringLiteral(R"(<report> <e Refused="xs:integer" Set="5" Unset="xs:double" maxInclusiveRefused="5" )"
                            R"(minInclusiveUnset="0"> "v" </e> </report>)"));
}

void TestXmlCreateReportAttributes::keepsTextsInTheFile()
{
    const QString written = QString::fromUtf8("<a b=\"c\"> &amp;' \xc2\xb5V \xe6\xb8\xac");
    AnsweredReport report(elementWithAttributes("Level=xs:string"));
    report.On("e", attribute("Level", written));
    QVERIFY(report.Create());
    QCOMPARE(report.Written().firstChildElement().attribute(QStringLiteral("Level")), written);
}

/// How a value whose type nobody knows finds its way into an attribute.
void TestXmlCreateReportAttributes::takesAnotherTypeFromInsideARefusal()
{
    AnsweredReport report(elementWithAttributes("Level=xs:dateTime"));
    report.Observer().OnError([&report](int error) {
        if (error == E::CURRENT_TYPE_IS_NOT_DOUBLE) {
            attribute("Level", 5)(report.Builder());
        } else if (error == E::CURRENT_TYPE_IS_NOT_INTEGER) {
            attributeText("Level", "5")(report.Builder());
        } else if (error == E::CURRENT_TYPE_IS_NOT_STRING) {
            attribute("Level", dateTime())(report.Builder());
        }
    });
    report.OnNoted(attribute("Level", 5.0));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e Level="2017-03-31T12:34:56"/>)"));
    QCOMPARE(report.Errors(),
             errorText({E::CURRENT_TYPE_IS_NOT_DOUBLE, E::CURRENT_TYPE_IS_NOT_INTEGER, E::CURRENT_TYPE_IS_NOT_STRING}));
}

void TestXmlCreateReportAttributes::takesAnotherValueFromInsideARefusal_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<Answer>("refused");
    QTest::addColumn<Answer>("taken");
    QTest::addColumn<QString>("element");
    QTest::newRow("text") << elementWithAttributes("Level=xs:string enumeration1Level=A enumeration2Level=B")
                          << attributeText("Level", "C") << attributeText("Level", "A")
                          << QStringLiteral(R"(<e Level="A"/>)");
    QTest::newRow("integer") << elementWithAttributes("Level=xs:integer minInclusiveLevel=0 maxInclusiveLevel=10")
                             << attribute("Level", 10) << attribute("Level", 9) << QStringLiteral(R"(<e Level="9"/>)");
    QTest::newRow("double") << elementWithAttributes("Level=xs:double minInclusiveLevel=0 maxInclusiveLevel=10")
                            << attribute("Level", 10.0) << attribute("Level", 9.5)
                            << QStringLiteral(R"(<e Level="9.5"/>)");
    QTest::newRow("removal-of-the-attribute")
        << elementWithAttributes("Level=xs:integer maxInclusiveLevel=10") << attribute("Level", 11) << removal("Level")
        << QStringLiteral(R"(<e maxInclusiveLevel="10"/>)");
}

void TestXmlCreateReportAttributes::takesAnotherValueFromInsideARefusal()
{
    QFETCH(QString, declaration);
    QFETCH(Answer, refused);
    QFETCH(Answer, taken);
    AnsweredReport report(declaration);
    bool isFirst = true;
    report.Observer().OnError([&](int error) {
        if (error == E::VALUE_IS_NOT_VALID && std::exchange(isFirst, false)) {
            taken(report.Builder());
        }
    });
    report.OnNoted(refused);
    QVERIFY(report.Create());
    QTEST(report.Element(), "element");
    QCOMPARE(report.Errors(), errorText({E::VALUE_IS_NOT_VALID}));
}

void TestXmlCreateReportAttributes::setsTheElementFromInsideARefusal()
{
    AnsweredReport report(elementWithAttributes("type=string Level=xs:integer"));
    report.Observer().OnError([&report](int error) {
        if (error == E::CURRENT_TYPE_IS_NOT_DOUBLE) {
            report.Builder().SetXmlValue(QStringLiteral("v"));
        }
    });
    report.OnNoted(oneAfterTheOther(attribute("Level", 5.0), attribute("Level", 5)));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e Level="5"> "v" </e>)"));
    QCOMPARE(report.Errors(), errorText({E::CURRENT_TYPE_IS_NOT_DOUBLE}));
}

void TestXmlCreateReportAttributes::survivesADiscardFromInsideARefusal_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<Answer>("answer");
    QTest::newRow("wrong-type-of-a-text") << choiceWith("type=string Level=xs:integer") << attributeText("Level", "v");
    QTest::newRow("wrong-type-of-a-date-and-time")
        << choiceWith("type=string Level=xs:integer") << attribute("Level", dateTime());
    QTest::newRow("wrong-type-of-a-double") << choiceWith("type=string Level=xs:integer") << attribute("Level", 5.0);
    QTest::newRow("text-outside-of-the-enumeration")
        << choiceWith("type=string Level=xs:string enumeration1Level=A") << attributeText("Level", "B");
    QTest::newRow("integer-outside-of-the-range")
        << choiceWith("type=string Level=xs:integer maxInclusiveLevel=5") << attribute("Level", 6);
    QTest::newRow("double-outside-of-the-range")
        << choiceWith("type=string Level=xs:double maxInclusiveLevel=5") << attribute("Level", 6.0);
}

void TestXmlCreateReportAttributes::survivesADiscardFromInsideARefusal()
{
    QFETCH(QString, declaration);
    QFETCH(Answer, answer);
    AnsweredReport report(declaration);
    bool isFirst = true;
    report.Observer().OnError([&](int) {
        if (std::exchange(isFirst, false)) {
            report.Builder().DiscardChoiceItem();
        }
    });
    report.OnNoted(answer);
    report.On("next", text("v"));
    QVERIFY(report.Create());
    QVERIFY(!isFirst);
    QCOMPARE(report.WrittenLine(),
             QStringLiteral(R"(<report> <follower type="string"/> <next> "v" </next> </report>)"));
}

QTEST_GUILESS_MAIN(TestXmlCreateReportAttributes)
#include "tst_xmlcreatereport_attributes.moc"
