#include "domextent_p.h"

#include <algorithm>

#include <QDomNode>

DomExtent extentOf(const QDomNode& top)
{
    DomExtent extent {0, 0, 0};
    int level = 0;
    QDomNode node = top;
    while (!node.isNull()) {
        if (node.isElement()) {
            ++extent.elements;
            extent.levels = std::max(extent.levels, level + 1);
            extent.attributes += node.attributes().count();
        }
        QDomNode next = node.firstChild();
        level += !next.isNull() && node.isElement() ? 1 : 0;
        while (next.isNull() && node != top) {
            next = node.nextSibling();
            if (next.isNull()) {
                node = node.parentNode();
                level -= node.isElement() ? 1 : 0;
            }
        }
        node = next;
    }
    return extent;
}

int levelOf(const QDomNode& node)
{
    int level = 0;
    for (QDomNode ancestor = node; !ancestor.isNull(); ancestor = ancestor.parentNode()) {
        level += ancestor.isElement() ? 1 : 0;
    }
    return level;
}
