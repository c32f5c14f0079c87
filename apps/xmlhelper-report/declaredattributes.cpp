#include "declaredattributes.h"

#include <vector>

#include <QFileInfo>

#include "xmlfile.h"

namespace reportcheck {

namespace {

constexpr int MaximumFiles = 1000; // of one schema, as the library reads them

bool isTag(const xmlNode* node, const char* qualifiedName)
{
    return node->type == XML_ELEMENT_NODE && qualifiedNameOf(node) == QLatin1String(qualifiedName);
}

QString attributeOf(const xmlNode* node, const char* name)
{
    for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) {
        if (qualifiedNameOf(attribute) == QLatin1String(name)) {
            return valueOf(attribute);
        }
    }
    return QString();
}

QString withoutPrefix(const QString& type)
{
    return type.contains(QLatin1String("xs:")) ? type.mid(3) : type;
}

// The base of the restriction in a simple type, or of the one in an attribute.
QString baseBelow(const xmlNode* node)
{
    for (const xmlNode* child = node->children; child; child = child->next) {
        if (isTag(child, "xs:restriction")) {
            return withoutPrefix(attributeOf(child, "base"));
        }
        if (isTag(child, "xs:simpleType")) {
            return baseBelow(child);
        }
    }
    return QString();
}

// What the files of a schema declare, found by going through each of them once.
class Survey
{
public:
    explicit Survey(const QString& topFile)
        : m_folder(QFileInfo(topFile).path())
    {
        goThroughFile(topFile);
    }

    bool HasReadAny() const { return m_bReadAny; }

    void TellInto(DeclaredAttributes& attributes) const
    {
        for (const Declaration& declaration : m_local) {
            attributes.Add(declaration.name, declaration.type);
        }
        for (const QString& reference : m_references) {
            attributes.Add(reference, typeOfGlobal(reference));
        }
    }

private:
    struct Declaration
    {
        QString name;
        QString type; // as written
        QString base; // of the simple type inside
    };

    void goThroughFile(const QString& file)
    {
        const QString place = QFileInfo(file).absoluteFilePath();
        if (m_files.contains(place) || m_files.size() >= MaximumFiles) {
            return;
        }
        m_files.insert(place);
        const ReadFile read = readXmlFile(file);
        if (read.document) {
            m_bReadAny = true;
            goThrough(xmlDocGetRootElement(read.document.get()));
        }
    }

    void goThrough(const xmlNode* node)
    {
        for (const xmlNode* child = node->children; child; child = child->next) {
            if (isTag(child, "xs:include")) {
                goThroughFile(m_folder + QLatin1Char('/') + attributeOf(child, "schemaLocation"));
            } else if (isTag(child, "xs:simpleType")) {
                m_baseOfType.insert(attributeOf(child, "name"), baseBelow(child));
            } else if (isTag(child, "xs:attribute")) {
                noteAttribute(child);
            } else if (child->type == XML_ELEMENT_NODE) {
                goThrough(child);
            }
        }
    }

    void noteAttribute(const xmlNode* node)
    {
        const Declaration declaration {attributeOf(node, "name"), attributeOf(node, "type"), baseBelow(node)};
        if (isTag(node->parent, "xs:schema")) {
            m_global.insert(declaration.name, declaration);
        } else if (declaration.name.isEmpty()) {
            m_references.insert(attributeOf(node, "ref"));
        } else {
            m_local.push_back(declaration);
        }
    }

    QString typeOfGlobal(const QString& name) const
    {
        const Declaration declaration = m_global.value(name);
        if (declaration.type.isEmpty()) {
            return declaration.base;
        }
        return declaration.type.contains(QLatin1String("xs:")) ? withoutPrefix(declaration.type)
                                                               : m_baseOfType.value(declaration.type);
    }

    QString m_folder; // of the top file: what every include is relative to
    bool m_bReadAny = false;
    QSet<QString> m_files;
    std::vector<Declaration> m_local;
    QHash<QString, Declaration> m_global;
    QSet<QString> m_references;
    QHash<QString, QString> m_baseOfType;
};

} // namespace

DeclaredAttributes DeclaredAttributes::FromSchema(const QString& file)
{
    DeclaredAttributes attributes;
    const Survey survey(file);
    attributes.m_bKnown = survey.HasReadAny();
    survey.TellInto(attributes);
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
