#include <QtTest>

#include <cerrno>
#include <cstring>
#include <memory>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <xmlhelper/documentfile_p.h>
#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/limits_p.h>

#include "domtext.h"
#include "filesizelimit.h"
#include "tracecollector.h"

#ifdef Q_OS_UNIX
#include <climits>

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
    void tellsWhyNothingWasWritten_data();
    void tellsWhyNothingWasWritten();
    void tellsWhatWasWritten_data();
    void tellsWhatWasWritten();
    void opensAPipeOnlyForAReader();
    void keepsNoHalfOfAFile_data();
    void keepsNoHalfOfAFile();
    void leavesNothingBesideTheFile();
    void keepsThePermissions_data();
    void keepsThePermissions();
    void givesANewFileTheUsualPermissions();
    void leavesAFileThatMustNotBeWritten();
    void writesOnWhereAFileIsOpen_data();
    void writesOnWhereAFileIsOpen();
    void keepsLinks_data();
    void keepsLinks();
    void followsNoRingOfLinks();
    void leavesAnotherNameOfTheFileItsContent();
    void savesUnderALongName();
    void savesUnderALongPath();
    void savesToADevice();
    void writesInPlaceWhereNoFileCanBeMade();
    void writesNoDocumentThatIsTooLong_data();
    void writesNoDocumentThatIsTooLong();
    void writesADocumentOfTheGreatestLength();
    void removesWhatAnEndedProcessHasLeft();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QStringList entries() const;

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

#ifdef Q_OS_UNIX
int modeOf(const QString& fileName)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(fileName).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}
#endif

QString backSlashed(QString name)
{
    return name.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

} // namespace

QStringList TestDocumentFile::entries() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

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

void TestDocumentFile::tellsWhyNothingWasWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<bool>("isTooLong");
#ifdef Q_OS_UNIX
    constexpr int noLimit = 1000000;
    QTest::newRow("name-in-no-folder") << QStringLiteral("none/saved.xml") << noLimit
                                       << QString::fromLocal8Bit(strerror(ENOENT)) << false;
    QTest::newRow("name-of-a-folder") << QStringLiteral("inner") << noLimit << QString::fromLocal8Bit(strerror(EISDIR))
                                      << false;
    QTest::newRow("name-that-is-too-long")
        << QString(300, QLatin1Char('n')) << noLimit << QString::fromLocal8Bit(strerror(ENAMETOOLONG)) << false;
    QTest::newRow("pipe-without-a-reader")
        << QStringLiteral("pipe") << noLimit << QStringLiteral("Nobody reads the pipe") << false;
    QTest::newRow("beyond-the-limit-in-a-pipe")
        << QStringLiteral("read-pipe") << 4 << QStringLiteral("It would be longer than 4 bytes") << true;
#endif
    QTest::newRow("beyond-the-limit") << QStringLiteral("saved.xml") << 4
                                      << QStringLiteral("It would be longer than 4 bytes") << true;
}

void TestDocumentFile::tellsWhyNothingWasWritten()
{
    QFETCH(QString, name);
    QFETCH(int, limit);
    QFETCH(bool, isTooLong);
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    QCOMPARE(mkfifo(QFile::encodeName(path("read-pipe")).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(path("read-pipe")).constData(), O_RDONLY | O_NONBLOCK);
    const auto close = qScopeGuard([reader] { ::close(reader); });
#endif
    Limits limits;
    limits.savedBytes = limit;
    const LimitsInForce inForce(limits);
    SavedFile saved;
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), m_folder->filePath(name), &saved));
    QTEST(saved.reason, "reason");
    QCOMPARE(saved.isTooLong, isTooLong);
    QCOMPARE(saved.name, m_folder->filePath(name));
}

void TestDocumentFile::tellsWhatWasWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("opened");
    QTest::newRow("new-file") << QStringLiteral("saved.xml") << QStringLiteral("saved.xml");
    QTest::newRow("old-file") << QStringLiteral("earlier.xml") << QStringLiteral("earlier.xml");
