#include "xmlserialiser_p.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include <QDomDocument>
#include <QIODevice>
#include <QSet>
#include <QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include "domattributes_p.h"
#include "limits_p.h"
#include "tracing_p.h"

namespace {

/// Nearly every document is written at once.
constexpr int PieceLength = 2 * 1024 * 1024;

/// With this indent Qt writes no line ends behind elements.
constexpr int NoLines = -1;

/// What a declaration says that Qt has read, like nearly all.
const QLatin1String UsualDeclaration("version='1.0' encoding='UTF-8'");

/// What Qt replaces by references, depending on the place of a text.
enum class Place { Text, TextOutsideOfElements, AttributeValue, NamespaceName };

/// Gives characters to a stream in pieces, as long as it takes them.
class Pieces
{
public:
    explicit Pieces(QTextStream& stream)
        : m_stream(stream)
        , m_piece(PieceLength, Qt::Uninitialized)
        , m_pBegin(m_piece.data())
        , m_pEnd(m_pBegin)
    {
    }

    void Put(char character)
    {
        *m_pEnd++ = QLatin1Char(character);
        if (m_pEnd == m_pBegin + PieceLength) {
            Flush();
        }
    }

    void Put(const QChar* text, qsizetype length)
    {
        for (qsizetype room = m_pBegin + PieceLength - m_pEnd; length >= room; room = PieceLength) {
            append(text, room);
            Flush();
            text += room;
            length -= room;
        }
        append(text, length);
    }

    void Flush()
    {
        if (m_isTaken) {
            m_stream << QStringView(m_pBegin, m_pEnd);
            m_stream.flush();
            m_isTaken = m_stream.status() == QTextStream::Ok && isWithinLimit();
        }
        m_pEnd = m_pBegin;
    }

    bool IsTaken() const { return m_isTaken; }

private:
    void append(const QChar* text, qsizetype length)
    {
        if (length > 0) { // An empty text may have no characters to point to.
            std::memcpy(static_cast<void*>(m_pEnd), text, static_cast<std::size_t>(length) * sizeof(QChar));
            m_pEnd += length;
        }
    }

    bool isWithinLimit() const
    {
        const qint64 written = m_stream.string() ? qint64(m_stream.string()->size()) : m_stream.device()->pos();
        if (written > limits().savedBytes) {
            trace(
                QStringLiteral("Documents that are saved as more than %1 bytes are refused!").arg(limits().savedBytes),
                "xmlserialiser", __LINE__);
        }
        return written <= limits().savedBytes;
    }

    QTextStream& m_stream;
    QString m_piece;
    QChar* const m_pBegin;
    QChar* m_pEnd;
    bool m_isTaken = true;
};

/// The reference that stands for @p character at @p place, empty when it stands for itself.
QStringView referenceFor(ushort character, Place place, bool isEndOfSection)
{
    switch (character) {
    case '<':
        return QStringView(u"&lt;");
    case '&':
        return QStringView(u"&amp;");
    case '>':
        return isEndOfSection ? QStringView(u"&gt;") : QStringView();
    case '"':
        return place == Place::Text ? QStringView() : QStringView(u"&quot;");
    case '\r':
        return place == Place::NamespaceName ? QStringView() : QStringView(u"&#xd;");
    case '\n':
        return place == Place::AttributeValue ? QStringView(u"&#xa;") : QStringView();
    case '\t':
        return place == Place::AttributeValue ? QStringView(u"&#x9;") : QStringView();
    default:
        return QStringView();
    }
}

/// What a stream can write. Qt 5 has references written for the other characters.
class Encoding
{
public:
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    explicit Encoding(const QTextStream& stream)
        : m_codec(isUnicode(*stream.codec()) ? nullptr : stream.codec())
    {
    }

    bool HasAll() const
    {
        return !m_codec;
    }
    bool Has(QChar character) const
    {
        return !m_codec || m_codec->canEncode(character);
    }

private:
    static bool isUnicode(const QTextCodec& codec)
    {
        return codec.name().startsWith("UTF-");
    }

    const QTextCodec* const m_codec;
#else
    explicit Encoding(const QTextStream&) { }

