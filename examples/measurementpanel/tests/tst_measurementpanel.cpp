#include <QtTest>

#include <QDomDocument>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

class TestMeasurementPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPressWritesAReportThatValidates_data();
    void everyPressWritesAReportThatValidates();
    void reportsHoldWhatTheScreenRegistered();
    void commentsAreTheLastElementOfTheReport_data();
    void commentsAreTheLastElementOfTheReport();
    void reportsOfTwoRunsDifferInTheirTimesOnly();
    void choosesToRunOffscreenWithoutAScreen();
    void savesPicturesOfWindowAndDialog();
    void endsWithFailureWhenAReportIsMissing_data();
    void endsWithFailureWhenAReportIsMissing();
    void explainsItsUsage_data();
    void explainsItsUsage();
    void showsHelp_data();
    void showsHelp();
    void speaksTheLanguageAskedFor_data();
    void speaksTheLanguageAskedFor();
    void remembersNothingOfPressesByItself();
};

namespace {

constexpr int RunTimeMs = 60000;

const QString schemaFile = QStringLiteral(MEASUREMENTPANEL_SCHEMA);

struct Result
{
    bool isEndedNormally = false;
    int exitCode = -1;
    QString output;
    QString errors;

    QStringList Lines() const
    {
        QString text = output;
        return text.remove(QLatin1Char('\r')).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
};

/// In English, whoever's system this is.
QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    return environment;
}

Result run(const QString& program, const QStringList& arguments,
           const QProcessEnvironment& environment = plainEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Result result;
    const bool isEnded = process.waitForFinished(RunTimeMs);
    result.isEndedNormally = isEnded && process.exitStatus() == QProcess::NormalExit;
    result.exitCode = process.exitCode();
    result.output = QString::fromLocal8Bit(process.readAllStandardOutput());
    result.errors = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

Result runPanel(const QStringList& arguments, const QProcessEnvironment& environment = plainEnvironment())
{
    return run(QStringLiteral(MEASUREMENTPANEL_PROGRAM), arguments, environment);
}

QStringList pressing(int times, const QString& directory, const QStringList& more = QStringList())
{
    return QStringList {QStringLiteral("--press"), QString::number(times), QStringLiteral("--reports"), directory}
    + more;
}

QStringList withComment(const QString& comment)
{
    return {QStringLiteral("--comment"), comment};
}

QStringList filesIn(const QTemporaryDir& directory)
{
    return QDir(directory.path()).entryList(QDir::Files, QDir::Name);
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QDomElement rootOf(const QString& path)
{
    QDomDocument document;
    document.setContent(textOf(path));
    return document.documentElement();
}

QList<QDomElement> elementsOf(const QDomElement& root, const QString& name)
{
    QList<QDomElement> elements;
    const QDomNodeList found = root.elementsByTagName(name);
    for (int i = 0; i < found.count(); ++i) {
        elements.append(found.at(i).toElement());
    }
    return elements;
}

QString valueOf(const QDomElement& root, const QString& name)
{
    return root.elementsByTagName(name).item(0).toElement().text();
}

void collectAttributeNames(const QDomElement& element, QSet<QString>& names)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        names.insert(attributes.item(i).nodeName());
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        collectAttributeNames(child, names);
    }
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

void TestMeasurementPanel::everyPressWritesAReportThatValidates_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("without-comment-dialog") << QStringList();
    QTest::newRow("with-comment") << withComment(QStringLiteral("Drifts; <2nd> transmitter & more"));
    QTest::newRow("with-comment-dialog-answered-without-comment") << withComment(QString());
}

void TestMeasurementPanel::everyPressWritesAReportThatValidates()
{
    QFETCH(QStringList, options);
    const QTemporaryDir directory;

    const Result result = runPanel(pressing(3, directory.path(), options));
    QVERIFY2(result.isEndedNormally && result.exitCode == 0, qPrintable(result.errors));
    QStringList names;
    const QStringList printed = result.Lines();
    for (const QString& path : printed) {
        names.append(QFileInfo(path).fileName());
    }
    names.sort();
    QCOMPARE(names.size(), 3);
    QCOMPARE(names, filesIn(directory));

    const QString xmllint = QStandardPaths::findExecutable(QStringLiteral("xmllint"));
    if (xmllint.isEmpty()) {
        QSKIP("xmllint is missing: the reports are not validated.");
    }
    const Result validation
        = run(xmllint, QStringList {QStringLiteral("--noout"), QStringLiteral("--schema"), schemaFile} + printed);
    QVERIFY2(validation.isEndedNormally && validation.exitCode == 0, qPrintable(validation.errors));
}

void TestMeasurementPanel::reportsHoldWhatTheScreenRegistered()
{
    const QTemporaryDir directory;
    const QStringList reports = runPanel(pressing(3, directory.path())).Lines();
    QCOMPARE(reports.size(), 3);

    // The receiver goes on to the next channel with each press; the second is too weak for a bearing.
    const QStringList frequencies {QStringLiteral("98.5"), QStringLiteral("121.5"), QStringLiteral("162.025")};
    const QStringList bandwidths {QStringLiteral("150"), QStringLiteral("8"), QStringLiteral("25")};
    for (int i = 0; i < reports.size(); ++i) {
        const QDomElement root = rootOf(reports[i]);
        QCOMPARE(root.tagName(), QStringLiteral("MeasurementReport"));
        QCOMPARE(valueOf(root, QStringLiteral("Number")), QString::number(i + 1));
        QCOMPARE(valueOf(root, QStringLiteral("Simulated")), QStringLiteral("true"));
        QCOMPARE(valueOf(root, QStringLiteral("Classification")), QStringLiteral("internal"));
        QCOMPARE(valueOf(root, QStringLiteral("Detector")), QStringLiteral("Peak"));
        QCOMPARE(valueOf(root, QStringLiteral("Frequency")), frequencies[i]);
        QCOMPARE(valueOf(root, QStringLiteral("Bandwidth")), bandwidths[i]);

        const QList<QDomElement> samples = elementsOf(root, QStringLiteral("LevelSample"));
        QCOMPARE(samples.size(), 5);
        QCOMPARE(samples.last().text(), valueOf(root, QStringLiteral("Level")));
        QCOMPARE(samples.last().attribute(QStringLiteral("Unit")), QStringLiteral("dBµV"));

        const bool hasBearing = i != 1;
        QCOMPARE(elementsOf(root, QStringLiteral("Azimuth")).size(), hasBearing ? 1 : 0);
        QCOMPARE(elementsOf(root, QStringLiteral("Quality")).size(), hasBearing ? 1 : 0);
        QCOMPARE(elementsOf(root, QStringLiteral("NoBearing")).size(), hasBearing ? 0 : 1);

        for (const char* const unfilled : {"Operator", "Antenna", "FrequencyOffset", "Comment"}) {
            QVERIFY2(elementsOf(root, QLatin1String(unfilled)).isEmpty(), unfilled);
        }
        // Every element has been filled: none has kept what the schema says about it.
        QSet<QString> attributes;
        collectAttributeNames(root, attributes);
        QCOMPARE(attributes,
                 (QSet<QString> {QStringLiteral("Serial"), QStringLiteral("DateTime"), QStringLiteral("Unit"),
                                 QStringLiteral("xmlns:xsi"), QStringLiteral("xsi:noNamespaceSchemaLocation")}));
    }
}

void TestMeasurementPanel::commentsAreTheLastElementOfTheReport_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("lastElement");
    QTest::addColumn<QString>("lastText"); // not looked at when empty

