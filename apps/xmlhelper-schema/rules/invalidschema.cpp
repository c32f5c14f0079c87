#include "rule.h"

namespace schemadoctor {

/// What a validator says about the schema as a schema: a report is checked against it later.
void invalidSchema(const Schema& schema, Findings& findings)
{
    for (const GrammarFault& fault : schema.GetFaults()) {
        findings.Add(Severity::Warning, fault.place, QString(),
                     QStringLiteral("libxml2 does not accept the schema: %1").arg(fault.message),
                     QStringLiteral("The library does not look at it, but no report can be validated."),
                     QStringLiteral("Mend the schema."));
    }
}

} // namespace schemadoctor
