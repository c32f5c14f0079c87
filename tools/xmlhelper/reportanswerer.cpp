#include "reportanswerer_p.h"

#include <new>
#include <vector>

#include <QDateTime>
#include <QDomNode>
#include <QScopedValueRollback>

#include "constants_p.h"
#include "elembeginevent.h"
#include "errorevent.h"
#include "numberconversion_p.h"
#include "skeletonwords_p.h"
#include "tracing_p.h"
#include "treesnapshot_p.h"
#include "vcreporting.h"
#include "xmlcreatereport.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

const QLatin1String UnitAttribute("Unit");
const QLatin1String DateTimeName("DateTime");
const QLatin1String DFDateTimeName("DFDateTime");

/// How often in a row an attribute for the time is offered it. The first offer may be taken and the second is refused,
/// and so would be all that follow.
constexpr int TellingTimeOffers = 2;

bool isTimeName(const QString& name)
{
    return name == DateTimeName || name == DFDateTimeName;
}

/// The items before @p end that set an attribute: those called like one, and every other one an attribute for the time,
/// behind which no attribute is looked at. Of these, as many are given as can make a difference.
std::vector<ReportItems::Item> itemsForAttributes(const ReportItems& items, const QXmlAttributes& attributes, int end)
{
    std::vector<QString> names;
    for (int i = 0; i < attributes.count(); ++i) {
        names.push_back(attributes.qName(i));
        if (isTimeName(names.back())) {
            return items.Before(end, names, TellingTimeOffers);
        }
    }
    return items.Before(end, names);
}

QString textOf(const ReportData& item)
{
    QString text;
    item.GetDataValue(text);
    return text;
}

} // namespace

ReportAnswerer::ReportAnswerer(VCReporting* button, bool consume)
    : m_pButton(button)
    , m_bConsume(consume)
    , m_pBuilder(nullptr)
    , m_iBusy(0)
    , m_bValueSet(false)
    , m_bAttributePending(false)
    , m_dPending(IdlePendingValue)
{
}

ReportAnswerer::~ReportAnswerer()
{
    try {
        releaseBuilder();
    } catch (const std::bad_alloc&) { // unreached: only the first release of a process allocates
        // What could not be given back stays.
    }
}

bool ReportAnswerer::MakeReport(XmlCreateReport* builder, const QString& schemaPath, const QString& reportPath,
                                bool showComment)
{
    const QScopedValueRollback<int> busy(m_iBusy, m_iBusy + 1);
    const TreeSnapshot snapshot; // Values that have moved are sought once for all.
    releaseBuilder();
    m_pBuilder = builder;
    // An exception may have ended the report before.
    m_bValueSet = false;
    m_bAttributePending = false;
    m_dPending = IdlePendingValue;
    m_pPendingItem.reset();
    return builder->CreateXmlFromSchema(schemaPath, reportPath, showComment);
}

void ReportAnswerer::XmlUpdate(XmlEvent* event)
{
    if (m_pButton) {
        m_pButton->XmlUpdate(event);
    } else {
        Answer(event);
    }
}

void ReportAnswerer::Answer(XmlEvent* event)
{
    const QScopedValueRollback<int> busy(m_iBusy, m_iBusy + 1);
    switch (event->GetType()) {
    case XmlEvent::EVENT_ELEM_BEGIN:
        answerElement(static_cast<ElemBeginEvent*>(event));
        break;
    case XmlEvent::EVENT_ERROR:
        answerError(static_cast<ErrorEvent*>(event)->GetErrorID());
        break;
    default:
        break;
    }
}

void ReportAnswerer::releaseBuilder()
{
    if (m_pBuilder) {
        m_pBuilder->releaseReport();
    }
}

void ReportAnswerer::answerElement(ElemBeginEvent* event)
{
    if (!m_pBuilder) {
        return;
    }
    const QString name = event->GetElementName();
    const QXmlAttributes attributes = event->GetElementAttributes();
    const Match match = findMatch(name, event->GetElementNode());
    // The first item that matches the element itself fills it; items before it that match an attribute set that first.
    for (const Item& earlier : itemsForAttributes(m_items, attributes, match.index)) {
        fillAttribute(attributes, earlier);
    }
    if (match.item) {
        fillElement(name, attributes, match.item);
    }
    if (m_bValueSet) {
        finishElement(match, name, attributes);
    }
    stampTime(name, attributes);
}

ReportAnswerer::Match ReportAnswerer::findMatch(const QString& name, const QDomNode& node) const
{
    const int direct = m_items.First(name);
    const QString nameBelowParent = m_items.HasQualifiedNames()
        ? ReportItems::QualifiedName(node.parentNode().nodeName(), node.nodeName())
        : QString();
    const int qualified = nameBelowParent.isEmpty() ? NO_INDEX : m_items.First(nameBelowParent);
    const bool isQualified = qualified != NO_INDEX && (direct == NO_INDEX || qualified <= direct);
    const int index = isQualified ? qualified : direct;
    return {m_items.At(index), index, isQualified};
}

void ReportAnswerer::fillElement(const QString& name, const QXmlAttributes& attributes, const Item& item)
{
    if (item->GetMaxOccurs() > 1) {
        m_pBuilder->SetElementMaxOccurs(name, item->GetMaxOccurs());
    }
    bool flag = false;
    long integer = 0;
    if (item->GetDataValue(flag)) {
        setElement(flag, item);
    } else if (item->GetDataValue(integer)) {
        setElement(toInt32(integer), item);
    } else if (m_bValueSet) {
        return; // An earlier item has set an attribute of this element, which counts as its value.
    } else if (item->GetDataValue(m_dPending)) {
        setElement(m_dPending, item);
        m_dPending = IdlePendingValue;
    } else {
        setElement(textOf(*item), item);
    }
    handleAttributes(attributes);
}

