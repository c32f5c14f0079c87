#include <memory>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <QString>

#include "peers.h"

using namespace xercesc;

namespace {

/// Both use UTF-16.
const XMLCh* text(const QString& string)
{
    return reinterpret_cast<const XMLCh*>(string.utf16());
}

template <class Object> struct Releaser
{
    void operator()(Object* object) const { object->release(); }
};

template <class Object> using Held = std::unique_ptr<Object, Releaser<Object>>;

class ErrorCounter : public DefaultHandler
{
public:
    void error(const SAXParseException&) override { ++m_errors; }
    void fatalError(const SAXParseException&) override { ++m_errors; }

    bool IsClean() const { return m_errors == 0; }

private:
    int m_errors = 0;
};

Held<DOMDocument> build(DOMImplementation* implementation, const std::vector<ReportElement>& elements)
{
    Held<DOMDocument> document(implementation->createDocument(nullptr, text(QStringLiteral("Survey")), nullptr));
    DOMElement* const root = document->getDocumentElement();
    DOMElement* container = root;
    for (const ReportElement& element : elements) {
        DOMElement* const created = document->createElement(text(element.name));
        if (element.text.isEmpty()) {
            root->appendChild(created);
            container = created;
        } else {
            container->appendChild(created);
            created->appendChild(document->createTextNode(text(element.text)));
        }
    }
    return document;
}

void serialise(DOMImplementation* implementation, const DOMDocument& document, const QString& path)
{
    const Held<DOMLSSerializer> serialiser(static_cast<DOMImplementationLS*>(implementation)->createLSSerializer());
    serialiser->getDomConfig()->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    const Held<DOMLSOutput> output(static_cast<DOMImplementationLS*>(implementation)->createLSOutput());
    LocalFileFormatTarget target(text(path));
    output->setByteStream(&target);
    output->setEncoding(text(QStringLiteral("UTF-8")));
    serialiser->write(&document, output.get());
}

} // namespace

bool writeByXerces(const PeerInput& input)
{
    static const bool isInitialised = [] {
        XMLPlatformUtils::Initialize();
        return true;
    }();
    Q_UNUSED(isInitialised)

    ErrorCounter errors;
    const std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader());
    reader->setErrorHandler(&errors);
    reader->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
    reader->setFeature(XMLUni::fgXercesLoadSchema, false);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader->setFeature(XMLUni::fgXercesDynamic, false);
    reader->setFeature(XMLUni::fgXercesSchema, true);
    if (!reader->loadGrammar(text(input.schema), Grammar::SchemaGrammarType, true)) {
        return false;
    }
    DOMImplementation* const implementation
        = DOMImplementationRegistry::getDOMImplementation(text(QStringLiteral("LS")));
    const Held<DOMDocument> document = build(implementation, input.elements);
    serialise(implementation, *document, input.report);
    reader->parse(text(input.report));
    return errors.IsClean();
}
