#include <algorithm>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// The program as it runs at a station whose disk can be unplugged.
class Station
{
public:
    Station() { m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel); }
    ~Station() { Kill(); }

    void Start(int reports)
    {
        m_process.start(QStringLiteral(SUPERVISED),
                        {QStringLiteral(SCHEMA), Disk(), m_folder.filePath(QStringLiteral("emergency")),
                         QString::number(reports), QStringLiteral("20")});
    }
    void Kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    bool Ends() { return m_process.waitForFinished(120000) && m_process.exitCode() == 0; }

    /// Waits until the program has said that often that a report is in that state.
    bool Says(const char* state, int times)
    {
        while (times > 0 && (m_process.canReadLine() || m_process.waitForReadyRead(60000))) {
            while (times > 0 && m_process.canReadLine()) {
                times -= m_process.readLine().startsWith(state) ? 1 : 0;
            }
        }
        return times == 0;
    }

    bool Plug() const { return QDir().rename(m_folder.filePath(QStringLiteral("unplugged")), Disk()); }
    bool Unplug() const { return QDir().rename(Disk(), m_folder.filePath(QStringLiteral("unplugged"))); }
    bool PlugNewDisk() const { return QDir().mkdir(Disk()); }

    /// The numbers in all reports on the disk.
    QList<int> Numbers() const
    {
        static const QRegularExpression number(QStringLiteral("<Number>(\\d+)</Number>"));
        QList<int> numbers;
        const QDir disk(Disk());
        for (const QString& name : disk.entryList({QStringLiteral("*.xml")})) {
            QFile file(disk.filePath(name));
            const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
            numbers.append(number.match(text).captured(1).toInt());
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

private:
    QString Disk() const { return m_folder.filePath(QStringLiteral("disk")); }

    QTemporaryDir m_folder;
    QProcess m_process;
};

} // namespace

class TestSupervisedExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNothingWhileTheDiskIsUnplugged();
    void losesNothingWhenItIsKilledMeanwhile();

private:
    static void findAllAfterAnotherRun(Station& station);
};

/// What the killed program has made and not written is written by the next run, which makes one report more. The killed
/// one may have been making one that nobody has heard of.
void TestSupervisedExample::findAllAfterAnotherRun(Station& station)
{
    station.Kill();
    station.Start(1);
    QVERIFY(station.Ends());
    QList<int> numbers = station.Numbers();
    QCOMPARE(numbers.count(1), 2);
    numbers.removeFirst();
    for (int i = 0; i < numbers.size(); ++i) {
        QCOMPARE(numbers[i], i + 1);
    }
    QVERIFY(!numbers.isEmpty());
}

void TestSupervisedExample::losesNothingWhileTheDiskIsUnplugged()
{
    Station station;
    QVERIFY(station.PlugNewDisk());
    station.Start(0);
    QVERIFY(station.Says("Written", 6)); // each twice: there, and read
    bool isUnplugged = false; // A file that is being written may be in the way.
    QTRY_VERIFY(isUnplugged || (isUnplugged = station.Unplug()));
    QVERIFY(station.Says("Pending", 3));
    QVERIFY(station.Plug());
    QVERIFY(station.Says("Written", 6));
    findAllAfterAnotherRun(station);
}

void TestSupervisedExample::losesNothingWhenItIsKilledMeanwhile()
{
    Station station;
    station.Start(0);
    QVERIFY(station.Says("Pending", 6));
    station.Kill();
    QVERIFY(station.PlugNewDisk());
    findAllAfterAnotherRun(station);
}

QTEST_GUILESS_MAIN(TestSupervisedExample)
#include "tst_supervised_example.moc"
