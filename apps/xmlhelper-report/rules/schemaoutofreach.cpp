#include "rule.h"

namespace reportcheck {

Remarks schemaOutOfReach(const ReportElement& element, const RuleContext& context)
{
    const SchemaLocation& location = context.location;
    if (!element.isRoot || !location.foundFile.isEmpty()) {
        return {};
    }
    const Severity severity = location.isGiven ? Severity::Note : Severity::Warning;
    const QString advice = location.isGiven
        ? Texts::tr("The report was checked with the schema that was given instead.")
        : Texts::tr("The report was not validated: say which schema to validate it against.");
    if (location.written.isEmpty()) {
        return {{severity, Texts::tr("The report names no schema."), advice}};
    }
    return {{severity,
             Texts::tr("The schema that the report names cannot be read from here: \"%1\".").arg(location.written),
             advice}};
}

} // namespace reportcheck
