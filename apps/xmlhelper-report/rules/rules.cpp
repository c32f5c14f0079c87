#include "rule.h"

namespace reportcheck {

const std::vector<Rule>& allRules()
{
    static const std::vector<Rule> rules = {
        {"schema-out-of-reach", schemaOutOfReach},
        {"never-filled", neverFilled},
        {"unconfirmed-default", unconfirmedDefault},
        {"refused-integer", refusedInteger},
        {"leftover-annotation", leftoverAnnotation},
        {"attribute-holds-a-type", attributeHoldsAType},
        {"leftover-attribute-facet", leftoverAttributeFacet},
        {"empty-element", emptyElement},
        {"unknown-number", unknownNumber},
    };
    return rules;
}

} // namespace reportcheck
