#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <QDir>
#include <QDomDocument>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <arbase/errorhandler.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/vcreporting.h>
#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlevent.h>
#include <xmlhelper/xmlreader.h>
#include <xmlhelper/xmlwriter.h>

#include "confined.h"
#include "domtext.h"
#include "fakeclock.h"
#include "flows.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

using Deed = std::function<void()>;
using Work = std::function<QString(const QString& folder)>;
Q_DECLARE_METATYPE(Work)

/// What a client does where the library calls it.
enum class Act {
    NestOthers, ///< works with other objects of the library
    Pump, ///< runs the event loop, which does the same
    UseItself, ///< calls the object that is calling
    PumpItself, ///< runs the event loop, which does the same
    SetContent, ///< gives the reader that is calling other content
    Delete, ///< deletes the object that is calling
    Throw,
};
Q_DECLARE_METATYPE(Act)

/// The signals of the button.
enum class Signal { Prepare, Available, Successful, NotSuccessful };
Q_DECLARE_METATYPE(Signal)
Q_DECLARE_METATYPE(XmlEvent::type)

/// Every place where the library calls out, and what a client may do there: the object that has called goes on as if
/// nothing had been, and what was begun there gives what it gives elsewhere.
class TestRobustnessReentrance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void readerCallsItsObserver_data();
    void readerCallsItsObserver();
    void readerIsLeftByAnException_data();
    void readerIsLeftByAnException();
    void builderCallsItsObserver_data();
    void builderCallsItsObserver();
    void buttonEmitsASignal_data();
    void buttonEmitsASignal();
    void buttonReadsAValue_data();
    void buttonReadsAValue();
    void libraryTraces_data();
    void libraryTraces();

private:
    static void addReaderRows(const std::function<bool(Act)>& isWanted);

    QTemporaryDir m_folder;
    QStringList m_expected; ///< what the flows give where nobody calls
};

namespace {

struct Thrown
{
};

const char Content[] = "<report><a k='v'>text</a><b><c>1.5</c></b></report>";
const char OtherContent[] = "<other/>";

const char Schema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
<xs:element name="Report"><xs:complexType><xs:sequence>
  <xs:element name="Frequency" type="xs:double"/>
  <xs:element name="Mode" type="xs:string"/>
</xs:sequence></xs:complexType></xs:element>
</xs:schema>)";

const char FilledReport[] = "<Report><Frequency>98.5</Frequency><Mode>FM</Mode></Report>";

bool writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// What the flows give that make no widgets.
QStringList resultsOfFlows(const QString& folder)
{
    QStringList results;
    for (const Flow& flow : flows()) {
        if (!flow.hasWidgets) {
            results += flow.run(folder);
        }
    }
    return results;
}

/// What the flows give to a client that is called for the first time; nothing at later calls, which would take long.
void nestOnce(QStringList& nested, const QString& folder)
{
    if (nested.isEmpty()) {
        nested = resultsOfFlows(folder);
    }
}

/// Lets the event loop do @p deed.
void pump(const Deed& deed)
{
    QTimer::singleShot(0, deed);
    QCoreApplication::processEvents();
}

/// An observer that acts whenever an event of one kind comes, before it answers.
class ActingObserver : public ScriptedObserver
{
public:
    void Act(XmlEvent::type place, Deed deed)
    {
        m_place = place;
        m_deed = std::move(deed);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (m_deed && event->GetType() == m_place) {
            ++m_iActs;
            m_deed();
        }
        ScriptedObserver::XmlUpdate(event);
    }

    int Acts() const { return m_iActs; }

private:
    XmlEvent::type m_place = XmlEvent::EVENT_NONE;
    Deed m_deed;
    int m_iActs = 0;
};

/// Gives the reader a document that is its own if it takes it.
bool isTaken(XMLReader& reader, std::unique_ptr<QDomDocument> document)
{
    if (!reader.SetXmlContent(document.get())) {
        return false;
    }
    document.release();
    return true;
}