    const QString multiLine = QStringLiteral("Grüße: <a> & \"b\"\nsecond line");
    QTest::newRow("comment-is-appended") << withComment(multiLine) << QStringLiteral("Comment") << multiLine;
    QTest::newRow("no-comment-leaves-the-report-as-it-is")
        << withComment(QString()) << QStringLiteral("Bearing") << QString();
    QTest::newRow("no-dialog-leaves-the-report-as-it-is") << QStringList() << QStringLiteral("Bearing") << QString();
}

void TestMeasurementPanel::commentsAreTheLastElementOfTheReport()
{
    QFETCH(QStringList, options);
    QFETCH(QString, lastElement);
    QFETCH(QString, lastText);
    const QTemporaryDir directory;

    const QStringList reports = runPanel(pressing(1, directory.path(), options)).Lines();
    QCOMPARE(reports.size(), 1);
    const QDomElement last = rootOf(reports.first()).lastChildElement();
    QCOMPARE(last.tagName(), lastElement);
    if (!lastText.isEmpty()) {
        QCOMPARE(last.text(), lastText);
    }
}

void TestMeasurementPanel::reportsOfTwoRunsDifferInTheirTimesOnly()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_HASH_SEED")); // would overrule the program
    const auto reportWithoutTimes = [&environment] {
        const QTemporaryDir directory;
        const QStringList reports = runPanel(pressing(1, directory.path()), environment).Lines();
        const QRegularExpression time(QStringLiteral("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d"));
        return reports.isEmpty() ? QString() : textOf(reports.first()).replace(time, QStringLiteral("time"));
    };
    const QString first = reportWithoutTimes();
    QVERIFY(!first.isEmpty());
    // Two attributes come in the same order by chance in every other run.
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(reportWithoutTimes(), first);
    }
}

