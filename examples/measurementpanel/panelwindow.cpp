#include "panelwindow.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/vcreporting.h>

#include "measurementtree.h"
#include "reportitems.h"
#include "simulatedreceiver.h"
#include "xmlview.h"

namespace {

constexpr double ValueFontFactor = 1.9;
constexpr int NoteAlpha = 166;
const QLatin1String AvailableColour("#2E7D32");
const QLatin1String MissingColour("#C8372D");

QFont enlarged(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    return font;
}

QPalette faded(QPalette palette)
{
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlpha(NoteAlpha);
    palette.setColor(QPalette::WindowText, colour);
    return palette;
}

QLabel* createLabel(const QString& name, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

PanelWindow::PanelWindow(const MeasurementTree& tree, const SimulatedReceiver& receiver, const QString& schema,
                         const QString& reportDirectory)
    : m_tree(tree)
    , m_receiver(receiver)
    , m_folder(reportDirectory)
{
    setWindowTitle(tr("Measurement Panel"));
    setCentralWidget(new QWidget(this));
    new QVBoxLayout(centralWidget());
    createReadouts();
    createReportView();
    createStatusLine();
    createReporting(schema, reportDirectory);
    resize(840, 700);

    connect(&m_receiver, &SimulatedReceiver::Measured, this, &PanelWindow::showValues);
    connect(&m_folder, &ReportFolder::ReportAppeared, this, &PanelWindow::showReport);
    showValues();
}

PanelWindow::~PanelWindow() = default;

void PanelWindow::createReporting(const QString& schema, const QString& reportDirectory)
{
    QToolBar* const toolBar = addToolBar(tr("Report"));
    toolBar->setMovable(false);
    // The widget uses up its items: they are registered anew for each report.
    m_pReporting = new VCReporting(schema, reportDirectory, toolBar, true, "toReport", true, QPixmap());
    toolBar->addWidget(m_pReporting);
    QToolButton* const button = m_pReporting->GetReportButton();

    m_pAskForComment = new QCheckBox(tr("Ask for a comment"), toolBar);
    m_pAskForComment->setObjectName(QStringLiteral("askForComment"));
    toolBar->addSeparator();
    toolBar->addWidget(m_pAskForComment);

    connect(m_pAskForComment, &QCheckBox::toggled, m_pReporting, &VCReporting::SetShowCommentDialog);
    connect(m_pReporting, &VCReporting::ReportDirAndSchemaAvailable, this, &PanelWindow::showAvailability);
    connect(m_pReporting, &VCReporting::PrepareToReport, this, &PanelWindow::beginPress);
    connect(m_pReporting, &VCReporting::ReportSuccessful, this, [this] { m_outcome = Outcome::Made; });
    connect(m_pReporting, &VCReporting::ReportNotSuccessful, this, [this] { m_outcome = Outcome::SchemaUnreadable; });
    // The widget has connected itself first, so this is called when it has done its work.
    connect(button, &QToolButton::clicked, this, &PanelWindow::endPress);
    // The widget has looked before anybody could listen: look again.
    m_pReporting->EnableReportButton(true);
}

void PanelWindow::createReadouts()
{
    auto* const row = new QHBoxLayout;
    qobject_cast<QVBoxLayout*>(centralWidget()->layout())->addLayout(row);
    m_frequency = createReadout(tr("Frequency"), *row);
    m_bandwidth = createReadout(tr("Bandwidth"), *row);
    m_level = createReadout(tr("Level"), *row);
    m_azimuth = createReadout(tr("Azimuth"), *row);
}

PanelWindow::Readout PanelWindow::createReadout(const QString& caption, QLayout& row)
{
    auto* const box = new QGroupBox(caption, centralWidget());
    const Readout readout {createLabel(caption + QStringLiteral("Value"), box),
                           createLabel(caption + QStringLiteral("Note"), box)};
    readout.value->setFont(enlarged(font(), ValueFontFactor));
    readout.note->setPalette(faded(palette()));
    auto* const column = new QVBoxLayout(box);
    column->addWidget(readout.value);
    column->addWidget(readout.note);
    row.addWidget(box);
    return readout;
}

void PanelWindow::createReportView()
{
    m_pReportName = createLabel(QStringLiteral("reportName"), centralWidget());
    m_pReportName->setText(tr("No report yet"));
    m_pReportView = new XmlView(centralWidget());
    m_pReportView->setObjectName(QStringLiteral("reportView"));
    m_pReportView->setPlaceholderText(tr("Press the button in the tool bar to write a report."));
    centralWidget()->layout()->addWidget(m_pReportName);
    centralWidget()->layout()->addWidget(m_pReportView);
}

void PanelWindow::createStatusLine()
{
    m_pLastPress = createLabel(QStringLiteral("lastPress"), this);
    m_pAvailability = createLabel(QStringLiteral("availability"), this);
    m_pAvailability->setTextFormat(Qt::RichText);
    statusBar()->addWidget(m_pLastPress, 1);
    statusBar()->addPermanentWidget(m_pAvailability);
}

void PanelWindow::showValues()
{
    m_frequency.value->setText(m_tree.Frequency().GetText());
    m_frequency.note->setText(tr("Modulation: %1").arg(m_tree.Modulation().GetText()));
    m_bandwidth.value->setText(m_tree.Bandwidth().GetText());
    m_bandwidth.note->setText(tr("Channel filter"));
    m_level.value->setText(m_tree.Level().GetText());
    m_level.note->setText(tr("Detector: %1").arg(m_tree.Detector().GetText()));
    m_azimuth.value->setText(m_receiver.HasBearing() ? m_tree.Azimuth().GetText() : tr("no bearing"));
    m_azimuth.note->setText(tr("Quality: %1").arg(m_tree.Quality().GetText()));
}

void PanelWindow::showAvailability(bool isAvailable)
{
    const QString light = QStringLiteral("<font color=\"%1\">●</font> ");
    m_pAvailability->setText(isAvailable ? light.arg(AvailableColour) + tr("Schema and report directory are available")
                                         : light.arg(MissingColour) + tr("Schema or report directory is missing"));
    m_folder.Look();
}

void PanelWindow::showReport(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    m_pReportName->setText(tr("Last report: %1").arg(name));
    m_pReportView->ShowFile(path);
    m_pLastPress->setText(tr("Report written: %1").arg(name));
    Q_EMIT ReportWritten(path);
}

void PanelWindow::beginPress()
{
    m_outcome = Outcome::NotMade;
    registerReportItems(*m_pReporting, m_tree, m_receiver, ++m_lPresses);
}

void PanelWindow::endPress()
{
    const bool isWritten = m_folder.Look();
    if (m_outcome == Outcome::NotMade) {
        fail(tr("Report %1 was not made: the name of the schema does not end in \".xsd\".").arg(m_lPresses));
    } else if (m_outcome == Outcome::SchemaUnreadable) {
        fail(tr("Report %1 is not in order: the schema could not be read.").arg(m_lPresses));
    } else if (m_pAskForComment->isChecked()) {
        m_pLastPress->setText(tr("Report %1 is written when its comment dialog is answered.").arg(m_lPresses));
    } else if (!isWritten) {
        fail(tr("Report %1 could not be written.").arg(m_lPresses));
    }
}

void PanelWindow::fail(const QString& reason)
{
    m_pLastPress->setText(reason);
    Q_EMIT ReportFailed(reason);
}
