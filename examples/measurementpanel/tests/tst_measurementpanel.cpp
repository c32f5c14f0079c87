#include <QtTest>

#include <QDomDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

class TestMeasurementPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPressWritesAReportThatValidates();
    void reportsHoldWhatTheScreenRegistered();
    void reportsOfTwoRunsDifferInTheirTimesOnly();
    void reportsGoToTheDocumentsAtFirst();
    void endsWithFailureWhenAReportIsMissing_data();
    void endsWithFailureWhenAReportIsMissing();
    void showsHelp();
    void speaksTheLanguageAskedFor_data();
    void speaksTheLanguageAskedFor();
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

/// In English, whoever's system this is, and with nothing of theirs.
QProcessEnvironment plainEnvironment(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    for (const char* const variable : {"HOME", "APPDATA", "LOCALAPPDATA"}) {
        environment.insert(QLatin1String(variable), home);
    }
    for (const char* const variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "QT_HASH_SEED"}) {
        environment.remove(QLatin1String(variable));
    }
    return environment;
}

Result run(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
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

Result runPanel(const QStringList& arguments, const QProcessEnvironment& environment)
{
    return run(QStringLiteral(MEASUREMENTPANEL_PROGRAM), arguments, environment);
}

/// At the home of somebody who has never started it.
Result runPanel(const QStringList& arguments)
{
    const QTemporaryDir home;
    const Result result = runPanel(arguments, plainEnvironment(home.path()));
    // What presses by itself remembers nothing, and keeps nothing that could not be written.
    return QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty() ? result
                                                                                                         : Result();
}

QStringList pressing(int times, const QString& directory)
{
    return {QStringLiteral("--press"), QString::number(times), QStringLiteral("--reports"), directory};
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

void TestMeasurementPanel::everyPressWritesAReportThatValidates()
{
    const QTemporaryDir directory;

    const Result result = runPanel(pressing(3, directory.path()));
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
        = run(xmllint, QStringList {QStringLiteral("--noout"), QStringLiteral("--schema"), schemaFile} + printed,
              QProcessEnvironment::systemEnvironment());
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

void TestMeasurementPanel::reportsOfTwoRunsDifferInTheirTimesOnly()
{
    const auto reportWithoutTimes = [] {
        const QTemporaryDir directory;
        const QStringList reports = runPanel(pressing(1, directory.path())).Lines();
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

void TestMeasurementPanel::reportsGoToTheDocumentsAtFirst()
{
#ifdef Q_OS_WIN
    QSKIP("The documents lie where the user's account has them.");
#endif
    const QTemporaryDir home;
    const Result result = runPanel({QStringLiteral("--press"), QStringLiteral("1")}, plainEnvironment(home.path()));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.Lines().size(), 1);
    QCOMPARE(QFileInfo(result.Lines().constFirst()).path(),
             home.filePath(QStringLiteral("Documents/Measurement Reports")));
}

void TestMeasurementPanel::endsWithFailureWhenAReportIsMissing_data()
{
    QTest::addColumn<QString>("reports");
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("reason");

    const QString here = QStringLiteral(".");
    const QString besideTheProgram;
    const QString none = QStringLiteral("No report is made");
    QTest::newRow("missing-schema-disables-the-button") << here << QStringLiteral("missing.xsd") << none;
    QTest::newRow("missing-directory-disables-the-button") << QStringLiteral("missing") << besideTheProgram << none;
    QTest::newRow("malformed-schema-cannot-be-read")
        << here << QStringLiteral("malformed.xsd") << QStringLiteral("malformed.xsd is not well-formed");
    QTest::newRow("schema-with-another-ending-makes-no-report") << here << QStringLiteral("schema.xml") << none;
    QTest::newRow("file-in-place-of-the-directory-takes-no-report")
        << QStringLiteral("schema.xml") << besideTheProgram << none;
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
    const Result result = runPanel(pressing(3, directory.filePath(reports)) + schemaOption);
    QVERIFY2(result.isEndedNormally, qPrintable(result.errors));
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QVERIFY(result.output.isEmpty());
}

void TestMeasurementPanel::showsHelp()
{
    const Result result = runPanel({QStringLiteral("--help")});
    QVERIFY(result.isEndedNormally);
    QCOMPARE(result.exitCode, 0);
    for (const char* const known : {"--press", "--reports", "--schema", "--language"}) {
        QVERIFY2(result.output.contains(QLatin1String(known)), known);
    }
}

void TestMeasurementPanel::speaksTheLanguageAskedFor_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("systemLanguage");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("german") << "de"
                            << "en"
                            << "nicht wohlgeformt";
    QTest::newRow("french") << "fr"
                            << "de" << QStringLiteral("n'est pas bien formé");
    QTest::newRow("unknown-language-is-english") << "xx"
                                                 << "de"
                                                 << "is not well-formed";
    QTest::newRow("that-of-the-system-at-first") << ""
                                                 << "de"
                                                 << "nicht wohlgeformt";
}

void TestMeasurementPanel::speaksTheLanguageAskedFor()
{
#ifndef Q_OS_LINUX
    QSKIP("How a system says its language is of its own kind.");
#endif
    QFETCH(QString, language);
    QFETCH(QString, systemLanguage);
    QFETCH(QString, complaint);
    const QFileInfo program(QStringLiteral(MEASUREMENTPANEL_PROGRAM));
    if (!QFile::exists(program.dir().filePath(QStringLiteral("translations/MeasurementPanel_de.qm")))) {
        QSKIP("Built without lrelease: there are no translations.");
    }
    const QTemporaryDir directory;
    const QString schema = directory.filePath(QStringLiteral("malformed.xsd"));
    QVERIFY(writeFile(schema, "<xs:schema><xs:element name='a'>"));
    QProcessEnvironment environment = plainEnvironment(directory.path());
    environment.insert(QStringLiteral("LANGUAGE"), systemLanguage);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));

    const QStringList options {QStringLiteral("--schema"), schema, QStringLiteral("--language=") + language};
    const Result result = runPanel(pressing(1, directory.path()) + options, environment);
    QVERIFY(result.isEndedNormally && result.exitCode != 0);
    QVERIFY2(result.errors.contains(complaint), qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(TestMeasurementPanel)

#include "tst_measurementpanel.moc"
