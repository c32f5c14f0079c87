#include <QProcess>
#include <QtTest>

#include <xmlhelperreports/reportjournal.h>

/// The program, as people call it in a shell.
class TestXmlHelperJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesInAFolderOnce();
    void lists_data();
    void lists();
    void exportsATable();
    void verifies();
    void saysThatAJournalIsDamaged();
    void leavesAloneWhatIsNoJournal_data();
    void leavesAloneWhatIsNoJournal();
    void failsWhenItCannotSearch_data();
    void failsWhenItCannotSearch();
    void refusesWhatItCannotDo_data();
    void refusesWhatItCannotDo();
    void tellsHowItIsUsed();

private:
    /// Runs the program in the folder. Gives its exit status.
    int run(const std::initializer_list<const char*>& words);
    int run(const QStringList& arguments);
    void write(const QString& name, const QByteArray& content) const;
    QByteArray read(const QString& name) const;
    /// A row for each command that only reads.
    static void addReadingCommands();

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

void TestXmlHelperJournal::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("reports")));
    write(QStringLiteral("reports/a.xml"), "<R><F Unit='Hz'>98.5</F><Comment>fine weather</Comment></R>");
    write(QStringLiteral("reports/b.xml"), "<R><F Unit='kHz'>120</F></R>");
}

int TestXmlHelperJournal::run(const std::initializer_list<const char*>& words)
{
    QStringList arguments;
    for (const char* const word : words) {
        arguments.append(QLatin1String(word));
    }
    return run(arguments);
}

int TestXmlHelperJournal::run(const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(XMLHELPER_JOURNAL), arguments);
    const bool isEnded = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return isEnded ? process.exitCode() : -1;
}

void TestXmlHelperJournal::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray TestXmlHelperJournal::read(const QString& name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestXmlHelperJournal::takesInAFolderOnce()
{
    for (const char* const said : {"2 reports are new\n", "0 reports are new\n"}) {
        QCOMPARE(run({"read-in", "journal.sqlite", "reports"}), 0);
        QCOMPARE(m_output, QByteArray(said));
    }
}

void TestXmlHelperJournal::lists_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("paths");
    const auto words = [](const char* text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
    QTest::newRow("all") << words("list journal.sqlite") << "ba";
    QTest::newRow("one") << words("list journal.sqlite --limit 1") << "b";
    QTest::newRow("next-page") << words("list journal.sqlite --before 2") << "a";
    QTest::newRow("by-text") << words("search journal.sqlite WEATHER") << "a";
    QTest::newRow("by-label") << words("list journal.sqlite --label good") << "b";
    QTest::newRow("by-verdict") << words("list journal.sqlite --verdict Found") << "ba";
    QTest::newRow("by-time") << words("list journal.sqlite --from 2020-01-01 --to 2120-01-01T00:00:00") << "ba";
    QTest::newRow("none") << words("list journal.sqlite --to 2020-01-01") << "";
}

void TestXmlHelperJournal::lists()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, paths);
    for (const QString& name : {QStringLiteral("a"), QStringLiteral("b")}) {
        ReportJournal journal; // In this order.
        QVERIFY(journal.Open(m_folder->filePath(QStringLiteral("journal.sqlite"))));
        ReportJournal::Entry entry;
        entry.path = QStringLiteral("/reports/%1.xml").arg(name);
        entry.verdict = QStringLiteral("Found");
        entry.comment = name == QLatin1String("a") ? QStringLiteral("fine weather") : QString();
        const QString id = journal.Record(entry);
        QVERIFY(name == QLatin1String("a") || journal.SetLabel(id, QStringLiteral("good")));
    }
    QCOMPARE(run(arguments), paths.isEmpty() ? 1 : 0);
    QCOMPARE(m_errors, QByteArray());
    QString found;
    QRegularExpressionMatchIterator lines
        = QRegularExpression(QStringLiteral("^\\d+ \\d{4}-\\d\\d-\\d\\dT\\S+Z Found /reports/(.)\\.xml( \\[good\\])?$"),
                             QRegularExpression::MultilineOption)
              .globalMatch(QString::fromUtf8(m_output));
    while (lines.hasNext()) {
        found += lines.next().captured(1);
    }
    QCOMPARE(found, paths);
    QCOMPARE(int(m_output.count('\n')), int(paths.size()));
}

void TestXmlHelperJournal::exportsATable()
{
    QCOMPARE(run({"read-in", "journal.sqlite", "reports"}), 0);
    QCOMPARE(run({"export", "journal.sqlite", "--element", "F", "--element", "F@Unit"}), 0);
    QVERIFY2(m_output.startsWith("Time,Station,Report,Schema,Verdict,Comment,Label,F,F@Unit\r\n"),
             m_output.constData());
    QVERIFY(m_output.contains("/reports/a.xml,,Found,fine weather,,98.5,Hz\r\n"));
    QVERIFY(m_output.contains("/reports/b.xml,,Found,,,120,kHz\r\n"));
    const QByteArray table = m_output;
    QCOMPARE(run({"export", "journal.sqlite", "--element", "F", "--element", "F@Unit", "--output", "table.csv"}), 0);
    QCOMPARE(read(QStringLiteral("table.csv")), table);
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("reports/a.xml"))));
    QCOMPARE(run({"export", "journal.sqlite", "--element", "F"}), 1);
    QVERIFY(m_errors.contains("reports/a.xml cannot be read"));
}

