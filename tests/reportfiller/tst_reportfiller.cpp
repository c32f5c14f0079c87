#include <QtTest>

#include <xmlhelper/limits_p.h>
#include <xmlhelperreports/reportfiller.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#endif

#include "surveyschema.h"

namespace {

using State = ReportFiller::State;

/// The text of the verdict on a path.
QString verdictOn(const ReportFiller& filler, const QString& path)
{
    static const char* const states[] = {"written", "refused", "not asked for", "unfilled", "left out", "doubtful"};
    QStringList found;
    for (const ReportFiller::Verdict& verdict : filler.GetVerdicts()) {
        if (verdict.path == path) {
            found.append(QString::fromLatin1(states[int(verdict.state)]));
        }
    }
    return found.join(QLatin1Char(','));
}

} // namespace

/// How a report is shaped by the values that it is filled with.
class TestReportFiller : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fills_data();
    void fills();
    void judgesEveryValueAndElement();
    void missesTheContentOfAnElementWithoutAny();
    void takesWhatIsOptionalAtASecondPlaceForRequired();
    void keepsCopiesApart();
    void repeatsLevelByLevel();
    void asksASource();
    void endsAskingASourceThatAlwaysAnswers();
    void asksForNoMoreThanMayOccur();
    void saysWhenTheReportCannotBeWritten();
    void asksAValidatorWhenAllElseIsWell();
    void replacesAReportThroughALink();
    void leavesAReportWhereTheSchemaGivesNone_data();
    void leavesAReportWhereTheSchemaGivesNone();
    void refusesToReplaceTheSchema();
    void writesToWhatIsNoFile();
    void saysWhenTheSchemaCannotBeRead_data();
    void saysWhenTheSchemaCannotBeRead();
    void fillsSeveralReports();
    void refusesMoreElementsThanADocumentTakes();
};

