#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <xmlhelper/xmlhelper.h>

#include "domtext.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

using Operation = std::function<void(XmlCreateReport&)>;
using ErrorList = std::vector<int>;

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(ErrorList)

class TestXmlCreateReportLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesTheFilledSkeleton();
    void announcesTheSkeletonBetweenBeginAndEnd();
    void stampsTheRootWithTheSchemaLocation();
    void keepsTheAnnotationsOfWhatIsNotFilled();
    void replacesAnEarlierFile();
    void takesBothKindsOfSlash_data();
    void takesBothKindsOfSlash();
    void opensNamesThatHoldBackSlashesAsGiven();
    void findsIncludedFilesBesideASchemaGivenWithBackSlashes();

    void buildsOneDocumentOnly();
    void refusesToBuildInsideItsOwnWalk();
    void buildsNothingMoreAfterAFailure();

    void writesAnEmptyFileForASchemaThatFails_data();
    void writesAnEmptyFileForASchemaThatFails();
    void writesAnEmptyFileForASchemaThatMayNotBeRead();
    void tracesATypeThatNeverComes();
    void writesTheDeclarationForASchemaWithoutElements_data();
    void writesTheDeclarationForASchemaWithoutElements();
    void takesTheLastDefinitionForARootThatIsMissing_data();
    void takesTheLastDefinitionForARootThatIsMissing();
    void ignoresWhatIsWrongWithIncludedFiles_data();
    void ignoresWhatIsWrongWithIncludedFiles();

    void saysNothingOfAReportThatCannotBeWritten_data();
    void saysNothingOfAReportThatCannotBeWritten();
    void saysNothingOfAFullDisk();

    void handsTheReportToADialog();
    void showsTheSummaryOfTheReport();
    void dialogWritesTheReportWhereItBelongs();
    void dialogSharesTheDocument();
    void dialogIsShownForAFailedSchemaToo();
    void deletesItsDialogs_data();
    void deletesItsDialogs();

    void copyIsShallow();
    void copyTakesTheStateByValue();
    void copyMadeInsideAnErrorIsHeardInFull();
    void copyOfANewBuilderBuildsForItself();
    void assignmentIsShallow();
    void selfAssignmentChangesNothing();

    void behavesAsWithoutCurrentElementBeforeBuilding_data();
    void behavesAsWithoutCurrentElementBeforeBuilding();
    void behavesAsWithoutCurrentElementWhenNothingWasAnnounced();
    void actsOnTheElementAnnouncedLastAfterBuilding();
    void announcesTheValueOfARootAsANode();
    void deliversErrorsInsideErrors();

    void tracesAMissingObserver();
    void tracesNothingWithoutItsBitInTheMask();
    void doesNothingWithoutObserver_data();
    void doesNothingWithoutObserver();

private:
    QString pathOf(const QString& name) const { return m_pDirectory->filePath(name); }
    QString write(const QString& name, const QString& text) const;
    bool build(XmlCreateReport& builder, bool showCommentDialog = false) const;

    std::unique_ptr<QTemporaryDir> m_pDirectory;
};

namespace {

QString schemaWith(const QString& content)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>%1</xs:schema>").arg(content);
}

/// A schema with the global element Report, made of @p elements.
QString reportSchema(const QString& elements)
{
    return schemaWith(
        QStringLiteral(
            "<xs:element name='Report'><xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType></xs:element>")
            .arg(elements));
}

QString measurementSchema()
{
    return reportSchema(QStringLiteral("<xs:element name='Frequency' type='xs:double'/>"
                                       "<xs:element name='Station'><xs:complexType><xs:sequence>"
                                       "<xs:element name='Name' type='xs:string'/>"
                                       "</xs:sequence></xs:complexType></xs:element>"
                                       "<xs:element name='Remark' type='xs:string' minOccurs='0'/>"));
}

/// The text of the file called @p fileName, null when there is none.
QString textOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString withBackSlashes(QString path)
{
    return path.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

QString logOf(const ScriptedObserver& observer)
{
    return observer.Log().join(QStringLiteral(", "));
}

QList<QDialog*> commentDialogs()
{
    QList<QDialog*> dialogs;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == QLatin1String("ToReportCommentDialog")) {
            dialogs.append(qobject_cast<QDialog*>(widget));
        }
    }
    return dialogs;
}

void click(QDialog* dialog, const char* button)
{
    QTest::mouseClick(dialog->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

QString labelText(QDialog* dialog, const char* label)
{
    return dialog->findChild<QLabel*>(QLatin1String(label))->text();
}

const QString Declaration = QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>");

} // namespace

void TestXmlCreateReportLifecycle::init()
{
    m_pDirectory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_pDirectory->isValid());
}

void TestXmlCreateReportLifecycle::cleanup()
{
    m_pDirectory.reset();
    QVERIFY(commentDialogs().isEmpty());
}

QString TestXmlCreateReportLifecycle::write(const QString& name, const QString& text) const
{
    QFile file(pathOf(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text.toUtf8());
    }
    return file.fileName();
}

/// Builds report.xml from schema.xsd.
bool TestXmlCreateReportLifecycle::build(XmlCreateReport& builder, bool showCommentDialog) const
{
    return builder.CreateXmlFromSchema(pathOf(QStringLiteral("schema.xsd")), pathOf(QStringLiteral("report.xml")),
                                       showCommentDialog);
}

