#include "randomdocument.h"

namespace {

/// Document types, each with the root that it needs.
const std::vector<QString>& beginnings()
{
    static const std::vector<QString> texts {
        QString(),
        QStringLiteral("<?xml version='1.0' encoding='UTF-8'?><r/>"),
        QStringLiteral("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><r/>"),
        QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><r/>"),
        QStringLiteral("<?xml version='1.0' encoding='never'?><!--c--><r/>"),
        QStringLiteral("<?xml version='1.0'?><!DOCTYPE r><r/>"),
        QStringLiteral("<!DOCTYPE r SYSTEM 'a&quot;b'><r/>"),
        QStringLiteral("<!DOCTYPE r PUBLIC 'pub' \"it's\"><r/>"),
        QStringLiteral("<?p d?><!DOCTYPE r [<!NOTATION n SYSTEM 's'><!NOTATION m PUBLIC 'p'>"
                       "<!ENTITY e SYSTEM 's' NDATA n><!ENTITY f PUBLIC 'p' 's'>]><r/>"),
        QStringLiteral("<!DOCTYPE r PUBLIC 'p' 's' [<!ENTITY e SYSTEM \"it's\">]><r/>"),
        QStringLiteral("<r xmlns='u' xmlns:p='v' p:a='1' b='2'><p:c/><d xmlns=''/></r>"),
    };
    return texts;
}

} // namespace

QDomDocument RandomDocument::Make()
{
    QDomDocument document = start();
    std::vector<QDomNode> parents {document.documentElement()};
    const int size = below(14);
    for (int i = 0; i < size; ++i) {
        const QDomNode node = makeNode(document);
        parents[static_cast<std::size_t>(below(static_cast<int>(parents.size())))].appendChild(node);
        if (node.isElement()) {
            parents.push_back(node);
        }
    }
    for (int i = below(3); i > 0; --i) {
        const QDomNode node = makeNode(document);
        if (node.isComment() || node.isProcessingInstruction() || node.isText()) {
            document.insertBefore(node, below(2) == 0 ? document.firstChild() : QDomNode());
        }
    }
    return document;
}

QDomDocumentFragment RandomDocument::TakeFragment(QDomDocument& document)
{
    QDomDocumentFragment fragment = document.createDocumentFragment();
    for (int i = below(5); i > 0; --i) {
        const QDomNode child = document.documentElement().firstChild();
        fragment.appendChild(child.isNull() ? makeNode(document) : child);
    }
    return fragment;
}

QString RandomDocument::anyText()
{
    static const std::vector<QString> pieces {
        QStringLiteral("<"),      QStringLiteral(">"),      QStringLiteral("&"),
        QStringLiteral("\""),     QStringLiteral("'"),      QStringLiteral("\n"),
        QStringLiteral("\r"),     QStringLiteral("\t"),     QStringLiteral(" "),
        QStringLiteral("]"),      QStringLiteral("]]>"),    QStringLiteral("&#"),
        QStringLiteral("%"),      QStringLiteral("-"),      QStringLiteral("a"),
        QStringLiteral("\u00E4"), QStringLiteral("\u20AC"), QString::fromUtf8("\xF0\x9F\x98\x80"),
        QStringLiteral("\u007F"), QStringLiteral("word"),
    };
    QString text;
    for (int i = below(7); i > 0; --i) {
        text += anyOf(pieces);
    }
    return text;
}

QString RandomDocument::anyName()
{
    return anyOf({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("p:a"), QStringLiteral("q:b"),
                  QStringLiteral("xmlns"), QStringLiteral("xml"), QStringLiteral("\u00E4")});
}

/// No, an empty, or another namespace.
QString RandomDocument::anyNamespace()
{
    return anyOf({QString(), QLatin1String(""), QStringLiteral("u"), QStringLiteral("v<\"&\r\n\t>]]>")});
}

QDomDocument RandomDocument::start()
{
    QDomDocument document;
    const QString beginning = anyOf(beginnings());
    if (below(8) == 0) {
        QDomImplementation implementation;
        document = implementation.createDocument(anyNamespace(), anyName(),
                                                 implementation.createDocumentType(anyName(), anyText(), anyText()));
    } else if (beginning.isEmpty() || !document.setContent(beginning, below(2) == 0)) {
        document = QDomDocument(below(2) == 0 ? anyName() : QString());
        document.appendChild(makeElement(document));
    }
    const QDomNamedNodeMap entities = document.doctype().entities();
    for (int i = 0; i < entities.count() && below(2) == 0; ++i) {
        entities.item(i).setNodeValue(anyText());
    }
    return document;
}

QDomNode RandomDocument::makeNode(QDomDocument& document)
{
    switch (below(12)) {
    case 0:
    case 1:
        return document.createTextNode(anyText());
    case 2:
        return document.createComment(anyText());
    case 3:
        return document.createCDATASection(anyText());
    case 4:
        return document.createProcessingInstruction(anyName(), anyText());
    case 5:
        return document.createEntityReference(anyName());
    default:
        return makeElement(document);
    }
}

QDomElement RandomDocument::makeElement(QDomDocument& document)
{
    QDomElement element
        = below(3) == 0 ? document.createElementNS(anyNamespace(), anyName()) : document.createElement(anyName());
    for (int i = below(9) - 5; i > 0; --i) {
        switch (below(5)) {
        case 0:
            element.setAttributeNS(anyNamespace(), anyName(), anyText());
            break;
        case 1:
            element.setAttributeNode(makeAttribute(document));
            break;
        case 2:
            element.setAttributeNodeNS(makeAttribute(document));
            break;
        default:
            element.setAttribute(anyName(), anyText());
            break;
        }
    }
    if (below(10) == 0) {
        element.setPrefix(anyName());
    }
    return below(10) == 0 ? element.cloneNode().toElement() : element;
}

QDomAttr RandomDocument::makeAttribute(QDomDocument& document)
{
    QDomAttr attribute
        = below(2) == 0 ? document.createAttributeNS(anyNamespace(), anyName()) : document.createAttribute(anyName());
    attribute.setValue(anyText());
    return attribute;
}
