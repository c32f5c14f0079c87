#include "panelwindow.h"

#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/vcreporting.h>
#include <xmlhelperreportwidgets/elidedlabel_p.h>
#include <xmlhelperreportwidgets/panelcolours_p.h>
#include <xmlhelperreportwidgets/xmlview_p.h>

#include "buttonexplanation.h"
#include "languages.h"
#ifdef MEASUREMENTPANEL_HAS_PLOT
#include "leveltrace.h"
#endif
#include "measurementtree.h"
#include "panelsettings.h"
#include "presstext.h"
#include "reportitems.h"
#include "reportmessage.h"
#include "reportpicture.h"
#include "simulatedreceiver.h"

namespace {

constexpr double ValueFontFactor = 1.7;
constexpr int ListWidth = 520;
constexpr int ListHeight = 170;
constexpr QSize ButtonPicture(24, 24);

QFont enlarged(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    return font;
}

QLabel* createLabel(const QString& name, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

ElidedLabel* createStatusLabel(const char* name, QStatusBar& line)
{
    auto* const label = new ElidedLabel(&line);
    label->setObjectName(QLatin1String(name));
    return label;
}

enum class Leaving { SaveAll, GoThrough, Stay };

Leaving askHowToLeave(QWidget& window, int openDialogs)
{
    QMessageBox question(QMessageBox::Warning, PanelWindow::tr("Reports not saved yet"),
                         PanelWindow::tr("Reports that wait for their comments: %1. "
                                         "They are not on the disk before their dialogs are answered.")
                             .arg(openDialogs),
                         QMessageBox::NoButton, &window);
    question.setObjectName(QStringLiteral("leaveQuestion"));
    const QPushButton* const saveAll
        = question.addButton(PanelWindow::tr("Save all without comment"), QMessageBox::AcceptRole);
    QPushButton* const goThrough = question.addButton(PanelWindow::tr("Go through them"), QMessageBox::ActionRole);
    QPushButton* const stay = question.addButton(PanelWindow::tr("Stay"), QMessageBox::RejectRole);
    question.setDefaultButton(goThrough);
    question.setEscapeButton(stay);
    question.exec();
    if (question.clickedButton() == saveAll) {
        return Leaving::SaveAll;
    }
    return question.clickedButton() == goThrough ? Leaving::GoThrough : Leaving::Stay;
}

} // namespace

PanelWindow::PanelWindow(const MeasurementTree& tree, const SimulatedReceiver& receiver, const QString& schema,
                         const QString& reportDirectory)
    : m_tree(tree)
    , m_receiver(receiver)
    , m_sSchema(schema)
    , m_sReportDirectory(reportDirectory)
{
    setCentralWidget(new QWidget(this));
    new QVBoxLayout(centralWidget());
    createReadouts();
    createLiveRow();
    createReportView();
    createStatusLine();
    createMenus();
    createToolBar();
    createReporting();
    resize(980, 780);

    connect(&m_receiver, &SimulatedReceiver::Measured, this, &PanelWindow::showValues);
    connect(&m_presses, &PressWatch::Began, this,
            [this](int number) { registerReportItems(*m_pReporting, m_tree, m_receiver, number); });
    connect(&m_presses, &PressWatch::Judged, this, &PanelWindow::showPress);
    connect(&m_presses.GetDialogs(), &CommentDialogs::Answered, this, &PanelWindow::dialogAnswered,
            Qt::QueuedConnection);
    // Asks the library to look: whether the button is enabled stays its decision.
    connect(&m_paths, &PathWatch::Changed, this, [this] { m_pReporting->EnableReportButton(true); });
    translate();
}

PanelWindow::~PanelWindow() = default;

void PanelWindow::OfferLanguages(Languages& languages)
{
    m_pLanguages = &languages;
    const QStringList available = languages.GetAvailable();
    for (const QString& language : available) {
        QAction* const action = m_pLanguageMenu->addAction(Languages::NameOf(language));
        action->setObjectName(QStringLiteral("language_") + language);
        action->setCheckable(true);
        action->setChecked(language == languages.GetCurrent());
        m_pLanguageActions->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] { speak(language); });
    }
    m_pLanguageMenu->setEnabled(available.size() > 1);
}

void PanelWindow::Remember(PanelSettings& settings)
{
    m_pSettings = &settings;
}

void PanelWindow::UseSchema(const QString& schema)
{
    m_sSchema = schema;
    m_pReporting->SetSchema(schema);
    m_presses.SetSchema(schemaFile());
    watchPaths();
    if (m_pSettings) {
        m_pSettings->SetSchema(schema);
    }
}

void PanelWindow::UseReportDirectory(const QString& directory)
{
    m_sReportDirectory = directory;
    m_pToolBar->removeAction(m_pReportingAction);
    delete m_pReportingAction; // with the report widget, which keeps its directory for life
    createReporting();
    if (m_pSettings) {
        m_pSettings->SetReportDirectory(directory);
    }
}

