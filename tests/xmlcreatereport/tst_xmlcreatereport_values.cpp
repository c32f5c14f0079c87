#include <QtTest>

#include <cmath>
#include <limits>
#include <type_traits>

#include "answeredreport.h"
#include "rangecases.h"

class TestXmlCreateReportValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesValuesByType_data();
    void takesValuesByType();
    void writesTexts_data();
    void writesTexts();
    void keepsTextsInTheFile_data();
    void keepsTextsInTheFile();
    void checksEnumerations_data();
    void checksEnumerations();
    void checksRangesOfDoubles_data();
    void checksRangesOfDoubles();
    void checksRangesOfIntegers_data();
    void checksRangesOfIntegers();
    void readsBoundsOfDoubles_data();
    void readsBoundsOfDoubles();
    void readsBoundsOfIntegers_data();
    void readsBoundsOfIntegers();
    void leavesOtherAnnotations_data();
    void leavesOtherAnnotations();
    void refusesWithoutType_data();
    void refusesWithoutType();
    void refusesASecondValue_data();
    void refusesASecondValue();
    void formatsTheFirstValueOfAWalkWithoutItsType_data();
    void formatsTheFirstValueOfAWalkWithoutItsType();
    void formatsADoubleBehindADiscardedElementByItsOwnType_data();
    void formatsADoubleBehindADiscardedElementByItsOwnType();
    void asksNoMissingFollowerForItsType();
    void asksNoFollowerForAType();
    void replacesATextThatComesFirst_data();
    void replacesATextThatComesFirst();
    void keepsASectionThatComesFirst();
    void appendsTheTextBehindAnElement();
    void keepsADefaultTextBehindAnElement();
    void setsTheTextOfTheRoot();
    void changesNothingForAnAnnouncedText();
    void hasNoCurrentElementBeforeTheReport_data();
    void hasNoCurrentElementBeforeTheReport();
    void hasNoCurrentElementAtTheBeginOfTheDocument_data();
    void hasNoCurrentElementAtTheBeginOfTheDocument();
    void doesNothingWithoutObserver_data();
    void doesNothingWithoutObserver();
    void walksOnBehindAFilledElement();
    void walksIntoARefusedElement();
    void refusedValueOfAnOptionalElement_data();
    void refusedValueOfAnOptionalElement();
    void writesWhatWasSetAndWhatWasRefused();
    void prunesWhatStaysUnanswered();
    void takesAnotherTypeFromInsideARefusal();
    void takesAnotherDoubleFromInsideARefusal();
    void takesNoOtherIntegerFromInsideARefusal();
    void nestsTheErrorsOfAnAnswerToAnError();
    void keepsTheValueThatAnAnswerToTheEarlyTypeQuerySet();
    void survivesADiscardFromInsideARefusal_data();
    void survivesADiscardFromInsideARefusal();
};

namespace {

using E = IXMLHelper;

template <typename Value, typename = void> constexpr bool isValue = false;
template <typename Value>
constexpr bool
    isValue<Value, std::void_t<decltype(std::declval<XmlCreateReport&>().SetXmlValue(std::declval<Value>()))>> = true;

static_assert(isValue<QString> && isValue<bool> && isValue<double>);
static_assert(!isValue<const char*>, "A text literal must not silently become a truth value.");

/// What one overload writes and how it refuses.
struct Overload
{
    const char* name;
    Answer answer;
    const char* text;
    E::ErrorID refusal;
};

QDateTime dateTime()
{
    return QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56));
}

std::vector<Overload> overloads()
{
    return {{"text", text("some"), "some", E::CURRENT_TYPE_IS_NOT_STRING},
            {"double", value(2.0), "2", E::CURRENT_TYPE_IS_NOT_DOUBLE},
            {"integer", value(7), "7", E::CURRENT_TYPE_IS_NOT_INTEGER},
            {"truth-value", value(true), "true", E::CURRENT_TYPE_IS_NOT_BOOLEAN},
            {"date-and-time", value(dateTime()), "2017-03-31T12:34:56", E::CURRENT_TYPE_IS_NOT_DATETIME},
            {"time", value(QTime(12, 34, 56)), "12:34:56", E::CURRENT_TYPE_IS_NOT_TIME}};
}

void addOverloadRows()
{
    QTest::addColumn<Answer>("answer");
    for (const Overload& overload : overloads()) {
        QTest::newRow(overload.name) << overload.answer;
    }
}

QByteArray typed(const char* type, const char* annotations)
{
    return QByteArray("type=") + type + ' ' + annotations;
}

template <typename Number> void addRangeRows(const char* type, bool isTypeLostByRefusal)
{
    addAnswerColumns();
    for (const RangeCase& range : RangeCases) {
        const QByteArray annotations = typed(type, range.facets);
        QString element;
        if (range.isElementAccepting) {
            element = annotatedLine(range.facets, range.usedFacets, QString::number(range.value));
        } else {
            element = annotatedLine(isTypeLostByRefusal ? range.facets : annotations.constData());
        }
        answerRow(range.rule, restrictedElement(type, range.facets), value(Number(range.value)), element,
                  range.isElementAccepting ? ErrorList() : ErrorList {E::VALUE_IS_NOT_VALID});
    }
}

/// A mandatory container of what is given: some rules hold below the top level only.
QString boxed(const char* content)
{
    return QStringLiteral("<xs:element name='box'><xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType>"
                          "</xs:element>")
        .arg(QLatin1String(content));
}

/// An element that has both a simple type and a child.
QString elementWithChild(const char* defaultText)
{
    return boxed("<xs:element name='e'%1><xs:complexType><xs:extension base='xs:string'/>"
                 "<xs:element name='child' type='xs:string'/></xs:complexType></xs:element>")
        .arg(QLatin1String(defaultText));
}

QString choiceOf(const char* first, const char* second, const char* third)
{
    return QStringLiteral("<xs:choice><xs:element name='a' type='xs:%1'/><xs:element name='b' type='xs:%2'/>"
                          "<xs:element name='e' type='xs:%3'/></xs:choice>")
        .arg(QLatin1String(first), QLatin1String(second), QLatin1String(third));
}

Answer multiplication(const char* name, int count)
{
    return
        [name = QString::fromUtf8(name), count](XmlCreateReport& builder) { builder.SetElementMaxOccurs(name, count); };
}

