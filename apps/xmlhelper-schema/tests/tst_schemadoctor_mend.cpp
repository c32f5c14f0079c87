#include <algorithm>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "examine.h"
#include "mend/mendfile.h"
#include "proof/filling.h"
#include "proof/validation.h"

using namespace schemadoctor;

namespace {

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString written(const QString& name, const QByteArray& text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? name : QString();
}

QByteArray schema(const QByteArray& declarations)
{
    return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n" + declarations + "\n</xs:schema>\n";
}

QByteArray report(const QByteArray& content)
{
    return "<xs:element name='Report'><xs:complexType><xs:sequence>\n" + content
        + "</xs:sequence></xs:complexType></xs:element>";
}

QString errorsOf(const Examination& examination)
{
    QStringList errors;
    for (const Finding& finding : examination.findings) {
        if (finding.severity == Severity::Error) {
            errors.append(finding.rule + QLatin1String(": ") + finding.what);
        }
    }
    return errors.join(QLatin1Char('\n'));
}

bool has(const QVector<Rewrite>& rewrites, int line, RewriteEffect effect)
{
    return std::any_of(rewrites.begin(), rewrites.end(), [line, effect](const Rewrite& rewrite) {
        return rewrite.place.line == line && rewrite.effect == effect;
    });
}

} // namespace

/// Schemas of the corpus, and schemas as people write them, as mended ones.
class TestSchemaDoctorMend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesOutRight_data();
    void comesOutRight();
    void keepsWhatHasNoFindings_data();
    void keepsWhatHasNoFindings();
    void putsIncludesInTheirPlace();
    void putsTextsOfOtherEncodingsTogether();
    void tells_data();
    void tells();
    void keepsTheFormatOnRequest();
    void allowsNoMoreThanTheOriginal_data();
    void allowsNoMoreThanTheOriginal();
    void writesPatternsOfSeveralSteps();
    void writesWhatIsKeptTheSameAgain();
    void saysWhichBoundsAreLeftToSetters_data();
    void saysWhichBoundsAreLeftToSetters();
    void keepsDefaultsThatFit_data();
    void keepsDefaultsThatFit();
    void tellsOfNoTypeThatNobodyWrote();
    void renamesWhatIsPartOfAFacet_data();
    void renamesWhatIsPartOfAFacet();
    void keepsReportsValidByTheOriginal();
    void saysRightlyThatReportsStayValid_data();
    void saysRightlyThatReportsStayValid();
    void saysThatTheFormatIsLost();
    void saysWhichFormsTheNamespaceLoses();
    void beginsWithNoSubstitute();
    void mergesOnlyWhatHasItsPrefixes();
    void findsIncludesOfABareName();
    void multipliesCountsWithinTheirRange();
    void unrollsToLevels_data();
    void unrollsToLevels();
    void takesTheRootThatIsNamed();
    void refuses_data();
    void refuses();
    void writesOverNoFileOfTheSchema();
    void keepsCommentsAndAnnotations();

private:
    Mending mended(const QByteArray& text, const MendOptions& options = MendOptions());

    QTemporaryDir m_folder;
};

Mending TestSchemaDoctorMend::mended(const QByteArray& text, const MendOptions& options)
{
    return mend(written(m_folder.filePath(QStringLiteral("given.xsd")), text), options);
}

void TestSchemaDoctorMend::comesOutRight_data()
{
    QTest::addColumn<QString>("file");
    int own = 0;
    for (const char* const folder : {CORPUS_FOLDER, MEND_FOLDER, EXAMPLES_FOLDER}) {
        const QDir files(QString::fromLocal8Bit(folder));
        const QStringList names = files.entryList({QStringLiteral("*.xsd")}, QDir::Files, QDir::Name);
        for (const QString& name : names) {
            if (!name.endsWith(QLatin1String(".inc.xsd"))) { // Files that are included declare no element.
                QTest::newRow(qPrintable(name.chopped(4))) << files.filePath(name);
                own += folder == QByteArray(MEND_FOLDER) ? 1 : 0;
            }
        }
    }
    QVERIFY(own >= 20);
}

/// Without errors, with valid reports of every filling, and the same when it is mended once more.
void TestSchemaDoctorMend::comesOutRight()
{
    QFETCH(QString, file);
    const QString out = m_folder.filePath(QStringLiteral("mended.xsd"));
    const MendedFile result = mendInto(out, file, MendOptions());
    QCOMPARE(result.mending.refusal, QString());
    QCOMPARE(errorsOf(result.examination), QString());
    QVERIFY(!result.examination.tree.IsEmpty());
    QVERIFY(result.examination.proof.reports >= 4);
    QCOMPARE(result.examination.proof.validReports, result.examination.proof.reports);
    QCOMPARE(result.examination.proof.leftOut, QString());
    QCOMPARE(QString::fromUtf8(mend(out).text), QString::fromUtf8(result.mending.text));
}

void TestSchemaDoctorMend::keepsWhatHasNoFindings_data()
{
    QTest::addColumn<QString>("file");
    const QDir files(QStringLiteral(EXAMPLES_FOLDER));
    for (const char* const name :
         {"spectrometer.xsd", "observinglog-mended.xsd", "starcatalogue-mended.xsd", "weatherstation-mended.xsd"}) {
        QTest::newRow(name) << files.filePath(QLatin1String(name));
    }
}

void TestSchemaDoctorMend::keepsWhatHasNoFindings()
{
    QFETCH(QString, file);
    const Mending mending = mend(file);
    QCOMPARE(mending.text, contentOf(file));
    QVERIFY(mending.rewrites.isEmpty());
}

void TestSchemaDoctorMend::putsIncludesInTheirPlace()
{
    const QByteArray type = "  <xs:simpleType  name='Level' ><xs:restriction base='xs:string'>"
                            "<xs:enumeration value='low'/></xs:restriction></xs:simpleType>";
    const QByteArray root = report("<xs:element name='Value' type='Level'/>");
    QVERIFY(!written(m_folder.filePath(QStringLiteral("level.xsd")), schema(type)).isEmpty());
    const Mending mending = mended(schema("<xs:include schemaLocation='level.xsd'/>\n" + root));
    QCOMPARE(QString::fromUtf8(mending.text), QString::fromUtf8(schema(type.trimmed() + "\n" + root)));
}

