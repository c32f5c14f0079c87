#include "rule.h"

namespace schemadoctor {

void targetNamespace(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"schema"})) {
        if (tag->Has("targetNamespace")) {
            findings.Add(Severity::Error, *tag,
                         Texts::tr("The schema has the target namespace '%1'.").arg(tag->Value("targetNamespace")),
                         Texts::tr("Reports are written without a namespace and refer to the schema as one without, "
                                   "so that none is ever valid."),
                         Texts::tr("Remove targetNamespace, and the namespace declaration that goes with it."));
        }
    }
}

} // namespace schemadoctor
