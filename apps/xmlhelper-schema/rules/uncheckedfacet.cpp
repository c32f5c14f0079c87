#include "rule.h"

namespace schemadoctor {

/// Of the restriction of a global attribute only the facets that are understood are copied to its users.
void uncheckedFacet(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag :
         schema.Tags({"pattern", "length", "minLength", "maxLength", "totalDigits", "fractionDigits", "whiteSpace",
                      "assertion", "assert", "explicitTimezone"})) {
        const bool isOfAttribute = tag->Around("attribute");
        findings.Add(isOfAttribute ? Severity::Note : Severity::Error, *tag,
                     Texts::tr("The facet %1 is '%2'.").arg(tag->localName, tag->Value("value")),
                     isOfAttribute
                         ? Texts::tr("It is not checked.")
                         : Texts::tr("It is not checked, and stays in the report as an attribute '%1' that the schema "
                                     "does not allow.")
                               .arg(tag->localName),
                     Texts::tr("Leave it out; what is checked are enumerations and, for numbers, minInclusive, "
                               "maxInclusive, minExclusive and maxExclusive."));
    }
}

} // namespace schemadoctor