void TestSchemaDoctorMend::putsTextsOfOtherEncodingsTogether()
{
    const QByteArray type = "<xs:simpleType name='Level'><xs:restriction base='xs:string'>"
                            "<xs:enumeration value='\xe9'/></xs:restriction></xs:simpleType>";
    QVERIFY(!written(m_folder.filePath(QStringLiteral("latin.xsd")),
                     "<?xml version='1.0' encoding='ISO-8859-1'?>" + schema(type))
                 .isEmpty());
    const Mending mending = mended(
        schema("<xs:include schemaLocation='latin.xsd'/>\n" + report("<xs:element name='Value' type='Level'/>")));
    QVERIFY(mending.text.contains("<xs:enumeration value=\"\xc3\xa9\"/>"));
}

void TestSchemaDoctorMend::tells_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("staysValid");
    const QByteArray last = "\n<xs:element name='Last' type='xs:string'/>";
    const auto add = [](const char* name, const QByteArray& text, bool staysValid) {
        QTest::newRow(name) << text << 3 << staysValid;
    };
    const auto ofType = [&last](const QByteArray& facets, const QByteArray& base) {
        return report("<xs:element name='Value'><xs:simpleType><xs:restriction base='" + base + "'>" + facets
                      + "</xs:restriction></xs:simpleType></xs:element>" + last);
    };
    add("float", report("<xs:element name='Value' type='xs:float'/>"), true);
    add("decimal", report("<xs:element name='Value' type='xs:decimal'/>"), false);
    add("date", report("<xs:element name='Value' type='xs:date'/>"), false);
    add("positive-integer", report("<xs:element name='Value' type='xs:positiveInteger'/>"), true);
    add("pattern", ofType("<xs:pattern value='a+'/>", "xs:string"), false);
    add("white-space", ofType("<xs:whiteSpace value='collapse'/>", "xs:string"), true);
    add("pattern-of-enumeration", ofType("<xs:pattern value='a+'/><xs:enumeration value='aa'/>", "xs:string"), true);
    add("pattern-that-is-none-of-enumeration",
        ofType("<xs:pattern value='(a'/><xs:enumeration value='aa'/>", "xs:string"), false);
    add("numbers-enumerated", ofType("<xs:enumeration value='1'/>", "xs:double"), true);
    add("bound-of-65535", ofType("<xs:maxInclusive value='65535'/>", "xs:integer"), true);
    add("fixed", report("<xs:element name='Value' type='xs:int' fixed='7'/>"), true);
    add("nillable", report("<xs:element name='Value' type='xs:string' nillable='true'/><xs:any/>"), true);
    add("any-required", report("<xs:any processContents='lax'/>" + last), false);
    add("any-optional", report("<xs:element name='A' type='xs:date'/><xs:any minOccurs='0'/>"), true);
    add("repeated-choice-of-elements",
        report("<xs:choice minOccurs='0' maxOccurs='unbounded'><xs:element name='A' type='xs:string'/>"
               "<xs:element name='B' type='xs:string'/></xs:choice>"),
        true);
    add("repeated-choice-that-is-required",
        report("<xs:choice maxOccurs='unbounded'><xs:element name='A' type='xs:string'/>"
               "<xs:element name='B' type='xs:string'/></xs:choice>"),
        false);
}

/// The rewrite, its line in the original, and what it does to reports.
void TestSchemaDoctorMend::tells()
{
    QFETCH(QByteArray, declarations);
    QFETCH(int, line);
    QFETCH(bool, staysValid);
    const Mending mending = mended(schema(declarations));
    QVERIFY(has(mending.rewrites, line, staysValid ? RewriteEffect::StaysValid : RewriteEffect::ChangesFormat));
}

void TestSchemaDoctorMend::keepsTheFormatOnRequest()
{
    MendOptions options;
    options.isFormatKept = true;
    const Mending mending = mended(schema(report("<xs:element name='Day' type='xs:date'/>\n"
                                                 "<xs:element name='Level' type='xs:float'/>\n"
                                                 "<xs:element name='Items'><xs:simpleType>"
                                                 "<xs:list itemType='xs:float'/></xs:simpleType></xs:element>")),
                                   options);
    QCOMPARE(mending.left.size(), 1);
    QCOMPARE(mending.left.first().place.line, 3);
    QVERIFY(has(mending.rewrites, 4, RewriteEffect::StaysValid));
    QVERIFY(has(mending.rewrites, 5, RewriteEffect::StaysValid));
    QVERIFY(mending.text.contains("name=\"Day\" type=\"xs:date\""));
    QVERIFY(mending.text.contains("name=\"Level\" type=\"xs:double\""));
    QVERIFY(mending.text.contains("name=\"Items\" type=\"xs:double\""));
}

