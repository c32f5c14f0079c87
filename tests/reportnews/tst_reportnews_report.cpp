#include <QtTest>

#include <cerrno>
#include <cstring>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

#include <QDir>
#include <QDomDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

#include <xmlhelper/commentdialogimpl.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/reportnews.h>
#include <xmlhelper/vcreporting.h>
#include <xmlhelperreports/reportfiller.h>

#include "domtext.h"
#include "fakeclock.h"
#include "filesizelimit.h"
#include "newsrecorder.h"

// What clients are warned of goes on doing what it did.
QT_WARNING_DISABLE_DEPRECATED

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

/// What is told of each report of the process.
class TestReportNewsReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsOfTheSchema_data();
    void tellsOfTheSchema();
    void tellsOfFilesThatIncludeEachOtherInARow();
    void makesTheSameReportForAReceiver();
    void tellsWhyNothingWasWritten_data();
    void tellsWhyNothingWasWritten();
    void tellsOfAFullDisk();
    void tellsOfADocumentThatIsTooLong();
    void tellsOfAPipe();
    void tellsTheNameThatWasOpened();
    void tellsOfTheAnswer_data();
    void tellsOfTheAnswer();
    void tellsOfEachAnswer();
    void tellsOfAnAnswerThatComesTwice();
    void tellsNothingWithoutAnAnswer_data();
    void tellsNothingWithoutAnAnswer();
    void tellsNothingOfADialogWithoutABuilder();
    void tellsNothingOfARefusedReport();
    void tellsOfTheReportsOfAButton_data();
    void tellsOfTheReportsOfAButton();
    void tellsOfTheReportsOfAFiller_data();
    void tellsOfTheReportsOfAFiller();
    void tellsOfReportsInTwoThreads();
    void isHeardByASpy();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString schema() const { return path(QStringLiteral("schema.xsd")); }
    QString report() const { return path(QStringLiteral("report.xml")); }
    QStringList begun(const QString& name = QStringLiteral("report.xml")) const;
    QString writtenLine() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QString errorText(int error)
{
    return QString::fromLocal8Bit(strerror(error));
}

QString missingFolderText()
{
#ifdef Q_OS_WIN
    return qt_error_string(3); // ERROR_PATH_NOT_FOUND
#else
    return errorText(ENOENT);
#endif
}

void click(const QDialog* dialog, const char* button)
{
    QTest::mouseClick(dialog->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

void type(const QDialog* dialog, const QString& comment)
{
    dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(comment);
}

/// Answers the question that comes up next.
void answerQuestion(QMessageBox::StandardButton answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(question);
        QTest::mouseClick(question->button(answer), Qt::LeftButton);
    });
}

/// The text of the comment in a report; of none "(none)".
QString commentIn(const QByteArray& content)
{
    const QDomElement comment
        = documentOf(QString::fromUtf8(content)).documentElement().firstChildElement(QStringLiteral("Comment"));
    return comment.isNull() ? QStringLiteral("(none)") : comment.text();
}

} // namespace

void TestReportNewsReport::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(writeFile(schema(), schemaWith()));
}

/// What is told first of a report whose schema is understood.
QStringList TestReportNewsReport::begun(const QString& name) const
{
    return {QStringLiteral("1 begun %1 by schema.xsd").arg(name), QStringLiteral("1 schema understood")};
}

/// What is told of the report that is there.
QString TestReportNewsReport::writtenLine() const
{
    return QStringLiteral("1 written report.xml, %1 bytes").arg(bytesOf(report()).size());
}

