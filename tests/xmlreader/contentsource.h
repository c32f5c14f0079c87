#ifndef XMLHELPER_TESTS_CONTENTSOURCE_H
#define XMLHELPER_TESTS_CONTENTSOURCE_H

#include <list>

#include <QDomDocument>
#include <QMetaType>
#include <QString>
#include <QTemporaryDir>

class XMLReader;

/// The five forms in which a reader takes content.
enum class ContentForm { File, DocumentByValue, DocumentByPointer, Fragment, Node };
Q_DECLARE_METATYPE(ContentForm)

/// All forms, in the order of their declaration.
const std::list<ContentForm>& contentForms();

/// A form as part of a row's name, such as "document-by-value".
QString nameOf(ContentForm form);

/// Whether the begin events of a parse carry the elements of content in this form. Those of a fragment and of an
/// element carry null nodes.
bool isWithNodes(ContentForm form);

/// Gives readers the same content in any form. Keeps files and documents while it lives, as a client would have to for
/// the nodes that it hands over: declare it before the reader.
class ContentSource
{
public:
    /// Gives @p reader the content @p xml in @p form and answers what the reader answers. Of the node form, the node is
    /// the root element; of the fragment form, the fragment holds the root element.
    bool GiveTo(XMLReader& reader, ContentForm form, const QString& xml);

    /// The document behind the content given last: shared with the reader for all forms but the file, where it is null.
    QDomDocument GetDocument() const { return m_documents.back(); }

    /// The fragment given last.
    QDomDocumentFragment GetFragment() const { return m_fragment; }

    /// Writes a file of its own, in UTF-8, and gives its name.
    QString WriteFile(const QString& text) { return WriteFile(text.toUtf8()); }
    QString WriteFile(const QByteArray& bytes);

    /// A name in the folder of the source, for a file that may not be there.
    QString GetFileName(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    int m_iFiles = 0;
    std::list<QDomDocument> m_documents;
    QDomDocumentFragment m_fragment;
};

#endif