void TestReportFiller::fills_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("complaints");
    const auto row = [](const char* name, const char* values, const char* content, const char* complaints = "") {
        const QString all = QLatin1String(complaints);
        QTest::newRow(name) << QByteArray(values) << QString::fromLatin1(content)
                            << (all.isEmpty() ? QStringList() : all.split(QLatin1Char('\n')));
    };
    row("only-what-is-required", "Station=S\nFixed=yes", "Survey(Station=S Fixed=yes)");
    row("two-of-two", "Station=S\nFixed=yes\nFrequency=1\nFrequency=2",
        "Survey(Station=S Emission(Frequency=1) Emission(Frequency=2) Fixed=yes)");
    row("optional-container-whose-first-child-has-no-value", "Station=S\nFixed=yes\nClosing/Name=N",
        "Survey(Station=S Fixed=yes Closing(Name=N))");
    row("optional-children-differ-in-copies",
        "Station=S\nFixed=yes\nEmission[1]/Frequency=1\nEmission[2]/Frequency=2\nEmission[2]/Label=b\n"
        "Emission[3]/Frequency=3\nEmission[3]/Level=-3",
        "Survey(Station=S Emission(Frequency=1) Emission(Label=b Frequency=2) Emission(Frequency=3 Level=-3) "
        "Fixed=yes)");
    row("repeated-container-in-a-repeated-one",
        "Station=S\nFixed=yes\nEmission[1]/Frequency=1\nEmission[1]/Line[1]/Number=11\nEmission[1]/Line[2]/Number=12\n"
        "Emission[2]/Frequency=2\nEmission[2]/Line[1]/Number=21\nEmission[2]/Line[2]/Number=22",
        "Survey(Station=S Emission(Frequency=1 Line(Number=11) Line(Number=12)) "
        "Emission(Frequency=2 Line(Number=21) Line(Number=22)) Fixed=yes)");
    row("elements-repeat", "Station=S\nFixed=yes\nOperator=A\nOperator=B",
        "Survey(Station=S Operator=A Operator=B Fixed=yes)");
    row("attributes-of-an-element-announced-twice-stay",
        "Station=S\nFixed=yes\nEmission@Id=7\nFrequency=1\nFrequency@Unit=Hz",
        "Survey(Station=S Emission{Id=7}(Frequency{Unit=Hz}=1) Fixed=yes)");
    row("alternative-with-values-is-taken", "Station=S\nRoute=R", "Survey(Station=S Mobile(Route=R))");
    row("absolute-path",
        "/Survey/Station=S\n/Survey/Fixed=yes\n/Survey/Emission[1]/Frequency@Unit=Hz\n"
        "/Survey/Emission[1]/Frequency=1",
        "Survey(Station=S Emission(Frequency{Unit=Hz}=1) Fixed=yes)");
    row("path-below-the-root", "./Station=S\n./Fixed=yes", "Survey(Station=S Fixed=yes)");
    row("ambiguous-name", "Station=S\nFixed=yes\nRemark=r", "Survey(Station=S Fixed=yes)",
        "Remark=r: the name is ambiguous: /Survey/Emission/Line/Remark, /Survey/Closing/Remark");
    row("name-without-a-place", "Station=S\nFixed=yes\nColour=red\nStation@Height=2", "Survey(Station=S Fixed=yes)",
        "Colour=red: the schema has no place for it\nStation@Height=2: the schema has no place for it");
    row("index-that-is-none",
        "Station=S\nFixed=yes\nOperator[0]=A\nOperator[x]=A\nOperator[1=A\nOperator[+1]=A\n"
        "Operator[ 1 ]=A\nOperator[]=A",
        "Survey(Station=S Fixed=yes)",
        "Operator[0]=A: this is no path\nOperator[x]=A: this is no path\nOperator[1=A: this is no path\n"
        "Operator[+1]=A: this is no path\nOperator[ 1 ]=A: this is no path\nOperator[]=A: this is no path");
    row("next-value-behind-one-with-an-index", "Station=S\nFixed=yes\nEmission[1]/Frequency=1\nFrequency=3",
        "Survey(Station=S Emission(Frequency=1) Emission(Frequency=3) Fixed=yes)");
    row("attribute-that-the-root-does-not-have", "Station=S\nFixed=yes\n.@nope=1", "Survey(Station=S Fixed=yes)",
        ".@nope=1: the schema has no place for it");
    row("gap", "Station=S\nFixed=yes\nOperator[1]=A\nOperator[3]=C", "Survey(Station=S Operator=A Fixed=yes)",
        "Operator[3]=C: there is no /Survey/Operator[2] before it");
    row("more-than-may-occur", "Station=S\nFixed=yes\nOperator=A\nOperator=B\nOperator=C\nOperator=D",
        "Survey(Station=S Operator=A Operator=B Operator=C Fixed=yes)",
        "Operator=D: /Survey/Operator may occur at most 3 times");
    row("second-value-of-a-single-element", "Station=S\nStation=T\nFixed=yes", "Survey(Station=S Fixed=yes)",
        "Station=T: there is a value already, and it may occur at most once");
    row("index-of-a-single-element", "Station=S\nStation[2]=T\nFixed=yes", "Survey(Station=S Fixed=yes)",
        "Station[2]=T: /Survey/Station may occur at most once");
    row("value-for-a-container", "Station=S\nFixed=yes\nMobile=1", "Survey(Station=S Fixed=yes)",
        "Mobile=1: the element holds elements and no value");
    row("nothing-required-is-given", "", "Survey(Station{type=string})",
        "/Survey: none of the alternatives Fixed, Mobile has a value\n/Survey/Station: required, and without a value");
    row("two-alternatives", "Station=S\nFixed=yes\nRoute=R", "Survey(Station=S Fixed=yes Mobile(Route=R))",
        "/Survey: of the alternatives Fixed, Mobile more than one has values: Fixed, Mobile; whether they are of one "
        "choice is not known");
    row("refused-value-of-an-optional-element-goes", "Station=S\nFixed=yes\nEmission/Frequency=1\nEmission/Level=loud",
        "Survey(Station=S Emission(Frequency=1) Fixed=yes)",
        "/Survey/Emission[1]/Level=loud: its type, double, takes no text");
    row("refused-value-takes-nothing-around-it-away",
        "Station=S\nFixed=yes\nEmission/Frequency=low\nEmission/Level=-3\nEmission[2]/Frequency=2",
        "Survey(Station=S Emission(Frequency{type=double} Level=-3) Emission(Frequency=2) Fixed=yes)",
        "/Survey/Emission[1]/Frequency=low: its type, double, takes no text\n"
        "/Survey/Emission[1]/Frequency: required, and its value was refused");
    row("missing-value-takes-nothing-around-it-away", "Station=S\nFixed=yes\nEmission/Level=-3",
        "Survey(Station=S Emission(Frequency{type=double} Level=-3) Fixed=yes)",
        "/Survey/Emission[1]/Frequency: required, and without a value");
    row("refused-value-in-an-alternative-goes", "Station=S\nRoute=R\nSpeed=fast", "Survey(Station=S Mobile(Route=R))",
        "/Survey/Mobile/Speed=fast: its type, double, takes no text");
    row("what-an-alternative-requires-stays", "Station=S\nSpeed=3",
        "Survey(Station=S Mobile(Speed=3 Route{type=string}))", "/Survey/Mobile/Route: required, and without a value");
    row("container-keeps-what-it-requires",
        "Station=S\nFixed=yes\nEmission/Frequency=1\nLine/Remark=\n"
        "Line/Number=x",
        "Survey(Station=S Emission(Frequency=1 Line(Remark Number{type=integer})) Fixed=yes)",
        "/Survey/Emission[1]/Line[1]/Number=x: its type, integer, takes no text\n"
        "/Survey/Emission[1]/Line[1]/Number: required, and its value was refused");
    row("refused-attribute-goes", "Station=S\nFixed=yes\nFrequency=1\nEmission@Id=one",
        "Survey(Station=S Emission(Frequency=1) Fixed=yes)",
        "/Survey/Emission[1]@Id=one: its type, xs:integer, takes no text");
}

