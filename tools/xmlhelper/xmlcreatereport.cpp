#include "xmlcreatereport.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include <QDateTime>
#include <QDomDocument>
#include <QScopedValueRollback>
#include <QStringList>
#include <QVarLengthArray>
#include <QXmlSimpleReader>

#include "commentdialogimpl.h"
#include "constants_p.h"
#include "documentfile_p.h"
#include "domattributes_p.h"
#include "domextent_p.h"
#include "domorder_p.h"
#include "domparser.h"
#include "errorevent.h"
#include "eventdelivery_p.h"
#include "filesaving_p.h"
#include "limits_p.h"
#include "numberconversion_p.h"
#include "rangecheck_p.h"
#include "reportteller_p.h"
#include "schemafault_p.h"
#include "skeletonwords_p.h"
#include "takeapart_p.h"
#include "tracing_p.h"
#include "valuerules_p.h"
#include "xmlcontenthandler.h"
#include "xmlreader.h"
#include "xmlschemahandler.h"
#include "xmltext_p.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// The namespace of schema instances, fixed by W3C XML Schema, Structures.
const QLatin1String SchemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");

/// Up to so many digits fit into an integer.
constexpr int DigitsOfInt = 9;

/// The number that @p text holds when it is nothing but digits behind an optional sign, as bounds mostly are. Qt's
/// conversions take longer than all the rest of a check.
std::optional<int> plainNumberIn(const QString& text)
{
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const QStringView digits = QStringView(text).mid(isNegative ? 1 : 0);
    if (digits.isEmpty() || digits.size() > DigitsOfInt) {
        return std::nullopt;
    }
    int number = 0;
    for (const QChar digit : digits) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9')) {
            return std::nullopt;
        }
        number = 10 * number + (digit.unicode() - '0');
    }
    return isNegative ? -number : number;
}

/// A facet's number; one that does not convert counts as 0.
template <typename Number> Number boundIn(const QString& text)
{
    if (const std::optional<int> plain = plainNumberIn(text)) {
        return *plain;
    }
    if constexpr (std::is_same_v<Number, int>) {
        return text.toInt();
    } else {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        return isNumber ? number : 0.0;
    }
}

/// The range facets of @p element, each with the attribute that gives it.
QVarLengthArray<std::pair<QLatin1String, QDomAttr>, 4> rangeFacetsOf(const QDomElement& element)
{
    QVarLengthArray<std::pair<QLatin1String, QDomAttr>, 4> facets;
    for (const QDomAttr& attribute : attributesOf(element)) {
        const QLatin1String facet = rangeFacetOfElement(attribute.name());
        if (facet.size() > 0) {
            facets.append({facet, attribute});
        }
    }
    return facets;
}

/// Whether @p element, whose type was just read, has anything besides. Few elements do.
bool mayHaveFacets(const QDomElement& element)
{
    return element.attributes().count() > 1;
}

/// Whether @p element, whose attribute @p name was just read, has anything besides that and its type. An attribute of a
/// long name may count as a facet itself.
bool mayHaveFacets(const QDomElement& element, const QString& name)
{
    const int count = element.attributes().count();
    return count > 2 || (count == 2 && !element.hasAttribute(TypeAttribute())) || name == TypeAttribute()
        || name.size() >= EnumerationFacet.size();
}

/// The attributes of @p element, the current one, with facets' names for which @p isWanted holds, and perhaps others
/// for which it holds.
template <class IsWanted> DomAttributes facetsOf(DomParser& parser, QDomElement& element, const IsWanted& isWanted)
{
    DomAttributes facets;
    if (const QStringList* const names = parser.FacetNames()) {
        for (const QString& name : *names) {
            if (isWanted(name) && element.hasAttribute(name)) {
                facets.append(element.attributeNode(name));
            }
        }
        return facets;
    }
    for (const QDomAttr& attribute : attributesOf(element)) {
        if (isWanted(attribute.name())) {
            facets.append(attribute);
        }
    }
    return facets;
}