void TestXmlCreateReportLifecycle::writesTheFilledSkeleton()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Frequency"), [&](ElemBeginEvent&) { builder.SetXmlValue(98.5); });
    observer.OnElement(QStringLiteral("Name"),
                       [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("K\u00f6ln \u00b5 \u20ac")); });
    QVERIFY(build(builder));

    const QString written = textOf(pathOf(QStringLiteral("report.xml")));
    const QStringList lines = written.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines[0], Declaration);
    QVERIFY(lines[1].startsWith(QStringLiteral("<Report ")));
    QCOMPARE(lines[2], QStringLiteral("    <Frequency>98.5</Frequency>"));
    QCOMPARE(lines[3], QStringLiteral("    <Station>"));
    QCOMPARE(lines[4], QStringLiteral("        <Name>K\u00f6ln \u00b5 \u20ac</Name>"));
    QCOMPARE(lines[5], QStringLiteral("    </Station>"));
    QCOMPARE(lines[6], QStringLiteral("</Report>"));
    QCOMPARE(lines[7], QString());
}

void TestXmlCreateReportLifecycle::announcesTheSkeletonBetweenBeginAndEnd()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));

    // Elements with neither minOccurs 0 nor maxOccurs have no occurrence entry: they are reported twice.
    QStringList lines = observer.Recorder().Lines();
    for (QString& line : lines) {
        line = line.trimmed();
    }
    QCOMPARE(
        lines,
        QStringList({QStringLiteral("document begins"), QStringLiteral("begin Report [] \"\" -> Report"),
                     QStringLiteral("begin Frequency [type=\"double\"] \"\" -> Frequency"), QStringLiteral("error 15"),
                     QStringLiteral("error 16"), QStringLiteral("begin Station [] \"\" -> Station"),
                     QStringLiteral("error 15"), QStringLiteral("error 16"),
                     QStringLiteral("begin Name [type=\"string\"] \"\" -> Name"), QStringLiteral("error 15"),
                     QStringLiteral("error 16"), QStringLiteral("begin Remark [type=\"string\"] \"\" -> Remark"),
                     QStringLiteral("document ends")}));
}

void TestXmlCreateReportLifecycle::stampsTheRootWithTheSchemaLocation()
{
    const QString schema = write(QStringLiteral("schema.xsd"), reportSchema(QString()));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    QCOMPARE(domText(documentInFile(pathOf(QStringLiteral("report.xml"))).documentElement()),
             QStringLiteral("<Report xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                            " xsi:noNamespaceSchemaLocation=\"%1\"/>\n")
                 .arg(schema));
}

void TestXmlCreateReportLifecycle::keepsTheAnnotationsOfWhatIsNotFilled()
{
    const QString level = QStringLiteral("<xs:element name='%1'><xs:simpleType><xs:restriction base='xs:double'>"
                                         "<xs:minInclusive value='0'/><xs:maxInclusive value='100'/>"
                                         "</xs:restriction></xs:simpleType></xs:element>");
    const QString band = QStringLiteral("<xs:element name='Band'><xs:simpleType><xs:restriction base='xs:string'>"
                                        "<xs:enumeration value='HF'/><xs:enumeration value='VHF'/>"
                                        "</xs:restriction></xs:simpleType></xs:element>");
    write(QStringLiteral("schema.xsd"),
          reportSchema(level.arg(QStringLiteral("Unfilled")) + level.arg(QStringLiteral("Refused")) + band));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Refused"), [&](ElemBeginEvent&) { builder.SetXmlValue(100.5); });
    QVERIFY(build(builder));

    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(domText(root.firstChildElement(QStringLiteral("Unfilled"))),
             QStringLiteral("<Unfilled maxInclusive=\"100\" minInclusive=\"0\" type=\"double\"/>\n"));
    QCOMPARE(domText(root.firstChildElement(QStringLiteral("Refused"))),
             QStringLiteral("<Refused maxInclusive=\"100\" minInclusive=\"0\" type=\"double\"/>\n"));
    QCOMPARE(domText(root.firstChildElement(QStringLiteral("Band"))),
             QStringLiteral("<Band enumeration1=\"HF\" enumeration2=\"VHF\" type=\"string\"/>\n"));
}

void TestXmlCreateReportLifecycle::replacesAnEarlierFile()
{
    write(QStringLiteral("schema.xsd"), schemaWith(QString()));
    write(QStringLiteral("report.xml"), QString(5000, QLatin1Char('x')));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), Declaration + QLatin1Char('\n'));
}

void TestXmlCreateReportLifecycle::takesBothKindsOfSlash_data()
{
    QTest::addColumn<bool>("isSchemaBackSlashed");
    QTest::addColumn<bool>("isReportBackSlashed");
    QTest::addColumn<bool>("isMixed");

    QTest::newRow("slashes") << false << false << false;
    QTest::newRow("back-slashes-in-the-schema-path-are-turned-for-the-attribute") << true << false << false;
    QTest::newRow("back-slashes-in-the-report-path") << false << true << false;
    QTest::newRow("back-slashes-in-both-paths") << true << true << false;
    QTest::newRow("both-kinds-in-one-path") << false << false << true;
}

