#include <QtTest>

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>

#include <xmlhelper/vcreporting.h>

#include "panelscene.h"
#include "presswatch.h"

namespace {

const QByteArray soundSchema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                               "<xs:element name='Report'><xs:complexType><xs:sequence>"
                               "<xs:element name='DateTime' type='xs:dateTime'/>"
                               "<xs:element name='Comment' type='xs:string' minOccurs='0'/>"
                               "</xs:sequence></xs:complexType></xs:element></xs:schema>";

const QByteArray schemaOfANumber = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                                   "<xs:element name='Report'><xs:complexType><xs:sequence>"
                                   "<xs:element name='Number' type='xs:int'/>"
                                   "</xs:sequence></xs:complexType></xs:element></xs:schema>";

} // namespace

/// A press watch over a report widget without a panel around it.
class WatchedReporting
{
public:
    explicit WatchedReporting(const QString& schema, const QString& directory)
        : m_reporting(schema, directory, nullptr, true, "toReport", false, QPixmap())
    {
        m_watch.Follow(m_reporting, schema, directory);
        QObject::connect(&m_watch, &PressWatch::Judged, &m_watch, [this](const Press& press) { m_last = press; });
    }

    /// Presses whether or not the widget has noticed that something is missing.
    const Press& PressButton(bool asksForComment = false)
    {
        m_reporting.SetShowCommentDialog(asksForComment);
        m_reporting.GetReportButton()->setEnabled(true);
        QTest::mouseClick(m_reporting.GetReportButton(), Qt::LeftButton);
        return m_last;
    }
    const Press& Last() const { return m_last; }
    PressWatch& Watch() { return m_watch; }

private:
    Q_DISABLE_COPY(WatchedReporting)

    VCReporting m_reporting;
    PressWatch m_watch;
    Press m_last;
};

Q_DECLARE_METATYPE(Press::State)

class TestPressWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSoundFileIsWritten();
    void saysWhyNothingIsWritten_data();
    void saysWhyNothingIsWritten();
    void aFullDiskIsTold();
    void aSchemaThatIsNotUnderstoodIsTold();
    void aReportOfSeveralRootsIsTold();
    void theDoctorSaysWhatIsWrongWithASchema();
    void aReportThatBreaksItsSchemaIsDoubtful();

    void anOpenDialogWaits();
    void anAnsweredDialogIsJudged();
    void aCancelledDialogIsDiscarded();
    void aDialogWithoutItsDirectoryIsNotSaved();
    void anUnsavedDialogCanBeAnsweredAgain();
    void severalDialogsAreToldApart();

private:
    QString schema() const { return m_folder->filePath(QStringLiteral("a.xsd")); }
    QString reports() const { return m_folder->filePath(QStringLiteral("reports")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPressWatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(reports()));
    QVERIFY(writeFile(schema(), soundSchema));
}

void TestPressWatch::cleanup()
{
    forgetDialogs();
    m_folder.reset();
}

void TestPressWatch::aSoundFileIsWritten()
{
    WatchedReporting reporting(schema(), reports());
    const Press& press = reporting.PressButton();
    QCOMPARE(press.state, Press::State::Written);
    QCOMPARE(press.number, 1);
    QVERIFY(QFileInfo(press.path).size() > 0);
    QCOMPARE(QFileInfo(press.path).absolutePath(), reports());
    QCOMPARE(reporting.PressButton().number, 2);
}

void TestPressWatch::saysWhyNothingIsWritten_data()
{
    QTest::addColumn<QString>("schemaName");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<Press::State>("state");

    const QString sound = QStringLiteral("a.xsd");
    QTest::newRow("directory-gone") << sound << QStringLiteral("gone") << Press::State::DirectoryGone;
    QTest::newRow("file-in-place-of-the-directory") << sound << sound << Press::State::FileInPlaceOfDirectory;
#ifdef Q_OS_LINUX
    // Where not even the superuser can make a file.
    QTest::newRow("directory-not-writable")
        << sound << QStringLiteral("/proc/self") << Press::State::DirectoryNotWritable;
#endif
    QTest::newRow("schema-without-its-ending")
        << QStringLiteral("a.xml") << QStringLiteral("reports") << Press::State::NotASchema;
    QTest::newRow("schema-gone") << QStringLiteral("gone.xsd") << QStringLiteral("reports") << Press::State::SchemaGone;
}

void TestPressWatch::saysWhyNothingIsWritten()
{
    QFETCH(QString, schemaName);
    QFETCH(QString, directory);
    QFETCH(Press::State, state);
    WatchedReporting reporting(m_folder->filePath(schemaName), QDir(m_folder->path()).absoluteFilePath(directory));
    const Press& press = reporting.PressButton();
    QCOMPARE(press.state, state);
    QVERIFY(press.IsFailed());
}

void TestPressWatch::aFullDiskIsTold()
{
    if (!FullDisk::IsPossible()) {
        QSKIP("A full disk can only be feigned on Unix.");
    }
    WatchedReporting reporting(schema(), reports());
    {
        const FullDisk disk;
        QCOMPARE(reporting.PressButton().state, Press::State::DiskFull);
    }
    QCOMPARE(QFileInfo(reporting.Last().path).size(), qint64(0));
    QCOMPARE(reporting.PressButton().state, Press::State::Written);
}

void TestPressWatch::aSchemaThatIsNotUnderstoodIsTold()
{
    QVERIFY(writeFile(schema(), "<xs:schema><xs:element name='a'>"));
    WatchedReporting reporting(schema(), reports());
    QCOMPARE(reporting.PressButton().state, Press::State::SchemaNotUnderstood);
}

