#include "rule.h"

namespace schemadoctor {

void invalidName(const Schema& schema, Findings& findings)
{
    for (const SchemaRecord::RefusedName& refused : schema.GetRecord().GetRefusedNames()) {
        if (!refused.tag) {
            continue;
        }
        findings.Add(
            Severity::Error, *refused.tag, QStringLiteral("XML does not allow the name '%1'.").arg(refused.name),
            refused.isLeftOut ? QStringLiteral("The declaration is left out.")
                              : QStringLiteral("The whole schema is given up: the report holds nothing."),
            QStringLiteral("Write a name of letters, digits, '-', '_' and '.', without blanks, that begins with "
                           "a letter or '_'."));
    }
}

} // namespace schemadoctor