void TestXmlCreateReportLifecycle::takesBothKindsOfSlash()
{
    QFETCH(bool, isSchemaBackSlashed);
    QFETCH(bool, isReportBackSlashed);
    QFETCH(bool, isMixed);
    QVERIFY(QDir(m_pDirectory->path()).mkpath(QStringLiteral("a/b")));
    const QString schema = write(QStringLiteral("a/b/schema.xsd"), measurementSchema());
    const QString report = pathOf(QStringLiteral("a/b/report.xml"));
    QString schemaPath = isSchemaBackSlashed ? withBackSlashes(schema) : schema;
    QString reportPath = isReportBackSlashed ? withBackSlashes(report) : report;
    if (isMixed) {
        schemaPath.replace(QStringLiteral("a/b/"), QStringLiteral("a\\b/"));
        reportPath.replace(QStringLiteral("a/b/"), QStringLiteral("a/b\\"));
    }

    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(schemaPath, reportPath, false));
    const QDomDocument document = documentInFile(report);
    const QDomElement root = document.documentElement();
    QCOMPARE(root.attribute(QStringLiteral("xsi:noNamespaceSchemaLocation")), schema);
    QCOMPARE(root.tagName(), QStringLiteral("Report"));
}

void TestXmlCreateReportLifecycle::opensNamesThatHoldBackSlashesAsGiven()
{
#ifdef Q_OS_WIN
    QSKIP("Back slashes separate folders here.");
#else
    QVERIFY(QDir(m_pDirectory->path()).mkpath(QStringLiteral("a")));
    write(QStringLiteral("a/schema.xsd"), schemaWith(QString()));
    write(QStringLiteral("a\\schema.xsd"), measurementSchema());
    write(QStringLiteral("a/report.xml"), QStringLiteral("old"));
    write(QStringLiteral("a\\report.xml"), QStringLiteral("old"));

    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(pathOf(QStringLiteral("a\\schema.xsd")),
                                        pathOf(QStringLiteral("a\\report.xml")), false));
    QCOMPARE(textOf(pathOf(QStringLiteral("a/report.xml"))), QStringLiteral("old"));
    const QDomDocument document = documentInFile(pathOf(QStringLiteral("a\\report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), QStringLiteral("Report"));
    QCOMPARE(root.attribute(QStringLiteral("xsi:noNamespaceSchemaLocation")), pathOf(QStringLiteral("a/schema.xsd")));
#endif
}

void TestXmlCreateReportLifecycle::findsIncludedFilesBesideASchemaGivenWithBackSlashes()
{
    write(QStringLiteral("types.xsd"),
          schemaWith(QStringLiteral("<xs:simpleType name='Hertz'><xs:restriction base='xs:double'/></xs:simpleType>")));
    const QString schema = write(QStringLiteral("schema.xsd"),
                                 schemaWith(QStringLiteral("<xs:include schemaLocation='types.xsd'/>"
                                                           "<xs:element name='Frequency' type='Hertz'/>")));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(withBackSlashes(schema), pathOf(QStringLiteral("report.xml")), false));
    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), QStringLiteral("Frequency"));
    QCOMPARE(root.attribute(QStringLiteral("type")), QStringLiteral("double"));
}

void TestXmlCreateReportLifecycle::buildsOneDocumentOnly()
{
    const QString schema = write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    const QStringList lines = observer.Recorder().Lines();
    const QString written = textOf(pathOf(QStringLiteral("report.xml")));

    QVERIFY(!builder.CreateXmlFromSchema(schema, pathOf(QStringLiteral("second.xml")), false));
    QVERIFY(!builder.CreateXmlFromSchema(schema, pathOf(QStringLiteral("second.xml")), true));
    QVERIFY(!QFile::exists(pathOf(QStringLiteral("second.xml"))));
    QVERIFY(commentDialogs().isEmpty());
    QCOMPARE(observer.Recorder().Lines(), lines);
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), written);
}

void TestXmlCreateReportLifecycle::refusesToBuildInsideItsOwnWalk()
{
    const QString schema = write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Frequency"), [&](ElemBeginEvent&) {
        QVERIFY(!builder.CreateXmlFromSchema(schema, pathOf(QStringLiteral("inner.xml")), false));
    });
    QVERIFY(build(builder));
    QCOMPARE(observer.Log().count(QStringLiteral("Frequency")), 1);
    QVERIFY(!QFile::exists(pathOf(QStringLiteral("inner.xml"))));
    QVERIFY(QFile::exists(pathOf(QStringLiteral("report.xml"))));
}

void TestXmlCreateReportLifecycle::buildsNothingMoreAfterAFailure()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!build(builder));
    write(QStringLiteral("schema.xsd"), measurementSchema());
    QVERIFY(!build(builder));
    QCOMPARE(logOf(observer), QString());
    QCOMPARE(QFileInfo(pathOf(QStringLiteral("report.xml"))).size(), qint64(0));
}

