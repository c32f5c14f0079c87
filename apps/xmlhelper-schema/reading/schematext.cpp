#include "schematext.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include <QFile>

#include <libxml/parser.h>
#include <libxml/SAX2.h>
#include <libxml/tree.h>

#include "doctorlimits.h"

namespace schemadoctor {

namespace {

struct DocumentDeleter
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

struct ParserDeleter
{
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

using DocumentPointer = std::unique_ptr<xmlDoc, DocumentDeleter>;
using ParserPointer = std::unique_ptr<xmlParserCtxt, ParserDeleter>;

QString fromXml(const xmlChar* text)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

QString qualified(const xmlNs* space, const xmlChar* name)
{
    return space && space->prefix ? fromXml(space->prefix) + QLatin1Char(':') + fromXml(name) : fromXml(name);
}

QString takenText(xmlChar* text)
{
    const QString taken = fromXml(text);
    xmlFree(text);
    return taken;
}

QString valueOf(const xmlAttr* attribute)
{
    return takenText(xmlNodeListGetString(attribute->doc, attribute->children, 1));
}

/// The comments between a tag and what stands in front of it.
QStringList commentsBefore(const xmlNode* node)
{
    QStringList comments;
    for (xmlNode* before = node->prev; before && before->type != XML_ELEMENT_NODE; before = before->prev) {
        if (before->type == XML_COMMENT_NODE) {
            comments.prepend(takenText(xmlNodeGetContent(before)));
        }
    }
    return comments;
}

std::unique_ptr<TextNode> tagOf(const xmlNode* node, const TextFile& file, const TextNode* parent)
{
    auto tag = std::make_unique<TextNode>();
    tag->file = &file;
    tag->parent = parent;
    tag->lastLine = int(xmlGetLineNo(node));
    tag->line = int(reinterpret_cast<std::intptr_t>(node->_private));
    tag->qName = qualified(node->ns, node->name);
    tag->localName = tag->qName.section(QLatin1Char(':'), -1);
    // The library asks for the prefix alone, so a prefix that was not declared counts too.
    tag->isOfSchemaNamespace
        = node->ns ? fromXml(node->ns->href) == SchemaNamespace : tag->qName.startsWith(QLatin1String("xs:"));
    for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) {
        tag->attributes.append({qualified(attribute->ns, attribute->name), valueOf(attribute)});
    }
    tag->comments = commentsBefore(node);
    if (tag->Is("documentation")) {
        tag->content = takenText(xmlNodeGetContent(node));
    }
    return tag;
}

/// Copies the tags of a document, without recursion: files may be nested deeply.
void copyTags(xmlNode* root, TextFile& file)
{
    file.root = tagOf(root, file, nullptr);
    for (const xmlNs* space = root->nsDef; space; space = space->next) {
        file.namespaces[fromXml(space->prefix)] = fromXml(space->href);
    }
    file.tags.push_back(file.root.get());
    std::vector<TextNode*> open {file.root.get()};
    xmlNode* node = root;
    const auto enter = [&](xmlNode* child) {
        TextNode* const parent = open.back();
        parent->children.push_back(tagOf(child, file, parent));
        open.push_back(parent->children.back().get());
        file.tags.push_back(open.back());
        node = child;
    };
    for (;;) {
        if (xmlNode* const child = xmlFirstElementChild(node)) {
            enter(child);
            continue;
        }
        while (node != root && !xmlNextElementSibling(node)) {
            node = node->parent;
            open.pop_back();
        }
        if (node == root) {
            return;
        }
        open.pop_back();
        enter(xmlNextElementSibling(node));
    }
}

/// Gives each node the line in which its tag begins: the parser itself keeps the one in which it ends.
void beginElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int spaceCount,
                  const xmlChar** spaces, int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    const auto* const parser = static_cast<xmlParserCtxt*>(context);
    const xmlParserInput& input = *parser->input;
    std::intptr_t line = input.line;
    for (const xmlChar* text = input.cur; text > input.base && *text != '<'; --text) {
        line -= *text == '\n' ? 1 : 0;
    }
    xmlSAX2StartElementNs(context, name, prefix, uri, spaceCount, spaces, attributeCount, defaultedCount, attributes);
    if (parser->node) {
        parser->node->_private = reinterpret_cast<void*>(line);
    }
}

DocumentPointer parsed(xmlParserCtxt* parser, const QByteArray& content, int options)
{
    return DocumentPointer(
        xmlCtxtReadMemory(parser, content.constData(), int(content.size()), nullptr, nullptr, options));
}

/// Keeps the first fault: those behind it mostly follow from it.
void recordFault(void* parser, xmlError* error)
{
    auto* const file = static_cast<TextFile*>(static_cast<xmlParserCtxt*>(parser)->_private);
    if (error->level == XML_ERR_FATAL && file->fault.isEmpty()) {
        file->fault = QString::fromUtf8(error->message).trimmed();
        file->faultLine = error->line;
    }
}

/// Parses what can be parsed; what comes in front of a fault is kept.
void parse(const QByteArray& content, TextFile& file)
{
    constexpr int common = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_BIG_LINES;
    // Without entities a file cannot harm a parser that has no limits, and the library reads deeper than the limit.
    const int options = content.contains("<!ENTITY") ? common : common | XML_PARSE_HUGE;
    const ParserPointer parser(xmlNewParserCtxt());
    parser->sax->serror = recordFault;
    parser->sax->startElementNs = beginElement;
    parser->_private = &file;
    const DocumentPointer document = parsed(parser.get(), content, options | XML_PARSE_RECOVER);
    if (xmlNode* const root = document ? xmlDocGetRootElement(document.get()) : nullptr) {
        copyTags(root, file);
    }
}

} // namespace

