#include "doctorwindow.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <xmlhelper/filesaving_p.h>

#include "mendwindow.h"
#include "model/texts.h"
#include "placewords.h"
#include "schematextview.h"
#include "schemawatcher.h"
#include "skeletontreemodel.h"

namespace schemadoctor {

namespace {

constexpr int unfoldedElements = 300; // a longer tree starts folded below its first level
constexpr int numberRole = Qt::UserRole; // of a finding

QStyle::StandardPixmap pictureOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return QStyle::SP_MessageBoxCritical;
    case Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case Severity::Note:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

/// The files that an examination depends on, those that are missing too.
void addFiles(const IncludedFile& file, QStringList& files)
{
    files.append(openableFileName(file.file));
    for (const IncludedFile& included : file.includes) {
        addFiles(included, files);
    }
}

QStringList filesOf(const Examination& examination)
{
    QStringList files {openableFileName(examination.file)};
    addFiles(examination.includes, files);
    files.removeAll(QString());
    files.removeDuplicates();
    return files;
}

/// The one file that is dragged; empty when there is none.
QString fileIn(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

QPlainTextEdit* makeReader(const char* name)
{
    auto* const reader = new QPlainTextEdit;
    reader->setObjectName(QLatin1String(name));
    reader->setReadOnly(true);
    reader->setTabChangesFocus(true);
    reader->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return reader;
}

} // namespace

DoctorWindow::DoctorWindow(const Examination& examination, Examine examine, QWidget* parent)
    : QMainWindow(parent)
    , m_examine(std::move(examine))
    , m_pProxy(new QSortFilterProxyModel(this))
    , m_pWatcher(new SchemaWatcher(this))
    , m_pMessage(new QLabel)
    , m_pSummary(new QLabel)
    , m_pFilter(new QLineEdit)
    , m_pTree(new QTreeView)
    , m_pFile(new QComboBox)
    , m_pText(new SchemaTextView)
    , m_pFindings(new QTreeWidget)
    , m_pDetails(makeReader("details"))
    , m_pTrees(makeTrees())
    , m_pMeant(m_pTrees->findChild<QPlainTextEdit*>(QStringLiteral("meant")))
    , m_pLaidOut(m_pTrees->findChild<QPlainTextEdit*>(QStringLiteral("laidOut")))
{
    resize(1280, 800);
    setAcceptDrops(true);
    setCentralWidget(makeCentre());
    statusBar()->addWidget(m_pSummary);
    makeMenu();
    connect(m_pWatcher, &SchemaWatcher::Changed, this, &DoctorWindow::reload);
    showExamination(examination);
    chooseFirst();
    m_pWatcher->Watch(filesOf(m_examination), QDateTime::currentDateTime());
}

/// The message above the panes.
QWidget* DoctorWindow::makeCentre()
{
    auto* const right = new QSplitter(Qt::Vertical);
    right->addWidget(makeTextPane());
    right->addWidget(makeFindingsPane());
    auto* const panes = new QSplitter(Qt::Horizontal);
    panes->addWidget(makeTreePane());
    panes->addWidget(right);
    panes->setSizes({640, 640});
    right->setSizes({300, 500});
    m_pMessage->setObjectName(QStringLiteral("message"));
    m_pMessage->setWordWrap(true);
    m_pMessage->setMargin(8);
    m_pMessage->setTextFormat(Qt::PlainText);
    m_pMessage->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const all = new QWidget;
    auto* const layout = new QVBoxLayout(all);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pMessage);
    layout->addWidget(panes, 1);
    return all;
}

void DoctorWindow::makeMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&File"));
    QAction* const open = menu->addAction(tr("&Open..."), this, &DoctorWindow::chooseFile);
    open->setObjectName(QStringLiteral("open"));
    open->setShortcut(QKeySequence::Open);
    QAction* const again = menu->addAction(tr("&Reload"), this, &DoctorWindow::reload);
    again->setObjectName(QStringLiteral("reload"));
    again->setShortcut(QKeySequence::Refresh);
    QAction* const mend = menu->addAction(tr("&Mend..."), this, &DoctorWindow::chooseMended);
    mend->setObjectName(QStringLiteral("mend"));
    menu->addSeparator();
    QAction* const close = menu->addAction(tr("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence::Close);
    auto* const find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_pFilter, [this] { m_pFilter->setFocus(Qt::ShortcutFocusReason); });
}

QWidget* DoctorWindow::makeTreePane()
{
    m_pProxy->setRecursiveFilteringEnabled(true);
    m_pProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_pTree->setObjectName(QStringLiteral("tree"));
    m_pTree->setModel(m_pProxy);
    m_pTree->setUniformRowHeights(true);
    m_pTree->setAlternatingRowColors(true);
    connect(m_pTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &DoctorWindow::showElement);

    m_pFilter->setObjectName(QStringLiteral("filter"));
    m_pFilter->setAcceptDrops(false); // Files are dropped on the window.
    connect(m_pFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_pProxy->setFilterFixedString(text);
        if (!text.isEmpty()) {
            m_pTree->expandAll();
        }
    });

