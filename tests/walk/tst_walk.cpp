#include <functional>
#include <memory>
#include <random>

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlcreatereport.h>

#include "domtext.h"
#include "eventrecorder.h"
#include "randomschema.h"
#include "referencereport.h"

namespace {

/// What a guest of a walk can do, whoever walks.
struct Operations
{
    std::function<void(const QString& value)> setXmlValue;
    std::function<void(const QString& name, int count)> setElementMaxOccurs;
    std::function<void()> discardChoiceItem;
};

/// How the guests of a round behave.
enum class Manners {
    Answering, ///< only uses the operations
    Meddling, ///< changes the document through the nodes that it is given, too
    Annotating, ///< changes attributes, comments and what stands where the walk stands, in the same way
    Enlarging ///< adds roots, and elements with prefixes before the place where the walk stands
};

/// Answers every event by what a random generator says, so that two guests with the same seed that receive the same
/// events do the same.
class Guest : public IXMLHelper
{
public:
    Guest(unsigned seed, Manners manners)
        : m_random(seed)
        , m_manners(manners)
        , m_bBusy(false)
        , m_iEvents(0)
    {
        // Some fill nearly everything, some nearly nothing.
        m_uFilling = below(4);
    }

    Operations operations;

    const EventRecorder& Recorder() const { return m_recorder; }

    void XmlUpdate(XmlEvent* event) override
    {
        m_recorder.XmlUpdate(event);
        if (++m_iEvents > MaxEvents) {
            return;
        }
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            auto* const begin = static_cast<ElemBeginEvent*>(event);
            if (m_manners == Manners::Meddling && below(12) == 0) {
                meddle(begin->GetElementNode());
            } else if (m_manners == Manners::Annotating && below(2) == 0) {
                annotate(begin->GetElementNode());
            } else if (m_manners == Manners::Enlarging && below(4) == 0) {
                enlarge(begin->GetElementNode());
            }
            answer(begin->GetElementName());
        } else if (event->GetType() == XmlEvent::EVENT_ERROR && !m_bBusy && below(8) == 0) {
            m_bBusy = true;
            answer(QStringLiteral("a"));
            m_bBusy = false;
        }
    }

private:
    /// Copies of copies must come to an end.
    static constexpr int MaxEvents = 300;

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random()) % bound; }

    void answer(const QString& name)
    {
        const unsigned choice = below(8);
        if (choice < 2 * m_uFilling) {
            operations.setXmlValue(QStringLiteral("v"));
        } else if (choice == 6) {
            const QString limited = below(4) == 0 ? QStringLiteral("b") : name;
            operations.setElementMaxOccurs(limited, static_cast<int>(below(4)));
            operations.setXmlValue(QStringLiteral("w"));
        } else if (choice == 7) {
            operations.discardChoiceItem();
        }
    }

    void meddle(QDomNode node)
    {
        QDomNode parent = node.parentNode();
        QDomDocument document = node.ownerDocument();
        const QString name = QString(QLatin1Char(static_cast<char>('a' + below(4))));
        switch (below(10)) {
        case 8:
        case 9:
            annotate(node);
            break;
        case 0: // in front of everything, where it becomes the first of its name
            document.documentElement().insertBefore(document.createElement(name), QDomNode());
            break;
        case 1:
            parent.insertBefore(document.createElement(name), node);
            break;
        case 2:
            node.appendChild(document.createElement(name));
            break;
        case 3:
            node.toElement().setAttribute(QStringLiteral("x"), name);
            break;
        case 4:
            node.toElement().setTagName(name);
            break;
        case 5: // the library does not stand on it
            parent.removeChild(node.previousSibling());
            break;
        case 6:
            if (parent.isElement()) {
                parent.appendChild(node.cloneNode(true));
            }
            break;
        default:
            document.appendChild(document.createComment(name));
            break;
        }
    }

    /// Changes nothing that stands before the walk, so that it needs no second look.
    void annotate(QDomNode node)
    {
        QDomNode parent = node.parentNode();
        QDomDocument document = node.ownerDocument();
        const QString name = QString(QLatin1Char(static_cast<char>('a' + below(4))));
        switch (below(6)) {
        case 0:
            node.toElement().setAttribute(name, name);
            break;
        case 1:
            node.appendChild(document.createElement(name));
            break;
        case 2:
            parent.insertBefore(document.createComment(name), node);
            break;
        case 3:
            document.insertBefore(document.createComment(name), document.documentElement());
            break;
        case 4:
            document.appendChild(document.createProcessingInstruction(name, name));
            break;
        default:
            document.appendChild(document.createComment(name));
            break;
        }
    }

    void enlarge(QDomNode node)
    {
        QDomNode parent = node.parentNode();
        QDomDocument document = node.ownerDocument();
        const QString name = QString(QLatin1Char(static_cast<char>('a' + below(4))));
        const QDomElement prefixed = document.createElementNS(QStringLiteral("urn:p"), QStringLiteral("p:") + name);
        switch (below(8)) {
        case 0:
            document.appendChild(document.createElement(name));
            break;
        case 1:
            document.appendChild(node == document.documentElement() ? node.lastChild().toElement() : prefixed);
            break;
        case 2: // where a search does not start
            document.appendChild(document.createComment(name));
            break;
        case 3:
            if (node != document.documentElement()) {
                document.documentElement().insertBefore(prefixed, QDomNode());
            }
            break;
        case 4:
            if (parent.isElement()) {
                parent.insertBefore(prefixed, node)
                    .appendChild(document.createElement(QString(QLatin1Char(static_cast<char>('a' + below(4))))));
            }
            break;
        case 5: // what no rule speaks of: a namespace without a prefix
            if (parent.isElement()) {
                parent.insertBefore(document.createElementNS(QStringLiteral("urn:p"), name), node);
            }
            break;
        case 6:
            if (parent.isElement()) {
                parent.insertBefore(document.createProcessingInstruction(name, name), node);
            }
            break;
        default: // so that the walk goes on below another root
            if (node == document.documentElement()) {
                document.appendChild(node.lastChild().toElement());
                node.toElement().setAttribute(QStringLiteral("type"), QStringLiteral("string"));
                operations.setXmlValue(QStringLiteral("r"));
            }
            break;
        }
    }

    EventRecorder m_recorder;
    std::mt19937 m_random;
    Manners m_manners;
    bool m_bBusy;
    int m_iEvents;
    unsigned m_uFilling;
};

