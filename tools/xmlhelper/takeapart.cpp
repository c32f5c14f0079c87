#include "takeapart_p.h"

#include <QDomDocument>

namespace {

/// The place from which nodes go their own way; its document is theirs then, and never deleted.
QDomDocumentFragment& place()
{
    static auto* const document = new QDomDocument;
    static auto* const fragment = new QDomDocumentFragment(document->createDocumentFragment());
    return *fragment;
}

bool isTextAlone(const QDomNode& node)
{
    return node.isText() && node.nextSibling().isNull() && node.previousSibling().isNull();
}

/// All but a text that is alone, which a kept parent keeps.
void moveChildren(const QDomNode& parent)
{
    for (QDomNode child = parent.firstChild(); !child.isNull() && !isTextAlone(child); child = parent.firstChild()) {
        place().appendChild(child);
    }
}

void emptyPlace()
{
    for (QDomNode node = place().firstChild(); !node.isNull(); node = place().firstChild()) {
        moveChildren(node);
        place().removeChild(node);
    }
}

} // namespace

void takeApart(const QDomDocument& document)
{
    moveChildren(document);
    emptyPlace();
}

void takeApart(const std::list<QDomNode>& nodes)
{
    for (const QDomNode& node : nodes) {
        if (node.parentNode().isNull()) {
            place().appendChild(node);
        }
    }
    emptyPlace();
}