void TestReportNewsReport::tellsOfTheSchema_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("included");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QByteArray& content, const QByteArray& included, const char* line) {
        QTest::newRow(name) << content << included << QString::fromUtf8(line);
    };
    const QByteArray start = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>";
    const QByteArray include = "<xs:include schemaLocation='included.xsd'/>";
    const QByteArray unknown = "<xs:element name='a' type='Unknown'/>";
    row("understood", schemaWith(), {}, "schema understood");
    row("missing", {}, {}, "schema not understood: schema.xsd cannot be opened.");
    row("not-well-formed", "<xs:schema>\n</xs:element>", {},
        "schema not understood: schema.xsd is not well-formed in line 2: tag mismatch.");
    row("type-never-comes", schemaWith(unknown), {},
        "schema not understood: 'Unknown', which the schema refers to, is defined nowhere.");
    row("types-wait-for-each-other",
        start
            + "<xs:complexType name='A'><xs:sequence><xs:element name='b' type='B'/></xs:sequence></xs:complexType>"
              "<xs:complexType name='B'><xs:sequence><xs:element name='a' type='A'/></xs:sequence></xs:complexType>"
              "<xs:element name='Report' type='A'/></xs:schema>",
        {}, "schema not understood: 'B' and 'A' wait for each other.");
    row("name-that-xml-does-not-allow", schemaWith("<xs:element name='1st' type='xs:double'/>"), {},
        "schema not understood: XML does not allow the name '1st'.");
    row("root-that-xml-does-not-allow", start + "<xs:element name='1st' type='xs:double'/></xs:schema>", {},
        "schema not understood: No root is left, since XML does not allow the name '1st'.");
    row("beyond-a-limit",
        start + QByteArray("<xs:complexType>").repeated(600) + QByteArray("</xs:complexType>").repeated(600)
            + "</xs:schema>",
        {}, "schema not understood: The schema is nested deeper than 512 elements.");
    row("entities-that-become-too-much",
        "<!DOCTYPE s [<!ENTITY a '" + QByteArray(2000, 'x') + "'><!ENTITY b '" + QByteArray("&a;").repeated(2000)
            + "'>]><s>&b;</s>",
        {}, "schema not understood: The entities of the content expand to more than 2000000 characters.");
    row("included-file-missing", QByteArray(schemaWith(unknown)).replace("\n", include), {},
        "schema not understood: included.xsd cannot be opened.");
    row("included-file-not-well-formed", QByteArray(schemaWith(unknown)).replace("\n", include), "<a>",
        "schema not understood: included.xsd is not well-formed in line 1: unexpected end of file.");
    row("included-file-missing-that-nobody-needs", QByteArray(schemaWith()).replace("\n", include), {},
        "schema understood");
    row("not-well-formed-behind-a-missing-file", start + include + "\n</a>", {},
        "schema not understood: schema.xsd is not well-formed in line 2: tag mismatch.");
}

void TestReportNewsReport::tellsOfTheSchema()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, included);
    QFETCH(QString, line);
    QVERIFY(content.isEmpty() ? QFile::remove(schema()) : writeFile(schema(), content));
    QVERIFY(included.isEmpty() || writeFile(path(QStringLiteral("included.xsd")), included));
    const NewsRecorder recorder(m_folder->path());
    const bool isRead = FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false);
    QCOMPARE(isRead, line == QLatin1String("schema understood"));
    QCOMPARE(
        recorder.Lines(),
        (QStringList {QStringLiteral("1 begun report.xml by schema.xsd"), QStringLiteral("1 ") + line, writtenLine()}));
}

