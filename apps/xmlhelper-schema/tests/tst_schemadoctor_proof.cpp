#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "examine.h"
#include "proof/filling.h"
#include "render/copiesrendering.h"

using namespace schemadoctor;

namespace {

QString schemaOf(const QString& declarations)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n%1\n</xs:schema>\n")
        .arg(declarations);
}

QStringList unforetoldPathsOf(const Examination& examination)
{
    QStringList paths;
    for (const Finding& finding : examination.findings) {
        if (finding.rule == QLatin1String("unforetold")) {
            paths.append(finding.path);
        }
    }
    return paths;
}

} // namespace

/// Reports are filled and validated on trial, and what no rule foretells is told.
class TestSchemaDoctorProof : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void leavesNoErrorSilent_data();
    void leavesNoErrorSilent();
    void findsNothingWrong_data();
    void findsNothingWrong();
    void namesTheDeclarationAndTheSentence();
    void tellsTheSameErrorOnce();
    void isLeftOutOnRequest();
    void saysWhatIsLeftOut();
    void saysThatASchemaIsNotTaken();
    void leavesNoFile();
    void tellsWhatIsDifferentInCopies();
    void tellsNothingOfCopiesThatAreAlike();

private:
    Examination examined(const QString& schema, bool isToProve = true)
    {
        QFile file(m_folder.filePath(QStringLiteral("schema.xsd")));
        if (!file.open(QIODevice::WriteOnly) || file.write(schema.toUtf8()) < 0) {
            return Examination();
        }
        file.close();
        return examine(file.fileName(), isToProve);
    }

    QTemporaryDir m_folder;
};

void TestSchemaDoctorProof::leavesNoErrorSilent_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::newRow("references-to-later-globals-come-in-reverse-order")
        << QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>"
                          "<xs:element name='Level' type='xs:double'/>"
                          "<xs:element ref='First'/><xs:element ref='Second'/>"
                          "</xs:sequence></xs:complexType></xs:element>"
                          "<xs:element name='First'><xs:complexType><xs:sequence>"
                          "<xs:element name='A' type='xs:string'/></xs:sequence></xs:complexType></xs:element>"
                          "<xs:element name='Second'><xs:complexType><xs:sequence>"
                          "<xs:element name='B' type='xs:string'/></xs:sequence></xs:complexType></xs:element>");
    QTest::newRow("optional-element-with-attributes-only-stays")
        << QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>"
                          "<xs:element name='Level' type='xs:double'/>"
                          "<xs:element name='Mark' minOccurs='0'><xs:complexType>"
                          "<xs:attribute name='Width' type='xs:double' use='required'/>"
                          "</xs:complexType></xs:element>"
                          "</xs:sequence></xs:complexType></xs:element>");
    QTest::newRow("optional-child-of-a-copy-stays")
        << QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>"
                          "<xs:element name='Signal' maxOccurs='unbounded'><xs:complexType><xs:sequence>"
                          "<xs:element name='Level' type='xs:double'/>"
                          "<xs:element name='Width' type='xs:double' minOccurs='0'/>"
                          "</xs:sequence></xs:complexType></xs:element>"
                          "</xs:sequence></xs:complexType></xs:element>");
}

void TestSchemaDoctorProof::leavesNoErrorSilent()
{
    QFETCH(QString, declarations);
    const Examination examination = examined(schemaOf(declarations));
    QVERIFY(examination.proof.reports > 0);
    QVERIFY(examination.proof.validReports < examination.proof.reports);
    QVERIFY(exitStatusOf(examination) != NothingToSay);
}