/// The five forms of content. Gives whether it was taken.
bool setContent(XMLReader& reader, int form, const QString& folder, const char* content)
{
    const QString fileName = QDir(folder).filePath(QString::fromLatin1(content).mid(1, 5) + QStringLiteral(".xml"));
    static std::vector<QDomDocument> documents; // A node does not keep its document.
    QDomDocument document = documents.emplace_back(documentOf(QString::fromLatin1(content)));
    QDomDocumentFragment fragment = document.createDocumentFragment();
    switch (form) {
    case 0:
        return writeFile(fileName, content) && reader.SetXmlContent(fileName);
    case 1:
        return reader.SetXmlContent(document);
    case 2:
        return isTaken(reader, std::make_unique<QDomDocument>(document));
    case 3:
        fragment.appendChild(document.documentElement());
        return reader.SetXmlContent(fragment);
    default:
        return reader.SetXmlContent(static_cast<const QDomNode&>(document));
    }
}

QString eventsOf(int form, const QString& folder, const char* content)
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    setContent(reader, form, folder, content);
    reader.ParseXml();
    return recorder.Text();
}

/// The events without the nodes that they carry: these stay those of the content that was set first.
QString withoutNodes(QString events)
{
    return events.remove(QRegularExpression(QStringLiteral(" -> \\w+")));
}

const std::pair<const char*, XmlEvent::type> Places[] = {
    {"begin-of-the-document", XmlEvent::EVENT_DOC_BEGIN}, {"begin-of-an-element", XmlEvent::EVENT_ELEM_BEGIN},
    {"end-of-an-element", XmlEvent::EVENT_ELEM_END},      {"error", XmlEvent::EVENT_ERROR},
    {"end-of-the-document", XmlEvent::EVENT_DOC_END},
};

const std::pair<const char*, Act> Acts[] = {
    {"nests-others", Act::NestOthers},
    {"runs-the-event-loop", Act::Pump},
    {"uses-it", Act::UseItself},
    {"uses-it-from-the-event-loop", Act::PumpItself},
    {"gives-it-other-content", Act::SetContent},
    {"throws", Act::Throw},
};

/// Answers the elements of the schema; refused once.
void answer(ScriptedObserver& observer, XmlCreateReport& builder)
{
    observer.OnElement(QStringLiteral("Frequency"), [&](ElemBeginEvent&) {
        builder.SetXmlValue(QStringLiteral("text"));
        builder.SetXmlValue(98.5);
    });
    observer.OnElement(QStringLiteral("Mode"), [&](ElemBeginEvent&) { builder.SetXmlValue(QStringLiteral("FM")); });
}

/// What the report in @p fileName holds below its root, and the report that it must be.
QString reportText(const QString& fileName)
{
    return domText(documentInFile(fileName).documentElement().firstChildElement())
        + domText(documentInFile(fileName).documentElement().lastChildElement());
}

QString filledReportText()
{
    const QDomDocument report = documentOf(QString::fromLatin1(FilledReport));
    return domText(report.documentElement().firstChildElement()) + domText(report.documentElement().lastChildElement());
}

/// A value that does something when it is read as a text.
class ActingText : public ValueText
{
public:
    ActingText(const Deed& deed)
        : ValueText(QStringLiteral("Mode"), QStringLiteral("FM"))
        , m_deed(deed)
    {
    }

    QString GetText() const override
    {
        if (m_deed) {
            m_deed();
        }
        return ValueText::GetText();
    }

private:
    const Deed& m_deed;
};

/// A value that does something when it is read as a number.
class ActingNumber : public ValueNumeric
{
public:
    ActingNumber(const Deed& deed)
        : ValueNumeric(QStringLiteral("Frequency"), 98.5)
        , m_deed(deed)
    {
    }

    double GetNumericValue() const override
    {
        if (m_deed) {
            m_deed();
        }
        return ValueNumeric::GetNumericValue();
    }

private:
    const Deed& m_deed;
};