void TestXmlCreateReportLifecycle::writesAnEmptyFileForASchemaThatFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text"); // null: there is no such file
    QTest::addColumn<QString>("traces");

    const QString schema = QStringLiteral("schema.xsd");
    const QString missing = QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates...");
    const auto reportOf = [](const char* element) { return reportSchema(QString::fromUtf8(element)); };

    QTest::newRow("missing-file") << schema << QString() << QString();
    QTest::newRow("missing-folder") << "nowhere/schema.xsd" << QString() << QString();
    QTest::newRow("folder-instead-of-a-file") << "." << QString() << QString();
    QTest::newRow("empty-path") << "" << QString() << QString();
    QTest::newRow("empty-file") << schema << "" << QString();
    QTest::newRow("declaration-only") << schema << "<?xml version='1.0'?>" << QString();
    QTest::newRow("text-instead-of-xml") << schema << "no schema" << QString();
    QTest::newRow("end-is-missing") << schema << measurementSchema().chopped(12) << QString();
    QTest::newRow("rubbish-behind-the-end") << schema << measurementSchema() + QStringLiteral("<") << QString();
    QTest::newRow("type-of-an-element-never-comes")
        << schema << reportOf("<xs:element name='a' type='Missing'/>") << missing;
    QTest::newRow("type-of-the-root-never-comes")
        << schema << schemaWith(QStringLiteral("<xs:element name='a' type='Missing'/>")) << missing;
    QTest::newRow("element-referred-to-never-comes") << schema << reportOf("<xs:element ref='Missing'/>") << missing;
    QTest::newRow("attribute-referred-to-never-comes")
        << schema << reportOf("<xs:attribute ref='Missing'/>") << missing;
    QTest::newRow("types-refer-to-each-other")
        << schema
        << schemaWith(QStringLiteral(
               "<xs:complexType name='A'><xs:element name='b' type='B'/></xs:complexType>"
               "<xs:complexType name='B'><xs:element name='a' type='A'/></xs:complexType>"
               "<xs:element name='Report'><xs:complexType><xs:element name='x' type='A'/></xs:complexType>"
               "</xs:element>"))
        << missing;
}

void TestXmlCreateReportLifecycle::writesAnEmptyFileForASchemaThatFails()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, traces);
    if (!text.isNull()) {
        write(name, text);
    }
    write(QStringLiteral("report.xml"), QStringLiteral("old"));
    const QString schemaPath = name.isEmpty() ? QString() : pathOf(name);

    TraceCollector collector;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!builder.CreateXmlFromSchema(schemaPath, pathOf(QStringLiteral("report.xml")), false));
    // The skeleton stays empty until the end of the schema, so there is nothing to announce, to stamp and to write.
    QVERIFY(observer.Recorder().Lines().isEmpty());
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), QStringLiteral(""));
    QCOMPARE(collector.Messages(), traces);
}

void TestXmlCreateReportLifecycle::writesAnEmptyFileForASchemaThatMayNotBeRead()
{
    const QString schema = write(QStringLiteral("schema.xsd"), measurementSchema());
    QFile file(schema);
#ifdef Q_OS_WIN
    // Rights are no matter of a file's permissions here, but a program may keep a file for itself.
    const std::unique_ptr<void, decltype(&CloseHandle)> keeper(
        CreateFileW(reinterpret_cast<const wchar_t*>(schema.utf16()), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0,
                    nullptr),
        &CloseHandle);
    QVERIFY(keeper.get() != INVALID_HANDLE_VALUE);
    QVERIFY(!file.open(QIODevice::ReadOnly));
#else
    QVERIFY(file.setPermissions(QFileDevice::Permissions()));
    if (file.open(QIODevice::ReadOnly)) {
        QSKIP("This user may read every file.");
    }
#endif
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!build(builder));
    QVERIFY(observer.Recorder().Lines().isEmpty());
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), QStringLiteral(""));
}

void TestXmlCreateReportLifecycle::tracesATypeThatNeverComes()
{
    write(QStringLiteral("schema.xsd"), reportSchema(QStringLiteral("<xs:element name='a' type='Missing'/>")));
    TraceCollector collector;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!build(builder));
    QVERIFY(collector.IsOnly(QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates..."),
                             QStringLiteral("tools/xmlhelper/xmlschemahandler"), 1389));
}

void TestXmlCreateReportLifecycle::writesTheDeclarationForASchemaWithoutElements_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("schema-without-declarations") << schemaWith(QString());
    QTest::newRow("schema-with-another-prefix-is-not-understood")
        << QStringLiteral("<xsd:schema xmlns:xsd='http://www.w3.org/2001/XMLSchema'>"
                          "<xsd:element name='Report' type='xsd:string'/></xsd:schema>");
    QTest::newRow("content-that-is-no-schema") << QStringLiteral("<html><body>Report</body></html>");
}

void TestXmlCreateReportLifecycle::writesTheDeclarationForASchemaWithoutElements()
{
    QFETCH(QString, text);
    write(QStringLiteral("schema.xsd"), text);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    QVERIFY(observer.Recorder().Lines().isEmpty());
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), Declaration + QLatin1Char('\n'));
}

void TestXmlCreateReportLifecycle::takesTheLastDefinitionForARootThatIsMissing_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("log");

    QTest::newRow("carrier-of-a-simple-type-becomes-the-root")
        << QStringLiteral("<xs:simpleType name='T'><xs:restriction base='xs:string'/></xs:simpleType>") << "dummy";
    QTest::newRow("element-of-the-last-complex-type-becomes-the-root")
        << QStringLiteral("<xs:complexType name='S'><xs:element name='s' type='xs:string'/></xs:complexType>"
                          "<xs:complexType name='A'><xs:element name='a' type='xs:string'/></xs:complexType>")
        << "a";
}

