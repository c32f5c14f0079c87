#include <cstdio>
#include <cstdlib>
#include <memory>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <vornappstartup/translationcenter.h>

namespace {

/// The hash by which a .qm file lists its messages.
quint32 hashOf(const QByteArray& text)
{
    quint32 hash = 0;
    for (const char character : text) {
        hash = (hash << 4) + static_cast<uchar>(character);
        const quint32 high = hash & 0xF0000000U;
        hash = (hash ^ (high >> 24)) & ~high;
    }
    return hash ? hash : 1;
}

/// A .qm file that holds one message.
QByteArray translationFile(const QByteArray& context, const QByteArray& source, const QString& translation)
{
    static const uchar magic[]
        = {0x3C, 0xB8, 0x64, 0x18, 0xCA, 0xEF, 0x9C, 0x95, 0xCD, 0x21, 0x1C, 0xBF, 0x60, 0xA1, 0xBD, 0xDD};
    enum : quint8 { End = 1, Translation = 3, SourceText = 6, Context = 7, Hashes = 0x42, Messages = 0x69 };

    QByteArray messages;
    QDataStream message(&messages, QIODevice::WriteOnly);
    message << quint8(Translation) << quint32(translation.size() * 2);
    for (const QChar character : translation) {
        message << character.unicode();
    }
    const auto writeText = [&message](quint8 tag, const QByteArray& text) {
        message << tag << quint32(text.size());
        message.writeRawData(text.constData(), int(text.size()));
    };
    writeText(SourceText, source);
    writeText(Context, context);
    message << quint8(End);

    QByteArray result;
    QDataStream file(&result, QIODevice::WriteOnly);
    file.writeRawData(reinterpret_cast<const char*>(magic), sizeof magic);
    file << quint8(Hashes) << quint32(8) << hashOf(source) << quint32(0);
    file << quint8(Messages) << quint32(messages.size());
    file.writeRawData(messages.constData(), int(messages.size()));
    return result;
}

QString translated(const char* context, const char* source = "To Report")
{
    return QCoreApplication::translate(context, source);
}

void forgetAllContexts()
{
    const QStringList contexts = TranslationCenter::Instance().GetContexts();
    for (const QString& context : contexts) {
        TranslationCenter::Instance().Unregister(context);
    }
}

constexpr const char* unregisterLate = "--unregister-late";

/// Does what the unload routine of a library does: unregisters when all later static objects are gone.
void unregisterAtTheVeryEnd()
{
    TranslationCenter::Instance().Unregister(QStringLiteral("Early"));
    std::printf("left: %s", qPrintable(TranslationCenter::Instance().GetContexts().join(QLatin1Char(','))));
    TranslationCenter::Instance().Unregister(QStringLiteral("Late"));
}

/// A process whose last words are an unregistration, made after the static objects that came to life in main are
/// destroyed, and with a translator still installed.
int processThatUnregistersLate(int argc, char** argv)
{
    std::atexit(unregisterAtTheVeryEnd);

    const QCoreApplication application(argc, argv);
    TranslationCenter::Instance().Register(QStringLiteral("Early"));
    TranslationCenter::Instance().Register(QStringLiteral("Late"));
    const int found = TranslationCenter::Instance().InstallTranslators(QLocale(QStringLiteral("de_DE")),
                                                                       QString::fromLocal8Bit(argv[2]));
    return found == 1 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

class TestVornAppStartUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void contextsStandInTheOrderOfTheirRegistration();
    void contextsAreASet();
    void anUnknownContextIsNotUnregistered();
    void translatorsOfAllContextsAreInstalled();
    void aFileOfTheLanguageAloneIsAccepted();
    void aContextWithoutAFileIsNotCounted();
    void anotherLanguageReplacesTheFirst();
    void anUnregisteredContextIsTranslatedNoMore();
    void aLateContextWaitsForTheNextInstallation();
    void aLibraryMayUnregisterAtTheVeryEnd();

private:
    void write(const char* fileName, const char* context, const char* translation);
    int install(const char* locale);

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestVornAppStartUp::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    QCOMPARE(TranslationCenter::Instance().GetContexts(), QStringList());
}

void TestVornAppStartUp::cleanup()
{
    forgetAllContexts();
    m_directory.reset();
}

void TestVornAppStartUp::write(const char* fileName, const char* context, const char* translation)
{
    QFile file(m_directory->filePath(QLatin1String(fileName)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray content = translationFile(context, "To Report", QString::fromUtf8(translation));
    QCOMPARE(file.write(content), qint64(content.size()));
}

int TestVornAppStartUp::install(const char* locale)
{
    return TranslationCenter::Instance().InstallTranslators(QLocale(QLatin1String(locale)), m_directory->path());
}

void TestVornAppStartUp::contextsStandInTheOrderOfTheirRegistration()
{
    TranslationCenter& center = TranslationCenter::Instance();
    center.Register(QStringLiteral("XMLHelper"));
    center.Register(QStringLiteral("Analyser"));
    QCOMPARE(center.GetContexts(), QStringList({QStringLiteral("XMLHelper"), QStringLiteral("Analyser")}));

    center.Unregister(QStringLiteral("XMLHelper"));
    QCOMPARE(center.GetContexts(), QStringList(QStringLiteral("Analyser")));
}

void TestVornAppStartUp::contextsAreASet()
{
    TranslationCenter& center = TranslationCenter::Instance();
    center.Register(QStringLiteral("XMLHelper"));
    center.Register(QStringLiteral("XMLHelper"));
    QCOMPARE(center.GetContexts(), QStringList(QStringLiteral("XMLHelper")));

    center.Unregister(QStringLiteral("XMLHelper"));
    QCOMPARE(center.GetContexts(), QStringList());
}

void TestVornAppStartUp::anUnknownContextIsNotUnregistered()
{
    TranslationCenter& center = TranslationCenter::Instance();
    center.Register(QStringLiteral("XMLHelper"));

    center.Unregister(QStringLiteral("xmlhelper"));
    QCOMPARE(center.GetContexts(), QStringList(QStringLiteral("XMLHelper")));
}

void TestVornAppStartUp::translatorsOfAllContextsAreInstalled()
{
    write("XMLHelper_de_DE.qm", "VCReporting", "Zum Bericht");
    write("Analyser_de_DE.qm", "Screen", "Bericht");
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    TranslationCenter::Instance().Register(QStringLiteral("Analyser"));
    QCOMPARE(translated("VCReporting"), QStringLiteral("To Report"));

    QCOMPARE(install("de_DE"), 2);
    QCOMPARE(translated("VCReporting"), QStringLiteral("Zum Bericht"));
    QCOMPARE(translated("Screen"), QStringLiteral("Bericht"));
    QCOMPARE(translated("Other"), QStringLiteral("To Report"));
}

void TestVornAppStartUp::aFileOfTheLanguageAloneIsAccepted()
{
    write("XMLHelper_de.qm", "VCReporting", "Zum Bericht");
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));

    QCOMPARE(install("de_AT"), 1);
    QCOMPARE(translated("VCReporting"), QStringLiteral("Zum Bericht"));
}

void TestVornAppStartUp::aContextWithoutAFileIsNotCounted()
{
    write("XMLHelper_de_DE.qm", "VCReporting", "Zum Bericht");
    write("Stranger_de_DE.qm", "Screen", "Bericht");
    TranslationCenter::Instance().Register(QStringLiteral("Analyser"));
    QCOMPARE(install("de_DE"), 0);

    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    QCOMPARE(install("de_DE"), 1);
    QCOMPARE(translated("VCReporting"), QStringLiteral("Zum Bericht"));
    QCOMPARE(translated("Screen"), QStringLiteral("To Report"));
}

void TestVornAppStartUp::anotherLanguageReplacesTheFirst()
{
    write("XMLHelper_de_DE.qm", "VCReporting", "Zum Bericht");
    write("XMLHelper_fr_FR.qm", "VCReporting", "Au rapport");
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    QCOMPARE(install("de_DE"), 1);

    QCOMPARE(install("fr_FR"), 1);
    QCOMPARE(translated("VCReporting"), QStringLiteral("Au rapport"));
    QCOMPARE(install("en_US"), 0);
    QCOMPARE(translated("VCReporting"), QStringLiteral("To Report"));
}

void TestVornAppStartUp::anUnregisteredContextIsTranslatedNoMore()
{
    write("XMLHelper_de_DE.qm", "VCReporting", "Zum Bericht");
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    QCOMPARE(install("de_DE"), 1);

    TranslationCenter::Instance().Unregister(QStringLiteral("XMLHelper"));
    QCOMPARE(translated("VCReporting"), QStringLiteral("To Report"));
}

void TestVornAppStartUp::aLateContextWaitsForTheNextInstallation()
{
    write("XMLHelper_de_DE.qm", "VCReporting", "Zum Bericht");
    QCOMPARE(install("de_DE"), 0);

    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    QCOMPARE(translated("VCReporting"), QStringLiteral("To Report"));
    QCOMPARE(install("de_DE"), 1);
    QCOMPARE(translated("VCReporting"), QStringLiteral("Zum Bericht"));
}

void TestVornAppStartUp::aLibraryMayUnregisterAtTheVeryEnd()
{
    write("Late_de_DE.qm", "Screen", "Bericht");

    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(unregisterLate), m_directory->path()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("left: Late"));
    QCOMPARE(process.exitCode(), EXIT_SUCCESS);
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], unregisterLate) == 0) {
        return processThatUnregistersLate(argc, argv);
    }
    QCoreApplication application(argc, argv);
    TestVornAppStartUp test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_vornappstartup.moc"
