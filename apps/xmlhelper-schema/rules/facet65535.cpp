#include <xmlhelper/constants_p.h>

#include "bounds.h"
#include "rule.h"

namespace schemadoctor {

void absentFacet(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags(RangeFacetTags)) {
        bool isNumber = false;
        const double value = tag->Value("value").toDouble(&isNumber);
        if (isNumber && value == double(AbsentBound)) {
            findings.Add(
                Severity::Error, *tag, Texts::tr("%1 is 65535.").arg(tag->localName),
                Texts::tr("That number says that there is no bound: any value is accepted, and the facet stays "
                          "in the report as an attribute."),
                Texts::tr("Take another bound, such as 65534 or 65535.5, or leave the facet out."));
        }
    }
}

} // namespace schemadoctor
