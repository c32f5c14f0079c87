#include <limits>
#include <vector>

#include <QDateTime>
#include <QDomDocument>
#include <QStringList>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/errorevent.h>
#include <xmlhelper/xmlcreatereport.h>

#include "fuzzing.h"
#include "fuzzinput.h"

// The first part is the schema. The bytes of the second are the answers of the observer, over and over.

namespace {

constexpr int MaxAnswers = 200;
constexpr int MaxMultiplications = 5; // each may multiply what the one before has made
constexpr int MaxNesting = 3;

/// Whether the file of the report must be XML. A schema that declares nothing global but a type of several elements
/// gives a report of several roots.
bool isReadable(const QDomDocument& report)
{
    const QDomElement root = report.documentElement();
    return !root.isNull() && root == report.lastChildElement() && isXml(report);
}

class ScriptedObserver : public IXMLHelper
{
public:
    explicit ScriptedObserver(const QByteArray& script)
        : m_script(script)
        , m_builder(this)
    {
    }

    bool CreateReport()
    {
        Answer();
        const bool isCreated = m_builder.CreateXmlFromSchema(scratchFile(QStringLiteral("schema.xsd")),
                                                             scratchFile(QStringLiteral("report.xml")), false);
        readBack(scratchFile(QStringLiteral("report.xml")), isReadable(document()));
        require(!m_builder.CreateXmlFromSchema(scratchFile(QStringLiteral("schema.xsd")), QString(), false),
                "a builder makes one document");
        for (int i = 0; i < 3; ++i) {
            Answer();
        }
        return isCreated;
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            nodes.push_back(static_cast<ElemBeginEvent*>(event)->GetElementNode());
        } else if (event->GetType() == XmlEvent::EVENT_ERROR) {
            const int id = static_cast<ErrorEvent*>(event)->GetErrorID();
            require(id == GENERAL_ERROR || (id >= NO_CURRENT_ELEMENT && id <= MAX_OCCURS_EXCEEDED),
                    "an error has one of the known numbers");
        }
        if (m_nesting < MaxNesting) {
            ++m_nesting;
            Answer();
            --m_nesting;
        }
    }

    std::vector<QDomNode> nodes;

private:
    void Answer()
    {
        int choice = 0;
        do {
            if (m_script.IsAtEnd()) {
                m_script.Rewind();
            }
            if (m_script.IsAtEnd() || ++m_answers > MaxAnswers) {
                return;
            }
            choice = m_script.Byte();
            act(choice & 31);
        } while (choice & 32);
    }

    void act(int operation);
    void multiply();

    /// The report, as long as the first node that was announced stands in it.
    QDomDocument document() const
    {
        QDomNode top = nodes.empty() ? QDomNode() : nodes.front();
        while (!top.parentNode().isNull()) {
            top = top.parentNode();
        }
        return top.toDocument();
    }

    QDomElement element() const { return nodes.empty() ? QDomElement() : nodes.back().toElement(); }
    QDomAttr someAttribute() { return element().attributes().item(m_script.Choice(4)).toAttr(); }
    QString text()
    {
        static const char* const texts[] = {"", "a", "b", "c", "5", "0.5", "true", "2017-03-31T12:34:56", "]]>", "&<"};
        const int choice = m_script.Choice(16);
        return choice < 10 ? QString::fromLatin1(texts[choice]) : m_script.Line();
    }
    int integer()
    {
        static const int integers[] = {0, 1, -1, 4, 5, 6, -5, 65535, std::numeric_limits<int>::max()};
        return m_script.Of(integers);
    }
    double number()
    {
        using Limits = std::numeric_limits<double>;
        static const double numbers[]
            = {0, 1, -1, 0.5, 5, 5.000001, 65535, 1e300, Limits::quiet_NaN(), Limits::infinity()};
        return m_script.Of(numbers);
    }

    FuzzInput m_script;
    XmlCreateReport m_builder;
    int m_answers = 0;
    int m_multiplications = 0;
    int m_nesting = 0;
};

void ScriptedObserver::act(int operation)
{
    const QDateTime time(QDate(2017, 3, 31), QTime(12, 34, 56));
    switch (operation) {
    case 0:
        return m_builder.SetXmlValue(text());
    case 1:
        return m_builder.SetXmlValue(number());
    case 2:
        return m_builder.SetXmlValue(integer());
    case 3:
        return m_builder.SetXmlValue(m_script.Choice(2) == 1);
    case 4:
        return m_builder.SetXmlValue(m_script.Choice(2) == 1 ? time : QDateTime());
    case 5:
        return m_builder.SetXmlValue(time.time());
    case 6:
        return m_builder.SetXmlValue(someAttribute().value()); // which is how an enumeration is met
    case 7:
        return m_builder.SetAttributeValue(someAttribute().name(), text());
    case 8:
        return m_builder.SetAttributeValue(someAttribute().name(), time);
    case 9:
        return m_builder.SetAttributeValue(someAttribute().name(), integer());
    case 10:
        return m_builder.SetAttributeValue(someAttribute().name(), number());
    case 11:
        return m_builder.RemoveAttribute(someAttribute().name());
    case 12:
        return m_builder.DiscardChoiceItem();
    case 13:
    case 14:
        return multiply();
    case 15:
        element().parentNode().removeChild(element());
        return;
    case 16:
        element().appendChild(element().ownerDocument().createElement(QStringLiteral("a")));
        return;
    case 17:
        element().setTagName(QStringLiteral("b"));
        return;
    case 18:
        element().insertBefore(element().ownerDocument().createTextNode(text()), QDomNode());
        return;
    default:
        return; // leaves the element unanswered
    }
}

void ScriptedObserver::multiply()
{
    static const int counts[] = {0, 1, 2, 3, 5, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    const int count = m_script.Of(counts);
    if (count <= 1 || ++m_multiplications <= MaxMultiplications) {
        m_builder.SetElementMaxOccurs(element().tagName(), count);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const QByteArray schema = xmlOf(input.Part(), schemaVocabulary());
    if (isRepeatingMuch(schema)) {
        return 0;
    }
    writeScratchFile(QStringLiteral("schema.xsd"), schema);

    std::vector<QDomNode> kept;
    {
        ScriptedObserver observer(input.Part());
        observer.CreateReport();
        kept = observer.nodes;
    }
    // Nodes that an observer keeps can be read when the builder is gone.
    for (const QDomNode& node : kept) {
        node.toElement().attributes().count();
        node.toElement().text();
    }
    return 0;
}
