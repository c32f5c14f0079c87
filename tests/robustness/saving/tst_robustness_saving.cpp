#include <QtTest>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <memory>
#include <random>

#include <QDir>
#include <QDomDocument>
#include <QTemporaryDir>

#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <xmlhelper/documentfile_p.h>
#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlreader.h>

#include "domtext.h"
#include "failingcalls.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

/// Whatever happens while a file is saved, the old one or the whole new one is there afterwards.
class TestRobustnessSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsTheOldFileWhenACallFails_data();
    void keepsTheOldFileWhenACallFails();
    void leavesNoFileWhenACallFails_data();
    void leavesNoFileWhenACallFails();
    void keepsTheOldFileWhenNoFileCanBeOpened();
    void writesInPlaceWhatCannotBeReplaced_data();
    void writesInPlaceWhatCannotBeReplaced();
    void keepsAWholeFileWhenTheProcessIsKilled();
    void neverMixesTheFilesOfTwoProcesses();
    void endsWithoutAFileWhenTheReportIsTooLong();
    void readsNoContentWhoseTextIsTooLong_data();
    void readsNoContentWhoseTextIsTooLong();

private:
    QString pathOf(const QString& name) const { return QDir(m_pFolder->path()).filePath(name); }
    QStringList entries() const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

namespace {

/// Runs @p work in a process of its own.
template <class Work> pid_t start(Work work)
{
    const pid_t process = fork();
    if (process == 0) {
        work();
        _exit(0);
    }
    return process;
}

/// Waits for @p milliseconds, for something else than a change here.
void wait(int milliseconds)
{
    ::poll(nullptr, 0, milliseconds);
}

/// A document of one comment, so that most of the time to save it is spent on writing.
QDomDocument documentFullOf(char character, int length)
{
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    document.documentElement().appendChild(document.createComment(QString(length, QLatin1Char(character))));
    return document;
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// What tells a file from one that has taken its place.
ino_t fileNumber(const QByteArray& name)
{
    struct stat status = {};
    return ::stat(name.constData(), &status) == 0 ? status.st_ino : 0;
}

/// What a file is saved to.
QByteArray savedBytes(const QDomDocument& document)
{
    return document.toString(4).toUtf8();
}

void addCalls()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("error");
    // A piece of the document is 2 MB.
    QTest::newRow("first-write") << int(Call::Write) << 1 << ENOSPC;
    QTest::newRow("second-write") << int(Call::Write) << 2 << ENOSPC;
    QTest::newRow("write-in-the-middle") << int(Call::Write) << 5 << ENOSPC;
    QTest::newRow("close") << int(Call::Close) << 1 << EIO;
    QTest::newRow("rename") << int(Call::Rename) << 1 << EIO;
}

} // namespace

void TestRobustnessSaving::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_pFolder->isValid());
}

QStringList TestRobustnessSaving::entries() const
{
    return QDir(m_pFolder->path()).entryList(QDir::Files | QDir::Hidden);
}

void TestRobustnessSaving::keepsTheOldFileWhenACallFails_data()
{
    addCalls();
}

void TestRobustnessSaving::keepsTheOldFileWhenACallFails()
{
    QFETCH(int, call);
    QFETCH(int, number);
    QFETCH(int, error);
    const QString name = pathOf(QStringLiteral("report.xml"));
    const QDomDocument earlier = documentOf(QStringLiteral("<earlier/>"));
    QVERIFY(saveDocument(earlier, name));
    const QDomDocument document = documentFullOf('x', 20000000);
    {
        const FailingCall failing(Call {call}, number);
        SavedFile saved;
        QVERIFY(!saveDocument(document, name, &saved));
        QCOMPARE(saved.reason, QString::fromLocal8Bit(strerror(error)));
    }
    QVERIFY(FailingCall::HasFailed());
    QCOMPARE(bytesOf(name), savedBytes(earlier));
    QCOMPARE(entries(), QStringList(QStringLiteral("report.xml")));
    QVERIFY(saveDocument(document, name));
    QVERIFY(bytesOf(name) == savedBytes(document));
}

void TestRobustnessSaving::leavesNoFileWhenACallFails_data()
{
    addCalls();
}

