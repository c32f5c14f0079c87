#include "domattributes.h"

#include <algorithm>

#include <QDomElement>
#include <QStringList>
#include <QTextStream>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// Up to here counting from the start is the fastest way.
constexpr int FewAttributes = 500;

/// Takes the attribute names of the first tag and ends the parse.
class FirstTagReader : public QXmlDefaultHandler
{
public:
    QStringList names;

    bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes& attributes) override
    {
        for (int i = 0; i < attributes.count(); ++i) {
            names.append(attributes.qName(i));
        }
        return false;
    }
};

/// Qt saves attributes in the order of the map, without counting.
QStringList savedAttributeNames(const QDomElement& element)
{
    QString text;
    QTextStream stream(&text);
    element.save(stream, 0);
    stream.flush();

    QXmlInputSource source;
    source.setData(text);
    QXmlSimpleReader parser;
    parser.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    FirstTagReader reader;
    parser.setContentHandler(&reader);
    parser.parse(source);
    return reader.names;
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
    if (map.count() <= FewAttributes) {
        return countedAttributes(map);
    }
    DomAttributes attributes;
    const QStringList names = savedAttributeNames(element);
    attributes.reserve(static_cast<int>(names.size()));
    for (const QString& name : names) {
        attributes.append(map.namedItem(name).toAttr());
    }
    // A name that XML does not allow is not read back as it was.
    const bool isComplete = attributes.size() == map.count()
        && std::none_of(attributes.begin(), attributes.end(), [](const QDomAttr& attr) { return attr.isNull(); });
    return isComplete ? attributes : countedAttributes(map);
}