/// A screen with a report button in a folder of its own, whose values do what they are told when they are read.
class Screen
{
public:
    Screen()
        : m_clock(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56)))
    {
        m_isReady = m_folder.isValid() && writeFile(SchemaFile(), Schema) && QDir().mkdir(Directory());
        new ValueItem(new ActingNumber(numberDeed), m_tree.GetRoot());
        new ValueItem(new ActingText(textDeed), m_tree.GetRoot());
        button = new VCReporting(SchemaFile(), Directory(), nullptr, true, "ToReport", false, QPixmap());
        button->AddReportData(m_tree.GetRoot());
        QObject::connect(button, &VCReporting::PrepareToReport, button, [this] { ++prepared; });
        QObject::connect(button, &VCReporting::ReportSuccessful, button, [this] { ++successful; });
    }
    ~Screen() { delete button; }

    /// Presses for a report of its own time, before and behind.
    bool Press()
    {
        m_clock.Advance(1000);
        const bool isSuccessful = button->SlotToReport();
        m_clock.Advance(1000);
        return isSuccessful;
    }

    QStringList Reports() const
    {
        QStringList texts;
        const QDir directory(Directory());
        for (const QString& name : directory.entryList(QDir::Files)) {
            texts += reportText(directory.filePath(name));
        }
        return texts;
    }

    QString SchemaFile() const { return m_folder.filePath(QStringLiteral("schema.xsd")); }
    QString Directory() const { return m_folder.filePath(QStringLiteral("reports")); }
    bool IsReady() const { return m_isReady; }

    QPointer<VCReporting> button;
    Deed numberDeed;
    Deed textDeed;
    int prepared = 0;
    int successful = 0;

private:
    QTemporaryDir m_folder;
    FakeClock m_clock;
    Tree m_tree;
    bool m_isReady = false;
};

/// Enters the button on one of the ways by which a screen does.
void enter(Screen& screen, const QString& entry)
{
    if (entry == QLatin1String("call")) {
        screen.Press();
    } else if (entry == QLatin1String("click")) {
        screen.button->GetReportButton()->click();
    } else if (entry == QLatin1String("watch")) {
        screen.button->EnableReportButton(true);
    } else {
        auto* const timer = screen.button->findChild<QTimer*>();
        QTimerEvent tick(timer->timerId());
        QCoreApplication::sendEvent(timer, &tick);
    }
}

const Flow& flowCalled(const char* name)
{
    return *std::find_if(flows().begin(), flows().end(),
                         [name](const Flow& flow) { return qstrcmp(flow.name, name) == 0; });
}

/// Does something whenever the library traces, while it lives.
class ActingTraceHandler
{
public:
    explicit ActingTraceHandler(Deed deed)
        : m_previousHandler(qInstallMessageHandler(act))
        , m_previousMask(ErrorHandler::Instance().GetTraceMask())
    {
        s_deed = std::move(deed);
        ErrorHandler::Instance().SetTraceMask(32);
    }
    ~ActingTraceHandler()
    {
        ErrorHandler::Instance().SetTraceMask(m_previousMask);
        qInstallMessageHandler(m_previousHandler);
    }

private:
    Q_DISABLE_COPY(ActingTraceHandler)
    static void act(QtMsgType, const QMessageLogContext& context, const QString&)
    {
        if (qstrcmp(context.category, "arbase.trace") == 0) {
            s_deed();
        }
    }

    static inline Deed s_deed;
    QtMessageHandler m_previousHandler;
    quint32 m_previousMask;
};

} // namespace

void TestRobustnessReentrance::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QVERIFY(writeInputs(m_folder.path()));
    m_expected = resultsOfFlows(m_folder.path());
    QVERIFY(m_expected.size() > 5);
}

void TestRobustnessReentrance::addReaderRows(const std::function<bool(Act)>& isWanted)
{
    QTest::addColumn<int>("form");
    QTest::addColumn<XmlEvent::type>("place");
    QTest::addColumn<Act>("act");
    const char* const forms[] = {"file", "document", "owned-document", "fragment", "node"};
    for (int form = 0; form < 5; ++form) {
        for (const auto& [placeName, place] : Places) {
            for (const auto& [actName, act] : Acts) {
                if (place != XmlEvent::EVENT_ERROR && isWanted(act)) {
                    QTest::addRow("%s-%s-%s", forms[form], placeName, actName) << form << place << act;
                }
            }
        }
    }
}

void TestRobustnessReentrance::readerCallsItsObserver_data()
{
    addReaderRows([](Act act) { return act != Act::Throw; });
}

