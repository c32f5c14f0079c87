#ifndef XMLHELPER_SKELETONWORDS_P_H
#define XMLHELPER_SKELETONWORDS_P_H

#include <QLatin1String>
#include <QString>

// Words that the skeleton document and its readers share.

inline const QLatin1String SchemaPrefix("xs:");

// Asked for several times for each element, and so without a conversion.
inline QString TypeAttribute()
{
    return QStringLiteral("type");
}
inline QString DefaultAttribute()
{
    return QStringLiteral("default");
}

inline const QLatin1String EnumerationFacet("enumeration");
inline const QLatin1String MinInclusiveFacet("minInclusive");
inline const QLatin1String MaxInclusiveFacet("maxInclusive");
inline const QLatin1String MinExclusiveFacet("minExclusive");
inline const QLatin1String MaxExclusiveFacet("maxExclusive");

/// The declaration that every skeleton, and so every report, begins with. Its quotes differ from each other, which Qt
/// evens out when it saves the document.
inline const QLatin1String SkeletonDeclaration("<?xml version='1.0' encoding=\"UTF-8\"?>");

#endif
