#include "domorder.h"

#include <QDomNode>

QDomNode nextBelow(const QDomNode& start, const QDomNode& node, bool isToSkipChildren)
{
    if (!isToSkipChildren && node.isElement() && node.hasChildNodes()) {
        return node.firstChild();
    }
    QDomNode last = node;
    while (last != start && last.nextSibling().isNull()) {
        last = last.parentNode();
    }
    return last == start ? QDomNode() : last.nextSibling();
}
