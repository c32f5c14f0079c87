#include <QtTest>

#include <QFileInfo>
#include <QLibrary>

#include <vornappstartup/translationcenter.h>

class TestLibraryLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersItsTranslationContextWhileLoaded();
    void registersAgainWhenLoadedAgain();
};

namespace {

/// Beside the program where the build's folder means nothing, as on a machine that only runs the tests.
QString libraryFile()
{
    const QFileInfo built(QStringLiteral(XMLHELPER_LIBRARY_FILE));
    const QFileInfo beside(QCoreApplication::applicationDirPath() + QLatin1Char('/') + built.fileName());
    return beside.exists() ? beside.filePath() : built.filePath();
}

QStringList contexts()
{
    return TranslationCenter::Instance().GetContexts();
}

} // namespace

void TestLibraryLoad::registersItsTranslationContextWhileLoaded()
{
    QCOMPARE(contexts(), QStringList());
    QLibrary library(libraryFile());
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QCOMPARE(contexts(), QStringList(QStringLiteral("XMLHelper")));
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QCOMPARE(contexts(), QStringList());
}

void TestLibraryLoad::registersAgainWhenLoadedAgain()
{
    QLibrary library(libraryFile());
    for (int round = 0; round < 3; ++round) {
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QCOMPARE(contexts(), QStringList(QStringLiteral("XMLHelper")));
        QVERIFY(library.unload());
        QCOMPARE(contexts(), QStringList());
    }
}

QTEST_GUILESS_MAIN(TestLibraryLoad)
#include "tst_library_load.moc"
