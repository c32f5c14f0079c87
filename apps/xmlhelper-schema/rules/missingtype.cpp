#include "rule.h"

namespace schemadoctor {

void missingType(const Schema& schema, Findings& findings)
{
    const auto& definitions = schema.GetPlan().GetDefinitions();
    for (const auto& [name, references] : schema.GetPlan().GetMissing()) {
        if (definitions.count(name) > 0) {
            continue;
        }
        for (const TextNode* const reference : references) {
            findings.Add(
                Severity::Error, *reference,
                QStringLiteral("%1 refers to '%2', which is defined nowhere.").arg(described(*reference), name),
                QStringLiteral("The whole schema is given up: the report holds nothing."),
                QStringLiteral("Define '%1', include the file that does, or write xs:%1 if it is a type of XML "
                               "Schema.")
                    .arg(name));
        }
    }
}

} // namespace schemadoctor
