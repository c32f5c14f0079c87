#include <QtTest>

#include <memory>

#include <libxml/xmlIO.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlcreatereport.h>

#include "rendering.h"
#include "reportcheck.h"
#include "validation.h"
#include "xmlfile.h"

using namespace reportcheck;

namespace {

const QString schemaText = QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
    <xs:element name="Report">
        <xs:complexType>
            <xs:sequence>
                <xs:element name="Level" type="xs:double" maxOccurs="unbounded"/>
            </xs:sequence>
        </xs:complexType>
    </xs:element>
</xs:schema>
)");

QString report(const QString& schema, const QString& content)
{
    return QStringLiteral("<Report xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                          "xsi:noNamespaceSchemaLocation=\"%1\">%2</Report>\n")
        .arg(schema, content);
}

// Leaves everything unfilled.
class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { }
};

} // namespace

class TestReportCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void refusesWhatItCannotRead_data();
    void refusesWhatItCannotRead();
    void knowsBinaryFiles_data();
    void knowsBinaryFiles();
    void refusesAGivenSchemaThatIsNotThere();
    void refusesMoreElementsThanTheLibraryLaysOut();
    void readsOtherEncodings();
    void tellsAHundredOfEachRule();
    void tellsAHundredMessagesOfTheValidator();
    void stopsAValidationThatTakesTooLong();

    void findsTheSchema_data();
    void findsTheSchema();
    void takesTheGivenSchemaInstead();

    void validates_data();
    void validates();
    void namesFileAndLineOfAFaultInTheSchema();
    void saysWhatASchemaIsThatIsNoXml_data();
    void saysWhatASchemaIsThatIsNoXml();
    void fetchesNothingFromANetwork();
    void readsNoExternalEntity();

    void countsLinesBeyond65535();
    void takesTimeInProportionToTheSize();

    void endsWithTheWorst_data();
    void endsWithTheWorst();
    void writesJson();
    void findsEverythingThatNobodyFilled();

private:
    QString write(const QString& name, const QString& text);
    QString writeBytes(const QString& name, const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

void TestReportCheck::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
}

QString TestReportCheck::write(const QString& name, const QString& text)
{
    return writeBytes(name, text.toUtf8());
}

QString TestReportCheck::writeBytes(const QString& name, const QByteArray& bytes)
{
    const QString path = m_pFolder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    return path;
}

void TestReportCheck::refusesWhatItCannotRead_data()
{
    QTest::addColumn<QString>("text"); // null: there is no file
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing-file") << QString() << QStringLiteral("There is no such file.");
    QTest::newRow("empty-file") << QStringLiteral("") << QStringLiteral("The file is empty.");
    QTest::newRow("blank-file") << QStringLiteral(" \n\n") << QStringLiteral("The file is empty.");
    QTest::newRow("binary-file") << QStringLiteral("PK\u0003\u0004") + QChar(0) + QStringLiteral("<a/>")
                                 << QStringLiteral("It is a binary file, and no XML.");
    QTest::newRow("text-file") << QStringLiteral("Level: 7\n<a/>")
                               << QStringLiteral("It is no XML: it does not begin with a tag.");
    QTest::newRow("declaration-alone-is-what-an-unread-schema-leaves")
        << QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n") << QStringLiteral("xmlhelper-schema says why");
    QTest::newRow("fault-is-named-with-its-line") << QStringLiteral("<a>\n<b>\n</a>") << QStringLiteral("line 3: ");
    QTest::newRow("several-roots") << QStringLiteral("<?xml version='1.0'?>\n<a/>\n<b/>\n")
                                   << QStringLiteral("line 3: It is not well-formed XML: something follows its root.");
    QTest::newRow("deeper-than-the-parser-reads")
        << QStringLiteral("<a>").repeated(2000) + QStringLiteral("</a>").repeated(2000)
        << QStringLiteral("not well-formed");
}

