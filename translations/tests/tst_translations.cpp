#include <QtTest>

#include <algorithm>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <vornappstartup/translationcenter.h>

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextOfTheSourcesIsTranslated_data();
    void everyTextOfTheSourcesIsTranslated();
    void aTextThatLacksATranslationIsNoticed();
    void translationsKeepWhatIsNoLanguage_data();
    void translationsKeepWhatIsNoLanguage();
    void oneWordIsUsedThroughout_data();
    void oneWordIsUsedThroughout();
    void theRegistryLoadsEveryLanguage_data();
    void theRegistryLoadsEveryLanguage();
    void englishMendsTheQuestion();
};

namespace {

const QString sources = QStringLiteral(TRANSLATIONS_SOURCES);
const QString compiled = QStringLiteral(TRANSLATIONS_COMPILED);

QStringList catalogues()
{
    return QDir(sources).entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

struct Message
{
    QString source;
    QString translation;
    bool isFinished;
};

QList<Message> messagesIn(const QString& catalogue)
{
    QFile file(catalogue);
    QDomDocument document;
    document.setContent(&file);
    QList<Message> messages;
    const QDomNodeList found = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < found.count(); ++i) {
        const QDomElement message = found.at(i).toElement();
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        messages.append({message.firstChildElement(QStringLiteral("source")).text(), translation.text(),
                         !translation.hasAttribute(QStringLiteral("type")) && !translation.text().isEmpty()});
    }
    return messages;
}

QStringList unfinishedIn(const QString& catalogue)
{
    QStringList unfinished;
    const QList<Message> messages = messagesIn(catalogue);
    for (const Message& message : messages) {
        if (!message.isFinished) {
            unfinished.append(message.source);
        }
    }
    return unfinished;
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool copyCatalogues(const QString& folder)
{
    const QStringList names = catalogues();
    return std::all_of(names.begin(), names.end(), [&folder](const QString& name) {
        return QFile::copy(QDir(sources).filePath(name), QDir(folder).filePath(name));
    });
}

/// Takes the texts of the sources into the catalogues of the folder; gives what the script has to complain of.
QString update(const QString& folder)
{
    QProcess script;
    script.start(QStringLiteral(UPDATE_TRANSLATIONS), {folder});
    const bool isDone = script.waitForFinished() && script.exitStatus() == QProcess::NormalExit;
    return isDone && script.exitCode() == 0 ? QString()
                                            : QString::fromLocal8Bit(script.readAllStandardError()) + QLatin1Char('!');
}

bool isMissing(const QString& complaint)
{
    return complaint.contains(QLatin1String("lupdate is missing"));
}

/// Placeholders, options, keys, mnemonics and names of XML Schema: what every language has to say in the same way.
QStringList fixedPartsOf(const QString& text)
{
    static const QRegularExpression fixed(
        QStringLiteral("%\\d|--\\w+|<\\w+>|\\(Shift\\+F10\\)|\\*\\.xsd|&(?=\\S)|xs:\\w+|"
                       "(?:min|max)(?:Occurs|Inclusive|Exclusive)"));
    QStringList parts;
    QRegularExpressionMatchIterator matches = fixed.globalMatch(text);
    while (matches.hasNext()) {
        parts.append(matches.next().captured());
    }
    parts.sort();
    return parts;
}

} // namespace

void TestTranslations::everyTextOfTheSourcesIsTranslated_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = catalogues();
    QCOMPARE(names.size(), 15);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestTranslations::everyTextOfTheSourcesIsTranslated()
{
#ifdef Q_OS_WIN
    QSKIP("The script that reads the sources is one for a Unix shell.");
#endif
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(copyCatalogues(folder.path()));
    const QString complaint = update(folder.path());
    if (isMissing(complaint)) {
        QSKIP("lupdate is missing: the sources are not read.");
    }
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));

    const QStringList unfinished = unfinishedIn(folder.filePath(name));
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join(QLatin1Char('\n'))));
    // Texts that are gone from the sources would not be noticed above: scripts/update-translations drops them.
    QCOMPARE(messagesIn(folder.filePath(name)).size(), messagesIn(QDir(sources).filePath(name)).size());
}

void TestTranslations::aTextThatLacksATranslationIsNoticed()
{
#ifdef Q_OS_WIN
    QSKIP("The script that reads the sources is one for a Unix shell.");
#endif
    const QTemporaryDir folder;
    QVERIFY(copyCatalogues(folder.path()));
    const QString german = folder.filePath(QStringLiteral("XMLHelper_de.ts"));
    QString text = textOf(german);
    const int size = static_cast<int>(text.size());
    text.remove(QRegularExpression(QStringLiteral("<message>\\s*<source>No Comment</source>.*?</message>"),
                                   QRegularExpression::DotMatchesEverythingOption));
    QVERIFY(text.size() < size);
    QFile file(german);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0);
    file.close();
    QCOMPARE(unfinishedIn(german), QStringList());

    const QString complaint = update(folder.path());
    if (isMissing(complaint)) {
        QSKIP("lupdate is missing: the sources are not read.");
    }
    QStringList unfinished = unfinishedIn(german);
    unfinished.removeDuplicates(); // the text is the button's name for screen readers too
    QCOMPARE(unfinished, QStringList(QStringLiteral("No Comment")));
}

