#include "takeapart_p.h"

#include <vector>

#include <QDomDocument>

namespace {

/// The place of nodes that belong to no document any more; never deleted, because nodes may outlive everything.
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

} // namespace

void takeApart(QDomDocument& document)
{
    std::vector<QDomNode> parents {document};
    while (!parents.empty()) {
        const QDomNode parent = parents.back();
        parents.pop_back();
        for (QDomNode child = parent.firstChild(); !child.isNull() && !isTextAlone(child);
             child = parent.firstChild()) {
            place().appendChild(child);
            place().removeChild(child);
            parents.push_back(child);
        }
    }
}
