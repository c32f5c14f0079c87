#include "schemaorigin_p.h"

#include <algorithm>

#include <QDomElement>
#include <QStringList>

#include "domattributes_p.h"
#include "domorder_p.h"

namespace {

constexpr QChar Mark(1);

QString markOf(const SchemaTag& tag)
{
    return Mark + QStringLiteral("%1.%2").arg(tag.file).arg(tag.number);
}

/// The tag in a mark without its first character.
SchemaTag tagOf(const QString& mark)
{
    const QStringList numbers = mark.split(QLatin1Char('.'));
    return numbers.size() == 2 ? SchemaTag {numbers.first().toInt(), numbers.last().toInt()} : SchemaTag();
}

/// What the mark of an element or of an attribute consists of, behind the name or value.
QStringList partsOf(const QString& text)
{
    return text.split(Mark);
}

/// The attributes of an element. Users of one type have those of equal names one after the other, and to ask for
/// thousands by name takes less than to list them.
/// @param names  of the attributes that were listed last
DomAttributes attributesLike(QStringList& names, const QDomElement& element)
{
    const QDomNamedNodeMap map = element.attributes();
    DomAttributes attributes;
    if (map.count() == names.size()) {
        for (const QString& name : names) {
            attributes.append(map.namedItem(name).toAttr());
        }
    }
    const bool isComplete = !attributes.isEmpty()
        && std::none_of(attributes.begin(), attributes.end(), [](const QDomAttr& one) { return one.isNull(); });
    if (!isComplete) {
        attributes = attributesOf(element);
        names.clear();
        for (const QDomAttr& attribute : attributes) {
            names.append(attribute.name());
        }
    }
    return attributes;
}

void takeOffAttributes(const QDomElement& element, QStringList& names, SchemaReadingLog* log)
{
    for (QDomAttr attribute : attributesLike(names, element)) {
        const QString value = attribute.value();
        attribute.setValue(withoutOrigin(value));
        const QStringList parts = log ? partsOf(value) : QStringList();
        if (parts.size() == 3) {
            const auto kind = static_cast<SchemaReadingLog::AttributeKind>(parts.at(1).toInt());
            log->AttributeLaidOut(element, attribute.name(), kind, tagOf(parts.at(2)));
        }
    }
}

void takeOff(QDomElement element, QStringList& names, SchemaReadingLog* log)
{
    const QStringList parts = partsOf(element.tagName());
    element.setTagName(parts.first());
    if (log && parts.size() > 1) {
        log->ElementLaidOut(element, tagOf(parts.at(1)), tagOf(parts.value(2)));
    }
    takeOffAttributes(element, names, log);
}

} // namespace

QString nameFrom(const SchemaTag& tag, const QString& name)
{
    return name + markOf(tag);
}

QString valueFrom(const SchemaTag& tag, SchemaReadingLog::AttributeKind kind, const QString& value)
{
    return withoutOrigin(value) + Mark + QString::number(static_cast<int>(kind)) + markOf(tag);
}

QString withoutOrigin(const QString& text)
{
    return text.left(text.indexOf(Mark)); // all of it when there is no mark
}

QString valueOfKind(SchemaReadingLog::AttributeKind kind, const QString& value)
{
    const QStringList parts = partsOf(value);
    return parts.size() == 3 ? valueFrom(tagOf(parts.at(2)), kind, value) : value;
}

void addReference(const QDomNode& fragment, const SchemaTag& reference)
{
    for (QDomElement top = fragment.firstChildElement(); !top.isNull(); top = top.nextSiblingElement()) {
        const QString tagName = top.tagName();
        const auto end = tagName.indexOf(Mark, tagName.indexOf(Mark) + 1);
        top.setTagName(tagName.left(end) + markOf(reference));
    }
}

void takeOffOrigins(const QDomNode& top, SchemaReadingLog* log)
{
    QStringList names;
    for (QDomNode node = top; !node.isNull();) {
        if (node.isElement()) {
            takeOff(node.toElement(), names, log);
        }
        node = node == top && !top.isElement() ? top.firstChild() : nextBelow(top, node, false);
    }
}
