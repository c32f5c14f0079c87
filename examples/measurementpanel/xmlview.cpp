#include "xmlview.h"

#include <array>

#include <QFile>
#include <QFontDatabase>
#include <QRegularExpression>
#include <QSyntaxHighlighter>

namespace {

class XmlColours : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString& line) override;
};

struct Colour
{
    QRegularExpression pattern;
    QColor colour;
};

void XmlColours::highlightBlock(const QString& line)
{
    static const std::array<Colour, 4> colours {{
        {QRegularExpression(QStringLiteral("</?[\\w:]+|/?>")), QColor(0x1F, 0x6F, 0xB2)},
        {QRegularExpression(QStringLiteral("[\\w:]+(?==[\"'])")), QColor(0x7A, 0x4E, 0x9F)},
        {QRegularExpression(QStringLiteral("(?<==)(\"[^\"]*\"|'[^']*')")), QColor(0x2E, 0x7D, 0x32)},
        {QRegularExpression(QStringLiteral("<\\?.*\\?>")), QColor(0x6E, 0x82, 0x96)},
    }};
    for (const Colour& colour : colours) {
        QRegularExpressionMatchIterator matches = colour.pattern.globalMatch(line);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            setFormat(static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()), colour.colour);
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
    new XmlColours(document()); // the document's
}

XmlView::~XmlView() = default;

void XmlView::ShowFile(const QString& path)
{
    QFile file(path);
    setPlainText(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
}