#ifdef Q_OS_UNIX
    QTest::newRow("back-slashes") << QStringLiteral("inner\\saved.xml") << QStringLiteral("inner/saved.xml");
    QTest::newRow("pipe") << QStringLiteral("pipe") << QStringLiteral("pipe");
#endif
}

void TestDocumentFile::tellsWhatWasWritten()
{
    QFETCH(QString, name);
    QFETCH(QString, opened);
    write(path("earlier.xml"), "earlier and longer");
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(path("pipe")).constData(), O_RDONLY | O_NONBLOCK);
    const auto close = qScopeGuard([reader] { ::close(reader); });
#endif
    const QDomDocument document = documentOf(QStringLiteral("<r>\u00e4</r>"));
    SavedFile saved;
    QVERIFY(saveDocument(document, m_folder->filePath(name), &saved));
    QCOMPARE(saved.name, m_folder->filePath(opened));
    QCOMPARE(saved.size, qint64(sizeof "<r>\xc3\xa4</r>\n" - 1));
    QCOMPARE(savedBytesOf(document), QByteArray("<r>\xc3\xa4</r>\n"));
    QVERIFY(!saved.isTooLong);
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
    QTest::newRow("old-file-stays") << false;
    QTest::newRow("old-file-behind-a-link-stays") << true;
}

void TestDocumentFile::keepsNoHalfOfAFile()
{
    QFETCH(bool, isLink);
    if (!FileSizeLimit::IsSupported()) {
        QSKIP("The size of files cannot be limited here.");
    }
    const QDomDocument document
        = documentOf(QStringLiteral("<r>%1</r>").arg(QStringLiteral("<a>x</a>").repeated(9999)));
    write(path(isLink ? "target.xml" : "saved.xml"), "earlier");
    if (isLink) {
        QVERIFY(QFile::link(path("target.xml"), path("saved.xml")));
    }
    const QStringList before = entries();
    const TraceCollector traces;
    {
        const FileSizeLimit limit(4096);
        SavedFile saved;
        QVERIFY(!saveDocument(document, path("saved.xml"), &saved));
        QCOMPARE(saved.reason, QString::fromLocal8Bit(strerror(EFBIG)));
    }
    QCOMPARE(traces.Messages(),
             QStringLiteral("Only a part could be written of %1, it was discarded!").arg(path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("earlier"));
    QCOMPARE(entries(), before);

    QVERIFY(saveDocument(document, path("saved.xml")));
    QCOMPARE(domText(documentInFile(path("saved.xml"))), domText(document));
}

void TestDocumentFile::leavesNothingBesideTheFile()
{
    const QStringList before = entries();
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(entries(), before + QStringList(QStringLiteral("saved.xml")));
}

void TestDocumentFile::keepsThePermissions_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("of-the-owner-only") << 0600;
    QTest::newRow("of-everybody") << 0666;
    QTest::newRow("to-run-it") << 0755;
    QTest::newRow("of-a-group-by-its-mark") << 02660;
}

void TestDocumentFile::keepsThePermissions()
{
#ifdef Q_OS_UNIX
    QFETCH(int, mode);
    write(path("saved.xml"), "earlier");
    QCOMPARE(::chmod(QFile::encodeName(path("saved.xml")).constData(), mode_t(mode)), 0);
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(modeOf(path("saved.xml")), mode);
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("<r/>\n"));
#else
    QSKIP("There are no such permissions here.");
#endif
}

void TestDocumentFile::givesANewFileTheUsualPermissions()
{
#ifdef Q_OS_UNIX
    write(path("usual.xml"), QByteArray());
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(modeOf(path("saved.xml")), modeOf(path("usual.xml")));
#else
    QSKIP("There are no such permissions here.");
#endif
}

void TestDocumentFile::leavesAFileThatMustNotBeWritten()
{
    write(path("saved.xml"), "earlier");
    QVERIFY(QFile::setPermissions(path("saved.xml"), QFile::ReadOwner));
    if (QFile(path("saved.xml")).open(QIODevice::ReadWrite)) {
        QSKIP("This user may write everything.");
    }
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("earlier"));
    QVERIFY(QFile::setPermissions(path("saved.xml"), QFile::ReadOwner | QFile::WriteOwner)); // or it stays
}

