#include <QtTest>

#include <functional>
#include <memory>

#include <QDir>
#include <QHostAddress>
#include <QTcpServer>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlreader.h>

#include "eventrecorder.h"
#include "openwatch.h"

/// What content and schemas name elsewhere is never fetched: neither files, nor pipes, nor addresses in the web. Only
/// an xs:include is followed, to files.
class TestRobustnessExternals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void contentFetchesNothing_data();
    void contentFetchesNothing();
    void schemasFetchNothing_data();
    void schemasFetchNothing();
    void includesFetchNothingButFiles();
    void theWatchSees();

private:
    QString pathOf(const QString& name) const { return QDir(m_pFolder->path()).filePath(name); }
    QStringList addresses() const;
    QString write(const QString& name, const QString& text) const;
    void fetchesNothing(const std::function<void(const QString& address)>& work);

    std::unique_ptr<QTemporaryDir> m_pFolder;
    std::unique_ptr<QTcpServer> m_pServer;
};

void TestRobustnessExternals::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    m_pServer = std::make_unique<QTcpServer>();
    QVERIFY(m_pServer->listen(QHostAddress::LocalHost));
    QVERIFY(!write(QStringLiteral("secret.txt"), QStringLiteral("<secret/>")).isEmpty());
    QCOMPARE(mkfifo(QFile::encodeName(pathOf(QStringLiteral("pipe"))).constData(), 0600), 0);
}

