#include "vcreporting.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPointer>
#include <QScopeGuard>
#include <QShortcutEvent>
#include <QTimer>
#include <QToolBar>

#include <arbase/trace.h>
#include <arbase/vorndatetime.h>
#include <arbase/vornos.h>
#include <basicvaluewidgets/vcbutton.h>
#include <valueframework/node.h>
#include <valueframework/treeitem.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueitem.h>

#include "numberconversion_p.h"
#include "reportanswerer_p.h"
#include "toreport.xpm"
#include "tracing_p.h"
#include "xmlcreatereport.h"

namespace {

constexpr int CheckIntervalMs = 10000;

const QLatin1String SchemaSuffix(".xsd");

QString buttonText()
{
    return VCReporting::tr("To Report (Shift+F10)");
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

/// Sees to it that one press of a button is one click: neither a key that is held nor the second click of a double
/// click is another. The id of the button's own shortcut is only told when it is pressed, which is before it repeats.
class OnePress final : public QObject
{
public:
    explicit OnePress(QToolButton* button)
        : QObject(button)
        , m_button(button)
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Shortcut) {
            m_button->setShortcutAutoRepeat(static_cast<QShortcutEvent*>(event)->shortcutId(), false);
        }
        return event->type() == QEvent::MouseButtonDblClick;
    }

private:
    QToolButton* m_button;
};

} // namespace

VCReporting::VCReporting(QString schema, QString reportDirectory, QToolBar* toolBar, bool createButton,
                         const char* objectName, bool consume, QPixmap picture)
    : QWidget(toolBar)
    , m_pToolBar(toolBar)
    , m_pReportButton(nullptr)
    , m_pCheckTimer(nullptr)
    , m_picture(picture)
    , m_bUnused(true)
    , m_iCheckInterval(CheckIntervalMs)
    , m_sReportDirectory(reportDirectory.replace(QLatin1Char('/'), QLatin1Char('\\')))
    , m_pAnswerer(std::make_shared<ReportAnswerer>(this, consume))
    , m_bShowComment(false)
    , m_bPressing(false)
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
    if (m_bPressing) {
        m_pReportButton->setParent(nullptr); // see press()
    } else {
        delete m_pReportButton;
    }
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
    const QPointer<VCReporting> self(this);
    SlotCheckFileAndDirectory();
    if (self && !m_pCheckTimer->isActive()) {
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
    auto item
        = std::make_unique<ReportData>(name, valuePath, fixedText, maxOccurs, formatText, decimalExponent, unit, false);
    // An item is kept even when the tree does not know the path: explicit data opens it.
    item->SetExplicitData(ExplicitReportData());
    m_pAnswerer->Items().Append(std::move(item));
}