void PanelWindow::AskForComment(bool isWanted)
{
    m_pAskForComment->setChecked(isWanted);
}

void PanelWindow::createReadouts()
{
    auto* const row = new QHBoxLayout;
    qobject_cast<QVBoxLayout*>(centralWidget()->layout())->addLayout(row);
    m_frequency = createReadout("Frequency", *row);
    m_bandwidth = createReadout("Bandwidth", *row);
    m_level = createReadout("Level", *row);
    m_azimuth = createReadout("Azimuth", *row);
}

PanelWindow::Readout PanelWindow::createReadout(const char* name, QLayout& row)
{
    auto* const box = new QGroupBox(centralWidget());
    const Readout readout {box, createLabel(QLatin1String(name) + QStringLiteral("Value"), box),
                           createLabel(QLatin1String(name) + QStringLiteral("Note"), box)};
    readout.value->setFont(enlarged(font(), ValueFontFactor));
    auto* const column = new QVBoxLayout(box);
    column->addWidget(readout.value);
    column->addWidget(readout.note);
    row.addWidget(box);
    return readout;
}

void PanelWindow::createLiveRow()
{
    auto* const row = new QHBoxLayout;
    qobject_cast<QVBoxLayout*>(centralWidget()->layout())->addLayout(row);
#ifdef MEASUREMENTPANEL_HAS_PLOT
    m_pTrace = new LevelTrace(centralWidget());
    row->addWidget(m_pTrace, 1);
#endif
    m_pLog = new QTableView(centralWidget());
    m_pLog->setObjectName(QStringLiteral("sessionLog"));
    m_pLog->setModel(&m_presses.GetLog());
    m_pLog->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pLog->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pLog->setTabKeyNavigation(false);
    m_pLog->verticalHeader()->hide();
    m_pLog->horizontalHeader()->setStretchLastSection(true);
    m_pLog->setMinimumWidth(ListWidth);
    m_pLog->setMinimumHeight(ListHeight);
    row->addWidget(m_pLog, m_pTrace ? 0 : 1);
    connect(m_pLog->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &PanelWindow::showSelectedPress);
}

void PanelWindow::createReportView()
{
    m_pMessage = new ReportMessage(centralWidget());
    m_pReportName = createLabel(QStringLiteral("reportName"), centralWidget());
    m_pReportView = new XmlView(centralWidget());
    m_pReportView->setObjectName(QStringLiteral("reportView"));
    for (QWidget* const widget : {static_cast<QWidget*>(m_pMessage), static_cast<QWidget*>(m_pReportName)}) {
        centralWidget()->layout()->addWidget(widget);
    }
    qobject_cast<QVBoxLayout*>(centralWidget()->layout())->addWidget(m_pReportView, 1);
    connect(m_pMessage, &ReportMessage::DialogWanted, &m_presses, &PressWatch::Reopen);
    connect(m_pMessage, &ReportMessage::Complaint, this, [this](const QString& complaint) {
        m_sComplaint = complaint;
        m_pLastPress->setText(complaint);
    });
}

void PanelWindow::createStatusLine()
{
    m_pLastPress = createStatusLabel("lastPress", *statusBar());
    m_pAvailability = createStatusLabel("availability", *statusBar());
    // Of the two the paths are the longer ones, and the press is told in the message too.
    statusBar()->addWidget(m_pLastPress, 2);
    statusBar()->addPermanentWidget(m_pAvailability, 3);
}

void PanelWindow::createToolBar()
{
    m_pToolBar = addToolBar(QString());
    m_pToolBar->setMovable(false);
    m_pAskForComment = new QCheckBox(m_pToolBar);
    m_pAskForComment->setObjectName(QStringLiteral("askForComment"));
    m_pToolBar->addSeparator();
    m_pToolBar->addWidget(m_pAskForComment);
    connect(m_pAskForComment, &QCheckBox::toggled, this, [this](bool isWanted) {
        m_pReporting->SetShowCommentDialog(isWanted);
        if (m_pSettings) {
            m_pSettings->SetAskForComment(isWanted);
        }
    });
}

void PanelWindow::createMenus()
{
    m_pFileMenu = menuBar()->addMenu(QString());
    m_pQuit = m_pFileMenu->addAction(QString(), this, &PanelWindow::close);
    m_pQuit->setShortcut(QKeySequence(int(Qt::CTRL) | int(Qt::Key_Q)));
    m_pQuit->setObjectName(QStringLiteral("quit"));

    m_pSettingsMenu = menuBar()->addMenu(QString());
    m_pChooseSchema = m_pSettingsMenu->addAction(QString(), this, &PanelWindow::chooseSchema);
    m_pChooseDirectory = m_pSettingsMenu->addAction(QString(), this, &PanelWindow::chooseReportDirectory);
    m_pLanguageMenu = m_pSettingsMenu->addMenu(QString());
    m_pLanguageMenu->setObjectName(QStringLiteral("languageMenu"));
    m_pLanguageMenu->setEnabled(false);
    m_pLanguageActions = new QActionGroup(this);
}