/// The enumeration of @p element, whose type was just read, if that is all it has: the values are numbered, and asking
/// for one after the other takes less than listing the attributes. Empty when there is something else, or an empty
/// value: then the order counts in which attributes are listed.
DomAttributes numberedValuesOf(const QDomElement& element)
{
    const QDomNamedNodeMap map = element.attributes();
    DomAttributes values;
    values.reserve(map.count());
    QString name = EnumerationFacet;
    while (values.size() < map.count()) {
        name.truncate(EnumerationFacet.size());
        name += QString::number(values.size() + 1);
        const QDomAttr value = map.namedItem(name).toAttr();
        if (value.value().isEmpty()) {
            break;
        }
        values.append(value);
    }
    return values.size() + 1 == map.count() ? values : DomAttributes();
}

/// Up to so many attributes are listed faster than asked for.
constexpr int FewToList = 16;

/// The values that @p element, the current one, may have.
DomAttributes valuesOfElement(DomParser& parser, QDomElement& element)
{
    const DomAttributes values = element.attributes().count() > FewToList ? numberedValuesOf(element) : DomAttributes();
    return values.isEmpty() ? facetsOf(parser, element, isEnumerationOfElement) : values;
}

/// The facets of an attribute are read as integers for numbers of every kind, so that a fractional one counts as 0. One
/// might expect 0.5 to bound a double; it is kept because schemas have been written to it.
template <typename Number>
RangeBounds<Number> boundsOfAttribute(DomParser& parser, QDomElement& element, const QString& name)
{
    RangeBounds<Number> bounds;
    const auto isBound = [&](const QString& facet) { return rangeFacetOfAttribute(facet, name).size() > 0; };
    for (const QDomAttr& attribute : facetsOf(parser, element, isBound)) {
        bounds.Set(rangeFacetOfAttribute(attribute.name(), name), boundIn<int>(attribute.value()));
    }
    return bounds;
}

/// What it takes to announce an element once more, in the steps of Limits::multiplyingSteps.
int stepsToAnnounce(const QDomElement& element)
{
    constexpr int stepsOfCall = 30;
    constexpr int stepsOfAttribute = 15;
    return stepsOfCall + stepsOfAttribute * element.attributes().count() + levelOf(element);
}