    bool HasAll() const
    {
        return true;
    }
    bool Has(QChar) const
    {
        return true;
    }
#endif
};

/// Qt finds the encoding that a document declares when it saves its declaration. It makes a regular expression for
/// that each time, which takes longer than a small document does, and so the usual declaration is known here.
void useDeclaredEncoding(QTextStream& stream, const QDomNode& document)
{
    const QDomProcessingInstruction declaration = document.firstChild().toProcessingInstruction();
    if (declaration.data() == UsualDeclaration) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        stream.setCodec("UTF-8");
#else
        stream.setEncoding(QStringConverter::Utf8);
#endif
        return;
    }
    QDomDocument declaring {QString()};
    declaring.appendChild(declaring.importNode(declaration, false));
    QString text;
    QTextStream declared(&text);
    declaring.save(declared, 0);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec(declared.codec());
#else
    stream.setEncoding(declared.encoding());
#endif
}

bool isDeclaration(const QDomNode& node)
{
    return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
}

/// The name of an element or attribute without its prefix. Nodes that were made without a thought of namespaces have
/// one name only.
QString plainName(const QDomNode& node)
{
    const QString localName = node.localName();
    return localName.isNull() ? node.nodeName() : localName;
}

class Serialiser
{
public:
    Serialiser(QTextStream& stream, int indent)
        : m_indent(indent)
        , m_pieces(stream)
        , m_encoding(stream)
    {
    }

    bool Save(const QDomNode& top);

private:
    struct OpenElement
    {
        QString name;
        QDomNode next;
        bool isBeforeText;
        bool isDocument;
    };

    void saveSiblings(QDomNode node, bool isAlone);
    QDomNode saveNode(const QDomNode& node, const QDomNode& next, bool isBeforeText);
    QDomNode closeElement();
    void putLeaf(const QDomNode& node, bool isBeforeText);
    void putComment(const QString& comment, bool isBeforeText);
    QString putStartOfTag(const QDomNode& element);
    void putAttributes(const QDomElement& element);
    bool isInsideElement(const QDomNode& node) const { return !m_open.empty() || node.parentNode().isElement(); }
    void putAttribute(const QDomNode& attribute, const QDomNode& owner, QSet<QString>& declaredPrefixes);
    void putType(const QDomDocumentType& type);
    void putEntity(const QDomEntity& entity);
    void putNotation(const QDomNotation& notation);
    void putIndent();
    void putLineEnd(bool isBeforeText);
    void putEscaped(const QString& text, Place place);
    void putQuoted(const QString& text);
    void put(const QString& text) { m_pieces.Put(text.constData(), text.size()); }
    void put(QStringView text) { m_pieces.Put(text.data(), text.size()); }
    void put(char character) { m_pieces.Put(character); }
    template <std::size_t Size> void put(const char16_t (&text)[Size])
    {
        m_pieces.Put(reinterpret_cast<const QChar*>(text), Size - 1);
    }
    template <class First, class... Others> void put(const First& first, const Others&... others)
    {
        put(first);
        put(others...);
    }

    const int m_indent;
    Pieces m_pieces;
    const Encoding m_encoding;
    QDomDocumentType m_type;
    int m_topDepth = 1;
    bool m_isBehindText = false;
    std::vector<OpenElement> m_open;
    QString m_blanks; ///< at least as many as have been needed
};

bool Serialiser::Save(const QDomNode& top)
{
    if (top.isDocument()) {
        m_topDepth = 0;
        m_type = top.toDocument().doctype();
    }
    if (top.isDocument() || top.isDocumentFragment()) {
        saveSiblings(top.firstChild(), false);
    } else {
        m_isBehindText = top.previousSibling().isText();
        saveSiblings(top, true);
    }
    m_pieces.Flush();
    return m_pieces.IsTaken();
}

void Serialiser::saveSiblings(QDomNode node, bool isAlone)
{
    while (!node.isNull() && m_pieces.IsTaken()) {
        if (!m_type.isNull() && m_open.empty() && !isDeclaration(node)) {
            putType(std::exchange(m_type, QDomDocumentType()));
        }
        const QDomNode next = node.nextSibling();
        node = saveNode(node, isAlone && m_open.empty() ? QDomNode() : next, next.isText());
        while (node.isNull() && !m_open.empty()) {
            node = closeElement();
        }
    }
}

