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

    /// The name of the type that the last restriction of a value restricts: patterns of several restrictions all have
    /// to hold, so each but the last is a type of its own.
    QString BaseOf(const SimpleValue& value) const;

    static bool IsGlobal(const MendedAttribute& attribute)
    {
        return !attribute.value.IsPlain() && !attribute.isInPlace;
    }

    /// Those of the elements in one place that can only be references to global ones, if these can be had.
    static std::vector<MendedElement*> NeedingGlobals(MendedContent& content);

private:
    void reserve(MendedElement& element);
    void claimAttributes(MendedElement& element);
    void claimAttribute(MendedAttribute& attribute);
    void claimTypes(const MendedElement& element);
    void claimType(const MendedElement& element);
    void claimSteps(const SimpleValue& value);
    QString nameFor(const MendedElement& element);
    QString nameForStep(const QString& base);
    bool claimName(const QString& name);
    void tellName(const MendedElement& element, const QString& name);

    const SchemaSet& m_set;
    RewriteLog& m_log;
    std::set<QString> m_reserved; ///< for elements
    std::vector<Type> m_types;
    std::map<QString, QString> m_typeNames; ///< by keyOf() an element
    std::map<QString, QString> m_stepNames; ///< by keyOf() a value
    std::set<QString> m_takenNames; ///< of types
    std::map<QString, int> m_attempts; ///< that a name for a type has needed
    std::vector<MendedAttribute> m_attributes;
    std::map<QString, std::size_t> m_attributeIndex; ///< likewise
};

} // namespace schemadoctor

#endif
