#ifndef XMLHELPER_XMLREADER_H
#define XMLHELPER_XMLREADER_H

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>

#include <QString>

#include <xmlhelper/xmlhelperexport.h>

class GuardedSource;
class IXMLHelper;
class NestingGuard;
class QDomDocument;
class QDomDocumentFragment;
class QDomElement;
class QDomNode;
class QFile;
class QXmlSimpleReader;
class XmlContentHandler;
struct KeptContent;
struct ReaderRun;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // QXmlSimpleReader: Qt keeps the SAX classes, with a warning.

/// Reads XML: delivers its structure to an observer as events, and finds elements in it by name.
///
/// Give the reader content in one of five forms with SetXmlContent(), then call ParseXml() any number of times: the
/// observer receives DocBeginEvent, ElemBeginEvent and ElemEndEvent for the elements in document order, and
/// DocEndEvent. Begin events carry the element of the content's DOM for the file and document forms, and a null
/// node for fragments and nodes, unless the node is itself a document. Their text is empty: it is read from the
/// node. During and after a parse GetElement() and SearchBelowCurrentElement() search the content.
///
/// The nodes in the events, and the current element of the searches, come from the content that was set first: the
/// reader stays bound to that document when other content is set later. Use a reader for each content, or call
/// ReleaseContent() between them.
///
/// Nodes may be kept: whatever content a reader has been given stays when it is replaced and when the reader is
/// gone, because Qt's nodes do not keep their document. The memory comes back by ReleaseContent() only, which a
/// program that reads without end calls whenever it needs no node of the content any more.
///
/// Everything runs on the caller's thread; events arrive while ParseXml() is on the stack. From within such an
/// event the searches may be used. Content that is set there is taken, and becomes the content when the parse has
/// returned, by an exception too; until then the searches see the content that is being parsed. ParseXml() is
/// refused there (false) with a trace. The reader must not be destroyed there.
///
/// A reader made with a null observer traces "XMLReader: pCallback is NULL!" and is unusable: ParseXml() gives
/// false.
///
/// Copies are shallow: a copy shares handler, parser and content with its source until either is given other
/// content. Each of them may be used, be given content and be destroyed, whatever becomes of the other; only while
/// one of them parses, the others that share its handler cannot parse.
class XMLHELPER_EXPORT XMLReader
{
public:
    /// @param pCallback  the observer; not owned, must outlive the reader
    /// @param handler    null for clients: the reader makes and owns its own
    XMLReader(IXMLHelper* pCallback, XmlContentHandler* handler);
    /// Copies every member as it is, and shares what is behind it.
    /// @param other  copied
    XMLReader(const XMLReader& other);
    /// Copies every member as it is, and shares what is behind it. What this reader kept stays for good.
    /// @param other  copied
    /// @return this object
    XMLReader& operator=(const XMLReader& other);

    /// Releases handler, parser, file and the last result list, and no document.
    virtual ~XMLReader();

    /// Takes the content of a file. The file is read into a document now and parsed again by every ParseXml(). Content
    /// nested deeper than 512 elements, or whose document type asks for too much, is not read into a document, and
    /// ParseXml() fails on it. Only regular files are opened; anything else counts as missing. A file that is set from
    /// within an event is read when it becomes the content.
    ///
    /// @param fileName  the file; back slashes separate folders on every platform
    /// @return true, whatever becomes of the file: a missing or malformed one is noticed by ParseXml() only
    bool SetXmlContent(QString fileName);

    /// Takes a document, sharing its nodes.
    /// @param document  the content
    /// @return true
    bool SetXmlContent(QDomDocument document);

    /// Takes a document and its ownership: the object is the reader's from now on, and ReleaseContent() deletes it.
    /// @param document  the content; null leaves the reader without any
    /// @return true
    bool SetXmlContent(QDomDocument* document);

    /// Takes a document fragment, sharing its nodes. Only a fragment with a single top element can be parsed: XML knows
    /// one root.
    /// @param fragment  the content
    /// @return true
    bool SetXmlContent(QDomDocumentFragment fragment);

    /// Takes a node, sharing it.
    /// @param node  the content
    /// @return true
    bool SetXmlContent(QDomNode node);