QString TestRobustnessExternals::write(const QString& name, const QString& text) const
{
    QFile file(pathOf(name));
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

/// Every way to name what must not be fetched.
QStringList TestRobustnessExternals::addresses() const
{
    const QString secret = pathOf(QStringLiteral("secret.txt"));
    return {secret,
            QStringLiteral("secret.txt"),
            QStringLiteral("file://") + secret,
            pathOf(QStringLiteral("pipe")),
            QStringLiteral("pipe"),
            QStringLiteral("http://127.0.0.1:%1/secret.txt").arg(m_pServer->serverPort()),
            QStringLiteral("//127.0.0.1:%1/secret.txt").arg(m_pServer->serverPort())};
}

/// Does @p work for every address. To open the pipe would never end.
void TestRobustnessExternals::fetchesNothing(const std::function<void(const QString& address)>& work)
{
    OpenWatch watch(pathOf(QStringLiteral("secret.txt")));
    QVERIFY(watch.IsWatching());
    const QStringList all = addresses();
    for (const QString& address : all) {
        work(address);
        QVERIFY2(!watch.HasBeenOpened(), qPrintable(address));
        QVERIFY2(!m_pServer->waitForNewConnection(0), qPrintable(address));
    }
}

void TestRobustnessExternals::contentFetchesNothing_data()
{
    QTest::addColumn<QString>("xml"); // %1 stands for an address
    QTest::newRow("entity-in-a-text") << QStringLiteral("<!DOCTYPE r [<!ENTITY e SYSTEM '%1'>]><r>&e;</r>");
    QTest::newRow("entity-in-an-attribute") << QStringLiteral("<!DOCTYPE r [<!ENTITY e SYSTEM '%1'>]><r k='&e;'/>");
    QTest::newRow("entity-with-a-public-name")
        << QStringLiteral("<!DOCTYPE r [<!ENTITY e PUBLIC 'p' '%1'>]><r>&e;</r>");
    QTest::newRow("parameter-entity") << QStringLiteral("<!DOCTYPE r [<!ENTITY % p SYSTEM '%1'>%p;]><r/>");
    QTest::newRow("parameter-entity-in-a-value")
        << QStringLiteral("<!DOCTYPE r [<!ENTITY % p SYSTEM '%1'><!ENTITY e '%p;'>]><r>&e;</r>");
    QTest::newRow("document-type") << QStringLiteral("<!DOCTYPE r SYSTEM '%1'><r/>");
    QTest::newRow("document-type-with-a-public-name") << QStringLiteral("<!DOCTYPE r PUBLIC 'p' '%1'><r/>");
    QTest::newRow("style-sheet") << QStringLiteral("<?xml-stylesheet href='%1'?><r/>");
    QTest::newRow("inclusion") << QStringLiteral(
        "<r xmlns:i='http://www.w3.org/2001/XInclude'><i:include href='%1' parse='text'/></r>");
    QTest::newRow("schema-location") << QStringLiteral(
        "<r xmlns:x='http://www.w3.org/2001/XMLSchema-instance' x:noNamespaceSchemaLocation='%1'/>");
}

void TestRobustnessExternals::contentFetchesNothing()
{
    QFETCH(QString, xml);
    fetchesNothing([&](const QString& address) {
        EventRecorder recorder;
        XMLReader reader(&recorder, nullptr);
        reader.SetXmlContent(write(QStringLiteral("content.xml"), QString(xml).replace(QLatin1String("%1"), address)));
        reader.ParseXml();
        for (const QDomNode& node : recorder.Nodes()) {
            QCOMPARE(node.toElement().text(), QString());
        }
    });
}

void TestRobustnessExternals::schemasFetchNothing_data()
{
    QTest::addColumn<QString>("xml"); // %1 stands for an address
    QTest::newRow("document-type") << QStringLiteral("<!DOCTYPE r SYSTEM '%1'><xs:schema/>");
    QTest::newRow("entity") << QStringLiteral("<!DOCTYPE r [<!ENTITY e SYSTEM '%1'>]><xs:schema>&e;</xs:schema>");
    QTest::newRow("parameter-entity") << QStringLiteral("<!DOCTYPE r [<!ENTITY % p SYSTEM '%1'>%p;]><xs:schema/>");
    QTest::newRow("import") << QStringLiteral("<xs:schema><xs:import schemaLocation='%1'/></xs:schema>");
    QTest::newRow("redefinition") << QStringLiteral("<xs:schema><xs:redefine schemaLocation='%1'/></xs:schema>");
    QTest::newRow("schema-location") << QStringLiteral(
        "<xs:schema xmlns:x='http://www.w3.org/2001/XMLSchema-instance' x:schemaLocation='n %1'/>");
}

void TestRobustnessExternals::schemasFetchNothing()
{
    QFETCH(QString, xml);
    fetchesNothing([&](const QString& address) {
        EventRecorder recorder;
        XmlCreateReport builder(&recorder);
        builder.CreateXmlFromSchema(
            write(QStringLiteral("schema.xsd"), QString(xml).replace(QLatin1String("%1"), address)),
            pathOf(QStringLiteral("report.xml")), false);
    });
}

void TestRobustnessExternals::includesFetchNothingButFiles()
{
    const QStringList all = addresses();
    for (const QString& address : all) {
        if (address.endsWith(QLatin1String("secret.txt")) && !address.contains(QLatin1Char(':'))) {
            continue; // A file of the folder, which an include may name.
        }
        OpenWatch watch(pathOf(QStringLiteral("secret.txt")));
        EventRecorder recorder;
        XmlCreateReport builder(&recorder);
        const QString schema
            = write(QStringLiteral("schema.xsd"),
                    QStringLiteral("<xs:schema><xs:include schemaLocation='%1'/><xs:element name='r'/></xs:schema>")
                        .arg(address));
        // What cannot be read adds nothing.
        QVERIFY2(builder.CreateXmlFromSchema(schema, pathOf(QStringLiteral("report.xml")), false), qPrintable(address));
        QVERIFY2(!watch.HasBeenOpened(), qPrintable(address));
        QVERIFY2(!m_pServer->waitForNewConnection(0), qPrintable(address));
    }
}

void TestRobustnessExternals::theWatchSees()
{
    OpenWatch watch(pathOf(QStringLiteral("secret.txt")));
    QFile file(pathOf(QStringLiteral("secret.txt")));
    QVERIFY(!watch.HasBeenOpened());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(watch.HasBeenOpened());
}

QTEST_GUILESS_MAIN(TestRobustnessExternals)
#include "tst_robustness_externals.moc"
