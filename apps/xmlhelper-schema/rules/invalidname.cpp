#include "rule.h"

namespace schemadoctor {

void invalidName(const Schema& schema, Findings& findings)
{
    for (const SchemaRecord::RefusedName& refused : schema.GetRecord().GetRefusedNames()) {
        if (!refused.tag) {
            continue;
        }
        findings.Add(Severity::Error, *refused.tag, Texts::tr("XML does not allow the name '%1'.").arg(refused.name),
                     refused.isLeftOut ? Texts::tr("The declaration is left out.")
                                       : Texts::tr("The whole schema is given up: the report holds nothing."),
                     Texts::tr("Write a name of letters, digits, '-', '_' and '.', without blanks, that begins with "
                               "a letter or '_'."));
    }
}

} // namespace schemadoctor