void TestReportCheck::refusesWhatItCannotRead()
{
    QFETCH(const QString, text);
    QFETCH(const QString, reason);

    const QString file
        = text.isNull() ? m_pFolder->filePath(QStringLiteral("report.xml")) : write(QStringLiteral("report.xml"), text);
    const Result result = checkReport(file);
    QVERIFY(!result.IsReadable());
    QVERIFY2(result.unreadableReason.contains(reason), qPrintable(result.unreadableReason));
    QCOMPARE(exitStatusOf(result), Unreadable);
    QVERIFY(result.findings.empty());
    QVERIFY(result.validation.empty());
}

void TestReportCheck::knowsBinaryFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");

    const QString binary = QStringLiteral("It is a binary file, and no XML.");
    const QString text = QStringLiteral("It is no XML: it does not begin with a tag.");
    QTest::newRow("zero-byte") << QByteArray::fromRawData("BM\0\0", 4) << binary;
    QTest::newRow("signature-of-an-image") << QByteArray("\x89PNG\r\n\x1a\n") << binary;
    QTest::newRow("compressed") << QByteArray("\x1f\x8b\x08\x08") << binary;
    QTest::newRow("other-encoding") << QByteArray("Gr\xfc\xdf"
                                                  "e\r\n\tund\fmehr")
                                    << text;
    QTest::newRow("text-that-switches-its-encoding") << QByteArray("\x1b$B%l\x1b(B") << text;
    QTest::newRow("control-character-in-xml") << QByteArray("<a>\x01</a>") << QStringLiteral("not well-formed");
}

void TestReportCheck::knowsBinaryFiles()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    const Result result = checkReport(writeBytes(QStringLiteral("report.xml"), bytes));
    QVERIFY2(result.unreadableReason.contains(reason), qPrintable(result.unreadableReason));
}

void TestReportCheck::refusesAGivenSchemaThatIsNotThere()
{
    const QString file = write(QStringLiteral("report.xml"), QStringLiteral("<Report>7</Report>"));
    QCOMPARE(exitStatusOf(checkReport(file, m_pFolder->filePath(QStringLiteral("no.xsd")))), Unreadable);
}

void TestReportCheck::refusesMoreElementsThanTheLibraryLaysOut()
{
    const QString allowed
        = QStringLiteral("<r>") + QStringLiteral("<e>1</e>").repeated(499999) + QStringLiteral("</r>");
    QVERIFY(checkReport(write(QStringLiteral("allowed.xml"), allowed)).IsReadable());

    const QString beyond = QStringLiteral("<r>") + QStringLiteral("<e>1</e>").repeated(500000) + QStringLiteral("</r>");
    const Result result = checkReport(write(QStringLiteral("beyond.xml"), beyond));
    QVERIFY2(result.unreadableReason.contains(QLatin1String("500000 elements")), qPrintable(result.unreadableReason));
}

void TestReportCheck::readsOtherEncodings()
{
    const QString path = m_pFolder->filePath(QStringLiteral("report.xml"));
    for (const char* const codec : {"UTF-16LE", "UTF-16BE"}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString text = QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><Report>7</Report>");
        for (const QChar& character : QChar(0xFEFF) + text) {
            const char bytes[] = {char(character.cell()), char(character.row())};
            file.putChar(bytes[QByteArray(codec) == "UTF-16LE" ? 0 : 1]);
            file.putChar(bytes[QByteArray(codec) == "UTF-16LE" ? 1 : 0]);
        }
        file.close();
        QVERIFY2(checkReport(path).IsReadable(), codec);
    }
}

void TestReportCheck::tellsAHundredOfEachRule()
{
    const QString levels = QStringLiteral("<Level type=\"double\"/>").repeated(250);
    const QString file = write(QStringLiteral("report.xml"), QStringLiteral("<Report>%1</Report>").arg(levels));
    const Result result = checkReport(file);
    int listed = 0;
    int counted = 0;
    for (const Finding& finding : result.findings) {
        if (finding.rule == QLatin1String("never-filled")) {
            ++listed;
            counted += finding.count;
        }
    }
    QCOMPARE(listed, 101);
    QCOMPARE(counted, 250);
    QVERIFY(textOf(result).contains(QStringLiteral("150 more of this kind are left out. [never-filled]")));
    QVERIFY(textOf(result).contains(QStringLiteral("250 errors")));
}

