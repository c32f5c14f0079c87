#include <QtTest>

#include <memory>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <xmlhelper/documentfile.h>

#include "domtext.h"
#include "filesizelimit.h"
#include "tracecollector.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

class TestDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void namesWithoutBackSlashesStay_data();
    void namesWithoutBackSlashesStay();
    void everyBackSlashSeparatesFolders();
    void backSlashesOfAnExistingNameStay();

    void savesWithFourBlanksOfIndentation();
    void savesTheBytesOfATextStreamOnTheFile_data();
    void savesTheBytesOfATextStreamOnTheFile();
    void savesUtf8WithoutByteOrderMark();
    void replacesWhatWasInTheFile();
    void savesByBackSlashedName();
    void leavesTheDocumentAsItIs();
    void tellsOfAFileThatCannotBeOpened_data();
    void tellsOfAFileThatCannotBeOpened();
    void tellsOfAFullDevice();
    void opensAPipeOnlyForAReader();
    void keepsNoHalfOfAFile_data();
    void keepsNoHalfOfAFile();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void write(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QString backSlashed(QString name)
{
    return name.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

} // namespace

void TestDocumentFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("inner")));
}

void TestDocumentFile::namesWithoutBackSlashesStay_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty-name") << QString();
    QTest::newRow("name-of-no-file") << QStringLiteral("no/such/file.xml");
    QTest::newRow("name-with-blanks") << QStringLiteral("no such file.xml");
}

void TestDocumentFile::namesWithoutBackSlashesStay()
{
    QFETCH(QString, name);
    QCOMPARE(openableFileName(name), name);
}

void TestDocumentFile::everyBackSlashSeparatesFolders()
{
    const QString name = path("inner/new.xml");
#ifdef Q_OS_WIN
    QCOMPARE(openableFileName(backSlashed(name)), backSlashed(name));
#else
    QCOMPARE(openableFileName(backSlashed(name)), name);
    write(name, QByteArray());
    QCOMPARE(openableFileName(backSlashed(name)), name);
    QCOMPARE(openableFileName(QStringLiteral("a\\b/c\\\\d")), QStringLiteral("a/b/c//d"));
#endif
}

void TestDocumentFile::backSlashesOfAnExistingNameStay()
{
#ifdef Q_OS_WIN
    QSKIP("A back slash cannot be part of a name here.");
#else
    const QString name = path("inner\\file.xml");
    write(name, QByteArray());
    write(path("inner/file.xml"), QByteArray());
    QCOMPARE(openableFileName(name), name);
#endif
}

void TestDocumentFile::savesWithFourBlanksOfIndentation()
{
    const QDomDocument document
        = documentOf(QStringLiteral("<?xml version='1.0' encoding=\"UTF-8\"?><r><a><b>x</b></a></r>"));
    QVERIFY(saveDocument(document, path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")),
             QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"
                        "<r>\n"
                        "    <a>\n"
                        "        <b>x</b>\n"
                        "    </a>\n"
                        "</r>\n"));
}

void TestDocumentFile::savesTheBytesOfATextStreamOnTheFile_data()
{
    QTest::addColumn<QString>("xml");
    QTest::newRow("no-declaration") << QStringLiteral("<r><a/></r>");
    QTest::newRow("declared-as-utf-8") << QStringLiteral("<?xml version='1.0' encoding='UTF-8'?><r>\u00E4\u20AC</r>");
    QTest::newRow("declared-as-latin-1") << QStringLiteral("<?xml version='1.0' encoding='ISO-8859-1'?><r>\u00E4</r>");
    QTest::newRow("beyond-ascii-without-declaration") << QStringLiteral("<r k='\u00E4'>\u20AC</r>");
    QTest::newRow("comments-and-instructions") << QStringLiteral("<!--c--><?t d?><r>x<!--c--></r><!--c-->");
    QTest::newRow("many-lines") << QStringLiteral("<r>%1</r>").arg(QStringLiteral("<a>text</a>").repeated(5000));
}

