#include <QtTest>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>

#include <xmlhelperreportwidgets/filelook_p.h>

#include "station.h"

/// When the files of written reports are looked at.
class TestFileLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void looksOnceMoreAfterTheLastChange();
    void comesToItsEndInAFolderThatChangesAllTheTime();

private:
    std::vector<ReportSupervisor::Verdict> written(int count) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFileLook::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

/// Reports 1 to @p count, each with a file of its number.
std::vector<ReportSupervisor::Verdict> TestFileLook::written(int count) const
{
    std::vector<ReportSupervisor::Verdict> verdicts;
    for (int i = 1; i <= count; ++i) {
        ReportSupervisor::Verdict verdict;
        verdict.report = quint64(i);
        verdict.fileName = m_folder->filePath(QString::number(i));
        verdict.state = ReportSupervisor::State::Written;
        verdict.size = 1;
        writeFile(verdict.fileName, "x");
        verdicts.push_back(verdict);
    }
    return verdicts;
}

/// No system tells of a folder when one of its files grows, which stands here for what a system misses.
void TestFileLook::looksOnceMoreAfterTheLastChange()
{
    const std::vector<ReportSupervisor::Verdict> verdicts = written(2);
    FileLook look;
    QList<quint64> doubted;
    connect(&look, &FileLook::Doubted, this, [&](quint64 report) {
        doubted.append(report);
        if (doubted == QList<quint64> {2}) {
            writeFile(verdicts[0].fileName, "xx"); // behind the look at it
        }
    });
    look.Follow(verdicts, 0);
    QVERIFY(QFile::remove(verdicts[1].fileName));
    QTRY_VERIFY(doubted.contains(1));
    QCOMPARE(doubted.first(), quint64(2));
}

void TestFileLook::comesToItsEndInAFolderThatChangesAllTheTime()
{
    const std::vector<ReportSupervisor::Verdict> verdicts = written(200);
    FileLook look;
    QSignalSpy doubted(&look, &FileLook::Doubted);
    look.Follow(verdicts, 0);
    QVERIFY(QFile::remove(verdicts.back().fileName));
    const QDeadlineTimer deadline(5000);
    while (doubted.isEmpty() && !deadline.hasExpired()) {
        look.Look(); // between any two portions
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QVERIFY(!doubted.isEmpty());
    QCOMPARE(doubted[0][0].value<quint64>(), quint64(200));
}

QTEST_GUILESS_MAIN(TestFileLook)
#include "tst_reportpanel_filelook.moc"
