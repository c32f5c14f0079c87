#include "tagscanner_p.h"

#include <algorithm>
#include <string_view>

#include <QByteArray>
#include <QIODevice>

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

/// Reads the start of content piece by piece, each only if it is the one that is asked for. A regular expression would
/// take longer to be made than a small content to be read.
class StartReader
{
public:
    explicit StartReader(std::string_view start)
        : m_rest(start)
    {
    }

    std::size_t Rest() const { return m_rest.size(); }

    bool Take(std::string_view word)
    {
        const bool isNext = m_rest.substr(0, word.size()) == word;
        m_rest.remove_prefix(isNext ? word.size() : 0);
        return isNext;
    }

    bool TakeBlanks()
    {
        const std::size_t blanks = std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size());
        m_rest.remove_prefix(blanks);
        return blanks > 0;
    }

    /// With the blanks in front of it.
    bool TakeAttribute(std::string_view name, bool (*isValue)(std::string_view))
    {
        const std::string_view before = m_rest;
        const bool isNext = TakeBlanks() && Take(name) && takeEqualsSign() && takeValue(isValue);
        m_rest = isNext ? m_rest : before;
        return isNext;
    }

private:
    bool takeEqualsSign()
    {
        TakeBlanks();
        const bool isNext = Take("=");
        TakeBlanks();
        return isNext;
    }

    bool takeValue(bool (*isValue)(std::string_view))
    {
        const bool isQuoted = !m_rest.empty() && (m_rest.front() == '"' || m_rest.front() == '\'');
        const std::size_t end = isQuoted ? m_rest.find(m_rest.front(), 1) : std::string_view::npos;
        if (end == std::string_view::npos || !isValue(m_rest.substr(1, end - 1))) {
            return false;
        }
        m_rest.remove_prefix(end + 1);
        return true;
    }

    std::string_view m_rest;
};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isVersion(std::string_view value)
{
    return value.size() == 3 && value.substr(0, 2) == "1." && isDigit(value.back());
}

/// Whether @p value begins with @p word, in capital letters or others.
bool beginsWith(std::string_view value, std::string_view word)
{
    return value.size() >= word.size() && qstrnicmp(value.data(), word.data(), uint(word.size())) == 0;
}

/// Whether the bytes of ASCII are in that encoding what they are there.
bool isLikeAscii(std::string_view encoding)
{
    const std::string_view numbered = "ISO-8859-";
    for (const std::string_view name : {"UTF-8", "US-ASCII"}) {
        if (encoding.size() == name.size() && beginsWith(encoding, name)) {
            return true;
        }
    }
    return encoding.size() > numbered.size() && beginsWith(encoding, numbered)
        && std::all_of(encoding.begin() + numbered.size(), encoding.end(), isDigit);
}

bool isYesOrNo(std::string_view value)
{
    return value == "yes" || value == "no";
}

/// The length of the XML declaration at the start of @p begin, with a mark of the byte order in front of it; none
/// unless it declares, if anything, an encoding in which the bytes of ASCII are what they are there.
std::size_t lengthOfDeclaration(std::string_view begin)
{
    StartReader reader(begin);
    reader.Take("\xEF\xBB\xBF");
    const std::size_t withDeclaration = reader.Rest();
    if (reader.Take("<?xml") && reader.TakeAttribute("version", isVersion)) {
        reader.TakeAttribute("encoding", isLikeAscii);
        reader.TakeAttribute("standalone", isYesOrNo);
        reader.TakeBlanks();
        if (reader.Take("?>")) {
            return begin.size() - reader.Rest();
        }
    }
    return begin.size() - withDeclaration;
}

} // namespace

bool isSurelyNestedWithin(int limit, QIODevice& device)
{
    const QByteArray begin = device.peek(DeclarationSize);
    device.skip(qint64(lengthOfDeclaration({begin.constData(), size_t(begin.size())})));
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
