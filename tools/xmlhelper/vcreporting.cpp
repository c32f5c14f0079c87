#include "vcreporting.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QTimer>
#include <QToolBar>
#include <QXmlAttributes>

#include <arbase/trace.h>
#include <arbase/vorndatetime.h>
#include <arbase/vornos.h>
#include <basicvaluewidgets/vcbutton.h>
#include <valueframework/node.h>
#include <valueframework/treeitem.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

#include "constants.h"
#include "elembeginevent.h"
#include "errorevent.h"
#include "numberconversion.h"
#include "reportitems.h"
#include "toreport.xpm"
#include "tracing.h"
#include "xmlcreatereport.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

constexpr int CheckIntervalMs = 10000;

const QLatin1String SchemaSuffix(".xsd");
const QLatin1String UnitAttribute("Unit");
const QLatin1String DateTimeName("DateTime");
const QLatin1String DFDateTimeName("DFDateTime");

QString buttonText()
{
    return VCReporting::tr("To Report (Shift+F10)");
}

bool isTimeName(const QString& name)
{
    return name == DateTimeName || name == DFDateTimeName;
}

/// The name "parent/child" of an item that fills @p node below its parent.
QString qualifiedName(const QDomNode& node)
{
    return node.parentNode().nodeName() + QLatin1Char('/') + node.nodeName();
}

/// The items before @p end that may set an attribute. An attribute for the time is set for every one of them.
std::vector<int> itemsForAttributes(const ReportItems& items, const QXmlAttributes& attributes, int end)
{
    std::vector<QString> names;
    names.reserve(std::size_t(attributes.count()));
    for (int i = 0; i < attributes.count(); ++i) {
        names.push_back(attributes.qName(i));
    }
    const bool isTimed = std::any_of(names.begin(), names.end(), isTimeName);
    return isTimed ? items.Before(end) : items.Before(end, names);
}

QString textOf(const ReportData& item)
{
    QString text;
    item.GetDataValue(text);
    return text;
}

/// A stored path as Qt's file classes understand it everywhere.
QString slashedPath(const QString& path)
{
    QString slashed = path;
    if (slashed.endsWith(QLatin1Char('\\'))) {
        slashed.chop(1);
    }
    return slashed.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

/// Whether there is a file or a directory at @p path.
bool isThere(const QString& path)
{
    const QString slashed = slashedPath(path);
    return !slashed.isEmpty() && QDir(QString()).exists(slashed);
}

void traceExplicitText(const QString& name, const QString& value, const QString& formatText, int decimalExponent,
                       const QString& unit)
{
    if (isTracing()) {
        _Q_TraceOld(QStringLiteral("VCReporting::AddExplicitReportData(%s, %s, %s, %ld, %s)"),
                    name.toUtf8().constData(), value.toUtf8().constData(), formatText.toUtf8().constData(),
                    static_cast<long>(decimalExponent), unit.toUtf8().constData());
    }
}

} // namespace

VCReporting::VCReporting(QString schema, QString reportDirectory, QToolBar* toolBar, bool createButton,
                         const char* objectName, bool consume, QPixmap picture)
    : QWidget(toolBar)
    , m_pToolBar(toolBar)
    , m_pReportButton(nullptr)
    , m_pCheckTimer(nullptr)
    , m_pReportBuilder(nullptr)
    , m_picture(picture)
    , m_bUnused(true)
    , m_bValueSet(false)
    , m_bConsume(consume)
    , m_bAttributePending(false)
    , m_dPending(IdlePendingValue)
    , m_iIndex(NO_INDEX)
    , m_iCheckInterval(CheckIntervalMs)
    , m_sReportDirectory(reportDirectory.replace(QLatin1Char('/'), QLatin1Char('\\')))
    , m_pItems(std::make_unique<ReportItems>())
    , m_bShowComment(false)
{
    setObjectName(QString::fromUtf8(objectName));
    SetInputPathToSchema(schema);
    if (createButton) {
        createReportButton();
    } else {
        hide();
    }
    SlotCheckFileAndDirectory();
    m_pCheckTimer = new QTimer(this);
    connect(m_pCheckTimer, &QTimer::timeout, this, &VCReporting::SlotCheckFileAndDirectory);
    m_pCheckTimer->start(m_iCheckInterval);
}

