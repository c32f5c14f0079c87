#include "simplevalue.h"

#include <algorithm>

namespace schemadoctor {

QString SimpleValue::Facet(const char* facet) const
{
    const auto found = std::find_if(facets.begin(), facets.end(),
                                    [facet](const auto& one) { return one.first == QLatin1String(facet); });
    return found == facets.end() ? QString() : found->second;
}

void SimpleValue::SetFacet(const QString& facet, const QString& value)
{
    const auto found
        = std::find_if(facets.begin(), facets.end(), [&facet](const auto& one) { return one.first == facet; });
    if (found == facets.end()) {
        facets.emplace_back(facet, value);
    } else {
        found->second = value;
    }
}

void SimpleValue::RemoveFacet(const char* facet)
{
    facets.erase(std::remove_if(facets.begin(), facets.end(),
                                [facet](const auto& one) { return one.first == QLatin1String(facet); }),
                 facets.end());
}

QStringList SimpleValue::Patterns() const
{
    QStringList patterns;
    for (const auto& facet : facets) {
        if (facet.first == QLatin1String("pattern")) {
            patterns.append(facet.second);
        }
    }
    return patterns;
}

void SimpleValue::AddPatterns(const QStringList& alternatives)
{
    const QStringList last = Patterns();
    if (alternatives.isEmpty() || last == alternatives) {
        return;
    }
    if (!last.isEmpty()) {
        earlierPatterns.push_back(last);
        RemoveFacet("pattern");
    }
    for (const QString& pattern : alternatives) {
        facets.emplace_back(QStringLiteral("pattern"), pattern);
    }
}

} // namespace schemadoctor