void discard(XmlCreateReport& builder)
{
    builder.DiscardChoiceItem();
}

} // namespace

void TestXmlCreateReportValues::takesValuesByType_data()
{
    struct TypeCase
    {
        const char* type;
        const char* overloads;
    };
    const char* const all = "text double integer truth-value date-and-time time";
    const TypeCase types[] = {
        {"string", "text"},
        {"double", "double"},
        {"integer", "integer"},
        {"boolean", "truth-value"},
        {"dateTime", "date-and-time"},
        {"time", "time"},
        // Short and long take everything.
        {"short", all},
        {"long", all},
        // An int takes integers, and nothing that merely contains the word does.
        {"int", "integer"},
        {"unsignedInt", ""},
        {"int8", ""},
        // The words are found anywhere in the type, in this case of letters only.
        {"my-string-type", "text"},
        {"stringOrdouble", "text double"},
        {"my-short-type", all},
        {"longer", all},
        {"String", ""},
        {"normalizedString", ""},
        {"nonNegativeInteger", ""},
        {"unsignedShort", ""},
        {"unsignedLong", ""},
        {"token", ""},
        {"float", ""},
        {"decimal", ""},
        {"date", ""},
    };

    addAnswerColumns();
    for (const TypeCase& type : types) {
        const QStringList accepted = QString::fromUtf8(type.overloads).split(QLatin1Char(' '));
        for (const Overload& overload : overloads()) {
            const QByteArray rule = QByteArray(overload.name) + "-for-" + type.type;
            if (accepted.contains(QLatin1String(overload.name))) {
                answerRow(rule, elementOfType(type.type), overload.answer,
                          annotatedLine("", "", QString::fromUtf8(overload.text)));
            } else {
                answerRow(rule, elementOfType(type.type), overload.answer, annotatedLine(typed(type.type, "")),
                          {overload.refusal});
            }
        }
    }
}

void TestXmlCreateReportValues::takesValuesByType()
{
    checkAnswer();
}

void TestXmlCreateReportValues::writesTexts_data()
{
    const auto row = [](const char* rule, const char* type, const Answer& answer, const char* written) {
        answerRow(rule, elementOfType(type), answer, annotatedLine("", "", QString::fromUtf8(written)));
    };
    using Double = std::numeric_limits<double>;
    using Int = std::numeric_limits<int>;

    addAnswerColumns();
    row("double-has-12-significant-digits", "double", value(1.23456789012345), "1.23456789012");
    row("last-digit-of-a-double-is-rounded", "double", value(2.0 / 3), "0.666666666667");
    row("double-has-no-trailing-zeros", "double", value(2.50), "2.5");
    row("integral-double-has-no-point", "double", value(-100.0), "-100");
    row("double-of-12-digits-has-no-exponent", "double", value(123456789012.0), "123456789012");
    row("double-of-13-digits-has-an-exponent", "double", value(1e12), "1e+12");
    row("small-double-has-no-exponent", "double", value(0.0001), "0.0001");
    row("smaller-double-has-an-exponent", "double", value(0.00001), "1e-05");
    row("greatest-double", "double", value(Double::max()), "1.79769313486e+308");
    row("double-that-is-no-number", "double", value(Double::quiet_NaN()), "nan");
    row("double-without-end", "double", value(-Double::infinity()), "-inf");

    row("double-for-short-is-truncated", "short", value(1.9), "1");
    row("negative-double-for-short-is-truncated-toward-zero", "short", value(-2.7), "-2");
    row("double-for-short-is-written-without-sign-when-zero", "short", value(-0.5), "0");
    row("double-for-short-has-no-exponent", "short", value(1e9), "1000000000");
    row("double-for-short-takes-the-upper-limit-of-32-bits", "short", value(3e9), "2147483647");
    row("double-for-short-takes-the-lower-limit-of-32-bits", "short", value(-3e9), "-2147483648");
    row("double-just-above-32-bits-for-short", "short", value(2147483647.5), "2147483647");
    row("double-without-end-for-short-takes-the-limit", "short", value(Double::infinity()), "2147483647");
    row("double-that-is-no-number-for-short-is-0", "short", value(Double::quiet_NaN()), "0");
    row("double-for-a-type-that-contains-short-is-truncated", "my-short-type", value(1.9), "1");
    row("double-for-short-and-long-is-truncated", "longOrshort", value(1.9), "1");
    row("double-for-a-type-with-both-words-is-not-truncated", "doubleOrshort", value(1.9), "1.9");
    row("double-for-long-is-not-truncated", "long", value(1.9), "1.9");

    row("greatest-integer", "integer", value(Int::max()), "2147483647");
    row("least-integer", "integer", value(Int::min()), "-2147483648");
    row("integer-zero", "integer", value(0), "0");

    row("true", "boolean", value(true), "true");
    row("false", "boolean", value(false), "false");
    row("false-for-short", "short", value(false), "false");

    const QDate date(2017, 3, 31);
    const QTime time(12, 34, 56, 789);
    row("local-date-and-time-has-no-zone", "dateTime", value(QDateTime(date, time)), "2017-03-31T12:34:56");
    row("utc-date-and-time-ends-with-z", "dateTime", value(QDateTime(date, time, Qt::UTC)), "2017-03-31T12:34:56Z");
    row("date-and-time-with-offset-ends-with-it", "dateTime", value(QDateTime(date, time, Qt::OffsetFromUTC, 7200)),
        "2017-03-31T12:34:56+02:00");
    row("invalid-date-and-time-is-empty", "dateTime", value(QDateTime()), "");
    row("time-has-no-milliseconds", "time", value(time), "12:34:56");
    row("time-has-two-digits-each", "time", value(QTime(1, 2, 3)), "01:02:03");
    row("invalid-time-is-empty", "time", value(QTime()), "");

    row("empty-text", "string", text(""), "");
    row("text-may-look-like-a-number", "string", text("1.50"), "1.50");
}

void TestXmlCreateReportValues::writesTexts()
{
    checkAnswer();
}

void TestXmlCreateReportValues::keepsTextsInTheFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << QStringLiteral("<a b=\"c\">&amp;'</a>");
    QTest::newRow("blanks-and-lines") << QStringLiteral("  one\n\ttwo  ");
    QTest::newRow("beyond-latin") << QString::fromUtf8("Pegel \xc2\xb5V \xe6\xb8\xac");
    QTest::newRow("long") << QString(100000, QLatin1Char('x'));
}