void TestSchemaDoctorMend::allowsNoMoreThanTheOriginal_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<bool>("isFormatKept");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isAllowed");
    const auto type = [](const QByteArray& name, const QByteArray& base, const QByteArray& facets) {
        return "<xs:simpleType name='" + name + "'><xs:restriction base='" + base + "'>" + facets
            + "</xs:restriction></xs:simpleType>";
    };
    const auto facet
        = [](const QByteArray& name, const QByteArray& value) { return "<xs:" + name + " value='" + value + "'/>"; };
    const auto enumeration = [&facet](const QList<QByteArray>& texts) {
        QByteArray facets;
        for (const QByteArray& text : texts) {
            facets += facet("enumeration", text);
        }
        return facets;
    };
    const QByteArray value = report("<xs:element name='V' type='T'/>");
    const auto attribute = [](const QByteArray& declaration) {
        return report("<xs:element name='V'><xs:complexType><xs:attribute name='size' " + declaration
                      + "/></xs:complexType></xs:element>");
    };
    const auto add = [](const char* name, const QByteArray& declarations, const QByteArray& content, bool isAllowed,
                        bool isFormatKept = false) {
        QTest::newRow(name) << declarations << isFormatKept << content << isAllowed;
    };
    const auto addKept = [&add](const char* name, const QByteArray& declarations, const QByteArray& content,
                                bool isAllowed) { add(name, declarations, content, isAllowed, true); };

    const QByteArray letters = type("E", "xs:string", enumeration({"A", "B", "C"})) + value;
    const QByteArray byPattern = letters + type("T", "E", facet("pattern", "A|B"));
    add("enumerated-within-a-pattern", byPattern, "<V>B</V>", true);
    add("enumerated-outside-of-a-pattern", byPattern, "<V>C</V>", false);
    const QByteArray numbers = type("E", "xs:int", enumeration({"1", "5", "10"})) + value;
    const QByteArray byBound = numbers + type("T", "E", facet("maxInclusive", "5"));
    add("enumerated-at-a-bound", byBound, "<V>5</V>", true);
    add("enumerated-beyond-a-bound", byBound, "<V>10</V>", false);
    const QByteArray byLength
        = type("E", "xs:string", enumeration({"a", "bb"})) + value + type("T", "E", facet("maxLength", "1"));
    add("enumerated-too-long", byLength, "<V>bb</V>", false);
    const QByteArray days = type("E", "xs:date", enumeration({"2024-01-01", "2025-01-01"})) + value
        + type("T", "E", facet("maxExclusive", "2025-01-01"));
    add("enumerated-day-before", days, "<V>2024-01-01</V>", true);
    add("enumerated-day-at-the-bound", days, "<V>2025-01-01</V>", false);
    const QByteArray lists = "<xs:simpleType name='L'><xs:list itemType='xs:int'/></xs:simpleType>" + value;
    const QByteArray someLists
        = lists + type("E", "L", enumeration({"1", "1 2", "1 2 3"})) + type("T", "E", facet("minLength", "2"));
    add("enumerated-list", someLists, "<V>1 2</V>", true);
    add("enumerated-list-too-short", someLists, "<V>1</V>", false);
    const QByteArray members = letters + type("P", "E", facet("pattern", "A|B"))
        + type("O", "xs:string", enumeration({"x"}))
        + "<xs:simpleType name='T'><xs:union memberTypes='P O'/></xs:simpleType>";
    add("member-within-a-pattern", members, "<V>A</V>", true);
    add("member-outside-of-a-pattern", members, "<V>C</V>", false);
    addKept("enumerated-within-a-pattern-that-is-too-long-to-try",
            letters + type("T", "E", facet("pattern", "A|B" + QByteArray("|A").repeated(600))), "<V>C</V>", false);

    const QByteArray capitals = type("P", "xs:string", facet("pattern", "[A-Z]+")) + value;
    const QByteArray twoSteps = capitals + type("T", "P", facet("pattern", "..."));
    addKept("patterns-of-two-steps", twoSteps, "<V>XYZ</V>", true);
    addKept("only-second-of-two-patterns", twoSteps, "<V>xyz</V>", false);
    addKept("only-first-of-two-patterns", twoSteps, "<V>XY</V>", false);
    const QByteArray threeSteps = capitals + type("S", "P", facet("pattern", "X.*") + facet("pattern", "Y.*"))
        + type("T", "S", facet("pattern", ".*Z"));
    addKept("patterns-of-three-steps", threeSteps, "<V>YZ</V>", true);
    addKept("two-of-three-patterns", threeSteps, "<V>AZ</V>", false);
    const QByteArray attributeSteps = type("P", "xs:string", facet("pattern", "[A-Z]+"))
        + type("T", "P", facet("pattern", "...")) + attribute("type='T'");
    addKept("attribute-with-patterns-of-two-steps", attributeSteps, "<V size='XYZ'/>", true);
    addKept("attribute-with-only-one-pattern", attributeSteps, "<V size='XY'/>", false);
    const auto ofTwoTypes = [](const QByteArray& owner) {
        return report("<xs:element name='" + owner
                      + "' minOccurs='2' maxOccurs='2'><xs:complexType><xs:sequence>"
                        "<xs:element name='A' type='xs:string'/></xs:sequence><xs:attribute name='U' type='F'/>"
                        "</xs:complexType></xs:element><xs:element name='V'><xs:complexType>"
                        "<xs:attribute name='U' type='T'/></xs:complexType></xs:element>");
    };
    const QByteArray twoTypes = type("F", "xs:string", enumeration({"m"})) + type("T", "xs:string", enumeration({"s"}));
    const QByteArray sameOwner = "<U><A/></U><U><A/></U>";
    const QByteArray otherOwner = "<O U='m'><A/></O><O><A/></O>";
    addKept("attribute-of-another-type", twoTypes + ofTwoTypes("O"), otherOwner + "<V U='s'/>", true);
    addKept("attribute-of-the-type-of-another", twoTypes + ofTwoTypes("O"), otherOwner + "<V U='m'/>", false);
    addKept("attribute-called-like-an-element", twoTypes + ofTwoTypes("U"), sameOwner + "<V U='s'/>", true);
    const QByteArray truth = type("T", "xs:boolean", facet("pattern", "t.*")) + attribute("type='T'");
    addKept("truth-within-a-pattern", truth, "<V size='true'/>", true);
    addKept("truth-outside-of-a-pattern", truth, "<V size='false'/>", false);
    const QByteArray listSteps
        = lists + type("S", "L", facet("pattern", "[12]+")) + type("T", "S", facet("pattern", ".."));
    addKept("list-with-patterns-of-two-steps", listSteps, "<V>12</V>", true);
    addKept("list-with-only-one-pattern", listSteps, "<V>34</V>", false);
    const QByteArray listed = capitals + type("T", "P", facet("pattern", "ON|OFF|auto"));
    addKept("texts-listed-by-a-pattern", listed, "<V>ON</V>", true);
    addKept("texts-listed-outside-of-a-pattern", listed, "<V>auto</V>", false);
    const QByteArray alternatives = value + type("T", "xs:string", facet("pattern", "a+") + facet("pattern", "b+"));
    addKept("first-alternative", alternatives, "<V>aa</V>", true);
    addKept("second-alternative", alternatives, "<V>bb</V>", true);
    addKept("no-alternative", alternatives, "<V>cc</V>", false);
    addKept("pattern-of-a-type-that-is-unknown", value + type("T", "Nowhere", facet("pattern", "a")), "<V>b</V>",
            false);
    addKept("text-of-a-type-that-is-unknown", value + type("T", "Nowhere", enumeration({"a"})), "<V>a</V>", true);
    addKept("length-within-lengths",
            value + type("S", "xs:string", facet("minLength", "1") + facet("maxLength", "9"))
                + type("T", "S", facet("length", "2")),
            "<V>ab</V>", true);

    const QByteArray severalItems = lists + type("T", "L", facet("minLength", "2"));
    addKept("list-of-too-few", severalItems, "<V>1</V>", false);
    addKept("list-of-several", severalItems, "<V>1 2 3</V>", true);
    addKept("list-of-something-else", severalItems, "<V>a b</V>", false);
    addKept("list-of-at-most", lists + type("T", "L", facet("maxLength", "2")), "<V>7</V>", true);
    addKept("list-of-exactly", lists + type("T", "L", facet("length", "2")), "<V>1 2 3</V>", false);
    const QByteArray words = value + type("S", "xs:string", facet("minLength", "3"))
        + "<xs:simpleType name='T'><xs:list itemType='S'/></xs:simpleType>";
    addKept("list-of-a-word", words, "<V>abc</V>", true);
    addKept("list-of-words-that-are-too-short", words, "<V>a b</V>", false);
    const QByteArray phrases = value + type("S", "xs:string", enumeration({"one", "one more"}))
        + "<xs:simpleType name='T'><xs:list itemType='S'/></xs:simpleType>";
    addKept("list-of-a-text", phrases, "<V>one</V>", true);
    addKept("list-of-a-text-with-a-space", phrases, "<V>one more</V>", false);

    add("greatest-of-an-unsigned-short", report("<xs:element name='V' type='xs:unsignedShort' default='65535'/>"),
        "<V>65535</V>", true);
    add("beyond-an-unsigned-short", report("<xs:element name='V' type='xs:unsignedShort'/>"), "<V>65536</V>", false);
    const QByteArray integer = report("<xs:element name='V' type='xs:int'/>");
    add("greatest-of-an-int", integer, "<V>2147483647</V>", true);
    add("beyond-an-int", integer, "<V>2147483648</V>", false);
    const QByteArray upToGreatest
        = type("T", "xs:integer", facet("minInclusive", "-2147483648") + facet("maxInclusive", "2147483647"));
    add("greatest-of-a-setter", value + upToGreatest, "<V>2147483647</V>", true);
    add("beyond-a-setter", value + upToGreatest, "<V>2147483648</V>", false);
    add("attribute-beyond-a-setter", attribute("type='T'") + upToGreatest, "<V size='2147483648'/>", false);
    const QByteArray ten = attribute("type='T' default='10'")
        + type("T", "xs:int", facet("minInclusive", "0") + facet("maxInclusive", "10"));
    add("greatest-of-an-attribute", ten, "<V size='10'/>", true);
    add("beyond-an-attribute", ten, "<V size='11'/>", false);
    const auto only = [&](const QByteArray& base, const QByteArray& number) {
        return type("T", base, facet("minInclusive", number) + facet("maxInclusive", number));
    };
    add("only-value-of-an-attribute", attribute("type='T'") + only("xs:int", "3"), "<V size='3'/>", true);
    add("beside-the-only-value-of-an-attribute", attribute("type='T'") + only("xs:int", "3"), "<V size='4'/>", false);
    add("only-value-65534", attribute("type='T'") + only("xs:int", "65534"), "<V size='65534'/>", true);
    add("only-value-65535", value + only("xs:int", "65535"), "<V>65535</V>", true);
    add("only-double-65535", value + only("xs:double", "65535"), "<V>65535</V>", true);
    add("only-double-of-an-attribute", attribute("type='T'") + only("xs:double", "3"), "<V size='3'/>", true);
    add("fixed-and-empty", report("<xs:element name='V' type='xs:string' fixed=''/>"), "<V/>", true);
    add("not-fixed-and-empty", report("<xs:element name='V' type='xs:string' fixed=''/>"), "<V>x</V>", false);
    add("member-that-is-not-the-default",
        "<xs:simpleType name='O'><xs:union memberTypes='xs:int xs:time'/></xs:simpleType>"
            + report("<xs:element name='V' type='O' default='10:00:00'/>"),
        "<V>1</V>", true);
}

