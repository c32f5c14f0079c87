#ifndef SCHEMADOCTOR_SCHEMATEXT_H
#define SCHEMADOCTOR_SCHEMATEXT_H

#include <map>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>
#include <QVector>

#include "model/finding.h"

namespace schemadoctor {

const QLatin1String SchemaNamespace("http://www.w3.org/2001/XMLSchema");

struct TextFile;

/// A tag of a schema file.
struct TextNode
{
    struct Attribute
    {
        QString name; ///< qualified
        QString value;
    };

    const TextFile* file = nullptr;
    const TextNode* parent = nullptr;
    int line = 0; ///< in which the tag begins
    int lastLine = 0; ///< in which it ends: where libxml2 sees it
    QString qName;
    QString localName;
    bool isOfSchemaNamespace = false;
    QVector<Attribute> attributes; ///< as written, in this order; without namespace declarations
    std::vector<std::unique_ptr<TextNode>> children; ///< tags only
    QStringList comments; ///< directly in front of it
    QString content; ///< of an xs:documentation: what is written there, without tags

    bool Has(const char* attribute) const;
    QString Value(const char* attribute) const; ///< empty when there is no such attribute
    QString FirstName() const; ///< of the attribute that the library looks at; empty without any
    QString FirstValue() const;

    /// Whether it is the tag of that local name, in whatever way its namespace is written.
    bool Is(const char* tag) const;
    bool IsAnyOf(std::initializer_list<const char*> tags) const;

    /// The nearest tag around it of that local name; null when there is none.
    const TextNode* Around(const char* tag) const;

    /// Whether it stands directly below the root: what the schema calls global.
    bool IsGlobal() const;

    Place GetPlace() const;
};

/// A schema file as a tree of tags.
struct TextFile
{
    QString name;
    QString text;
    std::unique_ptr<TextNode> root; ///< null when the file holds no tag
    std::vector<const TextNode*> tags; ///< all of them, in document order
    std::map<QString, QString> namespaces; ///< that its root declares, by prefix; empty for the default one
    QString fault; ///< why it is not well-formed; empty when it is
    int faultLine = 0;
    bool isMissing = false;
    bool isTooBig = false; ///< its text was not read
};

/// The files of a schema, each read and parsed once. An independent look at the text, by libxml2: it knows lines,
/// namespaces and everything that the library passes over.
class SchemaText
{
public:
    SchemaText();
    ~SchemaText();

    /// The file of that name, read when it is asked for the first time; never null. Its owner is this object.
    const TextFile* Open(const QString& fileName);

    /// In the order of their opening; the top file first.
    const std::vector<std::unique_ptr<TextFile>>& GetFiles() const { return m_files; }

private:
    Q_DISABLE_COPY(SchemaText)

    std::vector<std::unique_ptr<TextFile>> m_files;
    std::map<QString, const TextFile*> m_filesByName;
};

/// All tags of a file that are of that local name and of the schema namespace, in document order.
std::vector<const TextNode*> tagsOf(const TextFile& file, std::initializer_list<const char*> tags);

} // namespace schemadoctor

#endif
