#ifndef XMLHELPER_TESTS_SURVEYSCHEMA_H
#define XMLHELPER_TESTS_SURVEYSCHEMA_H

#include <QDomDocument>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include "domtext.h"

/// The declarations of a survey: an optional container that repeats, another one within, a choice.
inline QByteArray surveyElements()
{
    return "<xs:element name='Survey'><xs:complexType><xs:sequence>"
           "<xs:element name='Station' type='xs:string'/>"
           "<xs:element name='Operator' type='xs:string' minOccurs='0' maxOccurs='3'/>"
           "<xs:element name='Emission' minOccurs='0' maxOccurs='unbounded'><xs:complexType><xs:sequence>"
           "<xs:element name='Label' type='xs:string' minOccurs='0'/>"
           "<xs:element name='Frequency'><xs:complexType><xs:simpleContent><xs:extension base='xs:double'>"
           "<xs:attribute name='Unit' type='xs:string'/></xs:extension></xs:simpleContent></xs:complexType>"
           "</xs:element>"
           "<xs:element name='Level' type='xs:double' minOccurs='0'/>"
           "<xs:element name='Line' minOccurs='0' maxOccurs='2'><xs:complexType><xs:sequence>"
           "<xs:element name='Remark' type='xs:string' minOccurs='0'/>"
           "<xs:element name='Number' type='xs:integer'/>"
           "</xs:sequence></xs:complexType></xs:element>"
           "</xs:sequence><xs:attribute name='Id' type='xs:integer'/></xs:complexType></xs:element>"
           "<xs:choice><xs:element name='Fixed' type='xs:string'/>"
           "<xs:element name='Mobile'><xs:complexType><xs:sequence>"
           "<xs:element name='Speed' type='xs:double' minOccurs='0'/>"
           "<xs:element name='Route' type='xs:string'/>"
           "</xs:sequence></xs:complexType></xs:element></xs:choice>"
           "<xs:element name='Closing' minOccurs='0'><xs:complexType><xs:sequence>"
           "<xs:element name='Remark' type='xs:string' minOccurs='0'/>"
           "<xs:element name='Name' type='xs:string'/>"
           "</xs:sequence></xs:complexType></xs:element>"
           "</xs:sequence></xs:complexType></xs:element>";
}

/// A schema in a file, and the report beside it.
class SchemaFolder
{
public:
    explicit SchemaFolder(const QByteArray& declarations)
    {
        QFile file(Schema());
        if (file.open(QIODevice::WriteOnly)) {
            file.write("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + declarations + "</xs:schema>");
        }
    }

    QString Schema() const { return m_folder.filePath(QStringLiteral("schema.xsd")); }
    QString Report() const { return m_folder.filePath(QStringLiteral("report.xml")); }

    /// The report in a line: "Name{attribute=value}=text", or "Name(...)" with what is below.
    QString Content() const { return contentOf(documentInFile(Report()).documentElement()); }

private:
    static QString contentOf(const QDomElement& element)
    {
        QStringList attributes;
        const QDomNamedNodeMap map = element.attributes();
        for (int i = 0; i < map.count(); ++i) {
            if (!map.item(i).nodeName().contains(QLatin1Char(':'))) {
                attributes.append(map.item(i).nodeName() + QLatin1Char('=') + map.item(i).nodeValue());
            }
        }
        attributes.sort();
        QStringList below;
        for (QDomElement one = element.firstChildElement(); !one.isNull(); one = one.nextSiblingElement()) {
            below.append(contentOf(one));
        }
        QString content = element.tagName();
        content += attributes.isEmpty() ? QString() : QStringLiteral("{%1}").arg(attributes.join(QLatin1Char(' ')));
        content += element.text().isEmpty() || !below.isEmpty() ? QString() : QLatin1Char('=') + element.text();
        return content + (below.isEmpty() ? QString() : QStringLiteral("(%1)").arg(below.join(QLatin1Char(' '))));
    }

    QTemporaryDir m_folder;
};

#endif
