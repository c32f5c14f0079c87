#include <QtTest>

#include <QAbstractItemModelTester>
#include <QDesktopServices>
#include <QSysInfo>

#include <xmlhelperreports/journalstore_p.h>
#include <xmlhelperreports/reportjournal.h>

#include "desk.h"

using State = ReportSupervisor::State;

namespace {

/// How many of earlier sessions are listed.
constexpr int MaxListed = 100;

/// What the desktop is told to open, in place of the desktop.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    OpenedUrls() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~OpenedUrls() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

public Q_SLOTS:
    void Open(const QUrl& url) { urls.append(url); }

public:
    QList<QUrl> urls;

private:
    Q_DISABLE_COPY(OpenedUrls)
};

/// A desk whose program keeps a journal.
class JournalDesk : public Desk
{
public:
    JournalDesk() { Watch(); }

    /// The program ends and starts again: a new supervisor, panel and journal, on what lies on the disk.
    /// @param meanwhile  what happens while it does not run
    void StartAgain(const std::function<void()>& meanwhile = [] {})
    {
        panel.reset();
        journal.reset(); // writes what is left
        station.Restart();
        meanwhile();
        station.Supervisor().SetPauses(3600000, 3600000);
        Renew();
        Watch();
        panel->SetJournal(journal.get());
    }

    /// Makes a report that the journal has with all it holds.
    quint64 WriteChecked(const char* name, const QByteArray& content = "<report/>")
    {
        const quint64 report = Write(name, content);
        const auto isRemembered = [&] {
            const std::vector<ReportJournal::Entry> entries = journal->Search({});
            return !entries.empty() && entries.front().path == PathOf(name) && !entries.front().hash.isEmpty();
        };
        if (!QTest::qWaitFor(isRemembered)) {
            qFatal("A report is not in the journal.");
        }
        return report;
    }

    void Record(const char* name, const char* verdict) const
    {
        ReportJournal::Entry entry;
        entry.path = PathOf(name);
        entry.verdict = QString::fromLatin1(verdict);
        journal->Record(entry);
    }

    /// Puts an entry of another computer into the journal.
    void RecordOfOthers(const char* name) const
    {
        JournalStore store;
        StoredEntry entry;
        entry.id = QStringLiteral("other");
        entry.station = QSysInfo::machineHostName() + QStringLiteral("-2");
        entry.begun = QDateTime::currentDateTimeUtc();
        entry.path = PathOf(name);
        entry.verdict = QStringLiteral("Failed");
        entry.version = 1;
        const auto put = [&] { return store.Put(entry); };
        if (store.OpenFile(PathOf("journal.sqlite")) != JournalStore::Outcome::Opened || !store.Change(put)) {
            qFatal("%s", qPrintable(store.Fault()));
        }
    }

    QStringList Files() const
    {
        QStringList files;
        for (int row = 0; row < List()->model()->rowCount(); ++row) {
            files.append(IsHeading(row) ? Cell(row, 0) : Cell(row, 1));
        }
        return files;
    }
    bool IsHeading(int row) const { return !(List()->model()->index(row, 0).flags() & Qt::ItemIsEnabled); }
    bool Shows(int row, const QString& sign) const
    {
        return QTest::qWaitFor([&] {
            return List()->currentIndex().row() == row && Text("reportSign") == sign
                && Cell(row, 0).startsWith(sign + QLatin1Char(' '));
        });
    }

    std::unique_ptr<ReportJournal> journal;

private:
    void Watch()
    {
        journal = std::make_unique<ReportJournal>();
        QString message;
        if (!journal->Open(PathOf("journal.sqlite"), &message)) {
            qFatal("%s", qPrintable(message));
        }
        journal->Watch(station.Supervisor());
    }
};

QString heading()
{
    return QStringLiteral("Earlier sessions");
}

} // namespace

/// What an operator sees and does of reports that earlier sessions made.
class TestReportPanelJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEarlierSessionsBelowAHeading();
    void tellsOfEachRowWhenNoneStays();
    void listsNothingOfThisSessionTwice();
    void choosingOneDrivesAll();
    void takesTheKeyboardAcrossTheHeading();
    void dressesThePageWithoutANumber();
    void tellsWhatBecameOfIt_data();
    void tellsWhatBecameOfIt();
    void seesThatAFileIsGone();
    void seesThatAFileHasChanged();
    void choosesNoneByItself();
    void disturbsNobodyWhoReadsOne();
    void dropsOneThatIsReplaced();
    void listsOneThatIsKeptOnce();
    void takesInWhatTheJournalFinds();
    void listsTheLatestOfMany();
    void readsTheJournalForNoPress();
    void listsThoseOfThisComputer();
    void outlivesItsJournal();
    void takesTheJournalBack();
};