void VCReporting::AddExplicitReportData(const QString& name, const QString& value, int maxOccurs,
                                        const QString& formatText, int decimalExponent, const QString& unit)
{
    traceExplicitText(name, value, formatText, decimalExponent, unit);
    addExplicitItem(value, name, maxOccurs, formatText, decimalExponent, unit);
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
    addExplicitItem(value, name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, bool value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    const QString text = value ? QStringLiteral("true") : QStringLiteral("false");
    traceExplicitText(name, text, formatText, decimalExponent, unit);
    addExplicitItem(value, name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, long value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    if (isTracing()) {
        _Q_TraceOld(QStringLiteral("VCReporting::AddExplicitReportData(%s, %d, %s, %ld, %s)"),
                    name.toUtf8().constData(), toInt32(value), formatText.toUtf8().constData(),
                    static_cast<long>(decimalExponent), unit.toUtf8().constData());
    }
    addExplicitItem(value, name, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, int value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    AddExplicitReportData(name, static_cast<long>(value), maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, unsigned value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    AddExplicitReportData(name, static_cast<qint64>(value), maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::AddExplicitReportData(const QString& name, qint64 value, int maxOccurs, const QString& formatText,
                                        int decimalExponent, const QString& unit)
{
    // A long has 32 bits on Windows.
    const auto limited = static_cast<long>(
        std::clamp<qint64>(value, std::numeric_limits<long>::min(), std::numeric_limits<long>::max()));
    AddExplicitReportData(name, limited, maxOccurs, formatText, decimalExponent, unit);
}

void VCReporting::DeleteReportData(QString name)
{
    m_pAnswerer->Items().DeleteFirst(name);
}

void VCReporting::ClearReportData()
{
    m_pAnswerer->Items().Clear();
}

void VCReporting::XmlUpdate(XmlEvent* event)
{
    const std::shared_ptr<ReportAnswerer> answerer = m_pAnswerer; // The widget may be deleted meanwhile.
    answerer->Answer(event);
}

bool VCReporting::SlotToReport()
{
    const std::shared_ptr<ReportAnswerer> answerer = m_pAnswerer;
    if (answerer->IsBusy()) {
        trace(QStringLiteral("No report is made while another one is being filled!"), "vcreporting", __LINE__);
        return false;
    }
    const QPointer<VCReporting> self(this);
    Q_EMIT PrepareToReport();
    if (!self || !m_sSchemaPath.endsWith(SchemaSuffix)) {
        return false;
    }
    const bool isSuccessful = answerer->MakeReport(createBuilder(), m_sSchemaPath, newReportPath(), m_bShowComment);
    if (self && isSuccessful) {
        Q_EMIT ReportSuccessful();
    } else if (self) {
        Q_EMIT ReportNotSuccessful();
    }
    return isSuccessful;
}

/// A tool tip that the application has set stays.
void VCReporting::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_pReportButton && m_pReportButton->toolTip() == m_sToolTip) {
        m_sToolTip = buttonText();
        m_pReportButton->setToolTip(m_sToolTip);
    }
}

void VCReporting::SlotCheckFileAndDirectory()
{
    const bool isAvailable = isThere(m_sSchemaPath) && isThere(m_sReportDirectory);
    const QPointer<VCReporting> self(this);
    if (m_pReportButton && m_pReportButton->isEnabled() != isAvailable) {
        m_pReportButton->setEnabled(isAvailable); // What an event filter does with it is up to the application.
    }
    if (self) {
        Q_EMIT ReportDirAndSchemaAvailable(isAvailable);
    }
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
    m_sToolTip = buttonText();
    m_pReportButton = new VCButton(this, m_sToolTip, false);
    auto* const buttonLayout = new QHBoxLayout(this);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->addWidget(m_pReportButton);
    if (m_picture.isNull()) {
        m_pReportButton->SetDefaultPicture(toreport_xpm);
    } else {
        m_pReportButton->setIcon(QIcon(m_picture));
    }
    m_pReportButton->setEnabled(true);
    connect(m_pReportButton, &QAbstractButton::clicked, this, &VCReporting::press);
    m_pReportButton->installEventFilter(new OnePress(m_pReportButton));
}

/// Qt still works on a button that it has clicked: when the widget is deleted meanwhile, the button goes a little
/// later.
void VCReporting::press()
{
    const QPointer<VCReporting> self(this);
    const QPointer<QToolButton> button(m_pReportButton);
    const bool isOutermost = !std::exchange(m_bPressing, true);
    const auto leave = qScopeGuard([&] { // An exception may be why.
        if (self) {
            m_bPressing = !isOutermost;
        } else if (button && isOutermost) {
            button->deleteLater();
        }
    });
    SlotToReport();
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
    return new XmlCreateReport(m_pAnswerer.get());
}

void VCReporting::addExplicitItem(const ExplicitReportData& value, const QString& name, int maxOccurs,
                                  const QString& formatText, int decimalExponent, const QString& unit)
{
    auto item
        = std::make_unique<ReportData>(name, QString(), QString(), maxOccurs, formatText, decimalExponent, unit, false);
    item->SetExplicitData(value);
    m_pAnswerer->Items().Append(std::move(item));
}
