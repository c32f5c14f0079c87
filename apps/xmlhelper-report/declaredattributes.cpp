#include "declaredattributes.h"

#include <QDomElement>
#include <QFileInfo>
#include <QXmlSimpleReader>

#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/schemareadinglog_p.h>
#include <xmlhelper/xmlschemahandler.h>

QT_WARNING_DISABLE_DEPRECATED

namespace reportcheck {

namespace {

// Schema reading asks for an observer and sends it nothing.
class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { }
};

// Keeps what the library lays out for declared attributes.
class ReadingListener : public SchemaReadingLog
{
public:
    explicit ReadingListener(DeclaredAttributes& attributes)
        : m_attributes(attributes)
    {
    }

    void AttributeLaidOut(const QDomElement& element, const QString& name, AttributeKind kind,
                          const SchemaTag&) override
    {
        if (kind == AttributeKind::Declared) {
            m_attributes.Add(name, element.attribute(name));
        }
    }

private:
    DeclaredAttributes& m_attributes;
};

} // namespace

DeclaredAttributes DeclaredAttributes::FromSchema(const QString& file)
{
    DeclaredAttributes attributes;
    ReadingListener listener(attributes);
    SilentObserver observer;
    // Includes are looked for beside a schema that is named with its folder.
    XmlSchemaHandler handler(&observer, QFileInfo(file).absoluteFilePath());
    handler.SetLog(&listener);
    QXmlSimpleReader parser;
    attributes.m_bKnown = handler.ReadFile(openableFileName(file), parser);
    return attributes;
}

bool DeclaredAttributes::IsPlaceholder(const QString& attribute, const QString& value) const
{
    return m_placeholders.value(attribute).contains(value);
}

void DeclaredAttributes::Add(const QString& attribute, const QString& placeholder)
{
    m_bKnown = true;
    m_placeholders[attribute].insert(placeholder);
}

} // namespace reportcheck