#ifdef Q_OS_WIN
constexpr int UsualRounds = 1000; // Files take their time there.
#else
constexpr int UsualRounds = 5000;
#endif

/// How many rounds each test runs; more of them on demand.
int rounds()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("XMLHELPER_WALK_ROUNDS", &isNumber);
    return isNumber ? wanted : UsualRounds;
}

/// Where the rounds begin, so that many can be run in several processes.
unsigned firstSeed()
{
    return static_cast<unsigned>(qEnvironmentVariableIntValue("XMLHELPER_WALK_SEED")) + 1U;
}

} // namespace

/// Holds the walk of the library, which answers from an index and does not recurse, against the rules by the letter.
class TestWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void walksByTheRules_data();
    void walksByTheRules();

private:
    QTemporaryDir m_folder;
};

void TestWalk::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void TestWalk::walksByTheRules_data()
{
    QTest::addColumn<int>("manners");
    QTest::addColumn<unsigned>("oneSeed"); // 0: as many rounds as are wanted
    QTest::newRow("observers-that-answer") << static_cast<int>(Manners::Answering) << 0U;
    QTest::newRow("observers-that-change-the-document") << static_cast<int>(Manners::Meddling) << 0U;
    QTest::newRow("observers-that-annotate-without-a-second-look") << static_cast<int>(Manners::Annotating) << 0U;
    QTest::newRow("observers-that-add-roots-and-prefixes") << static_cast<int>(Manners::Enlarging) << 0U;
    QTest::newRow("root-with-a-prefix") << static_cast<int>(Manners::Enlarging) << 7054850U;
    QTest::newRow("root-again-behind-a-prefix") << static_cast<int>(Manners::Enlarging) << 7047459U;
}

