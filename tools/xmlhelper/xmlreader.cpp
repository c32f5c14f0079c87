#include "xmlreader.h"

#include <utility>

#include <QDomDocument>
#include <QTextStream>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include "contentfile_p.h"
#include "domextent_p.h"
#include "elementsearch_p.h"
#include "guardedsource_p.h"
#include "limits_p.h"
#include "nestingguard_p.h"
#include "tagscanner_p.h"
#include "tracing_p.h"
#include "xmlcontenthandler.h"
#include "xmlserialiser_p.h"

QT_WARNING_DISABLE_DEPRECATED

/// Content whose nodes receivers may hold. The readers that keep it leave it where it is; only ReleaseContent() of the
/// last one deletes it.
struct KeptContent
{
    std::shared_ptr<void> content;
};

/// The parse that uses a content handler, and what its observer has asked of the reader meanwhile.
struct ReaderRun
{
    const XMLReader* reader = nullptr; ///< the one that parses; null while none does
    bool isContentReleased = false;
    std::function<void(XMLReader&)> setContent; ///< the last one wins
};

namespace {

constexpr int NoErrorPosition = -100;
constexpr int DocumentIndent = 1;
constexpr int NodeIndent = 0;

void traceNesting()
{
    trace(QStringLiteral("XMLReader: The content is nested deeper than %1 elements!").arg(limits().elementNesting),
          "xmlreader", __LINE__);
}

/// Whether the file has nothing but elements and texts in it, and these within the limit.
bool isPlainWithinLimit(QFile& file)
{
    const bool isPlain = file.open(QIODevice::ReadOnly) && isSurelyNestedWithin(limits().elementNesting, file);
    file.close();
    return isPlain;
}

/// What a look at a file with more than elements and texts in it tells.
struct Look
{
    bool isTooDeep = false;
    bool isWithinLimits = false; ///< Qt can read it into a document without running out of stack, memory or time
};

Look lookAt(QFile& file)
{
    QXmlDefaultHandler nobody;
    NestingGuard guard(&nobody);
    QXmlSimpleReader parser;
    parser.setContentHandler(&guard);
    GuardedSource source(&file);
    source.Parse(parser);
    file.close();
    return {guard.IsExceeded(), !guard.IsExceeded() && source.GetRefusal().isEmpty()};
}

/// The text of a document, a fragment or a node; nothing when it is nested too deeply or too long.
std::optional<QString> textOf(const QDomNode& content)
{
    if (extentOf(content).levels > limits().elementNesting) {
        traceNesting();
        return std::nullopt;
    }
    QString text;
    QTextStream stream(&text);
    const bool isWhole = serialise(content, stream, content.isDocument() ? DocumentIndent : NodeIndent);
    return isWhole ? std::make_optional(text) : std::nullopt;
}

} // namespace

XMLReader::XMLReader(IXMLHelper* pCallback, XmlContentHandler* handler)
    : m_pContentHandler(std::shared_ptr<XmlContentHandler>(), handler)
    , m_pCallback(pCallback)
    , m_bNode(false)
    , m_bFragment(false)
    , m_bDocument(false)
    , m_bFile(false)
    , m_bOwnsHandler(false)
    , m_pRun(std::make_shared<ReaderRun>())
    , m_bLookAgain(false)
{
    checkObserver(pCallback, "XMLReader", "xmlreader", 41);
}

XMLReader::XMLReader(const XMLReader& other) = default;
XMLReader& XMLReader::operator=(const XMLReader& other) = default;
XMLReader::~XMLReader() = default;

bool XMLReader::SetXmlContent(QString fileName)
{
    if (isPutOff([fileName](XMLReader& reader) { reader.SetXmlContent(fileName); })) {
        return true;
    }
    ErasePointerAndSetFlags();
    m_pFile = std::make_shared<ContentFile>(fileName);
    m_pDocument = std::make_shared<QDomDocument>();
    keep(m_pDocument);
    const bool isPlain = isPlainWithinLimit(*m_pFile);
    bool isRead = false;
    if ((isPlain || lookAt(*m_pFile).isWithinLimits) && m_pFile->open(QIODevice::ReadOnly)) {
        QString errorMessage;
        int errorLine = NoErrorPosition;
        int errorColumn = NoErrorPosition;
        isRead = m_pDocument->setContent(m_pFile.get(), &errorMessage, &errorLine, &errorColumn);
        m_pFile->close();
    }
    m_bLookAgain = isPlain || !isRead;
    InitHandler(m_pCallback, m_pDocument.get());
    m_bFile = true;
    return true;
}

