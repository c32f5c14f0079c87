#include <QtTest>

#include <QDir>
#include <QTemporaryDir>

#include <arbase/vorndatetime.h>

#include "panelscene.h"
#include "reportfile.h"
#include "storageprobe.h"

Q_DECLARE_METATYPE(FileVerdict::Kind)
Q_DECLARE_METATYPE(StorageFault)

/// What stands at the place of a report, and why nothing does.
class TestReportFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesAFile_data();
    void judgesAFile();
    void aMissingFileIsMissing();
    void saysWhereAFileBreaksOff();
    void findsTheReportOfAPress();
    void findsNothingOutsideOfThePress();

    void probesADirectory_data();
    void probesADirectory();
    void aProbeLeavesNothingBehind();
    void aFullDiskIsFound();
};

void TestReportFile::judgesAFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<FileVerdict::Kind>("kind");

    QTest::newRow("sound") << QByteArray("<a><b/></a>") << FileVerdict::Kind::Sound;
    QTest::newRow("prefix-that-is-not-declared") << QByteArray("<x:a/>") << FileVerdict::Kind::Sound;
    QTest::newRow("empty") << QByteArray() << FileVerdict::Kind::Empty;
    QTest::newRow("broken-off") << QByteArray("<a><b/>") << FileVerdict::Kind::Malformed;
    QTest::newRow("declaration-alone") << QByteArray("<?xml version='1.0'?>\n") << FileVerdict::Kind::Malformed;
    QTest::newRow("several-roots") << QByteArray("<a><c/></a>\n<b/>\n") << FileVerdict::Kind::SeveralRoots;
    QTest::newRow("broken-off-in-the-second-root") << QByteArray("<a/>\n<b") << FileVerdict::Kind::SeveralRoots;
    QTest::newRow("no-xml") << QByteArray("report") << FileVerdict::Kind::Malformed;
}

void TestReportFile::judgesAFile()
{
    QFETCH(QByteArray, content);
    QFETCH(FileVerdict::Kind, kind);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.xml"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QCOMPARE(judgeFile(path).kind, kind);
}

void TestReportFile::aMissingFileIsMissing()
{
    const QTemporaryDir folder;
    QCOMPARE(judgeFile(folder.filePath(QStringLiteral("a.xml"))).kind, FileVerdict::Kind::Missing);
    QCOMPARE(judgeFile(QString()).kind, FileVerdict::Kind::Missing);
    QCOMPARE(judgeFile(folder.path()).kind, FileVerdict::Kind::Missing);
}

void TestReportFile::saysWhereAFileBreaksOff()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.xml"));
    QVERIFY(writeFile(path, "<a>\n<b>\n</a>"));
    QCOMPARE(judgeFile(path).line, qint64(3));
    QVERIFY(judgeFile(path).column > 0);
}

void TestReportFile::findsTheReportOfAPress()
{
    const QTemporaryDir folder;
    const qint64 time = QDateTime(QDate(2026, 3, 1), QTime(12, 0, 0, 7)).toMSecsSinceEpoch();
    // The name that the library documents: milliseconds without leading zeros.
    const QString path = folder.filePath(QStringLiteral("2026-03-01_12-00-00-7.xml"));
    QVERIFY(writeFile(path, "<a/>"));
    QCOMPARE(reportMadeBetween(time, time, folder.path()), path);
    QCOMPARE(reportMadeBetween(time - 5, time + 5, folder.path()), path);
}

void TestReportFile::findsNothingOutsideOfThePress()
{
    const QTemporaryDir folder;
    const qint64 time = QDateTime(QDate(2026, 3, 1), QTime(12, 0, 0, 7)).toMSecsSinceEpoch();
    QVERIFY(writeFile(folder.filePath(QStringLiteral("2026-03-01_12-00-00-7.xml")), "<a/>"));
    QCOMPARE(reportMadeBetween(time + 1, time + 5, folder.path()), QString());
    QCOMPARE(reportMadeBetween(time - 5, time - 1, folder.path()), QString());
    QCOMPARE(reportMadeBetween(time, time - 1, folder.path()), QString());
    QCOMPARE(reportMadeBetween(time, time, folder.filePath(QStringLiteral("gone"))), QString());
}

void TestReportFile::probesADirectory_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<StorageFault>("fault");

    QTest::newRow("good") << "." << StorageFault::None;
    QTest::newRow("gone") << "gone" << StorageFault::Gone;
    QTest::newRow("file") << "file" << StorageFault::NotADirectory;
#ifdef Q_OS_LINUX
    // Where not even the superuser can make a file.
    QTest::newRow("not-writable") << "/proc/self" << StorageFault::NotWritable;
#endif
}

void TestReportFile::probesADirectory()
{
    QFETCH(QString, name);
    QFETCH(StorageFault, fault);
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath(QStringLiteral("file")), "x"));
    QCOMPARE(probeStorage(QDir(folder.path()).absoluteFilePath(name)), fault);
}

void TestReportFile::aProbeLeavesNothingBehind()
{
    const QTemporaryDir folder;
    QCOMPARE(probeStorage(folder.path()), StorageFault::None);
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void TestReportFile::aFullDiskIsFound()
{
    if (!FullDisk::IsPossible()) {
        QSKIP("A full disk can only be feigned on Unix.");
    }
    const QTemporaryDir folder;
    {
        const FullDisk disk;
        QCOMPARE(probeStorage(folder.path()), StorageFault::Full);
    }
    QCOMPARE(probeStorage(folder.path()), StorageFault::None);
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

QTEST_GUILESS_MAIN(TestReportFile)

#include "tst_reportfile.moc"