/// Reports held against both schemas: what the mended one allows, the original allows too, or it is told.
void TestSchemaDoctorMend::allowsNoMoreThanTheOriginal()
{
    QFETCH(QByteArray, declarations);
    QFETCH(bool, isFormatKept);
    QFETCH(QByteArray, content);
    QFETCH(bool, isAllowed);
    MendOptions options;
    options.isFormatKept = isFormatKept;
    options.root = QStringLiteral("Report");
    const Mending mending = mended(schema(declarations), options);
    QCOMPARE(mending.refusal, QString());
    const QString out = written(m_folder.filePath(QStringLiteral("mended.xsd")), mending.text);
    const QVector<QByteArray> reports {"<Report>" + content + "</Report>"};
    QVector<ValidityError> errors;
    QVERIFY2(validate(out, reports, errors), mending.text.constData());
    QVERIFY2(errors.isEmpty() == isAllowed, mending.text.constData());
    for (const Rewrite& rewrite : mending.rewrites) {
        QVERIFY2(rewrite.effect == RewriteEffect::StaysValid, qPrintable(rewrite.before));
    }
}

/// As types that setters fill, and that elements of the same steps share. Mending once more changes nothing.
void TestSchemaDoctorMend::writesPatternsOfSeveralSteps()
{
    const auto type = [](const QByteArray& name, const QByteArray& base, const QByteArray& pattern) {
        return "<xs:simpleType name='" + name + "'><xs:restriction base='" + base + "'><xs:pattern value='" + pattern
            + "'/></xs:restriction></xs:simpleType>";
    };
    MendOptions options;
    options.isFormatKept = true;
    const Mending mending
        = mended(schema(type("Long", "xs:string", "[A-Z]+") + type("A", "Long", "...") + type("B", "Long", "....")
                        + type("Few", "xs:int", "[0-9]*") + type("C", "Few", "[1-9].*")
                        + report("<xs:element name='First' type='A'/><xs:element name='Second' type='B'/>"
                                 "<xs:element name='Third' type='C'/>")),
                 options);
    QCOMPARE(mending.text.count("<xs:simpleType"), 5);
    const QString out = written(m_folder.filePath(QStringLiteral("steps.xsd")), mending.text);
    QCOMPARE(QString::fromUtf8(mend(out, options).text), QString::fromUtf8(mending.text));
    const Examination examination = examine(out, false);
    for (const Finding& finding : examination.findings) {
        QVERIFY2(!finding.effect.contains(QLatin1String("no setter")), qPrintable(finding.effect));
    }
    const SkeletonTree& tree = examination.tree;
    QCOMPARE(tree.elements.size(), std::size_t(4));
    QCOMPARE(tree.elements[1].setters, Setters(Setter::Text));
    QCOMPARE(tree.elements[2].setters, Setters(Setter::Text));
    QCOMPARE(tree.elements[3].setters, Setters(Setter::Integer));
}