void TestReportPanelJournal::listsEarlierSessionsBelowAHeading()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.WriteChecked("b.xml");
    desk.StartAgain();
    QCOMPARE(desk.Files(), QStringList({heading(), QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
    QVERIFY(desk.IsHeading(0));
    QCOMPARE(desk.List()->columnSpan(0, 0), 3);

    QVERIFY(desk.Becomes(desk.Write("c.xml"), signOf(State::Written)));
    QCOMPARE(desk.Files(),
             QStringList({QStringLiteral("c.xml"), heading(), QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
    QCOMPARE(desk.List()->columnSpan(0, 0), 1);
    QCOMPARE(desk.List()->columnSpan(1, 0), 3);
}

/// The heading goes with the last row and comes with the first.
void TestReportPanelJournal::tellsOfEachRowWhenNoneStays()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    QCOMPARE(desk.Files(), (QStringList {heading(), QStringLiteral("a.xml")}));
    const QAbstractItemModel* const model = desk.List()->model();
    const QAbstractItemModelTester tester(desk.List()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(QDir().mkpath(desk.PathOf("found")));
    for (int i = 0; i < MaxListed; ++i) {
        writeFile(desk.PathOf("found/b%1.xml").arg(i), "<report/>");
    }
    desk.journal->TakeIn(desk.PathOf("found"));
    QTRY_COMPARE(model->rowCount(), 1 + MaxListed);
    QVERIFY(!desk.Files().contains(QStringLiteral("a.xml")));
}

void TestReportPanelJournal::listsNothingOfThisSessionTwice()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    const quint64 report = desk.station.Begin(desk.PathOf("b.xml"));
    QTRY_COMPARE(int(desk.journal->Search({}).size()), 2);
    desk.panel->SetJournal(desk.journal.get());
    QCOMPARE(desk.Files(), QStringList({QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
    desk.station.Write(report, desk.PathOf("b.xml"));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QCOMPARE(desk.Files(), QStringList({QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
}

void TestReportPanelJournal::choosingOneDrivesAll()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml", "<report><level>17</level></report>");
    const QString id = desk.journal->Search({}).front().id;
    desk.StartAgain();
    const quint64 kept = desk.Lose("kept.xml");
    QVERIFY(desk.Becomes(kept, signOf(State::Pending)));
    QCOMPARE(desk.panel->GetShownEntry(), QString());

    desk.Click(2);
    QVERIFY(desk.Shows(2, signOf(State::Written)));
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("Report a.xml is written."));
    QCOMPARE(desk.Text("reportPath"), QDir::toNativeSeparators(desk.PathOf("a.xml")));
    QCOMPARE(desk.Xml(), QStringLiteral("<report><level>17</level></report>"));
    QVERIFY(desk.Page().contains(QLatin1String("level")));
    QCOMPARE(desk.panel->GetShownReport(), quint64(0));
    QCOMPARE(desk.panel->GetShownEntry(), id);
    QVERIFY(desk.IsOffered("reportOpen") && desk.IsOffered("reportExport") && !desk.IsOffered("reportTryAgain"));

    const OpenedUrls desktop;
    desk.Press("reportOpen");
    QCOMPARE(desktop.urls, QList<QUrl> {QUrl::fromLocalFile(desk.PathOf("a.xml"))});
    QVERIFY(isFileChosen(desk, "reportExport", desk.PathOf("page.html")));
    QVERIFY(bytesOf(desk.PathOf("page.html")).contains("17"));
}

void TestReportPanelJournal::takesTheKeyboardAcrossTheHeading()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    QVERIFY(desk.Becomes(desk.Write("b.xml"), signOf(State::Written)));
    QTest::keyClick(desk.List(), Qt::Key_Down);
    QVERIFY(desk.Shows(2, signOf(State::Written)));
    QTest::keyClick(desk.List(), Qt::Key_Up);
    QVERIFY(desk.Shows(0, signOf(State::Written)));
    desk.Click(1); // the heading cannot be chosen
    QCOMPARE(desk.List()->currentIndex().row(), 0);
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("Report b.xml is written."));
}

void TestReportPanelJournal::dressesThePageWithoutANumber()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    quint64 dressed = 1;
    desk.panel->SetPageDresser([&dressed](quint64 report, ReportPage& page) {
        dressed = report;
        page.SetTitle(QStringLiteral("Tower on the hill"));
    });
    desk.Click(1);
    QTRY_VERIFY(desk.Page().contains(QLatin1String("Tower on the hill")));
    QCOMPARE(dressed, quint64(0));
}

void TestReportPanelJournal::tellsWhatBecameOfIt_data()
{
    QTest::addColumn<QByteArray>("verdict");
    QTest::addColumn<QString>("sign");
    const auto row
        = [](const char* verdict, State state) { QTest::newRow(verdict) << QByteArray(verdict) << signOf(state); };
    row("Found", State::Written);
    row("Invalid", State::Invalid);
    row("Failed", State::Failed);
    row("Closed", State::Closed);
    row("Discarded", State::Discarded);
    // Nobody waits for a comment, or tries again, when the process has ended.
    row("Making", State::Unknown);
    row("Waiting", State::Unknown);
    row("Pending", State::Unknown);
    row("Nonsense", State::Unknown);
}

void TestReportPanelJournal::tellsWhatBecameOfIt()
{
    QFETCH(const QByteArray, verdict);
    QFETCH(const QString, sign);
    JournalDesk desk;
    writeFile(desk.PathOf("a.xml"), "<report/>");
    desk.Record("a.xml", verdict.constData());
    desk.panel->SetJournal(desk.journal.get());
    desk.Click(1);
    QVERIFY(desk.Shows(1, sign));
    for (const char* const button : {"reportComment", "reportTryAgain", "reportSaveElsewhere", "reportDiscard"}) {
        QVERIFY2(!desk.IsOffered(button), button);
    }
    QVERIFY(!desk.Find<QLabel>("reportsKept")->isVisible());
}

void TestReportPanelJournal::seesThatAFileIsGone()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.WriteChecked("b.xml");
    desk.StartAgain([&desk] { QVERIFY(QFile::remove(desk.PathOf("a.xml"))); });
    QTRY_VERIFY(desk.Cell(2, 0).startsWith(signOf(State::Gone))); // without being chosen
    desk.Click(2);
    QVERIFY(desk.Shows(2, signOf(State::Gone)));
    QCOMPARE(desk.Xml(), QString());
    QVERIFY(!desk.IsOffered("reportOpen"));

    writeFile(desk.PathOf("a.xml"), "<report/>");
    QVERIFY(desk.Shows(2, signOf(State::Written)));
    QCOMPARE(desk.Xml(), QStringLiteral("<report/>"));
}

void TestReportPanelJournal::seesThatAFileHasChanged()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain([&desk] { writeFile(desk.PathOf("a.xml"), "<report>1"); }); // of the same size
    desk.Click(1);
    QVERIFY(desk.Shows(1, signOf(State::Gone)));
    QTRY_VERIFY(desk.Text("reportAdvice").contains(QLatin1String("Reason: the file has changed.")));
}

void TestReportPanelJournal::choosesNoneByItself()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    QVERIFY(!desk.List()->currentIndex().isValid());
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("No report has been made yet."));
    QCOMPARE(desk.panel->GetShownEntry(), QString());
}

void TestReportPanelJournal::disturbsNobodyWhoReadsOne()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml", "<first/>");
    desk.StartAgain();
    desk.Click(1);
    QVERIFY(desk.Shows(1, signOf(State::Written)));
    const quint64 report = desk.Write("b.xml");
    QTRY_COMPARE(desk.List()->model()->rowCount(), 3);
    QVERIFY(desk.Shows(2, signOf(State::Written)));
    QCOMPARE(desk.Xml(), QStringLiteral("<first/>"));
    desk.panel->ShowReport(report);
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
}

