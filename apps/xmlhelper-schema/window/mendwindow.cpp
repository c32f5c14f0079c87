#include "mendwindow.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "mend/mendrendering.h"
#include "mend/mendwords.h"
#include "model/texts.h"
#include "placewords.h"
#include "schematextview.h"

namespace schemadoctor {

namespace {

constexpr int fileRole = Qt::UserRole; // of an entry: of the original; none for the mended schema
constexpr int lineRole = Qt::UserRole + 1; // none for a heading

QGroupBox* boxAround(QWidget* text, const QString& caption)
{
    auto* const box = new QGroupBox(caption);
    box->setFlat(true);
    auto* const inside = new QVBoxLayout(box);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(text);
    return box;
}

QTreeWidgetItem* entry(const QStringList& words, const QString& file, int line)
{
    auto* const item = new QTreeWidgetItem(words);
    for (int column = 0; column < words.size(); ++column) {
        item->setToolTip(column, words.at(column));
    }
    item->setData(0, fileRole, file);
    item->setData(0, lineRole, line);
    return item;
}

} // namespace

MendWindow::MendWindow(const MendedFile& mended, QWidget* parent)
    : QMainWindow(parent)
    , m_mended(mended)
    , m_pRewrites(new QTreeWidget)
    , m_pFile(new QComboBox)
    , m_pOriginal(new SchemaTextView)
    , m_pMended(new SchemaTextView)
{
    resize(1280, 800);
    setWindowTitle(tr("%1 - mended schema").arg(mended.examination.file));
    m_pRewrites->setObjectName(QStringLiteral("rewrites"));
    m_pRewrites->setHeaderLabels({tr("Line"), tr("Before"), tr("After"), tr("What it does to reports")});
    m_pRewrites->setUniformRowHeights(true);
    auto* const panes = new QSplitter(Qt::Vertical);
    panes->addWidget(m_pRewrites);
    panes->addWidget(makeTexts());
    panes->setSizes({280, 520});
    setCentralWidget(panes);

    connect(m_pFile, &QComboBox::currentTextChanged, this,
            [this](const QString& file) { m_pOriginal->ShowText(m_mended.mending.texts.at(file)); });
    connect(m_pRewrites, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item) {
            showPlaceOf(*item);
        }
    });
    fillFiles();
    m_pMended->ShowText(QString::fromUtf8(m_mended.mending.text));
    fillList();
    statusBar()->showMessage(Mend::tr("Written otherwise: %1. Left: %2. Findings: %3.")
                                 .arg(m_mended.mending.rewrites.size())
                                 .arg(m_mended.mending.left.size())
                                 .arg(m_mended.examination.findings.size()));
}

QWidget* MendWindow::makeTexts()
{
    m_pFile->setObjectName(QStringLiteral("file"));
    m_pFile->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_pOriginal->setObjectName(QStringLiteral("original"));
    m_pMended->setObjectName(QStringLiteral("mended"));
    auto* const original = new QWidget;
    auto* const layout = new QVBoxLayout(original);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pFile);
    layout->addWidget(m_pOriginal);
    auto* const both = new QSplitter(Qt::Horizontal);
    both->addWidget(boxAround(original, Mend::tr("Original")));
    both->addWidget(boxAround(m_pMended, Mend::tr("Mended")));
    both->setSizes({640, 640});
    return both;
}

void MendWindow::fillFiles()
{
    for (const auto& text : m_mended.mending.texts) {
        m_pFile->addItem(text.first);
    }
    m_pFile->setVisible(m_pFile->count() > 1);
}

void MendWindow::fillList()
{
    addRewrites(Mend::tr("Written otherwise"), m_mended.mending.rewrites);
    addRewrites(Mend::tr("Left as it is, because it would change the format"), m_mended.mending.left);
    addFindings();
    if (m_pRewrites->topLevelItemCount() == 0) {
        addHeading(Mend::tr("Nothing is written otherwise.\n").trimmed());
    }
    m_pRewrites->expandAll();
    m_pRewrites->resizeColumnToContents(0);
    m_pRewrites->setColumnWidth(1, 380);
    m_pRewrites->setColumnWidth(2, 380);
    const QTreeWidgetItem* const first = m_pRewrites->topLevelItem(0);
    if (first->childCount() > 0) {
        m_pRewrites->setCurrentItem(first->child(0));
    }
}

QTreeWidgetItem* MendWindow::addHeading(const QString& heading)
{
    auto* const item = new QTreeWidgetItem(m_pRewrites, {heading});
    item->setFirstColumnSpanned(true);
    return item;
}

void MendWindow::addRewrites(const QString& heading, const QVector<Rewrite>& rewrites)
{
    if (rewrites.isEmpty()) {
        return;
    }
    QTreeWidgetItem* const parent = addHeading(heading);
    for (const Rewrite& rewrite : rewrites) {
        parent->addChild(entry({wordsFor(rewrite.place), rewrite.before, rewrite.after, wordsFor(rewrite.effect)},
                               rewrite.place.file, rewrite.place.line));
    }
}

void MendWindow::addFindings()
{
    if (m_mended.examination.findings.isEmpty()) {
        return;
    }
    QTreeWidgetItem* const parent = addHeading(Mend::tr("The doctor finds in the mended schema"));
    for (const Finding& finding : m_mended.examination.findings) {
        parent->addChild(entry({wordsFor(finding.place), finding.what, finding.remedy, finding.effect}, QString(),
                               finding.place.line));
    }
}

void MendWindow::showPlaceOf(const QTreeWidgetItem& item)
{
    const QVariant line = item.data(0, lineRole);
    if (!line.isValid()) {
        return;
    }
    const int file = m_pFile->findText(item.data(0, fileRole).toString());
    if (file < 0) {
        m_pMended->ShowLine(line.toInt());
        return;
    }
    m_pFile->setCurrentIndex(file);
    m_pOriginal->ShowLine(line.toInt());
}

} // namespace schemadoctor