void TestXmlCreateReportValues::keepsTextsInTheFile()
{
    QFETCH(QString, text);
    AnsweredReport report(elementOfType("string"));
    report.OnNoted(value(text));
    QVERIFY(report.Create());
    QCOMPARE(report.Written().firstChildElement().text(), text);
}

void TestXmlCreateReportValues::checksEnumerations_data()
{
    const QString three = restrictedElement("string", "enumeration=A enumeration=B enumeration=C");
    const char* const allOfThree = R"(<e enumeration1="A" enumeration2="B" enumeration3="C" type="string"/>)";
    QByteArray manyFacets;
    QByteArray manyAnnotations = "type=string";
    for (int i = 1; i <= 120; ++i) {
        const QByteArray number = QByteArray::number(i);
        manyFacets += "enumeration=v" + number + ' ';
        manyAnnotations += " enumeration" + number + "=v" + number;
    }

    addAnswerColumns();
    answerRow("first-value", three, text("A"), R"(<e> "A" </e>)");
    answerRow("last-value", three, text("C"), R"(<e> "C" </e>)");
    answerRow("other-value-changes-nothing", three, text("D"), allOfThree, {E::VALUE_IS_NOT_VALID});
    answerRow("case-of-letters-counts", three, text("a"), allOfThree, {E::VALUE_IS_NOT_VALID});
    answerRow("value-must-be-equal", three, text("AB"), allOfThree, {E::VALUE_IS_NOT_VALID});
    answerRow("empty-value-is-none-of-them", three, text(""), allOfThree, {E::VALUE_IS_NOT_VALID});

    answerRow("single-value-accepts-itself", restrictedElement("string", "enumeration=A"), text("A"),
              R"(<e> "A" </e>)");
    answerRow("single-value-refuses-others", restrictedElement("string", "enumeration=A"), text("B"),
              R"(<e enumeration1="A" type="string"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("single-value-with-any-number", elementWithAttributes("type=string enumeration7=A"), text("A"),
              R"(<e> "A" </e>)");
    answerRow("single-value-with-any-number-refuses-others", elementWithAttributes("type=string enumeration7=A"),
              text("B"), R"(<e enumeration7="A" type="string"/>)", {E::VALUE_IS_NOT_VALID});

    answerRow("enumeration-is-removed-whole-however-many-values", restrictedElement("string", manyFacets), text("v77"),
              R"(<e> "v77" </e>)");
    answerRow("enumeration-of-many-values-stays-whole-after-a-refusal", restrictedElement("string", manyFacets),
              text("v121"), annotatedLine(manyAnnotations), {E::VALUE_IS_NOT_VALID});
    answerRow("empty-value-among-many", restrictedElement("string", manyFacets + "enumeration="), text(""),
              R"(<e> "" </e>)");
    answerRow("value-of-an-attribute-whose-name-ends-in-a-digit-among-many",
              elementWithAttributes(manyAnnotations + " Mode2=xs:string enumeration1Mode2=A"), text("A"),
              R"(<e Mode2="xs:string"> "A" </e>)");
    answerRow("value-that-is-there-twice", restrictedElement("string", "enumeration=A enumeration=A"), text("A"),
              R"(<e> "A" </e>)");

    answerRow("only-names-that-end-in-a-digit-are-values", elementWithAttributes("type=string enumerationX=A"),
              text("B"), R"(<e enumerationX="A"> "B" </e>)");
    answerRow("name-without-digit-stays-beside-values",
              elementWithAttributes("type=string enumeration1=A enumeration1X=B"), text("A"),
              R"(<e enumeration1X="B"> "A" </e>)");
    answerRow("name-without-digit-gives-no-value", elementWithAttributes("type=string enumeration1=A enumeration1X=B"),
              text("B"), R"(<e enumeration1="A" enumeration1X="B" type="string"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("name-may-begin-with-other-letters", elementWithAttributes("type=string my-enumeration-X3=A"), text("B"),
              R"(<e my-enumeration-X3="A" type="string"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("case-of-the-name-counts", elementWithAttributes("type=string Enumeration1=A"), text("B"),
              R"(<e Enumeration1="A"> "B" </e>)");
    answerRow("enumeration-of-an-attribute-whose-name-ends-in-a-digit-binds-the-element",
              elementWithAttributes("type=string Mode2=xs:string enumeration1Mode2=A"), text("B"),
              R"(<e Mode2="xs:string" enumeration1Mode2="A" type="string"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("enumeration-of-another-attribute-does-not-bind-the-element",
              elementWithAttributes("type=string Mode=xs:string enumeration1Mode=A"), text("B"),
              R"(<e Mode="xs:string" enumeration1Mode="A"> "B" </e>)");

    answerRow("single-empty-value-accepts-everything", restrictedElement("string", "enumeration="), text("A"),
              R"(<e> "A" </e>)");
    answerRow("empty-value-among-others", restrictedElement("string", "enumeration= enumeration=A"), text(""),
              R"(<e> "" </e>)");

    answerRow("enumeration-binds-texts-for-short", restrictedElement("short", "enumeration=1 enumeration=2"), text("3"),
              R"(<e enumeration1="1" enumeration2="2" type="short"/>)", {E::VALUE_IS_NOT_VALID});
    answerRow("type-is-asked-before-the-enumeration", restrictedElement("double", "enumeration=1"), text("2"),
              R"(<e enumeration1="1" type="double"/>)", {E::CURRENT_TYPE_IS_NOT_STRING});
}

void TestXmlCreateReportValues::checksEnumerations()
{
    checkAnswer();
}

void TestXmlCreateReportValues::checksRangesOfDoubles_data()
{
    addRangeRows<double>("double", false);
}

void TestXmlCreateReportValues::checksRangesOfDoubles()
{
    checkAnswer();
}

void TestXmlCreateReportValues::checksRangesOfIntegers_data()
{
    addRangeRows<int>("integer", true);
}

void TestXmlCreateReportValues::checksRangesOfIntegers()
{
    checkAnswer();
}