    /// Gives back all content that the reader keeps, the handler that walks it and the last result list. Nodes of it
    /// must not be used any more, unless they are kept by the program or by a copy of the reader. The reader is then
    /// without content, and like a new one for the content to come. From within an event this happens when the parse
    /// has returned, before content that is set behind it.
    void ReleaseContent();

    /// Parses the content and delivers its events; for all forms but the file the content is serialised first, so that
    /// changes since the last parse are seen. Content that is nested deeper than 512 elements sends no event, but for a
    /// file that held more than tags and texts when it was set and has become so since: it sends those down to there.
    ///
    /// @return false when no content is set, from within an event, when the content is nested too deeply, when its
    ///         document type declares more than 1,000 entities, lets them become more than 2,000,000 characters or
    ///         nests more than 512 parentheses, all but the first with a trace, or when the parser fails on it. Events
    ///         delivered before the failure stand; no error event is sent.
    bool ParseXml();

    /// Finds nodes by name, in document order. Matches inside a match are not reported. Where the root, or the start
    /// element, has that name itself, the content's top node is reported first.
    ///
    /// @param elementName       the name to find; "#text" finds texts
    /// @param startElementName  search below the first element of this name; empty: in the whole content; of a fragment
    ///                          or a node only its first child is searched, if that is an element
    /// @return the reader's own list, never null: do not delete it. The next search on this reader, ReleaseContent()
    ///         and the reader's end delete it; the nodes in it are handles that may be kept.
    std::list<QDomNode>* GetElement(QString elementName, QString startElementName);

    /// Finds the nodes named @p elementName below the element of the begin event delivered last or, once an element
    /// that began before it has ended, below the parent to which the walk has climbed, as GetElement() does. Called by
    /// an observer it searches the element that it is being told of.
    /// @param elementName  the name to find
    /// @return the reader's own list, as for GetElement()
    std::list<QDomNode>* SearchBelowCurrentElement(QString elementName);

private:
    void ErasePointerAndSetFlags();
    void InitHandler(IXMLHelper* pCallback, QDomDocument* document);
    QDomNode SearchStartNode(QString name, QDomElement element);
    std::list<QDomNode> SearchNodes(QString name, QDomElement element);

    bool isParsing() const;
    bool isPutOff(const std::function<void(XMLReader&)>& change);
    void end(ReaderRun& run);
    std::shared_ptr<QDomDocument> taken(QDomDocument* document);
    void setDocument(const std::shared_ptr<QDomDocument>& document);
    template <class Part> void setPart(const Part& part, std::shared_ptr<Part>& owned, bool& flag);
    void keep(const std::shared_ptr<void>& content);
    bool parseContent();
    bool parseFile();
    bool parseText(const std::optional<QString>& text);
    bool parse(const std::function<bool(QXmlSimpleReader&)>& read);
    bool parseGuarded(GuardedSource& source);
    QDomElement rootElement() const;
    QDomNode topNode() const;
    void renewResults();

    // What a copy shares with its source lives as long as one of them.
    std::shared_ptr<XmlContentHandler> m_pContentHandler; ///< owned only if the reader made it
    std::shared_ptr<QXmlSimpleReader> m_pParser;
    IXMLHelper* m_pCallback; ///< not owned
    std::shared_ptr<QDomDocument> m_pDocument;
    std::shared_ptr<QFile> m_pFile;
    std::shared_ptr<std::list<QDomNode>> m_pSearchResults;
    std::shared_ptr<QDomDocumentFragment> m_pFragment;
    std::shared_ptr<QDomNode> m_pNode;
    bool m_bNode; ///< the content is a node
    bool m_bFragment; ///< the content is a fragment
    bool m_bDocument; ///< the content is a document
    bool m_bFile; ///< the content is a file
    bool m_bOwnsHandler; ///< the reader made the content handler

    std::shared_ptr<NestingGuard> m_pNestingGuard; ///< between parser and handler
    std::shared_ptr<ReaderRun> m_pRun; ///< shared by all readers that share the handler
    bool m_bLookAgain; ///< a file of more than tags and texts is not known to be within the limit of nesting

    /// All content that the reader has been given, by its address. It stays when the last reader that keeps it goes.
    std::map<const void*, std::shared_ptr<KeptContent>> m_keptContent;
};

QT_WARNING_POP

#endif
