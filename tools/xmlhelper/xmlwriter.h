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
/// CreateXmlFile() starts the document; the cursor, the current element, stands on its root. CreateXmlElement()
/// appends below the cursor and may enter the new element, SetXmlAttribute() works on the cursor, GoToXmlParent()
/// leaves it. SaveXmlFile() may be called as often as the document changes.
///
/// Operations report failure by false and nothing else; a failed one leaves document and cursor as they were. Names
/// and texts are written as given: names that W3C XML does not allow, and control characters, make a file that no
/// parser accepts.
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
    /// @return false without a document, and when the current element ends with a text
    bool CreateXmlElement(const QString& name, const QString& text, bool enter);

    /// Sets an attribute of the current element, or replaces it.
    /// @param name   the attribute's name
    /// @param value  its value
    /// @return false without a current element
    bool SetXmlAttribute(const QString& name, const QString& value);

    /// Makes the parent of the current element the current one.
    /// @return false at the root, and without a current element
    bool GoToXmlParent();

    /// Writes the document, replacing what was in the file.
    /// @return false without a document; a file that cannot be opened is not reported
    bool SaveXmlFile();

    /// Appends the values of a value-tree node below the current element: an element for the node and, in order, one
    /// with its text for each value and one for each node below. Items without a value and items that are neither
    /// value nor node are left out.
    /// @param node  not owned, only read
    /// @return false for null, and without a document
    bool CreateElementsFromNode(Node* node);

private:
    QFile* m_pFile;
    QDomDocument* m_pDocument;
    QDomElement* m_pCurrentElement;
    QDomElement* m_pSpareElement; ///< made and released with the writer, not used
};

#endif
