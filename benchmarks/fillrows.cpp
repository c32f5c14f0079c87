#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <QDateTime>
#include <QDomDocument>

#include <xmlhelper/numberconversion_p.h>
#include <xmlhelper/xmlhelper.h>

#include "observers.h"
#include "rows.h"
#include "workspace.h"

namespace {

/// How often a setter is called in one run.
constexpr int CallsOfRun = 500;

using Clock = std::chrono::steady_clock;

double msOf(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/// What it costs to look at the clock twice.
double clockMs()
{
    static const double cost = [] {
        std::vector<double> costs;
        for (int i = 0; i < 1000; ++i) {
            const auto start = Clock::now();
            costs.push_back(msOf(Clock::now() - start));
        }
        return quantile(costs, 0.5);
    }();
    return cost;
}

/// The time of steps that are too short for a run of their own. Each counts as much as the median, without the clock's
/// part of it: the wall clock is the only one fine enough, and it runs on when the process has to wait.
class Stopwatch
{
public:
    void Reset() { m_steps.clear(); }
    double Ms() const { return (quantile(m_steps, 0.5) - clockMs()) * static_cast<double>(m_steps.size()); }

    template <class Step> void Measure(Step&& step)
    {
        toggleInstructionCounter();
        const auto start = Clock::now();
        step();
        m_steps.push_back(msOf(Clock::now() - start));
        toggleInstructionCounter();
    }

private:
    std::vector<double> m_steps;
};

QByteArray schemaOf(const QString& declaration)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Survey'>"
                          "<xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType></xs:element></xs:schema>")
        .arg(declaration)
        .toUtf8();
}

QString simpleElement(const QString& type)
{
    return QStringLiteral("<xs:element name='Value' type='xs:%1'/>").arg(type);
}

QString rangedElement(const QString& type)
{
    return QStringLiteral("<xs:element name='Value'><xs:simpleType><xs:restriction base='xs:%1'>"
                          "<xs:minInclusive value='-1000'/><xs:maxInclusive value='1000'/></xs:restriction>"
                          "</xs:simpleType></xs:element>")
        .arg(type);
}

QString attributedElement(const QString& type)
{
    return QStringLiteral("<xs:element name='Value'><xs:complexType><xs:simpleContent><xs:extension base='xs:string'>"
                          "<xs:attribute name='Tag' type='xs:%1'/></xs:extension></xs:simpleContent>"
                          "</xs:complexType></xs:element>")
        .arg(type);
}

QString enumeratedElement(int values)
{
    QString declaration = QStringLiteral("<xs:element name='Value'><xs:simpleType><xs:restriction base='xs:string'>");
    for (int i = 0; i < values; ++i) {
        declaration += QStringLiteral("<xs:enumeration value='choice %1'/>").arg(i);
    }
    return declaration + QStringLiteral("</xs:restriction></xs:simpleType></xs:element>");
}

/// A builder whose walk has ended on the one value of its schema and which therefore acts on it.
struct OpenReport
{
    OpenReport(const QString& schema, const QString& report)
        : builder(&observer)
    {
        builder.CreateXmlFromSchema(schema, report, false);
    }

    LastElementObserver observer;
    XmlCreateReport builder;
};

/// The same value as the bare DOM has it.
struct BareValue
{
    explicit BareValue(const QDomElement& skeletonValue)
        : document(skeletonValue.ownerDocument().cloneNode(true).toDocument())
        , element(document.documentElement().firstChildElement())
    {
    }

    QDomDocument document;
    QDomElement element;
};

using Setter = std::function<void(XmlCreateReport&)>;
using Edit = std::function<void(BareValue&)>;

/// Gives @p value the attributes and the content that @p original has.
void restore(QDomElement value, const QDomElement& original)
{
    while (value.hasChildNodes()) {
        value.removeChild(value.firstChild());
    }
    const QDomNamedNodeMap attributes = original.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        value.setAttribute(attribute.name(), attribute.value());
    }
}