void TestReportFiller::fills()
{
    QFETCH(QByteArray, values);
    QFETCH(QString, content);
    QFETCH(QStringList, complaints);
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText(values));
    QCOMPARE(filler.Fill(folder.Schema(), folder.Report()), complaints.isEmpty());
    QCOMPARE(filler.Complaints(), complaints);
    QCOMPARE(folder.Content(), content);
    QVERIFY(filler.IsSchemaRead());
}

void TestReportFiller::judgesEveryValueAndElement()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("S"));
    filler.Add(QStringLiteral("Frequency"), QStringLiteral("low"));
    filler.Add(QStringLiteral("Colour"), QStringLiteral("red"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.GetVerdicts().size() >= 3, true);
    QCOMPARE(filler.GetVerdicts()[0].path, QStringLiteral("/Survey/Station"));
    QCOMPARE(filler.GetVerdicts()[1].path, QStringLiteral("/Survey/Emission[1]/Frequency"));
    QCOMPARE(filler.GetVerdicts()[2].path, QStringLiteral("Colour"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Station")), QStringLiteral("written"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Emission[1]/Frequency")), QStringLiteral("refused,unfilled"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Emission[1]/Frequency@Unit")), QStringLiteral("left out"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Emission[1]/Level")), QStringLiteral("left out"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Emission[1]/Line[1]")), QStringLiteral("left out"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Emission[1]")), QStringLiteral("written"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey/Operator[1]")), QStringLiteral("left out"));
    QCOMPARE(verdictOn(filler, QStringLiteral("Colour")), QStringLiteral("not asked for"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/Survey")), QStringLiteral("unfilled,written"));
}

void TestReportFiller::missesTheContentOfAnElementWithoutAny()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Any'/><xs:element name='Extra' minOccurs='0'/>"
                              "<xs:element name='Site' type='xs:string'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    filler.Add(QStringLiteral("Site"), QStringLiteral("S"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(),
             QStringList(QStringLiteral("/R/Any: the schema lays out neither a type nor content for it")));
    QCOMPARE(verdictOn(filler, QStringLiteral("/R/Any")), QStringLiteral("unfilled"));
    QCOMPARE(verdictOn(filler, QStringLiteral("/R/Extra")), QStringLiteral("left out"));
}

/// The library knows what is optional by the first container of a name.
void TestReportFiller::takesWhatIsOptionalAtASecondPlaceForRequired()
{
    const QByteArray box = "<xs:element name='Box'><xs:complexType><xs:sequence>"
                           "<xs:element name='Name' type='xs:string'/>"
                           "<xs:element name='Note' type='xs:string' minOccurs='0'/>"
                           "</xs:sequence></xs:complexType></xs:element>";
    const SchemaFolder folder(
        "<xs:element name='R'><xs:complexType><xs:sequence>"
        "<xs:element name='A'><xs:complexType><xs:sequence>"
        + box
        + "</xs:sequence></xs:complexType></xs:element>"
          "<xs:element name='B'><xs:complexType><xs:sequence>"
        + box + "</xs:sequence></xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    QVERIFY(filler.AddText("A/Box/Name=1\nB/Box/Name=2"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("/R/B/Box/Note: required, and without a value")));
}

/// The first of two elements laid out as often as they are required is not the one that holds anything.
void TestReportFiller::keepsCopiesApart()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Part' minOccurs='2' maxOccurs='4'><xs:complexType><xs:sequence>"
                              "<xs:element name='Name' type='xs:string'/>"
                              "</xs:sequence></xs:complexType></xs:element>"
                              "<xs:element name='Sample' type='xs:double' minOccurs='2' maxOccurs='4'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    for (const char* const name : {"a", "b", "c"}) {
        filler.Add(QStringLiteral("Name"), QString::fromLatin1(name));
    }
    filler.Add(QStringLiteral("Sample"), 1);
    filler.Add(QStringLiteral("Sample"), 2);
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), QStringLiteral("R(Part(Name=a) Part(Name=b) Part(Name=c) Sample=1 Sample=2)"));

    filler.Add(QStringLiteral("Sample"), 3);
    filler.Add(QStringLiteral("Sample"), 4);
    filler.Add(QStringLiteral("Sample"), 5);
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("Sample=5: /R/Sample may occur at most 4 times")));
}

