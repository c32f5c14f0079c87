#include "schematextview.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPaintEvent>
#include <QTextBlock>

#include "schemahighlighter.h"

namespace schemadoctor {

namespace {

constexpr int longestLine = 10000;

QString withShortLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (line.size() > longestLine) {
            line = line.left(longestLine) + QStringLiteral(" ...");
        }
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

/// Beside the text; the text view knows what belongs there.
class SchemaTextView::Margin : public QWidget
{
public:
    explicit Margin(SchemaTextView& view)
        : QWidget(&view)
        , m_view(view)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override { m_view.paintMargin(event); }

private:
    SchemaTextView& m_view;
};

SchemaTextView::SchemaTextView(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_pMargin(new Margin(*this))
    , m_pHighlighter(new SchemaHighlighter(document()))
{
    m_pHighlighter->ChooseColours(palette());
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &SchemaTextView::updateMarginWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, [this] { m_pMargin->update(); });
    updateMarginWidth();
}

void SchemaTextView::ShowText(const QString& text)
{
    m_pHighlighter->Restart();
    setPlainText(withShortLines(text));
    ShowLine(0);
}

void SchemaTextView::ShowLine(int line)
{
    m_iMarkedLine = line;
    QTextCursor cursor(document()->findBlockByNumber(qMax(0, line - 1)));
    QList<QTextEdit::ExtraSelection> marks;
    if (line > 0) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = cursor;
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlpha(70); // the text stays readable on it, in light and dark palettes
        mark.format.setBackground(colour);
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks.append(mark);
    }
    setExtraSelections(marks);
    setTextCursor(cursor);
    centerCursor();
}

void SchemaTextView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_pHighlighter->ChooseColours(palette());
        m_pHighlighter->rehighlight();
    }
}

void SchemaTextView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect contents = contentsRect();
    m_pMargin->setGeometry(contents.left(), contents.top(), marginWidth(), contents.height());
}

int SchemaTextView::marginWidth() const
{
    return fontMetrics().horizontalAdvance(QString::number(blockCount()))
        + fontMetrics().horizontalAdvance(QLatin1Char(' ')) * 2;
}

void SchemaTextView::updateMarginWidth()
{
    setViewportMargins(marginWidth(), 0, 0, 0);
}

void SchemaTextView::paintMargin(QPaintEvent* event)
{
    QPainter painter(m_pMargin);
    painter.fillRect(event->rect(), palette().window());
    const int right = m_pMargin->width() - fontMetrics().horizontalAdvance(QLatin1Char(' '));
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        const int number = block.blockNumber() + 1;
        QFont numberFont = font();
        numberFont.setBold(number == m_iMarkedLine);
        painter.setFont(numberFont);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(0, int(top), right, fontMetrics().height(), Qt::AlignRight, QString::number(number));
        top += blockBoundingRect(block).height();
        block = block.next();
    }
}

} // namespace schemadoctor