void TestXmlCreateReportValues::readsBoundsOfDoubles_data()
{
    const auto row = [](const char* rule, const char* facets, double number, const char* written,
                        const char* usedFacets, const char* type = "double") {
        const QString declaration = restrictedElement(type, facets);
        if (written) {
            answerRow(rule, declaration, value(number), annotatedLine(facets, usedFacets, QString::fromUtf8(written)));
        } else {
            answerRow(rule, declaration, value(number), annotatedLine(typed(type, facets)), {E::VALUE_IS_NOT_VALID});
        }
    };
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinity = std::numeric_limits<double>::infinity();

    addAnswerColumns();
    row("value-just-above-the-upper-bound", "minInclusive=0 maxInclusive=10", 10.5, nullptr, "");
    row("fractional-lower-bound-accepts-its-own-value", "minInclusive=0.5", 0.5, "0.5", "minInclusive");
    row("fractional-lower-bound-refuses-less", "minInclusive=0.5", 0.4, nullptr, "");
    row("fractional-upper-bound-refuses-its-own-value", "maxExclusive=0.5", 0.5, nullptr, "");
    row("bound-with-an-exponent", "maxInclusive=1e3", 1000.0, "1000", "maxInclusive");
    row("bound-beyond-32-bits", "maxInclusive=3e9", 2.5e9, "2500000000", "maxInclusive");
    row("65535-with-a-fraction-of-zero-is-absent", "maxInclusive=65535.0", 70000.0, "70000", "");
    row("65535-and-a-half-is-a-bound", "maxInclusive=65535.5", 70000.0, nullptr, "");
    row("bound-behind-which-letters-follow-counts-as-0", "maxInclusive=10dB", 5.0, nullptr, "");
    row("digits-beyond-the-12-written-count", "maxInclusive=1", 1.0000000000001, nullptr, "");

    row("infinity-is-above-every-bound", "maxInclusive=10", Infinity, nullptr, "");
    row("infinity-is-above-a-lower-bound", "minExclusive=10", Infinity, "inf", "minExclusive");
    row("nan-is-not-below-minInclusive", "minInclusive=0", NaN, "nan", "minInclusive");
    row("nan-is-not-at-minExclusive", "minExclusive=0", NaN, "nan", "minExclusive");
    row("nan-is-not-above-maxInclusive", "maxInclusive=0", NaN, "nan", "maxInclusive");
    row("nan-is-not-at-maxExclusive", "maxExclusive=0", NaN, "nan", "maxExclusive");
    row("nan-is-inside-of-inclusive-bounds", "minInclusive=0 maxInclusive=10", NaN, "nan", "minInclusive maxInclusive");
    row("nan-is-inside-of-exclusive-bounds", "minExclusive=0 maxExclusive=10", NaN, "nan", "minExclusive maxExclusive");

    row("double-for-short-is-checked-before-it-is-truncated", "maxInclusive=1", 1.9, nullptr, "", "short");
    row("double-for-short-inside-of-its-bounds", "maxInclusive=2", 1.9, "1", "maxInclusive", "short");
    row("double-for-long-has-bounds-too", "maxInclusive=2", 2.5, nullptr, "", "long");
}

void TestXmlCreateReportValues::readsBoundsOfDoubles()
{
    checkAnswer();
}

void TestXmlCreateReportValues::readsBoundsOfIntegers_data()
{
    const auto row = [](const char* rule, const char* type, const char* facets, int number, bool isAccepted) {
        const QString element = isAccepted ? annotatedLine("", "", QString::number(number)) : annotatedLine(facets);
        answerRow(rule, restrictedElement(type, facets), value(number), element,
                  isAccepted ? ErrorList() : ErrorList {E::VALUE_IS_NOT_VALID});
    };
    using Int = std::numeric_limits<int>;

    addAnswerColumns();
    row("fractional-bound-counts-as-0", "integer", "minInclusive=0.5", 0, true);
    row("fractional-upper-bound-counts-as-0", "integer", "maxInclusive=10.5", 1, false);
    row("65535-with-a-fraction-of-zero-counts-as-0", "integer", "maxInclusive=65535.0", 1, false);
    row("bound-beyond-32-bits-counts-as-0", "integer", "maxInclusive=3000000000", 1, false);
    row("hexadecimal-bound-counts-as-0", "integer", "maxInclusive=0x10", 1, false);
    row("greatest-bound", "integer", "maxExclusive=2147483647", Int::max(), false);
    row("least-bound", "integer", "minInclusive=-2147483648", Int::min(), true);
    row("int-has-bounds-too", "int", "maxInclusive=10", 11, false);
    row("short-has-bounds-too", "short", "maxInclusive=10", 11, false);
    row("long-within-its-bounds", "long", "minInclusive=0 maxInclusive=10", 10, true);
}

void TestXmlCreateReportValues::readsBoundsOfIntegers()
{
    checkAnswer();
}

void TestXmlCreateReportValues::leavesOtherAnnotations_data()
{
    addAnswerColumns();
    answerRow("range-does-not-bind-a-text", elementWithAttributes("type=string minInclusive=5 maxExclusive=6"),
              text("1"), R"(<e maxExclusive="6" minInclusive="5"> "1" </e>)");
    answerRow("enumeration-does-not-bind-a-double", restrictedElement("double", "enumeration=1 enumeration=2"),
              value(3.0), R"(<e enumeration1="1" enumeration2="2"> "3" </e>)");
    answerRow("enumeration-does-not-bind-an-integer", restrictedElement("integer", "enumeration=1 enumeration=2"),
              value(3), R"(<e enumeration1="1" enumeration2="2"> "3" </e>)");
    answerRow("nothing-binds-a-truth-value", restrictedElement("short", "enumeration=1 minInclusive=5"), value(true),
              R"(<e enumeration1="1" minInclusive="5"> "true" </e>)");
    answerRow("nothing-binds-a-date-and-time", restrictedElement("dateTime", "enumeration=1 minInclusive=5"),
              value(dateTime()), R"(<e enumeration1="1" minInclusive="5"> "2017-03-31T12:34:56" </e>)");
    answerRow("nothing-binds-a-time", restrictedElement("time", "enumeration=1 minInclusive=5"),
              value(QTime(12, 34, 56)), R"(<e enumeration1="1" minInclusive="5"> "12:34:56" </e>)");
    answerRow("other-facets-neither-bind-nor-go", restrictedElement("string", "maxLength=1 pattern=x"), text("long"),
              R"(<e maxLength="1" pattern="x"> "long" </e>)");
    answerRow("facets-of-attributes-do-not-bind-the-element",
              elementWithAttributes("type=double Level=xs:integer maxInclusiveLevel=5"), value(6.0),
              R"(<e Level="xs:integer" maxInclusiveLevel="5"> "6" </e>)");
    answerRow("facets-are-found-by-their-whole-name", elementWithAttributes("type=integer mymaxInclusive=5"), value(6),
              R"(<e mymaxInclusive="5"> "6" </e>)");
    answerRow("attributes-keep-their-declared-types", elementWithAttributes("type=boolean Level=xs:integer"),
              value(false), R"(<e Level="xs:integer"> "false" </e>)");
    answerRow("default-stays-at-the-top-level", QStringLiteral("<xs:element name='e' type='xs:string' default='d'/>"),
              text("v"), R"(<e default="d"> "v" </e>)");
}