struct FillState
{
    std::unique_ptr<OpenReport> report;
    std::unique_ptr<BareValue> original;
    std::unique_ptr<BareValue> value;
    Stopwatch stopwatch;
};

QString checkFilling(const FillState& state)
{
    const QString filled = canonicalText(state.report->observer.Element().ownerDocument());
    if (filled == canonicalText(state.original->document)) {
        return QStringLiteral("nothing was set");
    }
    return differenceOf(filled, canonicalText(state.value->document));
}

std::shared_ptr<FillState> fillState(const Workspace& workspace, const QString& declaration)
{
    const QString schema = workspace.Write(QStringLiteral("fill.xsd"), schemaOf(declaration));
    auto state = std::make_shared<FillState>();
    state->report = std::make_unique<OpenReport>(schema, workspace.Nowhere());
    state->original = std::make_unique<BareValue>(state->report->observer.Element());
    return state;
}

/// Sets the same value @p calls times; what is restored before each call is not measured.
Contest fill(const Workspace& workspace, const QString& declaration, const Setter& set, const Edit& edit, int calls)
{
    const std::shared_ptr<FillState> state = fillState(workspace, declaration);
    state->value = std::make_unique<BareValue>(state->original->element);
    const auto ownMs = [state] { return state->stopwatch.Ms(); };
    const auto reset = [state] { state->stopwatch.Reset(); };
    return {{reset,
             [=] {
                 for (int i = 0; i < calls; ++i) {
                     restore(state->report->observer.Element(), state->original->element);
                     state->stopwatch.Measure([&] { set(state->report->builder); });
                 }
             },
             {},
             ownMs},
            {reset,
             [=] {
                 for (int i = 0; i < calls; ++i) {
                     restore(state->value->element, state->original->element);
                     state->stopwatch.Measure([&] { edit(*state->value); });
                 }
             },
             {},
             ownMs},
            [state] { return checkFilling(*state); }};
}

/// Does something to a report that can be done only once.
Contest fillOnce(const Workspace& workspace, const QString& declaration, const Setter& set, const Edit& edit)
{
    const std::shared_ptr<FillState> state = fillState(workspace, declaration);
    const QString schema = workspace.Path(QStringLiteral("fill.xsd"));
    const QString nowhere = workspace.Nowhere();
    return {{[=] { state->report = std::make_unique<OpenReport>(schema, nowhere); },
             [=] { set(state->report->builder); },
             {},
             {}},
            {[=] { state->value = std::make_unique<BareValue>(state->original->element); },
             [=] { edit(*state->value); },
             {},
             {}},
            [state] { return checkFilling(*state); }};
}

void append(BareValue& value, const QString& text)
{
    value.element.removeAttribute(QStringLiteral("type"));
    value.element.appendChild(value.document.createTextNode(text));
}

void appendRanged(BareValue& value, const QString& text)
{
    value.element.removeAttribute(QStringLiteral("minInclusive"));
    value.element.removeAttribute(QStringLiteral("maxInclusive"));
    append(value, text);
}

struct SetterRow
{
    QString name;
    QString declaration;
    Setter set;
    Edit edit;
};

