#include <QtTest>

#include "languages.h"
#include "press.h"
#include "presstext.h"
#include "sessionlog.h"

/// What is said of a press, in words and in the list.
class TestPressText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStateHasWordsOfItsOwn_data();
    void everyStateHasWordsOfItsOwn();
    void everyFaultSaysWhatWasNotSavedAndWhatToDo_data();
    void everyFaultSaysWhatWasNotSavedAndWhatToDo();
    void aReportInItsDialogIsAnsweredAgain();
    void onlyAFileThatIsThereIsToBeDeleted();
    void findingsAreTold();

    void theListHasARowForEachPress();
    void aPressKnownIsReplaced();
    void theListFindsThePressOfADialog();
    void theListTellsThatItsWordsHaveChanged();
};

namespace {

constexpr int lastState = static_cast<int>(Press::State::NotWritten);

Press pressIn(Press::State state, int number = 3)
{
    Press press;
    press.number = number;
    press.time = QDateTime(QDate(2026, 3, 1), QTime(12, 30, 5));
    press.schema = QStringLiteral("/schemas/a.xsd");
    press.directory = QStringLiteral("/reports");
    press.state = state;
    if (press.IsSaved()) {
        press.path = QStringLiteral("/reports/r.xml");
    }
    return press;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char* const language : {"en", "de", "fr"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

} // namespace

void TestPressText::everyStateHasWordsOfItsOwn_data()
{
    addLanguages();
}

void TestPressText::everyStateHasWordsOfItsOwn()
{
    QFETCH(QString, language);
    Languages languages(QStringLiteral(MEASUREMENTPANEL_TRANSLATIONS));
    languages.Use(language);
    QSet<QString> verdicts;
    QSet<QString> sentences;
    for (int state = 0; state <= lastState; ++state) {
        const Press press = pressIn(static_cast<Press::State>(state));
        verdicts.insert(PressText::Verdict(press));
        sentences.insert(PressText::Sentence(press));
        QVERIFY(!PressText::Advice(press).isEmpty());
    }
    QCOMPARE(verdicts.size(), lastState + 1);
    QCOMPARE(sentences.size(), lastState + 1);
    QVERIFY(!verdicts.contains(QString()));
    QVERIFY(!sentences.contains(QString()));
    languages.Use(QStringLiteral("en"));
}

void TestPressText::everyFaultSaysWhatWasNotSavedAndWhatToDo_data()
{
    addLanguages();
}

void TestPressText::everyFaultSaysWhatWasNotSavedAndWhatToDo()
{
    QFETCH(QString, language);
    Languages languages(QStringLiteral(MEASUREMENTPANEL_TRANSLATIONS));
    languages.Use(language);
    for (int state = 0; state <= lastState; ++state) {
        const Press press = pressIn(static_cast<Press::State>(state));
        if (!press.IsFailed()) {
            continue;
        }
        // Which report, and which of the paths has to be seen to.
        QVERIFY2(PressText::Sentence(press).contains(QLatin1Char('3')), qPrintable(PressText::Sentence(press)));
        const QString advice = PressText::Advice(press);
        QVERIFY2(press.state == Press::State::Discarded || advice.contains(QDir::toNativeSeparators(press.schema))
                     || advice.contains(QDir::toNativeSeparators(press.directory)),
                 qPrintable(advice));
    }
    languages.Use(QStringLiteral("en"));
}

void TestPressText::aReportInItsDialogIsAnsweredAgain()
{
    Press press = pressIn(Press::State::DirectoryGone);
    QVERIFY(PressText::Advice(press).contains(QLatin1String("press the button again")));
    QWidget dialog;
    press.dialog = &dialog;
    QVERIFY(PressText::Advice(press).contains(QLatin1String("open the comment dialog again")));
}

void TestPressText::onlyAFileThatIsThereIsToBeDeleted()
{
    Press press = pressIn(Press::State::DiskFull);
    QVERIFY(!PressText::Advice(press).contains(QLatin1String("delete")));
    press.path = QStringLiteral("/reports/r.xml");
    QVERIFY(PressText::Advice(press).contains(QLatin1String("delete the incomplete file")));
}

void TestPressText::findingsAreTold()
{
    for (const Press::State state : {Press::State::Doubtful, Press::State::SchemaNotUnderstood}) {
        Press press = pressIn(state);
        press.finding = QStringLiteral("It has no number.");
        QVERIFY(PressText::Advice(press).startsWith(QLatin1String("It has no number. ")));
    }
}

void TestPressText::theListHasARowForEachPress()
{
    SessionLog log;
    QCOMPARE(log.columnCount(), int(SessionLog::ColumnCount));
    const QSignalSpy inserted(&log, &SessionLog::rowsInserted);
    log.Put(pressIn(Press::State::Written, 1));
    log.Put(pressIn(Press::State::DiskFull, 2));
    QCOMPARE(log.rowCount(), 2);
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(log.index(0, SessionLog::Number).data().toInt(), 1);
    QCOMPARE(log.index(0, SessionLog::Time).data().toString(), QStringLiteral("12:30:05"));
    QCOMPARE(log.index(0, SessionLog::Verdict).data().toString(), QStringLiteral("written"));
    QCOMPARE(log.index(0, SessionLog::File).data().toString(), QStringLiteral("r.xml"));
    QCOMPARE(log.index(1, SessionLog::File).data().toString(), QString());
    QCOMPARE(log.rowCount(log.index(0, 0)), 0);
}

void TestPressText::aPressKnownIsReplaced()
{
    SessionLog log;
    log.Put(pressIn(Press::State::WaitingForComment, 1));
    const QSignalSpy changed(&log, &SessionLog::dataChanged);
    log.Put(pressIn(Press::State::Written, 1));
    QCOMPARE(log.rowCount(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(log.At(0).state, Press::State::Written);
}

void TestPressText::theListFindsThePressOfADialog()
{
    SessionLog log;
    QWidget dialog;
    Press press = pressIn(Press::State::WaitingForComment, 2);
    press.dialog = &dialog;
    log.Put(pressIn(Press::State::Written, 1));
    log.Put(press);
    QVERIFY(log.Find(&dialog));
    QCOMPARE(log.Find(&dialog)->number, 2);
    QVERIFY(!log.Find(nullptr)); // the first press has no dialog either
}

void TestPressText::theListTellsThatItsWordsHaveChanged()
{
    qRegisterMetaType<Qt::Orientation>();
    SessionLog log;
    const QSignalSpy headers(&log, &SessionLog::headerDataChanged);
    const QSignalSpy data(&log, &SessionLog::dataChanged);
    log.Translate();
    QCOMPARE(headers.count(), 1);
    QCOMPARE(data.count(), 0);
    log.Put(pressIn(Press::State::Written, 1));
    log.Translate();
    QCOMPARE(headers.count(), 2);
    QCOMPARE(data.count(), 1);
}

QTEST_MAIN(TestPressText)

#include "tst_presstext.moc"
