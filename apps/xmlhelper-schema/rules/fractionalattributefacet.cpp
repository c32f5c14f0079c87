#include "bounds.h"
#include "rule.h"

namespace schemadoctor {

void fractionalAttributeFacet(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags(RangeFacetTags)) {
        bool isNumber = false;
        bool isInteger = false;
        static_cast<void>(tag->Value("value").toDouble(&isNumber));
        static_cast<void>(tag->Value("value").toInt(&isInteger));
        if (tag->Around("attribute") && isNumber && !isInteger) {
            findings.Add(Severity::Error, *tag,
                         Texts::tr("%1 of an attribute is '%2'.").arg(tag->localName, tag->Value("value")),
                         Texts::tr("Bounds of attributes are read as integers: this one counts as 0."),
                         Texts::tr("Write an integer, or make the attribute an element."));
        }
    }
}

} // namespace schemadoctor
