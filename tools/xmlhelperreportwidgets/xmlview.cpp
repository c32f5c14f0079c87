#include "xmlview_p.h"

#include <array>

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRegularExpression>
#include <QSyntaxHighlighter>

#include "panelcolours_p.h"

namespace {

class XmlColours : public QSyntaxHighlighter
{
public:
    explicit XmlColours(const QPlainTextEdit& view)
        : QSyntaxHighlighter(view.document())
        , m_view(view)
    {
    }

protected:
    void highlightBlock(const QString& line) override;

private:
    Q_DISABLE_COPY(XmlColours)

    const QPlainTextEdit& m_view;
};

/// A text of more bytes would keep its window waiting.
constexpr qint64 MaxText = 1 << 18;

struct Colour
{
    QRegularExpression pattern;
    QRgb onLight;
    QRgb onDark;
};

void XmlColours::highlightBlock(const QString& line)
{
    static const std::array<Colour, 4> colours {{
        {QRegularExpression(QStringLiteral("</?[\\w:]+|/?>")), 0x1F6FB2, 0x7FBCF0},
        {QRegularExpression(QStringLiteral("[\\w:]+(?==[\"'])")), 0x7A4E9F, 0xCBA6E8},
        {QRegularExpression(QStringLiteral("(?<==)(\"[^\"]*\"|'[^']*')")), 0x2E7D32, 0x81C784},
        {QRegularExpression(QStringLiteral("<\\?.*\\?>")), 0x5A6B7B, 0xA3B4C5},
    }};
    for (const Colour& colour : colours) {
        QRegularExpressionMatchIterator matches = colour.pattern.globalMatch(line);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            setFormat(static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()),
                      colourOn(m_view.palette(), colour.onLight, colour.onDark));
        }
    }
}

} // namespace

XmlView::XmlView(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_pColours = new XmlColours(*this); // the document's
}

XmlView::~XmlView() = default;

void XmlView::ShowFile(const QString& path)
{
    QFile file(path);
    // A pipe or a terminal would wait until somebody writes.
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    QString text = isOpen ? QString::fromUtf8(file.read(MaxText)) : QString();
    if (!text.isEmpty() && !file.atEnd()) {
        text += QStringLiteral("\n…");
    }
    setPlainText(text);
}

void XmlView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_pColours) {
        m_pColours->rehighlight();
    }
    QPlainTextEdit::changeEvent(event);
}
