#include "xmltext_p.h"

#include <algorithm>

#include "tracing_p.h"

namespace {

using Index = decltype(QString().size());

const char TextComponent[] = "xmltext";

/// As much of a refused name as a trace shows.
constexpr int ShownNameLength = 80;

struct Range
{
    uint first;
    uint last;
};

constexpr Range NameStartRanges[] = {
    {':', ':'},       {'A', 'Z'},       {'_', '_'},       {'a', 'z'},         {0xC0, 0xD6},     {0xD8, 0xF6},
    {0xF8, 0x2FF},    {0x370, 0x37D},   {0x37F, 0x1FFF},  {0x200C, 0x200D},   {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};
constexpr Range FurtherNameRanges[] = {
    {'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040},
};

/// Nearly every name is made of these.
bool isAsciiLetter(uint character)
{
    return (character | 0x20) >= 'a' && (character | 0x20) <= 'z';
}

template <std::size_t Count> bool isInside(const Range (&ranges)[Count], uint character)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [character](Range range) { return range.first <= character && character <= range.last; });
}

bool isPairAt(const QString& text, Index index)
{
    return text.at(index).isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
}

/// The length of the character at @p index in code units; 0 when XML cannot carry it.
Index representableLength(const QString& text, Index index)
{
    const ushort unit = text.at(index).unicode();
    if (unit < 0x20) {
        return unit == '\t' || unit == '\n' || unit == '\r' ? 1 : 0;
    }
    if (text.at(index).isSurrogate()) {
        return isPairAt(text, index) ? 2 : 0;
    }
    return unit < 0xFFFE ? 1 : 0;
}

/// The index behind the longest start of @p text, from @p index on, that XML can carry.
Index endOfRepresentable(const QString& text, Index index)
{
    const QChar* const units = text.constData();
    const Index size = text.size();
    while (index < size) {
        const ushort unit = units[index].unicode();
        const Index length = unit >= 0x20 && unit < 0xD800 ? 1 : representableLength(text, index);
        if (length == 0) {
            break;
        }
        index += length;
    }
    return index;
}

} // namespace

QString representableText(const QString& text, const char* place)
{
    Index end = endOfRepresentable(text, 0);
    if (end == text.size()) {
        return text;
    }
    QString kept;
    kept.reserve(text.size());
    Index begin = 0;
    while (true) {
        kept.append(text.constData() + begin, end - begin);
        if (end == text.size()) {
            break;
        }
        begin = end + 1;
        end = endOfRepresentable(text, begin);
    }
    trace(QStringLiteral("%1: XML cannot carry %2 of the characters, they were dropped!")
              .arg(QLatin1String(place))
              .arg(text.size() - kept.size()),
          TextComponent, __LINE__);
    return kept;
}

bool isRepresentableText(const QString& text)
{
    return endOfRepresentable(text, 0) == text.size();
}

bool isName(const QString& name)
{
    const QChar* const units = name.constData();
    const Index size = name.size();
    for (Index index = 0; index < size; ++index) {
        uint character = units[index].unicode();
        const bool isFirst = index == 0;
        if (isAsciiLetter(character) || (!isFirst && character >= '0' && character <= '9')) {
            continue;
        }
        if (isPairAt(name, index)) {
            character = QChar::surrogateToUcs4(units[index], units[index + 1]);
            ++index;
        }
        if (!isInside(NameStartRanges, character) && (isFirst || !isInside(FurtherNameRanges, character))) {
            return false;
        }
    }
    return size > 0;
}

bool isRepresentableName(const QString& name, const char* place)
{
    const bool isAllowed = isName(name);
    if (!isAllowed) {
        trace(QStringLiteral("%1: XML does not allow the name \"%2\", it was refused!")
                  .arg(QLatin1String(place), name.left(ShownNameLength)),
              TextComponent, __LINE__);
    }
    return isAllowed;
}