void TestMeasurementPanel::choosesToRunOffscreenWithoutAScreen()
{
#ifndef Q_OS_LINUX
    QSKIP("Only on Linux a program may have to run without a screen.");
#endif
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(QLatin1String(variable));
    }
    const QTemporaryDir directory;

    const Result pressed = runPanel(pressing(1, directory.path()), environment);
    QVERIFY2(pressed.isEndedNormally && pressed.exitCode == 0, qPrintable(pressed.errors));
    QCOMPARE(pressed.Lines().size(), 1);

    // A window that nobody sees would never be closed.
    const Result shown = runPanel({}, environment);
    QVERIFY(shown.isEndedNormally);
    QCOMPARE(shown.exitCode, 2);
}

void TestMeasurementPanel::savesPicturesOfWindowAndDialog()
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(QStringLiteral("panel.png"));
    const QStringList options {QStringLiteral("--screenshot"), picture, QStringLiteral("--comment"),
                               QStringLiteral("x")};

    const Result result = runPanel(pressing(1, directory.path(), options));
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    const QImage window(picture, "PNG");
    const QImage dialog(directory.filePath(QStringLiteral("panel-dialog.png")), "PNG");
    QVERIFY(!window.isNull());
    QVERIFY(!dialog.isNull());
    QVERIFY(window.width() > dialog.width());
}

void TestMeasurementPanel::endsWithFailureWhenAReportIsMissing_data()
{
    QTest::addColumn<QString>("reports");
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("reason");

    const QString disabled = QStringLiteral("disabled");
    const QString here = QStringLiteral(".");
    const QString besideTheProgram;
    QTest::newRow("missing-schema-disables-the-button") << here << QStringLiteral("missing.xsd") << disabled;
    QTest::newRow("missing-directory-disables-the-button") << QStringLiteral("missing") << besideTheProgram << disabled;
    QTest::newRow("malformed-schema-cannot-be-read")
        << here << QStringLiteral("malformed.xsd") << QStringLiteral("could not be read");
    QTest::newRow("schema-with-another-ending-makes-no-report")
        << here << QStringLiteral("schema.xml") << QStringLiteral("not made");
    QTest::newRow("file-in-place-of-the-directory-takes-no-report")
        << QStringLiteral("schema.xml") << besideTheProgram << QStringLiteral("could not be written");
}

void TestMeasurementPanel::endsWithFailureWhenAReportIsMissing()
{
    QFETCH(QString, reports);
    QFETCH(QString, schema);
    QFETCH(QString, reason);
    const QTemporaryDir directory;
    QVERIFY(writeFile(directory.filePath(QStringLiteral("malformed.xsd")), "<xs:schema><xs:element name='a'>"));
    QVERIFY(writeFile(directory.filePath(QStringLiteral("schema.xml")), "<xs:schema/>"));

    QStringList schemaOption;
    if (!schema.isEmpty()) {
        schemaOption = QStringList {QStringLiteral("--schema"), directory.filePath(schema)};
    }
    const Result result = runPanel(pressing(3, directory.filePath(reports), schemaOption));
    QVERIFY2(result.isEndedNormally, qPrintable(result.errors));
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
}

