#ifndef REPORTCHECK_RULE_H
#define REPORTCHECK_RULE_H

#include <vector>

#include "../declaredattributes.h"
#include "../reportcheck.h"
#include "../reportelement.h"
#include "../schemalocation.h"
#include "../texts.h"

/// A rule is a function that looks at one element of a report and says what is wrong with it. It stands in a file of
/// its own, with a line in the table of rules.cpp and a test folder, all of the rule's name.
namespace reportcheck {

/// What a rule knows besides the element.
struct RuleContext
{
    DeclaredAttributes declared;
    SchemaLocation location;
};

struct Remark
{
    Severity severity = Severity::Error;
    QString text; ///< as in Finding
    QString advice; ///< likewise
};

using Remarks = std::vector<Remark>;

struct Rule
{
    const char* name;
    Remarks (*apply)(const ReportElement& element, const RuleContext& context);
};

/// All rules, in the order in which they are applied to each element.
const std::vector<Rule>& allRules();

Remarks neverFilled(const ReportElement& element, const RuleContext& context);
Remarks unconfirmedDefault(const ReportElement& element, const RuleContext& context);
Remarks refusedInteger(const ReportElement& element, const RuleContext& context);
Remarks leftoverAnnotation(const ReportElement& element, const RuleContext& context);
Remarks attributeHoldsAType(const ReportElement& element, const RuleContext& context);
Remarks leftoverAttributeFacet(const ReportElement& element, const RuleContext& context);
Remarks emptyElement(const ReportElement& element, const RuleContext& context);
Remarks unknownNumber(const ReportElement& element, const RuleContext& context);
Remarks schemaOutOfReach(const ReportElement& element, const RuleContext& context);

} // namespace reportcheck

#endif