void TestSchemaDoctorProof::findsNothingWrong_data()
{
    QTest::addColumn<QString>("declarations");
    const auto row = [](const char* name, const QString& children) {
        QTest::newRow(name) << QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>%1</xs:sequence>"
                                              "</xs:complexType></xs:element>")
                                   .arg(children);
    };
    row("values-of-all-kinds",
        QStringLiteral("<xs:element name='A' type='xs:string'/><xs:element name='B' type='xs:double'/>"
                       "<xs:element name='C' type='xs:integer'/><xs:element name='D' type='xs:boolean'/>"
                       "<xs:element name='E' type='xs:dateTime'/><xs:element name='F' type='xs:time'/>"
                       "<xs:element name='G' type='xs:int'/><xs:element name='H' type='xs:short'/>"));
    row("values-within-bounds",
        QStringLiteral("<xs:element name='A'><xs:simpleType><xs:restriction base='xs:double'>"
                       "<xs:minExclusive value='-1'/><xs:maxInclusive value='-0.5'/></xs:restriction></xs:simpleType>"
                       "</xs:element><xs:element name='B'><xs:simpleType><xs:restriction base='xs:integer'>"
                       "<xs:maxExclusive value='-7'/></xs:restriction></xs:simpleType></xs:element>"
                       "<xs:element name='C'><xs:simpleType><xs:restriction base='xs:string'>"
                       "<xs:enumeration value='low'/><xs:enumeration value='high'/></xs:restriction></xs:simpleType>"
                       "</xs:element>"));
    row("an-element-with-a-default", QStringLiteral("<xs:element name='A' type='xs:string' default='none'/>"));
    row("one-alternative-of-a-choice",
        QStringLiteral("<xs:choice><xs:element name='A' type='xs:string'/><xs:element name='B' type='xs:string'/>"
                       "</xs:choice>"));
    const QString a = QStringLiteral("<xs:element name='A' type='xs:string'/>");
    const QString b = QStringLiteral("<xs:element name='B' type='xs:string'/>");
    const QString c = QStringLiteral("<xs:element name='C' type='xs:string'/>");
    const QString several = QStringLiteral("<xs:element name='D' type='xs:string' maxOccurs='2'/>");
    const auto choice = [](const QString& first, const QString& second) {
        return QStringLiteral("<xs:choice><xs:sequence>%1</xs:sequence><xs:sequence>%2</xs:sequence></xs:choice>")
            .arg(first, second);
    };
    row("alternatives-that-end-equally", choice(a + b, c + b));
    row("alternatives-with-the-names-of-each-other", choice(a + b, b + a) + c);
    row("alternatives-that-end-as-others-begin",
        choice(a + b, b + c) + QStringLiteral("<xs:element name='E' type='xs:string'/>"));
    row("alternatives-that-repeat-one-name", choice(a + several, c + several));
    row("required-and-optional-attributes",
        QStringLiteral("<xs:element name='A'><xs:complexType><xs:sequence><xs:element name='B' type='xs:string'/>"
                       "</xs:sequence><xs:attribute name='Unit' type='xs:string' use='required'/>"
                       "<xs:attribute name='Count' type='xs:integer'/></xs:complexType></xs:element>"));
    row("repeated-elements",
        QStringLiteral("<xs:element name='A' type='xs:double' maxOccurs='unbounded'/>"
                       "<xs:element name='B' type='xs:double' minOccurs='2' maxOccurs='2'/>"));
}

void TestSchemaDoctorProof::findsNothingWrong()
{
    QFETCH(QString, declarations);
    const Examination examination = examined(schemaOf(declarations));
    QCOMPARE(unforetoldPathsOf(examination), QStringList());
    QVERIFY(examination.proof.reports > 0);
    QCOMPARE(examination.proof.validReports, examination.proof.reports);
    QCOMPARE(examination.proof.leftOut, QString());
}

namespace {

/// That one value must be another one's is nothing that the library or a rule looks at.
const QString reportWithReference
    = QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>\n"
                     "<xs:element name='Channel' type='xs:string'/>\n"
                     "<xs:element name='Box'><xs:complexType><xs:sequence>\n"
                     "<xs:element name='Chosen' type='xs:string'/>\n"
                     "</xs:sequence></xs:complexType></xs:element>\n"
                     "</xs:sequence></xs:complexType>\n"
                     "<xs:key name='Channels'><xs:selector xpath='Channel'/><xs:field xpath='.'/></xs:key>\n"
                     "<xs:keyref name='Choice' refer='Channels'><xs:selector xpath='Box/Chosen'/>"
                     "<xs:field xpath='.'/></xs:keyref>\n"
                     "</xs:element>");

} // namespace

