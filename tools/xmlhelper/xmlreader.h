#ifndef XMLHELPER_XMLREADER_H
#define XMLHELPER_XMLREADER_H

#include <list>
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
class QXmlInputSource;
class QXmlSimpleReader;
class XmlContentHandler;

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
    /// reader stays bound to that document when other content is set later. Use a reader for each content.
    ///
    /// Everything runs on the caller's thread; events arrive while ParseXml() is on the stack. From within such an
    /// event the searches may be used; SetXmlContent() and ParseXml() are refused (false) with a trace until the parse
    /// has ended. The reader must not be destroyed there.
    ///
    /// A reader made with a null observer traces "XMLReader: pCallback is NULL!" and is unusable: ParseXml() gives
    /// false.
    ///
    /// Copies are shallow: a copy shares handler, parser, content and the duty to delete them with its source. Of a
    /// reader and its copies exactly one may be destroyed, and only one may be given content.
    class XMLHELPER_EXPORT XMLReader
{
public:
    /// @param pCallback  the observer; not owned, must outlive the reader
    /// @param handler    null for clients: the reader makes and owns its own
    XMLReader(IXMLHelper* pCallback, XmlContentHandler* handler);
    /// Copies every member as it is: pointers, flags and the duty to delete.
    /// @param other  copied
    XMLReader(const XMLReader& other);
    /// Copies every member as it is: pointers, flags and the duty to delete.
    /// @param other  copied
    /// @return this object
    XMLReader& operator=(const XMLReader& other);

    /// Releases everything that the reader owns: its handler and parser, the content, every document that it read from
    /// a file or took over, and the last result list.
    virtual ~XMLReader();

    /// Takes the content of a file. The file is read into a document now and parsed again by every ParseXml(). Content
    /// nested deeper than 512 elements, or whose document type asks for too much, is not read into a document, and
    /// ParseXml() fails on it. Only regular files are opened; anything else counts as missing.
    ///
    /// @param fileName  the file; back slashes separate folders on every platform
    /// @return true, whatever becomes of the file: a missing or malformed one is noticed by ParseXml() only. False
    ///         only while a parse is running.
    bool SetXmlContent(QString fileName);

    /// Takes a document, sharing its nodes.
    /// @param document  the content
    /// @return true; false only while a parse is running
    bool SetXmlContent(QDomDocument document);

    /// Takes a document and its ownership: the reader deletes the object when it has no more use for it, when other
    /// content is set or at its own end.
    /// @param document  the content; null leaves the reader without any
    /// @return true; false only while a parse is running, and the document then stays the caller's
    bool SetXmlContent(QDomDocument* document);

    /// Takes a document fragment, sharing its nodes. Only a fragment with a single top element can be parsed: XML knows
    /// one root.
    /// @param fragment  the content
    /// @return true; false only while a parse is running
    bool SetXmlContent(QDomDocumentFragment fragment);

    /// Takes a node, sharing it.
    /// @param node  the content
    /// @return true; false only while a parse is running
    bool SetXmlContent(QDomNode node);

    /// Parses the content and delivers its events; for all forms but the file the content is serialised first, so that
    /// changes since the last parse are seen.
    ///
    /// @return false when no content is set, when the content is nested deeper than 512 elements, when its document
    /// type
    ///         declares more than 1,000 entities, lets them become more than 2,000,000 characters or nests more than
    ///         512 parentheses, each with a trace, or when the parser fails on it. Events delivered before the failure
    ///         stand; no error event is sent.
    bool ParseXml();

    /// Finds nodes by name, in document order. Matches inside a match are not reported. Where the root, or the start
    /// element, has that name itself, the content's top node is reported first.
    ///
    /// @param elementName       the name to find; "#text" finds texts
    /// @param startElementName  search below the first element of this name; empty: in the whole content; of a fragment
    ///                          or a node only its first child is searched, if that is an element
    /// @return the reader's own list, never null: do not delete it. The next search on this reader, and the reader's
    ///         end, delete it; the nodes in it are handles that may be kept.
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

    bool isRefusedWhileParsing() const;
    void releaseDocument(QDomDocument* document);
    bool parseFile();
    bool parseText(const std::optional<QString>& text);
    bool parse(const QXmlInputSource& source);
    bool parseGuarded(GuardedSource& source);
    QDomElement rootElement() const;
    QDomNode topNode() const;
    void renewResults();

    XmlContentHandler* m_pContentHandler;
    QXmlSimpleReader* m_pParser;
    IXMLHelper* m_pCallback; ///< not owned
    QDomDocument* m_pDocument;
    QFile* m_pFile;
    std::list<QDomNode>* m_pSearchResults;
    QDomDocumentFragment* m_pFragment;
    QDomNode* m_pNode;
    bool m_bNode; ///< the content is a node, which the reader owns
    bool m_bFragment; ///< the content is a fragment, which the reader owns
    bool m_bDocument; ///< the content is a document, which the reader owns
    bool m_bFile; ///< the content is a file, which the reader owns
    bool m_bOwnsHandler; ///< the reader made the content handler

    NestingGuard* m_pNestingGuard; ///< between parser and handler
    bool m_bParsing; ///< ParseXml() is on the stack

    QDomDocument* m_pBoundDocument; ///< what the content handler walks; outlives its content

    /// Documents that are deleted with the reader only: those read from files, because receivers may hold their nodes,
    /// and the bound one once its content has been replaced.
    std::list<QDomDocument*> m_keptDocuments;
};

QT_WARNING_POP

#endif
