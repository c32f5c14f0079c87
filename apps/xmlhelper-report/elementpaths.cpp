#include "elementpaths.h"

#include "xmlfile.h"

namespace reportcheck {

QString ElementPaths::PathOf(const xmlNode* element)
{
    QString path;
    for (; element && element->type == XML_ELEMENT_NODE; element = element->parent) {
        path.prepend(QLatin1Char('/') + stepTo(element));
    }
    return path;
}

QString ElementPaths::stepTo(const xmlNode* element)
{
    if (!m_steps.contains(element)) {
        numberChildren(element->parent);
    }
    return m_steps.value(element);
}

void ElementPaths::numberChildren(const xmlNode* parent)
{
    QHash<QString, int> counts;
    for (const xmlNode* child = parent->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            ++counts[qualifiedNameOf(child)];
        }
    }
    QHash<QString, int> numbers;
    for (const xmlNode* child = parent->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            const QString name = qualifiedNameOf(child);
            const int number = ++numbers[name];
            m_steps.insert(child, counts.value(name) > 1 ? QStringLiteral("%1[%2]").arg(name).arg(number) : name);
        }
    }
}

} // namespace reportcheck
