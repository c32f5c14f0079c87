#include <QtTest>

#include <xmlhelperreports/journalstore_p.h>
#include <xmlhelperreports/reportjournal.h>
#include <xmlhelperreports/reportjournaldata_p.h>

#include "fakeclock.h"
#include "station.h"

namespace {

/// The pages of a journal, and how those begin that hold entries, or an index of them.
constexpr int PageSize = 4096;
constexpr char TableLeaf = '\x0D';
constexpr char IndexLeaf = '\x0A';

/// Where a text is on a page of that kind; -1 when it is on none.
int placeIn(const QByteArray& content, const QByteArray& text, char pageKind)
{
    int at = int(content.indexOf(text));
    while (at >= 0 && content[at / PageSize * PageSize] != pageKind) {
        at = int(content.indexOf(text, at + 1));
    }
    return at;
}

} // namespace

/// A damaged journal is set aside and made anew.
class TestReportJournalDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsADamagedJournalAside_data();
    void setsADamagedJournalAside();
    void takesOverWhatCanBeRead_data();
    void takesOverWhatCanBeRead();
    void isMadeAnewFromTheFiles();
    void goesOnWhenItIsDamagedWhileOpen();
    void goesOnWhenItIsRemovedWhileOpen();
    void remembersWhatChangesWhileItTellsOfDamage();
    void writesAgainWhenItIsSetAsideMeanwhile();
    void leavesAnotherDatabaseAlone();
    void mendsAnIndexThatLeadsNowhere();
    void makesEntriesNewerThanThoseThatAreLost();
    void saysWhyItCannotBeSetAside();
    void readsWithoutAChange();

private:
    /// Makes a journal with entries of reports that are not there.
    static void fill(const QString& file, int count, int commentSize = 500);
    static QStringList asideOf(const Station& station);
};

void TestReportJournalDamage::fill(const QString& file, int count, int commentSize)
{
    ReportJournal journal;
    ReportJournal::Entry entry;
    bool isFilled = journal.Open(file);
    for (int i = 0; i < count; ++i) {
        entry.path = QStringLiteral("/reports/%1.xml").arg(i);
        entry.comment = QString(commentSize, QLatin1Char('x'));
        isFilled = !journal.Record(entry).isEmpty() && isFilled;
    }
    QVERIFY(isFilled);
}

QStringList TestReportJournalDamage::asideOf(const Station& station)
{
    return QDir(station.PathOf(QString())).entryList({QStringLiteral("*.damaged-*")});
}

void TestReportJournalDamage::setsADamagedJournalAside_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("until");
    QTest::newRow("all-of-it") << 0 << -1;
    QTest::newRow("cut-off-in-its-middle") << -1 << 0;
    QTest::newRow("its-beginning") << 0 << 100;
    QTest::newRow("its-first-table") << 100 << 4096;
    QTest::newRow("a-page-in-its-middle") << 8192 << 12288;
}

void TestReportJournalDamage::setsADamagedJournalAside()
{
    QFETCH(int, from);
    QFETCH(int, until);
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    fill(file, 50);
    QByteArray content = bytesOf(file);
    const int end = until < 0 ? int(content.size()) : until;
    QVERIFY(end <= int(content.size()));
    if (from < 0) {
        content.truncate(content.size() / 2);
    } else {
        content.replace(from, end - from, QByteArray(end - from, '\xA5'));
    }
    writeFile(file, content);

    ReportJournal journal;
    QString message;
    QVERIFY2(journal.Open(file, &message), qPrintable(message));
    QVERIFY2(message.contains(QStringLiteral("damaged")), qPrintable(message));
    const QStringList aside = asideOf(station);
    QCOMPARE(int(aside.size()), 1);
    QVERIFY(message.contains(aside.front()));
    QCOMPARE(bytesOf(station.PathOf(aside.front())), content);
    QVERIFY(!journal.Record({}).isEmpty());
    QVERIFY(journal.Open(file, &message));
    QCOMPARE(message, QString());
    QCOMPARE(asideOf(station), aside);
}