void TestXmlCreateReportLifecycle::takesTheLastDefinitionForARootThatIsMissing()
{
    QFETCH(QString, content);
    QFETCH(QString, log);
    const QString schema = write(QStringLiteral("schema.xsd"), schemaWith(content));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    QCOMPARE(logOf(observer), log);
    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), log);
    QCOMPARE(root.attribute(QStringLiteral("type")), QStringLiteral("string"));
    QCOMPARE(root.attribute(QStringLiteral("xsi:noNamespaceSchemaLocation")), schema);
}

void TestXmlCreateReportLifecycle::ignoresWhatIsWrongWithIncludedFiles_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("traces");

    QTest::newRow("missing-included-file") << "missing.xsd" << QString();
    QTest::newRow("malformed-included-file") << "malformed.xsd" << QString();
    QTest::newRow("schema-that-includes-itself") << "schema.xsd"
                                                 << "Include was skipped, it is already being read!";
}

void TestXmlCreateReportLifecycle::ignoresWhatIsWrongWithIncludedFiles()
{
    QFETCH(QString, location);
    QFETCH(QString, traces);
    write(QStringLiteral("malformed.xsd"), QStringLiteral("<xs:schema><xs:element"));
    write(QStringLiteral("schema.xsd"),
          schemaWith(QStringLiteral("<xs:include schemaLocation='%1'/><xs:element name='Report'><xs:complexType>"
                                    "<xs:element name='a' type='xs:string' maxOccurs='1'/></xs:complexType>"
                                    "</xs:element>")
                         .arg(location)));
    TraceCollector collector;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    QCOMPARE(logOf(observer), QStringLiteral("Report, a, error 16"));
    QCOMPARE(collector.Messages(), traces);
}

void TestXmlCreateReportLifecycle::saysNothingOfAReportThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<bool>("isSchemaThere");

    QTest::newRow("folder-that-does-not-exist") << "nowhere/report.xml" << true;
    QTest::newRow("folder-that-does-not-exist-behind-back-slashes") << "nowhere\\inner\\report.xml" << true;
    QTest::newRow("folder-instead-of-a-file") << "." << true;
    QTest::newRow("empty-path") << "" << true;
    QTest::newRow("result-is-still-that-of-the-schema") << "nowhere/report.xml" << false;
}

void TestXmlCreateReportLifecycle::saysNothingOfAReportThatCannotBeWritten()
{
    QFETCH(QString, report);
    QFETCH(bool, isSchemaThere);
    const QString schema = pathOf(QStringLiteral("schema.xsd"));
    if (isSchemaThere) {
        write(QStringLiteral("schema.xsd"), reportSchema(QString()));
    }
    const QStringList entries = QDir(m_pDirectory->path()).entryList();
    const QString reportPath = report.isEmpty() ? QString() : pathOf(report);

    TraceCollector collector;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QCOMPARE(builder.CreateXmlFromSchema(schema, reportPath, false), isSchemaThere);
    QVERIFY(observer.Errors().empty());
    QCOMPARE(collector.Messages(), QString());
    QCOMPARE(QDir(m_pDirectory->path()).entryList(), entries);
}

void TestXmlCreateReportLifecycle::saysNothingOfAFullDisk()
{
    const QString fullDisk = QStringLiteral("/dev/full");
    if (!QFile::exists(fullDisk)) {
        QSKIP("There is no device here that is always full.");
    }
    const QString schema = write(QStringLiteral("schema.xsd"), reportSchema(QString()));
    for (const QString& reportPath : {fullDisk, withBackSlashes(fullDisk)}) {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        QVERIFY(builder.CreateXmlFromSchema(schema, reportPath, false));
        QVERIFY(observer.Errors().empty());
        QCOMPARE(logOf(observer), QStringLiteral("Report"));
    }
}

void TestXmlCreateReportLifecycle::handsTheReportToADialog()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder, true));
    QVERIFY(!QFile::exists(pathOf(QStringLiteral("report.xml"))));

    const QList<QDialog*> dialogs = commentDialogs();
    QCOMPARE(dialogs.size(), 1);
    QVERIFY(dialogs[0]->isVisible());
    QVERIFY(!dialogs[0]->isModal());
}

void TestXmlCreateReportLifecycle::showsTheSummaryOfTheReport()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Frequency"), [&](ElemBeginEvent&) { builder.SetXmlValue(98.5); });
    QVERIFY(build(builder, true));
    QDialog* const dialog = commentDialogs().value(0);
    QVERIFY(dialog);
    QCOMPARE(labelText(dialog, "m_pFrequencyLabel"), QStringLiteral("98.5"));
    QCOMPARE(labelText(dialog, "m_pLevelLabel"), QStringLiteral("---"));
}

void TestXmlCreateReportLifecycle::dialogWritesTheReportWhereItBelongs()
{
    const QString schema = write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(schema, withBackSlashes(pathOf(QStringLiteral("report.xml"))), true));
    QDialog* const dialog = commentDialogs().value(0);
    QVERIFY(dialog);
    dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(QStringLiteral("Seen."));
    click(dialog, "m_pSaveButton");

    QVERIFY(!dialog->isVisible());
    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.attribute(QStringLiteral("xsi:noNamespaceSchemaLocation")), schema);
    QCOMPARE(root.lastChildElement().tagName(), QStringLiteral("Comment"));
    QCOMPARE(root.lastChildElement().text(), QStringLiteral("Seen."));
}