void TestSchemaDoctorMend::writesWhatIsKeptTheSameAgain()
{
    MendOptions options;
    options.isFormatKept = true;
    const QByteArray type = "<xs:simpleType name='T'><xs:restriction base='xs:boolean'><xs:pattern value='t.*'/>"
                            "</xs:restriction></xs:simpleType>";
    const QByteArray attribute = "<xs:element name='V'><xs:complexType><xs:attribute name='size' type='T'/>"
                                 "</xs:complexType></xs:element>";
    const QByteArray day = "<xs:element name='Day' type='xs:date'/>"; // with findings that stay
    const Mending mending = mended(schema(type + report(attribute + day)), options);
    QVERIFY(mending.text.contains("size"));
    const QString out = written(m_folder.filePath(QStringLiteral("kept.xsd")), mending.text);
    QCOMPARE(QString::fromUtf8(mend(out, options).text), QString::fromUtf8(mending.text));
}

void TestSchemaDoctorMend::saysWhichBoundsAreLeftToSetters_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QString>("after");
    const auto element = [](const char* type) {
        return "<xs:element name='V' type='" + QByteArray(type) + "'/><xs:element name='D' type='xs:date'/>";
    };
    const auto attribute = [](const char* type) {
        return "<xs:element name='V'><xs:complexType><xs:attribute name='size' type='" + QByteArray(type)
            + "'/></xs:complexType></xs:element>";
    };
    const QString left = QStringLiteral("; setters give no number beyond the bounds of ");
    const QString integer = QStringLiteral("xs:integer");
    const QString natural = QStringLiteral("xs:integer with xs:minInclusive '0'");
    QTest::newRow("long") << element("xs:long") << integer + left + QLatin1String("xs:long");
    QTest::newRow("unsigned-int") << element("xs:unsignedInt") << natural + left + QLatin1String("xs:unsignedInt");
    QTest::newRow("unsigned-long") << element("xs:unsignedLong") << natural + left + QLatin1String("xs:unsignedLong");
    QTest::newRow("int-of-an-attribute") << attribute("xs:int") << integer + left + QLatin1String("xs:int");
    QTest::newRow("non-negative") << element("xs:nonNegativeInteger") << natural;
    QTest::newRow("int") << element("xs:int") << QString();
}

/// What is told of the type; empty where it stays as it is.
void TestSchemaDoctorMend::saysWhichBoundsAreLeftToSetters()
{
    QFETCH(QByteArray, declaration);
    QFETCH(QString, after);
    QStringList told;
    const QVector<Rewrite> rewrites = mended(schema(report(declaration))).rewrites;
    for (const Rewrite& rewrite : rewrites) {
        if (rewrite.effect == RewriteEffect::StaysValid && rewrite.after.startsWith(QLatin1String("xs:integer"))) {
            told.append(rewrite.after);
        }
    }
    QCOMPARE(told, after.isEmpty() ? QStringList() : QStringList {after});
}

void TestSchemaDoctorMend::keepsDefaultsThatFit_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<QByteArray>("text");
    const auto attribute = [](const QByteArray& declaration) {
        return "<xs:element name='Report'><xs:complexType><xs:sequence><xs:element name='A' type='xs:date'/>"
               "</xs:sequence>\n<xs:attribute name='size' "
            + declaration + "</xs:complexType></xs:element>";
    };
    QTest::newRow("truth") << attribute("type='xs:boolean' default='1'/>") << QByteArray(" default=\"true\"");
    QTest::newRow("truth-as-a-word") << attribute("type='xs:boolean' default='false'/>")
                                     << QByteArray(" default=\"false\"");
    QTest::newRow("number-enumerated") << attribute(
        "default='05'><xs:simpleType><xs:restriction base='xs:int'><xs:enumeration value='5'/>"
        "</xs:restriction></xs:simpleType></xs:attribute>")
                                       << QByteArray(" default=\"5\"");
    QTest::newRow("greatest-that-is-never-reached")
        << attribute("default='2.5'><xs:simpleType><xs:restriction base='xs:double'><xs:minInclusive value='1'/>"
                     "<xs:maxInclusive value='3'/></xs:restriction></xs:simpleType></xs:attribute>")
        << QByteArray(" default=\"2.5\"");
    QTest::newRow("greatest-of-a-double")
        << attribute("default='3'><xs:simpleType><xs:restriction base='xs:double'><xs:minInclusive value='1'/>"
                     "<xs:maxInclusive value='3'/></xs:restriction></xs:simpleType></xs:attribute>")
        << QByteArray();
}

/// In the words of the mended type, or told as dropped.
void TestSchemaDoctorMend::keepsDefaultsThatFit()
{
    QFETCH(QByteArray, declarations);
    QFETCH(QByteArray, text);
    const Mending mending = mended(schema(declarations));
    const bool isDropped = std::any_of(mending.rewrites.begin(), mending.rewrites.end(), [](const Rewrite& rewrite) {
        return rewrite.before.startsWith(QLatin1String("the default ")) && rewrite.after == QLatin1String("nothing");
    });
    QCOMPARE(isDropped, text.isEmpty());
    QVERIFY2(mending.text.contains(text.isEmpty() ? QByteArray("<xs:attribute") : text), mending.text.constData());
    QCOMPARE(mending.text.contains(" default="), !text.isEmpty());
}

/// Of a type that nothing defines.
void TestSchemaDoctorMend::tellsOfNoTypeThatNobodyWrote()
{
    MendOptions options;
    options.isFormatKept = true;
    const Mending mending = mended(schema(report("<xs:element name='Value' type='Nowhere'/>")), options);
    QCOMPARE(mending.left.size(), 1);
    QVERIFY(mending.left.first().before.contains(QLatin1String("Nowhere")));
    for (const Rewrite& rewrite : mending.rewrites) {
        QVERIFY2(!rewrite.before.contains(QLatin1String("anySimpleType")), qPrintable(rewrite.before));
    }
}

