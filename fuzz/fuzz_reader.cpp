#include <algorithm>
#include <list>
#include <utility>
#include <vector>

#include <QDomDocument>
#include <QStringList>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlreader.h>

#include "fuzzing.h"
#include "fuzzinput.h"

// The first part is the content. The bytes of the second choose its form and what is searched.

namespace {

const Vocabulary vocabulary {
    "a",
    {"a", "b", "c", "d", "e:f", "dummy"},
    {"a='1'", "b=''", "c='&lt;'", "xmlns='urn:x'", "xmlns:e='urn:e'", "e:a='x'"},
    {"text", " ", "\n", "<!--comment-->", "<?b data?>", "<![CDATA[data]]>", "&amp;", "&#x41;", "]]"},
};

constexpr std::size_t MaxSearches = 4;

/// A search as it is told: by recursion.
void searchPlainly(const QString& name, const QDomElement& element, const QDomNode& top, std::list<QDomNode>& found)
{
    if (element.tagName() == name) {
        found.push_back(top);
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == name) {
            found.push_back(child);
        } else if (child.isElement()) {
            searchPlainly(name, child.toElement(), top, found);
        }
    }
}

QDomNode findStartPlainly(const QString& name, const QDomElement& element, const QDomNode& top)
{
    if (element.tagName() == name) {
        return top;
    }
    QDomNode found;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        found = child;
        if (child.nodeName() == name) {
            return child;
        }
        if (child.isElement()) {
            found = findStartPlainly(name, child.toElement(), top);
            if (found.isElement()) {
                return found;
            }
        }
    }
    return found;
}

/// The content whose every start tag is promised to be paired with its own element: elements hold elements only, or
/// one text, and none is nested in one of its name.
bool isPairable(const QDomElement& element, const QStringList& ancestors)
{
    const QStringList names = ancestors + QStringList(element.tagName());
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const bool isOnlyText = child.isText() && element.firstChild() == element.lastChild();
        if (!isOnlyText
            && !(child.isElement() && !names.contains(child.nodeName()) && isPairable(child.toElement(), names))) {
            return false;
        }
    }
    return true;
}

/// Remembers the events, and searches the element of a begin event for what it holds first.
class Observer : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        types.push_back(event->GetType());
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            auto* const begin = static_cast<ElemBeginEvent*>(event);
            names.append(begin->GetElementName());
            nodes.push_back(begin->GetElementNode());
            if (nodes.size() <= MaxSearches) {
                searchBelow(nodes.back());
            }
        }
    }

    auto Count(XmlEvent::type type) const { return std::count(types.begin(), types.end(), type); }
    bool operator==(const Observer& other) const
    {
        return types == other.types && names == other.names && nodes == other.nodes;
    }

    XMLReader* reader = nullptr;
    std::vector<XmlEvent::type> types;
    QStringList names;
    std::vector<QDomNode> nodes;

private:
    void searchBelow(const QDomNode& node)
    {
        std::list<QDomNode> expected;
        if (node.isElement()) {
            searchPlainly(node.firstChild().nodeName(), node.toElement(), node.ownerDocument().lastChild(), expected);
        }
        require(*reader->SearchBelowCurrentElement(node.firstChild().nodeName()) == expected,
                "a search below the current element finds what a plain recursion finds");
    }
};

enum Form { File, Document, DocumentPointer, Fragment, Node, FormCount };

/// The form's top node and the element at which its searches start.
struct Content
{
    QDomNode top;
    QDomElement root;
};

Content setContent(XMLReader& reader, int form, QDomDocument document)
{
    QDomDocumentFragment fragment = document.createDocumentFragment();
    fragment.appendChild(document.documentElement().cloneNode());
    const QDomNode node = document.documentElement();
    switch (form) {
    case File:
        reader.SetXmlContent(scratchFile(QStringLiteral("content.xml")));
        return {};
    case Document:
        reader.SetXmlContent(document);
        return {document.lastChild(), document.documentElement()};
    case DocumentPointer:
        reader.SetXmlContent(new QDomDocument(document));
        return {document.lastChild(), document.documentElement()};
    case Fragment:
        reader.SetXmlContent(fragment);
        return {fragment.firstChild(), fragment.firstChildElement()};
    default:
        reader.SetXmlContent(node);
        return {node, node.firstChild().toElement()};
    }
}

/// The names of some nodes of the content.
QStringList someNames(const QDomElement& root)
{
    QStringList names {QStringLiteral("#text")};
    for (QDomNode node = root; !node.isNull() && names.size() < 8; node = node.firstChild()) {
        names << node.nodeName() << node.lastChild().nodeName() << node.nextSibling().nodeName();
    }
    return names;
}

void checkSearches(XMLReader& reader, const Content& content, FuzzInput& input)
{
    const QStringList names = someNames(content.root);
    for (int search = 0; search < 3; ++search) {
        const QString& name = names.at(input.Choice(int(names.size())));
        const QString start = (QStringList(names) << QString()).at(input.Choice(int(names.size()) + 1));
        const QDomElement first
            = start.isEmpty() ? content.root : findStartPlainly(start, content.root, content.top).toElement();
        std::list<QDomNode> expected;
        if (start.isEmpty() || !first.isNull()) {
            searchPlainly(name, first, content.top, expected);
        }
        require(*reader.GetElement(name, start) == expected, "a search finds what a plain recursion finds");
    }
}

void checkEvents(const Observer& observer, int form)
{
    require(observer.Count(XmlEvent::EVENT_DOC_BEGIN) == 1 && observer.Count(XmlEvent::EVENT_DOC_END) == 1,
            "a document begins and ends once");
    require(form == Fragment || form == Node
                || observer.Count(XmlEvent::EVENT_ELEM_BEGIN) == observer.Count(XmlEvent::EVENT_ELEM_END),
            "every element that begins ends");
}

void checkPairs(const Observer& observer)
{
    for (std::size_t i = 0; i < observer.nodes.size(); ++i) {
        require(observer.nodes[i].nodeName() == observer.names.at(int(i)), "a start tag is paired with its element");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const QByteArray xml = xmlOf(input.Part(), vocabulary);
    writeScratchFile(QStringLiteral("content.xml"), xml);
    QDomDocument document;
    const bool isPaired
        = document.setContent(xml) && document.doctype().isNull() && isPairable(document.documentElement(), {});

    Observer observer;
    XMLReader reader(&observer, nullptr);
    observer.reader = &reader;
    const int form = input.Choice(FormCount);
    Content content = setContent(reader, form, document);
    const bool isParsed = reader.ParseXml();
    if (isParsed) {
        checkEvents(observer, form);
    }
    if (isPaired && form <= DocumentPointer) {
        checkPairs(observer);
    }
    if (form == File && !observer.nodes.empty()) {
        const QDomDocument own = observer.nodes.front().ownerDocument();
        content = {own.lastChild(), own.documentElement()};
    }
    if (!content.root.isNull()) {
        checkSearches(reader, content, input);
    }

    Observer again;
    std::swap(observer, again);
    observer.reader = &reader;
    require(reader.ParseXml() == isParsed && observer == again, "a second parse gives the same events");
    reader.ReleaseContent();
    return 0;
}
