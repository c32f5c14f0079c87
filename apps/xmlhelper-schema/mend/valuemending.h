#ifndef SCHEMADOCTOR_VALUEMENDING_H
#define SCHEMADOCTOR_VALUEMENDING_H

#include "rewritelog.h"
#include "simplevalue.h"
#include "textcheck.h"

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

    /// The only value that a tag allows.
    SimpleValue OfFixed(const TextNode& tag, const QString& fixed);

    /// The default in a tag as the mended value takes it; empty where it takes none that says the same.
    QString DefaultOf(const SimpleValue& original, const SimpleValue& mended, const TextNode& tag);

private:
    bool isSettled(SimpleValue& value, const TextNode& tag);
    void takeSingleItem(SimpleValue& list, bool isOfAnyCount);
    bool takeItems(SimpleValue& value, const TextNode& tag);
    bool takeListedTexts(SimpleValue& value, const TextNode& tag);
    void keepEnumeration(SimpleValue& value, const TextNode& tag);
    void allowNothing(SimpleValue& value, const TextNode& tag, const QString& before);
    void enumerateTexts(SimpleValue& value, const TextNode& tag);
    void takeFillableType(SimpleValue& value, const TextNode& tag);
    void takeInteger(SimpleValue& value, const TextNode& tag);
    void dropPatterns(SimpleValue& value, const TextNode& tag);
    void dropUnchecked(SimpleValue& value, const TextNode& tag);
    void dropBoundsOfTexts(SimpleValue& value, const TextNode& tag);
    void keepFromAbsentBound(SimpleValue& value, const TextNode& tag);
    void takeIntegerBounds(SimpleValue& value, const TextNode& tag);
    void excludeUpperBound(SimpleValue& value, const TextNode& tag);
    void keepFromEmptyRange(SimpleValue& value, const SimpleValue& whole, const TextNode& tag);

    RewriteLog& m_log;
    TextCheck m_check;
};

} // namespace schemadoctor

#endif
