#ifndef SCHEMADOCTOR_SCHEMASET_H
#define SCHEMADOCTOR_SCHEMASET_H

#include <map>
#include <set>
#include <utility>
#include <vector>

#include <QString>

#include "reading/schematext.h"

namespace schemadoctor {

/// What may be declared globally; each kind has a space of names.
enum class GlobalKind { Element, Attribute, Type, Group, AttributeGroup };

/// A schema file with all that it includes or redefines, as XML Schema has it: locations count from the file that gives
/// them, and references are those of namespaces, whatever their prefixes.
class SchemaSet
{
public:
    explicit SchemaSet(const QString& file);

    /// Which limit the files are beyond, or why one of them cannot be read; empty when all is well.
    const QString& GetRefusal() const { return m_refusal; }

    const TextFile& GetTop() const { return *m_files.front(); }
    const std::vector<const TextFile*>& GetFiles() const { return m_files; }
    /// What cannot be opened, and schemas of other namespaces.
    const std::vector<const TextNode*>& GetUnread() const { return m_unread; }
    const std::vector<const TextNode*>& GetIncludes() const { return m_includes; }
    /// The file that an include, a redefinition or an import names, there or not.
    QString LocationOf(const TextNode& include) const;

    /// What a tag refers to by a qualified name; null when this schema does not declare it. In a redefinition its own
    /// name means what it redefines.
    const TextNode* Find(GlobalKind kind, const TextNode& tag, const QString& qName) const;
    /// All of one kind, in the order of reading.
    const std::vector<const TextNode*>& GetGlobals(GlobalKind kind) const;

    /// The global elements that may take the place of another, in the order of reading; itself first.
    std::vector<const TextNode*> GetSubstitutes(const TextNode& head) const;

    /// Whether a qualified name in that tag belongs to a namespace that is not read.
    bool IsOfOtherNamespace(const TextNode& tag, const QString& qName) const;

    /// Whether a qualified name in that tag is one of XML Schema's own.
    bool IsBuiltIn(const TextNode& tag, const QString& qName) const;

    /// Whether the first of two tags is read before the second.
    bool IsBefore(const TextNode& first, const TextNode& second) const;

private:
    void read(const QString& fileName);
    void follow(const TextNode& include);
    void addGlobals(const TextNode& parent);
    void redefine(const TextNode& first, const TextNode& original);
    QString namespaceOf(const TextNode& tag, const QString& qName) const;

    SchemaText m_text;
    std::vector<const TextFile*> m_files;
    std::set<QString> m_names;
    std::vector<const TextNode*> m_unread;
    std::vector<const TextNode*> m_includes;
    std::map<std::pair<GlobalKind, QString>, const TextNode*> m_globals;
    std::map<GlobalKind, std::vector<const TextNode*>> m_ordered;
    std::map<const TextNode*, const TextNode*> m_redefined; ///< what each redefinition redefines
    std::map<const TextNode*, std::vector<const TextNode*>> m_substitutes; ///< by what they directly stand for
    std::map<const TextNode*, int> m_positions;
    QString m_refusal;
    qint64 m_characters = 0;
};

} // namespace schemadoctor

#endif