void TestReportNewsReport::tellsOfFilesThatIncludeEachOtherInARow()
{
    Limits few;
    few.includeDepth = 1;
    const LimitsInForce inForce(few);
    QVERIFY(writeFile(
        schema(),
        schemaWith("<xs:element name='a' type='T'/>").replace("\n", "<xs:include schemaLocation='included.xsd'/>")));
    QVERIFY(
        writeFile(path(QStringLiteral("included.xsd")), "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'/>"));
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(!FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    QCOMPARE(recorder.Lines().value(1),
             QStringLiteral("1 schema not understood: included.xsd is included by too many files in a row."));
}

void TestReportNewsReport::makesTheSameReportForAReceiver()
{
    QVERIFY(writeFile(schema(),
                      schemaWith("<xs:element name='Mode'><xs:simpleType><xs:restriction base='xs:string'>"
                                 "<xs:enumeration value='AM'/><xs:enumeration value='FM'/></xs:restriction>"
                                 "</xs:simpleType></xs:element><xs:element name='a' type='Later'/>"
                                 "<xs:element name='b' type='Later' default='1'/></xs:sequence></xs:complexType>"
                                 "</xs:element><xs:complexType name='Later'><xs:sequence>"
                                 "<xs:element name='c' type='xs:integer'/></xs:sequence>"
                                 "<xs:attribute name='d' type='xs:string'/></xs:complexType>"
                                 "<xs:element name='Z'><xs:complexType><xs:sequence>")));
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    const QString alone = domText(documentInFile(report()));
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    QCOMPARE(domText(documentInFile(report())), alone);
    QCOMPARE(recorder.Lines(), begun() << writtenLine());
}

void TestReportNewsReport::tellsWhyNothingWasWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing-folder") << QStringLiteral("none/report.xml") << missingFolderText();
#ifdef Q_OS_UNIX
    QTest::newRow("name-of-a-folder") << QStringLiteral("folder") << errorText(EISDIR);
    QTest::newRow("name-that-is-too-long") << QString(300, QLatin1Char('n')) << errorText(ENAMETOOLONG);
    QTest::newRow("pipe-without-a-reader") << QStringLiteral("pipe") << QStringLiteral("Nobody reads the pipe");
#endif
}

void TestReportNewsReport::tellsWhyNothingWasWritten()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path(QStringLiteral("pipe"))).constData(), 0600), 0);
#endif
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), path(name), false));
    QCOMPARE(recorder.Lines(), begun(name) << QStringLiteral("1 not written: ") + reason);
    QCOMPARE(domText(documentOf(QString::fromUtf8(recorder.Content()))), domText(documentInFile(report())));
}

void TestReportNewsReport::tellsOfAFullDisk()
{
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    QVERIFY(writeFile(report(), "earlier"));
    const NewsRecorder recorder(m_folder->path());
    {
        const FileSizeLimit limit(16);
        QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    }
    QCOMPARE(recorder.Lines(), begun() << QStringLiteral("1 not written: ") + errorText(EFBIG));
    QCOMPARE(bytesOf(report()), QByteArray("earlier"));
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    QCOMPARE(domText(documentOf(QString::fromUtf8(recorder.Content()))), domText(documentInFile(report())));
}

void TestReportNewsReport::tellsOfADocumentThatIsTooLong()
{
    Limits limits;
    limits.savedBytes = 16;
    const LimitsInForce inForce(limits);
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    QCOMPARE(recorder.Lines(), begun() << QStringLiteral("1 not written: It would be longer than 16 bytes"));
    QCOMPARE(recorder.Content(), QByteArray());
}

void TestReportNewsReport::tellsOfAPipe()
{
#ifdef Q_OS_UNIX
    const QString pipe = path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    const auto close = qScopeGuard([reader] { ::close(reader); });
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), pipe, false));
    QByteArray bytes(4096, '\0');
    const ssize_t read = ::read(reader, bytes.data(), std::size_t(bytes.size()));
    QVERIFY(read > 0);
    QCOMPARE(recorder.Lines(),
             begun(QStringLiteral("pipe")) << QStringLiteral("1 written pipe, %1 bytes").arg(qint64(read)));
#else
    QSKIP("Pipes are no files here.");
#endif
}

/// The paths of the beginning are those that were given.
void TestReportNewsReport::tellsTheNameThatWasOpened()
{
    const QString given = report().replace(QLatin1Char('/'), QLatin1Char('\\'));
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(FilledReport().Builder().CreateXmlFromSchema(schema(), given, false));
#ifdef Q_OS_WIN
    const QString opened = given;
#else
    const QString opened = QStringLiteral("report.xml");
#endif
    QCOMPARE(recorder.Lines(),
             begun(given) << QStringLiteral("1 written %1, %2 bytes").arg(opened).arg(bytesOf(report()).size()));
}

