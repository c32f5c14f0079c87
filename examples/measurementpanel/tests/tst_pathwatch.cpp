#include <QtTest>

#include <memory>

#include <QDir>
#include <QTemporaryDir>

#include "panelscene.h"
#include "pathwatch.h"

class TestPathWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void noticesWhatComesAndGoes_data();
    void noticesWhatComesAndGoes();
    void noticesSeveralFoldersOnTheWay();
    void tellsSeveralChangesOnce();
    void forgetsThePathsOfBefore();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPathWatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestPathWatch::noticesWhatComesAndGoes_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::newRow("file") << true;
    QTest::newRow("directory") << false;
}

void TestPathWatch::noticesWhatComesAndGoes()
{
    QFETCH(bool, isFile);
    const QString path = m_folder->filePath(QStringLiteral("watched"));
    PathWatch watch;
    const QSignalSpy changed(&watch, &PathWatch::Changed);
    watch.SetPaths({path});
    for (int times = 1; times <= 2; ++times) {
        QVERIFY(isFile ? writeFile(path, "x") : QDir().mkdir(path));
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2 * times - 1, 1000);
        QVERIFY(isFile ? QFile::remove(path) : QDir().rmdir(path));
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2 * times, 1000);
    }
}

void TestPathWatch::noticesSeveralFoldersOnTheWay()
{
    const QString top = m_folder->filePath(QStringLiteral("a"));
    const QString path = top + QStringLiteral("/b/c");
    PathWatch watch;
    QSignalSpy changed(&watch, &PathWatch::Changed);
    watch.SetPaths({path});
    QVERIFY(QDir().mkdir(top));
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY(QDir().mkpath(path));
    QTRY_VERIFY(changed.count() > 1);
    changed.clear();
    QVERIFY(QDir(top).removeRecursively());
    QTRY_VERIFY(changed.count() > 0);
}

void TestPathWatch::tellsSeveralChangesOnce()
{
    PathWatch watch;
    const QSignalSpy changed(&watch, &PathWatch::Changed);
    watch.SetPaths({m_folder->path()});
    for (int i = 0; i < 20; ++i) {
        QVERIFY(writeFile(m_folder->filePath(QString::number(i)), "x"));
    }
    QTRY_VERIFY(changed.count() > 0);
    QVERIFY2(changed.count() < 5, qPrintable(QString::number(changed.count())));
}

void TestPathWatch::forgetsThePathsOfBefore()
{
    const QTemporaryDir other;
    PathWatch watch;
    const QSignalSpy changed(&watch, &PathWatch::Changed);
    watch.SetPaths({m_folder->filePath(QStringLiteral("former"))});
    watch.SetPaths({other.filePath(QStringLiteral("watched"))});
    QVERIFY(writeFile(m_folder->filePath(QStringLiteral("former")), "x"));
    QVERIFY(writeFile(other.filePath(QStringLiteral("watched")), "x"));
    QTRY_COMPARE(changed.count(), 1);
}

QTEST_GUILESS_MAIN(TestPathWatch)

#include "tst_pathwatch.moc"
