#include "fuzzinput.h"

#include <QSet>
#include <QStack>

namespace {

const char Separator[] = "\n%%\n";

QByteArray nameOf(const char* startTag)
{
    const QByteArray tag(startTag);
    return tag.left(tag.indexOf(' '));
}

QByteArray startTag(FuzzInput& script, const QByteArray& name, int attributes, const Vocabulary& vocabulary)
{
    QByteArray tag = '<' + name;
    QSet<QByteArray> names;
    for (int i = 0; i < attributes; ++i) {
        const QByteArray attribute(script.Of(vocabulary.attributes));
        const QByteArray attributeName = attribute.left(attribute.indexOf('='));
        if (!names.contains(attributeName)) {
            names.insert(attributeName);
            tag += ' ' + attribute;
        }
    }
    return tag;
}

} // namespace

FuzzInput::FuzzInput(const std::uint8_t* data, std::size_t size)
    : FuzzInput(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)))
{
}

FuzzInput::FuzzInput(const QByteArray& bytes)
    : m_bytes(bytes)
{
}

int FuzzInput::Byte()
{
    return IsAtEnd() ? 0 : static_cast<std::uint8_t>(m_bytes.at(m_position++));
}

int FuzzInput::Choice(int count)
{
    return Byte() % count;
}

QString FuzzInput::Line()
{
    const int end = static_cast<int>(m_bytes.indexOf('\n', m_position));
    const int behind = end < 0 ? static_cast<int>(m_bytes.size()) : end;
    // Not from a byte array, which Qt 5 reads up to the first null character.
    QString line = QString::fromUtf8(m_bytes.constData() + m_position, behind - m_position);
    m_position = end < 0 ? behind : end + 1;
    for (QChar& character : line) {
        if (character.unicode() >= 0xE000 && character.unicode() < 0xE800) {
            character = QChar(character.unicode() - 0x800);
        }
    }
    return line;
}

QByteArray FuzzInput::Part()
{
    const int end = static_cast<int>(m_bytes.indexOf(Separator, m_position));
    const QByteArray part = m_bytes.mid(m_position, end < 0 ? -1 : end - m_position);
    m_position = end < 0 ? static_cast<int>(m_bytes.size()) : end + static_cast<int>(sizeof Separator) - 1;
    return part;
}

QByteArray xmlOf(const QByteArray& part, const Vocabulary& vocabulary)
{
    if (!part.startsWith('#')) {
        return part;
    }
    FuzzInput script(part.mid(1));
    QByteArray xml = QByteArray("<") + vocabulary.root + '>';
    QStack<QByteArray> open;
    while (!script.IsAtEnd()) {
        const int choice = script.Byte();
        const int attributes = choice >> 3 & 3;
        switch (choice & 7) {
        case 0:
        case 1:
        case 2:
            open.push(script.Of(vocabulary.tags));
            xml += startTag(script, open.top(), attributes, vocabulary) + '>';
            break;
        case 3:
        case 4:
            xml += startTag(script, script.Of(vocabulary.tags), attributes, vocabulary) + "/>";
            break;
        case 5:
        case 6:
            if (!open.isEmpty()) {
                xml += "</" + open.pop() + '>';
            }
            break;
        default:
            xml += script.Of(vocabulary.contents);
        }
    }
    while (!open.isEmpty()) {
        xml += "</" + open.pop() + '>';
    }
    return xml + "</" + nameOf(vocabulary.root) + '>';
}