void TestXmlCreateReportLifecycle::dialogSharesTheDocument()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QDomElement frequency;
    observer.OnElement(QStringLiteral("Frequency"),
                       [&](ElemBeginEvent& event) { frequency = event.GetElementNode().toElement(); });
    QVERIFY(build(builder, true));
    QDialog* const dialog = commentDialogs().value(0);
    QVERIFY(dialog);
    frequency.setAttribute(QStringLiteral("type"), QStringLiteral("changed later"));
    click(dialog, "m_pNoCommentButton");

    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.firstChildElement(QStringLiteral("Frequency")).attribute(QStringLiteral("type")),
             QStringLiteral("changed later"));
}

void TestXmlCreateReportLifecycle::dialogIsShownForAFailedSchemaToo()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!build(builder, true));
    QDialog* const dialog = commentDialogs().value(0);
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QCOMPARE(labelText(dialog, "m_pFrequencyLabel"), QStringLiteral("---"));
    click(dialog, "m_pNoCommentButton");
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), QStringLiteral(""));
}

void TestXmlCreateReportLifecycle::deletesItsDialogs_data()
{
    QTest::addColumn<bool>("isAnswered");
    QTest::newRow("open-dialog-goes-without-writing") << false;
    QTest::newRow("answered-dialog") << true;
}

void TestXmlCreateReportLifecycle::deletesItsDialogs()
{
    QFETCH(bool, isAnswered);
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    QPointer<QDialog> dialog;
    {
        XmlCreateReport builder(&observer);
        QVERIFY(build(builder, true));
        dialog = commentDialogs().value(0);
        QVERIFY(dialog);
        dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(QStringLiteral("Seen."));
        if (isAnswered) {
            click(dialog, "m_pSaveButton");
            QVERIFY(dialog); // hidden, not gone
        }
    }
    QVERIFY(!dialog);
    QCOMPARE(QFile::exists(pathOf(QStringLiteral("report.xml"))), isAnswered);
}

void TestXmlCreateReportLifecycle::copyIsShallow()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    QDomElement remark;
    observer.OnElement(QStringLiteral("Remark"),
                       [&](ElemBeginEvent& event) { remark = event.GetElementNode().toElement(); });
    XmlCreateReport original(&observer);
    QVERIFY(build(original, true));
    const QPointer<QDialog> dialog = commentDialogs().value(0);
    {
        XmlCreateReport copy(original);
        QCOMPARE(commentDialogs().size(), 1);
        QVERIFY(!build(copy));
        original = XmlCreateReport(&observer); // It owns nothing any more, so the copy is the one to be destroyed.
        copy.RemoveAttribute(QStringLiteral("type"));
        QVERIFY(!remark.hasAttribute(QStringLiteral("type"))); // the element announced last, of the shared document
        QVERIFY(dialog);
    }
    QVERIFY(!dialog);
    QVERIFY(build(original));
}

void TestXmlCreateReportLifecycle::copyTakesTheStateByValue()
{
    // The siblings behind the choices take the place of those that are not announced behind a discarded alternative.
    const auto choice = [](const char* alternative) {
        return QStringLiteral("<xs:choice><xs:element name='%1' type='xs:string'/></xs:choice>")
            .arg(QLatin1String(alternative));
    };
    const QString between = QStringLiteral("<xs:element name='between' type='xs:string'/>");
    write(QStringLiteral("schema.xsd"),
          reportSchema(choice("first") + between + choice("second") + between + choice("last")));
    ScriptedObserver observer;
    XmlCreateReport original(&observer);
    QDomElement last;
    observer.OnElement(QStringLiteral("first"), [&](ElemBeginEvent&) { original.DiscardChoiceItem(); });
    observer.OnElement(QStringLiteral("second"), [&](ElemBeginEvent&) { original.DiscardChoiceItem(); });
    observer.OnElement(QStringLiteral("last"), [&](ElemBeginEvent& event) {
        last = event.GetElementNode().toElement();
        original.SetXmlValue(QStringLiteral("x"));
    });
    QVERIFY(build(original));
    QCOMPARE(logOf(observer), QStringLiteral("Report, first, second, last"));
    original.SetElementMaxOccurs(QStringLiteral("first"), 1);
    {
        XmlCreateReport copy(original);
        const std::size_t before = observer.Errors().size();
        copy.SetElementMaxOccurs(QStringLiteral("first"), 1); // swallowed, the name came with the copy
        QCOMPARE(observer.Errors().size(), before);
        copy.SetElementMaxOccurs(QStringLiteral("second"), 1); // refused and remembered by the copy alone
        QCOMPARE(observer.Errors().size(), before + 2);
        original.SetElementMaxOccurs(QStringLiteral("first"), 1);
        QCOMPARE(observer.Errors().size(), before + 2);
        copy.DiscardChoiceItem(); // refused: the last alternative has number 2, and two are gone
        QCOMPARE(observer.Errors().size(), before + 3);
        QVERIFY(!last.parentNode().isNull());
        original = XmlCreateReport(&observer);
    }
}