void TestWalk::walksByTheRules()
{
    QFETCH(int, manners);
    QFETCH(unsigned, oneSeed);
    const int wanted = oneSeed == 0 ? rounds() : 1;
    Limits noLook;
    noLook.nodesLookedAtAgain = -1000000000;
    const auto inForce
        = static_cast<Manners>(manners) == Manners::Annotating ? std::make_unique<LimitsInForce>(noLook) : nullptr;
    const QString schemaPath = m_folder.filePath(QStringLiteral("random.xsd"));
    const QString reportPath = m_folder.filePath(QStringLiteral("report.xml"));
    qint64 events = 0;
    int errors = 0;
    for (int round = 0; round < wanted; ++round) {
        const unsigned seed = (oneSeed == 0 ? firstSeed() : oneSeed) + static_cast<unsigned>(round);
        // Some file systems wait for the disk when a file is written anew over its old content.
        QFile::remove(schemaPath);
        QFile::remove(reportPath);
        const QString schema = RandomSchema(seed).Make();
        QFile file(schemaPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(schema.toUtf8()) > 0);
        file.close();

        Guest libraryGuest(seed, static_cast<Manners>(manners));
        XmlCreateReport report(&libraryGuest);
        libraryGuest.operations.setXmlValue = [&](const QString& value) { report.SetXmlValue(value); };
        libraryGuest.operations.setElementMaxOccurs
            = [&](const QString& name, int count) { report.SetElementMaxOccurs(name, count); };
        libraryGuest.operations.discardChoiceItem = [&] { report.DiscardChoiceItem(); };
        QVERIFY(report.CreateXmlFromSchema(schemaPath, reportPath, false));

        Guest literalGuest(seed, static_cast<Manners>(manners));
        ReferenceReport literal(&literalGuest);
        literalGuest.operations.setXmlValue = [&](const QString& value) { literal.SetXmlValue(value); };
        literalGuest.operations.setElementMaxOccurs
            = [&](const QString& name, int count) { literal.SetElementMaxOccurs(name, count); };
        literalGuest.operations.discardChoiceItem = [&] { literal.DiscardChoiceItem(); };
        literal.Create(schemaPath);

        const QByteArray what = QStringLiteral("seed %1, %2").arg(seed).arg(schema).toUtf8();
        const QStringList walked = libraryGuest.Recorder().Lines();
        const QStringList expected = literalGuest.Recorder().Lines();
        for (int i = 0; i < expected.size() && i < walked.size(); ++i) {
            const QString difference
                = QStringLiteral("event %1 is \"%2\" instead of \"%3\", ").arg(i).arg(walked[i], expected[i]);
            QVERIFY2(walked[i] == expected[i], (difference.toUtf8() + what).constData());
        }
        QVERIFY2(walked.size() == expected.size(), what.constData());

        QDomElement root = documentInFile(reportPath).documentElement();
        root.removeAttribute(QStringLiteral("xmlns:xsi"));
        root.removeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"));
        const QDomDocument literalDocument = documentOf(literal.Document().toString());
        QVERIFY2(domText(root) == domText(literalDocument.documentElement()), what.constData());

        events += walked.size();
        errors += static_cast<int>(libraryGuest.Recorder().Errors().size());
    }
    QVERIFY(events > wanted * 5);
    QVERIFY(errors > wanted || oneSeed != 0);
    qInfo("%lld events in %d rounds", static_cast<long long>(events), wanted);
}

QTEST_GUILESS_MAIN(TestWalk)
#include "tst_walk.moc"
