#include "domorder_p.h"

#include <QDomNode>

QDomNode nextBelow(const QDomNode& start, const QDomNode& node, bool isToSkipChildren)
{
    if (!isToSkipChildren && node.isElement()) {
        const QDomNode child = node.firstChild();
        if (!child.isNull()) {
            return child;
        }
    }
    for (QDomNode last = node; last != start && !last.isNull(); last = last.parentNode()) {
        const QDomNode next = last.nextSibling();
        if (!next.isNull()) {
            return next;
        }
    }
    return QDomNode();
}

QDomNode siblingBehind(const QDomNode& node)
{
    return node.parentNode().isNull() ? QDomNode() : node.nextSibling();
}

QDomNode siblingBefore(const QDomNode& node)
{
    return node.parentNode().isNull() ? QDomNode() : node.previousSibling();
}
