#include <QtTest>

#include <limits>

#include <xmlhelperreports/reportfiller.h>

#include "surveyschema.h"

namespace {

/// One element called Value of a type of its own.
QByteArray valueElement(const QByteArray& base, const QByteArray& facets)
{
    return "<xs:element name='R'><xs:complexType><xs:sequence><xs:element name='Value'><xs:simpleType>"
           "<xs:restriction base='xs:"
        + base + "'>" + facets
        + "</xs:restriction></xs:simpleType></xs:element></xs:sequence></xs:complexType></xs:element>";
}

} // namespace

/// Which values are taken, and in which forms they may be given.
class TestReportFillerValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesOrRefusesAValue_data();
    void takesOrRefusesAValue();
    void doubtsWhatItCannotDecide_data();
    void doubtsWhatItCannotDecide();
    void asksTheValidatorWhatIsInDoubt();
    void takesTypedValues_data();
    void takesTypedValues();
    void readsNumbersWithoutLoss_data();
    void readsNumbersWithoutLoss();
    void continuesTheRecords();
    void refusesASecondValueInOneRecord();
    void writesByTheDefault();
    void removesADefaultBesideAValue();
    void takesFacetsOfAnAttribute();
    void keepsFacetsOfAttributesApart();
    void takesAttributesCalledLikeFacets();
    void saysAsWhatAnAttributeIsWritten();
    void readsAText_data();
    void readsAText();
    void saysWhatIsWrongWithAText_data();
    void saysWhatIsWrongWithAText();
    void readsFilesByTheirSuffix();
};