void TestSchemaDoctorMend::renamesWhatIsPartOfAFacet_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("attributes");
    const QByteArray truth = "<xs:attribute name='b' type='xs:boolean'/>";
    const auto upTo = [](const QByteArray& name) {
        return "<xs:attribute name='" + name
            + "'><xs:simpleType><xs:restriction base='xs:int'><xs:minInclusive value='0'/>"
              "<xs:maxInclusive value='10'/></xs:restriction></xs:simpleType></xs:attribute>";
    };
    QTest::newRow("of-another-enumeration") << QByteArray("xs:string") << truth + upTo("n");
    QTest::newRow("of-the-number-of-a-text") << QByteArray("xs:string") << truth + upTo("n1");
    QTest::newRow("of-another-bound") << QByteArray("xs:string")
                                      << upTo("level") + "<xs:attribute name='x' type='xs:int'/>";
    QTest::newRow("of-the-enumeration-of-the-element")
        << QByteArray("E") << QByteArray("<xs:attribute name='n' type='xs:int'/>");
    QTest::newRow("that-ends-with-a-number-as-of-the-element")
        << QByteArray("xs:int") << QByteArray("<xs:attribute name='b2' type='xs:boolean'/>");
    QTest::newRow("that-is-taken-already")
        << QByteArray("xs:string") << truth + upTo("n") + "<xs:attribute name='itsN' type='xs:int'/>";
}

void TestSchemaDoctorMend::renamesWhatIsPartOfAFacet()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, attributes);
    const QByteArray enumeration = "<xs:simpleType name='E'><xs:restriction base='xs:string'>"
                                   "<xs:enumeration value='on'/></xs:restriction></xs:simpleType>";
    const QString in = written(
        m_folder.filePath(QStringLiteral("given.xsd")),
        schema(enumeration
               + report("<xs:element name='Value'><xs:complexType><xs:simpleContent><xs:extension base='" + base + "'>"
                        + attributes + "</xs:extension></xs:simpleContent></xs:complexType></xs:element>")));
    const MendedFile result = mendInto(m_folder.filePath(QStringLiteral("mended.xsd")), in, MendOptions());
    QCOMPARE(errorsOf(result.examination), QString());
    QVERIFY(result.examination.proof.reports >= 1);
    QVERIFY2(result.examination.proof.validReports == result.examination.proof.reports,
             result.mending.text.constData());
}

/// Reports filled by the mended schema, where no rewrite changes the format.
void TestSchemaDoctorMend::keepsReportsValidByTheOriginal()
{
    int kept = 0;
    const QDir files(QStringLiteral(CORPUS_FOLDER));
    const QStringList names = files.entryList({QStringLiteral("place-*.xsd")}, QDir::Files);
    for (const QString& name : names) {
        const QString out = m_folder.filePath(QStringLiteral("mended.xsd"));
        const Mending mending = mend(files.filePath(name));
        const bool isKept = std::none_of(mending.rewrites.begin(), mending.rewrites.end(), [](const Rewrite& rewrite) {
            return rewrite.effect == RewriteEffect::ChangesFormat;
        });
        const SkeletonTree tree = examine(written(out, mending.text), false).tree;
        if (!isKept || mending.rewrites.isEmpty()) {
            continue;
        }
        ++kept;
        int all = 0;
        QVector<QByteArray> reports;
        for (const Filling& filling : fillingsOf(tree, 20, all)) {
            reports.append(filledReport(out, tree, filling));
        }
        QVector<ValidityError> errors;
        QVERIFY(validate(files.filePath(name), reports, errors));
        QVERIFY2(errors.isEmpty(), qPrintable(name + (errors.isEmpty() ? QString() : errors.first().sentence)));
    }
    QVERIFY(kept > 20 / CORPUS_SHARE);
}

void TestSchemaDoctorMend::saysRightlyThatReportsStayValid_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<bool>("staysValid");
    const auto value = [](const char* name, const char* more = "") {
        return "<xs:element name='" + QByteArray(name) + "' type='xs:string' " + more + "/>";
    };
    const auto empty
        = [](const char* name) { return "<xs:element name='" + QByteArray(name) + "'><xs:complexType/></xs:element>"; };
    const auto add = [&value](const char* name, const QByteArray& choice, bool staysValid) {
        QTest::newRow(name) << report(value("First") + choice) << staysValid;
    };
    const char twice[] = "minOccurs='2' maxOccurs='2'";
    add("twice-in-one-alternative",
        "<xs:choice>" + value("D") + "<xs:sequence>" + value("A") + value("B") + value("A")
            + "</xs:sequence></xs:choice>",
        true);
    add("only-alternatives-without-values", "<xs:choice>" + empty("On") + empty("Off") + "</xs:choice>", true);
    add("alternatives-that-begin-without-values",
        "<xs:choice>" + empty("Flag") + "<xs:sequence>" + empty("Mark") + value("V") + "</xs:sequence></xs:choice>",
        true);
    add("only-any", "<xs:choice><xs:any processContents='skip'/></xs:choice>", false);
    add("any-beside-others", "<xs:choice><xs:any namespace='##other'/>" + value("A") + "</xs:choice>", true);
    add("optional-choice-of-two-at-once", "<xs:choice minOccurs='0'>" + value("A", twice) + value("B") + "</xs:choice>",
        false);
    add("repeated-choice-of-two-at-once",
        "<xs:choice minOccurs='0' maxOccurs='unbounded'>" + value("A", twice) + value("B") + "</xs:choice>", false);
    QTest::newRow("abstract-base") << QByteArray(
        "<xs:complexType name='Base' abstract='true'><xs:sequence>" + value("A")
        + "</xs:sequence></xs:complexType>"
          "<xs:complexType name='Derived'><xs:complexContent><xs:extension base='Base'><xs:sequence>"
        + value("B") + "</xs:sequence></xs:extension></xs:complexContent></xs:complexType>"
        + report("<xs:element name='Item' type='Derived'/>"))
                                   << true;
    QTest::newRow("abstract-type-itself")
        << QByteArray("<xs:complexType name='Base' abstract='true'><xs:sequence>" + value("A")
                      + "</xs:sequence></xs:complexType>" + report("<xs:element name='Item' type='Base'/>"))
        << false;
}