bool TextNode::Has(const char* attribute) const
{
    return std::any_of(attributes.begin(), attributes.end(),
                       [attribute](const Attribute& one) { return one.name == QLatin1String(attribute); });
}

QString TextNode::Value(const char* attribute) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [attribute](const Attribute& one) { return one.name == QLatin1String(attribute); });
    return found == attributes.end() ? QString() : found->value;
}

QString TextNode::FirstName() const
{
    return attributes.isEmpty() ? QString() : attributes.first().name;
}

QString TextNode::FirstValue() const
{
    return attributes.isEmpty() ? QString() : attributes.first().value;
}

bool TextNode::Is(const char* tag) const
{
    return isOfSchemaNamespace && localName == QLatin1String(tag);
}

bool TextNode::IsAnyOf(std::initializer_list<const char*> tags) const
{
    return std::any_of(tags.begin(), tags.end(), [this](const char* tag) { return Is(tag); });
}

const TextNode* TextNode::Around(const char* tag) const
{
    const TextNode* node = parent;
    while (node && !node->Is(tag)) {
        node = node->parent;
    }
    return node;
}

bool TextNode::IsGlobal() const
{
    return parent && !parent->parent;
}

Place TextNode::GetPlace() const
{
    return {file->name, line};
}

SchemaText::SchemaText() = default;

SchemaText::~SchemaText() = default;

const TextFile* SchemaText::Open(const QString& fileName)
{
    const auto [known, isNew] = m_filesByName.emplace(fileName, nullptr);
    if (!isNew) {
        return known->second;
    }
    m_files.push_back(std::make_unique<TextFile>());
    TextFile& file = *m_files.back();
    known->second = &file;
    file.name = fileName;
    QFile device(fileName);
    if (!device.open(QIODevice::ReadOnly)) {
        file.isMissing = true;
        return &file;
    }
    // Bounded by what is read, not by what the file says about its size: a device has none.
    const QByteArray content = device.read(MaxSchemaBytes + 1);
    if (content.size() > MaxSchemaBytes) {
        file.isTooBig = true;
        return &file;
    }
    file.text = QString::fromUtf8(content);
    parse(content, file);
    return &file;
}

std::vector<const TextNode*> tagsOf(const TextFile& file, std::initializer_list<const char*> tags)
{
    std::vector<const TextNode*> found;
    std::copy_if(file.tags.begin(), file.tags.end(), std::back_inserter(found),
                 [&tags](const TextNode* node) { return node->IsAnyOf(tags); });
    return found;
}

} // namespace schemadoctor