void TestReportFillerValues::takesOrRefusesAValue_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("facets");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* base, const char* facets, const char* value, const char* written,
                        const char* reason = "") {
        QTest::newRow(name) << QByteArray(base) << QByteArray(facets) << QString::fromUtf8(value)
                            << QString::fromUtf8(written) << QString::fromLatin1(reason);
    };
    const char* const range = "<xs:minInclusive value='1'/><xs:maxExclusive value='9'/>";
    const char* const colours = "<xs:enumeration value='red'/><xs:enumeration value='blue'/>";
    row("string", "string", "", "any", "any");
    row("empty-string", "string", "", "", "");
    row("enumerated", "string", colours, "blue", "blue");
    row("not-enumerated", "string", colours, "green", "", "it is outside of its enumeration, red, blue");
    row("double", "double", "", "98.5e6", "98500000");
    row("text-for-double", "double", "", "low", "", "its type, double, takes no text");
    row("double-in-range", "double", range, "8.5", "8.5");
    row("double-below", "double", range, "0.5", "", "it is outside of its minInclusive, 1");
    row("double-at-the-excluded-bound", "double", range, "9", "", "it is outside of its maxExclusive, 9");
    row("nan", "double", "", "nan", "", "its type, double, has no such value");
    row("infinity", "double", "", "inf", "", "its type, double, has no such value");
    row("bound-that-the-library-overlooks", "double", "<xs:maxInclusive value='65535'/>", "70000", "",
        "it is outside of its maxInclusive, 65535");
    row("bound-that-the-library-overlooks-is-removed", "double", "<xs:maxInclusive value='65535'/>", "7", "7");
    row("integer", "integer", range, "8", "8");
    row("integer-out-of-range", "integer", range, "9", "", "it is outside of its maxExclusive, 9");
    row("fraction-for-integer", "integer", "", "7.5", "", "its type, integer, takes no floating-point number");
    row("enumerated-integer", "integer", "<xs:enumeration value='1'/><xs:enumeration value='2'/>", "2", "2");
    row("integer-not-enumerated", "integer", "<xs:enumeration value='1'/><xs:enumeration value='2'/>", "3", "",
        "it is outside of its enumeration, 1, 2");
    row("short", "short", "", "-7", "-7");
    row("too-large-for-short", "short", "", "70000", "", "its type, short, has no such value");
    row("text-for-short", "short", "", "many", "", "its type, short, has no such value");
    row("long-of-more-than-32-bits", "long", "", "5000000000", "5000000000");
    row("true", "boolean", "", "true", "true");
    row("one-for-true", "boolean", "", "1", "true");
    row("no-truth-value", "boolean", "", "maybe", "", "its type, boolean, takes no text");
    row("date-and-time", "dateTime", "", "2026-03-01T12:00:00", "2026-03-01T12:00:00");
    row("no-date", "dateTime", "", "yesterday", "", "its type, dateTime, takes no text");
    row("time", "time", "", "12:00:01", "12:00:01");
    row("type-that-nothing-fills", "decimal", "", "1.5", "", "its type, decimal, takes no floating-point number");
    row("pattern-kept", "string", "<xs:pattern value='[A-Z]{2}'/>", "AB", "AB");
    row("pattern-broken", "string", "<xs:pattern value='[A-Z]{2}'/>", "ABC", "",
        "it is outside of its pattern, [A-Z]{2}");
    row("too-long", "string", "<xs:maxLength value='2'/>", "abc", "", "it is outside of its maxLength, 2");
    row("too-short", "string", "<xs:minLength value='2'/>", "a", "", "it is outside of its minLength, 2");
    row("of-another-length", "string", "<xs:length value='2'/>", "abc", "", "it is outside of its length, 2");
    row("too-many-digits", "integer", "<xs:totalDigits value='2'/>", "-123", "", "it is outside of its totalDigits, 2");
    row("digits-kept", "integer", "<xs:totalDigits value='3'/>", "-123", "-123");
    row("leading-zeros-are-no-digits", "long", "<xs:totalDigits value='10'/>", "005000000000", "005000000000");
    row("integer-of-more-than-32-bits", "integer", "", "3000000000", "",
        "integers of more than 32 bits are not written");
    row("long-behind-its-bound", "long", "<xs:maxInclusive value='9007199254740992'/>", "9007199254740993", "",
        "it is outside of its maxInclusive, 9007199254740992");
    row("long-far-from-a-bound-of-64-bits", "long", "<xs:maxInclusive value='9007199254740992'/>", "1", "1");
    row("long-at-its-bound", "long", "<xs:maxInclusive value='9007199254740993'/>", "9007199254740993",
        "9007199254740993");
    row("date-and-time-before-its-bound", "dateTime", "<xs:minInclusive value='2026-01-01T00:00:00'/>",
        "2025-12-31T23:59:59", "", "it is outside of its minInclusive, 2026-01-01T00:00:00");
    row("date-and-time-in-another-zone", "dateTime", "<xs:minInclusive value='2026-01-01T00:00:00Z'/>",
        "2026-01-01T00:30:00+01:00", "", "it is outside of its minInclusive, 2026-01-01T00:00:00Z");
    row("date-and-time-at-its-bound", "dateTime", "<xs:minInclusive value='2026-01-01T00:00:00'/>",
        "2026-01-01T00:00:00", "2026-01-01T00:00:00");
    row("time-behind-its-bound", "time", "<xs:maxInclusive value='12:00:00'/>", "12:00:01", "",
        "it is outside of its maxInclusive, 12:00:00");
    row("characters-of-two-code-units", "string", "<xs:length value='2'/>", "\xF0\x9F\x98\x80\xF0\x9F\x98\x81",
        "\xF0\x9F\x98\x80\xF0\x9F\x98\x81");
    row("length-without-collapsed-blanks", "string", "<xs:whiteSpace value='collapse'/><xs:maxLength value='3'/>",
        " a  b ", " a  b ");
    row("length-with-preserved-blanks", "string", "<xs:maxLength value='3'/>", " a  b ", "",
        "it is outside of its maxLength, 3");
    row("pattern-broken-as-written", "double", "<xs:pattern value='[0-9]\\.[0-9]{2}'/>", "1.50", "",
        "written as 1.5, it is outside of its pattern, [0-9]\\.[0-9]{2}");
    row("pattern-kept-as-written", "double", "<xs:pattern value='[0-9]+'/>", "98.5e6", "98500000");
    row("enumerated-in-another-form", "double", "<xs:enumeration value='1.50'/>", "1.5", "1.5");
}