VCReporting::~VCReporting()
{
    ClearReportData();
    delete m_pReportButton;
    m_pReportButton = nullptr;
    m_pCheckTimer->stop();
    delete m_pCheckTimer;
    m_pCheckTimer = nullptr;
}

bool VCReporting::SetSchema(QString schema)
{
    SetInputPathToSchema(schema);
    return true;
}

void VCReporting::EnableReportButton(bool on)
{
    if (!m_pReportButton) {
        return;
    }
    if (!on) {
        m_pCheckTimer->stop();
        m_pReportButton->setEnabled(false);
        return;
    }
    SlotCheckFileAndDirectory();
    if (!m_pCheckTimer->isActive()) {
        m_pCheckTimer->start(m_iCheckInterval);
    }
}

QToolButton* VCReporting::GetReportButton() const
{
    return m_pReportButton;
}

void VCReporting::SetShowCommentDialog(bool show)
{
    m_bShowComment = show;
}

void VCReporting::AddReportData(Node* node)
{
    if (!node) {
        return;
    }
    for (TreeItem* const item : node->GetTreeItems()) {
        const auto* const valueItem = dynamic_cast<const ValueItem*>(item);
        if (!valueItem) {
            AddReportData(dynamic_cast<Node*>(item));
        } else if (const ValueBase* const value = valueItem->GetValueObject()) {
            AddReportData(value->GetName(), value->GetPathName(), QString(), 1, QString(), 0, QString());
        }
    }
}

void VCReporting::AddReportData(const QString& name, const QString& valuePath, const QString& fixedText, int maxOccurs,
                                const QString& formatText, int decimalExponent, const QString& unit)
{
    if (isTracing()) {
        _Q_TraceOld(QStringLiteral("VCReporting::AddReportData(%s, %s, %s, %s, %ld, %s)"), name.toUtf8().constData(),
                    valuePath.toUtf8().constData(), fixedText.toUtf8().constData(), formatText.toUtf8().constData(),
                    static_cast<long>(decimalExponent), unit.toUtf8().constData());
    }
    auto* const item = new ReportData(name, valuePath, fixedText, maxOccurs, formatText, decimalExponent, unit, false);
    // Opens the item, so that it is kept even when the tree does not know the path.
    item->SetExplicitData(ExplicitReportData());
    CheckReportData(item);
}

