#ifndef SCHEMADOCTOR_TEXTCHECK_H
#define SCHEMADOCTOR_TEXTCHECK_H

#include <optional>

#include <QString>
#include <QStringList>

#include "simplevalue.h"

namespace schemadoctor {

/// Decides by the rules of XML Schema which texts a value may have. What it cannot decide, it leaves open: facets that
/// are unknown, patterns that libxml2 refuses, and all patterns once they have taken too long.
class TextCheck
{
public:
    using Decision = std::optional<bool>;

    /// Whether the type and all its facets allow a text.
    Decision IsAllowed(const SimpleValue& value, const QString& text);

    /// The texts of the enumeration that all other facets allow; nothing where one of them is left open.
    std::optional<QStringList> AllowedOf(const SimpleValue& value);

    /// Whether two texts say the same in a type of XML Schema, such as '1' and 'true'.
    static bool IsSame(const QString& base, const QString& left, const QString& right);

private:
    Decision isInFacets(const SimpleValue& value, const QString& text);
    Decision isInPatterns(const SimpleValue& value, const QString& text);
    Decision isMatchedByAny(const QStringList& alternatives, const QString& text);
    Decision isMatched(const QString& pattern, const QString& text);

    qint64 m_spent = 0; ///< on patterns, in nanoseconds
};

} // namespace schemadoctor

#endif
