#include "schemahighlighter.h"

#include <algorithm>
#include <utility>

#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>

namespace schemadoctor {

namespace {

constexpr int linesAtOnce = 1000;

bool isNameCharacter(QChar character)
{
    return !character.isSpace() && !QStringLiteral("<>/=\"'?").contains(character);
}

} // namespace

SchemaHighlighter::SchemaHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
    , m_iLines(linesAtOnce)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &SchemaHighlighter::colourNextLines);
}

void SchemaHighlighter::ChooseColours(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    m_tag.setForeground(QColor(isDark ? 0x7ab8ff : 0x0a3d91));
    m_attribute.setForeground(QColor(isDark ? 0xe0a8ff : 0x7a2a8c));
    m_value.setForeground(QColor(isDark ? 0x9fdc8a : 0x1d6b1d));
    m_comment.setForeground(QColor(isDark ? 0xa8a8a8 : 0x6a6a6a));
    m_comment.setFontItalic(true);
}

void SchemaHighlighter::Restart()
{
    m_next.stop();
    m_iLines = linesAtOnce;
}

void SchemaHighlighter::colourNextLines()
{
    QTextBlock block = document()->findBlockByNumber(m_iLines);
    m_iLines += linesAtOnce;
    for (; block.isValid() && block.blockNumber() < m_iLines; block = block.next()) {
        rehighlightBlock(block);
    }
    if (block.isValid()) {
        m_next.start();
    }
}

void SchemaHighlighter::highlightBlock(const QString& text)
{
    if (currentBlock().blockNumber() >= m_iLines) {
        m_next.start();
        return;
    }
    m_state = State(std::max(0, previousBlockState()));
    for (int from = 0; from < int(text.size());) {
        from = colourNext(text, from);
    }
    setCurrentBlockState(m_state);
}

/// Gives where to go on.
int SchemaHighlighter::colourNext(const QString& text, int from)
{
    switch (m_state) {
    case Text:
        return colourPlain(text, from);
    case Tag:
        return colourTag(text, from);
    case DoubleQuotes:
        return colourUntil(text, from, QStringLiteral("\""), Tag, m_value);
    case SingleQuotes:
        return colourUntil(text, from, QStringLiteral("'"), Tag, m_value);
    case Comment:
        return colourUntil(text, from, QStringLiteral("-->"), Text, m_comment);
    case Data:
        return colourUntil(text, from, QStringLiteral("]]>"), Text, QTextCharFormat());
    case Instruction:
        return colourUntil(text, from, QStringLiteral("?>"), Text, m_comment);
    }
    return int(text.size());
}

/// Up to what begins behind the text, and the beginning of that.
int SchemaHighlighter::colourPlain(const QString& text, int from)
{
    const int begin = int(text.indexOf(QLatin1Char('<'), from));
    if (begin < 0) {
        return int(text.size());
    }
    static const std::pair<QLatin1String, State> openings[]
        = {{QLatin1String("<!--"), Comment}, {QLatin1String("<![CDATA["), Data}, {QLatin1String("<?"), Instruction}};
    for (const auto& [opening, state] : openings) {
        if (QStringView(text).mid(begin).startsWith(opening)) {
            m_state = state;
            setFormat(begin, int(opening.size()), state == Data ? QTextCharFormat() : m_comment);
            return begin + int(opening.size());
        }
    }
    int end = begin + 1;
    while (end < text.size()
           && (isNameCharacter(text.at(end)) || (end == begin + 1 && text.at(end) == QLatin1Char('/')))) {
        ++end;
    }
    setFormat(begin, end - begin, m_tag);
    m_state = Tag;
    return end;
}

int SchemaHighlighter::colourTag(const QString& text, int from)
{
    const QChar first = text.at(from);
    if (first == QLatin1Char('>')) {
        setFormat(from, 1, m_tag);
        m_state = Text;
    } else if (first == QLatin1Char('"') || first == QLatin1Char('\'')) {
        setFormat(from, 1, m_value);
        m_state = first == QLatin1Char('"') ? DoubleQuotes : SingleQuotes;
    } else if (isNameCharacter(first)) {
        const auto* const end = std::find_if_not(text.cbegin() + from, text.cend(), isNameCharacter);
        const int length = int(end - text.cbegin()) - from;
        setFormat(from, length, m_attribute);
        return from + length;
    } else if (!first.isSpace()) {
        setFormat(from, 1, m_tag);
    }
    return from + 1;
}

/// All that stands in front of @p end, and that.
int SchemaHighlighter::colourUntil(const QString& text, int from, const QString& end, State next,
                                   const QTextCharFormat& format)
{
    const int found = int(text.indexOf(end, from));
    const int behind = found < 0 ? int(text.size()) : found + int(end.size());
    setFormat(from, behind - from, format);
    m_state = found < 0 ? m_state : next;
    return behind;
}

} // namespace schemadoctor
