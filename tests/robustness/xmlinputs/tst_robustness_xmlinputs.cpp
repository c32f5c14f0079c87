#include <QtTest>

#include <functional>
#include <memory>

#include <QDir>
#include <QTemporaryDir>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/xmlreader.h>

#include "domtext.h"
#include "eventrecorder.h"
#include "hostilecontent.h"
#include "smallstack.h"
#include "tracecollector.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

QT_WARNING_DISABLE_DEPRECATED

Q_DECLARE_METATYPE(QDomDocument)

/// Whatever a content file holds or is, the reader answers, and reads the next file normally.
class TestRobustnessXmlInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsWhatTheParserTakes_data();
    void readsWhatTheParserTakes();
    void readsATextOf10Megabytes();
    void readsALongTextFromMemory_data();
    void readsALongTextFromMemory();
    void readsAnAttributeOf1Megabyte();
    void reads50000Attributes();
    void answersForDocumentsThatAreNoXml_data();
    void answersForDocumentsThatAreNoXml();
    void takesAnythingButARegularFileForMissing_data();
    void takesAnythingButARegularFileForMissing();

private:
    QString pathOf(const QString& name) const { return QDir(m_pFolder->path()).filePath(name); }
    QString write(const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

namespace {

struct Outcome
{
    bool isSet = false;
    bool isParsed = false;
    bool isSameAgain = false; ///< by a second parse
    bool isNextRead = false; ///< sound content, by the same reader
    EventRecorder recorder; ///< of the first parse
};

/// What a reader, on a small stack, makes of the file called @p fileName, and then of the one called @p next.
std::unique_ptr<Outcome> read(const QString& fileName, const QString& next)
{
    auto outcome = std::make_unique<Outcome>();
    runOnSmallStack([&] {
        EventRecorder recorder;
        XMLReader reader(&recorder, nullptr);
        outcome->isSet = reader.SetXmlContent(fileName);
        outcome->isParsed = reader.ParseXml();
        outcome->recorder = recorder;
        recorder.Clear();
        outcome->isSameAgain = reader.ParseXml() == outcome->isParsed && recorder.Text() == outcome->recorder.Text();
        reader.GetElement(QStringLiteral("r"), QString());
        outcome->isNextRead = reader.SetXmlContent(next) && reader.ParseXml();
    });
    return outcome;
}

bool isTakenByTheParser(const QString& fileName)
{
    QFile file(fileName);
    QXmlDefaultHandler nobody;
    QXmlSimpleReader parser;
    parser.setContentHandler(&nobody);
    return parser.parse(QXmlInputSource(&file));
}

bool isEnding(const EventRecorder& recorder)
{
    return recorder.Lines().contains(QStringLiteral("document ends"));
}

} // namespace

void TestRobustnessXmlInputs::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    QFile next(pathOf(QStringLiteral("next.xml")));
    QVERIFY(next.open(QIODevice::WriteOnly));
    QVERIFY(next.write("<s/>") > 0);
}

QString TestRobustnessXmlInputs::write(const QByteArray& bytes) const
{
    QFile file(pathOf(QStringLiteral("content.xml")));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

void TestRobustnessXmlInputs::readsWhatTheParserTakes_data()
{
    addRowsOfHostileContent();
}

void TestRobustnessXmlInputs::readsWhatTheParserTakes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Verdict, verdict);
    const QString fileName = write(bytes);
    TraceCollector traces;
    const auto outcome = read(fileName, pathOf(QStringLiteral("next.xml")));

    QVERIFY(outcome->isSet);
    const bool isToBeParsed = verdict == Verdict::Tolerated ? isTakenByTheParser(fileName) : verdict == Verdict::Sound;
    QCOMPARE(outcome->isParsed, isToBeParsed);
    QCOMPARE(isEnding(outcome->recorder), isToBeParsed);
    QVERIFY(outcome->recorder.Errors().empty());
    QVERIFY(outcome->isSameAgain);
    QVERIFY(outcome->isNextRead);
    QCOMPARE(traces.Messages(), QString());
    if (verdict == Verdict::Sound) {
        QCOMPARE(outcome->recorder.Nodes().front().nodeName(), QStringLiteral("r"));
    }
}

void TestRobustnessXmlInputs::readsATextOf10Megabytes()
{
    const auto outcome = read(write("<r>" + QByteArray(10000000, 'x') + "</r>"), pathOf(QStringLiteral("next.xml")));
    QVERIFY(outcome->isParsed);
    QVERIFY(outcome->isSameAgain);
    QVERIFY(outcome->isNextRead);
    QCOMPARE(int(outcome->recorder.Nodes().front().toElement().text().size()), 10000000);
}

void TestRobustnessXmlInputs::readsALongTextFromMemory_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("document") << 0;
    QTest::newRow("fragment") << 1;
    QTest::newRow("node") << 2;
}

/// What is in memory is saved before it is parsed, and Qt needs a time for a text of these that grows with the square
/// of its length: minutes.
void TestRobustnessXmlInputs::readsALongTextFromMemory()
{
    QFETCH(int, form);
    const QString text = QStringLiteral("<&").repeated(1000000);
    QDomDocument document;
    QVERIFY(document.setContent(QStringLiteral("<r/>")));
    QDomElement root = document.documentElement();
    QDomText node = document.createTextNode(text);
    root.appendChild(node);

    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    if (form == 0) {
        reader.SetXmlContent(document);
    } else if (form == 1) {
        QDomDocumentFragment fragment = document.createDocumentFragment();
        fragment.appendChild(root);
        reader.SetXmlContent(fragment);
    } else {
        reader.SetXmlContent(QDomNode(root));
    }
    QVERIFY(reader.ParseXml());
    QCOMPARE(int(recorder.Nodes().size()), 1);
    QCOMPARE(root.childNodes().size(), 1);
    QCOMPARE(node.data(), text);
}