/// What is said of the rewrites, and reports of every filling.
void TestSchemaDoctorMend::saysRightlyThatReportsStayValid()
{
    QFETCH(QByteArray, declarations);
    QFETCH(bool, staysValid);
    const Mending mending = mended(schema(declarations));
    QCOMPARE(mending.refusal, QString());
    const bool isSaid = std::none_of(mending.rewrites.begin(), mending.rewrites.end(), [](const Rewrite& rewrite) {
        return rewrite.effect == RewriteEffect::ChangesFormat;
    });
    QCOMPARE(isSaid, staysValid);
    if (staysValid) {
        const QString out = written(m_folder.filePath(QStringLiteral("mended.xsd")), mending.text);
        const SkeletonTree tree = examine(out, false).tree;
        int all = 0;
        QVector<QByteArray> reports;
        for (const Filling& filling : fillingsOf(tree, 20, all)) {
            reports.append(filledReport(out, tree, filling));
        }
        QVERIFY(!reports.isEmpty());
        QVector<ValidityError> errors;
        QVERIFY(validate(m_folder.filePath(QStringLiteral("given.xsd")), reports, errors));
        QVERIFY2(errors.isEmpty(), qPrintable(errors.isEmpty() ? QString() : errors.first().sentence));
    }
}

/// What can be written in no other way is told as what it is, and not as left.
void TestSchemaDoctorMend::saysThatTheFormatIsLost()
{
    MendOptions options;
    options.isFormatKept = true;
    const Mending kept = mended(schema(report("<xs:element name='Day' type='xs:date'/>")), options);
    QVERIFY(!kept.isFormatLost);
    const Mending lost = mended(schema(report("<xs:element name='A' type='xs:string'/>\n"
                                              "<xs:any processContents='skip'/>")),
                                options);
    QVERIFY(lost.isFormatLost);
    QVERIFY(has(lost.rewrites, 4, RewriteEffect::ChangesFormat));
    QVERIFY(lost.left.isEmpty());
}

void TestSchemaDoctorMend::saysWhichFormsTheNamespaceLoses()
{
    MendOptions options;
    options.isFormatKept = true;
    const auto mendedWith = [&](const QByteArray& form) {
        return mended("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='urn:r' targetNamespace='urn:r' "
                          + form + ">\n<xs:element name='Value' type='xs:string'/>\n"
                          + report("<xs:element name='A' type='xs:string'/><xs:element ref='Value' maxOccurs='2'/>")
                          + "</xs:schema>",
                      options);
    };
    QVERIFY(!mendedWith("elementFormDefault='qualified'").isFormatLost);
    QVERIFY(mendedWith("").isFormatLost);
}

void TestSchemaDoctorMend::beginsWithNoSubstitute()
{
    const Mending mending = mended(schema("<xs:element name='Head' type='xs:string'/>\n"
                                          "<xs:element name='Zone' type='xs:string' substitutionGroup='Head'/>\n"
                                          + report("<xs:element ref='Head'/>")));
    const SkeletonTree tree
        = examine(written(m_folder.filePath(QStringLiteral("mended.xsd")), mending.text), false).tree;
    QVERIFY(!tree.IsEmpty());
    QCOMPARE(tree.elements.front().name, QStringLiteral("Report"));
}

void TestSchemaDoctorMend::mergesOnlyWhatHasItsPrefixes()
{
    const QByteArray root = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'";
    const QByteArray type = "<xs:simpleType name='Level'><xs:annotation><xs:appinfo><m:x/></xs:appinfo></xs:annotation>"
                            "<xs:restriction base='xs:double'/></xs:simpleType></xs:schema>";
    QVERIFY(!written(m_folder.filePath(QStringLiteral("type.xsd")), root + " xmlns:m='urn:m'>" + type).isEmpty());
    const QString out = m_folder.filePath(QStringLiteral("mended.xsd"));
    const QByteArray content = "<xs:include schemaLocation='type.xsd'/>\n"
        + report("<xs:element name='Value' type='Level'/>") + "</xs:schema>";
    for (const QByteArray& prefix : {QByteArray(), QByteArray(" xmlns:m='urn:m'")}) {
        const QString top = written(m_folder.filePath(QStringLiteral("top.xsd")), root + prefix + ">\n" + content);
        QCOMPARE(errorsOf(mendInto(out, top, MendOptions()).examination), QString());
        QCOMPARE(contentOf(out).contains("<m:x/>"), !prefix.isEmpty());
    }
}

/// The library looks for includes in the folder of the name that it is given.
void TestSchemaDoctorMend::findsIncludesOfABareName()
{
    const QString folder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    written(QStringLiteral("type.xsd"),
            schema("<xs:simpleType name='Level'><xs:restriction base='xs:double'/></xs:simpleType>"));
    written(QStringLiteral("top.xsd"),
            schema("<xs:include schemaLocation='type.xsd'/>\n" + report("<xs:element name='Value' type='Level'/>")));
    const Mending mending = mend(QStringLiteral("top.xsd"));
    QVERIFY(QDir::setCurrent(folder));
    QVERIFY(mending.rewrites.isEmpty());
    QVERIFY(mending.text.contains("<xs:restriction base='xs:double'/>"));
}

void TestSchemaDoctorMend::multipliesCountsWithinTheirRange()
{
    const Mending mending
        = mended(schema(report("<xs:sequence minOccurs='0' maxOccurs='100000'>"
                               "<xs:element name='A' type='xs:string' minOccurs='0' maxOccurs='100000'/></xs:sequence>"
                               "<xs:element name='B' type='xs:string'/>")));
    QCOMPARE(mending.refusal, QString());
    QVERIFY2(mending.text.contains("maxOccurs=\"2147483647\""), mending.text.constData());
}

void TestSchemaDoctorMend::unrollsToLevels_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<int>("parts");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two-by-default") << 0 << 2;
    QTest::newRow("four") << 4 << 4;
}

void TestSchemaDoctorMend::unrollsToLevels()
{
    QFETCH(int, levels);
    QFETCH(int, parts);
    MendOptions options;
    options.levels = levels;
    const Mending mending = mended(schema("<xs:element name='Part'><xs:complexType><xs:sequence>"
                                          "<xs:element name='Number' type='xs:string'/>"
                                          "<xs:element ref='Part' minOccurs='0'/>"
                                          "</xs:sequence></xs:complexType></xs:element>"),
                                   options);
    QCOMPARE(mending.refusal, QString());
    QCOMPARE(int(mending.text.count("name=\"Part\"")), parts);
}