void TestReportPanelJournal::dropsOneThatIsReplaced()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.WriteChecked("b.xml");
    desk.StartAgain();
    const quint64 report = desk.station.Begin(desk.PathOf("a.xml"));
    QVERIFY(desk.Becomes(report, signOf(State::Making)));
    QCOMPARE(desk.Files().size(), 4); // it has replaced nothing yet
    desk.station.Write(report, desk.PathOf("a.xml"));
    QVERIFY(desk.Becomes(report, signOf(State::Written)));
    QTRY_COMPARE(desk.Files(), QStringList({QStringLiteral("a.xml"), heading(), QStringLiteral("b.xml")}));
    desk.Write("b.xml");
    QTRY_COMPARE(desk.Files(), QStringList({QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
}

void TestReportPanelJournal::listsOneThatIsKeptOnce()
{
    JournalDesk desk;
    desk.Lose("a.xml");
    QTRY_COMPARE(int(desk.journal->Search({}).size()), 1);
    desk.StartAgain();
    QCOMPARE(desk.Files(), QStringList({heading(), QStringLiteral("a.xml")}));
    QCOMPARE(desk.station.Supervisor().TakeOverEarlier(), QStringList());
    QVERIFY(desk.Becomes(ReportSupervisor::FirstEarlier, signOf(State::Offered)));
    QCOMPARE(desk.Files(), QStringList(QStringLiteral("a.xml")));
}

void TestReportPanelJournal::takesInWhatTheJournalFinds()
{
    JournalDesk desk;
    desk.panel->SetJournal(desk.journal.get());
    QCOMPARE(desk.Files(), QStringList());
    QVERIFY(QDir().mkpath(desk.PathOf("found")));
    writeFile(desk.PathOf("found/a.xml"), "<report/>");
    desk.journal->TakeIn(desk.PathOf("found"));
    QTRY_COMPARE(desk.Files(), QStringList({heading(), QStringLiteral("a.xml")}));

    // What is known of the others by then stays.
    desk.Click(1);
    QVERIFY(desk.Shows(1, signOf(State::Written)));
    QVERIFY(QFile::remove(desk.PathOf("found/a.xml")));
    QVERIFY(desk.Shows(1, signOf(State::Gone)));
    QVERIFY(QDir().mkpath(desk.PathOf("too")));
    writeFile(desk.PathOf("too/b.xml"), "<report/>");
    desk.journal->TakeIn(desk.PathOf("too"));
    QTRY_COMPARE(desk.Files(), QStringList({heading(), QStringLiteral("b.xml"), QStringLiteral("a.xml")}));
    QVERIFY(desk.Cell(2, 0).startsWith(signOf(State::Gone)));
}

void TestReportPanelJournal::listsTheLatestOfMany()
{
    JournalDesk desk;
    for (int i = 0; i < MaxListed + 5; ++i) {
        desk.Record(qPrintable(QStringLiteral("%1.xml").arg(i)), "Failed");
    }
    desk.panel->SetJournal(desk.journal.get());
    QCOMPARE(desk.List()->model()->rowCount(), 1 + MaxListed);
    QCOMPARE(desk.Cell(1, 1), QStringLiteral("%1.xml").arg(MaxListed + 4));
    QCOMPARE(desk.Cell(MaxListed, 1), QStringLiteral("5.xml"));
}

/// A list that followed the journal would lose its last row to what the journal gets.
void TestReportPanelJournal::readsTheJournalForNoPress()
{
    JournalDesk desk;
    desk.Record("a.xml", "Failed");
    desk.panel->SetJournal(desk.journal.get());
    desk.Record("b.xml", "Failed");
    QVERIFY(desk.Becomes(desk.WriteChecked("c.xml"), signOf(State::Written)));
    QCOMPARE(desk.Files(), QStringList({QStringLiteral("c.xml"), heading(), QStringLiteral("a.xml")}));
}

void TestReportPanelJournal::listsThoseOfThisComputer()
{
    JournalDesk desk;
    desk.Record("a.xml", "Failed");
    desk.RecordOfOthers("b.xml");
    QCOMPARE(int(desk.journal->Search({}).size()), 2);
    desk.panel->SetJournal(desk.journal.get());
    QCOMPARE(desk.Files(), QStringList({heading(), QStringLiteral("a.xml")}));
}

void TestReportPanelJournal::outlivesItsJournal()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    desk.Click(1);
    QVERIFY(desk.Shows(1, signOf(State::Written)));
    desk.journal.reset();
    QTRY_COMPARE(desk.Files(), QStringList());
    QCOMPARE(desk.Text("reportSentence"), QStringLiteral("No report has been made yet."));
    QCOMPARE(desk.Page(), QString());
    QCOMPARE(desk.panel->GetShownEntry(), QString());
    QVERIFY(desk.Becomes(desk.Write("b.xml"), signOf(State::Written)));
}

void TestReportPanelJournal::takesTheJournalBack()
{
    JournalDesk desk;
    desk.WriteChecked("a.xml");
    desk.StartAgain();
    QCOMPARE(desk.Files().size(), 2);
    desk.panel->SetJournal(nullptr);
    QCOMPARE(desk.Files(), QStringList());
    desk.panel->SetJournal(desk.journal.get());
    QCOMPARE(desk.Files().size(), 2);
    desk.panel.reset(); // goes before the journal
    desk.Write("b.xml");
    QTRY_COMPARE(int(desk.journal->Search({}).size()), 2);
}

QTEST_MAIN(TestReportPanelJournal)

#include "tst_reportpanel_journal.moc"