void TestDocumentFile::savesTheBytesOfATextStreamOnTheFile()
{
    QFETCH(QString, xml);
    const QDomDocument document = documentOf(xml);
    QVERIFY(saveDocument(document, path("saved.xml")));

    QFile file(path("streamed.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QTextStream stream(&file);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec(QTextCodec::codecForName("UTF-8"));
#else
    stream.setEncoding(QStringConverter::Utf8);
#endif
    stream.setAutoDetectUnicode(true);
    document.save(stream, 4);
    stream.flush();
    file.close();
    QCOMPARE(bytesOf(path("saved.xml")), bytesOf(path("streamed.xml")));
}

void TestDocumentFile::savesUtf8WithoutByteOrderMark()
{
    const QDomDocument document = documentOf(QStringLiteral("<r>\u00E4</r>"));
    QVERIFY(saveDocument(document, path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("<r>\xC3\xA4</r>\n"));
}

void TestDocumentFile::replacesWhatWasInTheFile()
{
    write(path("saved.xml"), QByteArray(10000, 'x'));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("<r/>\n"));
}

void TestDocumentFile::savesByBackSlashedName()
{
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), backSlashed(path("inner/saved.xml"))));
    QCOMPARE(bytesOf(path("inner/saved.xml")), QByteArray("<r/>\n"));
}

void TestDocumentFile::leavesTheDocumentAsItIs()
{
    const QDomDocument document = documentOf(QStringLiteral("<r k='v'><a>x</a></r>"));
    const QString before = domText(document);
    QVERIFY(saveDocument(document, path("saved.xml")));
    QCOMPARE(domText(document), before);
}

void TestDocumentFile::tellsOfAFileThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("name-of-a-folder") << QStringLiteral("inner");
    QTest::newRow("name-in-no-folder") << QStringLiteral("none/saved.xml");
}

void TestDocumentFile::tellsOfAFileThatCannotBeOpened()
{
    QFETCH(QString, name);
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), m_folder->filePath(name)));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("inner")));
}

void TestDocumentFile::tellsOfAFullDevice()
{
    const QString fullDevice = QStringLiteral("/dev/full");
    if (!QFile::exists(fullDevice)) {
        QSKIP("There is no device here that is always full.");
    }
    QVERIFY(QFile::link(fullDevice, path("full.xml")));
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), path("full.xml")));
}

void TestDocumentFile::opensAPipeOnlyForAReader()
{
#ifdef Q_OS_UNIX
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QVERIFY(!saveDocument(document, path("pipe")));

    const int reader = ::open(QFile::encodeName(path("pipe")).constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    QVERIFY(saveDocument(document, path("pipe")));
    char bytes[100] = {};
    QCOMPARE(::read(reader, bytes, sizeof bytes), ssize_t(5));
    QCOMPARE(QByteArray(bytes), QByteArray("<r/>\n"));
    ::close(reader);
#else
    QSKIP("Pipes are no files here.");
#endif
}

void TestDocumentFile::keepsNoHalfOfAFile_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("file-is-removed") << false;
    QTest::newRow("file-behind-a-link-is-emptied") << true;
}

void TestDocumentFile::keepsNoHalfOfAFile()
{
    QFETCH(bool, isLink);
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    const QDomDocument document
        = documentOf(QStringLiteral("<r>%1</r>").arg(QStringLiteral("<a>x</a>").repeated(9999)));
    write(path("target.xml"), "earlier");
    if (isLink) {
        QVERIFY(QFile::link(path("target.xml"), path("saved.xml")));
    }
    const TraceCollector traces;
    {
        const FileSizeLimit limit(4096);
        QVERIFY(!saveDocument(document, path("saved.xml")));
    }
    QCOMPARE(traces.Messages(),
             QStringLiteral("Only a part could be written of %1, it was discarded!").arg(path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), isLink ? QByteArray() : QByteArray("(no file)"));
    QCOMPARE(bytesOf(path("target.xml")), isLink ? QByteArray() : QByteArray("earlier"));

    QVERIFY(saveDocument(document, path("saved.xml")));
    QCOMPARE(domText(documentInFile(path("saved.xml"))), domText(document));
}

QTEST_GUILESS_MAIN(TestDocumentFile)
#include "tst_internals_documentfile.moc"