/// Without an index a value goes to the next of the innermost element that may repeat.
void TestReportFiller::repeatsLevelByLevel()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes\nEmission[1]/Frequency=1\nEmission[2]/Frequency=2\n"
                           "Emission[2]/Line/Number=1\nEmission[2]/Line/Number=2\nEmission[1]/Line/Number=3"));
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(),
             QStringLiteral("Survey(Station=S Emission(Frequency=1 Line(Number=3)) "
                            "Emission(Frequency=2 Line(Number=1) Line(Number=2)) Fixed=yes)"));
}

void TestReportFiller::asksASource()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("given"));
    filler.SetSource([](const QString& path) {
        const QHash<QString, QVariant> values {
            {QStringLiteral("/Survey/Station"), QStringLiteral("asked")},
            {QStringLiteral("/Survey/Fixed"), true},
            {QStringLiteral("/Survey/Emission[1]/Frequency"), 1.5},
            {QStringLiteral("/Survey/Emission[1]/Frequency@Unit"), QStringLiteral("Hz")},
            {QStringLiteral("/Survey/Emission[2]/Frequency"), 2},
            {QStringLiteral("/Survey/Emission[4]/Frequency"), 4}};
        return values.value(path);
    });
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(),
             QStringLiteral("Survey(Station=given Emission(Frequency{Unit=Hz}=1.5) Emission(Frequency=2) Fixed=true)"));
}

void TestReportFiller::endsAskingASourceThatAlwaysAnswers()
{
    Limits small;
    small.elements = 60;
    const LimitsInForce inForce(small);
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Sample' type='xs:double' maxOccurs='unbounded'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    filler.SetSource([](const QString&) { return QVariant(1); });
    filler.Fill(folder.Schema(), folder.Report());
    const QDomElement root = documentInFile(folder.Report()).documentElement();
    QVERIFY(root.elementsByTagName(QStringLiteral("Sample")).count() <= 60);
}

void TestReportFiller::asksForNoMoreThanMayOccur()
{
    const SchemaFolder folder("<xs:element name='R'><xs:complexType><xs:sequence>"
                              "<xs:element name='Sample' type='xs:double' maxOccurs='3'/>"
                              "<xs:element name='Site' type='xs:string'/>"
                              "</xs:sequence></xs:complexType></xs:element>");
    ReportFiller filler;
    int asked = 0;
    filler.SetSource([&asked](const QString&) {
        ++asked;
        return QVariant(1);
    });
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(folder.Content(), QStringLiteral("R(Sample=1 Sample=1 Sample=1 Site=1)"));
    QCOMPARE(asked, 4);
}

void TestReportFiller::saysWhenTheReportCannotBeWritten()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report() + QStringLiteral("/nowhere/report.xml")));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("the report could not be written")));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.Complaints().isEmpty());
}