void TestRobustnessXmlInputs::readsAnAttributeOf1Megabyte()
{
    const auto outcome = read(write("<r k='" + QByteArray(1000000, 'x') + "'/>"), pathOf(QStringLiteral("next.xml")));
    QVERIFY(outcome->isParsed);
    QVERIFY(outcome->isSameAgain);
    QVERIFY(outcome->isNextRead);
    QCOMPARE(int(outcome->recorder.Nodes().front().toElement().attribute(QStringLiteral("k")).size()), 1000000);
}

void TestRobustnessXmlInputs::reads50000Attributes()
{
    QByteArray xml = "<r";
    for (int i = 0; i < 50000; ++i) {
        xml += " k" + QByteArray::number(i) + "='v'";
    }
    const auto outcome = read(write(xml + "/>"), pathOf(QStringLiteral("next.xml")));
    QVERIFY(outcome->isParsed);
    QVERIFY(outcome->isSameAgain);
    QVERIFY(outcome->isNextRead);
    QCOMPARE(int(outcome->recorder.Nodes().front().attributes().count()), 50000);
}

void TestRobustnessXmlInputs::answersForDocumentsThatAreNoXml_data()
{
    QTest::addColumn<QDomDocument>("document");
    const auto addRow = [](const char* rule, const std::function<void(QDomDocument&, QDomElement&)>& spoil) {
        QDomDocument document = documentOf(QStringLiteral("<r/>"));
        QDomElement root = document.documentElement();
        spoil(document, root);
        QTest::newRow(rule) << document;
    };
    addRow("name-with-blanks", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createElement(QStringLiteral("a b")));
    });
    addRow("name-without-letters", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createElement(QString(QChar(0))));
    });
    addRow("empty-name", [](QDomDocument&, QDomElement& root) { root.setTagName(QString()); });
    addRow("attribute-name-with-quotes",
           [](QDomDocument&, QDomElement& root) { root.setAttribute(QStringLiteral("'\"<>"), QStringLiteral("v")); });
    addRow("nul-in-a-text", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createTextNode(QString(QChar(0))));
    });
    addRow("end-of-a-comment-in-a-comment", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createComment(QStringLiteral("--><a>")));
    });
    addRow("end-of-a-section-in-a-section", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createCDATASection(QStringLiteral("]]><a>")));
    });
    addRow("end-of-an-instruction-in-an-instruction", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createProcessingInstruction(QStringLiteral("p"), QStringLiteral("?><a>")));
    });
    addRow("reference-to-nothing", [](QDomDocument& document, QDomElement& root) {
        root.appendChild(document.createEntityReference(QStringLiteral("never")));
    });
}

/// A document that was made, not read, may hold what no file can say.
void TestRobustnessXmlInputs::answersForDocumentsThatAreNoXml()
{
    QFETCH(QDomDocument, document);
    bool isSameAgain = false;
    bool isNodeTheSame = false;
    bool isNextRead = false;
    EventRecorder recorder;
    runOnSmallStack([&] {
        XMLReader reader(&recorder, nullptr);
        reader.SetXmlContent(document);
        const bool isParsed = reader.ParseXml();
        isSameAgain = reader.ParseXml() == isParsed;
        reader.SetXmlContent(static_cast<const QDomNode&>(document));
        isNodeTheSame = reader.ParseXml() == isParsed;
        isNextRead = reader.SetXmlContent(pathOf(QStringLiteral("next.xml"))) && reader.ParseXml();
    });
    QVERIFY(recorder.Errors().empty());
    QVERIFY(isSameAgain);
    QVERIFY(isNodeTheSame);
    QVERIFY(isNextRead);
}

void TestRobustnessXmlInputs::takesAnythingButARegularFileForMissing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("name-too-long-for-any-file") << QString(100000, QLatin1Char('x'));
    // More than the 32,767 characters that Windows takes, and not much more: wine shortens such a path in a time that
    // grows with the square of its length.
    QTest::newRow("path-too-long-for-any-file") << QStringLiteral("../").repeated(11000) + QStringLiteral("x");
    QTest::newRow("name-with-a-nul") << QStringLiteral("next.xml") + QChar(0) + QStringLiteral("x");
    QTest::newRow("name-with-a-lone-surrogate") << QString(QChar(0xD83D));
    QTest::newRow("address-in-the-web") << QStringLiteral("http://127.0.0.1:9/content.xml");
#ifdef Q_OS_UNIX
    QTest::newRow("pipe-without-writer") << QStringLiteral("pipe");
    QTest::newRow("pipe-by-back-slashes") << QStringLiteral(".\\pipe");
    QTest::newRow("empty-device") << QStringLiteral("/dev/null");
    QTest::newRow("device-without-end") << QStringLiteral("/dev/zero");
#endif
}

void TestRobustnessXmlInputs::takesAnythingButARegularFileForMissing()
{
    QFETCH(QString, name);
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(pathOf(QStringLiteral("pipe"))).constData(), 0600), 0);
#endif
    const QString next = pathOf(QStringLiteral("next.xml"));
    const auto missing = read(pathOf(QStringLiteral("missing.xml")), next);
    const auto outcome = read(pathOf(name), next);
    QVERIFY(outcome->isSet);
    QVERIFY(!outcome->isParsed);
    QCOMPARE(outcome->recorder.Text(), missing->recorder.Text());
    QVERIFY(outcome->isSameAgain);
    QVERIFY(outcome->isNextRead);
}

QTEST_GUILESS_MAIN(TestRobustnessXmlInputs)
#include "tst_robustness_xmlinputs.moc"