void TestRobustnessSaving::leavesNoFileWhenACallFails()
{
    QFETCH(int, call);
    QFETCH(int, number);
    {
        // The folder is looked through, and closed, before the first file is saved there.
        QVERIFY(saveDocument(documentOf(QStringLiteral("<r/>")), pathOf(QStringLiteral("other.xml"))));
        const FailingCall failing(Call {call}, number);
        QVERIFY(!saveDocument(documentFullOf('x', 20000000), pathOf(QStringLiteral("report.xml"))));
    }
    QVERIFY(FailingCall::HasFailed());
    QCOMPARE(entries(), QStringList(QStringLiteral("other.xml")));
}

void TestRobustnessSaving::keepsTheOldFileWhenNoFileCanBeOpened()
{
    const QString name = pathOf(QStringLiteral("report.xml"));
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QVERIFY(saveDocument(document, name));
    const QByteArray before = bytesOf(name);
    const int next = ::dup(0);
    rlimit limit = {};
    QCOMPARE(::close(next) | ::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit none {rlim_t(next), limit.rlim_max};
    SavedFile saved;
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const bool isSaved = saveDocument(documentOf(QStringLiteral("<other/>")), name, &saved);
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    QVERIFY(!isSaved);
    QCOMPARE(saved.reason, QString::fromLocal8Bit(std::strerror(EMFILE)));
    QCOMPARE(bytesOf(name), before);
    QCOMPARE(entries(), QStringList(QStringLiteral("report.xml")));
}

void TestRobustnessSaving::writesInPlaceWhatCannotBeReplaced_data()
{
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<bool>("isOwnFile");
    QTest::addColumn<bool>("isWrittenInPlace");
    QTest::newRow("folder-takes-no-new-files") << 0555 << true << true;
    QTest::newRow("owner-cannot-be-kept") << 0755 << false << true;
    QTest::newRow("neither-of-the-two") << 0755 << true << false;
}

/// In a process of a user who may not do everything.
void TestRobustnessSaving::writesInPlaceWhatCannotBeReplaced()
{
    QFETCH(int, folderMode);
    QFETCH(bool, isOwnFile);
    QFETCH(bool, isWrittenInPlace);
    constexpr uid_t Nobody = 65534;
    if (geteuid() != 0) {
        QSKIP("Only the superuser can become another.");
    }
    const QByteArray folder = QFile::encodeName(m_pFolder->path());
    const QByteArray name = QFile::encodeName(pathOf(QStringLiteral("report.xml")));
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    QVERIFY(saveDocument(documentOf(QStringLiteral("<earlier-and-longer/>")), QFile::decodeName(name)));
    QCOMPARE(::chmod(name.constData(), 0666), 0);
    QCOMPARE(::chown(name.constData(), isOwnFile ? Nobody : 0, isOwnFile ? Nobody : 0), 0);
    QCOMPARE(::chown(folder.constData(), Nobody, Nobody), 0);
    QCOMPARE(::chmod(folder.constData(), mode_t(folderMode)), 0);
    const ino_t before = fileNumber(name);

    const pid_t process = start([&] {
        const bool isNobody = ::setgid(Nobody) == 0 && ::setuid(Nobody) == 0;
        _exit(isNobody && saveDocument(document, QFile::decodeName(name)) ? 0 : 1);
    });
    int status = -1;
    QCOMPARE(waitpid(process, &status, 0), process);
    QCOMPARE(status, 0);
    QCOMPARE(bytesOf(QFile::decodeName(name)), savedBytes(document));
    QCOMPARE(fileNumber(name) == before, isWrittenInPlace);
    QCOMPARE(entries(), QStringList(QStringLiteral("report.xml")));
}

void TestRobustnessSaving::keepsAWholeFileWhenTheProcessIsKilled()
{
    constexpr int Kills = 200;
    const QString name = pathOf(QStringLiteral("report.xml"));
    const std::array<QDomDocument, 2> documents {documentFullOf('a', 20000000), documentFullOf('b', 20000000)};
    const std::array<QByteArray, 2> contents {savedBytes(documents[0]), savedBytes(documents[1])};
    const pid_t first = start([&] { saveDocument(documents[0], name); });
    QCOMPARE(waitpid(first, nullptr, 0), first);

    std::minstd_rand random;
    for (int i = 0; i < Kills; ++i) {
        const pid_t process = start([&] {
            for (std::size_t next = 1;; next = 1 - next) {
                saveDocument(documents[next], name);
            }
        });
        wait(int(random() % 50));
        QCOMPARE(::kill(process, SIGKILL), 0);
        QCOMPARE(waitpid(process, nullptr, 0), process);
        const QByteArray content = bytesOf(name);
        QVERIFY2(content == contents[0] || content == contents[1], qPrintable(QString::number(content.size())));
    }

    // This process has not saved here before. It removes what the others have left, when that is old enough.
    const QStringList left = entries();
    QVERIFY2(left.size() > 1 && left.size() <= Kills + 1, qPrintable(QString::number(left.size())));
    for (const QString& stray : left) {
        QFile file(pathOf(stray));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
    }
    QVERIFY(saveDocument(documents[0], name));
    QCOMPARE(entries(), QStringList(QStringLiteral("report.xml")));
}

void TestRobustnessSaving::neverMixesTheFilesOfTwoProcesses()
{
    constexpr int Saves = 400;
    constexpr int Names = 10;
    const std::array<QDomDocument, 2> documents {documentFullOf('a', 100000), documentFullOf('b', 150000)};
    const std::array<QByteArray, 2> contents {savedBytes(documents[0]), savedBytes(documents[1])};
    const auto nameOf = [this](int number) { return pathOf(QStringLiteral("report%1.xml").arg(number)); };
    std::vector<pid_t> processes;
    for (const QDomDocument& document : documents) {
        processes.push_back(start([&] {
            for (int i = 0; i < Saves; ++i) {
                if (!saveDocument(document, nameOf(i % Names))) {
                    _exit(1);
                }
            }
        }));
    }
    const auto areWhole = [&] {
        for (int i = 0; i < Names; ++i) {
            const QByteArray content = bytesOf(nameOf(i));
            if (content != contents[0] && content != contents[1] && content != "(no file)") {
                return false;
            }
        }
        return true;
    };
    for (const pid_t process : processes) {
        int status = 0;
        while (waitpid(process, &status, WNOHANG) == 0) {
            QVERIFY(areWhole());
        }
        QCOMPARE(status, 0);
    }
    QVERIFY(areWhole());
    QCOMPARE(entries().size(), Names);
}

void TestRobustnessSaving::endsWithoutAFileWhenTheReportIsTooLong()
{
    constexpr int Levels = 100;
    const QString nested = QStringLiteral("<xs:element name='e'><xs:complexType><xs:sequence>").repeated(Levels)
        + QStringLiteral("<xs:element name='leaf' type='xs:string' minOccurs='300'/>")
        + QStringLiteral("</xs:sequence></xs:complexType></xs:element>").repeated(Levels);
    QFile schema(pathOf(QStringLiteral("schema.xsd")));
    QVERIFY(schema.open(QIODevice::WriteOnly));
    schema.write("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + nested.toUtf8() + "</xs:schema>");
    schema.close();

    Limits limits;
    limits.savedBytes = 100000; // The blanks alone are more.
    const LimitsInForce inForce(limits);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    const TraceCollector traces;
    QVERIFY(builder.CreateXmlFromSchema(schema.fileName(), pathOf(QStringLiteral("report.xml")), false));
    QCOMPARE(traces.Messages(), QStringLiteral("Documents that are saved as more than 100000 bytes are refused!"));
    QCOMPARE(entries(), QStringList(QStringLiteral("schema.xsd")));
}

void TestRobustnessSaving::readsNoContentWhoseTextIsTooLong_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("at-the-limit") << 22 << true;
    QTest::newRow("one-beyond-it") << 21 << false;
}

void TestRobustnessSaving::readsNoContentWhoseTextIsTooLong()
{
    QFETCH(int, limit);
    QFETCH(bool, isRead);
    Limits limits;
    limits.savedBytes = limit;
    const LimitsInForce inForce(limits);
    ScriptedObserver observer;
    XMLReader reader(&observer, nullptr);
    QVERIFY(reader.SetXmlContent(documentOf(QStringLiteral("<r><a>text</a></r>")))); // 22 with its line ends
    const TraceCollector traces;
    QCOMPARE(reader.ParseXml(), isRead);
    QCOMPARE(traces.Messages(),
             isRead ? QString() : QStringLiteral("Documents that are saved as more than 21 bytes are refused!"));
}

QTEST_GUILESS_MAIN(TestRobustnessSaving)
#include "tst_robustness_saving.moc"
