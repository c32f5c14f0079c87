#include "xmlfile.h"

#include <algorithm>
#include <cstring>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <QFile>
#include <QFileInfo>

#include "texts.h"

namespace reportcheck {

namespace {

// What a parser is given to keep: how much it has seen, and how libxml2 itself handles a start tag.
struct Tally
{
    int elements = 0;
    int attributes = 0;
    startElementNsSAX2Func handleStartTag = nullptr;

    bool IsBeyondLimits() const { return elements > MaximumElements || attributes > MaximumAttributes; }
};

struct ParserDeleter
{
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};
using Parser = std::unique_ptr<xmlParserCtxt, ParserDeleter>;

void countStartTag(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                   const xmlChar** namespaces, int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    auto* const parser = static_cast<xmlParserCtxt*>(context);
    auto* const tally = static_cast<Tally*>(parser->_private);
    ++tally->elements;
    tally->attributes += attributeCount;
    if (tally->IsBeyondLimits()) {
        xmlStopParser(parser);
        return;
    }
    tally->handleStartTag(context, name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount,
                          attributes);
}

int readPiece(void* file, char* buffer, int length)
{
    return static_cast<int>(static_cast<QFile*>(file)->read(buffer, length));
}

void ignoreError(void*, xmlErrorPtr) { }

ReadFile unreadable(const QString& reason, int line = 0)
{
    return {nullptr, reason, line};
}

ReadFile parserFailure(const Parser& parser, const Tally& tally)
{
    if (tally.IsBeyondLimits()) {
        return unreadable(
            Texts::tr("It has more than %1 elements or %2 attributes.").arg(MaximumElements).arg(MaximumAttributes));
    }
    const xmlError* const error = xmlCtxtGetLastError(parser.get());
    if (error && error->code == XML_ERR_DOCUMENT_EMPTY) {
        return unreadable(Texts::tr("It holds no element. The schema that it was made from gave none: "
                                    "xmlhelper-schema says why."));
    }
    if (error && error->code == XML_ERR_DOCUMENT_END) {
        return unreadable(Texts::tr("It is not well-formed XML: something follows its root. A schema that lays out "
                                    "several roots gives such a report: xmlhelper-schema says so."),
                          error->line);
    }
    const QString message = error ? QString::fromUtf8(error->message).trimmed() : QString();
    return unreadable(Texts::tr("It is not well-formed XML: %1")
                          .arg(message.isEmpty() ? Texts::tr("there is no root element") : message),
                      error ? error->line : 0);
}

constexpr int BytesLookedAt = 4096;

/// Whether no text in whatever encoding has this byte: tabs, the ends of lines and pages, and the escape that switches
/// between character sets are all that is left of the control characters.
bool isNeverInText(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return (code < ' ' && !std::strchr("\t\n\v\f\r\x1b", code)) || code == 0x7f;
}

/// What a file is that begins so, when it cannot be XML; empty when it may be. In UTF-16 every ASCII character has a
/// null byte beside it. What begins with a tag is left to the parser, which knows the line.
QString whyNoXmlIn(const QByteArray& begin)
{
    const bool isUtf16 = begin.startsWith("\xff\xfe") || begin.startsWith("\xfe\xff")
        || begin.startsWith(QByteArray::fromRawData("<\0", 2)) || begin.startsWith(QByteArray::fromRawData("\0<", 2));
    if (isUtf16) {
        return QString();
    }
    const QString binary = Texts::tr("It is a binary file, and no XML.");
    if (begin.contains('\0')) {
        return binary;
    }
    const QByteArray text = (begin.startsWith("\xef\xbb\xbf") ? begin.mid(3) : begin).trimmed();
    if (text.isEmpty()) {
        return Texts::tr("The file is empty.");
    }
    if (text.startsWith('<')) {
        return QString();
    }
    return std::any_of(text.begin(), text.end(), isNeverInText)
        ? binary
        : Texts::tr("It is no XML: it does not begin with a tag.");
}

} // namespace

QString whyNoXml(const QString& file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? whyNoXmlIn(source.read(BytesLookedAt)) : QString();
}

ReadFile readXmlFile(const QString& file)
{
    QFile source(file);
    if (QFileInfo(file).isDir() || !source.open(QIODevice::ReadOnly)) {
        return unreadable(QFileInfo::exists(file) ? Texts::tr("It cannot be opened.")
                                                  : Texts::tr("There is no such file."));
    }
    if (source.size() > MaximumBytes) {
        return unreadable(Texts::tr("It has more than %1 bytes.").arg(MaximumBytes));
    }
    const QString reason = whyNoXmlIn(source.peek(BytesLookedAt));
    if (!reason.isEmpty()) {
        return unreadable(reason);
    }

    Tally tally;
    const Parser parser(xmlNewParserCtxt());
    tally.handleStartTag = parser->sax->startElementNs;
    parser->sax->startElementNs = countStartTag;
    parser->_private = &tally;
    // Without a URL: validators look for one among all nodes before the one at fault, which makes many faults slow.
    Document document(xmlCtxtReadIO(parser.get(), readPiece, nullptr, &source, nullptr, nullptr,
                                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_BIG_LINES));
    if (!document || tally.IsBeyondLimits() || !xmlDocGetRootElement(document.get())) {
        return parserFailure(parser, tally);
    }
    return {std::move(document), QString(), 0};
}

Seclusion::Seclusion()
    : m_pLoader(xmlGetExternalEntityLoader())
    , m_pErrorHandler(xmlStructuredError)
    , m_pErrorContext(xmlStructuredErrorContext)
{
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
    xmlSetStructuredErrorFunc(nullptr, ignoreError);
}

Seclusion::~Seclusion()
{
    xmlSetStructuredErrorFunc(m_pErrorContext, m_pErrorHandler);
    xmlSetExternalEntityLoader(m_pLoader);
}

QString textOf(const xmlChar* text)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

QString qualifiedNameOf(const xmlNode* node)
{
    const QString name = textOf(node->name);
    return node->ns && node->ns->prefix ? textOf(node->ns->prefix) + QLatin1Char(':') + name : name;
}

QString qualifiedNameOf(const xmlAttr* attribute)
{
    const QString name = textOf(attribute->name);
    return attribute->ns && attribute->ns->prefix ? textOf(attribute->ns->prefix) + QLatin1Char(':') + name : name;
}

QString valueOf(const xmlAttr* attribute)
{
    QString value;
    for (const xmlNode* piece = attribute->children; piece; piece = piece->next) {
        if (piece->type == XML_TEXT_NODE) {
            value += textOf(piece->content);
        }
    }
    return value;
}

int lineOf(const xmlNode* node)
{
    return static_cast<int>(xmlGetLineNo(const_cast<xmlNode*>(node)));
}

} // namespace reportcheck
