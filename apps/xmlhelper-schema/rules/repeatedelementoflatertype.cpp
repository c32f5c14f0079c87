#include "rule.h"

namespace schemadoctor {

void repeatedElementOfLaterType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const TextNode* const type = namedTypeAround(*tag);
        if (!type || !tag->Has("name") || occursOf(*tag, "minOccurs", 1) < 2 || !schema.GetRecord().IsDeferred(tag)) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            Texts::tr("%1 is required %2 times, inside of the named type '%3', and its type '%4' is defined later.")
                .arg(described(*tag), tag->Value("minOccurs"), type->Value("name"), tag->Value("type")),
            Texts::tr("Its copies are lost, and with them all elements of the type that follow it."),
            Texts::tr("Define '%1' in front of '%2'.").arg(tag->Value("type"), type->Value("name")));
        addTrees(schema, *type, finding);
    }
}

} // namespace schemadoctor
