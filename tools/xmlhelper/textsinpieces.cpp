#include "textsinpieces.h"

#include <atomic>

#include "domorder.h"

namespace {

constexpr int PieceLength = 4096;

std::atomic<bool> isLongTextKnown {false};

/// Whether "]]>" stands across @p index. Qt escapes its last character only when it sees all three.
bool isInsideSectionEnd(const QString& text, int index)
{
    const QLatin1String sectionEnd("]]>");
    return text.mid(index - 2, 3) == sectionEnd || text.mid(index - 1, 3) == sectionEnd;
}

} // namespace

QDomText createText(QDomDocument& document, const QString& text)
{
    if (text.size() > PieceLength) {
        isLongTextKnown = true;
    }
    return document.createTextNode(text);
}

TextsInPieces::TextsInPieces(const QDomDocument& document)
{
    if (!isLongTextKnown) {
        return;
    }
    for (QDomNode node = document.firstChild(); !node.isNull(); node = nextBelow(document, node, false)) {
        if (node.nodeType() == QDomNode::TextNode && node.nodeValue().size() > PieceLength) {
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

/// Cuts from the end, so that each cut moves no more than its piece.
void TextsInPieces::split(QDomText text)
{
    LongText& longText = m_texts.emplace_back(LongText {text, text.data(), {}});
    const int lastIndex = int(longText.data.size()) - 1;
    for (int cut = lastIndex - lastIndex % PieceLength; cut > 0; cut -= PieceLength) {
        if (!isInsideSectionEnd(longText.data, cut) && !longText.data.at(cut).isLowSurrogate()) {
            longText.furtherPieces.push_back(text.splitText(cut));
        }
    }
}