void TestXmlHelperJournal::verifies()
{
    QCOMPARE(run({"read-in", "journal.sqlite", "reports"}), 0);
    QCOMPARE(run({"verify", "journal.sqlite"}), 0);
    QCOMPARE(m_output, QByteArray());
    write(QStringLiteral("reports/b.xml"), "<R><F Unit='MHz'>120</F></R>");
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("reports/a.xml"))));
    QCOMPARE(run({"verify", "journal.sqlite"}), 1);
    QVERIFY(m_output.contains("/reports/a.xml: there is no such file any more\n"));
    QVERIFY(m_output.contains("/reports/b.xml: the file has changed"));
}

void TestXmlHelperJournal::saysThatAJournalIsDamaged()
{
    write(QStringLiteral("journal.sqlite"), QByteArray(1000, '\xA5'));
    QCOMPARE(run({"read-in", "journal.sqlite", "reports"}), 0);
    QVERIFY2(m_errors.contains("journal.sqlite.damaged-"), m_errors.constData());
    QCOMPARE(m_output, QByteArray("2 reports are new\n"));
}

void TestXmlHelperJournal::addReadingCommands()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* const command : {"list", "search", "export", "verify"}) {
        QStringList arguments {QLatin1String(command), QStringLiteral("journal.sqlite")};
        if (qstrcmp(command, "search") == 0) {
            arguments.append(QStringLiteral("text"));
        }
        QTest::newRow(command) << arguments;
    }
}

void TestXmlHelperJournal::leavesAloneWhatIsNoJournal_data()
{
    addReadingCommands();
}

/// Neither set aside nor made a journal.
void TestXmlHelperJournal::leavesAloneWhatIsNoJournal()
{
    QFETCH(QStringList, arguments);
    for (const QByteArray& content : {QByteArray(1000, '\xA5'), QByteArray()}) {
        write(QStringLiteral("journal.sqlite"), content);
        QCOMPARE(run(arguments), 2);
        QVERIFY2(m_errors.startsWith("xmlhelper-journal: The journal "), m_errors.constData());
        QCOMPARE(read(QStringLiteral("journal.sqlite")), content);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(QStringLiteral("journal.sqlite")));
    }
}

void TestXmlHelperJournal::failsWhenItCannotSearch_data()
{
    addReadingCommands();
}

/// A journal in all but the name of its table.
void TestXmlHelperJournal::failsWhenItCannotSearch()
{
    QFETCH(QStringList, arguments);
    QVERIFY(ReportJournal().Open(m_folder->filePath(QStringLiteral("journal.sqlite"))));
    write(QStringLiteral("journal.sqlite"), read(QStringLiteral("journal.sqlite")).replace("reports", "reporty"));
    QCOMPARE(run(arguments), 2);
    QVERIFY2(m_errors.contains("no such table"), m_errors.constData());
}

void TestXmlHelperJournal::refusesWhatItCannotDo_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("nothing") << "" << 3;
    QTest::newRow("another-command") << "burn journal.sqlite" << 3;
    QTest::newRow("no-journal") << "list" << 3;
    QTest::newRow("no-text") << "search journal.sqlite" << 3;
    QTest::newRow("too-much") << "list journal.sqlite more" << 3;
    QTest::newRow("another-option") << "list journal.sqlite --colour" << 3;
    QTest::newRow("no-time") << "list journal.sqlite --from yesterday" << 3;
    QTest::newRow("no-number") << "list journal.sqlite --limit few" << 3;
    QTest::newRow("number-below-one") << "list journal.sqlite --before 0" << 3;
    QTest::newRow("no-folder") << "read-in journal.sqlite nowhere" << 3;
    QTest::newRow("folder-into-a-shared-one") << "read-in postgresql:///name reports" << 3;
    QTest::newRow("missing-journal") << "list journal.sqlite" << 2;
    QTest::newRow("missing-database") << "list postgresql:///name?host=/nowhere" << 2;
    QTest::newRow("folder-for-a-journal") << "read-in . reports" << 2;
}

void TestXmlHelperJournal::refusesWhatItCannotDo()
{
    QFETCH(QString, arguments);
    QFETCH(int, status);
    QCOMPARE(run(arguments.isEmpty() ? QStringList() : arguments.split(QLatin1Char(' '))), status);
    QVERIFY2(m_errors.startsWith("xmlhelper-journal: "), m_errors.constData());
    QCOMPARE(m_output, QByteArray());
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("journal.sqlite"))));
}

void TestXmlHelperJournal::tellsHowItIsUsed()
{
    QCOMPARE(run({"--help"}), 0);
    for (const char* const word : {"list", "search", "export", "verify", "read-in", "--element"}) {
        QVERIFY2(m_output.contains(word), word);
    }
    QCOMPARE(run({"--version"}), 0);
    QVERIFY(m_output.startsWith("xmlhelper-journal "));
}

QTEST_GUILESS_MAIN(TestXmlHelperJournal)
#include "tst_xmlhelper_journal.moc"
