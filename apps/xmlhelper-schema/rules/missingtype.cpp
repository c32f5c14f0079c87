#include "rule.h"

namespace schemadoctor {

void missingType(const Schema& schema, Findings& findings)
{
    const SchemaRecord& record = schema.GetRecord();
    const QString nowhere = record.IsEverythingRead()
        ? Texts::tr("%1 refers to '%2', which is defined nowhere.")
        : Texts::tr("%1 refers to '%2', which nothing defines that could be read.");
    for (const auto& [name, references] : record.GetMissing()) {
        if (localPart(name) != name) {
            continue; // It is missing for its prefix, which a rule of its own tells.
        }
        for (const TextNode* const reference : references) {
            findings.Add(Severity::Error, *reference, nowhere.arg(described(*reference), name),
                         Texts::tr("The whole schema is given up: the report holds nothing."),
                         Texts::tr("Define '%1', include the file that does, or write xs:%1 if it is a type of XML "
                                   "Schema.")
                             .arg(name));
        }
    }
}

} // namespace schemadoctor
