#ifndef SCHEMADOCTOR_SIMPLETYPES_H
#define SCHEMADOCTOR_SIMPLETYPES_H

#include "mendlimits.h"
#include "rewritelog.h"
#include "schemaset.h"
#include "simplevalue.h"
#include "textcheck.h"

namespace schemadoctor {

/// Reads simple types down to the type of XML Schema that each stands on: restrictions of restrictions, and
/// unions, become one value with the facets of all.
class SimpleTypes
{
public:
    SimpleTypes(const SchemaSet& set, RewriteLog& log)
        : m_set(set)
        , m_log(log)
    {
    }

    /// The type of that name, as the tag refers to it.
    SimpleValue Of(const TextNode& tag, const QString& qName);

    /// What an xs:simpleType defines.
    SimpleValue OfDefinition(const TextNode& simpleType);

    /// Adds the facets inside of a restriction to those of its base.
    void Restrict(SimpleValue& value, const TextNode& restriction) const;

    /// Whether there were more types inside of types than are followed.
    bool IsBeyondLimit() const { return m_typesLeft <= 0; }

private:
    SimpleValue read(const TextNode& simpleType);
    SimpleValue ofRestriction(const TextNode& restriction);
    SimpleValue ofList(const TextNode& list);
    SimpleValue ofUnion(const TextNode& unionTag);
    SimpleValue ofMembers(const TextNode& unionTag, const std::vector<SimpleValue>& members);
    QStringList textsOf(const std::vector<SimpleValue>& members);

    const SchemaSet& m_set;
    RewriteLog& m_log;
    TextCheck m_check;
    int m_typesLeft = MaxFollowed; ///< to be followed
    int m_depth = 0; ///< of types inside of each other: a circle has no end
};

} // namespace schemadoctor

#endif
