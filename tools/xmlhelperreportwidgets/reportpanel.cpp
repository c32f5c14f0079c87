#include "reportpanel.h"

#include <map>
#include <vector>

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QSettings>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <xmlhelper/reportnews.h>

#include "earlierreports_p.h"
#include "filelook_p.h"
#include "focusring_p.h"
#include "question_p.h"
#include "reportactions_p.h"
#include "reportlist_p.h"
#include "reportmessage_p.h"
#include "reportpreview_p.h"
#include "reportview_p.h"
#include "reportwords_p.h"

namespace {

constexpr int Second = 1000;

/// On a small screen the words are more than the rows.
constexpr int LeastHeight = 1;

constexpr int MaxListed = 10;

const QLatin1String SplitterKey("ReportPanel/splitter");
const QLatin1String TabKey("ReportPanel/tab");

/// As many as fit on any screen.
QString listed(const QStringList& sentences)
{
    QStringList lines = sentences.mid(0, MaxListed);
    if (sentences.size() > MaxListed) {
        lines.append(ReportPanel::tr("and %1 more").arg(sentences.size() - MaxListed));
    }
    return lines.join(QLatin1Char('\n'));
}

bool isQuittingWanted(const QWidget& panel, const QStringList& lost)
{
    Question question;
    question.name = "quitQuestion";
    question.title = ReportPanel::tr("Reports would be lost");
    question.text
        = ReportPanel::tr("If the program ends now, these reports are lost:") + QLatin1Char('\n') + listed(lost);
    question.yes = ReportPanel::tr("&Quit all the same");
    question.no = ReportPanel::tr("&Stay");
    return isWanted(*panel.window(), question);
}

} // namespace

/// The parts of the panel, and how they hang together.
struct ReportPanelData
{
    ReportPanelData(ReportPanel& owner, ReportSupervisor& watched);

    void LayOut();
    void LayOutList(QSplitter& row);
    void Connect();
    void Refresh();
    void DropDialogs();
    void PutEarlier();
    void ShowChosen();
    void ShowKept();
    void Translate();
    void Recheck(quint64 report);
    quint64 Chosen() const;
    void Choose(int row) const;

    ReportPanel& panel;
    ReportSupervisor& supervisor;
    EarlierReports earlier;
    ReportList list;
    FileLook look;
    ReportPreview preview;
    QTimer refreshTimer;
    QTimer secondTimer; ///< runs while a report is tried again by itself
    std::map<quint64, QPointer<QDialog>> dialogs; ///< of reports that may still be answered
    QSettings* settings = nullptr; ///< not owned; null until something shall be remembered

    // Children of the panel.
    ReportMessage* message;
    ReportView* view;
    ReportActions* actions;
    QSplitter* row;
    QLabel* caption;
    QTableView* table;
    QLabel* kept;

private:
    Q_DISABLE_COPY(ReportPanelData)
};

ReportPanelData::ReportPanelData(ReportPanel& owner, ReportSupervisor& watched)
    : panel(owner)
    , supervisor(watched)
    , earlier(watched)
    , message(new ReportMessage(&owner))
    , view(new ReportView) // which stands behind the list for the keyboard
    , actions(new ReportActions(watched, *view, &owner))
    , row(new QSplitter(&owner))
    , caption(new QLabel)
    , table(new QTableView)
    , kept(new QLabel)
{
    refreshTimer.setSingleShot(true);
    secondTimer.setInterval(Second);
    LayOut();
    Translate();
    Connect();
    Refresh();
}

void ReportPanelData::LayOut()
{
    LayOutList(*row);
    row->addWidget(view);
    row->setChildrenCollapsible(false);
    row->setStretchFactor(0, 1);
    row->setStretchFactor(1, 1);
    row->setSizes({panel.width(), panel.width()});
    view->setObjectName(QStringLiteral("reportView"));
    auto* const layout = new QVBoxLayout(&panel);
    layout->addWidget(message);
    layout->addWidget(actions);
    layout->addWidget(row, 1);
}