void TestReportJournalDamage::takesOverWhatCanBeRead_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("isPage");
    QTest::newRow("first-page") << 0 << true;
    QTest::newRow("a-page-among-many") << 100 << true;
    QTest::newRow("last-page") << 399 << true;
    QTest::newRow("row-without-an-id") << 100 << false;
}

/// All but what lies beside the damage.
void TestReportJournalDamage::takesOverWhatCanBeRead()
{
    QFETCH(int, number);
    QFETCH(bool, isPage);
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    fill(file, 400);
    QByteArray content = bytesOf(file);
    const int at = placeIn(content, "/reports/" + QByteArray::number(number) + ".xml", TableLeaf);
    QVERIFY(at > PageSize);
    if (isPage) {
        content.replace(at / PageSize * PageSize, PageSize, QByteArray(PageSize, '\xA5'));
    } else {
        // The types of the columns come first: none for the number, which is the row's, and the length of the id.
        const int type = int(content.lastIndexOf(QByteArray("\0\x55", 2), at)) + 1;
        QVERIFY(type > at / PageSize * PageSize);
        content[type] = '\0';
    }
    writeFile(file, content);

    ReportJournal journal;
    QString message;
    QVERIFY(journal.Open(file, &message));
    QVERIFY(message.contains(QStringLiteral("damaged")));
    ReportJournal::Query all;
    all.limit = -1;
    const std::vector<ReportJournal::Entry> entries = journal.Search(all);
    QSet<QString> paths;
    for (const ReportJournal::Entry& entry : entries) {
        paths.insert(entry.path);
    }
    QVERIFY(!paths.contains(QStringLiteral("/reports/%1.xml").arg(number)));
    for (int i = 0; i < 400; ++i) {
        const QString path = QStringLiteral("/reports/%1.xml").arg(i);
        QVERIFY2(qAbs(i - number) <= 5 || paths.contains(path), qPrintable(path));
    }
}

void TestReportJournalDamage::isMadeAnewFromTheFiles()
{
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    writeFile(station.PathOf(QStringLiteral("a.xml")), "<Survey><Comment>kept</Comment></Survey>");
    writeFile(file, "this is no database, and it is long enough to be looked at as one, is it not, with 100 bytes");
    ReportJournal journal;
    QVERIFY(journal.Open(file));
    QSignalSpy spy(&journal, &ReportJournal::TakenIn);
    journal.TakeIn(station.PathOf(QString()));
    QTRY_COMPARE(int(spy.size()), 1);
    QCOMPARE(spy[0][1].toInt(), 1);
    QCOMPARE(journal.Search({})[0].comment, QStringLiteral("kept"));
}

/// Large enough that not all of it is in memory.
void TestReportJournalDamage::goesOnWhenItIsDamagedWhileOpen()
{
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    fill(file, 100, 100000);
    ReportJournal journal;
    QVERIFY(journal.Open(file));
    const QSignalSpy spy(&journal, &ReportJournal::Troubled);
    QFile damaged(file);
    QVERIFY(damaged.open(QIODevice::ReadWrite)); // In its place, so that the journal sees it.
    QCOMPARE(damaged.write(QByteArray(int(damaged.size()), '\xA5')), damaged.size());
    damaged.close();

    journal.Search({});
    QCOMPARE(int(spy.size()), 1);
    QVERIFY2(spy[0][0].toString().contains(QStringLiteral("damaged")), qPrintable(spy[0][0].toString()));
    QCOMPARE(int(asideOf(station).size()), 1);
    const QString id = journal.Record({});
    QVERIFY(!id.isEmpty());
    QCOMPARE(journal.Search({})[0].id, id);
    QCOMPARE(int(spy.size()), 1);
}