std::vector<SetterRow> setters()
{
    const QString text = QStringLiteral("Tower & Hill");
    const QString tag = QStringLiteral("Tag");
    const QDateTime time(QDate(2020, 2, 29), QTime(23, 59, 58));
    return {
        {QStringLiteral("text"), simpleElement(QStringLiteral("string")),
         [=](XmlCreateReport& report) { report.SetXmlValue(text); }, [=](BareValue& value) { append(value, text); }},
        {QStringLiteral("double"), rangedElement(QStringLiteral("double")),
         [](XmlCreateReport& report) { report.SetXmlValue(-73.5); },
         [](BareValue& value) { appendRanged(value, toReportText(-73.5)); }},
        {QStringLiteral("integer"), rangedElement(QStringLiteral("integer")),
         [](XmlCreateReport& report) { report.SetXmlValue(87); },
         [](BareValue& value) { appendRanged(value, QString::number(87)); }},
        {QStringLiteral("boolean"), simpleElement(QStringLiteral("boolean")),
         [](XmlCreateReport& report) { report.SetXmlValue(true); },
         [](BareValue& value) { append(value, QStringLiteral("true")); }},
        {QStringLiteral("date-time"), simpleElement(QStringLiteral("dateTime")),
         [=](XmlCreateReport& report) { report.SetXmlValue(time); },
         [=](BareValue& value) { append(value, time.toString(Qt::ISODate)); }},
        {QStringLiteral("time"), simpleElement(QStringLiteral("time")),
         [=](XmlCreateReport& report) { report.SetXmlValue(time.time()); },
         [=](BareValue& value) { append(value, time.time().toString(Qt::ISODate)); }},
        {QStringLiteral("attribute-text"), attributedElement(QStringLiteral("string")),
         [=](XmlCreateReport& report) { report.SetAttributeValue(tag, text); },
         [=](BareValue& value) { value.element.setAttribute(tag, text); }},
        {QStringLiteral("attribute-double"), attributedElement(QStringLiteral("double")),
         [=](XmlCreateReport& report) { report.SetAttributeValue(tag, -73.5); },
         [=](BareValue& value) { value.element.setAttribute(tag, toReportText(-73.5)); }},
        {QStringLiteral("attribute-integer"), attributedElement(QStringLiteral("integer")),
         [=](XmlCreateReport& report) { report.SetAttributeValue(tag, 87); },
         [=](BareValue& value) { value.element.setAttribute(tag, QString::number(87)); }},
        {QStringLiteral("attribute-date-time"), attributedElement(QStringLiteral("dateTime")),
         [=](XmlCreateReport& report) { report.SetAttributeValue(tag, time); },
         [=](BareValue& value) { value.element.setAttribute(tag, time.toString(Qt::ISODate)); }},
        {QStringLiteral("attribute-removed"), attributedElement(QStringLiteral("string")),
         [=](XmlCreateReport& report) { report.RemoveAttribute(tag); },
         [=](BareValue& value) { value.element.removeAttribute(tag); }},
    };
}

Contest fillEnumeration(const Workspace& workspace, int values)
{
    const QString chosen = QStringLiteral("choice %1").arg(values - 1);
    const auto edit = [=](BareValue& value) {
        for (int i = 1; i <= values; ++i) {
            value.element.removeAttribute(QStringLiteral("enumeration") + QString::number(i));
        }
        append(value, chosen);
    };
    return fillOnce(
        workspace, enumeratedElement(values), [=](XmlCreateReport& report) { report.SetXmlValue(chosen); }, edit);
}

QString repeatedItem()
{
    return QStringLiteral("<xs:element name='Item' type='xs:double' maxOccurs='unbounded'/>");
}

Contest copy(const Workspace& workspace, int count)
{
    const auto edit = [=](BareValue& value) {
        QDomNode parent = value.element.parentNode();
        for (int i = 1; i < count; ++i) {
            parent.insertAfter(value.element.cloneNode(true), value.element);
        }
    };
    return fillOnce(
        workspace, repeatedItem(),
        [=](XmlCreateReport& report) { report.SetElementMaxOccurs(QStringLiteral("Item"), count); }, edit);
}

/// @p stations containers of two values each. The last container declares the names "A" and "B" for its values, and
/// when @p isShared is set all others do, too.
QString stations(int stations, bool isShared)
{
    QString declarations;
    for (int i = 0; i < stations; ++i) {
        const bool isNamed = isShared || i == stations - 1;
        declarations += QStringLiteral("<xs:element name='Station%1'><xs:complexType><xs:sequence>"
                                       "<xs:element name='%2' type='xs:double' maxOccurs='5'/>"
                                       "<xs:element name='%3' type='xs:double' maxOccurs='5'/>"
                                       "</xs:sequence></xs:complexType></xs:element>")
                            .arg(QString::number(i), isNamed ? QStringLiteral("A") : QStringLiteral("C"),
                                 isNamed ? QStringLiteral("B") : QStringLiteral("D"));
    }
    return declarations;
}