void TestDocumentFile::writesOnWhereAFileIsOpen_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("of-the-process") << QStringLiteral("/proc/self/fd/");
    QTest::newRow("device") << QStringLiteral("/dev/fd/");
}

/// As behind /dev/stdout: what was written there before and what is written next stays beside the report.
void TestDocumentFile::writesOnWhereAFileIsOpen()
{
    QFETCH(QString, folder);
    if (!QFileInfo(folder + QLatin1Char('0')).isSymLink()) {
        QSKIP("Open files have no names here.");
    }
    QFile file(path("open.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    file.write("earlier\n");
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), folder + QString::number(file.handle())));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<s/>")), folder + QString::number(file.handle())));
    QCOMPARE(bytesOf(path("open.xml")), QByteArray("earlier\n<r/>\n<s/>\n"));
    QCOMPARE(entries().filter(QStringLiteral("open")).size(), 1);
}

void TestDocumentFile::keepsLinks_data()
{
    QTest::addColumn<bool>("isTargetThere");
    QTest::newRow("to-a-file") << true;
    QTest::newRow("to-none") << false;
}

void TestDocumentFile::keepsLinks()
{
#ifdef Q_OS_UNIX
    QFETCH(bool, isTargetThere);
    if (isTargetThere) {
        write(path("inner/target.xml"), "earlier");
    }
    QVERIFY(QFile::link(QStringLiteral("inner/target.xml"), path("link.xml")));
    QVERIFY(QFile::link(QStringLiteral("link.xml"), path("saved.xml")));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QVERIFY(QFileInfo(path("saved.xml")).isSymLink());
    QVERIFY(QFileInfo(path("link.xml")).isSymLink());
    QVERIFY(!QFileInfo(path("inner/target.xml")).isSymLink());
    QCOMPARE(bytesOf(path("inner/target.xml")), QByteArray("<r/>\n"));
#else
    QSKIP("Not every user may make links here.");
#endif
}

void TestDocumentFile::followsNoRingOfLinks()
{
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(QStringLiteral("b.xml"), path("a.xml")));
    QVERIFY(QFile::link(QStringLiteral("a.xml"), path("b.xml")));
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), path("a.xml")));
    QVERIFY(QFileInfo(path("a.xml")).isSymLink());
    QVERIFY(QFileInfo(path("b.xml")).isSymLink());
#else
    QSKIP("Not every user may make links here.");
#endif
}

void TestDocumentFile::leavesAnotherNameOfTheFileItsContent()
{
#ifdef Q_OS_UNIX
    write(path("saved.xml"), "earlier");
    QCOMPARE(::link(QFile::encodeName(path("saved.xml")).constData(), QFile::encodeName(path("other.xml")).constData()),
             0);
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("<r/>\n"));
    QCOMPARE(bytesOf(path("other.xml")), QByteArray("earlier"));
#else
    QSKIP("There are no such names here.");
#endif
}

void TestDocumentFile::savesUnderALongName()
{
#ifdef Q_OS_UNIX
    const QString longest = m_folder->filePath(QString(255, QLatin1Char('n')));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), longest));
    QCOMPARE(bytesOf(longest), QByteArray("<r/>\n"));
    const QStringList before = entries();
    const TraceCollector traces;
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), longest + QLatin1Char('n')));
    QCOMPARE(entries(), before);
    QCOMPARE(traces.Messages(), QString());
#else
    QSKIP("Names are limited together with their folders here.");
#endif
}