/// As it is when another process has set it aside.
void TestReportJournalDamage::goesOnWhenItIsRemovedWhileOpen()
{
#ifndef Q_OS_UNIX
    QSKIP("This system does not remove files in use.");
#endif
    Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    ReportJournal journal;
    QVERIFY(journal.Open(file));
    QVERIFY(!journal.Record({}).isEmpty());
    QVERIFY(QFile::rename(file, station.PathOf(QStringLiteral("away"))));
    QFile::remove(file + QStringLiteral("-wal"));
    QFile::remove(file + QStringLiteral("-shm"));
    const QString id = journal.Record({});
    QVERIFY(!id.isEmpty());
    ReportJournal other;
    QVERIFY(other.Open(file));
    QCOMPARE(int(other.Search({}).size()), 1);
    QCOMPARE(other.Search({})[0].id, id);
}

/// Who is told may run an event loop, such as that of a message box.
void TestReportJournalDamage::remembersWhatChangesWhileItTellsOfDamage()
{
#ifndef Q_OS_UNIX
    QSKIP("This system does not rename files in use.");
#endif
    Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    const QString path = station.PathOf(QStringLiteral("a.xml"));
    ReportJournal journal;
    QVERIFY(journal.Open(file));
    journal.Watch(station.Supervisor());
    const quint64 report = station.Lose(path);
    const auto verdict = [&journal] { return journal.Search({}).at(0).verdict; };
    QTRY_COMPARE(int(journal.Search({}).size()), 1);
    QTRY_COMPARE(verdict(), QStringLiteral("Pending"));

    int told = 0;
    connect(&journal, &ReportJournal::Troubled, this, [&station, report, path, &told] {
        if (++told == 1) {
            QSignalSpy changed(&station.Supervisor(), &ReportSupervisor::Changed);
            QVERIFY(station.Supervisor().Discard(report));
            QVERIFY(!changed.isEmpty() || changed.wait());
        }
    });
    for (const QString& end : {QStringLiteral("-shm"), QStringLiteral("-wal"), QString()}) {
        QFile::rename(file + end, file + QStringLiteral(".away") + end);
    }
    writeFile(file, "this is no database, and it is long enough to be looked at as one, is it not, with 100 bytes");
    station.Fail(report, "<again/>");
    QTRY_COMPARE(told, 1);
    QTRY_COMPARE(verdict(), QStringLiteral("Discarded"));
}

/// Another process, which has found damage, need not see what is written just then.
void TestReportJournalDamage::writesAgainWhenItIsSetAsideMeanwhile()
{
#ifndef Q_OS_UNIX
    QSKIP("This system does not rename files in use.");
#endif
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    ReportJournal owner;
    ReportJournalData journal(owner);
    QString message;
    QVERIFY(journal.Open(file, message));
    StoredEntry entry;
    entry.id = QStringLiteral("of-that-moment");
    int times = 0;
    const auto put = [&journal, &entry, &times, &file] {
        const bool isPut = journal.store.Put(entry);
        if (++times == 1) {
            for (const QString& end : {QStringLiteral("-shm"), QStringLiteral("-wal"), QString()}) {
                QFile::rename(file + end, file + QStringLiteral(".aside") + end);
            }
        }
        return isPut;
    };
    QVERIFY(journal.Change(put));
    JournalStore store;
    QCOMPARE(store.OpenFile(file), JournalStore::Outcome::Opened);
    QCOMPARE(store.Find(entry.id).id, entry.id);
}

void TestReportJournalDamage::leavesAnotherDatabaseAlone()
{
    const Station station;
    const QString file = station.PathOf(QStringLiteral("other.sqlite"));
    fill(file, 1);
    QByteArray content = bytesOf(file);
    content.replace(68, 4, QByteArray(4, '\0')); // The id of the application, in the header of the file.
    writeFile(file, content);
    ReportJournal journal;
    QString message;
    QVERIFY(!journal.Open(file, &message));
    QVERIFY2(message.contains(QStringLiteral("something else")), qPrintable(message));
    QCOMPARE(asideOf(station), QStringList());
}