void TestXmlCreateReportLifecycle::copyMadeInsideAnErrorIsHeardInFull()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport original(&observer);
    std::unique_ptr<XmlCreateReport> copy;
    observer.OnError([&](int) {
        if (!copy) {
            copy = std::make_unique<XmlCreateReport>(original);
        }
    });
    QVERIFY(build(original));
    QVERIFY(copy);
    original = XmlCreateReport(&observer); // It owns nothing any more, so the copy is the one to be destroyed.
    const std::size_t before = observer.Errors().size();
    for (int refusal = 0; refusal < 300; ++refusal) {
        copy->DiscardChoiceItem();
    }
    QCOMPARE(int(observer.Errors().size() - before), 300);
}

void TestXmlCreateReportLifecycle::copyOfANewBuilderBuildsForItself()
{
    const QString schema = write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport original(&observer);
    XmlCreateReport copy(original);
    QVERIFY(original.CreateXmlFromSchema(schema, pathOf(QStringLiteral("one.xml")), false));
    QVERIFY(copy.CreateXmlFromSchema(schema, pathOf(QStringLiteral("two.xml")), false));
    QVERIFY(QFile::exists(pathOf(QStringLiteral("one.xml"))));
    QVERIFY(QFile::exists(pathOf(QStringLiteral("two.xml"))));
}

void TestXmlCreateReportLifecycle::assignmentIsShallow()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    ScriptedObserver otherObserver;
    XmlCreateReport original(&observer);
    QVERIFY(build(original, true));
    const QPointer<QDialog> dialog = commentDialogs().value(0);
    {
        XmlCreateReport copy(&otherObserver);
        copy = original;
        original = XmlCreateReport(&observer);
        const std::size_t before = observer.Errors().size();
        copy.DiscardChoiceItem(); // refused, to the observer that came with the assignment
        QCOMPARE(observer.Errors().size(), before + 1);
        QVERIFY(otherObserver.Errors().empty());
        QVERIFY(dialog);
    }
    QVERIFY(!dialog);
}

void TestXmlCreateReportLifecycle::selfAssignmentChangesNothing()
{
    write(QStringLiteral("schema.xsd"), measurementSchema());
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder, true));
    const XmlCreateReport& same = builder;
    builder = same;

    QVERIFY(!build(builder));
    QDialog* const dialog = commentDialogs().value(0);
    QVERIFY(dialog);
    click(dialog, "m_pNoCommentButton");
    QVERIFY(!documentInFile(pathOf(QStringLiteral("report.xml"))).isNull());
}

void TestXmlCreateReportLifecycle::behavesAsWithoutCurrentElementBeforeBuilding_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<ErrorList>("errors");
    const QString name = QStringLiteral("name");
    const auto addRow = [](const char* rule, const Operation& operation, const ErrorList& errors) {
        QTest::newRow(rule) << operation << errors;
    };
    const ErrorList noCurrentElement {IXMLHelper::NO_CURRENT_ELEMENT};

    addRow(
        "text", [](XmlCreateReport& b) { b.SetXmlValue(QStringLiteral("x")); }, noCurrentElement);
    addRow(
        "double", [](XmlCreateReport& b) { b.SetXmlValue(1.5); }, noCurrentElement);
    addRow(
        "int", [](XmlCreateReport& b) { b.SetXmlValue(1); }, noCurrentElement);
    addRow(
        "bool", [](XmlCreateReport& b) { b.SetXmlValue(true); }, noCurrentElement);
    addRow(
        "date-and-time", [](XmlCreateReport& b) { b.SetXmlValue(QDateTime()); }, noCurrentElement);
    addRow(
        "time", [](XmlCreateReport& b) { b.SetXmlValue(QTime()); }, noCurrentElement);
    addRow(
        "int-attribute", [name](XmlCreateReport& b) { b.SetAttributeValue(name, 1); }, noCurrentElement);
    addRow(
        "double-attribute", [name](XmlCreateReport& b) { b.SetAttributeValue(name, 1.5); }, noCurrentElement);
    addRow("text-attribute", [name](XmlCreateReport& b) { b.SetAttributeValue(name, QStringLiteral("x")); }, {});
    addRow("date-and-time-attribute", [name](XmlCreateReport& b) { b.SetAttributeValue(name, QDateTime()); }, {});
    addRow("removal-of-an-attribute", [name](XmlCreateReport& b) { b.RemoveAttribute(name); }, {});
    addRow("multiplication", [name](XmlCreateReport& b) { b.SetElementMaxOccurs(name, 2); }, {});
    addRow("discarding", [](XmlCreateReport& b) { b.DiscardChoiceItem(); }, {});
}

void TestXmlCreateReportLifecycle::behavesAsWithoutCurrentElementBeforeBuilding()
{
    QFETCH(Operation, operation);
    QFETCH(ErrorList, errors);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    operation(builder);
    QVERIFY(observer.Errors() == errors);

    // And the builder is as good as new.
    write(QStringLiteral("schema.xsd"), measurementSchema());
    QVERIFY(build(builder));
}

void TestXmlCreateReportLifecycle::behavesAsWithoutCurrentElementWhenNothingWasAnnounced()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(!build(builder));
    builder.SetXmlValue(QStringLiteral("x"));
    builder.SetAttributeValue(QStringLiteral("a"), 1);
    builder.SetElementMaxOccurs(QStringLiteral("a"), 2);
    builder.DiscardChoiceItem();
    QVERIFY(observer.Errors() == ErrorList({IXMLHelper::NO_CURRENT_ELEMENT, IXMLHelper::NO_CURRENT_ELEMENT}));
}

