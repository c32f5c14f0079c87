#ifndef SCHEMADOCTOR_FITTING_H
#define SCHEMADOCTOR_FITTING_H

#include <algorithm>
#include <cmath>

#include <QString>

#include <xmlhelper/skeletonwords_p.h>

#include "model/skeletontree.h"

namespace schemadoctor {

// Values that fit what the tree says of an element or an attribute.

inline QString valueOf(const QVector<Facet>& facets, const QString& name)
{
    const auto found
        = std::find_if(facets.begin(), facets.end(), [&name](const Facet& facet) { return facet.name == name; });
    return found == facets.end() ? QString() : found->value;
}

/// The bound that one of the two facets sets; NaN without one. What is excluded is left by @p step.
inline double boundOf(const QVector<Facet>& facets, const QString& inclusive, const QString& exclusive, double step)
{
    bool isNumber = false;
    const double included = valueOf(facets, inclusive).toDouble(&isNumber);
    if (isNumber) {
        return included;
    }
    const double excluded = valueOf(facets, exclusive).toDouble(&isNumber);
    return isNumber ? excluded + step : std::nan("");
}

/// The first number of the enumeration, or one within the bounds: halfway, or one off the only one.
/// @param step  from an excluded number to the next one: none between floating-point numbers, where halfway will do
template <class Declared> double fittingNumber(const Declared& declared, double otherwise, double step)
{
    if (!declared.enumeration.isEmpty()) {
        return declared.enumeration.constFirst().toDouble();
    }
    const double lowest = boundOf(declared.facets, MinInclusiveFacet, MinExclusiveFacet, step);
    const double highest = boundOf(declared.facets, MaxInclusiveFacet, MaxExclusiveFacet, -step);
    if (std::isnan(lowest) && std::isnan(highest)) {
        return otherwise;
    }
    if (std::isnan(highest)) {
        return lowest + 1;
    }
    return std::isnan(lowest) ? highest - 1 : lowest + (highest - lowest) / 2;
}

template <class Declared> int fittingInteger(const Declared& declared, int otherwise)
{
    return int(std::floor(fittingNumber(declared, otherwise, 1)));
}

/// The first text of the enumeration, or one of a length that fits.
template <class Declared> QString fittingText(const Declared& declared, const QString& otherwise)
{
    const int longest = 1000;
    if (!declared.enumeration.isEmpty()) {
        return declared.enumeration.constFirst();
    }
    const auto lengthBy = [&](const char* facet, int without) {
        bool isNumber = false;
        const int length = valueOf(declared.facets, QLatin1String(facet)).toInt(&isNumber);
        return isNumber ? std::clamp(length, 0, longest) : without;
    };
    const int least = lengthBy("length", lengthBy("minLength", 0));
    const int greatest = lengthBy("length", lengthBy("maxLength", longest));
    return otherwise.leftJustified(least, QLatin1Char('x')).left(greatest);
}

} // namespace schemadoctor

#endif
