#include "contentsource.h"

#include <memory>

#include <QFile>

#include <xmlhelper/xmlreader.h>

#include "domtext.h"

const std::list<ContentForm>& contentForms()
{
    static const std::list<ContentForm> forms {ContentForm::File, ContentForm::DocumentByValue,
                                               ContentForm::DocumentByPointer, ContentForm::Fragment,
                                               ContentForm::Node};
    return forms;
}

QString nameOf(ContentForm form)
{
    switch (form) {
    case ContentForm::File:
        return QStringLiteral("file");
    case ContentForm::DocumentByValue:
        return QStringLiteral("document-by-value");
    case ContentForm::DocumentByPointer:
        return QStringLiteral("document-by-pointer");
    case ContentForm::Fragment:
        return QStringLiteral("fragment");
    case ContentForm::Node:
        return QStringLiteral("node");
    }
    return QString();
}

bool isWithNodes(ContentForm form)
{
    return form != ContentForm::Fragment && form != ContentForm::Node;
}

bool ContentSource::GiveTo(XMLReader& reader, ContentForm form, const QString& xml)
{
    if (form == ContentForm::File) {
        m_documents.push_back(QDomDocument());
        return reader.SetXmlContent(WriteFile(xml));
    }
    m_documents.push_back(documentOf(xml));
    QDomDocument& document = m_documents.back();
    switch (form) {
    case ContentForm::DocumentByPointer: {
        auto shared = std::make_unique<QDomDocument>(document);
        const bool isTaken = reader.SetXmlContent(shared.get());
        if (isTaken) {
            shared.release();
        }
        return isTaken;
    }
    case ContentForm::Fragment:
        m_fragment = document.createDocumentFragment();
        m_fragment.appendChild(document.documentElement());
        return reader.SetXmlContent(m_fragment);
    case ContentForm::Node:
        return reader.SetXmlContent(QDomNode(document.documentElement()));
    default:
        return reader.SetXmlContent(document);
    }
}

QString ContentSource::WriteFile(const QByteArray& bytes)
{
    const QString name = m_folder.filePath(QStringLiteral("content%1.xml").arg(++m_iFiles));
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? name : QString();
}