void PanelWindow::createReporting()
{
    // The widget uses up its items: they are registered anew for each report.
    m_pReporting = new VCReporting(m_sSchema, m_sReportDirectory, m_pToolBar, true, "toReport", true,
                                   reportPicture(palette()).pixmap(ButtonPicture));
    m_pReportingAction = m_pToolBar->insertWidget(m_pToolBar->actions().constFirst(), m_pReporting);
    m_pExplanation = new ButtonExplanation(*m_pReporting->GetReportButton());
    m_pReporting->SetShowCommentDialog(m_pAskForComment->isChecked());
    showPicture();

    delete m_pFolder;
    m_pFolder = new ReportFolder(m_sReportDirectory, this);
    connect(m_pFolder, &ReportFolder::ReportAppeared, this, &PanelWindow::showReport);
    m_presses.Follow(*m_pReporting, schemaFile(), m_sReportDirectory);
    connect(m_pReporting, &VCReporting::ReportDirAndSchemaAvailable, this, &PanelWindow::showAvailability);
    watchPaths();
}

/// Looks at once: the widget has looked before anybody could listen.
void PanelWindow::watchPaths()
{
    m_paths.SetPaths({schemaFile(), m_sReportDirectory});
    m_pReporting->EnableReportButton(true);
}

void PanelWindow::translate()
{
    setWindowTitle(tr("Measurement Panel"));
    m_pToolBar->setWindowTitle(tr("Report"));
    m_pAskForComment->setText(tr("Ask for a comment"));
    m_pFileMenu->setTitle(tr("&File"));
    m_pQuit->setText(tr("&Quit"));
    m_pSettingsMenu->setTitle(tr("&Settings"));
    m_pChooseSchema->setText(tr("Choose the &schema..."));
    m_pChooseDirectory->setText(tr("Choose the report &directory..."));
    m_pLanguageMenu->setTitle(tr("&Language"));
    m_frequency.box->setTitle(tr("Frequency"));
    m_bandwidth.box->setTitle(tr("Bandwidth"));
    m_level.box->setTitle(tr("Level"));
    m_azimuth.box->setTitle(tr("Azimuth"));
    m_pLog->setAccessibleName(tr("Reports of this session"));
    m_pReportView->setAccessibleName(tr("The last report"));
    m_pReportView->setPlaceholderText(tr("Press the button in the tool bar to write a report."));
    m_pReportName->setText(m_sShownReport.isEmpty() ? tr("No report yet")
                                                    : tr("Last report: %1").arg(QFileInfo(m_sShownReport).fileName()));
    m_presses.GetLog().Translate();
    fitColumns();
    m_pMessage->Translate();
    if (m_iLastPress > 0) {
        m_pLastPress->setText(PressText::Sentence(m_presses.GetLog().At(m_iLastPress - 1)));
    }
    showAvailability(m_bAvailable);
    showValues();
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
#ifdef MEASUREMENTPANEL_HAS_PLOT
    const ReportedValue frequency = reportedFrequency();
    const double scale = frequency.number / m_tree.Frequency().GetNumericValue();
    std::vector<double> frequencies = m_receiver.GetSpectrum().frequencies;
    for (double& swept : frequencies) {
        swept *= scale;
    }
    m_pTrace->Show(frequencies, m_receiver.GetSpectrum().levels, frequency, reportedLevel());
#endif
}

void PanelWindow::showAvailability(bool isAvailable)
{
    m_bAvailable = isAvailable;
    const QString text = isAvailable ? tr("Schema and report directory are available") : missingPaths();
    m_pAvailability->setText(QStringLiteral("● ") + text);
    QPalette coloured = palette();
    coloured.setColor(QPalette::WindowText, isAvailable ? goodColour(palette()) : badColour(palette()));
    m_pAvailability->setPalette(coloured);
    m_pExplanation->Explain(isAvailable ? QString() : text);
    m_pMessage->Translate();
    m_pFolder->Look();
}

QString PanelWindow::missingPaths() const
{
    QStringList missing;
    if (!QFileInfo::exists(schemaFile())) {
        missing.append(tr("The schema is missing: %1").arg(QDir::toNativeSeparators(schemaFile())));
    }
    if (!QFileInfo::exists(m_sReportDirectory)) {
        missing.append(tr("The report directory is missing: %1").arg(QDir::toNativeSeparators(m_sReportDirectory)));
    }
    return missing.join(QLatin1Char('\n'));
}

