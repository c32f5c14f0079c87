#include "rule.h"

namespace schemadoctor {

// The identifier, which is the name of the test folder too, and the function of each rule.
#define SCHEMADOCTOR_RULES(RULE)                                                                                       \
    RULE("other-prefix", otherPrefix)                                                                                  \
    RULE("target-namespace", targetNamespace)                                                                          \
    RULE("prefixed-type", prefixedType)                                                                                \
    RULE("import", importedSchema)                                                                                     \
    RULE("group", group)                                                                                               \
    RULE("attribute-group", attributeGroup)                                                                            \
    RULE("all", allGroup)                                                                                              \
    RULE("any", anyElement)                                                                                            \
    RULE("any-attribute", anyAttribute)                                                                                \
    RULE("union", unionType)                                                                                           \
    RULE("list", listType)                                                                                             \
    RULE("occurs-on-groups", occursOnGroups)                                                                           \
    RULE("nested-choice", nestedChoice)                                                                                \
    RULE("simple-content", simpleContent)                                                                              \
    RULE("complex-content", complexContent)                                                                            \
    RULE("use", use)                                                                                                   \
    RULE("fixed", fixed)                                                                                               \
    RULE("nillable", nillable)                                                                                         \
    RULE("abstract", abstractDeclaration)                                                                              \
    RULE("substitution-group", substitutionGroup)                                                                      \
    RULE("identity-constraint", identityConstraint)                                                                    \
    RULE("annotation-in-restriction", annotationInRestriction)                                                         \
    RULE("attribute-in-restriction", attributeInRestriction)                                                           \
    RULE("unchecked-facet", uncheckedFacet)                                                                            \
    RULE("unfillable-element", unfillableElement)                                                                      \
    RULE("any-value-type", anyValueType)                                                                               \
    RULE("unfillable-attribute", unfillableAttribute)                                                                  \
    RULE("restriction-of-user-type", restrictionOfUserType)                                                            \
    RULE("inline-attribute-type", inlineAttributeType)                                                                 \
    RULE("first-attribute", firstAttribute)                                                                            \
    RULE("simple-type-in-nested-type", simpleTypeInNestedType)                                                         \
    RULE("ref-in-named-type", refInNamedType)                                                                          \
    RULE("nested-type-in-named-type", nestedTypeInNamedType)                                                           \
    RULE("repeated-element-of-later-type", repeatedElementOfLaterType)                                                 \
    RULE("repeated-inline-type", repeatedInlineType)                                                                   \
    RULE("attributes-after-elements", attributesAfterElements)                                                         \
    RULE("other-order", otherOrder)                                                                                    \
    RULE("declaration-before-include", declarationBeforeInclude)                                                       \
    RULE("one-name-in-several-spaces", oneNameInSeveralSpaces)                                                         \
    RULE("one-name-under-several-owners", oneNameUnderSeveralOwners)                                                   \
    RULE("contained-attribute-names", containedAttributeNames)                                                         \
    RULE("invalid-name", invalidName)                                                                                  \
    RULE("annotation-name", annotationName)                                                                            \
    RULE("optional-without-maximum", optionalWithoutMaximum)                                                           \
    RULE("optional-with-maximum", optionalWithMaximum)                                                                 \
    RULE("unrepeatable", unrepeatable)                                                                                 \
    RULE("optional-that-stays", optionalThatStays)                                                                     \
    RULE("required-without-maximum", requiredWithoutMaximum)                                                           \
    RULE("root", rootChoice)                                                                                           \
    RULE("several-roots", severalRoots)                                                                                \
    RULE("root-attribute", rootAttribute)                                                                              \
    RULE("missing-type", missingType)                                                                                  \
    RULE("recursion", recursion)                                                                                       \
    RULE("missing-include", missingInclude)                                                                            \
    RULE("malformed-include", malformedInclude)                                                                        \
    RULE("repeated-include", repeatedInclude)                                                                          \
    RULE("cyclic-include", cyclicInclude)                                                                              \
    RULE("outside-include", outsideInclude)                                                                            \
    RULE("facet-65535", absentFacet)                                                                                   \
    RULE("fractional-attribute-facet", fractionalAttributeFacet)                                                       \
    RULE("attribute-upper-bound", attributeUpperBound)                                                                 \
    RULE("contradictory-bounds", contradictoryBounds)                                                                  \
    RULE("unconvertible-bound", unconvertibleBound)                                                                    \
    RULE("enumeration-of-numbers", enumerationOfNumbers)                                                               \
    RULE("element-count", elementCount)                                                                                \
    RULE("invalid-schema", invalidSchema)

#define SCHEMADOCTOR_DECLARE(name, check) void check(const Schema& schema, Findings& findings);
SCHEMADOCTOR_RULES(SCHEMADOCTOR_DECLARE)

#define SCHEMADOCTOR_ENTER(name, check) {name, check},
const std::vector<Rule>& allRules()
{
    static const std::vector<Rule> rules {SCHEMADOCTOR_RULES(SCHEMADOCTOR_ENTER)};
    return rules;
}

} // namespace schemadoctor