void TestReportFillerValues::takesOrRefusesAValue()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, facets);
    QFETCH(QString, value);
    QFETCH(QString, written);
    QFETCH(QString, reason);
    const SchemaFolder folder(valueElement(base, facets));
    ReportFiller filler;
    filler.Add(QStringLiteral("Value"), value);
    QCOMPARE(filler.Fill(folder.Schema(), folder.Report()), reason.isEmpty());
    const ReportFiller::Verdict& verdict = filler.GetVerdicts().front();
    QCOMPARE(verdict.value, value);
    if (reason.isEmpty()) {
        QVERIFY(verdict.state == ReportFiller::State::Written);
        const QDomElement element = documentInFile(folder.Report()).documentElement().firstChildElement();
        QCOMPARE(element.text(), written);
        QCOMPARE(element.attributes().count(), 0);
    } else {
        QVERIFY(verdict.state == ReportFiller::State::Refused);
        QCOMPARE(verdict.reason, reason);
    }
}

void TestReportFillerValues::doubtsWhatItCannotDecide_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("facets");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("facet");
    const auto row = [](const char* name, const char* base, const char* facets, const char* value, const char* facet) {
        QTest::newRow(name) << QByteArray(base) << QByteArray(facets) << QString::fromLatin1(value)
                            << QString::fromLatin1(facet);
    };
    row("names", "string", "<xs:pattern value='\\i\\c*'/>", "a1", "pattern, \\i\\c*");
    row("words", "string", "<xs:pattern value='\\w+'/>", "a_b", "pattern, \\w+");
    row("block", "string", "<xs:pattern value='\\p{IsBasicLatin}+'/>", "ab", "pattern, \\p{IsBasicLatin}+");
    row("subtraction", "string", "<xs:pattern value='[a-z-[aeiou]]'/>", "b", "pattern, [a-z-[aeiou]]");
    row("anchor", "string", "<xs:pattern value='[0-9]+$'/>", "5", "pattern, [0-9]+$");
    row("first-of-two-patterns", "string", "<xs:pattern value='a+'/><xs:pattern value='b+'/>", "aa", "pattern, b+");
    row("date-and-time-without-the-zone-of-its-bound", "dateTime", "<xs:minInclusive value='2026-01-01T00:00:00Z'/>",
        "2026-01-01T00:30:00", "minInclusive, 2026-01-01T00:00:00Z");
}

void TestReportFillerValues::doubtsWhatItCannotDecide()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, facets);
    QFETCH(QString, value);
    QFETCH(QString, facet);
    const SchemaFolder folder(valueElement(base, facets));
    ReportFiller filler;
    filler.Add(QStringLiteral("Value"), value);
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.GetVerdicts().front().state == ReportFiller::State::Doubtful);
    QCOMPARE(filler.Complaints(),
             QStringList(QStringLiteral("/R/Value=%1: whether it is within its %2, is not known").arg(value, facet)));
    QCOMPARE(folder.Content(), QStringLiteral("R(Value=%1)").arg(value));
}

/// What the builder cannot decide, a validator can; one doubt less changes nothing about what is refused.
void TestReportFillerValues::asksTheValidatorWhatIsInDoubt()
{
    const SchemaFolder folder(valueElement("string", "<xs:pattern value='\\w+'/>"));
    ReportFiller filler;
    filler.Add(QStringLiteral("Value"), QStringLiteral("a b"));
    filler.SetValidator([](const QString&, const QString&) { return QStringList(QStringLiteral("it has a blank")); });
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.GetVerdicts().front().state == ReportFiller::State::Doubtful);
    QCOMPARE(filler.Complaints().last(), QStringLiteral("it has a blank"));

    filler.SetValidator([](const QString&, const QString&) { return QStringList(); });
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.GetVerdicts().front().state == ReportFiller::State::Written);
    QVERIFY(filler.Complaints().isEmpty());

    filler.Add(QStringLiteral("Nowhere"), QStringLiteral("a"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.GetVerdicts().front().state == ReportFiller::State::Doubtful);
}