void TestRobustnessReentrance::readerCallsItsObserver()
{
    QFETCH(int, form);
    QFETCH(XmlEvent::type, place);
    QFETCH(Act, act);
    const QString expected = eventsOf(form, m_folder.path(), Content);
    ActingObserver observer;
    XMLReader reader(&observer, nullptr);
    QVERIFY(setContent(reader, form, m_folder.path(), Content));

    QStringList nested;
    QList<bool> answers;
    const Deed deeds[] = {
        [&] { nestOnce(nested, m_folder.path()); },
        [&] { pump([&] { nestOnce(nested, m_folder.path()); }); },
        [&] { answers += reader.ParseXml(); },
        [&] { pump([&] { answers += reader.ParseXml(); }); },
        [&] { answers += !setContent(reader, form, m_folder.path(), OtherContent); },
    };
    observer.Act(place, deeds[int(act)]);
    const TraceCollector traces;
    QVERIFY(reader.ParseXml());
    QCOMPARE(observer.Recorder().Text(), expected);
    QVERIFY(!answers.contains(true));
    const bool isRefused = act == Act::UseItself || act == Act::PumpItself;
    QVERIFY2(!isRefused || int(traces.Traces().size()) == observer.Acts(), qPrintable(traces.Messages()));
    QVERIFY(observer.Acts() > 0);
    QCOMPARE(nested, act == Act::NestOthers || act == Act::Pump ? m_expected : QStringList());

    // What was given from inside is what the next parse delivers.
    if (act == Act::SetContent) {
        observer.Act(XmlEvent::EVENT_NONE, {});
        QVERIFY(reader.ParseXml());
        QCOMPARE(withoutNodes(observer.Recorder().Text()),
                 withoutNodes(expected + eventsOf(form, m_folder.path(), OtherContent)));
    }
    QCOMPARE(eventsOf(form, m_folder.path(), Content), expected);
}

void TestRobustnessReentrance::readerIsLeftByAnException_data()
{
    addReaderRows([](Act act) { return act == Act::Throw; });
}

/// The reader can be deleted, and others read as before.
void TestRobustnessReentrance::readerIsLeftByAnException()
{
    QFETCH(int, form);
    QFETCH(XmlEvent::type, place);
    if (isSanitized()) {
        QSKIP("Qt's parser leaks what it holds when an exception goes through it.");
    }
    const QString expected = eventsOf(form, m_folder.path(), Content);
    ActingObserver observer;
    auto reader = std::make_unique<XMLReader>(&observer, nullptr);
    QVERIFY(setContent(*reader, form, m_folder.path(), Content));
    observer.Act(place, [] { throw Thrown(); });
    QVERIFY_EXCEPTION_THROWN(reader->ParseXml(), Thrown);
    QCOMPARE(observer.Acts(), 1);
    reader.reset();
    QCOMPARE(eventsOf(form, m_folder.path(), Content), expected);
}

void TestRobustnessReentrance::builderCallsItsObserver_data()
{
    QTest::addColumn<XmlEvent::type>("place");
    QTest::addColumn<Act>("act");
    for (const auto& [placeName, place] : Places) {
        for (const auto& [actName, act] : Acts) {
            if (place != XmlEvent::EVENT_ELEM_END && act != Act::SetContent) {
                QTest::addRow("%s-%s", placeName, actName) << place << act;
            }
        }
    }
}

void TestRobustnessReentrance::builderCallsItsObserver()
{
    QFETCH(XmlEvent::type, place);
    QFETCH(Act, act);
    const QTemporaryDir folder;
    const QString schema = folder.filePath(QStringLiteral("schema.xsd"));
    const QString report = folder.filePath(QStringLiteral("report.xml"));
    QVERIFY(writeFile(schema, Schema));
    ActingObserver observer;
    auto builder = std::make_unique<XmlCreateReport>(&observer);
    answer(observer, *builder);

    QStringList nested;
    QList<bool> answers;
    const auto createAgain = [&] { answers += builder->CreateXmlFromSchema(schema, report, false); };
    const Deed deeds[] = {
        [&] { nestOnce(nested, m_folder.path()); },
        [&] { pump([&] { nestOnce(nested, m_folder.path()); }); },
        createAgain,
        [&] { pump(createAgain); },
        {},
        {},
        [] { throw Thrown(); },
    };
    observer.Act(place, deeds[int(act)]);
    if (act == Act::Throw) {
        QVERIFY_EXCEPTION_THROWN(builder->CreateXmlFromSchema(schema, report, false), Thrown);
        QVERIFY(!QFile::exists(report));
    } else {
        QVERIFY(builder->CreateXmlFromSchema(schema, report, false));
        QCOMPARE(reportText(report), filledReportText());
        QVERIFY(!answers.contains(true));
    }
    QVERIFY(observer.Acts() > 0);
    QCOMPARE(nested, act == Act::NestOthers || act == Act::Pump ? m_expected : QStringList());
    builder.reset();
    QCOMPARE(resultsOfFlows(m_folder.path()), m_expected);
}