void TestReportCheck::tellsAHundredMessagesOfTheValidator()
{
    write(QStringLiteral("level.xsd"), schemaText);
    const QString levels = QStringLiteral("<Level>high</Level>").repeated(250);
    const QString file = write(QStringLiteral("report.xml"), report(QStringLiteral("level.xsd"), levels));
    const Result result = checkReport(file);
    QVERIFY(result.isValidated);
    QCOMPARE(int(result.validation.size()), 101);
    QCOMPARE(result.validation.back().count, 150);
    QVERIFY(textOf(result).contains(QStringLiteral("250 errors")));
}

/// A content model of nested repetitions keeps the compiler of the schema busy for longer than anybody waits.
void TestReportCheck::stopsAValidationThatTakesTooLong()
{
    QString model = QStringLiteral("<xs:element name=\"Level\" type=\"xs:double\" minOccurs=\"0\" maxOccurs=\"3\"/>");
    for (int level = 0; level < 12; ++level) {
        model = QStringLiteral("<xs:sequence minOccurs=\"2\" maxOccurs=\"5\">%1%1</xs:sequence>").arg(model);
    }
    const QString schema = write(QStringLiteral("busy.xsd"),
                                 QStringLiteral("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                                                "<xs:element name=\"Report\"><xs:complexType>%1</xs:complexType>"
                                                "</xs:element></xs:schema>")
                                     .arg(model));
    const QString text = QStringLiteral("<Report>%1</Report>").arg(QStringLiteral("<Level>7</Level>").repeated(5000));
    const ReadFile read = readXmlFile(write(QStringLiteral("report.xml"), text));
    ElementPaths paths;
    const Validation validation = validate(read.document.get(), QStringLiteral("report.xml"), schema, paths, 1);
    QVERIFY(validation.isStopped);
    QVERIFY(!validation.isDone);
    QCOMPARE(validation.messages.back().severity, Severity::Warning);
    QCOMPARE(validation.messages.back().text, QStringLiteral("The validation was stopped after 1 seconds of work."));
}

void TestReportCheck::findsTheSchema_data()
{
    QTest::addColumn<QString>("location"); // %1 stands for the folder
    QTest::addColumn<QString>("schema"); // where it is; nothing: not found

    QTest::newRow("absolute-path") << "%1/schema.xsd"
                                   << "%1/schema.xsd";
    QTest::newRow("url-of-a-file") << "file://%1/schema.xsd"
                                   << "%1/schema.xsd";
    QTest::newRow("beside-the-report") << "schema.xsd"
                                       << "%1/reports/../reports/schema.xsd";
    QTest::newRow("relative-to-the-report") << "../schema.xsd"
                                            << "%1/reports/../schema.xsd";
    QTest::newRow("folder-is-no-schema") << "%1" << QString();
    QTest::newRow("missing") << "other.xsd" << QString();
    QTest::newRow("folder-and-file-with-blanks-and-more") << "%1/a b%20ü/s ß.xsd"
                                                          << "%1/a b%20ü/s ß.xsd";
}

void TestReportCheck::findsTheSchema()
{
    QFETCH(QString, location);
    QFETCH(QString, schema);

    location.replace(QLatin1String("%1"), m_pFolder->path());
    schema.replace(QLatin1String("%1"), m_pFolder->path());
    write(QStringLiteral("schema.xsd"), schemaText);
    write(QStringLiteral("reports/schema.xsd"), schemaText);
    write(QStringLiteral("a b%20ü/s ß.xsd"), schemaText);
    const QString content = QStringLiteral("<Level>7</Level>");
    const Result result = checkReport(write(QStringLiteral("reports/report.xml"), report(location, content)));
    QCOMPARE(QFileInfo(result.schema).canonicalFilePath(), QFileInfo(schema).canonicalFilePath());
    QCOMPARE(result.isValidated, !schema.isEmpty());
    QCOMPARE(exitStatusOf(result), schema.isEmpty() ? HasWarnings : NothingToSay);
}