void TestReportFillerValues::takesTypedValues_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("written");
    QTest::newRow("double") << QByteArray("double") << QVariant(98.5) << QStringLiteral("98.5");
    QTest::newRow("double-for-integer") << QByteArray("integer") << QVariant(98.0e6) << QStringLiteral("98000000");
    QTest::newRow("float") << QByteArray("double") << QVariant(0.5F) << QStringLiteral("0.5");
    QTest::newRow("int") << QByteArray("integer") << QVariant(-3) << QStringLiteral("-3");
    QTest::newRow("int-for-double") << QByteArray("double") << QVariant(3) << QStringLiteral("3");
    QTest::newRow("bool") << QByteArray("boolean") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("text") << QByteArray("string") << QVariant(QStringLiteral("x")) << QStringLiteral("x");
    QTest::newRow("long") << QByteArray("long") << QVariant(qlonglong(5000000000)) << QStringLiteral("5000000000");
    const QDateTime moment(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    QTest::newRow("date-and-time") << QByteArray("dateTime") << QVariant(moment)
                                   << QStringLiteral("2026-03-01T12:00:00Z");
    QTest::newRow("time") << QByteArray("time") << QVariant(QTime(1, 2, 3)) << QStringLiteral("01:02:03");
}

void TestReportFillerValues::takesTypedValues()
{
    QFETCH(QByteArray, base);
    QFETCH(QVariant, value);
    QFETCH(QString, written);
    const SchemaFolder folder(valueElement(base, ""));
    ReportFiller filler;
    filler.Add(QStringLiteral("Value"), value);
    filler.Add(QStringLiteral("Value"), QVariant());
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), QStringLiteral("R(Value=%1)").arg(written));
}

void TestReportFillerValues::readsNumbersWithoutLoss_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("value");
    QTest::newRow("short") << QByteArray("1.1") << QStringLiteral("1.1");
    QTest::newRow("third") << QByteArray("0.30000000000000004") << QStringLiteral("0.30000000000000004");
    QTest::newRow("whole") << QByteArray("98.5e6") << QStringLiteral("98500000");
    QTest::newRow("beyond-doubles") << QByteArray("9007199254740993") << QStringLiteral("9007199254740993");
    QTest::newRow("negative") << QByteArray("-7") << QStringLiteral("-7");
}

void TestReportFillerValues::readsNumbersWithoutLoss()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, value);
    const SchemaFolder folder(valueElement("string", ""));
    ReportFiller filler;
    QVERIFY(filler.AddJson("{\"Value\": " + json + "}"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(folder.Content(), QStringLiteral("R(Value=%1)").arg(value));
    ReportFiller typed;
    typed.Add(QStringLiteral("Value"), json.toDouble());
    QVERIFY(typed.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(typed.GetVerdicts().front().value.toDouble(), json.toDouble());
    QVERIFY(typed.GetVerdicts().front().value.size() <= value.size());
}

void TestReportFillerValues::continuesTheRecords()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddCsv("Station,Fixed,Operator\nS,yes,A\n"));
    QVERIFY(filler.AddCsv("Operator\nA\n"));
    QVERIFY(filler.AddJson("[{\"Operator\": \"A\", \"Station\": \"S\"}]"));
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), QStringLiteral("Survey(Station=S Operator=A Operator=A Operator=A Fixed=yes)"));
}

void TestReportFillerValues::refusesASecondValueInOneRecord()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddCsv("Station,Fixed,Station\nS,yes,S\n"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(),
             QStringList(QStringLiteral("Station=S: there is a value already, and it may occur at most once")));
}

void TestReportFillerValues::writesByTheDefault()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Mode' type='xs:string' default='AM'/>"
                              "<xs:element name='Rate' type='xs:double' default='x'/>"
                              "<xs:element name='Extra' type='xs:string' default='no' minOccurs='0'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(),
             QStringList(QStringLiteral("/R/Rate: its default is refused: its type, double, takes no text")));
    QCOMPARE(folder.Content(), QStringLiteral("R(Mode=AM Rate{default=x type=double})"));
}

void TestReportFillerValues::removesADefaultBesideAValue()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Mode' type='xs:string' default='AM'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    filler.Add(QStringLiteral("Mode"), QStringLiteral("FM"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(folder.Content(), QStringLiteral("R(Mode=FM)"));
}