QString withSlashes(QString path)
{
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace

XmlCreateReport::XmlCreateReport(IXMLHelper* pCallback)
    : m_pSchemaReader(nullptr)
    , m_pContentHandler(nullptr)
    , m_pSchemaHandler(nullptr)
    , m_pCallback(pCallback)
    , m_pDocument(nullptr)
    , m_pReader(nullptr)
    , m_pCurrentElement(nullptr)
    , m_pDomParser(nullptr)
    , m_sLastMultipliedName(QLatin1String(""))
    , m_sUnused(QLatin1String(""))
    , m_bUnused(false)
    , m_iDiscardedChoices(0)
    , m_iElements(0)
    , m_iAttributes(0)
    , m_iMultiplyingSteps(0)
{
    checkObserver(pCallback, "XmlCreateReport", "xmlcreatereport", 43);
}

XmlCreateReport::XmlCreateReport(const XmlCreateReport& other) = default;
XmlCreateReport& XmlCreateReport::operator=(const XmlCreateReport& other) = default;

XmlCreateReport::~XmlCreateReport()
{
    qDeleteAll(m_commentDialogs);
    m_commentDialogs.clear();
    qDeleteAll(m_dialogDocuments);
    delete m_pSchemaHandler;
    m_pSchemaHandler = nullptr;
}

bool XmlCreateReport::CreateXmlFromSchema(QString schemaPath, QString reportPath, bool showCommentDialog)
{
    return makeReport(schemaPath, reportPath, [&](const ReportTeller& teller) {
        if (showCommentDialog) {
            showComment(reportPath, teller);
        } else {
            SavedFile file;
            const bool isWritten = saveDocument(*m_pDocument, reportPath, &file);
            teller.TellFile(isWritten, file, *m_pDocument);
        }
    });
}

void XmlCreateReport::SetXmlValue(QString value)
{
    if (!isTypeAccepted(wordOf(Setter::Text), IXMLHelper::CURRENT_TYPE_IS_NOT_STRING)) {
        return;
    }
    const QString text = representableText(value, "XmlCreateReport::SetXmlValue");
    if (!mayHaveFacets(*m_pCurrentElement)
        || useEnumeration(text, valuesOfElement(*m_pDomParser, *m_pCurrentElement))) {
        CreateAndAppendTextNode(text);
    }
}

void XmlCreateReport::SetXmlValue(double value)
{
    // The type is asked before the element is refreshed: the object is the same for the whole walk, so only the first
    // operation of all does not know its type. One might expect to ask once; it is kept because an element without a
    // type is reported as unknown twice, and receivers count on that. A type that fits is not asked for again.
    const QString wanted = wordOf(Setter::Floating);
    const QString type = m_pCurrentElement ? TypeControl(wanted) : QString();
    const bool isShort = type == ShortType;
    const bool isAccepted
        = type.isEmpty() ? isTypeAccepted(wanted, IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) : refreshCurrentElement();
    if (isAccepted && (!mayHaveFacets(*m_pCurrentElement) || useRange(value))) {
        CreateAndAppendTextNode(isShort ? QString::number(toInt32(value)) : toReportText(value));
    }
}

void XmlCreateReport::SetXmlValue(int value)
{
    if (!isTypeAccepted(wordOf(Setter::Integer), IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER)) {
        return;
    }
    // Removed before the range is checked, unlike the other numbers: a refused integer leaves no type behind.
    m_pDomParser->RemoveAttribute(TypeAttribute());
    if (!m_pCurrentElement->hasAttributes() || useRange(value)) {
        CreateAndAppendTextNode(QString::number(value));
    }
}

void XmlCreateReport::SetXmlValue(bool value)
{
    if (isTypeAccepted(wordOf(Setter::Truth), IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN)) {
        CreateAndAppendTextNode(value ? QStringLiteral("true") : QStringLiteral("false"));
    }
}

void XmlCreateReport::SetXmlValue(QDateTime value)
{
    if (isTypeAccepted(wordOf(Setter::DateTime), IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME)) {
        CreateAndAppendTextNode(value.toString(Qt::ISODate));
    }
}

void XmlCreateReport::SetXmlValue(QTime value)
{
    if (isTypeAccepted(wordOf(Setter::Time), IXMLHelper::CURRENT_TYPE_IS_NOT_TIME)) {
        CreateAndAppendTextNode(value.toString(Qt::ISODate));
    }
}

void XmlCreateReport::SetAttributeValue(QString name, QString value)
{
    if (!refreshCurrentElement()
        || !isAttributeTypeAccepted(name, wordOf(Setter::Text), IXMLHelper::CURRENT_TYPE_IS_NOT_STRING)) {
        return;
    }
    const QString text = representableText(value, "XmlCreateReport::SetAttributeValue");
    const auto isValue = [&name](const QString& facet) { return isEnumerationOfAttribute(facet, name); };
    if (!mayHaveFacets(*m_pCurrentElement, name)
        || useEnumeration(text, facetsOf(*m_pDomParser, *m_pCurrentElement, isValue))) {
        m_pDomParser->SetAttribute(name, text);
    }
}

void XmlCreateReport::SetAttributeValue(QString name, QDateTime value)
{
    if (refreshCurrentElement()
        && isAttributeTypeAccepted(name, wordOf(Setter::DateTime), IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME)) {
        m_pDomParser->SetAttribute(name, value.toString(Qt::ISODate));
    }
}

void XmlCreateReport::SetAttributeValue(QString name, int value)
{
    if (!refreshCurrentElement()) {
        Error(IXMLHelper::NO_CURRENT_ELEMENT);
    } else if (isAttributeTypeAccepted(name, wordOf(Setter::Integer), IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER)
               && (!mayHaveFacets(*m_pCurrentElement, name) || useRange(name, value))) {
        m_pDomParser->SetAttribute(name, QString::number(value));
    }
}

void XmlCreateReport::SetAttributeValue(QString name, double value)
{
    if (!refreshCurrentElement()) {
        Error(IXMLHelper::NO_CURRENT_ELEMENT);
    } else if (isAttributeTypeAccepted(name, wordOf(Setter::Floating), IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE)
               && (!mayHaveFacets(*m_pCurrentElement, name) || useRange(name, value))) {
        m_pDomParser->SetAttribute(name, toReportText(value));
    }
}

void XmlCreateReport::RemoveAttribute(QString name)
{
    if (refreshCurrentElement()) {
        m_pDomParser->RemoveAttribute(name);
    }
}

void XmlCreateReport::SetElementMaxOccurs(QString name, int count)
{
    if (name == m_sLastMultipliedName || !refreshCurrentElement()) {
        return;
    }
    m_sLastMultipliedName = name; // also a name that is refused: it is not tried again
    if (CheckOccursMap(name, m_pCurrentElement->tagName(), count, m_pCurrentElement) && copyCurrentElement(count)) {
        m_pDomParser->ContinueAt(m_pCurrentElement, true);
    } else {
        Error(IXMLHelper::MAX_OCCURS_EXCEEDED);
    }
}

void XmlCreateReport::DiscardChoiceItem()
{
    if (!refreshCurrentElement()) {
        return;
    }
    const QDomElement discarded = *m_pCurrentElement;
    if (!isDiscardAllowed(discarded.tagName())) {
        Error(IXMLHelper::GENERAL_ERROR);
        return;
    }
    QDomElement follower = siblingBehind(discarded).toElement();
    const bool isRemoved = !m_pDomParser->Remove(discarded).isNull();
    m_pDomParser->ContinueAt(&follower, false);
    if (isRemoved) {
        ++m_iDiscardedChoices;
    } else {
        Error(IXMLHelper::GENERAL_ERROR);
    }
}

/// Makes @p text the content of the current element, in place of its type and of a text that is its first child, and
/// lets the walk go on behind the element.
void XmlCreateReport::CreateAndAppendTextNode(QString text)
{
    if (!m_pCurrentElement) { // unreached: every setter has looked for an element before
        Error(IXMLHelper::NO_CURRENT_ELEMENT);
        return;
    }
    const OwnerIndex::OwnChange change = m_pDomParser->Change();
    m_pCurrentElement->removeAttribute(TypeAttribute());
    const QDomNode first = m_pCurrentElement->firstChild();
    if (first.nodeType() == QDomNode::TextNode) {
        m_pCurrentElement->removeChild(first);
    }
    m_pCurrentElement->appendChild(m_pDocument->createTextNode(text));
    m_pDomParser->ContinueAt(m_pCurrentElement, false);
}

/// The type of the current element when it fits @p wanted, "" when it does not.
QString XmlCreateReport::TypeControl(QString wanted)
{
    const QString type = m_pCurrentElement->attribute(TypeAttribute());
    if (type.isEmpty()) {
        Error(IXMLHelper::CURRENT_TYPE_IS_UNKNOWN);
        return QString();
    }
    return typeTakenBy(wanted, type);
}

void XmlCreateReport::Error(int id)
{
    if (m_pCallback && isErrorSent()) {
        const QScopedValueRollback<int> depth(m_errorNesting.depth, m_errorNesting.depth + 1);
        deliver<ErrorEvent>(m_pCallback, static_cast<IXMLHelper::ErrorID>(id));
    }
}

/// Counts an error and tells whether it is to be sent; the first that is not is traced, for each of the two reasons.
bool XmlCreateReport::isErrorSent()
{
    ErrorNesting& nesting = m_errorNesting;
    if (nesting.depth == 0) {
        nesting.errors = 0;
        nesting.isDepthTraced = false;
        nesting.isNumberTraced = false;
        return true;
    }
    const bool isTooDeep = nesting.depth > limits().nestedErrors;
    if (!isTooDeep && nesting.errors < limits().errorsWithinOne) {
        ++nesting.errors;
        return true;
    }
    if (!std::exchange(isTooDeep ? nesting.isDepthTraced : nesting.isNumberTraced, true)) {
        const QString message = isTooDeep
            ? QStringLiteral("More than %1 errors nested in each other are not sent!").arg(limits().nestedErrors)
            : QStringLiteral("More than %1 errors while one is being answered are not sent!")
                  .arg(limits().errorsWithinOne);
        trace(message, "xmlcreatereport", __LINE__);
    }
    return false;
}

/// Whether the schema allows @p count occurrences of @p name under some owner below which @p element stands.
bool XmlCreateReport::CheckOccursMap(QString name, QString tagName, int count, QDomElement* element)
{
    if (!m_pDomParser->IsLimited(name)) {
        Error(IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    return m_pDomParser->IsCountDeclared(name, tagName, count, *element);
}

/// Makes a report whose document @p end takes in the end. That may destroy the builder, by what it tells.
template <class End>
bool XmlCreateReport::makeReport(const QString& schemaPath, const QString& reportPath, const End& end)
{
    if (!m_pCallback || m_pSchemaHandler) {
        return false;
    }
    createSchemaHandler(schemaPath); // Whoever is told of the report may ask the builder for a second one.
    // Whatever has been read of a schema is still walked, stamped and written.
    const ReportTeller teller(reportPath, schemaPath);
    SchemaFault fault;
    const bool isSchemaRead = layOut(schemaPath, teller.IsSchemaAsked() ? &fault : nullptr);
    teller.TellSchema(isSchemaRead, isSchemaRead ? QString() : fault.GetReason());
    try {
        m_pDomParser->Walk();
    } catch (...) { // of the observer, or memory runs out
        teller.TellBrokenOff();
        throw;
    }
    stampSchemaLocation(withSlashes(schemaPath));
    end(teller);
    return isSchemaRead;
}

/// Makes a report for who writes it first as @p writtenPath and then puts it in its place, which counts.
bool XmlCreateReport::makeReportAside(const QString& schemaPath, const QString& reportPath, const QString& writtenPath,
                                      const PutReport& put)
{
    return makeReport(schemaPath, reportPath, [&](const ReportTeller& teller) {
        SavedFile file;
        const bool isPut = saveDocument(*m_pDocument, writtenPath, &file) && put(file);
        teller.TellFile(isPut, file, *m_pDocument);
    });
}

/// From then on no report is begun.
void XmlCreateReport::createSchemaHandler(const QString& schemaPath)
{
    m_pSchemaHandler = new XmlSchemaHandler(m_pCallback, withSlashes(schemaPath));
}

/// Makes the skeleton and what answers questions about it, and lets @p log, if there is one, hear of the schema.
bool XmlCreateReport::layOut(const QString& schemaPath, SchemaReadingLog* log)
{
    m_pSchemaHandler->SetLog(log);
    const bool isRead = readSchema(schemaPath);
    m_pSchemaHandler->SetLog(nullptr);
    createWalkers();
    return isRead;
}

bool XmlCreateReport::readSchema(const QString& schemaPath)
{
    m_pSchemaReader = new QXmlSimpleReader;
    const bool isParsed = m_pSchemaHandler->ReadFile(openableFileName(schemaPath), *m_pSchemaReader);
    delete m_pSchemaReader;
    m_pSchemaReader = nullptr;

    m_pDocument = m_pSchemaHandler->GetDocument();
    std::move(*m_pSchemaHandler).HandOver(m_unresolvedTypes, m_occurs, m_typeDefinitions, m_choices);
    const DomExtent extent = extentOf(*m_pDocument);
    m_iElements = extent.elements;
    m_iAttributes = extent.attributes;
    return isParsed;
}

/// The builder never releases these three: clients keep shallow copies of builders, and elements that the walk handed
/// out must stay as long as anybody may act on them.
void XmlCreateReport::createWalkers()
{
    m_pContentHandler = new XmlContentHandler(m_pCallback, m_pDocument);
    m_pReader = new XMLReader(m_pCallback, m_pContentHandler);
    m_pDomParser = new DomParser(m_pCallback, std::move(m_occurs), m_choices);
    m_pDomParser->SetDocument(m_pDocument);
}

void XmlCreateReport::stampSchemaLocation(const QString& schemaPath)
{
    QDomElement root = m_pDocument->documentElement();
    root.setAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"),
                      representableText(schemaPath, "XmlCreateReport::CreateXmlFromSchema"));
    root.setAttribute(QStringLiteral("xmlns:xsi"), SchemaInstanceNamespace);
}

void XmlCreateReport::showComment(const QString& reportPath, const ReportTeller& teller)
{
    auto* const dialog = new CommentDialogImpl;
    m_dialogDocuments.push_back(new QDomDocument(*m_pDocument));
    dialog->SetDocument(m_dialogDocuments.back());
    dialog->SetFileName(reportPath);
    dialog->SetTeller(teller);
    dialog->ShowReportSummary();
    m_commentDialogs.push_back(dialog);
    teller.TellComment(dialog);
}

/// Takes the element that the walk stands on. Gives false when there is none.
bool XmlCreateReport::refreshCurrentElement()
{
    m_pCurrentElement = m_pDomParser ? m_pDomParser->GetCurrentElement() : nullptr;
    return m_pCurrentElement != nullptr;
}

/// What every value has to pass first; sends @p refusal when the type does not fit.
bool XmlCreateReport::isTypeAccepted(const QString& wanted, IXMLHelper::ErrorID refusal)
{
    if (!refreshCurrentElement()) {
        Error(IXMLHelper::NO_CURRENT_ELEMENT);
        return false;
    }
    if (TypeControl(wanted).isEmpty()) {
        Error(refusal);
        return false;
    }
    return true;
}

/// An attribute holds its declared type until it is set.
bool XmlCreateReport::isAttributeTypeAccepted(const QString& name, const QString& wanted, IXMLHelper::ErrorID refusal)
{
    if (isAttributeTakenBy(wanted, m_pCurrentElement->attribute(name))) {
        return true;
    }
    Error(refusal);
    return false;
}

/// Checks a text against an enumeration, which is given by its attributes, and removes these when it is in order.
template <class Facets> bool XmlCreateReport::useEnumeration(const QString& value, const Facets& facets)
{
    QString lastValue;
    bool isFound = false;
    for (const QDomAttr& facet : facets) {
        lastValue = facet.value();
        isFound = isFound || lastValue == value;
    }
    if (!lastValue.isEmpty() && !isFound && m_pCurrentElement->attributes().count() >= 2) {
        Error(IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    if (!facets.isEmpty()) {
        m_pDomParser->RemoveAttributes(facets);
    }
    return true;
}

/// Checks a number against the range facets of the current element and removes those that were used.
template <typename Number> bool XmlCreateReport::useRange(Number value)
{
    const auto facets = rangeFacetsOf(*m_pCurrentElement);
    RangeBounds<Number> bounds;
    for (const auto& [facet, attribute] : facets) {
        bounds.Set(facet, boundIn<Number>(attribute.value()));
    }
    const RangeVerdict verdict = bounds.Check(value, UpperBoundBehindLower::Inclusive);
    if (!verdict.isAccepted) {
        Error(IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    const OwnerIndex::OwnChange change = m_pDomParser->Change();
    for (const QLatin1String used : verdict.usedFacets) { // in the order of the check
        const auto facet
            = std::find_if(facets.begin(), facets.end(), [used](const auto& found) { return found.first == used; });
        m_pDomParser->RemoveAttribute(facet->second.name());
    }
    return true;
}

/// The same with the range facets of the attribute @p name.
template <typename Number> bool XmlCreateReport::useRange(const QString& name, Number value)
{
    const RangeVerdict verdict = boundsOfAttribute<Number>(*m_pDomParser, *m_pCurrentElement, name)
                                     .Check(value, UpperBoundBehindLower::Strict);
    if (!verdict.isAccepted) {
        Error(IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    const OwnerIndex::OwnChange change = m_pDomParser->Change();
    for (const QLatin1String facet : verdict.usedFacets) {
        m_pDomParser->RemoveAttribute(facet + name);
    }
    return true;
}

/// Makes the current element occur @p count times. A root has no place for copies, which counts as success. Gives
/// false, and makes no copy, when the document would become too large. Calls without a copy are work too, because the
/// element is announced again after each.
bool XmlCreateReport::copyCurrentElement(int count)
{
    m_iMultiplyingSteps += stepsToAnnounce(*m_pCurrentElement);
    if (m_iMultiplyingSteps > limits().multiplyingSteps) {
        trace(QStringLiteral("Multiplying elements takes more than %1 steps of work!").arg(limits().multiplyingSteps),
              "xmlcreatereport", __LINE__);
        return false;
    }
    if (m_pCurrentElement->parentNode().toElement().isNull() || count <= 1) {
        return true;
    }
    const DomExtent extent = extentOf(*m_pCurrentElement);
    m_iMultiplyingSteps += extent.elements;
    const qint64 elements = m_iElements + qint64(extent.elements) * (count - 1);
    const qint64 attributes = m_iAttributes + qint64(extent.attributes) * (count - 1);
    if (elements > limits().elements) {
        trace(QStringLiteral("Copies would give the report more than %1 elements!").arg(limits().elements),
              "xmlcreatereport", __LINE__);
        return false;
    }
    if (attributes > limits().attributes) {
        trace(QStringLiteral("Copies would give the report more than %1 attributes!").arg(limits().attributes),
              "xmlcreatereport", __LINE__);
        return false;
    }
    m_iElements = static_cast<int>(elements);
    m_iAttributes = static_cast<int>(attributes);
    m_pDomParser->InsertCopies(*m_pCurrentElement, count - 1);
    return true;
}

/// Whether an element called @p tagName is an alternative of a choice that may go: the last alternative of the schema
/// stays once as many have been discarded as its number says.
bool XmlCreateReport::isDiscardAllowed(const QString& tagName) const
{
    const int index = m_pDomParser->AlternativeNumber(tagName);
    return index != NO_INDEX
        && (index % DiscardGuardModulus > m_iDiscardedChoices || m_choices.find(index + 1) != m_choices.end());
}

/// Gives back all that a report holds which is over, for whoever alone has the builder. The builder and its dialog
/// stay, and so does the document until the dialog has written it. The operations do nothing any more. Also for a
/// report that an exception has ended.
void XmlCreateReport::releaseReport()
{
    m_pCallback = nullptr;
    m_pCurrentElement = nullptr;
    delete std::exchange(m_pReader, nullptr);
    delete std::exchange(m_pContentHandler, nullptr);
    if (m_pDomParser) {
        takeApart(m_pDomParser->RemovedNodes());
    }
    delete std::exchange(m_pDomParser, nullptr);
    m_unresolvedTypes.clear();
    m_occurs.clear();
    m_typeDefinitions.clear();
    m_choices.clear();

    if (m_pDocument && m_commentDialogs.empty()) {
        takeApart(*m_pDocument);
    }
    m_pDocument = nullptr;
    delete std::exchange(m_pSchemaHandler, nullptr);
    for (const QPointer<CommentDialogImpl>& dialog : m_commentDialogs) {
        std::unique_ptr<QDomDocument> document(m_dialogDocuments.front());
        m_dialogDocuments.pop_front();
        if (dialog) {
            dialog->OwnDocument(std::move(document));
        }
    }
    qDeleteAll(std::exchange(m_dialogDocuments, {}));
}