/// The whole path of the schema, found as the report widget finds it.
QString PanelWindow::schemaFile() const
{
    const bool isBareName = !m_sSchema.contains(QLatin1Char('/')) && !m_sSchema.contains(QLatin1Char('\\'));
    return isBareName ? QDir(QCoreApplication::applicationDirPath()).filePath(m_sSchema) : m_sSchema;
}

void PanelWindow::showReport(const QString& path)
{
    m_sShownReport = path;
    m_pReportName->setText(tr("Last report: %1").arg(QFileInfo(path).fileName()));
    m_pReportView->ShowFile(path);
    Q_EMIT ReportWritten(path);
}

void PanelWindow::showPress(const Press& press)
{
    m_iLastPress = press.number;
    m_sComplaint.clear();
    m_pLastPress->setText(PressText::Sentence(press));
    m_pLog->selectRow(press.number - 1);
    fitColumns();
    m_pMessage->ShowPress(press);
    m_pFolder->Look();
    if (press.IsFailed()) {
        Q_EMIT ReportFailed(PressText::Sentence(press));
    }
}

/// The verdict is what has to be readable; the file's name takes what is left.
void PanelWindow::fitColumns()
{
    for (const int column : {SessionLog::Number, SessionLog::Time, SessionLog::Verdict}) {
        m_pLog->resizeColumnToContents(column);
    }
}

void PanelWindow::showSelectedPress()
{
    const QModelIndex current = m_pLog->currentIndex();
    if (current.isValid()) {
        m_pMessage->ShowPress(m_presses.GetLog().At(current.row()));
    }
}

/// Without a picture of ours the widget has shown its own.
void PanelWindow::showPicture()
{
    const QIcon picture = reportPicture(palette());
    if (!picture.isNull()) {
        m_pReporting->GetReportButton()->setIcon(picture);
        m_pReporting->GetReportButton()->setIconSize(ButtonPicture);
    }
}

void PanelWindow::chooseSchema()
{
    const QString schema = QFileDialog::getOpenFileName(this, tr("Schema"), schemaFile(), tr("Schemas (*.xsd)"));
    if (!schema.isEmpty()) {
        UseSchema(schema);
    }
}

void PanelWindow::chooseReportDirectory()
{
    const QString directory = QFileDialog::getExistingDirectory(this, tr("Report directory"), m_sReportDirectory);
    if (!directory.isEmpty()) {
        UseReportDirectory(directory);
    }
}

void PanelWindow::speak(const QString& language)
{
    m_pLanguages->Use(language);
    if (m_pSettings) {
        m_pSettings->SetLanguage(language);
    }
}

void PanelWindow::changeEvent(QEvent* event)
{
    // Events may come before the window has been put together.
    if (event->type() == QEvent::LanguageChange && m_pExplanation) {
        translate();
    } else if (event->type() == QEvent::PaletteChange && m_pExplanation) {
        showPicture();
        showAvailability(m_bAvailable);
    }
    QMainWindow::changeEvent(event);
}

void PanelWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (!m_presses.GetDialogs().GetOpen().isEmpty()) {
        leaveWithOpenDialogs(event);
    }
}

void PanelWindow::leaveWithOpenDialogs(QCloseEvent* event)
{
    const int open = static_cast<int>(m_presses.GetDialogs().GetOpen().size());
    switch (askHowToLeave(*this, open)) {
    case Leaving::SaveAll:
        saveAllAndLeave(event);
        break;
    case Leaving::GoThrough:
        event->ignore();
        m_bLeaving = true;
        goThroughDialogs();
        break;
    case Leaving::Stay:
        event->ignore();
        m_bLeaving = false;
        break;
    }
}

/// Stays when one could not be saved: the message and the list say so.
void PanelWindow::saveAllAndLeave(QCloseEvent* event)
{
    m_bLeaving = false;
    const QList<QWidget*> open = m_presses.GetDialogs().GetOpen();
    m_presses.GetDialogs().SaveAllWithoutComment();
    for (const QWidget* const dialog : open) {
        const Press* const press = m_presses.GetLog().Find(dialog);
        if (press && press->IsFailed()) {
            event->ignore();
        }
    }
}

void PanelWindow::goThroughDialogs()
{
    const QList<QWidget*> open = m_presses.GetDialogs().GetOpen();
    if (open.isEmpty()) {
        m_bLeaving = false;
        close();
    } else {
        CommentDialogs::Show(*open.constFirst());
    }
}

/// A report that could not be saved ends the leaving, for the operator to see it.
void PanelWindow::dialogAnswered(QWidget* dialog)
{
    const Press* const press = m_presses.GetLog().Find(dialog);
    m_bLeaving = m_bLeaving && press && !press->IsFailed();
    if (m_bLeaving) {
        goThroughDialogs();
    }
}