void TestReportFiller::asksAValidatorWhenAllElseIsWell()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QStringList asked;
    filler.SetValidator([&](const QString& schema, const QString& report) {
        asked = QStringList {schema, report};
        return QStringList {QStringLiteral("it is too short"), QStringLiteral("it is too thin")};
    });
    filler.Add(QStringLiteral("Station"), QStringLiteral("S"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(asked.isEmpty());

    filler.Add(QStringLiteral("Fixed"), QStringLiteral("yes"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(asked, (QStringList {folder.Schema(), folder.Report()}));
    QCOMPARE(filler.Complaints(), (QStringList {QStringLiteral("it is too short"), QStringLiteral("it is too thin")}));
    QVERIFY(filler.GetVerdicts().back().state == State::Invalid);

    filler.SetValidator([](const QString&, const QString&) { return QStringList(); });
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    filler.SetValidator({});
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
}

void TestReportFiller::replacesAReportThroughALink()
{
#ifdef Q_OS_UNIX
    const SchemaFolder folder(surveyElements());
    const QTemporaryDir other;
    const QString target = other.filePath(QStringLiteral("target.xml"));
    QVERIFY(QFile::copy(folder.Schema(), target));
    QVERIFY(QFile::link(target, folder.Report()));
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(QFileInfo(folder.Report()).isSymLink());
    QCOMPARE(documentInFile(target).documentElement().tagName(), QStringLiteral("Survey"));
#endif
}

void TestReportFiller::leavesAReportWhereTheSchemaGivesNone_data()
{
    QTest::addColumn<QByteArray>("schema");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("not-well-formed") << QByteArray("<xs:schema>\n<xs:element");
    QTest::newRow("without-a-root") << QByteArray("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'/>");
}

void TestReportFiller::leavesAReportWhereTheSchemaGivesNone()
{
    QFETCH(QByteArray, schema);
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));

    QVERIFY(QFile::remove(folder.Schema()));
    if (!schema.isEmpty()) {
        QFile file(folder.Schema());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(schema);
    }
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.GetVerdicts().empty());
    QCOMPARE(int(filler.Complaints().size()), 1);
    QCOMPARE(folder.Content(), QStringLiteral("Survey(Station=S Fixed=yes)"));
}

void TestReportFiller::refusesToReplaceTheSchema()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Schema()));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("the report would replace its schema")));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report())); // The schema is there as it was.
}

/// Reading back what is no file could go on for ever: it waits for somebody else to write.
void TestReportFiller::writesToWhatIsNoFile()
{
#ifdef Q_OS_UNIX
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QString validated;
    filler.SetValidator([&](const QString&, const QString& report) {
        validated = documentInFile(report).documentElement().tagName();
        return QStringList();
    });
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    const QByteArray pipe = QFile::encodeName(folder.Report());
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("the report could not be written"))); // Nobody reads it.

    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    QVERIFY2(filler.Fill(folder.Schema(), folder.Report()), qPrintable(filler.Complaints().join(QLatin1Char('\n'))));
    QCOMPARE(validated, QStringLiteral("Survey"));
    QFile read;
    QVERIFY(read.open(reader, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
    QVERIFY(read.readAll().contains("<Station>S</Station>"));
#endif
}

void TestReportFiller::saysWhenTheSchemaCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("missing-type") << QByteArray("<xs:element name='R' type='Nowhere'/>")
                                  << QStringLiteral("the schema cannot be read: a definition or a file that it uses is "
                                                    "missing or at fault, or it is beyond the limits");
    QTest::newRow("not-well-formed") << QByteArray("\n<xs:element name='R'>")
                                     << QStringLiteral("the schema cannot be read: it is not well-formed XML, line 2: "
                                                       "Opening and ending tag mismatch.");
    QTest::newRow("nothing-laid-out") << QByteArray("") << QStringLiteral("the schema lays out no element");
}

void TestReportFiller::saysWhenTheSchemaCannotBeRead()
{
    QFETCH(QByteArray, declarations);
    QFETCH(QString, complaint);
    const SchemaFolder folder(declarations);
    ReportFiller filler;
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(!filler.IsSchemaRead());
    QCOMPARE(filler.Complaints(), QStringList(complaint));
    QVERIFY(!filler.Fill(folder.Schema() + QStringLiteral(".nowhere"), folder.Report()));
    QCOMPARE(filler.Complaints(), QStringList(QStringLiteral("the schema cannot be read: there is no such file")));
}

void TestReportFiller::fillsSeveralReports()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S"));
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.AddText("Fixed=yes"));
    QVERIFY(filler.Fill(folder.Schema(), folder.Report()));
    QCOMPARE(folder.Content(), QStringLiteral("Survey(Station=S Fixed=yes)"));
}

void TestReportFiller::refusesMoreElementsThanADocumentTakes()
{
    const SchemaFolder folder(surveyElements());
    ReportFiller filler;
    QVERIFY(filler.AddText("Station=S\nFixed=yes"));
    for (int i = 0; i < 20; ++i) {
        filler.Add(QStringLiteral("Frequency"), i);
    }
    Limits small;
    small.elements = 60;
    const LimitsInForce inForce(small);
    QVERIFY(!filler.Fill(folder.Schema(), folder.Report()));
    QVERIFY(filler.Complaints().contains(QStringLiteral("Frequency=19: the report would have too many elements")));
    QCOMPARE(folder.Content(), QStringLiteral("Survey(Station=S Emission(Frequency=0) Fixed=yes)"));
}

QTEST_GUILESS_MAIN(TestReportFiller)
#include "tst_reportfiller.moc"
