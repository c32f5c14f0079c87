#include "reportelement.h"

#include <algorithm>

namespace reportcheck {

const ReportAttribute* ReportElement::Find(const QString& attribute) const&
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const ReportAttribute& candidate) { return candidate.name == attribute; });
    return found == attributes.end() ? nullptr : &*found;
}

} // namespace reportcheck
