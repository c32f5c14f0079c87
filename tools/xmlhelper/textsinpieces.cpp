#include "textsinpieces.h"

#include <atomic>

#include "domorder.h"

namespace {

constexpr int PieceLength = 4096;

std::atomic<bool> hasMadeLongText {false};

/// Whether "]]>" stands across @p index. Qt escapes its last character only when it sees all three.
bool isInsideSectionEnd(const QString& text, int index)
{
    const QLatin1String sectionEnd("]]>");
    return text.mid(index - 2, 3) == sectionEnd || text.mid(index - 1, 3) == sectionEnd;
}

} // namespace

QDomText createText(QDomDocument& document, const QString& text)
{
    if (isLongText(int(text.size()))) {
        hasMadeLongText = true;
    }
    return document.createTextNode(text);
}

bool isLongTextKnown()
{
    return hasMadeLongText;
}

bool isLongText(int length)
{
    return length > PieceLength;
}

TextsInPieces::TextsInPieces(const QDomNode& top)
{
    for (QDomNode node = top.firstChild(); !node.isNull(); node = nextBelow(top, node, false)) {
        if (node.nodeType() == QDomNode::TextNode && isLongText(int(node.nodeValue().size()))) {
            split(node.toText());
        }
    }
}

TextsInPieces::~TextsInPieces()
{
    for (LongText& text : m_texts) {
        for (const QDomText& piece : text.furtherPieces) {
            piece.parentNode().removeChild(piece);
        }
        text.firstPiece.setData(text.data);
    }
}

/// Not by QDomText::splitText(), whose pieces Qt 5 never frees.
void TextsInPieces::split(QDomText text)
{
    LongText& longText = m_texts.emplace_back(LongText {text, text.data(), {}});
    int end = int(longText.data.size());
    for (int cut = (end - 1) / PieceLength * PieceLength; cut > 0; cut -= PieceLength) {
        if (!isInsideSectionEnd(longText.data, cut) && !longText.data.at(cut).isLowSurrogate()) {
            const QDomText piece = text.ownerDocument().createTextNode(longText.data.mid(cut, end - cut));
            text.parentNode().insertAfter(piece, text);
            longText.furtherPieces.push_back(piece);
            end = cut;
        }
    }
    text.setData(longText.data.left(end));
}
