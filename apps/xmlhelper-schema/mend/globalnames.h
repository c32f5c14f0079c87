#ifndef SCHEMADOCTOR_GLOBALNAMES_H
#define SCHEMADOCTOR_GLOBALNAMES_H

#include <map>
#include <set>
#include <vector>

#include "mendedelement.h"
#include "rewritelog.h"
#include "schemaset.h"

namespace schemadoctor {

/// Decides what a mended schema declares globally, and gives names to it: elements, attributes and types share one
/// space of names.
class GlobalNames
{
public:
    struct Type
    {
        QString name;
        SimpleValue value;
    };

    /// Settles the names for all that is below the root. What cannot have one becomes something that needs none.
    GlobalNames(const SchemaSet& set, RewriteLog& log, MendedElement& root);

    const std::vector<Type>& GetTypes() const { return m_types; } ///< in the order of their first use
    const std::vector<MendedAttribute>& GetAttributes() const { return m_attributes; } ///< likewise

    /// The name of the type of a value, with prefix where it is one of XML Schema itself.
    QString TypeOf(const MendedElement& element) const;

    static bool IsGlobal(const MendedAttribute& attribute) { return !attribute.value.IsPlain(); }

    /// Whether an element can only be a reference to a global one among these, if it can be had.
    static bool NeedsGlobal(const MendedElement& element, const MendedContent& siblings);

private:
    void reserve(const MendedElement& element);
    void claimAttributes(MendedElement& element);
    void claimAttribute(MendedAttribute& attribute);
    void claimTypes(const MendedElement& element);
    void claimType(const MendedElement& element);
    void tellName(const MendedElement& element, const QString& name);

    const SchemaSet& m_set;
    RewriteLog& m_log;
    std::set<QString> m_reserved; ///< for elements
    std::vector<Type> m_types;
    std::vector<MendedAttribute> m_attributes;
};

} // namespace schemadoctor

#endif
