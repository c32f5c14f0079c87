#include "reportmessage_p.h"

#include <QAccessible>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include "elidedlabel_p.h"
#include "panelcolours_p.h"
#include "reportwords_p.h"

namespace {

constexpr double SignFontFactor = 1.6;

QFont enlarged(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    return font;
}

void setTextColour(QLabel& label, const QPalette& palette, const QColor& colour)
{
    QPalette coloured = palette;
    coloured.setColor(QPalette::WindowText, colour);
    label.setPalette(coloured);
}

void alert(QLabel& label)
{
    QAccessibleEvent event(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace

ReportMessage::ReportMessage(QWidget* parent)
    : QFrame(parent)
    , m_pSign(createLabel("reportSign"))
    , m_pSentence(createLabel("reportSentence"))
    , m_pAdvice(createLabel("reportAdvice"))
    , m_pPath(new ElidedLabel(this))
    , m_pComplaint(createLabel("reportComplaint"))
{
    setFrameShape(StyledPanel);
    m_pSign->setFont(enlarged(m_pSign->font(), SignFontFactor));
    m_pSign->setAlignment(Qt::AlignCenter);
    m_pSign->setMinimumWidth(m_pSign->fontMetrics().height()); // signs come from fonts with other widths
    m_pSentence->setFont(enlarged(m_pSentence->font(), 1));
    m_pPath->setObjectName(QStringLiteral("reportPath"));
    for (QLabel* const label : {m_pSentence, m_pAdvice, m_pComplaint}) {
        label->setWordWrap(true);
        // A long word, such as a path, must not widen the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    auto* const grid = new QGridLayout(this);
    grid->addWidget(m_pSign, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_pSentence, 0, 1);
    grid->addWidget(m_pAdvice, 1, 1);
    grid->addWidget(m_pPath, 2, 1);
    grid->addWidget(m_pComplaint, 3, 1);
    grid->setColumnStretch(1, 1);
    Complain(QString());
    Translate();
}

ReportMessage::~ReportMessage() = default;

void ReportMessage::Show(const ReportSupervisor::Verdict& verdict, bool hasDialog)
{
    if (verdict.report != m_verdict.report) {
        Complain(QString());
    }
    m_verdict = verdict;
    m_bHasDialog = hasDialog;
    const QString before = m_pSentence->text();
    Translate();
    if (m_pSentence->text() != before) {
        alert(*m_pSentence);
    }
}

void ReportMessage::Complain(const QString& complaint)
{
    m_pComplaint->setText(complaint);
    m_pComplaint->setVisible(!complaint.isEmpty());
    if (!complaint.isEmpty()) {
        alert(*m_pComplaint);
    }
}

void ReportMessage::Translate()
{
    const bool isShown = m_verdict.report != 0;
    m_pSign->setText(isShown ? ReportWords::Sign(m_verdict) : QString());
    m_pSign->setAccessibleName(isShown ? ReportWords::Word(m_verdict) : QString());
    m_pSentence->setText(isShown ? ReportWords::Sentence(m_verdict) : tr("No report has been made yet."));
    m_pAdvice->setText(isShown ? ReportWords::Advice(m_verdict, m_bHasDialog) : QString());
    m_pPath->setText(isShown ? QDir::toNativeSeparators(ReportWords::Path(m_verdict)) : QString());
    m_pAdvice->setVisible(!m_pAdvice->text().isEmpty());
    m_pPath->setVisible(!m_pPath->text().isEmpty());
    showColours();
}

void ReportMessage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        showColours();
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

void ReportMessage::showColours()
{
    setTextColour(*m_pSign, palette(), ReportWords::Colour(m_verdict, palette()));
    setTextColour(*m_pComplaint, palette(), badColour(palette()));
}