void ReportPanelData::LayOutList(QSplitter& splitter)
{
    table->setObjectName(QStringLiteral("reportList"));
    table->setModel(&list);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setMinimumHeight(LeastHeight);
    view->setMinimumHeight(LeastHeight);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(ReportList::File, QHeaderView::Stretch);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setResizeContentsPrecision(0); // of the rows that are seen, each time
    kept->setObjectName(QStringLiteral("reportsKept"));
    kept->setTextFormat(Qt::PlainText);
    kept->setWordWrap(true);
    caption->setBuddy(table);

    auto* const side = new QWidget(&splitter);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(new FocusRing(*table), 1);
    layout->addWidget(kept);
}

/// The timer goes with the data, and all that leads here with it.
void ReportPanelData::Connect()
{
    QObject::connect(&supervisor, &ReportSupervisor::Changed, &refreshTimer, [this] { refreshTimer.start(0); });
    QObject::connect(&earlier, &EarlierReports::Changed, &refreshTimer, [this] { refreshTimer.start(0); });
    QObject::connect(&refreshTimer, &QTimer::timeout, &refreshTimer, [this] { Refresh(); });
    QObject::connect(&secondTimer, &QTimer::timeout, &refreshTimer, [this] { ShowKept(); });
    QObject::connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, &refreshTimer, [this] {
        Recheck(Chosen());
        ShowChosen();
    });
    QObject::connect(&look, &FileLook::Doubted, &refreshTimer, [this](quint64 report) { Recheck(report); });
    QObject::connect(&look, &FileLook::ChosenChanged, &refreshTimer, [this] { ShowChosen(); });
    QObject::connect(&preview, &ReportPreview::Changed, &refreshTimer, [this] { ShowChosen(); });
    QObject::connect(actions, &ReportActions::Complaint, message, &ReportMessage::Complain);
    QObject::connect(&ReportNews::Instance(), &ReportNews::CommentAsked, &refreshTimer,
                     [this](quint64 report, QDialog* dialog) { dialogs[report] = dialog; });
    QObject::connect(row, &QSplitter::splitterMoved, &refreshTimer, [this] {
        if (settings) {
            settings->setValue(SplitterKey, row->saveState());
        }
    });
    QObject::connect(view, &QTabWidget::currentChanged, &refreshTimer, [this](int tab) {
        if (settings) {
            settings->setValue(TabKey, tab);
        }
    });
}

/// Follows the newest report of this session unless another one is chosen.
void ReportPanelData::Refresh()
{
    const quint64 chosen = Chosen();
    const bool isNewestChosen = chosen == 0 || list.RowOf(chosen) == 0;
    list.Put(supervisor.GetReports());
    PutEarlier();
    if (isNewestChosen && !list.GetReports().empty()) {
        Choose(0);
    }
    DropDialogs();
    ShowChosen();
}

/// Those that have gone, and those of reports that have ended or are forgotten.
void ReportPanelData::DropDialogs()
{
    for (auto dialog = dialogs.begin(); dialog != dialogs.end();) {
        const ReportSupervisor::Verdict verdict = supervisor.GetReport(dialog->first);
        const bool isNeeded = verdict.state == ReportSupervisor::State::Making
            || ReportActions::IsDialogOf(verdict, dialog->second); // A report is told of before its dialog.
        dialog = dialog->second && isNeeded ? std::next(dialog) : dialogs.erase(dialog);
    }
}

void ReportPanelData::PutEarlier()
{
    list.PutEarlier(earlier.GetReports());
    table->clearSpans();
    if (list.HeadingRow() >= 0) {
        table->setSpan(list.HeadingRow(), 0, 1, ReportList::ColumnCount);
    }
}

void ReportPanelData::ShowChosen()
{
    const quint64 chosen = Chosen();
    const ReportSupervisor::Verdict verdict
        = chosen ? list.At(table->currentIndex().row()) : ReportSupervisor::Verdict();
    const auto found = dialogs.find(chosen);
    QDialog* const dialog = found == dialogs.end() ? nullptr : found->second.data();
    const bool isAsked = ReportActions::IsDialogOf(verdict, dialog);
    preview.Follow(isAsked ? dialog : nullptr);
    message->Show(verdict, isAsked);
    view->Show(verdict, preview.GetContent());
    actions->Show(verdict, dialog);
    std::vector<ReportSupervisor::Verdict> all = list.GetReports();
    all.insert(all.end(), list.GetEarlier().begin(), list.GetEarlier().end());
    look.Follow(all, chosen);
    ShowKept();
}

