#include "domattributes_p.h"

#include <algorithm>

#include <QDomElement>
#include <QStringList>
#include <QTextStream>

#include "domorder_p.h"

namespace {

/// Up to here counting from the start is the fastest way.
constexpr int FewToCount = 500;

/// The names before the values of the tag that @p text begins with. No value has a quotation mark in it.
QStringList namesInTag(const QString& text)
{
    const QLatin1String beginOfValue("=\"");
    QStringList names;
    auto name = text.indexOf(QLatin1Char(' ')) + 1;
    while (name > 0) {
        const auto value = text.indexOf(beginOfValue, name);
        const auto end = value < 0 ? value : text.indexOf(QLatin1Char('"'), value + beginOfValue.size());
        if (end < 0) {
            break;
        }
        names.append(text.mid(name, value - name));
        name = text.mid(end + 1, 1) == QLatin1String(" ") ? end + 2 : 0;
    }
    return names;
}

/// Whether there is less below @p element than @p limit nodes, attributes and characters.
bool isLessBelow(const QDomElement& element, qint64 limit)
{
    for (QDomNode node = element.firstChild(); limit > 0 && !node.isNull(); node = nextBelow(element, node, false)) {
        limit -= 1 + node.attributes().count() + node.nodeValue().size();
    }
    return limit > 0;
}

/// Qt saves attributes in the order of the map, without counting, but what is below the element with them.
QStringList savedAttributeNames(const QDomElement& element, int count)
{
    QString text;
    QTextStream stream(&text);
    const QDomNode saved = isLessBelow(element, count) ? QDomNode(element) : element.cloneNode(false);
    saved.save(stream, 0);
    stream.flush();
    return namesInTag(text);
}

DomAttributes countedAttributes(const QDomNamedNodeMap& map)
{
    DomAttributes attributes;
    const int count = map.count();
    attributes.reserve(count);
    for (int i = 0; i < count; ++i) {
        attributes.append(map.item(i).toAttr());
    }
    return attributes;
}

} // namespace

DomAttributes attributesOf(const QDomElement& element)
{
    const QDomNamedNodeMap map = element.attributes();
    if (map.count() <= FewToCount) {
        return countedAttributes(map);
    }
    DomAttributes attributes;
    const QStringList names = savedAttributeNames(element, map.count());
    attributes.reserve(static_cast<int>(names.size()));
    for (const QString& name : names) {
        attributes.append(map.namedItem(name).toAttr());
    }
    // A name that XML does not allow is not read back as it was.
    const bool isComplete = attributes.size() == map.count()
        && std::none_of(attributes.begin(), attributes.end(), [](const QDomAttr& attr) { return attr.isNull(); });
    return isComplete ? attributes : countedAttributes(map);
}
