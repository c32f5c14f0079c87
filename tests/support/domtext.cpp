#include "domtext.h"

#include <QFile>
#include <QStringList>

namespace {

QString attributesText(const QDomNode& node)
{
    QStringList texts;
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        texts.append(QStringLiteral(" %1=\"%2\"").arg(attribute.name(), attribute.value()));
    }
    texts.sort();
    return texts.join(QString());
}

QString nodeText(const QDomNode& node, int level)
{
    const QString indent(2 * level, QLatin1Char(' '));
    if (node.isText()) {
        return QStringLiteral("%1\"%2\"\n").arg(indent, node.nodeValue());
    }
    if (node.isProcessingInstruction()) {
        return QStringLiteral("%1<?%2 %3?>\n").arg(indent, node.nodeName(), node.nodeValue());
    }
    QString children;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        children += nodeText(child, node.isElement() ? level + 1 : level);
    }
    if (!node.isElement()) {
        return children;
    }
    const QString start = indent + QLatin1Char('<') + node.nodeName() + attributesText(node);
    if (children.isEmpty()) {
        return start + QStringLiteral("/>\n");
    }
    return start + QStringLiteral(">\n") + children + indent + QStringLiteral("</") + node.nodeName()
        + QStringLiteral(">\n");
}

} // namespace

QDomDocument documentOf(const QString& xml)
{
    QDomDocument document;
    return document.setContent(xml) ? document : QDomDocument();
}

QDomDocument documentInFile(const QString& fileName)
{
    QFile file(fileName);
    QDomDocument document;
    return file.open(QIODevice::ReadOnly) && document.setContent(&file) ? document : QDomDocument();
}

QString domText(const QDomNode& node)
{
    return nodeText(node, 0);
}
