#include "rule.h"

namespace schemadoctor {

void anyAttribute(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"anyAttribute"})) {
        findings.Add(Severity::Note, *tag, QStringLiteral("%1 is written here.").arg(described(*tag)),
                     QStringLiteral("It is passed over: only attributes that are declared by name can be set."),
                     QStringLiteral("Declare the attributes that a report may have."));
    }
}

} // namespace schemadoctor
