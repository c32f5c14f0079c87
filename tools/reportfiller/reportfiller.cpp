#include "reportfiller.h"

#include <algorithm>
#include <type_traits>
#include <utility>
#include <variant>

#include <QDateTime>
#include <QDomNode>

QT_WARNING_DISABLE_DEPRECATED

namespace {

const QLatin1String TypeAttribute("type");
const QLatin1String AttributeSeparator("@");

/// Whether an attribute of the skeleton tells of its element instead of being declared for the report.
bool isAnnotation(const QString& attribute)
{
    return attribute == TypeAttribute || attribute == QLatin1String("default")
        || attribute.contains(QLatin1String("enumeration")) || attribute.contains(QLatin1String("clusive"));
}

using TypedValue = std::variant<QString, bool, int, double, QDateTime, QTime>;

/// The value as what the schema asks for, or as a text when it cannot be read so.
TypedValue typedValue(const QString& text, const QString& type)
{
    const auto isOf = [&type](const char* word) { return type.contains(QLatin1String(word)); };
    if (isOf("bool") && (text == QLatin1String("true") || text == QLatin1String("false"))) {
        return text == QLatin1String("true");
    }
    if (isOf("dateTime") && QDateTime::fromString(text, Qt::ISODate).isValid()) {
        return QDateTime::fromString(text, Qt::ISODate);
    }
    if (isOf("time") && QTime::fromString(text, Qt::ISODate).isValid()) {
        return QTime::fromString(text, Qt::ISODate);
    }
    bool isInteger = false;
    const int integer = text.toInt(&isInteger);
    if (isInteger && (isOf("int") || isOf("short") || isOf("long"))) {
        return integer;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && !isOf("string")) {
        return number;
    }
    return text;
}

/// The value as everything that it may be offered as, in that order.
std::vector<TypedValue> typedValues(const QString& text, const QString& type)
{
    std::vector<TypedValue> all {typedValue(text, type)};
    const auto append = [&all](const TypedValue& value) {
        if (std::none_of(all.begin(), all.end(),
                         [&value](const TypedValue& one) { return one.index() == value.index(); })) {
            all.push_back(value);
        }
    };
    bool isConverted = false;
    const double number = text.toDouble(&isConverted);
    if (isConverted) {
        append(number);
    }
    const int integer = text.toInt(&isConverted);
    if (isConverted) {
        append(integer);
    }
    append(text);
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (moment.isValid()) {
        append(moment);
    }
    return all;
}

QString nameOf(const TypedValue& value)
{
    static const char* const names[] = {"QString", "bool", "int", "double", "QDateTime", "QTime"};
    return QString::fromLatin1(names[value.index()]);
}

bool isTypeError(IXMLHelper::ErrorID error)
{
    return error >= IXMLHelper::CURRENT_TYPE_IS_UNKNOWN && error <= IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN;
}

QString pathOf(const QDomNode& node)
{
    QString path;
    for (QDomNode one = node; one.isElement(); one = one.parentNode()) {
        path.prepend(QLatin1Char('/') + one.nodeName());
    }
    return path;
}

QString wordsFor(IXMLHelper::ErrorID error)
{
    switch (error) {
    case IXMLHelper::CURRENT_TYPE_IS_NOT_STRING:
        return QStringLiteral("its type takes no text");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE:
        return QStringLiteral("its type takes no floating-point number");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER:
        return QStringLiteral("its type takes no integer");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME:
        return QStringLiteral("its type takes no date and time");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_TIME:
        return QStringLiteral("its type takes no time");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN:
        return QStringLiteral("its type takes no truth value");
    case IXMLHelper::VALUE_IS_NOT_VALID:
        return QStringLiteral("the value is outside of its range or enumeration");
    case IXMLHelper::MAX_OCCURS_EXCEEDED:
        return QStringLiteral("it may not occur so often");
    default:
        return QStringLiteral("error %1").arg(error);
    }
}

} // namespace

ReportFiller::ReportFiller(std::list<Value> values)
    : m_builder(this)
    , m_values(std::move(values))
{
}

void ReportFiller::SetJournal(Journal journal)
{
    m_journal = std::move(journal);
}

bool ReportFiller::Fill(const QString& schema, const QString& report)
{
    return m_builder.CreateXmlFromSchema(schema, report, false);
}

QStringList ReportFiller::Complaints() const
{
    QStringList complaints = m_complaints;
    for (const Value& value : m_values) {
        if (!value.isUsed) {
            complaints.append(QStringLiteral("%1: the schema has no place for it").arg(value.name));
        }
    }
    return complaints;
}

void ReportFiller::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() == XmlEvent::EVENT_DOC_END) {
        noteRemovals();
        complainOfRoots();
    } else if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
        noteRemovals();
        m_document = static_cast<ElemBeginEvent*>(event)->GetElementNode().ownerDocument();
        noteAnnouncement(*static_cast<ElemBeginEvent*>(event));
        answerElement(*static_cast<ElemBeginEvent*>(event));
    } else if (event->GetType() == XmlEvent::EVENT_ERROR) {
        answerError(static_cast<ErrorEvent*>(event)->GetErrorID());
    }
}

void ReportFiller::complainOfRoots()
{
    if (!m_document.documentElement().nextSiblingElement().isNull()) {
        m_complaints.append(QStringLiteral("The schema lays out several roots: the report is no XML document"));
    }
}