void TestReportCheck::takesTheGivenSchemaInstead()
{
    const QString schema = write(QStringLiteral("schema.xsd"), schemaText);
    const QString file = write(QStringLiteral("report.xml"),
                               report(QStringLiteral("C:/away.xsd"), QStringLiteral("<Level>7</Level>")));
    const Result result = checkReport(file, schema);
    QCOMPARE(result.schema, schema);
    QVERIFY(result.isValidated);
    QCOMPARE(result.findings.size(), std::size_t(1)); // the location is out of reach, which does no harm
    QCOMPARE(result.findings.front().severity, Severity::Note);
    QCOMPARE(exitStatusOf(result), NothingToSay);
}

void TestReportCheck::validates_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("messages"); // path and a word of each

    QTest::newRow("valid") << "<Level>7</Level><Level>8</Level>" << QStringList();
    QTest::newRow("wrong-value") << "<Level>7</Level><Level>high</Level>"
                                 << QStringList {QStringLiteral("/Report/Level[2] high")};
    QTest::newRow("wrong-attribute") << "<Level Unit=\"dBm\">7</Level>"
                                     << QStringList {QStringLiteral("/Report/Level Unit")};
    QTest::newRow("missing-element") << "" << QStringList {QStringLiteral("/Report Missing")};
    QTest::newRow("other-element") << "<Level>7</Level><Name>8</Name>"
                                   << QStringList {QStringLiteral("/Report/Name Name")};
}

void TestReportCheck::validates()
{
    QFETCH(const QString, content);
    QFETCH(const QStringList, messages);

    write(QStringLiteral("schema.xsd"), schemaText);
    const Result result
        = checkReport(write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), content)));
    QVERIFY(result.isValidated);
    QCOMPARE(static_cast<int>(result.validation.size()), static_cast<int>(messages.size()));
    for (int i = 0; i < messages.size(); ++i) {
        const Finding& message = result.validation.at(static_cast<std::size_t>(i));
        QCOMPARE(message.path, messages.at(i).section(QLatin1Char(' '), 0, 0));
        QVERIFY2(message.text.contains(messages.at(i).section(QLatin1Char(' '), 1)), qPrintable(message.text));
        QCOMPARE(message.rule, QStringLiteral("validation"));
        QCOMPARE(message.severity, Severity::Error);
        QCOMPARE(message.line, 1);
    }
}

void TestReportCheck::namesFileAndLineOfAFaultInTheSchema()
{
    write(QStringLiteral("schema.xsd"),
          QString(schemaText).replace(QLatin1String("xs:double"), QLatin1String("Decibel")));
    const QString file
        = write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), QStringLiteral("<Level>7</Level>")));
    const Result result = checkReport(file);
    QVERIFY(!result.isValidated);
    QVERIFY(!result.validation.empty());
    QCOMPARE(result.validation.front().rule, QStringLiteral("schema"));
    QCOMPARE(result.validation.front().file, m_pFolder->filePath(QStringLiteral("schema.xsd")));
    QCOMPARE(result.validation.front().line, 6);
    QCOMPARE(exitStatusOf(result), HasErrors);
}

void TestReportCheck::saysWhatASchemaIsThatIsNoXml_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QByteArray() << QStringLiteral("The file is empty.");
    QTest::newRow("blank") << QByteArray(" \n") << QStringLiteral("The file is empty.");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n") << QStringLiteral("It is a binary file, and no XML.");
    QTest::newRow("text") << QByteArray("Level: 7\n") << QStringLiteral("It is no XML: it does not begin with a tag.");
}

