#include <QtTest>

#include <memory>

#include <QDir>
#include <QTemporaryDir>

#include <xmlhelper/contentfile_p.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestContentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void opensRegularFiles_data();
    void opensRegularFiles();
    void opensNothingElse_data();
    void opensNothingElse();
    void decidesAnewWithEachOpening();

private:
    QString pathOf(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

void TestContentFile::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_pFolder->path()).mkpath(QStringLiteral("folder/inner")));
    QFile file(pathOf(QStringLiteral("folder/content.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("<r/>"), qint64(4));
    file.close();
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(file.fileName(), pathOf(QStringLiteral("link-to-a-file"))));
    QVERIFY(QFile::link(pathOf(QStringLiteral("folder")), pathOf(QStringLiteral("link-to-a-folder"))));
    QVERIFY(QFile::link(pathOf(QStringLiteral("nowhere")), pathOf(QStringLiteral("link-to-nothing"))));
    QCOMPARE(mkfifo(QFile::encodeName(pathOf(QStringLiteral("pipe"))).constData(), 0600), 0);
    QVERIFY(QFile::link(pathOf(QStringLiteral("pipe")), pathOf(QStringLiteral("link-to-a-pipe"))));
#endif
}

QString TestContentFile::pathOf(const QString& name) const
{
    return QDir(m_pFolder->path()).filePath(name); // An absolute name stays.
}

void TestContentFile::opensRegularFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("regular-file") << QStringLiteral("folder/content.xml");
    QTest::newRow("regular-file-by-back-slashes") << QStringLiteral("folder\\content.xml");
#ifdef Q_OS_UNIX
    QTest::newRow("link-to-a-regular-file") << QStringLiteral("link-to-a-file");
#endif
}

void TestContentFile::opensRegularFiles()
{
    QFETCH(QString, name);
    ContentFile file(pathOf(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("<r/>"));
}

void TestContentFile::opensNothingElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no-file") << QStringLiteral("missing.xml");
    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("folder-with-a-slash") << QStringLiteral("folder/");
#ifdef Q_OS_UNIX
    QTest::newRow("link-to-a-folder") << QStringLiteral("link-to-a-folder");
    QTest::newRow("link-to-nothing") << QStringLiteral("link-to-nothing");
    QTest::newRow("pipe-without-writer") << QStringLiteral("pipe");
    QTest::newRow("link-to-a-pipe-without-writer") << QStringLiteral("link-to-a-pipe");
    QTest::newRow("device-that-is-empty") << QStringLiteral("/dev/null");
    QTest::newRow("device-without-end") << QStringLiteral("/dev/zero");
    QTest::newRow("terminal") << QStringLiteral("/dev/tty");
#endif
}

void TestContentFile::opensNothingElse()
{
    QFETCH(QString, name);
    ContentFile file(pathOf(name));
    QVERIFY(!file.open(QIODevice::ReadOnly));
    QVERIFY(!file.isOpen());
    // Nor through those who know it as a device only.
    QVERIFY(!static_cast<QIODevice&>(file).open(QIODevice::ReadOnly));
}

void TestContentFile::decidesAnewWithEachOpening()
{
    const QString name = pathOf(QStringLiteral("folder/content.xml"));
    ContentFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    file.close();
    QVERIFY(QFile::remove(name));
    QVERIFY(QDir(m_pFolder->path()).mkdir(QStringLiteral("folder/content.xml")));
    QVERIFY(!file.open(QIODevice::ReadOnly));
}

QTEST_GUILESS_MAIN(TestContentFile)
#include "tst_internals_contentfile.moc"