bool XMLReader::SetXmlContent(QDomDocument document)
{
    setDocument(std::make_shared<QDomDocument>(document));
    return true;
}

bool XMLReader::SetXmlContent(QDomDocument* document)
{
    setDocument(taken(document));
    return true;
}

bool XMLReader::SetXmlContent(QDomDocumentFragment fragment)
{
    setPart(fragment, m_pFragment, m_bFragment);
    return true;
}

bool XMLReader::SetXmlContent(QDomNode node)
{
    setPart(node, m_pNode, m_bNode);
    return true;
}

void XMLReader::ReleaseContent()
{
    if (isParsing()) {
        m_pRun->isContentReleased = true;
        m_pRun->setContent = nullptr;
        return;
    }
    ErasePointerAndSetFlags();
    m_pSearchResults.reset();
    m_pParser.reset();
    m_pNestingGuard.reset();
    if (m_bOwnsHandler) {
        m_pContentHandler.reset();
        m_bOwnsHandler = false;
    }
    for (const auto& kept : m_keptContent) {
        if (kept.second.use_count() == 1) {
            delete kept.second.get();
        }
    }
    m_keptContent.clear();
}

bool XMLReader::ParseXml()
{
    if (m_pRun->reader) {
        trace(QStringLiteral("XMLReader: Content cannot be parsed while it is being parsed!"), "xmlreader", __LINE__);
        return false;
    }
    if (!m_pCallback) {
        return false;
    }
    const std::shared_ptr<ReaderRun> run = m_pRun; // an event may assign another reader
    run->reader = this;
    bool isParsed = false;
    try {
        isParsed = parseContent();
    } catch (...) { // of the observer, or memory runs out
        end(*run);
        throw;
    }
    end(*run);
    return isParsed;
}

std::list<QDomNode>* XMLReader::GetElement(QString elementName, QString startElementName)
{
    renewResults();
    if (!m_bFile && !m_bDocument && !m_bFragment && !m_bNode) {
        return m_pSearchResults.get(); // The empty name is that of the null element, too.
    }
    QDomElement start = rootElement();
    if (!startElementName.isEmpty()) {
        start = SearchStartNode(startElementName, start).toElement();
        if (start.isNull()) {
            return m_pSearchResults.get();
        }
    }
    SearchNodes(elementName, start);
    return m_pSearchResults.get();
}

std::list<QDomNode>* XMLReader::SearchBelowCurrentElement(QString elementName)
{
    renewResults();
    const QDomElement current = m_pContentHandler ? m_pContentHandler->GetCurrentElement() : QDomElement();
    if (!current.isNull()) {
        SearchNodes(elementName, current);
    }
    return m_pSearchResults.get();
}

void XMLReader::ErasePointerAndSetFlags()
{
    m_pNode.reset();
    m_bNode = false;
    m_pFragment.reset();
    m_bFragment = false;
    m_pDocument.reset();
    m_bDocument = false;
    m_pFile.reset();
    m_bFile = false;
}

void XMLReader::InitHandler(IXMLHelper* pCallback, QDomDocument* document)
{
    if (!pCallback) {
        return;
    }
    if (!m_pContentHandler) {
        m_pContentHandler = std::make_shared<XmlContentHandler>(pCallback, document);
        m_bOwnsHandler = true;
        m_pRun = std::make_shared<ReaderRun>();
    }
    m_pNestingGuard = std::make_shared<NestingGuard>(m_pContentHandler.get());
    m_pParser = std::make_shared<QXmlSimpleReader>();
    m_pParser->setContentHandler(m_pNestingGuard.get());
    m_pParser->setErrorHandler(m_pContentHandler.get());
}

QDomNode XMLReader::SearchStartNode(QString name, QDomElement element)
{
    return ElementSearch(topNode()).FirstMatch(name, element);
}

std::list<QDomNode> XMLReader::SearchNodes(QString name, QDomElement element)
{
    ElementSearch(topNode()).AppendMatches(name, element, *m_pSearchResults);
    return *m_pSearchResults;
}

bool XMLReader::isParsing() const
{
    return m_pRun->reader == this;
}

/// Whether a change of the content comes from inside an event: it is then made when the parse has returned, in the
/// place of an earlier one.
bool XMLReader::isPutOff(const std::function<void(XMLReader&)>& change)
{
    if (isParsing()) {
        m_pRun->setContent = change;
    }
    return isParsing();
}

void XMLReader::end(ReaderRun& run)
{
    const ReaderRun ended = std::exchange(run, ReaderRun());
    if (ended.isContentReleased) {
        ReleaseContent();
    }
    if (ended.setContent) {
        ended.setContent(*this);
    }
}

