#include "rule.h"

namespace schemadoctor {

void elementCount(const Schema& schema, Findings& findings)
{
    const SchemaRecord& record = schema.GetRecord();
    const Place place {record.GetIncludes().file, 0};
    if (record.GetEnd() == SchemaRecord::End::LimitExceeded) {
        findings.Add(Severity::Error, place, QString(), record.GetLimit(),
                     Texts::tr("The whole schema is given up: the report holds nothing."),
                     Texts::tr("Lay out less: lower minOccurs, and split the schema into several."));
    } else if (record.GetEnd() == SchemaRecord::End::TooMuchForTheDoctor) {
        findings.Add(Severity::Note, place, QString(), record.GetLimit(),
                     Texts::tr("That is more than is shown: there is no tree here, and rules that need the tree are "
                               "silent. The library goes on, up to limits of its own."),
                     Texts::tr("Lay out less, if reports are to be written quickly."));
    }
}

} // namespace schemadoctor