/// Gives the node to go on with, which is @p next or the first child.
QDomNode Serialiser::saveNode(const QDomNode& node, const QDomNode& next, bool isBeforeText)
{
    if (node.isDocument()) { // within another: what it holds is saved in its place
        --m_topDepth;
        m_open.push_back({QString(), next, isBeforeText, true});
        m_isBehindText = false;
        return node.firstChild();
    }
    if (!node.isElement()) {
        putLeaf(node, isBeforeText);
        m_isBehindText = node.isText();
        return next;
    }
    const QString name = putStartOfTag(node);
    const QDomNode child = node.firstChild();
    if (child.isNull()) {
        put(u"/>");
        putLineEnd(isBeforeText);
    } else {
        put('>');
        putLineEnd(child.isText());
        m_open.push_back({name, next, isBeforeText, false});
    }
    m_isBehindText = false;
    return child.isNull() ? next : child;
}

/// Gives the node behind the innermost open element, of which all has been saved.
QDomNode Serialiser::closeElement()
{
    const OpenElement element = std::move(m_open.back());
    m_open.pop_back();
    if (element.isDocument) {
        ++m_topDepth;
    } else {
        if (!m_isBehindText) {
            putIndent();
        }
        put(u"</", element.name, '>');
        putLineEnd(element.isBeforeText);
    }
    m_isBehindText = false;
    return element.next;
}

void Serialiser::putLeaf(const QDomNode& node, bool isBeforeText)
{
    switch (node.nodeType()) {
    case QDomNode::TextNode:
        putEscaped(node.nodeValue(), isInsideElement(node) ? Place::Text : Place::TextOutsideOfElements);
        break;
    case QDomNode::CDATASectionNode:
        put(u"<![CDATA[", node.nodeValue(), u"]]>");
        break;
    case QDomNode::CommentNode:
        putComment(node.nodeValue(), isBeforeText);
        break;
    case QDomNode::ProcessingInstructionNode:
        put(u"<?", node.nodeName(), ' ', node.nodeValue(), u"?>\n");
        break;
    case QDomNode::EntityReferenceNode:
        put('&', node.nodeName(), ';');
        break;
    case QDomNode::AttributeNode: {
        QSet<QString> declaredPrefixes;
        putAttribute(node, node.parentNode(), declaredPrefixes);
    } break;
    case QDomNode::DocumentTypeNode:
        putType(node.toDocumentType());
        break;
    case QDomNode::EntityNode:
        putEntity(node.toEntity());
        break;
    default: // a notation: there is nothing else
        putNotation(node.toNotation());
        break;
    }
}

void Serialiser::putComment(const QString& comment, bool isBeforeText)
{
    if (!m_isBehindText) {
        putIndent();
    }
    put(u"<!--", comment);
    if (comment.endsWith(QLatin1Char('-'))) {
        put(' ');
    }
    put(u"-->");
    if (!isBeforeText) {
        put('\n');
    }
}

/// Gives the name for the tag at the end of the element.
QString Serialiser::putStartOfTag(const QDomNode& element)
{
    if (!m_isBehindText) {
        putIndent();
    }
    QString name = plainName(element);
    const QString namespaceName = element.namespaceURI();
    if (namespaceName.isNull()) {
        put('<', name);
    } else {
        const QString prefix = element.prefix();
        if (!prefix.isEmpty()) {
            name.prepend(prefix + QLatin1Char(':'));
        }
        put('<', name);
        put(prefix.isEmpty() ? QStringView(u" xmlns") : QStringView(u" xmlns:"), prefix, u"=\"");
        putEscaped(namespaceName, Place::NamespaceName);
        put('"');
    }
    if (element.hasAttributes()) {
        putAttributes(element.toElement());
    }
    return name;
}

void Serialiser::putAttributes(const QDomElement& element)
{
    QSet<QString> declaredPrefixes;
    for (const QDomAttr& attribute : attributesOf(element)) {
        put(' ');
        putAttribute(attribute, attribute.parentNode(), declaredPrefixes);
    }
}

/// A prefix is declared with the first of the attributes that have it, unless that of their element is the same.
void Serialiser::putAttribute(const QDomNode& attribute, const QDomNode& owner, QSet<QString>& declaredPrefixes)
{
    const QString namespaceName = attribute.namespaceURI();
    const QString prefix = attribute.prefix();
    if (!namespaceName.isNull()) {
        put(prefix, ':');
    }
    put(plainName(attribute), u"=\"");
    putEscaped(attribute.nodeValue(), Place::AttributeValue);
    put('"');
    if (!namespaceName.isNull() && owner.prefix() != prefix && !declaredPrefixes.contains(prefix)) {
        put(u" xmlns:", prefix, u"=\"");
        putEscaped(namespaceName, Place::AttributeValue);
        put('"');
        declaredPrefixes.insert(prefix);
    }
}

