#include "domextent.h"

#include <algorithm>

#include <QDomNode>

DomExtent extentOf(const QDomNode& top)
{
    DomExtent extent {0, 0};
    int level = 0;
    QDomNode node = top;
    while (!node.isNull()) {
        if (node.isElement()) {
            ++extent.elements;
            extent.levels = std::max(extent.levels, level + 1);
        }
        if (node.hasChildNodes()) {
            level += node.isElement() ? 1 : 0;
            node = node.firstChild();
            continue;
        }
        while (node != top && node.nextSibling().isNull()) {
            node = node.parentNode();
            level -= node.isElement() ? 1 : 0;
        }
        if (node == top) {
            break;
        }
        node = node.nextSibling();
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