void VCReporting::AddExplicitReportData(const QString& name, const QString& value, int maxOccurs,
                                        const QString& formatText, int decimalExponent, const QString& unit)
{
    traceExplicitText(name, value, formatText, decimalExponent, unit);
    addExplicitItem(ExplicitReportData(value), name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, double value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    if (isTracing()) {
        // The odd conversion is the one that log readers of the suite search for.
        _Q_TraceOld(QStringLiteral("VCReporting::AddExplicitReportData(%s, %f4.2, %s, %ld, %s)"),
                    name.toUtf8().constData(), value, formatText.toUtf8().constData(),
                    static_cast<long>(decimalExponent), unit.toUtf8().constData());
    }
    addExplicitItem(ExplicitReportData(value), name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, bool value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    const QString text = value ? QStringLiteral("true") : QStringLiteral("false");
    traceExplicitText(name, text, formatText, decimalExponent, unit);
    addExplicitItem(ExplicitReportData(value), name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, long value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    if (isTracing()) {
        _Q_TraceOld(QStringLiteral("VCReporting::AddExplicitReportData(%s, %d, %s, %ld, %s)"),
                    name.toUtf8().constData(), toInt32(value), formatText.toUtf8().constData(),
                    static_cast<long>(decimalExponent), unit.toUtf8().constData());
    }
    addExplicitItem(ExplicitReportData(value), name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::DeleteReportData(QString name)
{
    m_pItems->DeleteFirst(name);
}

void VCReporting::ClearReportData()
{
    m_pItems->Clear();
}

void VCReporting::XmlUpdate(XmlEvent* event)
{
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

bool VCReporting::SlotToReport()
{
    Q_EMIT PrepareToReport();
    if (!m_sSchemaPath.endsWith(SchemaSuffix)) {
        return false;
    }
    const QString reportPath = newReportPath();
    m_pReportBuilder = createBuilder();
    const bool isSuccessful = m_pReportBuilder->CreateXmlFromSchema(m_sSchemaPath, reportPath, m_bShowComment);
    if (isSuccessful) {
        Q_EMIT ReportSuccessful();
    } else {
        Q_EMIT ReportNotSuccessful();
    }
    return isSuccessful;
}

void VCReporting::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_pReportButton) {
        m_pReportButton->setToolTip(buttonText());
    }
    QWidget::changeEvent(event);
}

void VCReporting::SlotCheckFileAndDirectory()
{
    const bool isAvailable = isThere(m_sSchemaPath) && isThere(m_sReportDirectory);
    if (m_pReportButton && m_pReportButton->isEnabled() != isAvailable) {
        m_pReportButton->setEnabled(isAvailable);
    }
    Q_EMIT ReportDirAndSchemaAvailable(isAvailable);
}

/// A bare file name lies in the directory of the application.
void VCReporting::SetInputPathToSchema(const QString& schema)
{
    m_sSchemaPath.clear();
    if (schema.contains(QLatin1Char('/')) || schema.contains(QLatin1Char('\\'))) {
        m_sSchemaPath = schema;
        return;
    }
    const QString directory = QCoreApplication::applicationDirPath();
    if (!directory.isEmpty()) {
        m_sSchemaPath = directory + QLatin1Char('/') + schema;
    }
}

void VCReporting::createReportButton()
{
    m_pReportButton = new VCButton(this, buttonText(), false);
    auto* const buttonLayout = new QHBoxLayout(this);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->addWidget(m_pReportButton);
    if (m_picture.isNull()) {
        m_pReportButton->SetDefaultPicture(toreport_xpm);
    } else {
        m_pReportButton->setIcon(QIcon(m_picture));
    }
    m_pReportButton->setEnabled(true);
    connect(m_pReportButton, &QAbstractButton::clicked, this, &VCReporting::SlotToReport);
}

QString VCReporting::newReportPath() const
{
    const Vorn::DateTime now(VornOS::Create()->GetCurrentTime());
    const QString separator = m_sReportDirectory.endsWith(QLatin1Char('\\')) ? QString() : QStringLiteral("\\");
    return m_sReportDirectory + separator + now.toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss-z"))
        + QStringLiteral(".xml");
}

/// Builders stay alive until the application ends, with the dialogs that the operator may still answer.
XmlCreateReport* VCReporting::createBuilder()
{
    return new XmlCreateReport(this);
}

ReportData* VCReporting::CreateReportData(const QString& name, int maxOccurs, const QString& formatText,
                                          int decimalExponent, const QString& unit)
{
    return new ReportData(name, QString(), QString(), maxOccurs, formatText, decimalExponent, unit, false);
}

/// Files an open item and deletes a closed one.
void VCReporting::CheckReportData(ReportData* item)
{
    if (item && item->IsOpen()) {
        m_pItems->Append(item);
    } else { // unreached: explicit data, which every item is given before, opens it
        delete item;
    }
}

void VCReporting::addExplicitItem(const ExplicitReportData& value, const QString& name, int maxOccurs,
                                  const QString& formatText, int decimalExponent, const QString& unit)
{
    ReportData* const item = CreateReportData(name, maxOccurs, formatText, decimalExponent, unit);
    item->SetExplicitData(value);
    CheckReportData(item);
}

void VCReporting::answerElement(ElemBeginEvent* event)
{
    if (!m_pReportBuilder) {
        return;
    }
    const QString name = event->GetElementName();
    const QXmlAttributes attributes = event->GetElementAttributes();
    const Match match = fillFromItems(name, attributes, event->GetElementNode());
    if (m_bValueSet) {
        finishElement(match, name, attributes);
    }
    stampTime(name, attributes);
}

/// The first item that matches the element itself fills it; items before it that match an attribute set that first.
VCReporting::Match VCReporting::fillFromItems(const QString& name, const QXmlAttributes& attributes,
                                              const QDomNode& node)
{
    const int direct = m_pItems->First(name);
    const QString nameBelowParent = m_pItems->HasQualifiedNames() ? qualifiedName(node) : QString();
    const int qualified = nameBelowParent.isEmpty() ? NO_INDEX : m_pItems->First(nameBelowParent);
    const bool isQualified = qualified != NO_INDEX && (direct == NO_INDEX || qualified <= direct);
    const int index = isQualified ? qualified : direct;
    for (const int earlier : itemsForAttributes(*m_pItems, attributes, index)) {
        fillAttribute(attributes, m_pItems->At(earlier), earlier);
    }
    if (index == NO_INDEX) {
        return {};
    }
    const ReportData& item = m_pItems->At(index);
    fillElement(name, attributes, item, index);
    return {&item, isQualified};
}

void VCReporting::fillElement(const QString& name, const QXmlAttributes& attributes, const ReportData& item, int index)
{
    if (item.GetMaxOccurs() > 1) {
        m_pReportBuilder->SetElementMaxOccurs(name, item.GetMaxOccurs());
    }
    bool flag = false;
    long integer = 0;
    if (item.GetDataValue(flag)) {
        setElement(flag, index);
    } else if (item.GetDataValue(integer)) {
        setElement(toInt32(integer), index);
    } else if (m_bValueSet) {
        return; // An earlier item has set an attribute of this element, which counts as its value.
    } else if (item.GetDataValue(m_dPending)) {
        setElement(m_dPending, index);
        m_dPending = IdlePendingValue;
    } else {
        setElement(textOf(item), index);
    }
    HandleAttributes(attributes);
}

/// Sets the first attribute that has the item's name; a time attribute met before ends the search.
void VCReporting::fillAttribute(const QXmlAttributes& attributes, const ReportData& item, int index)
{
    for (int i = 0; i < attributes.count(); ++i) {
        m_sAttributeName = attributes.qName(i);
        if (m_sAttributeName == item.GetName()) {
            // Not the pending number: a retry as integer writes the idle value. One might expect the item's number; it
            // is kept because readers of reports know the idle value as "no value".
            double number = IdlePendingValue;
            setAttribute(m_sAttributeName, item, index, number);
            return;
        }
        if (setTimeAttribute(m_sAttributeName)) {
            return;
        }
    }
}

/// Sets the attributes of an element whose value has been set. A default goes and a time is stamped as soon as there is
/// any item, unless the first one is called like the attribute.
void VCReporting::HandleAttributes(const QXmlAttributes& attributes)
{
    for (int i = 0; i < attributes.count(); ++i) {
        m_sAttributeName = attributes.qName(i);
        const bool isForAnyItem = m_sAttributeName == DefaultAttribute() || isTimeName(m_sAttributeName);
        const int index = isForAnyItem ? m_pItems->First() : m_pItems->First(m_sAttributeName);
        if (index != NO_INDEX) {
            handleAttribute(m_sAttributeName, m_pItems->At(index), index);
        }
    }
}

void VCReporting::handleAttribute(const QString& name, const ReportData& item, int index)
{
    if (name == item.GetName()) {
        setAttribute(name, item, index, m_dPending);
        m_dPending = IdlePendingValue;
    } else if (name == DefaultAttribute()) {
        m_pReportBuilder->RemoveAttribute(DefaultAttribute());
        m_bValueSet = true;
    } else {
        setTimeAttribute(name);
    }
}

void VCReporting::finishElement(const Match& match, const QString& name, const QXmlAttributes& attributes)
{
    if (match.item && !match.item->GetUnit().isEmpty() && !attributes.value(UnitAttribute).isEmpty()) {
        m_pReportBuilder->SetAttributeValue(UnitAttribute, match.item->GetUnit());
    }
    if (m_bConsume) {
        DeleteReportData(match.isQualified ? match.item->GetName() : name);
    }
    m_bValueSet = false;
}

/// Elements and attributes for the time receive it whether or not an item has matched.
void VCReporting::stampTime(const QString& name, const QXmlAttributes& attributes)
{
    if (isTimeName(name)) {
        m_pReportBuilder->SetXmlValue(QDateTime::currentDateTime());
    } else if (attributes.value(DateTimeName).contains(QLatin1String("dateTime"))) {
        m_pReportBuilder->SetAttributeValue(DateTimeName, QDateTime::currentDateTime());
    }
}

template <class Value> void VCReporting::setElement(Value value, int index)
{
    m_iIndex = index;
    m_pReportBuilder->SetXmlValue(value);
    m_iIndex = NO_INDEX;
    m_bValueSet = true;
}

/// Offers the item's number, read into @p number, or its text.
void VCReporting::setAttribute(const QString& name, const ReportData& item, int index, double& number)
{
    m_iIndex = index;
    m_bAttributePending = true;
    if (item.GetDataValue(number)) {
        m_pReportBuilder->SetAttributeValue(name, number);
    } else {
        m_pReportBuilder->SetAttributeValue(name, textOf(item));
    }
    m_iIndex = NO_INDEX;
    m_bAttributePending = false;
    m_bValueSet = true;
}

bool VCReporting::setTimeAttribute(const QString& name)
{
    if (!isTimeName(name)) {
        return false;
    }
    m_pReportBuilder->SetAttributeValue(name, QDateTime::currentDateTime());
    m_bValueSet = true;
    return true;
}

/// Offers a refused value as the next type; the builder's next refusal arrives here again, nested.
void VCReporting::answerError(int errorID)
{
    switch (errorID) {
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE:
        retryWith(toInt32(m_dPending));
        break;
    case IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER:
        if (const ReportData* const item = pendingItem("CURRENT_TYPE_IS_NOT_INTEGER", 825)) {
            retryWith(textOf(*item));
        }
        break;
    case IXMLHelper::CURRENT_TYPE_IS_NOT_STRING:
        if (const ReportData* const item = pendingItem("CURRENT_TYPE_IS_NOT_STRING", 838)) {
            retryWith(QDateTime::fromString(textOf(*item), Qt::ISODate));
        }
        break;
    default:
        break;
    }
}

template <class Value> void VCReporting::retryWith(Value value)
{
    if (!m_pReportBuilder) {
        return;
    }
    if (m_bAttributePending) {
        m_pReportBuilder->SetAttributeValue(m_sAttributeName, value);
    } else {
        m_pReportBuilder->SetXmlValue(value);
    }
    m_bValueSet = true;
}

/// The item whose value is being set; null, with a trace, when there is none.
const ReportData* VCReporting::pendingItem(const char* errorName, int traceLine) const
{
    if (m_iIndex == NO_INDEX) {
        trace(QStringLiteral("VCReporting::XmlUpdate|ErrorEvent|ErrorID == %1: m_iIndex is not valid.")
                  .arg(QLatin1String(errorName)),
              "vcreporting", traceLine);
        return nullptr;
    }
    return &m_pItems->At(m_iIndex);
}
