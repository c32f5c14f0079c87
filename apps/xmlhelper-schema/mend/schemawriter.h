#ifndef SCHEMADOCTOR_SCHEMAWRITER_H
#define SCHEMADOCTOR_SCHEMAWRITER_H

#include <map>

#include <QString>

#include "globalnames.h"
#include "mendedelement.h"
#include "schemaset.h"

namespace schemadoctor {

/// Writes a mended schema as a person does: types, attributes and elements that others refer to first, then the root
/// with all that is in it.
class SchemaWriter
{
public:
    SchemaWriter(const SchemaSet& set, RewriteLog& log, MendedElement root);

    const QString& GetText() const { return m_text; }

    /// The tag of the original that says how often the element in a line of the text occurs; null for other lines.
    const TextNode* ParticleAt(int line) const;

private:
    void plan(MendedElement& element);
    void planGlobal(MendedElement& element);
    void tellReference(const MendedElement& element);

    bool isNamespaceKept() const;
    void tellForms();
    void writeHead();
    void writeType(const GlobalNames::Type& type);
    void writeRestriction(const SimpleValue& value, int level);
    void writeInlineType(const SimpleValue& value, int level);
    void writeAttribute(const MendedAttribute& attribute);
    void writeElement(const MendedElement& element, int level, bool isGlobal);
    void writeComplexType(const MendedElement& element, int level);
    void writeContent(const MendedContent& content, int level);
    void writeChild(const MendedElement& element, int level);
    void writeUses(const std::vector<MendedAttribute>& attributes, int level);
    void writeComments(const QStringList& comments, int level);
    void writeDocumentation(const QStringList& texts, int level);
    void write(int level, const QString& line);
    QString bodyOf(const MendedElement& element);

    const SchemaSet& m_set;
    RewriteLog& m_log;
    GlobalNames m_names;
    QString m_text;
    int m_lines = 0;
    std::map<int, const TextNode*> m_particles;
    std::vector<std::pair<QString, MendedElement>> m_globals; ///< with their text, in the order of their need
    std::map<QString, std::size_t> m_globalIndex; ///< by name
};

} // namespace schemadoctor

#endif
