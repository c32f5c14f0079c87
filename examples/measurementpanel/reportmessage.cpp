#include "reportmessage.h"

#include <QAccessible>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

#include <xmlhelperreportwidgets/panelcolours_p.h>

#include "presstext.h"

namespace {

constexpr double SignFontFactor = 1.6;

struct Sign
{
    QString text;
    QColor colour;
};

Sign signOf(const Press& press, const QPalette& palette)
{
    if (press.number == 0) {
        return {};
    }
    if (press.state == Press::State::Written) {
        return {QStringLiteral("✓"), goodColour(palette)};
    }
    if (press.IsFailed()) {
        return {QStringLiteral("✗"), badColour(palette)};
    }
    return {QStringLiteral("…"), pendingColour(palette)};
}

} // namespace

ReportMessage::ReportMessage(QWidget* parent)
    : QFrame(parent)
    , m_pSign(createLabel("messageSign"))
    , m_pSentence(createLabel("messageSentence"))
    , m_pAdvice(createLabel("messageAdvice"))
    , m_pPath(createLabel("messagePath"))
    , m_pOpen(createButton("openReport"))
    , m_pShowInFolder(createButton("showInFolder"))
    , m_pCopyPath(createButton("copyPath"))
    , m_pOpenDialog(createButton("openDialog"))
{
    setFrameShape(StyledPanel);
    QFont large = m_pSign->font();
    large.setPointSizeF(large.pointSizeF() * SignFontFactor);
    large.setBold(true);
    m_pSign->setFont(large);
    QFont bold = m_pSentence->font();
    bold.setBold(true);
    m_pSentence->setFont(bold);
    m_pSentence->setWordWrap(true);
    m_pAdvice->setWordWrap(true);
    // A long path must not widen the window.
    m_pPath->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pPath->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_pOpen, m_pShowInFolder, m_pCopyPath, m_pOpenDialog}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* const grid = new QGridLayout(this);
    grid->addWidget(m_pSign, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_pSentence, 0, 1);
    grid->addWidget(m_pAdvice, 1, 1);
    grid->addWidget(m_pPath, 2, 1);
    grid->addLayout(buttons, 3, 1);
    grid->setColumnStretch(1, 1);

    connect(m_pOpen, &QPushButton::clicked, this, [this] { open(m_press.path); });
    connect(m_pShowInFolder, &QPushButton::clicked, this, [this] { open(m_press.directory); });
    connect(m_pCopyPath, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(m_press.path)); });
    connect(m_pOpenDialog, &QPushButton::clicked, this, [this] { Q_EMIT DialogWanted(m_press); });
    Translate();
}

ReportMessage::~ReportMessage() = default;

void ReportMessage::ShowPress(const Press& press)
{
    m_press = press;
    Translate();
    QAccessibleEvent alert(m_pSentence, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ReportMessage::Translate()
{
    m_pOpen->setText(tr("Open"));
    m_pShowInFolder->setText(tr("Show in folder"));
    m_pCopyPath->setText(tr("Copy path"));
    m_pOpenDialog->setText(tr("Open the comment dialog"));

    const bool isShown = m_press.number > 0;
    m_pSentence->setText(isShown ? PressText::Sentence(m_press) : tr("No report has been made in this session."));
    m_pAdvice->setText(isShown ? PressText::Advice(m_press) : tr("Press the button in the tool bar, or Shift+F10."));
    m_pPath->setText(QDir::toNativeSeparators(m_press.path));
    m_pPath->setToolTip(m_pPath->text());
    m_pPath->setVisible(!m_press.path.isEmpty());

    const bool hasFile = !m_press.path.isEmpty();
    m_pOpen->setEnabled(hasFile);
    m_pCopyPath->setEnabled(hasFile);
    m_pShowInFolder->setEnabled(QFileInfo(m_press.directory).isDir());
    m_pOpenDialog->setVisible(m_press.dialog && !m_press.IsSaved());
    showSign();
}

void ReportMessage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        showSign();
    }
    QFrame::changeEvent(event);
}

QLabel* ReportMessage::createLabel(const char* name)
{
    auto* const label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* ReportMessage::createButton(const char* name)
{
    auto* const button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void ReportMessage::showSign()
{
    const Sign sign = signOf(m_press, palette());
    m_pSign->setText(sign.text);
    QPalette coloured = palette();
    if (sign.colour.isValid()) {
        coloured.setColor(QPalette::WindowText, sign.colour);
    }
    m_pSign->setPalette(coloured);
    m_pSign->setVisible(!sign.text.isEmpty());
}

void ReportMessage::open(const QString& path)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        Q_EMIT Complaint(tr("There is no program that opens %1.").arg(QDir::toNativeSeparators(path)));
    }
}