void TestReportNewsReport::tellsOfTheAnswer_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("comment");
    const QString none = QStringLiteral("(none)");
    const QString text = QStringLiteral("Loud");
    QTest::newRow("save") << text << QStringLiteral("m_pSaveButton") << text;
    QTest::newRow("save-nothing") << QString() << QStringLiteral("m_pSaveButton") << none;
    QTest::newRow("no-comment") << text << QStringLiteral("m_pNoCommentButton") << none;
    QTest::newRow("close") << QString() << QStringLiteral("close") << none;
    QTest::newRow("close-and-yes") << text << QStringLiteral("yes") << text;
    QTest::newRow("close-and-no") << text << QStringLiteral("no") << none;
}

void TestReportNewsReport::tellsOfTheAnswer()
{
    QFETCH(QString, typed);
    QFETCH(QString, deed);
    QFETCH(QString, comment);
    const NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(), true));
    const QStringList asked = begun() << QStringLiteral("1 asked by a shown dialog");
    QCOMPARE(recorder.Lines(), asked);
    type(recorder.Dialog(), typed);
    if (deed.startsWith(QLatin1String("m_p"))) {
        click(recorder.Dialog(), qPrintable(deed));
    } else {
        if (deed != QLatin1String("close")) {
            answerQuestion(deed == QLatin1String("yes") ? QMessageBox::Yes : QMessageBox::No);
        }
        recorder.Dialog()->close();
    }
    QCOMPARE(recorder.Lines(), asked + QStringList(writtenLine()));
    QCOMPARE(commentIn(bytesOf(report())), comment);
}

/// The folder is made only when the operator has been refused.
void TestReportNewsReport::tellsOfEachAnswer()
{
    const QString name = QStringLiteral("later/report.xml");
    const NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), path(name), true));
    QStringList lines = begun(name) << QStringLiteral("1 asked by a shown dialog");
    type(recorder.Dialog(), QStringLiteral("Loud"));
    click(recorder.Dialog(), "m_pSaveButton");
    lines << QStringLiteral("1 not written: ") + missingFolderText();
    QCOMPARE(recorder.Lines(), lines);
    QCOMPARE(commentIn(recorder.Content()), QStringLiteral("Loud"));

    recorder.Dialog()->show();
    click(recorder.Dialog(), "m_pNoCommentButton");
    lines << lines.last();
    QCOMPARE(recorder.Lines(), lines);
    QCOMPARE(commentIn(recorder.Content()), QStringLiteral("(none)"));

    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("later")));
    recorder.Dialog()->show();
    click(recorder.Dialog(), "m_pSaveButton");
    lines << QStringLiteral("1 written %1, %2 bytes").arg(name).arg(bytesOf(path(name)).size());
    QCOMPARE(recorder.Lines(), lines);
    QCOMPARE(commentIn(bytesOf(path(name))), QStringLiteral("Loud"));
}

/// It is written twice as well.
void TestReportNewsReport::tellsOfAnAnswerThatComesTwice()
{
    const NewsRecorder recorder(m_folder->path());
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(), true));
    auto* const dialog = qobject_cast<CommentDialogImpl*>(recorder.Dialog());
    QVERIFY(dialog);
    dialog->SlotSaveWithoutComment();
    const QString first = writtenLine();
    type(dialog, QStringLiteral("Loud"));
    dialog->SlotSaveWithComment();
    QCOMPARE(recorder.Lines(), begun() << QStringLiteral("1 asked by a shown dialog") << first << writtenLine());

    QCoreApplication::processEvents(); // What is left of the dialog writes nothing any more.
    dialog->SlotSaveWithoutComment();
    QCOMPARE(int(recorder.Lines().size()), 5);
}

void TestReportNewsReport::tellsNothingWithoutAnAnswer_data()
{
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("closed-with-cancel") << true;
    QTest::newRow("builder-is-gone") << false;
}