/// Whether it is given or named by the report.
void TestReportCheck::saysWhatASchemaIsThatIsNoXml()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const QString schema = writeBytes(QStringLiteral("schema.xsd"), bytes);
    const QString file
        = write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), QStringLiteral("<Level>7</Level>")));
    for (const QString& given : {schema, QString()}) {
        const Result result = checkReport(file, given);
        QVERIFY(!result.isValidated);
        QCOMPARE(result.validation.size(), std::size_t(1));
        QCOMPARE(result.validation.front().rule, QStringLiteral("schema"));
        QCOMPARE(result.validation.front().file, schema);
        QCOMPARE(result.validation.front().text, text);
        QCOMPARE(exitStatusOf(result), HasErrors);
    }
}

void TestReportCheck::fetchesNothingFromANetwork()
{
    // Whatever libxml2 is asked to load goes through this; a URL of a network has to be refused before.
    const xmlExternalEntityLoader loader = xmlGetExternalEntityLoader();
    write(QStringLiteral("schema.xsd"),
          QString(schemaText)
              .replace(QLatin1String("<xs:element name=\"Report\">"),
                       QLatin1String("<xs:include schemaLocation=\"http://127.0.0.1:9/more.xsd\"/>"
                                     "<xs:element name=\"Report\">")));
    const QString file
        = write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), QStringLiteral("<Level>7</Level>")));
    const Result result = checkReport(file);
    QVERIFY(result.IsReadable());
    QVERIFY(!result.validation.empty()); // the include is reported as missing
    QVERIFY2(xmlGetExternalEntityLoader() == loader, "the application's own loader is back");
}

void TestReportCheck::readsNoExternalEntity()
{
    const QString secret = write(QStringLiteral("secret.txt"), QStringLiteral("nan"));
    const Result result = checkReport(
        write(QStringLiteral("report.xml"),
              QStringLiteral("<!DOCTYPE Report [<!ENTITY e SYSTEM \"%1\">]><Report>&e;</Report>").arg(secret)));
    QVERIFY(result.IsReadable());
    for (const Finding& finding : result.findings) {
        QVERIFY2(finding.rule != QLatin1String("unknown-number"), qPrintable(finding.text));
    }
}

void TestReportCheck::countsLinesBeyond65535()
{
    const Result result = checkReport(write(QStringLiteral("report.xml"),
                                            QStringLiteral("<Report>") + QStringLiteral("\n").repeated(70000)
                                                + QStringLiteral("<Level>nan</Level>\n</Report>")));
    QCOMPARE(result.findings.back().rule, QStringLiteral("unknown-number"));
    QCOMPARE(result.findings.back().line, 70001);
}

void TestReportCheck::takesTimeInProportionToTheSize()
{
    write(QStringLiteral("schema.xsd"), schemaText);
    const QString content = QStringLiteral("<Level type=\"double\"/>\n").repeated(100000);
    const Result result
        = checkReport(write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), content)));
    QCOMPARE(result.findings.at(99).path, QStringLiteral("/Report/Level[100]"));
    QCOMPARE(result.findings.back().count, 99900);
}

void TestReportCheck::endsWithTheWorst_data()
{
    QTest::addColumn<QStringList>("contents");
    QTest::addColumn<int>("status");

    const QString right = QStringLiteral("<Level>7</Level>");
    const QString noted = QStringLiteral("<Level>7</Level><Mark Time=\"12:00\"/>");
    const QString surprising = QStringLiteral("<Level>7</Level><Name/>");
    const QString wrong = QStringLiteral("<Level>nan</Level>");
    const QString malformed = QStringLiteral("<Level>");
    QTest::newRow("nothing-checked") << QStringList() << int(NothingToSay);
    QTest::newRow("notes-count-as-nothing") << QStringList {right, noted} << int(NothingToSay);
    QTest::newRow("warnings") << QStringList {right, surprising, noted} << int(HasWarnings);
    QTest::newRow("errors") << QStringList {wrong, surprising} << int(HasErrors);
    QTest::newRow("unreadable") << QStringList {malformed, wrong, right} << int(Unreadable);
}

