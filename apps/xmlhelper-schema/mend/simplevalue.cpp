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

} // namespace schemadoctor