void TestReportFillerValues::takesFacetsOfAnAttribute()
{
    const SchemaFolder folder("<xs:attribute name='Level'><xs:simpleType><xs:restriction base='xs:integer'>"
                              "<xs:minInclusive value='0'/><xs:maxInclusive value='10'/>"
                              "</xs:restriction></xs:simpleType></xs:attribute>"
                              "<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='A'><xs:complexType><xs:attribute ref='Level'/></xs:complexType>"
                              "</xs:element></xs:sequence></xs:complexType></xs:element>");
    const auto filled = [&folder](int level) {
        ReportFiller filler;
        filler.Add(QStringLiteral("A@Level"), level);
        filler.Fill(folder.Schema(), folder.Report());
        return filler.GetVerdicts().front();
    };
    QCOMPARE(filled(11).reason, QStringLiteral("it is outside of its maxInclusive, 10"));
    QVERIFY(filled(9).state == ReportFiller::State::Written);
    QCOMPARE(documentInFile(folder.Report()).documentElement().firstChildElement().attributes().count(), 1);
    QVERIFY(filled(10).state == ReportFiller::State::Refused); // The library excludes it behind a lower bound.
}

/// The builder takes the facets of each attribute away whose name the other's begins with.
void TestReportFillerValues::keepsFacetsOfAttributesApart()
{
    const SchemaFolder folder("<xs:attribute name='Unit'><xs:simpleType><xs:restriction base='xs:string'>"
                              "<xs:enumeration value='Hz'/></xs:restriction></xs:simpleType></xs:attribute>"
                              "<xs:attribute name='UnitBase'><xs:simpleType><xs:restriction base='xs:string'>"
                              "<xs:enumeration value='m'/></xs:restriction></xs:simpleType></xs:attribute>"
                              "<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='A'><xs:complexType><xs:attribute ref='Unit'/>"
                              "<xs:attribute ref='UnitBase'/></xs:complexType>"
                              "</xs:element></xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    filler.Add(QStringLiteral("A@Unit"), QStringLiteral("Hz"));
    filler.Add(QStringLiteral("A@UnitBase"), QStringLiteral("km"));
    filler.Fill(folder.Schema(), folder.Report());
    QVERIFY(filler.GetVerdicts()[0].state == ReportFiller::State::Written);
    QVERIFY(filler.GetVerdicts()[1].state == ReportFiller::State::Refused);
    QCOMPARE(filler.GetVerdicts()[1].reason, QStringLiteral("it is outside of its enumeration, m"));
}

void TestReportFillerValues::takesAttributesCalledLikeFacets()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='V'><xs:complexType><xs:simpleContent><xs:extension base='xs:string'>"
                              "<xs:attribute name='length' type='xs:integer'/>"
                              "<xs:attribute name='pattern' type='xs:string'/>"
                              "<xs:attribute name='maxLength' type='stringOfMine'/>"
                              "</xs:extension></xs:simpleContent></xs:complexType></xs:element>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    QVERIFY(filler.AddText("V=abcdef\nV@length=3\nV@pattern=x\nV@maxLength=2"));
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), QStringLiteral("R(V{length=3 maxLength=2 pattern=x}=abcdef)"));
}

void TestReportFillerValues::saysAsWhatAnAttributeIsWritten()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='V'><xs:complexType><xs:simpleContent><xs:extension base='xs:string'>"
                              "<xs:attribute name='d' type='xs:double'/>"
                              "</xs:extension></xs:simpleContent></xs:complexType></xs:element>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    QVERIFY(filler.AddText("V@d=98.5e6\nV=x"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.GetVerdicts().front().reason, QStringLiteral("written as 98500000"));
}