void TestXmlCreateReportLifecycle::actsOnTheElementAnnouncedLastAfterBuilding()
{
    write(
        QStringLiteral("schema.xsd"),
        reportSchema(QStringLiteral("<xs:element name='a' type='xs:string'/><xs:element name='b' type='xs:string'/>")));
    ScriptedObserver observer;
    QDomElement last;
    observer.OnEveryElement([&](ElemBeginEvent& event) { last = event.GetElementNode().toElement(); });
    XmlCreateReport builder(&observer);
    QVERIFY(build(builder));
    const QString written = textOf(pathOf(QStringLiteral("report.xml")));

    builder.SetXmlValue(QStringLiteral("late"));
    QCOMPARE(domText(last), QStringLiteral("<b>\n  \"late\"\n</b>\n"));
    QCOMPARE(textOf(pathOf(QStringLiteral("report.xml"))), written);
}

void TestXmlCreateReportLifecycle::announcesTheValueOfARootAsANode()
{
    write(QStringLiteral("schema.xsd"), schemaWith(QStringLiteral("<xs:element name='Report' type='xs:string'/>")));
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Report"), [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("x")); });
    observer.OnElement(QStringLiteral("#text"), [&](ElemBeginEvent&) {
        builder.SetXmlValue(QStringLiteral("y"));
        builder.SetElementMaxOccurs(QStringLiteral("Report"), 2);
        builder.DiscardChoiceItem();
    });
    QVERIFY(build(builder));
    // A text node is no element: it has no type, no occurrence limits, and is no alternative.
    QCOMPARE(logOf(observer), QStringLiteral("Report, #text, error 8, error 9, error 16, error 16, error -1"));
    QCOMPARE(documentInFile(pathOf(QStringLiteral("report.xml"))).documentElement().text(), QStringLiteral("x"));
}

void TestXmlCreateReportLifecycle::deliversErrorsInsideErrors()
{
    // Answers a refused text with an integer and a refused integer with a number, like a negotiation of types.
    struct Negotiator : IXMLHelper
    {
        void XmlUpdate(XmlEvent* event) override
        {
            if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
                if (static_cast<ElemBeginEvent*>(event)->GetElementName() == QLatin1String("Frequency")) {
                    builder->SetXmlValue(QStringLiteral("98.5"));
                }
            } else if (event->GetType() == XmlEvent::EVENT_ERROR && !isFilled) {
                auto* const error = static_cast<ErrorEvent*>(event);
                begun.push_back(error->GetErrorID());
                if (error->GetErrorID() == CURRENT_TYPE_IS_NOT_STRING) {
                    builder->SetXmlValue(98);
                } else {
                    builder->SetXmlValue(98.5);
                    isFilled = true;
                }
                ended.push_back(error->GetErrorID()); // The event outlives what it has caused.
            }
        }

        XmlCreateReport* builder = nullptr;
        bool isFilled = false;
        ErrorList begun;
        ErrorList ended;
    };

    write(QStringLiteral("schema.xsd"), measurementSchema());
    Negotiator observer;
    XmlCreateReport builder(&observer);
    observer.builder = &builder;
    QVERIFY(build(builder));
    QVERIFY(observer.begun
            == ErrorList({IXMLHelper::CURRENT_TYPE_IS_NOT_STRING, IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER}));
    QVERIFY(observer.ended
            == ErrorList({IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER, IXMLHelper::CURRENT_TYPE_IS_NOT_STRING}));
    const QDomDocument document = documentInFile(pathOf(QStringLiteral("report.xml")));
    QCOMPARE(document.documentElement().firstChildElement(QStringLiteral("Frequency")).text(), QStringLiteral("98.5"));
}

void TestXmlCreateReportLifecycle::tracesAMissingObserver()
{
    TraceCollector collector;
    const XmlCreateReport builder(nullptr);
    QVERIFY(collector.IsOnly(QStringLiteral("XmlCreateReport: pCallback is NULL!"),
                             QStringLiteral("tools/xmlhelper/xmlcreatereport"), 43));
}

void TestXmlCreateReportLifecycle::tracesNothingWithoutItsBitInTheMask()
{
    TraceCollector collector(~32u);
    const XmlCreateReport builder(nullptr);
    QVERIFY(collector.Traces().empty());
}

void TestXmlCreateReportLifecycle::doesNothingWithoutObserver_data()
{
    behavesAsWithoutCurrentElementBeforeBuilding_data();
}

void TestXmlCreateReportLifecycle::doesNothingWithoutObserver()
{
    QFETCH(Operation, operation);
    write(QStringLiteral("schema.xsd"), measurementSchema());
    TraceCollector collector;
    XmlCreateReport builder(nullptr);
    operation(builder);
    QVERIFY(!build(builder));
    QVERIFY(!build(builder, true));
    operation(builder);
    QVERIFY(!QFile::exists(pathOf(QStringLiteral("report.xml"))));
    QVERIFY(commentDialogs().isEmpty());
    QCOMPARE(collector.Traces().size(), std::size_t(1)); // that of the construction
}

QTEST_MAIN(TestXmlCreateReportLifecycle)
#include "tst_xmlcreatereport_lifecycle.moc"