void ReportFiller::answerElement(ElemBeginEvent& event)
{
    const QXmlAttributes attributes = event.GetElementAttributes();
    const QString type = attributes.value(TypeAttribute);
    const QString parent = event.GetElementNode().parentNode().nodeName();
    m_sElement = event.GetElementName();
    m_bElementHasType = !type.isEmpty();

    Value* value = findUnused(parent + QLatin1Char('/') + m_sElement);
    value = value ? value : findUnused(m_sElement);
    if (value && countOf(value->name) > 1) {
        m_pOffered = value;
        m_refusals.clear();
        note(QStringLiteral("  call SetElementMaxOccurs(%1, %2)").arg(m_sElement).arg(countOf(value->name)));
        m_builder.SetElementMaxOccurs(m_sElement, countOf(value->name));
        complainOfRefusal();
    }
    for (int i = 0; i < attributes.count(); ++i) {
        const QString attribute = attributes.qName(i);
        if (isAnnotation(attribute)) {
            continue;
        }
        if (Value* const given = findUnused(m_sElement + AttributeSeparator + attribute)) {
            setAttribute(*given, attribute, attributes.value(i));
        } else {
            removeDeclaration(attributes, attribute);
        }
    }
    if (value && m_bElementHasType) {
        setElement(*value, type);
    }
    m_pOffered = nullptr;
}

void ReportFiller::answerError(ErrorID error)
{
    if (m_pOffered) {
        note(QStringLiteral("    refused: %1").arg(wordsFor(error)));
        m_refusals.push_back(error);
    } else if (error == MAX_OCCURS_EXCEEDED && m_bElementHasType) {
        note(QStringLiteral("  stays unfilled: it is mandatory"));
        m_complaints.append(QStringLiteral("%1: mandatory, and no value was accepted").arg(m_sElement));
    }
}

void ReportFiller::setElement(Value& value, const QString& type)
{
    offer(value, type, QStringLiteral("SetXmlValue("), [this](const TypedValue& one) {
        std::visit([this](const auto& typed) { m_builder.SetXmlValue(typed); }, one);
    });
}

void ReportFiller::setAttribute(Value& value, const QString& attribute, const QString& type)
{
    offer(value, type, QStringLiteral("SetAttributeValue(%1, ").arg(attribute), [&](const TypedValue& one) {
        std::visit(
            [&](const auto& typed) {
                using Typed = std::decay_t<decltype(typed)>;
                if constexpr (std::is_same_v<Typed, bool> || std::is_same_v<Typed, QTime>) {
                    m_builder.SetAttributeValue(attribute, value.text); // attributes know neither
                } else {
                    m_builder.SetAttributeValue(attribute, typed);
                }
            },
            one);
    });
}

/// Offers the value as one type after the other, until one is not refused for its type.
template <typename Setting>
void ReportFiller::offer(Value& value, const QString& type, const QString& call, const Setting& set)
{
    value.isUsed = true;
    m_pOffered = &value;
    m_refusals.clear();
    for (const TypedValue& typed : typedValues(value.text, type)) {
        const QString verb = m_refusals.empty() ? QStringLiteral("call") : QStringLiteral("retry");
        note(QStringLiteral("  %1 %2%3 %4)").arg(verb, call, nameOf(typed), value.text));
        const std::size_t before = m_refusals.size();
        set(typed);
        if (m_refusals.size() == before) {
            return;
        }
        if (!isTypeError(m_refusals.back())) {
            break;
        }
    }
    complainOfRefusal();
}

/// Of several refusals the first counts: it is about what the type asks for.
void ReportFiller::complainOfRefusal()
{
    if (!m_refusals.empty()) {
        m_complaints.append(
            QStringLiteral("%1=%2: %3").arg(m_pOffered->name, m_pOffered->text, wordsFor(m_refusals.front())));
    }
}

void ReportFiller::note(const QString& line) const
{
    if (m_journal) {
        m_journal(line);
    }
}

/// Remembers the way to the element, so that its removal is noticed.
void ReportFiller::noteAnnouncement(ElemBeginEvent& event)
{
    if (!m_journal) {
        return;
    }
    m_way.clear();
    for (QDomNode node = event.GetElementNode(); node.isElement(); node = node.parentNode()) {
        m_way.push_back({node, pathOf(node)});
    }
    QStringList declarations;
    const QXmlAttributes attributes = event.GetElementAttributes();
    for (int i = 0; i < attributes.count(); ++i) {
        declarations.append(QStringLiteral("%1=%2").arg(attributes.qName(i), attributes.value(i)));
    }
    declarations.sort();
    const QString path = m_way.empty() ? event.GetElementName() : m_way.front().path;
    note(QStringLiteral("announced %1").arg(path + QLatin1Char(' ') + declarations.join(QLatin1Char(' '))).trimmed());
}

/// Between two announcements only the element announced last, or a container around it, can have been removed.
void ReportFiller::noteRemovals()
{
    for (const Announced& announced : m_way) {
        if (announced.node.parentNode().isNull()) {
            note(QStringLiteral("removed %1").arg(announced.path));
        }
    }
    m_way.clear();
}

/// Removes a declared attribute and its facets.
void ReportFiller::removeDeclaration(const QXmlAttributes& attributes, const QString& attribute)
{
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.qName(i);
        if (name == attribute || (isAnnotation(name) && name.endsWith(attribute))) {
            note(QStringLiteral("  call RemoveAttribute(%1)").arg(name));
            m_builder.RemoveAttribute(name);
        }
    }
}

/// The next value of this name that has not been used.
ReportFiller::Value* ReportFiller::findUnused(const QString& name)
{
    const auto found = std::find_if(m_values.begin(), m_values.end(),
                                    [&name](const Value& value) { return !value.isUsed && value.name == name; });
    return found == m_values.end() ? nullptr : &*found;
}

int ReportFiller::countOf(const QString& name) const
{
    return static_cast<int>(
        std::count_if(m_values.begin(), m_values.end(), [&name](const Value& value) { return value.name == name; }));
}