void TestSchemaDoctorProof::namesTheDeclarationAndTheSentence()
{
    const Examination examination = examined(schemaOf(reportWithReference));
    for (const Finding& finding : examination.findings) {
        if (finding.rule == QLatin1String("unforetold")) {
            QCOMPARE(finding.severity, Severity::Warning);
            // Where the constraint stands, there libxml2 tells of it.
            QCOMPARE(finding.path, QStringLiteral("/Report"));
            QCOMPARE(finding.place.line, 2);
            QVERIFY2(finding.what.contains(QStringLiteral("Element 'Chosen': No match found for key-sequence")),
                     qPrintable(finding.what));
            return;
        }
    }
    QFAIL("The reference to nothing is not told.");
}

void TestSchemaDoctorProof::tellsTheSameErrorOnce()
{
    const Examination examination = examined(schemaOf(reportWithReference));
    QStringList sentences;
    for (const Finding& finding : examination.findings) {
        if (finding.rule == QLatin1String("unforetold")) {
            sentences.append(finding.what.section(QStringLiteral("not valid: "), 1));
        }
    }
    QVERIFY(!sentences.isEmpty());
    QCOMPARE(sentences.removeDuplicates(), 0);
}

void TestSchemaDoctorProof::isLeftOutOnRequest()
{
    const QString schema = schemaOf(QStringLiteral("<xs:element name='Report' type='xs:string'/>"));
    QCOMPARE(wordsFor(examined(schema).proof), QStringLiteral("Reports filled on trial: 4, of which valid: 4."));
    QCOMPARE(wordsFor(examined(schema, false).proof), QString());
}

void TestSchemaDoctorProof::saysWhatIsLeftOut()
{
    QString children;
    for (int i = 0; i < 200; ++i) {
        children += QStringLiteral("<xs:element name='E%1' minOccurs='0'><xs:complexType><xs:sequence>"
                                   "<xs:element name='A' type='xs:string'/></xs:sequence></xs:complexType>"
                                   "</xs:element>\n")
                        .arg(i);
    }
    const Examination examination
        = examined(schemaOf(QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>%1</xs:sequence>"
                                           "</xs:complexType></xs:element>")
                                .arg(children)));
    const Proof& proof = examination.proof;
    QVERIFY(proof.reports > 4);
    QVERIFY(proof.reports < 204);
    QCOMPARE(proof.leftOut,
             QStringLiteral("Of 204 reports to be filled on trial, %1 were left out: they would take too long.")
                 .arg(204 - proof.reports));
}

void TestSchemaDoctorProof::saysThatASchemaIsNotTaken()
{
    const Examination examination
        = examined(schemaOf(QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                           "<xs:element name='A' type='xs:string'/>"
                                           "<xs:element name='B' type='xs:quantity'/>"
                                           "</xs:sequence></xs:complexType></xs:element>")));
    QCOMPARE(examination.proof.reports, 0);
    QCOMPARE(examination.proof.leftOut, QStringLiteral("No report was validated: libxml2 does not take the schema."));
}

void TestSchemaDoctorProof::leavesNoFile()
{
    examined(schemaOf(QStringLiteral("<xs:element name='Report' type='xs:string'/>")));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList {QStringLiteral("schema.xsd")});
}

