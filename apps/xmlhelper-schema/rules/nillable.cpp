#include "rule.h"

namespace schemadoctor {

void nillable(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const QString value = tag->Value("nillable");
        if (value == QLatin1String("true") || value == QLatin1String("1")) {
            findings.Add(Severity::Note, *tag, Texts::tr("%1 is nillable.").arg(described(*tag)),
                         Texts::tr("No report has an xsi:nil: an element without a value stays with its annotations, "
                                   "or is removed when it may be missing."),
                         Texts::tr("Write minOccurs=\"0\" for what may be without a value."));
        }
    }
}

} // namespace schemadoctor
