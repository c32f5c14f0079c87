#include "doctorwindow.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "laidouttreemodel.h"
#include "model/texts.h"
#include "schematextview.h"

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

QString wordsFor(const Place& place)
{
    const QString file = place.file.section(QLatin1Char('/'), -1);
    return place.line > 0 ? QStringLiteral("%1:%2").arg(file).arg(place.line) : file;
}

QString indented(const QString& text)
{
    return QStringLiteral("    ") + QString(text).replace(QLatin1Char('\n'), QStringLiteral("\n    "));
}

QString detailsOf(const Finding& finding)
{
    QString details = Texts::tr("%1\n\nWhat the library does: %2\n\nWrite instead: %3")
                          .arg(finding.what, finding.effect, finding.remedy);
    if (!finding.meantTree.isEmpty() || !finding.laidOutTree.isEmpty()) {
        details += Texts::tr("\n\nAs it is meant:\n%1\n\nAs it is laid out:\n%2")
                       .arg(indented(finding.meantTree), indented(finding.laidOutTree));
    }
    return details;
}

QString summaryOf(const Examination& examination)
{
    if (!examination.IsReadable()) {
        return Texts::tr("The schema cannot be read: %1").arg(examination.unreadableReason);
    }
    if (examination.tree.IsEmpty()) {
        return examination.noTreeReason;
    }
    const QString summary = !examination.count.limit.isEmpty() ? examination.count.limit
                                                               : Texts::tr("Elements laid out: %1. Findings: %2.")
                                                                     .arg(examination.count.elements)
                                                                     .arg(examination.findings.size());
    return QStringLiteral("%1 %2").arg(summary, wordsFor(examination.proof)).trimmed();
}

} // namespace

DoctorWindow::DoctorWindow(const Examination& examination, QWidget* parent)
    : QMainWindow(parent)
    , m_examination(examination)
    , m_pModel(new LaidOutTreeModel(m_examination.tree, this))
    , m_pProxy(new QSortFilterProxyModel(this))
    , m_pFilter(new QLineEdit)
    , m_pTree(new QTreeView)
    , m_pFile(new QComboBox)
    , m_pText(new SchemaTextView)
    , m_pFindings(new QTreeWidget)
    , m_pDetails(new QPlainTextEdit)
{
    setWindowTitle(tr("%1 - schema doctor").arg(m_examination.file));
    resize(1280, 800);

    auto* const right = new QSplitter(Qt::Vertical);
    right->addWidget(makeTextPane());
    right->addWidget(makeFindingsPane());
    auto* const panes = new QSplitter(Qt::Horizontal);
    panes->addWidget(makeTreePane());
    panes->addWidget(right);
    panes->setSizes({640, 640});
    setCentralWidget(panes);
    statusBar()->addWidget(new QLabel(summaryOf(m_examination)));

    auto* const find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_pFilter, [this] { m_pFilter->setFocus(Qt::ShortcutFocusReason); });
    if (m_pFindings->topLevelItemCount() > 0) {
        m_pFindings->setCurrentItem(m_pFindings->topLevelItem(0));
    } else {
        m_pTree->setCurrentIndex(m_pProxy->index(0, 0));
    }
}

QWidget* DoctorWindow::makeTreePane()
{
    m_pProxy->setSourceModel(m_pModel);
    m_pProxy->setRecursiveFilteringEnabled(true);
    m_pProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_pTree->setObjectName(QStringLiteral("tree"));
    m_pTree->setModel(m_pProxy);
    m_pTree->setUniformRowHeights(true);
    m_pTree->setAlternatingRowColors(true);
    if (m_examination.tree.elements.size() <= std::size_t(unfoldedElements)) {
        m_pTree->expandAll();
    } else {
        m_pTree->expandToDepth(0);
    }
    for (int column = 0; column < LaidOutTreeModel::SetBy; ++column) {
        m_pTree->resizeColumnToContents(column);
    }
    connect(m_pTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &DoctorWindow::showElement);

    m_pFilter->setObjectName(QStringLiteral("filter"));
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
    const QString top = m_examination.includes.file;
    if (m_examination.texts.count(top) > 0) {
        m_pFile->addItem(top);
    }
    for (const auto& text : m_examination.texts) {
        if (text.first != top) {
            m_pFile->addItem(text.first);
        }
    }
    connect(m_pFile, &QComboBox::currentTextChanged, this, &DoctorWindow::showText);
    showText(m_pFile->currentText());

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
    fillFindings();
    m_pDetails->setObjectName(QStringLiteral("details"));
    m_pDetails->setReadOnly(true);
    m_pDetails->setTabChangesFocus(true);
    m_pDetails->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_pFindings, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) {
            showFinding(item->data(0, numberRole).toInt());
        }
    });

    auto* const pane = new QSplitter(Qt::Vertical);
    pane->addWidget(m_pFindings);
    pane->addWidget(m_pDetails);
    return pane;
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

void DoctorWindow::showElement(const QModelIndex& index)
{
    showPlace(m_pModel->PlaceOf(m_pProxy->mapToSource(index)));
}

void DoctorWindow::showFinding(int number)
{
    const Finding& finding = m_examination.findings.at(number);
    m_pDetails->setPlainText(detailsOf(finding));
    const QModelIndex element
        = m_pProxy->mapFromSource(m_pModel->IndexOf(findByPath(m_examination.tree, finding.path)));
    if (element.isValid()) {
        m_pTree->setCurrentIndex(element);
        m_pTree->scrollTo(element);
    }
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
    m_pText->setPlainText(text == m_examination.texts.end() ? QString() : text->second);
    m_pText->ShowLine(0);
}

} // namespace schemadoctor