void TestReportNewsReport::tellsNothingWithoutAnAnswer()
{
    QFETCH(bool, isClosed);
    const NewsRecorder recorder(m_folder->path());
    {
        FilledReport filled;
        QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(), true));
        type(recorder.Dialog(), QStringLiteral("Loud"));
        if (isClosed) {
            answerQuestion(QMessageBox::Cancel);
            recorder.Dialog()->close();
            QVERIFY(!recorder.Dialog()->isVisible());
        }
    }
    QVERIFY(!recorder.Dialog());
    QCOMPARE(recorder.Lines(), begun() << QStringLiteral("1 asked by a shown dialog"));
    QVERIFY(!QFile::exists(report()));
}

void TestReportNewsReport::tellsNothingOfADialogWithoutABuilder()
{
    const NewsRecorder recorder(m_folder->path());
    QDomDocument document = documentOf(QStringLiteral("<Report/>"));
    CommentDialogImpl dialog;
    dialog.SetDocument(&document);
    dialog.SetFileName(path(QStringLiteral("none/report.xml")));
    dialog.SlotSaveWithoutComment();
    dialog.SetFileName(report());
    dialog.SlotSaveWithoutComment();
    QVERIFY(QFile::exists(report()));
    QCOMPARE(recorder.Lines(), QStringList());
}

void TestReportNewsReport::tellsNothingOfARefusedReport()
{
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), report(), false));
    const NewsRecorder recorder(m_folder->path());
    QVERIFY(!filled.Builder().CreateXmlFromSchema(schema(), report(), false));
    QVERIFY(!XmlCreateReport(nullptr).CreateXmlFromSchema(schema(), report(), false));
    QCOMPARE(recorder.Lines(), QStringList());
}

void TestReportNewsReport::tellsOfTheReportsOfAButton_data()
{
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("slot") << false;
    QTest::newRow("click") << true;
}

void TestReportNewsReport::tellsOfTheReportsOfAButton()
{
    QFETCH(bool, isClicked);
    FakeClock clock(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56)));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("reports")));
    VCReporting button(schema(), path(QStringLiteral("reports")), nullptr, true, "ToReport", false, QPixmap());
    button.AddExplicitReportData(QStringLiteral("Frequency"), 98.5, 1, QString(), 0, QString());
    const NewsRecorder recorder(m_folder->path());
    for (int press = 0; press < 2; ++press) {
        if (isClicked) {
            button.GetReportButton()->click();
        } else {
            QVERIFY(button.SlotToReport());
        }
        clock.Advance(1000);
    }
    const QString directory = path(QStringLiteral("reports")).replace(QLatin1Char('/'), QLatin1Char('\\'));
    QStringList lines;
    const QDir reports(path(QStringLiteral("reports")));
    for (const QString& name : reports.entryList(QDir::Files, QDir::Name)) {
        const int number = int(lines.size()) / 3 + 1;
        const QString separator = QStringLiteral("\\");
#ifdef Q_OS_WIN
        const QString opened = directory + separator + name;
#else
        const QString opened = QStringLiteral("reports/") + name;
#endif
        lines << QStringLiteral("%1 begun %2 by schema.xsd").arg(number).arg(directory + separator + name)
              << QStringLiteral("%1 schema understood").arg(number)
              << QStringLiteral("%1 written %2, %3 bytes")
                     .arg(number)
                     .arg(opened)
                     .arg(bytesOf(reports.filePath(name)).size());
    }
    QCOMPARE(int(lines.size()), 6);
    QCOMPARE(recorder.Lines(), lines);
}

void TestReportNewsReport::tellsOfTheReportsOfAFiller_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("end");
    const QString understood = QStringLiteral("schema understood");
    QTest::newRow("written") << QStringLiteral("report.xml") << schemaWith() << understood
                             << QStringLiteral("written report.xml, %1 bytes");
    QTest::newRow("missing-folder") << QStringLiteral("none/report.xml") << schemaWith() << understood
                                    << QStringLiteral("not written: ") + missingFolderText();
    QTest::newRow("schema-without-an-element") << QStringLiteral("report.xml") << QByteArray("<a/>") << understood
                                               << QStringLiteral("not written: The schema lays out no element");
    QTest::newRow("schema-not-understood")
        << QStringLiteral("report.xml") << QByteArray("<a>\n</b>")
        << QStringLiteral("schema not understood: schema.xsd is not well-formed in line 2: tag mismatch.")
        << QStringLiteral("not written: The schema lays out no element");
}

