#include "tagscanner_p.h"

#include <QByteArray>
#include <QIODevice>
#include <QRegularExpression>

namespace {

constexpr int BlockSize = 1 << 16;
constexpr int DeclarationSize = 256;

/// Takes content byte by byte and counts the open tags.
class TagScanner
{
public:
    explicit TagScanner(int limit)
        : m_iLimit(limit)
    {
    }

    /// Gives false when the byte leads to what the scanner does not know, or nests too deep.
    bool Take(char byte)
    {
        switch (m_place) {
        case Place::Text:
            if (byte == '<') {
                m_place = Place::TagBegin;
            }
            return byte != '\0'; // an encoding of two bytes and more
        case Place::TagBegin:
            return beginTag(byte);
        case Place::StartTag:
            continueStartTag(byte);
            return m_iOpen <= m_iLimit;
        case Place::EndTag:
            if (byte == '>') {
                m_place = Place::Text;
            }
            return byte != '<';
        case Place::Value:
            if (byte == m_quote) {
                m_place = Place::StartTag;
            }
            break;
        }
        return true;
    }

private:
    enum class Place { Text, TagBegin, StartTag, EndTag, Value };

    bool beginTag(char byte)
    {
        const bool isEndTag = byte == '/';
        m_iOpen += isEndTag ? -1 : 1;
        m_previous = byte;
        m_place = isEndTag ? Place::EndTag : Place::StartTag;
        return byte != '!' && byte != '?' && byte != '\0' && byte != '>' && m_iOpen >= 0;
    }

    void continueStartTag(char byte)
    {
        if (byte == '"' || byte == '\'') {
            m_quote = byte;
            m_place = Place::Value;
        } else if (byte == '>') {
            m_iOpen -= m_previous == '/' ? 1 : 0;
            m_place = Place::Text;
        }
        m_previous = byte;
    }

    const int m_iLimit;
    int m_iOpen = 0;
    Place m_place = Place::Text;
    char m_previous = '\0'; ///< inside a start tag
    char m_quote = '\0';
};

/// The length of the XML declaration at the start of @p begin, with a mark of the byte order in front of it; none
/// unless it declares, if anything, an encoding in which the bytes of ASCII are what they are there.
int lengthOfDeclaration(const QByteArray& begin)
{
    static const QRegularExpression declaration(
        QStringLiteral("^(\\x{EF}\\x{BB}\\x{BF})?(<\\?xml\\s+version\\s*=\\s*(['\"])1\\.\\d\\3"
                       "(\\s+encoding\\s*=\\s*(['\"])(UTF-8|US-ASCII|ISO-8859-\\d+)\\5)?"
                       "(\\s+standalone\\s*=\\s*(['\"])(yes|no)\\8)?\\s*\\?>)?"),
        QRegularExpression::CaseInsensitiveOption);
    return static_cast<int>(declaration.match(QString::fromLatin1(begin)).capturedLength());
}

} // namespace

bool isSurelyNestedWithin(int limit, QIODevice& device)
{
    device.skip(lengthOfDeclaration(device.peek(DeclarationSize)));
    TagScanner scanner(limit);
    while (true) {
        const QByteArray block = device.read(BlockSize);
        if (block.isEmpty()) {
            return true;
        }
        for (const char byte : block) {
            if (!scanner.Take(byte)) {
                return false;
            }
        }
    }
}