void TestXmlCreateReportValues::leavesOtherAnnotations()
{
    checkAnswer();
}

void TestXmlCreateReportValues::refusesWithoutType_data()
{
    addAnswerColumns();
    for (const Overload& overload : overloads()) {
        ErrorList errors {E::CURRENT_TYPE_IS_UNKNOWN, overload.refusal};
        if (overload.refusal == E::CURRENT_TYPE_IS_NOT_DOUBLE) {
            errors.prepend(E::CURRENT_TYPE_IS_UNKNOWN);
        }
        const QByteArray name = overload.name;
        answerRow(name + "-without-type", QStringLiteral("<xs:element name='e'/>"), overload.answer, "<e/>", errors);
        answerRow(name + "-with-empty-type", elementWithAttributes("type= maxInclusive=0"), overload.answer,
                  R"(<e maxInclusive="0" type=""/>)", errors);
        answerRow(name + "-after-the-type-was-removed", elementOfType("string"),
                  oneAfterTheOther(removal("type"), overload.answer), "<e/>", errors);
    }
}

void TestXmlCreateReportValues::refusesWithoutType()
{
    checkAnswer();
}

void TestXmlCreateReportValues::refusesASecondValue_data()
{
    addAnswerColumns();
    for (const Overload& overload : overloads()) {
        ErrorList errors {E::CURRENT_TYPE_IS_UNKNOWN, overload.refusal};
        if (overload.refusal == E::CURRENT_TYPE_IS_NOT_DOUBLE) {
            errors.prepend(E::CURRENT_TYPE_IS_UNKNOWN);
        }
        answerRow(overload.name, elementOfType("short"), oneAfterTheOther(text("first"), overload.answer),
                  R"(<e> "first" </e>)", errors);
    }
    answerRow("integer-in-range-after-one-out-of-range", restrictedElement("integer", "maxInclusive=10"),
              oneAfterTheOther(value(11), value(10)), R"(<e maxInclusive="10"/>)",
              {E::VALUE_IS_NOT_VALID, E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("double-in-range-after-one-out-of-range-is-taken", restrictedElement("double", "maxInclusive=10"),
              oneAfterTheOther(value(11.0), value(10.0)), R"(<e> "10" </e>)", {E::VALUE_IS_NOT_VALID});
    answerRow("text-of-the-enumeration-after-another-is-taken", restrictedElement("string", "enumeration=A"),
              oneAfterTheOther(text("B"), text("A")), R"(<e> "A" </e>)", {E::VALUE_IS_NOT_VALID});
    answerRow("fitting-type-after-another-is-taken", elementOfType("int"), oneAfterTheOther(value(7.9), value(7)),
              R"(<e> "7" </e>)", {E::CURRENT_TYPE_IS_NOT_DOUBLE});
}

void TestXmlCreateReportValues::refusesASecondValue()
{
    checkAnswer();
}

void TestXmlCreateReportValues::formatsTheFirstValueOfAWalkWithoutItsType_data()
{
    addAnswerColumns();
    answerRow("double-for-short-is-not-truncated", elementOfType("short"), value(1.9), R"(<e> "1.9" </e>)");
    answerRow("double-without-type-is-unknown-once", QStringLiteral("<xs:element name='e'/>"), value(1.9), "<e/>",
              {E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_NOT_DOUBLE});
    answerRow("refused-answer-is-a-first-one-too", elementOfType("short"),
              oneAfterTheOther(attribute("missing", 1), value(1.9)), R"(<e> "1" </e>)",
              {E::CURRENT_TYPE_IS_NOT_INTEGER});
    answerRow("refused-multiplication-is-a-first-one-too", elementOfType("short"),
              oneAfterTheOther(multiplication("n", 2), value(1.9)), R"(<e> "1" </e>)",
              {E::MAX_OCCURS_EXCEEDED, E::MAX_OCCURS_EXCEEDED});
    // The empty name counts as the one given last, and a call for that does nothing at all.
    answerRow("swallowed-multiplication-is-no-first-one", elementOfType("short"),
              oneAfterTheOther(multiplication("", 2), value(1.9)), R"(<e> "1.9" </e>)");
}

void TestXmlCreateReportValues::formatsTheFirstValueOfAWalkWithoutItsType()
{
    QFETCH(Declarations, declarations);
    QFETCH(Answer, answer);
    AnsweredReport report(declarations);
    report.OnNotedWithoutEarlierAnswer(answer);
    QVERIFY(report.Create());
    QTEST(report.Element(), "element");
    QTEST(report.Errors(), "errors");
}

void TestXmlCreateReportValues::formatsADoubleBehindADiscardedElementByItsOwnType_data()
{
    addAnswerColumns();
    answerRow("double-behind-a-short-is-not-truncated", choiceOf("string", "short", "double"), value(1.9),
              R"(<e> "1.9" </e>)");
    answerRow("short-behind-a-string-is-truncated", choiceOf("string", "string", "short"), value(1.9),
              R"(<e> "1" </e>)");
    answerRow("type-of-the-follower-is-no-reason-to-refuse", choiceOf("double", "string", "double"), value(2.5),
              R"(<e> "2.5" </e>)");
    answerRow("answer-in-between-takes-the-announced-element", choiceOf("string", "short", "double"),
              oneAfterTheOther(removal("none"), value(1.9)), R"(<e> "1.9" </e>)");
    answerRow("swallowed-multiplication-in-between-takes-no-element", choiceOf("string", "short", "double"),
              oneAfterTheOther(multiplication("n", 1), value(1.9)), R"(<e> "1.9" </e>)");
}

void TestXmlCreateReportValues::formatsADoubleBehindADiscardedElementByItsOwnType()
{
    QFETCH(Declarations, declarations);
    QFETCH(Answer, answer);
    AnsweredReport report(declarations);
    report.On("a", oneAfterTheOther(multiplication("n", 1), discard)); // refused twice, and swallowed from then on
    report.OnNotedWithoutEarlierAnswer(answer);
    QVERIFY(report.Create());
    // The walk goes on behind the follower.
    QCOMPARE(report.Observer().Log().join(QLatin1Char(' ')), QStringLiteral("report a error 16 error 16 e"));
    QTEST(report.Element(), "element");
    QTEST(report.Errors(), "errors");
}

void TestXmlCreateReportValues::asksNoMissingFollowerForItsType()
{
    AnsweredReport report(
        boxed("<xs:choice><xs:element name='first' type='xs:string'/><xs:element name='last' type='xs:string'/>"
              "</xs:choice>")
        + elementOfType("short"));
    report.On("first", text("taken"));
    report.On("last", discard);
    report.OnNotedWithoutEarlierAnswer(value(1.9));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> "1" </e>)"));
    QCOMPARE(report.Errors(), QString());
}

void TestXmlCreateReportValues::asksNoFollowerForAType()
{
    AnsweredReport report(
        QStringLiteral(
            "<xs:choice><xs:element name='first' type='xs:string'/><xs:element name='follower'/></xs:choice>")
        + elementOfType("short"));
    report.On("first", discard);
    report.OnNotedWithoutEarlierAnswer(value(1.9));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> "1" </e>)"));
    QCOMPARE(report.Errors(), QString());
}

