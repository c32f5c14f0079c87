#ifndef XMLHELPER_XMLWRITER_H
#define XMLHELPER_XMLWRITER_H

#include <QString>

#include <xmlhelper/xmlhelperexport.h>

class Node;
class QDomDocument;
class QDomElement;
class QFile;

/// Builds a small XML document element by element and writes it to a file, in UTF-8 with four spaces of indentation.
///
/// CreateXmlFile() starts the document; the cursor, the current element, stands on its root. CreateXmlElement() appends
/// below the cursor and may enter the new element, SetXmlAttribute() works on the cursor, GoToXmlParent() leaves it.
/// SaveXmlFile() may be called as often as the document changes.
///
/// Operations report failure by false; a failed one leaves document and cursor as they were, but that a value tree is
/// written as far as it can be. Every file that is written is well-formed W3C XML 1.0: names that it does not allow and
/// elements nested deeper than 512 levels are refused, and of texts the characters that it cannot carry (control
/// characters, halves of surrogate pairs, U+FFFE, U+FFFF) are dropped. Both is traced. Of the names that its fifth
/// edition allows, Qt's own parsers, and so XMLReader, do not know all: those of the earlier editions are safe.
///
/// The writer owns its document. Copies are shallow: of a writer and its copies exactly one may be destroyed.
class XMLHELPER_EXPORT XMLWriter
{
public:
    XMLWriter();
    /// Copies the pointers as they are.
    /// @param other  copied
    XMLWriter(const XMLWriter& other);
    /// Copies the pointers as they are.
    /// @param other  copied
    /// @return this object
    XMLWriter& operator=(const XMLWriter& other);

    /// Releases file and document. Nothing is saved.
    virtual ~XMLWriter();

    /// Starts a document.
    ///
    /// @param fileName  the file that SaveXmlFile() will write; nothing is opened yet. Back slashes separate folders on
    ///                  every platform. The first call decides: later ones keep the file.
    /// @param rootName  the name of the root element; one that W3C XML does not allow leaves a document without root
    /// @return false when the writer has a document already
    bool CreateXmlFile(const QString& fileName, const QString& rootName);

    /// Appends a child to the current element.
    ///
    /// @param name   the name of the new element
    /// @param text   its text; empty: none
    /// @param enter  whether the new element becomes the current one
    /// @return false without a document, when the current element ends with a text, and for a name or a nesting that is
    ///         refused
    bool CreateXmlElement(const QString& name, const QString& text, bool enter);

    /// Sets an attribute of the current element, or replaces it.
    /// @param name   the attribute's name
    /// @param value  its value
    /// @return false without a current element, and for a name that is refused
    bool SetXmlAttribute(const QString& name, const QString& value);

    /// Makes the parent of the current element the current one.
    /// @return false at the root, and without a current element
    bool GoToXmlParent();

    /// Writes the document, replacing what was in the file.
    /// @return false without a document; a file that cannot be written is not reported
    bool SaveXmlFile();

    /// Appends the values of a value-tree node below the current element: an element for the node and, in order, one
    /// with its text for each value and one for each node below. Items without a value and items that are neither value
    /// nor node are skipped. Values and whole nodes whose name or nesting is refused are left out, the others written.
    /// @param node  not owned, only read
    /// @return false for null, without a document, when the current element ends with a text, for a node that is
    ///         refused, and when anything was left out
    bool CreateElementsFromNode(Node* node);

private:
    bool isPlaceForElement() const;

    QFile* m_pFile;
    QDomDocument* m_pDocument;
    QDomElement* m_pCurrentElement;
    QDomElement* m_pSpareElement; ///< made and released with the writer, not used
};

#endif