void Serialiser::putType(const QDomDocumentType& type)
{
    if (type.name().isEmpty()) {
        return;
    }
    put(u"<!DOCTYPE ", type.name());
    if (!type.publicId().isNull()) {
        put(u" PUBLIC ");
        putQuoted(type.publicId());
    }
    if (!type.systemId().isNull()) {
        put(type.publicId().isNull() ? QStringView(u" SYSTEM ") : QStringView(u" "));
        putQuoted(type.systemId());
    }
    const QDomNamedNodeMap notations = type.notations();
    const QDomNamedNodeMap entities = type.entities();
    if (notations.count() > 0 || entities.count() > 0) {
        put(u" [\n");
        for (int i = 0; i < notations.count(); ++i) {
            putNotation(notations.item(i).toNotation());
        }
        for (int i = 0; i < entities.count(); ++i) {
            putEntity(entities.item(i).toEntity());
        }
        put(']');
    }
    put(u">\n");
}

void Serialiser::putEntity(const QDomEntity& entity)
{
    const QString name = entity.nodeName();
    const bool isParameter = name.startsWith(QLatin1Char('%'));
    put(u"<!ENTITY ", isParameter ? QStringView(u"% ") : QStringView(), name.mid(isParameter ? 1 : 0));
    put(' ');
    if (entity.publicId().isNull()) {
        put(u"SYSTEM ");
        putQuoted(entity.systemId());
    } else {
        put(u"PUBLIC ");
        putQuoted(entity.publicId());
        put(' ');
        putQuoted(entity.systemId());
    }
    if (!entity.notationName().isNull()) {
        put(u" NDATA ", entity.notationName());
    }
    put(u">\n");
}

void Serialiser::putNotation(const QDomNotation& notation)
{
    put(u"<!NOTATION ", notation.nodeName(), ' ');
    if (!notation.publicId().isNull()) {
        put(u"PUBLIC ");
        putQuoted(notation.publicId());
        if (!notation.systemId().isNull()) {
            put(' ');
            putQuoted(notation.systemId());
        }
    } else {
        put(u"SYSTEM ");
        putQuoted(notation.systemId());
    }
    put(u">\n");
}

void Serialiser::putIndent()
{
    const int blanks = (m_topDepth + static_cast<int>(m_open.size())) * m_indent;
    if (m_blanks.size() < blanks) {
        m_blanks = QString(2 * blanks, QLatin1Char(' '));
    }
    m_pieces.Put(m_blanks.constData(), std::max(blanks, 0));
}

/// Ends the line of a tag, but would not add to a text.
void Serialiser::putLineEnd(bool isBeforeText)
{
    if (!isBeforeText && m_indent != NoLines) {
        put('\n');
    }
}

void Serialiser::putEscaped(const QString& text, Place place)
{
    const bool hasAll = m_encoding.HasAll();
    const ushort* const begin = text.utf16();
    const ushort* const end = begin + text.size();
    const ushort* plain = begin;
    for (const ushort* c = begin; c != end; ++c) {
        if (*c > '>' && hasAll) {
            continue;
        }
        const bool isEndOfSection = c - begin >= 2 && c[-2] == ']' && c[-1] == ']';
        const QStringView reference = referenceFor(*c, place, isEndOfSection);
        if (reference.isEmpty() && m_encoding.Has(QChar(*c))) {
            continue;
        }
        put(QStringView(plain, c));
        if (!reference.isEmpty()) {
            put(reference);
        } else {
            put(u"&#x", QString::number(*c, 16), ';');
        }
        plain = c + 1;
    }
    put(QStringView(plain, end));
}

void Serialiser::putQuoted(const QString& text)
{
    const char quote = text.contains(QLatin1Char('\'')) ? '"' : '\'';
    put(quote, text, quote);
}

} // namespace

bool serialise(const QDomNode& node, QTextStream& stream, int indent)
{
    if (node.isDocument()) {
        useDeclaredEncoding(stream, node);
    }
    return Serialiser(stream, indent).Save(node);
}