void TestReportFillerValues::readsAText_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("content");
    const QString two = QStringLiteral("Survey(Station=S Emission{Id=1}(Frequency{Unit=Hz}=1.5) "
                                       "Emission{Id=2}(Label=a,b Frequency=2) Fixed=yes)");
    QTest::newRow("json-object") << QStringLiteral("json")
                                 << QByteArray("{\"Station\": \"S\", \"Fixed\": \"yes\", \"Emission\": ["
                                               "{\"@Id\": 1, \"Frequency\": {\"@Unit\": \"Hz\", \"#text\": 1.5}},"
                                               "{\"@Id\": 2, \"Label\": \"a,b\", \"Frequency\": 2, \"Level\": null}]}")
                                 << two;
    QTest::newRow("json-with-the-root") << QStringLiteral("json")
                                        << QByteArray("{\"Survey\": {\"Station\": \"S\", \"Fixed\": \"yes\"}}")
                                        << QStringLiteral("Survey(Station=S Fixed=yes)");
    QTest::newRow("json-with-paths")
        << QStringLiteral("json")
        << QByteArray("{\"Station\": \"S\", \"Fixed\": \"yes\", \"Emission[1]/Frequency\": 1, "
                      "\"Emission[1]/Frequency@Unit\": \"Hz\", \"Number\": 3}")
        << QStringLiteral("Survey(Station=S Emission(Frequency{Unit=Hz}=1 Line(Number=3)) Fixed=yes)");
    QTest::newRow("json-records") << QStringLiteral("json")
                                  << QByteArray("[{\"Station\": \"S\", \"Fixed\": \"yes\", \"Emission@Id\": 1,"
                                                "\"Frequency\": 1.5, \"Frequency@Unit\": \"Hz\"},"
                                                "{\"Emission@Id\": 2, \"Label\": \"a,b\", \"Frequency\": 2}]")
                                  << two;
    QTest::newRow("csv-with-commas")
        << QStringLiteral("csv")
        << QByteArray("Station,Fixed,Emission@Id,Label,Frequency,Frequency@Unit\nS,yes,1,,1.5,Hz\nS,,2,\"a,b\",2,\n")
        << two;
    QTest::newRow("csv-with-semicolons-and-carriage-returns")
        << QStringLiteral("csv")
        << QByteArray("\xEF\xBB\xBFStation;Fixed;Emission@Id;Label;Frequency;Frequency@Unit\r\n"
                      "S;yes;1;;1.5;Hz\r\n;;;;;\r\nS;yes;2;a,b;2;\r\n")
        << two;
    QTest::newRow("csv-row-is-a-record-of-the-outermost")
        << QStringLiteral("csv") << QByteArray("Station,Fixed,Frequency,Number\nS,yes,1,11\n,,2,21\n")
        << QStringLiteral("Survey(Station=S Emission(Frequency=1 Line(Number=11)) "
                          "Emission(Frequency=2 Line(Number=21)) Fixed=yes)");
    QTest::newRow("csv-quotes") << QStringLiteral("csv") << QByteArray("Station,Fixed\n\"a \"\"b\"\"\nc\",yes\n")
                                << QStringLiteral("Survey(Station=a \"b\"\nc Fixed=yes)");
    QTest::newRow("csv-with-carriage-returns-alone")
        << QStringLiteral("csv") << QByteArray("Station,Fixed,Operator\rS,yes,A\rS,yes,B")
        << QStringLiteral("Survey(Station=S Operator=A Operator=B Fixed=yes)");
    QTest::newRow("csv-quote-within-a-cell")
        << QStringLiteral("csv") << QByteArray("Station,Fixed\n5\" mast, a \"b\" c\n")
        << QStringLiteral("Survey(Station=5\" mast Fixed=a \"b\" c)");
    QTest::newRow("csv-quoted-cell-keeps-its-blanks")
        << QStringLiteral("csv") << QByteArray("Station,Fixed\n \" S \" , yes \n")
        << QStringLiteral("Survey(Station= S  Fixed=yes)");
    QTest::newRow("csv-column-twice") << QStringLiteral("csv")
                                      << QByteArray("Station,Fixed,Frequency,Number,Number\nS,yes,1,7,7\n,,2,8,9\n")
                                      << QStringLiteral(
                                             "Survey(Station=S Emission(Frequency=1 Line(Number=7) Line(Number=7)) "
                                             "Emission(Frequency=2 Line(Number=8) Line(Number=9)) Fixed=yes)");
    QTest::newRow("json-record-without-values")
        << QStringLiteral("json")
        << QByteArray("[null, {\"Station\": \"S\", \"Fixed\": \"yes\", \"Operator\": \"A\"}, {}, "
                      "{\"Operator\": null}, {\"Operator\": \"B\"}]")
        << QStringLiteral("Survey(Station=S Operator=A Operator=B Fixed=yes)");
    QTest::newRow("json-texts")
        << QStringLiteral("json")
        << QByteArray(
               "\xEF\xBB\xBF{\"Station\": \"\\\"\\u00e4\\\\\", \"Fixed\" : true ,\"Operator\":[ \"]\", \"}\" ] }")
        << QString::fromUtf8("Survey(Station=\"\xC3\xA4\\ Operator=] Operator=} Fixed=true)");
    QTest::newRow("lines") << QStringLiteral("txt")
                           << QByteArray("# two\nStation = S\n\nFixed=yes\r\nEmission@Id=1\nEmission@Id=2\n"
                                         "Frequency=1.5\nFrequency@Unit=Hz\nFrequency=2\nEmission[2]/Label=a,b")
                           << two;
}

