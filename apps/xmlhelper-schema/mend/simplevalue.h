#ifndef SCHEMADOCTOR_SIMPLEVALUE_H
#define SCHEMADOCTOR_SIMPLEVALUE_H

#include <memory>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "reading/schematext.h"

namespace schemadoctor {

/// What a value may be: a type of XML Schema and the facets of all restrictions of it together.
struct SimpleValue
{
    QString base; ///< a type of XML Schema, without prefix
    QStringList enumeration;
    std::vector<std::pair<QString, QString>> facets; ///< all others: name and value; several patterns are alternatives
    std::vector<QStringList>
        earlierPatterns; ///< of the restrictions below the last one with patterns: all have to hold
    QString name; ///< of the definition; empty when it has none
    const TextNode* definition = nullptr; ///< null for a type of XML Schema itself
    std::shared_ptr<const SimpleValue> item; ///< of a list; null for other types
    const TextNode* list = nullptr; ///< that tag
    bool isUnknown = false; ///< nothing defines the type

    bool IsPlain() const { return enumeration.isEmpty() && facets.empty(); }

    /// The value of a facet; empty without it.
    QString Facet(const char* facet) const;
    void SetFacet(const QString& facet, const QString& value);
    void RemoveFacet(const char* facet);

    QStringList Patterns() const; ///< those that are alternatives
    /// Adds what has to hold besides the patterns that are there.
    void AddPatterns(const QStringList& alternatives);

    /// Whether both allow the same in the same words.
    bool IsSame(const SimpleValue& other) const
    {
        return base == other.base && enumeration == other.enumeration && facets == other.facets
            && earlierPatterns == other.earlierPatterns;
    }
};

} // namespace schemadoctor

#endif