void TestPressWatch::aReportOfSeveralRootsIsTold()
{
    QVERIFY(writeFile(schema(),
                      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:complexType name='T'><xs:sequence>"
                      "<xs:element name='a'/><xs:element name='b'/></xs:sequence></xs:complexType></xs:schema>"));
    WatchedReporting reporting(schema(), reports());
    const Press& press = reporting.PressButton();
    QCOMPARE(press.state, Press::State::SeveralRoots);
    QVERIFY(press.IsFailed());
    QVERIFY(!press.path.isEmpty());
}

void TestPressWatch::theDoctorSaysWhatIsWrongWithASchema()
{
#ifdef MEASUREMENTPANEL_DOCTOR_FOLDER
    const ProgramFolder folder(QStringLiteral(MEASUREMENTPANEL_DOCTOR_FOLDER));
    QVERIFY(writeFile(schema(),
                      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                      "<xs:element name='Report' type='Nowhere'/></xs:schema>"));
    WatchedReporting reporting(schema(), reports());
    const Press& press = reporting.PressButton();
    QCOMPARE(press.state, Press::State::SchemaNotUnderstood);
    QVERIFY2(press.finding.contains(QLatin1String("Nowhere")), qPrintable(press.finding));
#else
    QSKIP("Built without the schema doctor.");
#endif
}

void TestPressWatch::aReportThatBreaksItsSchemaIsDoubtful()
{
#ifndef MEASUREMENTPANEL_HAS_REPORTCHECK
    QSKIP("Built without the report checker.");
#endif
    // Nobody fills the required number, so it is written as an empty element, with what the schema says about it.
    QVERIFY(writeFile(schema(), schemaOfANumber));
    WatchedReporting reporting(schema(), reports());
    const Press& press = reporting.PressButton();
    QCOMPARE(press.state, Press::State::Doubtful);
    QVERIFY(press.IsSaved());
    QVERIFY(!press.finding.isEmpty());
}

void TestPressWatch::anOpenDialogWaits()
{
    WatchedReporting reporting(schema(), reports());
    const Press& press = reporting.PressButton(true);
    QCOMPARE(press.state, Press::State::WaitingForComment);
    QVERIFY(press.dialog);
    QVERIFY(!press.IsSaved() && !press.IsFailed());
    QCOMPARE(reporting.Watch().GetDialogs().GetOpen(), QList<QWidget*> {press.dialog});
}

void TestPressWatch::anAnsweredDialogIsJudged()
{
    WatchedReporting reporting(schema(), reports());
    QWidget* const dialog = reporting.PressButton(true).dialog;
    typeComment(*dialog, QStringLiteral("drifts"));
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QCOMPARE(reporting.Last().state, Press::State::Written);
    QVERIFY(readFile(reporting.Last().path).contains(QLatin1String("<Comment>drifts</Comment>")));
    QCOMPARE(reporting.Last().number, 1);
    QVERIFY(reporting.Watch().GetDialogs().GetOpen().isEmpty());
}

void TestPressWatch::aCancelledDialogIsDiscarded()
{
    WatchedReporting reporting(schema(), reports());
    QWidget* const dialog = reporting.PressButton(true).dialog;
    typeComment(*dialog, QStringLiteral("drifts"));
    const Answer answer(QStringLiteral("Cancel"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCOMPARE(answer.GetQuestions(), 1);
    QCOMPARE(reporting.Last().state, Press::State::Discarded);
}

void TestPressWatch::aDialogWithoutItsDirectoryIsNotSaved()
{
    WatchedReporting reporting(schema(), reports());
    QWidget* const dialog = reporting.PressButton(true).dialog;
    QVERIFY(QDir(reports()).removeRecursively());
    dialog->close();
    QCOMPARE(reporting.Last().state, Press::State::DirectoryGone);
}

void TestPressWatch::anUnsavedDialogCanBeAnsweredAgain()
{
    WatchedReporting reporting(schema(), reports());
    QWidget* const dialog = reporting.PressButton(true).dialog;
    typeComment(*dialog, QStringLiteral("drifts"));
    QVERIFY(QDir(reports()).removeRecursively());
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QCOMPARE(reporting.Last().state, Press::State::DirectoryGone);

    QVERIFY(QDir().mkpath(reports()));
    reporting.Watch().Reopen(reporting.Last());
    QVERIFY(dialog->isVisible());
    QCOMPARE(reporting.Last().state, Press::State::WaitingForComment);
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QCOMPARE(reporting.Last().state, Press::State::Written);
    QCOMPARE(readFile(reporting.Last().path).count(QLatin1String("<Comment>")), 1);
    QCOMPARE(reporting.Watch().GetLog().rowCount(), 1);
}

void TestPressWatch::severalDialogsAreToldApart()
{
    WatchedReporting reporting(schema(), reports());
    QWidget* const first = reporting.PressButton(true).dialog;
    QTest::qWait(2); // reports are named after the millisecond
    QWidget* const second = reporting.PressButton(true).dialog;
    QVERIFY(first != second);
    QCOMPARE(reporting.Watch().GetDialogs().GetOpen(), (QList<QWidget*> {first, second}));

    second->close();
    QCOMPARE(reporting.Last().number, 2);
    first->close();
    QCOMPARE(reporting.Last().number, 1);
    QVERIFY(reporting.Watch().GetLog().At(0).path != reporting.Watch().GetLog().At(1).path);
}

QTEST_MAIN(TestPressWatch)

#include "tst_presswatch.moc"
