#include "randomtree.h"

namespace {

void appendNodes(const QDomNode& node, std::vector<QDomNode>& nodes)
{
    nodes.push_back(node);
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        appendNodes(child, nodes);
    }
}

} // namespace

QDomDocument RandomTree::MakeDocument(int size)
{
    QDomDocument document;
    QDomElement root = document.createElement(anyName());
    document.appendChild(root);
    std::vector<QDomNode> elements {root};
    for (int i = 1; i < size; ++i) {
        QDomNode node = makeNode(document);
        elements[static_cast<std::size_t>(below(static_cast<int>(elements.size())))].appendChild(node);
        if (node.isElement()) {
            elements.push_back(node);
        }
    }
    switch (below(4)) {
    case 0:
        document.appendChild(document.createComment(QStringLiteral("behind")));
        break;
    case 1:
        document.appendChild(document.createProcessingInstruction(anyName(), QStringLiteral("behind")));
        break;
    default:
        break;
    }
    return document;
}

const std::vector<QString>& RandomTree::Names()
{
    static const std::vector<QString> names {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    return names;
}

QDomNode RandomTree::makeNode(QDomDocument& document)
{
    switch (below(10)) {
    case 0:
        return document.createTextNode(QStringLiteral("text"));
    case 1:
        return document.createComment(QStringLiteral("comment"));
    case 2:
        return document.createCDATASection(QStringLiteral("section"));
    case 3:
        return document.createProcessingInstruction(anyName(), QStringLiteral("data"));
    default:
        return document.createElement(anyName());
    }
}

std::vector<QDomNode> nodesOf(const QDomNode& top)
{
    std::vector<QDomNode> nodes;
    appendNodes(top, nodes);
    return nodes;
}
