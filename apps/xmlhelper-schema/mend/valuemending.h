#ifndef SCHEMADOCTOR_VALUEMENDING_H
#define SCHEMADOCTOR_VALUEMENDING_H

#include "rewritelog.h"
#include "simplevalue.h"

namespace schemadoctor {

/// Writes what a value may be in the types that a setter fills and in the facets that are checked.
class ValueMending
{
public:
    explicit ValueMending(RewriteLog& log)
        : m_log(log)
    {
    }

    /// @param user  the tag that is of the type: where a type of XML Schema itself is told
    SimpleValue OfElement(SimpleValue value, const TextNode& user);
    SimpleValue OfAttribute(SimpleValue value, const TextNode& user);

private:
    void enumerateTexts(SimpleValue& value, const TextNode& tag);
    void takeFillableType(SimpleValue& value, const TextNode& tag);
    void takeInteger(SimpleValue& value, const TextNode& tag);
    void dropUnchecked(SimpleValue& value, const TextNode& tag);
    void dropBoundsOfTexts(SimpleValue& value, const TextNode& tag);
    void keepFromAbsentBound(SimpleValue& value, const TextNode& tag);
    void takeIntegerBounds(SimpleValue& value, const TextNode& tag);
    void excludeUpperBound(SimpleValue& value, const TextNode& tag);

    RewriteLog& m_log;
};

} // namespace schemadoctor

#endif