    auto* const pane = new QWidget;
    auto* const layout = new QVBoxLayout(pane);
    auto* const form = new QFormLayout;
    form->addRow(tr("F&ind:"), m_pFilter);
    layout->addLayout(form);
    layout->addWidget(m_pTree);
    return pane;
}

QWidget* DoctorWindow::makeTextPane()
{
    m_pText->setObjectName(QStringLiteral("text"));
    m_pFile->setObjectName(QStringLiteral("file"));
    m_pFile->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_pFile, &QComboBox::currentTextChanged, this, &DoctorWindow::showText);

    auto* const pane = new QWidget;
    auto* const layout = new QVBoxLayout(pane);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Schema:"), m_pFile);
    layout->addLayout(form);
    layout->addWidget(m_pText);
    return pane;
}

QWidget* DoctorWindow::makeFindingsPane()
{
    m_pFindings->setObjectName(QStringLiteral("findings"));
    m_pFindings->setHeaderLabels({tr("Finding"), tr("Line"), tr("Rule"), tr("What")});
    m_pFindings->setUniformRowHeights(true);
    connect(m_pFindings, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) {
            showFinding(item->data(0, numberRole).toInt());
        }
    });

    auto* const pane = new QSplitter(Qt::Vertical);
    pane->addWidget(m_pFindings);
    pane->addWidget(m_pDetails);
    pane->addWidget(m_pTrees);
    pane->setSizes({140, 190, 170});
    return pane;
}

/// Both trees, each under what it is.
QWidget* DoctorWindow::makeTrees()
{
    auto* const trees = new QWidget;
    trees->setObjectName(QStringLiteral("trees"));
    auto* const layout = new QHBoxLayout(trees);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& [name, caption] :
         {std::make_pair("meant", tr("As it is meant")), std::make_pair("laidOut", tr("As it is laid out"))}) {
        auto* const box = new QGroupBox(caption);
        box->setFlat(true);
        auto* const inside = new QVBoxLayout(box);
        inside->setContentsMargins(0, 0, 0, 0);
        QPlainTextEdit* const reader = makeReader(name);
        reader->setLineWrapMode(QPlainTextEdit::NoWrap);
        inside->addWidget(reader);
        layout->addWidget(box);
    }
    return trees;
}