void ReportPanelData::ShowKept()
{
    int count = 0;
    for (const ReportSupervisor::Verdict& verdict : list.GetReports()) {
        count += ReportWords::IsKept(verdict) ? 1 : 0;
    }
    const int msToNextTry = supervisor.MsToNextTry();
    kept->setText(ReportWords::Kept(count, msToNextTry));
    kept->setVisible(count > 0);
    if (msToNextTry < 0) {
        secondTimer.stop();
    } else if (!secondTimer.isActive()) {
        secondTimer.start();
    }
}

void ReportPanelData::Translate()
{
    caption->setText(ReportPanel::tr("&Reports:"));
    table->setAccessibleName(ReportPanel::tr("Reports"));
    message->Translate();
    view->Translate();
    actions->Translate();
    list.Translate();
    ShowKept();
}

void ReportPanelData::Recheck(quint64 report)
{
    if (EarlierReports::IsNumber(report)) {
        earlier.Recheck(report);
    } else {
        supervisor.Recheck(report);
    }
}

quint64 ReportPanelData::Chosen() const
{
    const QModelIndex current = table->currentIndex();
    return current.isValid() ? list.At(current.row()).report : 0;
}

void ReportPanelData::Choose(int number) const
{
    if (number >= 0 && number < list.rowCount()) {
        table->setCurrentIndex(list.index(number, ReportList::Verdict));
    }
}

ReportPanel::ReportPanel(ReportSupervisor& supervisor, QWidget* parent)
    : QWidget(parent)
    , m_pData(std::make_unique<ReportPanelData>(*this, supervisor))
{
}

ReportPanel::~ReportPanel() = default;

void ReportPanel::ShowReport(quint64 report)
{
    m_pData->Refresh();
    if (!EarlierReports::IsNumber(report)) {
        m_pData->Choose(m_pData->list.RowOf(report));
    }
}

quint64 ReportPanel::GetShownReport() const
{
    const quint64 chosen = m_pData->Chosen();
    return EarlierReports::IsNumber(chosen) ? 0 : chosen;
}

void ReportPanel::SetJournal(ReportJournal* journal)
{
    m_pData->list.PutEarlier({}); // Those of another journal may have the same numbers.
    m_pData->earlier.SetJournal(journal);
    m_pData->Refresh();
    m_pData->look.Look();
}

QString ReportPanel::GetShownEntry() const
{
    return m_pData->earlier.IdOf(m_pData->Chosen());
}

bool ReportPanel::MayQuit()
{
    const QStringList lost = m_pData->supervisor.MayQuit();
    return lost.isEmpty() || isQuittingWanted(*this, lost);
}

void ReportPanel::SetPageDresser(const PageDresser& dresser)
{
    const auto dressWithKnownNumber
        = [dresser](quint64 report, ReportPage& page) { dresser(EarlierReports::IsNumber(report) ? 0 : report, page); };
    m_pData->view->SetDresser(dresser ? PageDresser(dressWithKnownNumber) : dresser);
}

void ReportPanel::Remember(QSettings& settings)
{
    m_pData->row->restoreState(settings.value(SplitterKey).toByteArray());
    m_pData->view->setCurrentIndex(settings.value(TabKey, 0).toInt());
    m_pData->settings = &settings;
}

void ReportPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_pData->Translate();
        m_pData->ShowChosen();
    }
    QWidget::changeEvent(event);
}

/// While nobody looked, files may have gone in ways that the system does not tell of.
bool ReportPanel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        m_pData->look.Look();
    }
    return QWidget::event(event);
}

void ReportPanel::showEvent(QShowEvent* event)
{
    m_pData->look.Look();
    QWidget::showEvent(event);
}