/// An index that is whole in itself, and wrong, comes out when it is used.
void TestReportJournalDamage::mendsAnIndexThatLeadsNowhere()
{
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    fill(file, 100);
    QString id;
    {
        ReportJournal journal;
        QVERIFY(journal.Open(file));
        id = journal.Search({})[50].id;
    }
    QByteArray content = bytesOf(file);
    const int at = placeIn(content, id.toLatin1(), IndexLeaf);
    QVERIFY(at > PageSize);
    content[at + int(id.size())] = '\x7F'; // The number of the row is behind the id.
    writeFile(file, content);

    ReportJournal journal;
    QString message;
    QVERIFY(journal.Open(file, &message));
    const QSignalSpy spy(&journal, &ReportJournal::Troubled);
    QCOMPARE(journal.Find(id).id, id);
    QCOMPARE(message, QString());
    QCOMPARE(int(spy.size()), 1);
    QVERIFY2(spy[0][0].toString().contains(QStringLiteral("100 entries")), qPrintable(spy[0][0].toString()));
    QCOMPARE(int(journal.Search({}).size()), 100);
}

/// A shared database may have the entries of a journal that is gone, and keeps the newest of each.
void TestReportJournalDamage::makesEntriesNewerThanThoseThatAreLost()
{
    FakeClock clock(QDateTime(QDate(2026, 3, 1), QTime(12, 0)));
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    writeFile(station.PathOf(QStringLiteral("a.xml")), "<Survey/>");
    qint64 lastVersion = 0;
    for (int i = 0; i < 2; ++i) {
        clock.Advance(1000);
        {
            ReportJournal journal;
            QVERIFY(journal.Open(file));
            QSignalSpy spy(&journal, &ReportJournal::TakenIn);
            journal.TakeIn(station.PathOf(QString()));
            QTRY_COMPARE(int(spy.size()), 1);
            for (const char* const label : {"good", "better"}) {
                QVERIFY(journal.SetLabel(journal.Search({})[0].id, QLatin1String(label)));
            }
        }
        JournalStore store;
        QCOMPARE(store.OpenFile(file), JournalStore::Outcome::Opened);
        const StoredEntry entry = store.FindByPath(station.PathOf(QStringLiteral("a.xml")));
        QCOMPARE(entry.label, QStringLiteral("better"));
        QVERIFY(entry.version > lastVersion);
        lastVersion = entry.version;
        store.Close();
        QVERIFY(QFile::remove(file));
    }
}

/// A name that leaves no room for that of a lock.
void TestReportJournalDamage::saysWhyItCannotBeSetAside()
{
#ifndef Q_OS_UNIX
    QSKIP("This system has other limits to names.");
#endif
    const Station station;
    const QString file = station.PathOf(QString(253, QLatin1Char('j')));
    writeFile(file, QByteArray(1000, '\xA5'));
    ReportJournal journal;
    QString message;
    QVERIFY(!journal.Open(file, &message));
    QVERIFY2(message.contains(QStringLiteral("cannot be renamed")), qPrintable(message));
    QVERIFY(!journal.Open(QString(), &message));
    QVERIFY2(message.contains(QStringLiteral("cannot be opened")), qPrintable(message));
}

void TestReportJournalDamage::readsWithoutAChange()
{
    const Station station;
    const QString file = station.PathOf(QStringLiteral("journal.sqlite"));
    fill(file, 1);
    ReportJournal journal;
    QString message;
    QVERIFY2(journal.OpenToRead(file, &message), qPrintable(message));
    QCOMPARE(int(journal.Search({}).size()), 1);
    QCOMPARE(journal.Record({}), QString());
    QVERIFY(!journal.SetLabel(journal.Search({})[0].id, QStringLiteral("good")));
    QVERIFY(!journal.Share(QUrl(QStringLiteral("postgresql://host/name"))));
    const QByteArray content(1000, '\xA5');
    writeFile(file, content);
    QVERIFY(!journal.OpenToRead(file, &message));
    QVERIFY2(message.contains(QStringLiteral("cannot be opened")), qPrintable(message));
    QCOMPARE(bytesOf(file), content);
    QCOMPARE(asideOf(station), QStringList());
}

QTEST_GUILESS_MAIN(TestReportJournalDamage)
#include "tst_reportjournal_damage.moc"