void TestRobustnessReentrance::buttonEmitsASignal_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("entry");
    const std::pair<const char*, Signal> signalNames[] = {
        {"before-a-report", Signal::Prepare},
        {"availability", Signal::Available},
        {"success", Signal::Successful},
        {"failure", Signal::NotSuccessful},
    };
    const std::pair<const char*, Act> acts[] = {
        {"nests-others", Act::NestOthers}, {"runs-the-event-loop", Act::Pump},
        {"presses-it", Act::UseItself},    {"presses-it-from-the-event-loop", Act::PumpItself},
        {"deletes-it", Act::Delete},
    };
    for (const auto& [signalName, signal] : signalNames) {
        for (const auto& [actName, act] : acts) {
            const bool isWatch = signal == Signal::Available;
            const QStringList entries = isWatch ? QStringList {QStringLiteral("watch"), QStringLiteral("timer")}
                                                : QStringList {QStringLiteral("call"), QStringLiteral("click")};
            for (const QString& entry : entries) {
                QTest::addRow("%s-%s-%s", signalName, qPrintable(entry), actName) << signal << act << entry;
            }
        }
    }
}

void TestRobustnessReentrance::buttonEmitsASignal()
{
    QFETCH(Signal, signal);
    QFETCH(Act, act);
    QFETCH(QString, entry);
    Screen screen;
    QVERIFY(screen.IsReady());
    const bool isFailing = signal == Signal::NotSuccessful;
    if (isFailing) {
        QVERIFY(writeFile(screen.SchemaFile(), "<nothing"));
    }

    int acts = 0;
    QStringList nested;
    const Deed deeds[] = {
        [&] { nestOnce(nested, m_folder.path()); },
        [&] { pump([&] { nestOnce(nested, m_folder.path()); }); },
        [&] { QCOMPARE(screen.Press(), !isFailing); },
        [&] { pump([&] { QCOMPARE(screen.Press(), !isFailing); }); },
        {},
        [&] { delete screen.button; },
    };
    const Deed once = [&] {
        if (++acts == 1) {
            deeds[int(act)]();
        }
    };
    switch (signal) {
    case Signal::Prepare:
        connect(screen.button, &VCReporting::PrepareToReport, this, once);
        break;
    case Signal::Available:
        connect(screen.button, &VCReporting::ReportDirAndSchemaAvailable, this, once);
        break;
    case Signal::Successful:
        connect(screen.button, &VCReporting::ReportSuccessful, this, once);
        break;
    case Signal::NotSuccessful:
        connect(screen.button, &VCReporting::ReportNotSuccessful, this, once);
        break;
    }

    enter(screen, entry);
    QVERIFY(acts > 0);
    QCOMPARE(screen.button.isNull(), act == Act::Delete);
    QCOMPARE(nested, act == Act::NestOthers || act == Act::Pump ? m_expected : QStringList());

    // A deleted button makes no report after that; a press from inside makes one of its own.
    const bool isPressedAgain = act == Act::UseItself || act == Act::PumpItself;
    const int outer = signal == Signal::Available || (act == Act::Delete && signal == Signal::Prepare) ? 0 : 1;
    const QStringList reports = screen.Reports();
    QCOMPARE(int(reports.size()), outer + (isPressedAgain ? 1 : 0));
    QVERIFY(isFailing || reports.count(filledReportText()) == reports.size());
}

void TestRobustnessReentrance::buttonReadsAValue_data()
{
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<Act>("act");
    for (const bool isNumber : {true, false}) {
        for (const auto& [actName, act] : Acts) {
            if (act != Act::SetContent) {
                QTest::addRow("%s-%s", isNumber ? "number" : "text", actName) << isNumber << act;
            }
        }
    }
}