void TestReportCheck::endsWithTheWorst()
{
    QFETCH(const QStringList, contents);
    QFETCH(const int, status);

    const QString anything = QStringLiteral(
        "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"><xs:element name=\"Report\"/></xs:schema>");
    write(QStringLiteral("schema.xsd"), anything);
    std::vector<Result> results;
    for (const QString& content : contents) {
        results.push_back(
            checkReport(write(QStringLiteral("report.xml"), report(QStringLiteral("schema.xsd"), content))));
    }
    QCOMPARE(int(exitStatusOf(results)), status);
}

void TestReportCheck::writesJson()
{
    write(QStringLiteral("schema.xsd"), schemaText);
    const QString file = write(QStringLiteral("report.xml"),
                               report(QStringLiteral("schema.xsd"), QStringLiteral("<Level>nan</Level>")));
    const QJsonObject object = QJsonDocument::fromJson(jsonOf({checkReport(file)})).object();
    QCOMPARE(object.value(QLatin1String("exitStatus")).toInt(), int(HasErrors));
    QCOMPARE(object.value(QLatin1String("reports")).toArray().size(), 1);

    const QJsonObject first = object.value(QLatin1String("reports")).toArray().first().toObject();
    QCOMPARE(first.value(QLatin1String("report")).toString(), file);
    QCOMPARE(first.value(QLatin1String("readable")).toBool(), true);
    QCOMPARE(first.value(QLatin1String("validated")).toBool(), true);
    QCOMPARE(first.value(QLatin1String("validation")).toArray().size(), 1);
    const QJsonObject finding = first.value(QLatin1String("findings")).toArray().first().toObject();
    QCOMPARE(finding.value(QLatin1String("rule")).toString(), QStringLiteral("unknown-number"));
    QCOMPARE(finding.value(QLatin1String("severity")).toString(), QStringLiteral("error"));
    QCOMPARE(finding.value(QLatin1String("path")).toString(), QStringLiteral("/Report/Level"));
    QCOMPARE(finding.value(QLatin1String("line")).toInt(), 1);
}

// The library and the checker have to agree on what an unfilled report looks like.
void TestReportCheck::findsEverythingThatNobodyFilled()
{
    const QString schema = write(QStringLiteral("schema.xsd"), QStringLiteral(R"(
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
    <xs:attribute name="Unit">
        <xs:simpleType>
            <xs:restriction base="xs:string"><xs:enumeration value="dBm"/></xs:restriction>
        </xs:simpleType>
    </xs:attribute>
    <xs:element name="Report">
        <xs:complexType>
            <xs:sequence>
                <xs:element name="Station" type="xs:string"/>
                <xs:element name="Price" type="xs:decimal"/>
                <xs:element name="Level">
                    <xs:complexType>
                        <xs:simpleContent>
                            <xs:extension base="xs:double">
                                <xs:attribute ref="Unit"/>
                                <xs:attribute name="Time" type="xs:time"/>
                            </xs:extension>
                        </xs:simpleContent>
                    </xs:complexType>
                </xs:element>
                <xs:element name="Receiver">
                    <xs:complexType>
                        <xs:sequence>
                            <xs:element name="Detector" type="xs:string" default="RMS"/>
                        </xs:sequence>
                    </xs:complexType>
                </xs:element>
                <xs:element name="Comment" type="xs:string" minOccurs="0"/>
            </xs:sequence>
        </xs:complexType>
    </xs:element>
</xs:schema>
)"));
    const QString file = m_pFolder->filePath(QStringLiteral("report.xml"));
    SilentObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(schema, file, false));

    QStringList found;
    const Result result = checkReport(file);
    for (const Finding& finding : result.findings) {
        found.append(finding.path + QLatin1Char(' ') + finding.rule);
    }
    found.sort();
    const QStringList expected {QStringLiteral("/Report/Level attribute-holds-a-type"),
                                QStringLiteral("/Report/Level attribute-holds-a-type"),
                                QStringLiteral("/Report/Level never-filled"),
                                QStringLiteral("/Report/Price never-filled"),
                                QStringLiteral("/Report/Receiver/Detector unconfirmed-default"),
                                QStringLiteral("/Report/Station never-filled")};
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(TestReportCheck)

#include "tst_reportcheck.moc"
