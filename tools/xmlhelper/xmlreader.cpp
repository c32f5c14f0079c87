#include "xmlreader.h"

#include <QDomDocument>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QTextStream>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include "contentfile.h"
#include "domextent.h"
#include "elementsearch.h"
#include "guardedsource.h"
#include "limits_p.h"
#include "nestingguard.h"
#include "tagscanner.h"
#include "textsinpieces.h"
#include "tracing.h"
#include "xmlcontenthandler.h"

QT_WARNING_DISABLE_DEPRECATED

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

/// Whether Qt can read the file into a document without running out of stack, memory or time.
bool isWithinLimits(QFile& file)
{
    if (isPlainWithinLimit(file)) {
        return true;
    }
    QXmlDefaultHandler nobody;
    NestingGuard guard(&nobody);
    QXmlSimpleReader parser;
    parser.setContentHandler(&guard);
    GuardedSource source(&file);
    source.Parse(parser);
    file.close();
    return !guard.IsExceeded() && source.GetRefusal().isEmpty();
}

QString savedText(const QDomDocument& document)
{
    return document.toString(DocumentIndent);
}

QString savedText(const QDomNode& node)
{
    QString text;
    QTextStream stream(&text);
    node.save(stream, NodeIndent);
    stream.flush();
    return text;
}

/// The text of a document, a fragment or a node; nothing when it is nested too deeply.
template <class Content> std::optional<QString> textOf(const Content& content)
{
    const DomExtent extent = extentOf(content);
    if (extent.levels > limits().elementNesting) {
        traceNesting();
        return std::nullopt;
    }
    std::optional<TextsInPieces> pieces;
    if (isLongText(extent.longestText)) {
        pieces.emplace(content);
    }
    return savedText(content);
}

template <class Content> void release(Content*& content, bool& flag)
{
    delete content;
    content = nullptr;
    flag = false;
}

} // namespace

XMLReader::XMLReader(IXMLHelper* pCallback, XmlContentHandler* handler)
    : m_pContentHandler(handler)
    , m_pParser(nullptr)
    , m_pCallback(pCallback)
    , m_pDocument(nullptr)
    , m_pFile(nullptr)
    , m_pSearchResults(nullptr)
    , m_pFragment(nullptr)
    , m_pNode(nullptr)
    , m_bNode(false)
    , m_bFragment(false)
    , m_bDocument(false)
    , m_bFile(false)
    , m_bOwnsHandler(false)
    , m_pNestingGuard(nullptr)
    , m_bParsing(false)
    , m_pBoundDocument(nullptr)
{
    checkObserver(pCallback, "XMLReader", "xmlreader", 41);
}

XMLReader::XMLReader(const XMLReader& other) = default;
XMLReader& XMLReader::operator=(const XMLReader& other) = default;

XMLReader::~XMLReader()
{
    if (m_bOwnsHandler) {
        delete m_pContentHandler;
    }
    delete m_pParser;
    delete m_pNestingGuard;
    delete m_pSearchResults;
    ErasePointerAndSetFlags();
    for (const QDomDocument* document : m_keptDocuments) {
        delete document;
    }
}

bool XMLReader::SetXmlContent(QString fileName)
{
    if (isRefusedWhileParsing()) {
        return false;
    }
    ErasePointerAndSetFlags();
    m_pFile = new ContentFile(fileName);
    m_bFile = true;
    m_pDocument = new QDomDocument;
    m_keptDocuments.push_back(m_pDocument);
    if (isWithinLimits(*m_pFile) && m_pFile->open(QIODevice::ReadOnly)) {
        QString errorMessage;
        int errorLine = NoErrorPosition;
        int errorColumn = NoErrorPosition;
        m_pDocument->setContent(m_pFile, &errorMessage, &errorLine, &errorColumn);
        m_pFile->close();
    }
    InitHandler(m_pCallback, m_pDocument);
    return true;
}

bool XMLReader::SetXmlContent(QDomDocument document)
{
    if (isRefusedWhileParsing()) {
        return false;
    }
    return SetXmlContent(new QDomDocument(document));
}

bool XMLReader::SetXmlContent(QDomDocument* document)
{
    if (isRefusedWhileParsing()) {
        return false;
    }
    if (m_bDocument && document == m_pDocument) {
        return true;
    }
    ErasePointerAndSetFlags();
    if (document) {
        m_pDocument = document;
        m_bDocument = true;
        InitHandler(m_pCallback, document);
    }
    return true;
}

