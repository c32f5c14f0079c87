#include "rule.h"

namespace schemadoctor {

void abstractDeclaration(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element", "complexType"})) {
        const QString value = tag->Value("abstract");
        if (value == QLatin1String("true") || value == QLatin1String("1")) {
            findings.Add(Severity::Warning, *tag, Texts::tr("%1 is abstract.").arg(described(*tag)),
                         Texts::tr("It is laid out like any other, and no other takes its place."),
                         Texts::tr("Name the element or the type that reports are to have."));
        }
    }
}

} // namespace schemadoctor