void TestSchemaDoctorMend::takesTheRootThatIsNamed()
{
    MendOptions options;
    options.root = QStringLiteral("Alpha");
    const QByteArray text = schema("<xs:element name='Alpha' type='xs:string'/>\n"
                                   "<xs:element name='Omega' type='xs:string'/>");
    QVERIFY(!mended(text, options).text.contains("Omega"));
    QVERIFY(!mended(text).text.contains("Alpha"));
}

void TestSchemaDoctorMend::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("reason");
    const auto add = [](const char* name, const QByteArray& text, const char* reason, const char* root = "") {
        QTest::newRow(name) << text << QString::fromLatin1(root) << QString::fromLatin1(reason);
    };
    QByteArray wide; // Each element may hold each other: the more of them, the more ways there are.
    QByteArray references;
    for (int i = 0; i < 40; ++i) {
        references += "<xs:element ref='E" + QByteArray::number(i) + "' minOccurs='0'/>";
    }
    for (int i = 0; i < 40; ++i) {
        wide += "<xs:element name='E" + QByteArray::number(i) + "'><xs:complexType><xs:sequence>" + references
            + "</xs:sequence></xs:complexType></xs:element>";
    }
    const auto doubling
        = [](const QByteArray& root, const QByteArray& before, const QByteArray& between, const QByteArray& after) {
              QByteArray text = root;
              for (int i = 0; i < 40; ++i) {
                  const QByteArray next = QByteArray::number(i + 1);
                  text += before + QByteArray::number(i) + between + next + after.left(after.indexOf('%')) + next
                      + after.mid(after.indexOf('%') + 1);
              }
              return schema(text);
          };
    const char followed[] = "hold each other more often than is followed.";
    add("groups-that-double",
        doubling(report("<xs:group ref='A0'/>"), "<xs:group name='A", "'><xs:sequence><xs:group ref='A",
                 "'/><xs:group ref='A%'/></xs:sequence></xs:group>"),
        followed);
    add("attribute-groups-that-double",
        doubling(
            "<xs:element name='Report'><xs:complexType><xs:attributeGroup ref='A0'/></xs:complexType></xs:element>",
            "<xs:attributeGroup name='A", "'><xs:attributeGroup ref='A",
            "'/><xs:attributeGroup ref='A%'/></xs:attributeGroup>"),
        followed);
    add("unions-that-double",
        doubling(report("<xs:element name='Value' type='A0'/>"), "<xs:simpleType name='A", "'><xs:union memberTypes='A",
                 " A%'/></xs:simpleType>"),
        followed);
    add("what-is-no-xml", "<xs:schema", "The library cannot read the file");
    add("what-is-no-schema", "<report/>", "is no XML Schema.");
    add("what-has-no-element", schema("<xs:simpleType name='A'><xs:restriction base='xs:string'/></xs:simpleType>"),
        "The schema declares no global element.");
    add("an-unknown-root", schema(report("")), "There is no global element 'Other'.", "Other");
    add("what-becomes-too-large", schema(wide), "Written out, the schema has more than 10000 elements.");
    add("what-is-never-finite", schema(report("<xs:element ref='Report'/>")), "No report is finite");
    add("types-that-stand-on-each-other",
        schema("<xs:complexType name='A'><xs:complexContent><xs:extension base='A'/></xs:complexContent>"
               "</xs:complexType><xs:element name='Report' type='A'/>"),
        "");
}

/// By name, and without an end of its own.
void TestSchemaDoctorMend::refuses()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, root);
    QFETCH(QString, reason);
    MendOptions options;
    options.root = root;
    const Mending mending = mended(text, options);
    QVERIFY2(mending.refusal.contains(reason), qPrintable(mending.refusal));
    QCOMPARE(mending.text.isEmpty(), !reason.isEmpty());
}

void TestSchemaDoctorMend::writesOverNoFileOfTheSchema()
{
    const QByteArray part = schema("<xs:element name='Part' type='xs:date'/>");
    const QByteArray whole = schema("<xs:include schemaLocation='part.xsd'/>" + report("<xs:element ref='Part'/>"));
    const QString partName = written(m_folder.filePath(QStringLiteral("part.xsd")), part);
    const QString wholeName = written(m_folder.filePath(QStringLiteral("whole.xsd")), whole);
    const QString link = m_folder.filePath(QStringLiteral("link.xsd"));
    QFile::link(partName, link);
    for (const QString& out : {partName, wholeName, link}) {
        QVERIFY(!mendInto(out, wholeName, MendOptions()).mending.refusal.isEmpty());
    }
    QCOMPARE(contentOf(partName), part);
    QCOMPARE(contentOf(wholeName), whole);
    const QString other = written(m_folder.filePath(QStringLiteral("other.xsd")), part);
    const QString importing = written(m_folder.filePath(QStringLiteral("importing.xsd")),
                                      schema("<xs:import namespace='urn:o' schemaLocation='other.xsd'/>"
                                             + report("<xs:element name='A' type='xs:string'/>")));
    QVERIFY(!mendInto(other, importing, MendOptions()).mending.refusal.isEmpty());
    QCOMPARE(contentOf(other), part);
    const QString nowhere = m_folder.filePath(QStringLiteral("nowhere/out.xsd"));
    QVERIFY(!mendInto(nowhere, wholeName, MendOptions()).mending.refusal.isEmpty());
    QVERIFY(!mendInto(m_folder.path(), wholeName, MendOptions()).mending.refusal.isEmpty());
}

void TestSchemaDoctorMend::keepsCommentsAndAnnotations()
{
    const Mending mending
        = mended("<!-- Head. -->\n"
                 + schema("<xs:annotation><xs:documentation>All &lt; of it.</xs:documentation></xs:annotation>"
                          + report("<!-- Of a value. --><xs:element name='Value' type='xs:date'><xs:annotation>"
                                   "<xs:documentation>What it is.</xs:documentation></xs:annotation></xs:element>")));
    for (const char* const text : {"<!-- Head. -->\n<xs:schema", "All &lt; of it.", "<!-- Of a value. -->\n",
                                   "<xs:documentation>What it is.</xs:documentation>"}) {
        QVERIFY2(mending.text.contains(text), text);
    }
}

QTEST_GUILESS_MAIN(TestSchemaDoctorMend)

#include "tst_schemadoctor_mend.moc"
