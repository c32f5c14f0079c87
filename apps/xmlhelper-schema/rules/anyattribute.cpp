#include "rule.h"

namespace schemadoctor {

void anyAttribute(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"anyAttribute"})) {
        findings.Add(Severity::Note, *tag, Texts::tr("%1 is written here.").arg(described(*tag)),
                     Texts::tr("It is passed over: only attributes that are declared by name can be set."),
                     Texts::tr("Declare the attributes that a report may have."));
    }
}

} // namespace schemadoctor