void TestXmlCreateReportValues::replacesATextThatComesFirst_data()
{
    addAnswerColumns();
    const auto row = [](const char* type, const Answer& answer, const char* written) {
        answerRow(type, boxed("<xs:element name='e' type='xs:%1' default='the default'/>").arg(QLatin1String(type)),
                  answer, annotatedLine("", "", QString::fromUtf8(written)));
    };
    row("string", text("v"), "v");
    row("double", value(0.5), "0.5");
    row("integer", value(5), "5");
    row("boolean", value(true), "true");
    row("dateTime", value(dateTime()), "2017-03-31T12:34:56");
    row("time", value(QTime(12, 34, 56)), "12:34:56");
    answerRow("refused-value-leaves-the-text", boxed("<xs:element name='e' type='xs:string' default='the default'/>"),
              value(0.5), R"(<e type="string"> "the default" </e>)", {E::CURRENT_TYPE_IS_NOT_DOUBLE});
}

void TestXmlCreateReportValues::replacesATextThatComesFirst()
{
    checkAnswer();
}

/// A section is no text node, though Qt counts it among the texts.
void TestXmlCreateReportValues::keepsASectionThatComesFirst()
{
    AnsweredReport report(elementOfType("string"));
    report.Observer().OnElement(QStringLiteral("e"), [&report](ElemBeginEvent& event) {
        QDomElement element = event.GetElementNode().toElement();
        element.appendChild(element.ownerDocument().createCDATASection(QStringLiteral("c")));
        report.Builder().SetXmlValue(QStringLiteral("v"));
    });
    QVERIFY(report.Create());
    QCOMPARE(report.Written().firstChildElement().text(), QStringLiteral("cv"));
}

void TestXmlCreateReportValues::appendsTheTextBehindAnElement()
{
    AnsweredReport report(elementWithChild(""));
    report.OnNoted(text("v"));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> <child type="string"/> "v" </e>)"));
    QCOMPARE(report.Errors(), QString());
}

void TestXmlCreateReportValues::keepsADefaultTextBehindAnElement()
{
    AnsweredReport report(elementWithChild(" default='d'"));
    report.OnNoted(text("v"));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> <child type="string"/> "d" "v" </e>)"));
}

void TestXmlCreateReportValues::setsTheTextOfTheRoot()
{
    AnsweredReport report(QStringLiteral("<xs:extension base='xs:string'/>"));
    report.On("report", text("v"));
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> "v" </report>)"));
}

/// The walk announces a text of the root as well, which is no element and takes nothing.
void TestXmlCreateReportValues::changesNothingForAnAnnouncedText()
{
    AnsweredReport report(QStringLiteral("<xs:extension base='xs:string'/>"));
    report.On("report", text("v"));
    int answers = 0;
    report.On("#text", [&answers](XmlCreateReport& builder) {
        for (const Overload& overload : overloads()) {
            overload.answer(builder);
            ++answers;
        }
    });
    QVERIFY(report.Create());
    QCOMPARE(answers, 6);
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> "v" </report>)"));
}

void TestXmlCreateReportValues::hasNoCurrentElementBeforeTheReport_data()
{
    addOverloadRows();
}

void TestXmlCreateReportValues::hasNoCurrentElementBeforeTheReport()
{
    QFETCH(Answer, answer);
    EventRecorder observer;
    XmlCreateReport builder(&observer);
    answer(builder);
    QCOMPARE(observer.Text(), QStringLiteral("error 7\n"));
    answer(builder);
    QCOMPARE(observer.Text(), QStringLiteral("error 7\nerror 7\n"));
}

void TestXmlCreateReportValues::hasNoCurrentElementAtTheBeginOfTheDocument_data()
{
    addOverloadRows();
}

void TestXmlCreateReportValues::hasNoCurrentElementAtTheBeginOfTheDocument()
{
    QFETCH(Answer, answer);
    AnsweredReport report(elementOfType("short"));
    report.Observer().OnDocument([&report, &answer] { answer(report.Builder()); });
    QVERIFY(report.Create());
    QCOMPARE(report.Observer().Log().mid(0, 2), QStringList({QStringLiteral("error 7"), QStringLiteral("report")}));
    QCOMPARE(report.WrittenLine(), QStringLiteral(R"(<report> <e type="short"/> </report>)"));
}

void TestXmlCreateReportValues::doesNothingWithoutObserver_data()
{
    addOverloadRows();
}

