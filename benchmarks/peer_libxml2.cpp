#include <memory>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlschemas.h>

#include <QFile>

#include "peers.h"

namespace {

template <class Object, void (*release)(Object*)> struct Releaser
{
    void operator()(Object* object) const { release(object); }
};

template <class Object, void (*release)(Object*)> using Held = std::unique_ptr<Object, Releaser<Object, release>>;

const xmlChar* text(const QByteArray& bytes)
{
    return reinterpret_cast<const xmlChar*>(bytes.constData());
}

} // namespace

bool writeByLibxml2(const PeerInput& input)
{
    const Held<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt> parser(
        xmlSchemaNewParserCtxt(QFile::encodeName(input.schema).constData()));
    const Held<xmlSchema, xmlSchemaFree> schema(xmlSchemaParse(parser.get()));
    if (!schema) {
        return false;
    }
    const Held<xmlDoc, xmlFreeDoc> document(xmlNewDoc(text("1.0")));
    xmlNode* const root = xmlNewDocNode(document.get(), nullptr, text("Survey"), nullptr);
    xmlDocSetRootElement(document.get(), root);
    xmlNode* container = root;
    for (const ReportElement& element : input.elements) {
        if (element.text.isEmpty()) {
            container = xmlNewChild(root, nullptr, text(element.name.toUtf8()), nullptr);
        } else {
            xmlNewTextChild(container, nullptr, text(element.name.toUtf8()), text(element.text.toUtf8()));
        }
    }
    const Held<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt> validator(xmlSchemaNewValidCtxt(schema.get()));
    const bool isValid = xmlSchemaValidateDoc(validator.get(), document.get()) == 0;
    return xmlSaveFormatFileEnc(QFile::encodeName(input.report).constData(), document.get(), "UTF-8", 1) > 0 && isValid;
}