bool XMLReader::SetXmlContent(QDomDocumentFragment fragment)
{
    if (isRefusedWhileParsing()) {
        return false;
    }
    ErasePointerAndSetFlags();
    m_pFragment = new QDomDocumentFragment(fragment);
    m_bFragment = true;
    auto* const converted = new QDomDocument(fragment.toDocument());
    InitHandler(m_pCallback, converted);
    releaseDocument(converted);
    return true;
}

bool XMLReader::SetXmlContent(QDomNode node)
{
    if (isRefusedWhileParsing()) {
        return false;
    }
    ErasePointerAndSetFlags();
    m_pNode = new QDomNode(node);
    m_bNode = true;
    auto* const converted = new QDomDocument(node.toDocument());
    InitHandler(m_pCallback, converted);
    releaseDocument(converted);
    return true;
}

bool XMLReader::ParseXml()
{
    if (isRefusedWhileParsing() || !m_pCallback) {
        return false;
    }
    if (m_bDocument) {
        return parseText(textOf(*m_pDocument));
    }
    if (m_bFile) {
        return parseFile();
    }
    if (m_bNode) {
        return parseText(textOf(*m_pNode));
    }
    if (m_bFragment) {
        return parseText(textOf(*m_pFragment));
    }
    return false;
}

std::list<QDomNode>* XMLReader::GetElement(QString elementName, QString startElementName)
{
    renewResults();
    if (!m_bFile && !m_bDocument && !m_bFragment && !m_bNode) {
        return m_pSearchResults; // The empty name is that of the null element, too.
    }
    QDomElement start = rootElement();
    if (!startElementName.isEmpty()) {
        start = SearchStartNode(startElementName, start).toElement();
        if (start.isNull()) {
            return m_pSearchResults;
        }
    }
    SearchNodes(elementName, start);
    return m_pSearchResults;
}

std::list<QDomNode>* XMLReader::SearchBelowCurrentElement(QString elementName)
{
    renewResults();
    const QDomElement current = m_pContentHandler ? m_pContentHandler->GetCurrentElement() : QDomElement();
    if (!current.isNull()) {
        SearchNodes(elementName, current);
    }
    return m_pSearchResults;
}

void XMLReader::ErasePointerAndSetFlags()
{
    if (m_bNode) {
        release(m_pNode, m_bNode);
    }
    if (m_bFragment) {
        release(m_pFragment, m_bFragment);
    }
    if (m_bDocument) {
        releaseDocument(m_pDocument);
        m_pDocument = nullptr;
        m_bDocument = false;
    }
    if (m_bFile) {
        m_pFile->close();
        release(m_pFile, m_bFile);
    }
}

void XMLReader::InitHandler(IXMLHelper* pCallback, QDomDocument* document)
{
    if (!pCallback) {
        return;
    }
    if (!m_pContentHandler) {
        m_pContentHandler = new XmlContentHandler(pCallback, document);
        m_bOwnsHandler = true;
        m_pBoundDocument = document;
    }
    delete m_pParser;
    delete m_pNestingGuard;
    m_pNestingGuard = new NestingGuard(m_pContentHandler);
    m_pParser = new QXmlSimpleReader;
    m_pParser->setContentHandler(m_pNestingGuard);
    m_pParser->setErrorHandler(m_pContentHandler);
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

bool XMLReader::isRefusedWhileParsing() const
{
    if (m_bParsing) {
        trace(QStringLiteral("XMLReader: Content cannot be set or parsed while it is being parsed!"), "xmlreader",
              __LINE__);
    }
    return m_bParsing;
}

/// Deletes a document whose content is replaced, unless the content handler still walks it.
void XMLReader::releaseDocument(QDomDocument* document)
{
    if (document == m_pBoundDocument) {
        m_keptDocuments.push_back(document);
    } else {
        delete document;
    }
}

bool XMLReader::parseFile()
{
    // The input source reads from where the file stands, and leaves it open.
    m_pFile->close();
    const bool isPlain = isPlainWithinLimit(*m_pFile);
    if (isPlain) {
        return parse(QXmlInputSource(m_pFile));
    }
    GuardedSource source(m_pFile);
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
    return parse(source);
}

bool XMLReader::parse(const QXmlInputSource& source)
{
    const QScopedValueRollback<bool> parsing(m_bParsing, true); // memory may run out
    const bool isParsed = m_pParser->parse(source);
    if (m_pNestingGuard->IsExceeded()) {
        traceNesting();
    }
    return isParsed;
}

bool XMLReader::parseGuarded(GuardedSource& source)
{
    source.Watch(*m_pParser);
    const auto leave = qScopeGuard([&] { source.Leave(*m_pParser); });
    const bool isParsed = parse(source);
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
    delete m_pSearchResults;
    m_pSearchResults = new std::list<QDomNode>;
}
