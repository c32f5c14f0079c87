#ifndef SCHEMADOCTOR_ATTRIBUTES_H
#define SCHEMADOCTOR_ATTRIBUTES_H

#include "mendedelement.h"
#include "mendlimits.h"
#include "schemaset.h"
#include "simpletypes.h"
#include "valuemending.h"

namespace schemadoctor {

/// Reads the attributes of types, with those of groups and base types.
class Attributes
{
public:
    Attributes(const SchemaSet& set, SimpleTypes& types, RewriteLog& log)
        : m_set(set)
        , m_types(types)
        , m_mending(log)
        , m_log(log)
    {
    }

    /// Adds what stands in a type, an extension, a restriction or a group: it replaces what is called the same.
    void Add(const TextNode& owner, std::vector<MendedAttribute>& attributes, int depth = 0);

    /// Gives names to the attributes of an element that do not get in each other's way.
    void Rename(MendedElement& element);

    /// Whether there were more groups inside of groups than are followed.
    bool IsBeyondLimit() const { return m_groupsLeft <= 0; }

private:
    void addOne(const TextNode& tag, std::vector<MendedAttribute>& attributes);
    MendedAttribute declared(const TextNode& tag, const TextNode& declaration);
    void keepFromFacets(MendedAttribute& attribute, const MendedElement& element);
    QString allowedName(const MendedAttribute& attribute);

    const SchemaSet& m_set;
    SimpleTypes& m_types;
    ValueMending m_mending;
    RewriteLog& m_log;
    int m_groupsLeft = MaxFollowed; ///< to be followed
};

} // namespace schemadoctor

#endif