void TestMeasurementPanel::explainsItsUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* name, const char* arguments) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '));
    };
    row("unknown-option", "--frequency 1");
    row("unexpected-argument", "report.xml");
    row("press-without-number", "--reports . --press");
    row("press-not-a-number", "--reports . --press often");
    row("press-zero-times", "--reports . --press 0");
    row("press-less-than-zero-times", "--reports . --press=-1");
    row("press-without-directory", "--press 1");
    row("empty-directory", "--press 1 --reports=");
    row("empty-schema", "--press 1 --reports . --schema=");
    row("empty-settings", "--settings=");
    row("comment-without-press", "--comment x");
    row("screenshot-without-press", "--screenshot x.png");
}

void TestMeasurementPanel::explainsItsUsage()
{
    QFETCH(QStringList, arguments);

    const Result result = runPanel(arguments);
    QVERIFY(result.isEndedNormally);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(QLatin1String("Usage:")), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
}

void TestMeasurementPanel::showsHelp_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("long") << QStringLiteral("--help");
    QTest::newRow("short") << QStringLiteral("-h");
}

void TestMeasurementPanel::showsHelp()
{
    QFETCH(QString, option);

    const Result result = runPanel({option});
    QVERIFY(result.isEndedNormally);
    QCOMPARE(result.exitCode, 0);
    for (const char* const known :
         {"--press", "--reports", "--schema", "--language", "--settings", "--comment", "--screenshot"}) {
        QVERIFY2(result.output.contains(QLatin1String(known)), known);
    }
}

void TestMeasurementPanel::speaksTheLanguageAskedFor_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("systemLanguage");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("complaint");

    const QString none;
    const QString unread = QStringLiteral("--schema=malformed.xsd");
    const QString often = QStringLiteral("--press=often");
    QTest::newRow("english-by-default") << none << "de" << unread << "could not be read";
    QTest::newRow("german") << "de"
                            << "en" << unread << "konnte nicht gelesen werden";
    QTest::newRow("french") << "fr"
                            << "en" << unread << QStringLiteral("n'a pas pu être lu");
    QTest::newRow("unknown-language-is-english") << "xx"
                                                 << "de" << unread << "could not be read";
    QTest::newRow("usage-in-the-language-of-the-system")
        << none << "xx:de" << often << QStringLiteral("„often“ ist keine Anzahl");
}

void TestMeasurementPanel::speaksTheLanguageAskedFor()
{
#ifndef Q_OS_LINUX
    QSKIP("How a system says its language is of its own kind.");
#endif
    QFETCH(QString, language);
    QFETCH(QString, systemLanguage);
    QFETCH(QString, option);
    QFETCH(QString, complaint);
    const QFileInfo program(QStringLiteral(MEASUREMENTPANEL_PROGRAM));
    if (!QFile::exists(program.dir().filePath(QStringLiteral("translations/MeasurementPanel_de.qm")))) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    const QTemporaryDir directory;
    QVERIFY(writeFile(directory.filePath(QStringLiteral("malformed.xsd")), "<xs:schema><xs:element name='a'>"));
    QProcessEnvironment environment = plainEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), systemLanguage);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));

    QStringList arguments = pressing(1, directory.path());
    arguments.append(option.contains(QLatin1String("--schema"))
                         ? QStringLiteral("--schema=") + directory.filePath(QStringLiteral("malformed.xsd"))
                         : option);
    if (!language.isEmpty()) {
        arguments.append(QStringLiteral("--language=") + language);
    }
    const Result result = runPanel(arguments, environment);
    QVERIFY(result.isEndedNormally && result.exitCode != 0);
    QVERIFY2(result.errors.contains(complaint), qPrintable(result.errors));
}

void TestMeasurementPanel::remembersNothingOfPressesByItself()
{
    const QTemporaryDir home;
    const QTemporaryDir directory;
    QProcessEnvironment environment = plainEnvironment();
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "APPDATA", "LOCALAPPDATA"}) {
        environment.insert(QLatin1String(variable), home.path());
    }
    const QString file = home.filePath(QStringLiteral("settings.ini"));
    const QStringList options = withComment(QString()) + QStringList {QStringLiteral("--settings"), file};
    const Result result = runPanel(pressing(1, directory.path(), options), environment);
    QVERIFY2(result.exitCode == 0, qPrintable(result.errors));
    QVERIFY(!QFile::exists(file));
    QVERIFY(QDir(home.path()).entryList({QStringLiteral("measurementpanel*")}).isEmpty());
}

QTEST_GUILESS_MAIN(TestMeasurementPanel)

#include "tst_measurementpanel.moc"
