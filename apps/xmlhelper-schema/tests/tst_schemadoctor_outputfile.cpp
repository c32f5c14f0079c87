#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "outputfile.h"

using namespace schemadoctor;

class TestSchemaDoctorOutputFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAFile();
    void writesAPipeInPlace();
    void saysWhyItCannotBeWritten();
    void knowsAFileByItsLinks();

private:
    QTemporaryDir m_folder;
};

void TestSchemaDoctorOutputFile::writesAFile()
{
    const QString name = m_folder.filePath(QStringLiteral("page.html"));
    for (const char* const text : {"first", "next"}) {
        QCOMPARE(writeOutput(name, text), QString());
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray(text));
    }
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}

void TestSchemaDoctorOutputFile::writesAPipeInPlace()
{
#ifdef Q_OS_UNIX
    const QByteArray name = QFile::encodeName(m_folder.filePath(QStringLiteral("pipe")));
    QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    const int descriptor = ::open(name.constData(), O_RDWR | O_CLOEXEC); // Nobody waits for a reader then.
    QVERIFY(descriptor >= 0);
    QCOMPARE(writeOutput(QFile::decodeName(name), "text"), QString());
    char text[8] = {};
    QCOMPARE(int(::read(descriptor, text, sizeof text - 1)), 4);
    ::close(descriptor);
    QCOMPARE(QByteArray(text), QByteArray("text"));
    struct stat status = {};
    QCOMPARE(::stat(name.constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
#else
    QSKIP("There are no pipes with a name of a file.");
#endif
}

void TestSchemaDoctorOutputFile::saysWhyItCannotBeWritten()
{
    const QString name = m_folder.filePath(QStringLiteral("nowhere/page.html"));
    QVERIFY(writeOutput(name, "text").startsWith(name + QLatin1String(": ")));
    QVERIFY(!writeOutput(m_folder.path(), "text").isEmpty());
}

void TestSchemaDoctorOutputFile::knowsAFileByItsLinks()
{
    const QString schema = m_folder.filePath(QStringLiteral("schema.xsd"));
    const QString link = m_folder.filePath(QStringLiteral("link.xsd"));
    QCOMPARE(writeOutput(schema, "text"), QString());
    QVERIFY(QFile::link(schema, link));
    const QStringList files {m_folder.filePath(QStringLiteral("missing.xsd")), schema};
    QVERIFY(isFileAmong(schema, files));
    QVERIFY(isFileAmong(link, files));
    QVERIFY(isFileAmong(m_folder.filePath(QStringLiteral("./schema.xsd")), files));
    QVERIFY(!isFileAmong(m_folder.filePath(QStringLiteral("missing.xsd")), files)); // It is not there to be lost.
    QVERIFY(!isFileAmong(m_folder.path(), files));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorOutputFile)
#include "tst_schemadoctor_outputfile.moc"