/// One beside which no temporary name has room.
void TestDocumentFile::savesUnderALongPath()
{
#ifdef Q_OS_UNIX
    constexpr int LongestPath = PATH_MAX - 1;
#else
    constexpr int LongestPath = 1000; // The usual ones end with 260.
#endif
    QString folder = m_folder->path();
    while (folder.size() < LongestPath - 202) {
        folder += QLatin1Char('/') + QString(200, QLatin1Char('d'));
    }
    folder += QLatin1Char('/') + QString(LongestPath - folder.size() - 3, QLatin1Char('d'));
    QVERIFY(QDir().mkpath(folder));
    for (int save = 0; save < 2; ++save) {
        QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), folder + QStringLiteral("/r")));
        QCOMPARE(bytesOf(folder + QStringLiteral("/r")), QByteArray("<r/>\n"));
    }
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList {QStringLiteral("r")});
}

void TestDocumentFile::savesToADevice()
{
    const QString device = QStringLiteral("/dev/null");
    if (!QFile::exists(device)) {
        QSKIP("There is no device here that takes everything.");
    }
    QVERIFY(QFile::link(device, path("device.xml")));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("device.xml")));
    QVERIFY(QFileInfo(path("device.xml")).isSymLink());
    QVERIFY(!QFileInfo(device).isFile());
}

void TestDocumentFile::writesInPlaceWhereNoFileCanBeMade()
{
#ifdef Q_OS_UNIX
    const QString name = path("inner/saved.xml");
    write(name, "earlier");
    QVERIFY(QFile::setPermissions(path("inner"), QFile::ReadOwner | QFile::ExeOwner));
    const bool isRefusing = !QFileInfo(path("inner")).isWritable();
    const bool isSaved = saveDocument(documentOf(QStringLiteral("<r/>")), name);
    const bool isNewSaved = saveDocument(documentOf(QStringLiteral("<r/>")), path("inner/new.xml"));
    QVERIFY(QFile::setPermissions(path("inner"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    if (!isRefusing) {
        QSKIP("This user may write everything.");
    }
    QVERIFY(isSaved);
    QVERIFY(!isNewSaved);
    QCOMPARE(bytesOf(name), QByteArray("<r/>\n"));
#else
    QSKIP("Folders cannot be made read-only here.");
#endif
}

void TestDocumentFile::writesNoDocumentThatIsTooLong_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << QStringLiteral("saved.xml");
    QTest::newRow("new-file") << QStringLiteral("new.xml");
    QTest::newRow("pipe") << QStringLiteral("pipe");
}

void TestDocumentFile::writesNoDocumentThatIsTooLong()
{
    QFETCH(QString, name);
    write(path("saved.xml"), "earlier");
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(path("pipe")).constData(), O_RDONLY | O_NONBLOCK);
#endif
    const QStringList before = entries();
    Limits limits;
    limits.savedBytes = 4;
    const LimitsInForce inForce(limits);
    const TraceCollector traces;
    QVERIFY(!saveDocument(documentOf(QStringLiteral("<r/>")), m_folder->filePath(name)));
    QCOMPARE(traces.Messages(), QStringLiteral("Documents that are saved as more than 4 bytes are refused!"));
    QCOMPARE(entries(), before);
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("earlier"));
#ifdef Q_OS_UNIX
    char byte = 0;
    QVERIFY(::read(reader, &byte, 1) <= 0);
    ::close(reader);
#endif
}

void TestDocumentFile::writesADocumentOfTheGreatestLength()
{
    Limits limits;
    limits.savedBytes = 5;
    const LimitsInForce inForce(limits);
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("saved.xml")));
    QCOMPARE(bytesOf(path("saved.xml")), QByteArray("<r/>\n"));
}

void TestDocumentFile::removesWhatAnEndedProcessHasLeft()
{
    const QString old = path("inner/.xmlhelper-1a2b.part");
    const QString recent = path("inner/.xmlhelper-3c4d.part");
    const QString another = path("inner/.xmlhelper-5e6f.xml");
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1).addSecs(-60);
    for (const QString& name : {old, recent, another}) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(name == recent || file.setFileTime(yesterday, QFileDevice::FileModificationTime));
    }
    QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), path("inner/saved.xml")));
    QVERIFY(!QFile::exists(old));
    QVERIFY(QFile::exists(recent));
    QVERIFY(QFile::exists(another));
}

QTEST_GUILESS_MAIN(TestDocumentFile)
#include "tst_internals_documentfile.moc"