namespace {

/// A container that repeats, with all that may differ in its copies, and what cannot.
const QString reportWithCopies
    = QStringLiteral("<xs:simpleType name='Modes'><xs:restriction base='xs:string'><xs:enumeration value='AM'/>"
                     "<xs:enumeration value='FM'/></xs:restriction></xs:simpleType>\n"
                     "<xs:simpleType name='Powers'><xs:restriction base='xs:double'><xs:minInclusive value='0'/>"
                     "</xs:restriction></xs:simpleType>\n"
                     "<xs:element name='Report'><xs:complexType><xs:sequence>\n"
                     "<xs:element name='Signal' maxOccurs='unbounded'><xs:complexType><xs:sequence>\n"
                     "<xs:element name='Level' type='xs:double'/>\n"
                     "<xs:element name='Mode' type='Modes' minOccurs='0'/>\n"
                     "<xs:element name='Power' type='Powers' minOccurs='0'/>\n"
                     "<xs:element name='Mark' minOccurs='0'><xs:complexType><xs:sequence>\n"
                     "<xs:element name='Text' type='xs:string'/></xs:sequence></xs:complexType></xs:element>\n"
                     "<xs:element name='Note' type='xs:string' default='none' minOccurs='0'/>\n"
                     "<xs:element name='Line' type='xs:double' maxOccurs='unbounded'/>\n"
                     "</xs:sequence></xs:complexType></xs:element>\n"
                     "<xs:element name='Last' type='xs:string' minOccurs='0'/>\n"
                     "</xs:sequence></xs:complexType></xs:element>");

/// The elements and what is in them, a line each: the name, and when nothing has filled it, its attributes and value.
QStringList linesOf(const QDomElement& parent)
{
    QStringList lines;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        QStringList rest;
        const QDomNamedNodeMap attributes = child.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            rest.append(attributes.item(i).nodeName());
        }
        rest.sort();
        const QString value = rest.isEmpty() || !child.firstChildElement().isNull() ? QString() : child.text();
        lines.append(QStringList {child.tagName(), rest.join(QLatin1Char(' ')), value}.join(QLatin1Char('|')));
        lines.append(linesOf(child));
    }
    return lines;
}

} // namespace

void TestSchemaDoctorProof::tellsWhatIsDifferentInCopies()
{
    const Examination examination = examined(schemaOf(reportWithCopies), false);
    QCOMPARE(copiesText(examination.tree),
             QStringLiteral("\nIn every copy but the first\n"
                            "  /Report/Signal\n"
                            "    Mode: stays when nothing fills it, with type, enumeration\n"
                            "    Power: stays when nothing fills it, with type, minInclusive\n"
                            "    Mark: stays when nothing fills it\n"
                            "    Text: stays when nothing fills it, with type\n"
                            "    Note: stays when nothing fills it, with type and the value 'none'\n"
                            "    Line: no count is accepted\n"));
    // So it is in a report of two signals, and two lines in each, with nothing but what is required.
    int all = 0;
    const std::vector<Filling> fillings = fillingsOf(examination.tree, 4, all);
    QDomDocument report;
    QVERIFY(report.setContent(
        filledReport(m_folder.filePath(QStringLiteral("schema.xsd")), examination.tree, fillings.at(3))));
    const QDomElement first = report.documentElement().firstChildElement(QStringLiteral("Signal"));
    const QStringList firstLines {QStringLiteral("Level||"), QStringLiteral("Line||"), QStringLiteral("Line||")};
    QCOMPARE(linesOf(first), firstLines);
    const QStringList furtherLines {QStringLiteral("Level||"),
                                    QStringLiteral("Mode|enumeration1 enumeration2 type|"),
                                    QStringLiteral("Power|minInclusive type|"),
                                    QStringLiteral("Mark||"),
                                    QStringLiteral("Text|type|"),
                                    QStringLiteral("Note|type|none"),
                                    QStringLiteral("Line||")};
    QCOMPARE(linesOf(first.nextSiblingElement(QStringLiteral("Signal"))), furtherLines);
}

void TestSchemaDoctorProof::tellsNothingOfCopiesThatAreAlike()
{
    const Examination examination
        = examined(schemaOf(QStringLiteral("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                           "<xs:element name='Signal' maxOccurs='unbounded'><xs:complexType>"
                                           "<xs:sequence><xs:element name='Level' type='xs:double'/></xs:sequence>"
                                           "</xs:complexType></xs:element><xs:element name='Last' type='xs:string' "
                                           "minOccurs='0'/></xs:sequence></xs:complexType></xs:element>")),
                   false);
    QVERIFY(!examination.tree.IsEmpty());
    QCOMPARE(copiesText(examination.tree), QString());
}

QTEST_GUILESS_MAIN(TestSchemaDoctorProof)
#include "tst_schemadoctor_proof.moc"