/// Sets the first attribute that has the item's name; a time attribute met before ends the search.
void ReportAnswerer::fillAttribute(const QXmlAttributes& attributes, const Item& item)
{
    for (int i = 0; i < attributes.count(); ++i) {
        m_sAttributeName = attributes.qName(i);
        if (m_sAttributeName == item->GetName()) {
            // Not the pending number: a retry as integer writes the idle value. One might expect the item's number; it
            // is kept because readers of reports know the idle value as "no value".
            double number = IdlePendingValue;
            setAttribute(m_sAttributeName, item, number);
            return;
        }
        if (setTimeAttribute(m_sAttributeName)) {
            return;
        }
    }
}

/// Sets the attributes of an element whose value has been set. A default goes and a time is stamped as soon as there is
/// any item, unless the first one is called like the attribute.
void ReportAnswerer::handleAttributes(const QXmlAttributes& attributes)
{
    for (int i = 0; i < attributes.count(); ++i) {
        m_sAttributeName = attributes.qName(i);
        const bool isForAnyItem = m_sAttributeName == DefaultAttribute() || isTimeName(m_sAttributeName);
        const int index = isForAnyItem ? m_items.First() : m_items.First(m_sAttributeName);
        if (const Item item = m_items.At(index)) {
            handleAttribute(m_sAttributeName, item);
        }
    }
}

void ReportAnswerer::handleAttribute(const QString& name, const Item& item)
{
    if (name == item->GetName()) {
        setAttribute(name, item, m_dPending);
        m_dPending = IdlePendingValue;
    } else if (name == DefaultAttribute()) {
        m_pBuilder->RemoveAttribute(DefaultAttribute());
        m_bValueSet = true;
    } else {
        setTimeAttribute(name);
    }
}

void ReportAnswerer::finishElement(const Match& match, const QString& name, const QXmlAttributes& attributes)
{
    if (match.item && !match.item->GetUnit().isEmpty() && !attributes.value(UnitAttribute).isEmpty()) {
        m_pBuilder->SetAttributeValue(UnitAttribute, match.item->GetUnit());
    }
    // The item may have been taken out meanwhile; another one of its name has not been used.
    if (m_bConsume && match.item && m_items.At(match.index) == match.item) {
        m_items.DeleteFirst(match.isQualified ? match.item->GetName() : name);
    }
    m_bValueSet = false;
}

/// Elements and attributes for the time receive it whether or not an item has matched.
void ReportAnswerer::stampTime(const QString& name, const QXmlAttributes& attributes)
{
    if (isTimeName(name)) {
        m_pBuilder->SetXmlValue(QDateTime::currentDateTime());
    } else if (attributes.value(DateTimeName).contains(QLatin1String("dateTime"))) {
        m_pBuilder->SetAttributeValue(DateTimeName, QDateTime::currentDateTime());
    }
}

template <class Value> void ReportAnswerer::setElement(Value value, const Item& item)
{
    m_pPendingItem = item;
    m_pBuilder->SetXmlValue(value);
    m_pPendingItem.reset();
    m_bValueSet = true;
}

/// Offers the item's number, read into @p number, or its text.
void ReportAnswerer::setAttribute(const QString& name, const Item& item, double& number)
{
    m_pPendingItem = item;
    m_bAttributePending = true;
    if (item->GetDataValue(number)) {
        m_pBuilder->SetAttributeValue(name, number);
    } else {
        m_pBuilder->SetAttributeValue(name, textOf(*item));
    }
    m_pPendingItem.reset();
    m_bAttributePending = false;
    m_bValueSet = true;
}

bool ReportAnswerer::setTimeAttribute(const QString& name)
{
    if (!isTimeName(name)) {
        return false;
    }
    m_pBuilder->SetAttributeValue(name, QDateTime::currentDateTime());
    m_bValueSet = true;
    return true;
}

/// Offers a refused value as the next type; the builder's next refusal arrives here again, nested.
void ReportAnswerer::answerError(int errorID)
{
    switch (errorID) {
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE:
        retryWith(toInt32(m_dPending));
        break;
    case IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER:
        if (const Item item = pendingItem("CURRENT_TYPE_IS_NOT_INTEGER", 825)) {
            retryWith(textOf(*item));
        }
        break;
    case IXMLHelper::CURRENT_TYPE_IS_NOT_STRING:
        if (const Item item = pendingItem("CURRENT_TYPE_IS_NOT_STRING", 838)) {
            retryWith(QDateTime::fromString(textOf(*item), Qt::ISODate));
        }
        break;
    default:
        break;
    }
}

template <class Value> void ReportAnswerer::retryWith(Value value)
{
    if (!m_pBuilder) {
        return;
    }
    if (m_bAttributePending) {
        m_pBuilder->SetAttributeValue(m_sAttributeName, value);
    } else {
        m_pBuilder->SetXmlValue(value);
    }
    m_bValueSet = true;
}

/// The item whose value is being set; null, with a trace, when there is none.
ReportItems::Item ReportAnswerer::pendingItem(const char* errorName, int traceLine) const
{
    if (!m_pPendingItem) {
        trace(QStringLiteral("VCReporting::XmlUpdate|ErrorEvent|ErrorID == %1: m_iIndex is not valid.")
                  .arg(QLatin1String(errorName)),
              "vcreporting", traceLine);
    }
    return m_pPendingItem;
}