void DoctorWindow::chooseFile()
{
    const QString folder = QFileInfo(m_examination.file).absolutePath();
    auto* const dialog = new QFileDialog(this, tr("Open a schema"), folder, tr("Schemas (*.xsd);;All files (*)"));
    dialog->setObjectName(QStringLiteral("openDialog"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, &DoctorWindow::Open);
    dialog->open();
}

void DoctorWindow::chooseMended()
{
    const QFileInfo schema(m_examination.file);
    const QString proposal = schema.dir().filePath(schema.completeBaseName() + QStringLiteral("-mended.xsd"));
    auto* const dialog
        = new QFileDialog(this, tr("Write the mended schema"), proposal, tr("Schemas (*.xsd);;All files (*)"));
    dialog->setObjectName(QStringLiteral("mendDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("xsd"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, &DoctorWindow::Mend);
    dialog->open();
}

void DoctorWindow::Mend(const QString& out)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const MendedFile mended = mendInto(out, m_examination.file, MendOptions());
    QGuiApplication::restoreOverrideCursor();
    if (!mended.mending.refusal.isEmpty()) {
        auto* const refusal
            = new QMessageBox(QMessageBox::Warning, tr("Not mended"), mended.mending.refusal, QMessageBox::Ok, this);
        refusal->setObjectName(QStringLiteral("refusal"));
        refusal->setTextFormat(Qt::PlainText);
        refusal->setAttribute(Qt::WA_DeleteOnClose);
        refusal->open();
        return;
    }
    auto* const window = new MendWindow(mended, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

void DoctorWindow::Open(const QString& file)
{
    m_choice = Choice();
    m_pFilter->clear();
    examineAnew(file);
    chooseFirst();
}

void DoctorWindow::reload()
{
    const Choice chosen = choice();
    examineAnew(m_examination.file);
    choose(chosen);
}

/// The doctor keeps its time, and the window waits for it.
void DoctorWindow::examineAnew(const QString& file)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QDateTime begin = QDateTime::currentDateTime();
    showExamination(m_examine(file));
    m_pWatcher->Watch(filesOf(m_examination), begin);
    QGuiApplication::restoreOverrideCursor();
}

void DoctorWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!fileIn(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void DoctorWindow::dropEvent(QDropEvent* event)
{
    const QString file = fileIn(event->mimeData());
    if (!file.isEmpty()) {
        event->acceptProposedAction();
        Open(file);
    }
}

void DoctorWindow::showExamination(const Examination& examination)
{
    m_pProxy->setSourceModel(nullptr);
    delete m_pModel; // before the tree that it shows
    m_examination = examination;
    m_pModel = new SkeletonTreeModel(m_examination.tree, this);
    setWindowTitle(tr("%1 - schema doctor").arg(m_examination.file));
    fillTree();
    fillFiles();
    m_pDetails->clear();
    m_pTrees->hide();
    fillFindings();
    fillMessage();
}

void DoctorWindow::fillTree()
{
    m_pProxy->setSourceModel(m_pModel);
    const bool isFiltered = !m_pFilter->text().isEmpty();
    if (isFiltered || m_examination.tree.elements.size() <= std::size_t(unfoldedElements)) {
        m_pTree->expandAll();
    } else {
        m_pTree->expandToDepth(0);
    }
    for (int column = 0; column < SkeletonTreeModel::SetBy; ++column) {
        m_pTree->resizeColumnToContents(column);
    }
}

/// The top file first. The text that was shown stays, if it is there.
void DoctorWindow::fillFiles()
{
    const QString shown = m_pFile->currentText();
    const QSignalBlocker blocker(m_pFile);
    m_pFile->clear();
    const QString top = m_examination.includes.file;
    if (m_examination.texts.count(top) > 0) {
        m_pFile->addItem(top);
    }
    for (const auto& text : m_examination.texts) {
        if (text.first != top) {
            m_pFile->addItem(text.first);
        }
    }
    m_pFile->setCurrentIndex(std::max(0, m_pFile->findText(shown)));
    showText(m_pFile->currentText());
}

/// Above all: why there is nothing to see. Below: how much there is.
void DoctorWindow::fillMessage()
{
    QString message;
    if (!m_examination.IsReadable()) {
        message = tr("%1 cannot be read: %2").arg(m_examination.file, m_examination.unreadableReason);
    } else if (m_examination.tree.IsEmpty()) {
        message = m_examination.noTreeReason;
    }
    m_pMessage->setText(message);
    m_pMessage->setVisible(!message.isEmpty());
    const QString count = !m_examination.count.limit.isEmpty() ? m_examination.count.limit
                                                               : tr("Elements laid out: %1. Findings: %2.")
                                                                     .arg(m_examination.count.elements)
                                                                     .arg(m_examination.findings.size());
    m_pSummary->setText(message.isEmpty() ? QStringLiteral("%1 %2").arg(count, wordsFor(m_examination.proof)).trimmed()
                                          : QString());
}

QTreeWidgetItem* DoctorWindow::makeItem(int number) const
{
    const Finding& finding = m_examination.findings.at(number);
    auto* const item = new QTreeWidgetItem(
        QStringList {wordFor(finding.severity), wordsFor(finding.place), finding.rule, finding.what});
    item->setIcon(0, style()->standardIcon(pictureOf(finding.severity)));
    item->setData(0, numberRole, number);
    return item;
}

/// Findings of one cause are folded under a line that stands for them and shows the first.
void DoctorWindow::fillFindings()
{
    m_pFindings->clear();
    QList<QTreeWidgetItem*> items;
    const QVector<FindingGroup> groups = groupsOf(m_examination.findings);
    for (const FindingGroup& group : groups) {
        if (group.count == 1) {
            items.append(makeItem(group.first));
            continue;
        }
        auto* const parent = makeItem(group.first);
        parent->setText(3, wordsFor(group));
        for (int number = group.first; number < group.first + group.count; ++number) {
            parent->addChild(makeItem(number));
        }
        items.append(parent);
    }
    m_pFindings->addTopLevelItems(items);
    m_pFindings->expandAll();
    for (int column = 0; column < m_pFindings->columnCount() - 1; ++column) {
        m_pFindings->resizeColumnToContents(column);
    }
}

/// What cannot be asked for because nothing is there stays what it was.
DoctorWindow::Choice DoctorWindow::choice() const
{
    Choice chosen = m_choice;
    const QModelIndex row = m_pProxy->mapToSource(m_pTree->currentIndex());
    if (row.isValid()) {
        chosen.element = pathOf(m_examination.tree, m_pModel->ElementOf(row));
        chosen.attribute = m_pModel->AttributeOf(row);
    }
    if (const QTreeWidgetItem* const item = m_pFindings->currentItem()) {
        chosen.finding = m_examination.findings.at(item->data(0, numberRole).toInt());
    }
    return chosen;
}

/// What was chosen last comes last, because it says which line is shown.
void DoctorWindow::choose(const Choice& wanted)
{
    const bool isElementThere = chooseElement(wanted);
    const bool isFindingThere = chooseFinding(wanted.finding);
    if (isElementThere && !(isFindingThere && wanted.isOfFinding)) {
        chooseElement(wanted);
        showElement(m_pTree->currentIndex());
    } else if (!isElementThere && !isFindingThere) {
        chooseFirst();
    }
    if (m_examination.tree.IsEmpty()) {
        m_choice = wanted;
    }
}

bool DoctorWindow::chooseElement(const Choice& wanted)
{
    const int element = findByPath(m_examination.tree, wanted.element);
    const QModelIndex row = m_pProxy->mapFromSource(m_pModel->IndexOf(element, wanted.attribute));
    if (row.isValid()) {
        m_pTree->setCurrentIndex(row);
        m_pTree->scrollTo(row);
    }
    return row.isValid();
}

void DoctorWindow::chooseFirst()
{
    if (m_pFindings->topLevelItemCount() > 0) {
        m_pFindings->setCurrentItem(m_pFindings->topLevelItem(0));
    } else {
        m_pTree->setCurrentIndex(m_pProxy->index(0, 0));
    }
}

/// The finding of the same rule about the same, wherever it stands now.
bool DoctorWindow::chooseFinding(const Finding& wanted)
{
    for (QTreeWidgetItemIterator it(m_pFindings); *it; ++it) {
        const Finding& finding = m_examination.findings.at((*it)->data(0, numberRole).toInt());
        if ((*it)->childCount() == 0 && finding.rule == wanted.rule && finding.subject == wanted.subject
            && finding.path == wanted.path) {
            m_pFindings->setCurrentItem(*it);
            return true;
        }
    }
    return false;
}

void DoctorWindow::showElement(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    m_choice.isOfFinding = false;
    showPlace(m_pModel->PlaceOf(m_pProxy->mapToSource(index)));
}

void DoctorWindow::showFinding(int number)
{
    const Finding& finding = m_examination.findings.at(number);
    m_pDetails->setPlainText(
        tr("%1\n\nWhat the library does: %2\n\nWrite instead: %3").arg(finding.what, finding.effect, finding.remedy));
    m_pMeant->setPlainText(finding.meantTree);
    m_pLaidOut->setPlainText(finding.laidOutTree);
    m_pTrees->setVisible(!finding.meantTree.isEmpty() || !finding.laidOutTree.isEmpty());
    Choice wanted;
    wanted.element = finding.path;
    chooseElement(wanted);
    m_choice.isOfFinding = true;
    showPlace(finding.place); // last: it may be another line than that of the element
}

void DoctorWindow::showPlace(const Place& place)
{
    const int file = m_pFile->findText(place.file);
    if (file >= 0) {
        m_pFile->setCurrentIndex(file);
        m_pText->ShowLine(place.line);
    }
}

void DoctorWindow::showText(const QString& file)
{
    const auto text = m_examination.texts.find(file);
    m_pText->ShowText(text == m_examination.texts.end() ? QString() : text->second);
}

} // namespace schemadoctor