/// Asks a hundred times whether the last value may occur; a name is only looked at when it differs from the one before.
void askForOccurrences(XmlCreateReport& report)
{
    for (int i = 0; i < 50; ++i) {
        report.SetElementMaxOccurs(QStringLiteral("A"), 1);
        report.SetElementMaxOccurs(QStringLiteral("B"), 1);
    }
}

/// Counts the refusals of occurrences, once it is told that the walk has ended.
class RefusalCounter : public LastElementObserver
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        LastElementObserver::XmlUpdate(event);
        m_refusals += event->GetType() == XmlEvent::EVENT_ERROR ? 1 : 0;
        if (event->GetType() == XmlEvent::EVENT_DOC_END) {
            m_refusals = 0;
        }
    }

    int Refusals() const { return m_refusals; }

private:
    int m_refusals = 0;
};

struct OwnedReport
{
    RefusalCounter observer;
    std::unique_ptr<XmlCreateReport> builder;

    void prepare(const QString& schema, const QString& report)
    {
        builder = std::make_unique<XmlCreateReport>(&observer);
        builder->CreateXmlFromSchema(schema, report, false);
    }
};

/// A name with many owners against a name with one, in documents of the same size.
Contest askOwners(const Workspace& workspace, int owners)
{
    const QString shared = workspace.Write(QStringLiteral("shared.xsd"), schemaOf(stations(owners, true)));
    const QString single = workspace.Write(QStringLiteral("single.xsd"), schemaOf(stations(owners, false)));
    const QString nowhere = workspace.Nowhere();
    auto many = std::make_shared<OwnedReport>();
    auto one = std::make_shared<OwnedReport>();
    return {{[=] { many->prepare(shared, nowhere); }, [=] { askForOccurrences(*many->builder); },
             [=] { many->builder.reset(); }},
            {[=] { one->prepare(single, nowhere); }, [=] { askForOccurrences(*one->builder); },
             [=] { one->builder.reset(); }},
            [=] {
                const int refusals = many->observer.Refusals() + one->observer.Refusals();
                const bool isRight = refusals == 0 && many->observer.Element().tagName() == QLatin1String("B");
                return isRight ? QString() : QStringLiteral("%1 occurrences were refused").arg(refusals);
            }};
}

} // namespace

std::vector<Row> fillRows(const Workspace& workspace)
{
    std::vector<Row> rows;
    for (const SetterRow& setter : setters()) {
        rows.push_back({QStringLiteral("fill/") + setter.name,
                        QStringLiteral("the bare DOM edits"),
                        1.3,
                        {CallsOfRun},
                        [=, &workspace](int calls) {
                            return fill(workspace, setter.declaration, setter.set, setter.edit, calls);
                        }});
    }
    rows.push_back({QStringLiteral("fill/enumeration"),
                    QStringLiteral("linear; beside it, the bare DOM edits"),
                    1.5,
                    {10, 100, 1000, 5000},
                    [&workspace](int values) { return fillEnumeration(workspace, values); },
                    0,
                    1.1});
    return rows;
}

std::vector<Row> occursRows(const Workspace& workspace)
{
    return {
        {QStringLiteral("occurs/copies"),
         QStringLiteral("clone and insert"),
         1.1,
         {100, 10000},
         [&workspace](int count) { return copy(workspace, count); }},
        {QStringLiteral("occurs/owners"),
         QStringLiteral("one owner"),
         1.2,
         {100, 1000, 10000},
         [&workspace](int owners) { return askOwners(workspace, owners); }},
    };
}