void TestTranslations::translationsKeepWhatIsNoLanguage_data()
{
    everyTextOfTheSourcesIsTranslated_data();
}

void TestTranslations::translationsKeepWhatIsNoLanguage()
{
    QFETCH(QString, name);
    const QList<Message> messages = messagesIn(QDir(sources).filePath(name));
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages) {
        QCOMPARE(fixedPartsOf(message.translation), fixedPartsOf(message.source));
    }
}

void TestTranslations::oneWordIsUsedThroughout_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source"); // where this is said, a pattern
    QTest::addColumn<QString>("word"); // this is the word
    QTest::addColumn<QString>("other"); // and not this, wherever
    const auto row = [](const char* name, const char* source, const char* word, const char* other) {
        QTest::newRow(name) << QString::fromLatin1(name).left(2) << QString::fromUtf8(source) << QString::fromUtf8(word)
                            << QString::fromUtf8(other);
    };
    row("de-required", "\\brequired\\b", "orgeschrieben", "\\bPflicht\\b|\\bverlangt\\b");
    row("de-left-out", "(?:are|were) left out", "weggelassen", "weitere.*fehlen|entfielen");
    row("de-each-other", "(?:hold|contain) each other", "einander", "enthalten sich");
    row("de-of-a-type", "that (?:is|are) of it\\b", "hat|haben", "von ihm (?:ist|sind)");
    row("fr-alternative", "\\balternatives?\\b", "branche", "alternative");
    row("fr-skipped", "\\bskipped\\b", "ignoré", "\\bsauté");
    row("fr-without-a-word", "without a word", "sans avertissement", "sans un mot");
    row("fr-written-out", "[Ww]ritten out", "développé", "en entier\\b");
    row("fr-complaint", "^complaint:", "réclamation", "objection");
    row("fr-semicolon", "[^;];[^;]", " ;", "[^ ;];(?!;)");
}

/// Of the programs for the authors of schemas and reports, whose sentences are read beside each other.
void TestTranslations::oneWordIsUsedThroughout()
{
    QFETCH(const QString, language);
    QFETCH(const QString, source);
    QFETCH(const QString, word);
    QFETCH(const QString, other);
    int count = 0;
    for (const char* const catalogue : {"SchemaDoctor", "ReportCheck"}) {
        const QList<Message> messages
            = messagesIn(QStringLiteral("%1/%2_%3.ts").arg(sources, QLatin1String(catalogue), language));
        for (const Message& message : messages) {
            QVERIFY2(!message.translation.contains(QRegularExpression(other)), qPrintable(message.translation));
            if (message.source.contains(QRegularExpression(source))) {
                QVERIFY2(message.translation.contains(QRegularExpression(word)), qPrintable(message.translation));
                ++count;
            }
        }
    }
    QVERIFY(count > 0);
}

void TestTranslations::theRegistryLoadsEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("value");

    QTest::newRow("german") << "de"
                            << "Bericht erstellen (Shift+F10)"
                            << "keine Peilung";
    QTest::newRow("german-of-austria") << "de_AT"
                                       << "Bericht erstellen (Shift+F10)"
                                       << "keine Peilung";
    QTest::newRow("french") << "fr" << QStringLiteral("Créer un rapport (Shift+F10)")
                            << QStringLiteral("pas de relèvement");
    QTest::newRow("english") << "en"
                             << "To Report (Shift+F10)"
                             << "no bearing";
}

void TestTranslations::theRegistryLoadsEveryLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, button);
    QFETCH(QString, value);
    TranslationCenter& center = TranslationCenter::Instance();
    center.Register(QStringLiteral("XMLHelper"));
    center.Register(QStringLiteral("MeasurementPanel"));

    QCOMPARE(center.InstallTranslators(QLocale(language), compiled), 2);
    QCOMPARE(QCoreApplication::translate("VCReporting", "To Report (Shift+F10)"), button);
    QCOMPARE(QCoreApplication::translate("PanelWindow", "no bearing"), value);

    center.Unregister(QStringLiteral("XMLHelper"));
    center.Unregister(QStringLiteral("MeasurementPanel"));
}

void TestTranslations::englishMendsTheQuestion()
{
    const char* const question = "You have enterd a comment. Would you like to save it?";
    TranslationCenter::Instance().Register(QStringLiteral("XMLHelper"));
    QCOMPARE(QCoreApplication::translate("CommentDialogImpl", question), QLatin1String(question));
    QCOMPARE(TranslationCenter::Instance().InstallTranslators(QLocale(QStringLiteral("en")), compiled), 1);
    QCOMPARE(QCoreApplication::translate("CommentDialogImpl", question),
             QStringLiteral("You have entered a comment. Would you like to save it?"));
    TranslationCenter::Instance().Unregister(QStringLiteral("XMLHelper"));
}

QTEST_GUILESS_MAIN(TestTranslations)

#include "tst_translations.moc"