/// It writes the report aside first, which is told to nobody.
void TestReportNewsReport::tellsOfTheReportsOfAFiller()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, read);
    QFETCH(QString, end);
    QVERIFY(writeFile(schema(), content));
    const NewsRecorder recorder(m_folder->path());
    ReportFiller filler;
    QVERIFY(filler.AddText("Frequency=98.5"));
    QCOMPARE(filler.Fill(schema(), path(name)), end.startsWith(QLatin1String("written")));
    if (end.contains(QLatin1String("%1"))) {
        end = end.arg(bytesOf(report()).size());
    } else {
        QVERIFY(!QFile::exists(path(name)));
        QCOMPARE(recorder.Content().contains("98.5"), content == schemaWith());
    }
    const QString number = QStringLiteral("1 ");
    QCOMPARE(recorder.Lines(),
             (QStringList {QStringLiteral("1 begun %1 by schema.xsd").arg(name), number + read, number + end}));
}

/// Each is told in the thread that makes it.
void TestReportNewsReport::tellsOfReportsInTwoThreads()
{
    constexpr int Reports = 100;
    std::mutex mutex;
    std::map<quint64, QString> toldFiles;
    std::set<quint64> writtenNumbers;
    int faults = 0;
    QObject context;
    connect(
        &ReportNews::Instance(), &ReportNews::Begun, &context,
        [&](quint64 number, const QString& file, const QString&) {
            const std::lock_guard<std::mutex> lock(mutex);
            faults += toldFiles.emplace(number, file).second ? 0 : 1;
        },
        Qt::DirectConnection);
    connect(
        &ReportNews::Instance(), &ReportNews::Written, &context,
        [&](quint64 number, const QString& file, qint64 size) {
            const qint64 bytes = bytesOf(file).size();
            const std::lock_guard<std::mutex> lock(mutex);
            faults += toldFiles[number] == file && size == bytes ? 0 : 1;
            writtenNumbers.insert(number);
        },
        Qt::DirectConnection);
    const auto make = [&](const QString& name) {
        for (int i = 0; i < Reports; ++i) {
            FilledReport().Builder().CreateXmlFromSchema(schema(), path(name.arg(i)), false);
        }
    };
    std::thread other(make, QStringLiteral("other%1.xml"));
    make(QStringLiteral("report%1.xml"));
    other.join();
    QCOMPARE(faults, 0);
    QCOMPARE(int(toldFiles.size()), 2 * Reports);
    QCOMPARE(int(writtenNumbers.size()), 2 * Reports);
}

/// It connects in another way than others, and knows the types of all parameters.
void TestReportNewsReport::isHeardByASpy()
{
    QSignalSpy schemaSpy(&ReportNews::Instance(), &ReportNews::SchemaRead);
    QSignalSpy dialogSpy(&ReportNews::Instance(), &ReportNews::CommentAsked);
    QSignalSpy fileSpy(&ReportNews::Instance(), &ReportNews::NotWritten);
    FilledReport filled;
    QVERIFY(filled.Builder().CreateXmlFromSchema(schema(), path(QStringLiteral("none/report.xml")), true));
    QCOMPARE(schemaSpy.count(), 1);
    QCOMPARE(dialogSpy.count(), 1);
    auto* const dialog = dialogSpy.first().at(1).value<QDialog*>();
    QVERIFY(dialog);
    dialog->close();
    QCOMPARE(fileSpy.count(), 1);
    QVERIFY(!fileSpy.first().at(2).toByteArray().isEmpty());

    QVERIFY(writeFile(schema(), "<a>"));
    QVERIFY(!FilledReport().Builder().CreateXmlFromSchema(schema(), report(), false));
    QVERIFY(!schemaSpy.last().at(2).toString().isEmpty());
}

QTEST_MAIN(TestReportNewsReport)
#include "tst_reportnews_report.moc"