void TestXmlCreateReportValues::doesNothingWithoutObserver()
{
    QFETCH(Answer, answer);
    XmlCreateReport builder(nullptr);
    answer(builder);
    QVERIFY(!builder.CreateXmlFromSchema(QString(), QString(), false));
    answer(builder);
}

void TestXmlCreateReportValues::walksOnBehindAFilledElement()
{
    AnsweredReport report(boxed("<xs:element name='e'><xs:complexType><xs:extension base='xs:string'/>"
                                "<xs:element name='child' type='xs:string'/></xs:complexType></xs:element>"
                                "<xs:element name='next' type='xs:string'/>"));
    report.OnNoted(text("v"));
    report.On("next", text("w"));
    QVERIFY(report.Create());
    // The box is a mandatory element that nobody filled.
    QCOMPARE(report.Observer().Log().join(QLatin1Char(' ')), QStringLiteral("report box error 15 error 16 e next"));
}

void TestXmlCreateReportValues::walksIntoARefusedElement()
{
    AnsweredReport report(elementWithChild(""));
    report.OnNoted(value(1.5));
    report.On("child", text("v"));
    QVERIFY(report.Create());
    QCOMPARE(report.Observer().Log().join(QLatin1Char(' ')),
             QStringLiteral("report box error 15 error 16 e error 10 error 15 error 16 child"));
}

void TestXmlCreateReportValues::refusedValueOfAnOptionalElement_data()
{
    QTest::addColumn<Declarations>("declarations");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("isFollowerFilled");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("written");

    // The types are named ones, because the end of an anonymous one in the box would move the follower out of it.
    const auto simpleTypeT = [](const char* base, const QByteArray& facets) {
        return simpleType(base, facets)
            .replace(QLatin1String("<xs:simpleType>"), QLatin1String("<xs:simpleType name='T'>"));
    };
    const char* const optional = "<xs:element name='e' type='T' minOccurs='0' maxOccurs='1'/>";
    const char* const optionalAndFollower = "<xs:element name='e' type='T' minOccurs='0' maxOccurs='1'/>"
                                            "<xs:element name='f' type='xs:string'/>";
    const auto addRows = [&](const QByteArray& kind, const QString& type, const Answer& answer, const char* e,
                             const char* eInBox, const char* kept, const char* announcedBeforePruning) {
        const auto row = [&](const char* rule, const char* content, bool isFollowerFilled, const QString& behind,
                             const QString& written) {
            const QString text = QString::fromUtf8(content);
            const QString end = behind.isEmpty() ? QString() : QLatin1Char(' ') + behind;
            QTest::newRow((kind + rule).constData())
                << Declarations(text, type) << answer << isFollowerFilled
                << QStringLiteral("report %1").arg(QLatin1String(e)) + end
                << (written.isEmpty() ? QStringLiteral("<report/>")
                                      : QStringLiteral("<report> %1 </report>").arg(written));
            QTest::newRow((kind + rule + "-in-a-box").constData())
                << Declarations(boxed(content), type) << answer << isFollowerFilled
                << QStringLiteral("report box error 15 error 16 %1").arg(QLatin1String(eInBox)) + end
                << (written.isEmpty() ? QStringLiteral("<report> <box/> </report>")
                                      : QStringLiteral("<report> <box> %1 </box> </report>").arg(written));
        };
        const QString keptElement = QString::fromUtf8(kept);
        row("-alone", optional, false, QString(), keptElement);
        row("-before-a-filled-element", optionalAndFollower, true, QStringLiteral("f"),
            (keptElement + QStringLiteral(R"( <f> "v" </f>)")).trimmed());
        row("-before-an-unfilled-element", optionalAndFollower, false,
            QString::fromUtf8(announcedBeforePruning) + QStringLiteral("f error 15 error 16"),
            QStringLiteral(R"(<f type="string"/>)"));
    };

    // These keep their type, so the walk takes them for values that nobody filled.
    addRows("double", simpleTypeT("double", "maxInclusive=10"), value(11.0), "e error 15", "e error 15", "", "");
    addRows("text", simpleTypeT("string", "enumeration=A"), text("B"), "e error 15", "e error 15", "", "");
    // Without its type the element is taken for a container, which goes on probation: at the top level it is announced
    // once more, and the next value that is left unfilled removes it and is announced again.
    addRows("integer", simpleTypeT("integer", "maxInclusive=10"), value(11), "e error 15 e error 8 error 11",
            "e error 15", R"(<e maxInclusive="10"/>)", "f ");
}

void TestXmlCreateReportValues::refusedValueOfAnOptionalElement()
{
    QFETCH(Declarations, declarations);
    QFETCH(Answer, answer);
    QFETCH(bool, isFollowerFilled);
    AnsweredReport report(declarations);
    report.Observer().OnElement(QStringLiteral("e"), [&](ElemBeginEvent&) { answer(report.Builder()); });
    if (isFollowerFilled) {
        report.On("f", text("v"));
    }
    QVERIFY(report.Create());
    QTEST(report.Observer().Log().join(QLatin1Char(' ')), "log");
    QTEST(report.WrittenLine(), "written");
}

void TestXmlCreateReportValues::writesWhatWasSetAndWhatWasRefused()
{
    AnsweredReport report(
        QStringLiteral("<xs:element name='set'>%1</xs:element><xs:element name='refused'>%1</xs:element>"
                       "<xs:element name='refusedInteger'>%1</xs:element><xs:element name='unanswered'>%1"
                       "</xs:element>")
            .arg(simpleType("short", "minInclusive=0 maxInclusive=10")));
    report.On("report", removal("none"));
    report.On("set", value(9.9));
    report.On("refused", value(11.0));
    report.On("refusedInteger", value(11));
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(),
             QStringLiteral(R"(<report> <set> "9" </set> <refused maxInclusive="10" minInclusive="0" type="short"/> )"
                            R"(<refusedInteger maxInclusive="10" minInclusive="0"/> )"
                            R"(<unanswered maxInclusive="10" minInclusive="0" type="short"/> </report>)"));
}