/// The owner of a document that was given by its pointer, maybe a second time.
std::shared_ptr<QDomDocument> XMLReader::taken(QDomDocument* document)
{
    const auto kept = m_keptContent.find(document);
    if (kept != m_keptContent.end()) {
        return std::static_pointer_cast<QDomDocument>(kept->second->content);
    }
    const std::shared_ptr<QDomDocument> owner(document);
    keep(owner);
    return owner;
}

void XMLReader::setDocument(const std::shared_ptr<QDomDocument>& document)
{
    if (isPutOff([document](XMLReader& reader) { reader.setDocument(document); })
        || (m_bDocument && document == m_pDocument)) {
        return;
    }
    ErasePointerAndSetFlags();
    if (document) {
        m_pDocument = document;
        keep(document);
        InitHandler(m_pCallback, document.get());
        m_bDocument = true;
    }
}

/// Takes a fragment or a node, which @p owned and @p flag stand for.
template <class Part> void XMLReader::setPart(const Part& part, std::shared_ptr<Part>& owned, bool& flag)
{
    if (isPutOff([part](XMLReader& reader) { reader.SetXmlContent(part); })) {
        return;
    }
    ErasePointerAndSetFlags();
    owned = std::make_shared<Part>(part);
    keep(owned);
    const auto converted = std::make_shared<QDomDocument>(part.toDocument());
    keep(converted);
    InitHandler(m_pCallback, converted.get());
    flag = true;
}

/// Nodes do not keep their document alive, so what they belong to must stay as long as receivers may hold them.
void XMLReader::keep(const std::shared_ptr<void>& content)
{
    if (content && m_keptContent.count(content.get()) == 0) {
        const auto leaveItThere = [](KeptContent*) {};
        m_keptContent.emplace(content.get(), std::shared_ptr<KeptContent>(new KeptContent {content}, leaveItThere));
    }
}

bool XMLReader::parseContent()
{
    if (m_bDocument) {
        return parseText(textOf(*m_pDocument));
    }
    if (m_bFile) {
        return parseFile();
    }
    if (m_bNode) {
        return parseText(textOf(*m_pNode));
    }
    return m_bFragment && parseText(textOf(*m_pFragment));
}

bool XMLReader::parseFile()
{
    const std::shared_ptr<QFile> file = m_pFile; // an event may assign another reader
    // The input source reads from where the file stands, and leaves it open.
    file->close();
    if (isPlainWithinLimit(*file)) {
        return parse([&](QXmlSimpleReader& parser) { return parser.parse(QXmlInputSource(file.get())); });
    }
    if (m_bLookAgain && lookAt(*file).isTooDeep) {
        traceNesting();
        return false;
    }
    GuardedSource source(file.get());
    return parseGuarded(source);
}

bool XMLReader::parseText(const std::optional<QString>& text)
{
    if (!text) {
        return false;
    }
    if (GuardedSource::IsNeededFor(*text)) {
        GuardedSource source(*text);
        return parseGuarded(source);
    }
    QXmlInputSource source;
    source.setData(*text);
    return parse([&](QXmlSimpleReader& parser) { return parser.parse(source); });
}

bool XMLReader::parse(const std::function<bool(QXmlSimpleReader&)>& read)
{
    // An event may assign another reader.
    const std::shared_ptr<XmlContentHandler> handler = m_pContentHandler;
    const std::shared_ptr<NestingGuard> guard = m_pNestingGuard;
    const std::shared_ptr<QXmlSimpleReader> parser = m_pParser;
    const bool isParsed = read(*parser);
    if (guard->IsExceeded()) {
        traceNesting();
    }
    return isParsed;
}

bool XMLReader::parseGuarded(GuardedSource& source)
{
    const bool isParsed = parse([&](QXmlSimpleReader& parser) { return source.Parse(parser); });
    if (!source.GetRefusal().isEmpty()) {
        trace(source.GetRefusal(), "xmlreader", __LINE__);
    }
    return isParsed;
}

QDomElement XMLReader::rootElement() const
{
    if (m_bFile || m_bDocument) {
        return m_pDocument->documentElement();
    }
    if (m_bFragment) {
        return m_pFragment->firstChild().toElement();
    }
    return m_bNode ? m_pNode->firstChild().toElement() : QDomElement();
}

QDomNode XMLReader::topNode() const
{
    if (m_bFile || m_bDocument) {
        return m_pDocument->lastChild();
    }
    if (m_bFragment) {
        return m_pFragment->firstChild();
    }
    return m_bNode ? *m_pNode : QDomNode();
}

void XMLReader::renewResults()
{
    m_pSearchResults = std::make_shared<std::list<QDomNode>>();
}
