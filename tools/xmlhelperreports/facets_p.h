#ifndef XMLHELPERREPORTS_FACETS_P_H
#define XMLHELPERREPORTS_FACETS_P_H

#include <functional>
#include <map>

#include <QString>
#include <QStringList>

class QDomElement;

/// The facets of an element, or of an attribute of it, by their names without the attribute's; an enumeration has all
/// of its texts. To be read before anything is set: that removes facets, of others too.
using Facets = std::map<QString, QStringList>;
Facets facetsOf(const QDomElement& element, const QString& attribute = QString());

/// Whether an attribute of the skeleton tells of its element or of another attribute, and is not declared itself.
bool isAnnotation(const QString& name, const QString& value);

/// What facets, and the type itself where the builder does not look at it, say of a text.
struct FacetVerdict
{
    enum Kind {
        Kept,
        Unknown, ///< whether one is kept cannot be told
        Broken,
    };

    Kind kind = Kept;
    QString reason {}; ///< a sentence without its stop; empty when all are kept
};

/// By what concerns the value, in whichever form it is written: type, enumeration, bounds.
FacetVerdict verdictOnValue(const QString& text, const QString& type, const Facets& facets);

/// By all facets, for a text as it stands in the report.
/// @param isOneOfSeveral  whether a pattern stands beside others, one of which has to be kept: only the last is known
FacetVerdict verdictOnText(const QString& text, const QString& type, const Facets& facets,
                           const std::function<bool(const QString& pattern)>& isOneOfSeveral);

#endif