void TestReportFillerValues::readsAText()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, text);
    QFETCH(QString, content);
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QString fault;
    const bool isRead = suffix == QLatin1String("json") ? filler.AddJson(text, &fault)
        : suffix == QLatin1String("csv")                ? filler.AddCsv(text, &fault)
                                                        : filler.AddText(text, &fault);
    QVERIFY2(isRead, qPrintable(fault));
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), content);
}

void TestReportFillerValues::saysWhatIsWrongWithAText_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("place");
    QTest::newRow("json") << QStringLiteral("v.json") << QByteArray("{\n\"Station\": }")
                          << QStringLiteral("v.json:2: ");
    QTest::newRow("json-with-a-key-twice")
        << QStringLiteral("v.json") << QByteArray("{\"Station\": \"S\",\n\"St\\u0061tion\": \"T\"}")
        << QStringLiteral("v.json:2: The key Station is there twice");
    QTest::newRow("json-with-a-null-byte")
        << QStringLiteral("v.json") << QByteArray("{\"Station\": \"S\0\"}", 17) << QStringLiteral("v.json:1: ");
    QTest::newRow("csv-that-is-no-utf-8") << QStringLiteral("v.csv") << QByteArray("Station,Fixed\nS,\xE4\n")
                                          << QStringLiteral("v.csv:2: The text is not in UTF-8");
    QTest::newRow("lines-that-are-no-utf-8") << QStringLiteral("v.txt") << QByteArray("Station=S\nFixed=\xC3")
                                             << QStringLiteral("v.txt:2: The text is not in UTF-8");
    QTest::newRow("csv-with-an-open-quote")
        << QStringLiteral("v.csv") << QByteArray("Station,Fixed\nS,\"yes\n") << QStringLiteral("v.csv:2: ");
    QTest::newRow("csv-with-too-many-cells")
        << QStringLiteral("v.csv") << QByteArray("Station,Fixed\nS,yes,no\n") << QStringLiteral("v.csv:2: ");
    QTest::newRow("line-without-a-value")
        << QStringLiteral("v.txt") << QByteArray("Station=S\n\nFixed") << QStringLiteral("v.txt:3: ");
    QTest::newRow("line-without-a-name") << QStringLiteral("v.txt") << QByteArray("=S") << QStringLiteral("v.txt:1: ");
}

void TestReportFillerValues::saysWhatIsWrongWithAText()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, text);
    QFETCH(QString, place);
    const QTemporaryDir folder;
    QFile file(folder.filePath(fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    ReportFiller filler;
    QString fault;
    QVERIFY(!filler.AddFile(file.fileName(), &fault));
    QVERIFY2(fault.contains(place), qPrintable(fault));
    QVERIFY(!filler.AddFile(file.fileName()));

    const SchemaFolder schema(surveyElements()); // Nothing of it was taken.
    filler.Fill(schema.Schema(), schema.Report());
    QVERIFY(schema.Content().startsWith(QStringLiteral("Survey(Station{type=string}")));
}

void TestReportFillerValues::readsFilesByTheirSuffix()
{
    const SchemaFolder folder(surveyElements());
    const QTemporaryDir values;
    ReportFiller filler;
    for (const auto& [name, text] : {std::make_pair("a.json", "{\"Station\": \"S\"}"),
                                     std::make_pair("b.csv", "Fixed\nyes"), std::make_pair("c.txt", "Operator=A")}) {
        QFile file(values.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        QVERIFY(filler.AddFile(file.fileName()));
    }
    QVERIFY(!filler.AddFile(values.filePath(QStringLiteral("nowhere.csv"))));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(folder.Content(), QStringLiteral("Survey(Station=S Operator=A Fixed=yes)"));
}

QTEST_GUILESS_MAIN(TestReportFillerValues)
#include "tst_reportfiller_values.moc"