void TestXmlCreateReportValues::prunesWhatStaysUnanswered()
{
    AnsweredReport report(QStringLiteral("<xs:element name='filled' type='xs:string' minOccurs='0' maxOccurs='1'/>"
                                         "<xs:element name='optional' type='xs:string' minOccurs='0' maxOccurs='1'/>"
                                         "<xs:element name='refused' type='xs:string' minOccurs='0' maxOccurs='1'/>"
                                         "<xs:choice><xs:element name='one' type='xs:string'/>"
                                         "<xs:element name='other' type='xs:string'/></xs:choice>"
                                         "<xs:element name='mandatory' type='xs:string'/>"));
    report.On("filled", text("v"));
    report.On("refused", value(true));
    report.On("other", text("w"));
    QVERIFY(report.Create());
    QCOMPARE(report.WrittenLine(),
             QStringLiteral(R"(<report> <filled> "v" </filled> <other> "w" </other> <mandatory type="string"/> )"
                            R"(</report>)"));
}

/// How a value whose type nobody knows finds its way into the report.
void TestXmlCreateReportValues::takesAnotherTypeFromInsideARefusal()
{
    AnsweredReport report(elementOfType("dateTime"));
    XmlCreateReport& builder = report.Builder();
    report.Observer().OnError([&builder](int error) {
        if (error == E::CURRENT_TYPE_IS_NOT_DOUBLE) {
            builder.SetXmlValue(5);
        } else if (error == E::CURRENT_TYPE_IS_NOT_INTEGER) {
            builder.SetXmlValue(QStringLiteral("5"));
        } else if (error == E::CURRENT_TYPE_IS_NOT_STRING) {
            builder.SetXmlValue(dateTime());
        }
    });
    report.OnNoted(value(5.0));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> "2017-03-31T12:34:56" </e>)"));
    QCOMPARE(report.Errors(),
             errorText({E::CURRENT_TYPE_IS_NOT_DOUBLE, E::CURRENT_TYPE_IS_NOT_INTEGER, E::CURRENT_TYPE_IS_NOT_STRING}));
    // The answer from inside the error counts as an answer: nothing is reported as unfilled.
    QCOMPARE(report.Observer().Errors().size(), std::size_t(3));
}

void TestXmlCreateReportValues::takesAnotherDoubleFromInsideARefusal()
{
    AnsweredReport report(restrictedElement("double", "minInclusive=0 maxInclusive=10"));
    bool isFirst = true;
    report.Observer().OnError([&report, &isFirst](int error) {
        if (error == E::VALUE_IS_NOT_VALID && std::exchange(isFirst, false)) {
            report.Builder().SetXmlValue(10.0);
        }
    });
    report.OnNoted(value(11.0));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> "10" </e>)"));
    QCOMPARE(report.Errors(), errorText({E::VALUE_IS_NOT_VALID}));
}

void TestXmlCreateReportValues::takesNoOtherIntegerFromInsideARefusal()
{
    AnsweredReport report(restrictedElement("integer", "minInclusive=0 maxInclusive=10"));
    bool isFirst = true;
    report.Observer().OnError([&report, &isFirst](int error) {
        if (error == E::VALUE_IS_NOT_VALID && std::exchange(isFirst, false)) {
            report.Builder().SetXmlValue(10);
        }
    });
    report.OnNoted(value(11));
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e maxInclusive="10" minInclusive="0"/>)"));
    QCOMPARE(report.Errors(),
             errorText({E::VALUE_IS_NOT_VALID, E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_NOT_INTEGER}));
}

void TestXmlCreateReportValues::nestsTheErrorsOfAnAnswerToAnError()
{
    AnsweredReport report(QStringLiteral("<xs:element name='e'/>"));
    bool isFirst = true;
    report.Observer().OnError([&report, &isFirst](int error) {
        if (error == E::CURRENT_TYPE_IS_UNKNOWN && std::exchange(isFirst, false)) {
            report.Builder().SetXmlValue(QStringLiteral("v"));
        }
    });
    report.OnNoted(value(5));
    QVERIFY(report.Create());
    // The two in the middle belong to the text.
    QCOMPARE(report.Errors(),
             errorText({E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_NOT_STRING,
                        E::CURRENT_TYPE_IS_NOT_INTEGER}));
}

void TestXmlCreateReportValues::keepsTheValueThatAnAnswerToTheEarlyTypeQuerySet()
{
    AnsweredReport report(QStringLiteral("<xs:element name='e'/>"));
    QDomElement element;
    report.Observer().OnEveryElement([&](ElemBeginEvent& event) { element = event.GetElementNode().toElement(); });
    bool isFirst = true;
    report.OnNoted([&](XmlCreateReport& builder) {
        report.Observer().OnError([&](int) {
            if (std::exchange(isFirst, false)) {
                element.setAttribute(QStringLiteral("type"), QStringLiteral("string"));
                builder.SetXmlValue(QStringLiteral("v"));
            }
        });
        builder.SetXmlValue(1.9);
    });
    QVERIFY(report.Create());
    QCOMPARE(report.Element(), QStringLiteral(R"(<e> "v" </e>)"));
    QCOMPARE(report.Errors(),
             errorText({E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_UNKNOWN, E::CURRENT_TYPE_IS_NOT_DOUBLE}));
}

void TestXmlCreateReportValues::survivesADiscardFromInsideARefusal_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<Answer>("answer");
    QTest::newRow("wrong-type") << QStringLiteral("dateTime") << value(5.0);
    QTest::newRow("text-outside-of-the-enumeration") << QStringLiteral("string") << text("C");
    QTest::newRow("double-outside-of-the-range") << QStringLiteral("double") << value(11.0);
    QTest::newRow("integer-outside-of-the-range") << QStringLiteral("integer") << value(11);
    QTest::newRow("unknown-type") << QStringLiteral("double") << oneAfterTheOther(removal("type"), value(11.0));
}

void TestXmlCreateReportValues::survivesADiscardFromInsideARefusal()
{
    QFETCH(QString, type);
    QFETCH(Answer, answer);
    AnsweredReport report(QStringLiteral("<xs:choice><xs:element name='e'>%1</xs:element>"
                                         "<xs:element name='follower' type='xs:string'/>"
                                         "<xs:element name='next' type='xs:string'/></xs:choice>")
                              .arg(simpleType(qPrintable(type), "maxInclusive=10 enumeration=A enumeration=B")));
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

QTEST_GUILESS_MAIN(TestXmlCreateReportValues)
#include "tst_xmlcreatereport_values.moc"