void TestRobustnessReentrance::buttonReadsAValue()
{
    QFETCH(bool, isNumber);
    QFETCH(Act, act);
    Screen screen;
    QVERIFY(screen.IsReady());
    int acts = 0;
    QStringList nested;
    QList<bool> answers;
    const Deed deeds[] = {
        [&] { nestOnce(nested, m_folder.path()); },
        [&] { pump([&] { nestOnce(nested, m_folder.path()); }); },
        [&] { answers += screen.Press(); },
        [&] { pump([&] { answers += screen.Press(); }); },
        {},
        {},
        [] { throw Thrown(); },
    };
    Deed& deed = isNumber ? screen.numberDeed : screen.textDeed;
    deed = [&] {
        if (++acts == 1) {
            deeds[int(act)]();
        }
    };
    if (act == Act::Throw) {
        QVERIFY_EXCEPTION_THROWN(screen.Press(), Thrown);
        QVERIFY(screen.Press());
    } else {
        const TraceCollector traces;
        QVERIFY(screen.Press());
        const bool isRefused = act == Act::UseItself || act == Act::PumpItself;
        QCOMPARE(answers, isRefused ? QList<bool> {false} : QList<bool>());
        QVERIFY2(!isRefused || traces.Traces().size() == 1, qPrintable(traces.Messages()));
        QCOMPARE(screen.prepared, 1);
    }
    QVERIFY(acts > 0);
    QCOMPARE(screen.successful, 1);
    QCOMPARE(screen.Reports(), QStringList {filledReportText()});
    QCOMPARE(nested, act == Act::NestOthers || act == Act::Pump ? m_expected : QStringList());
}

void TestRobustnessReentrance::libraryTraces_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<bool>("isPumped");
    const std::pair<const char*, Work> works[] = {
        {"reader",
         [](const QString& folder) {
             QString deep;
             for (int level = 0; level < 600; ++level) {
                 deep = QLatin1String("<a>") + deep + QLatin1String("</a>");
             }
             EventRecorder recorder;
             XMLReader reader(&recorder, nullptr);
             writeFile(folder + QStringLiteral("/deep.xml"), deep.toLatin1());
             reader.SetXmlContent(folder + QStringLiteral("/deep.xml"));
             return QVariant(reader.ParseXml()).toString() + recorder.Text();
         }},
        {"builder", [](const QString& folder) { return flowCalled("fill-a-report").run(folder); }},
        {"writer",
         [](const QString& folder) {
             XMLWriter writer;
             writer.CreateXmlFile(folder + QStringLiteral("/refused.xml"), QStringLiteral("r"));
             writer.CreateXmlElement(QStringLiteral("no name"), QString(), true);
             writer.CreateXmlElement(QStringLiteral("name"), QStringLiteral("te\u0001xt"), true);
             writer.SaveXmlFile();
             return domText(documentInFile(folder + QStringLiteral("/refused.xml")));
         }},
        {"button",
         [](const QString&) {
             Screen screen;
             screen.Press();
             return screen.Reports().join(QLatin1Char('|'));
         }},
    };
    for (const auto& [name, work] : works) {
        QTest::addRow("%s-nests-others", name) << work << false;
        QTest::addRow("%s-runs-the-event-loop", name) << work << true;
    }
}

/// The deed of the message handler that is installed while the library traces.
void TestRobustnessReentrance::libraryTraces()
{
    QFETCH(Work, work);
    QFETCH(bool, isPumped);
    const QTemporaryDir folder;
    QVERIFY(writeInputs(folder.path()));
    const QString expected = work(folder.path());
    QStringList nested;
    int acts = 0;
    const auto nest = [&] { nestOnce(nested, m_folder.path()); };
    const ActingTraceHandler handler([&] {
        if (++acts == 1) {
            isPumped ? pump(nest) : nest();
        }
    });
    QCOMPARE(work(folder.path()), expected);
    QVERIFY(acts > 0);
    QCOMPARE(nested, m_expected);
}

QTEST_MAIN(TestRobustnessReentrance)
#include "tst_robustness_reentrance.moc"
