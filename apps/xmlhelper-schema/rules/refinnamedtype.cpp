#include "rule.h"

namespace schemadoctor {

void refInNamedType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const TextNode* const type = tag->Has("ref") ? namedTypeAround(*tag) : nullptr;
        if (!type) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            Texts::tr("%1 stands inside of the named type '%2'.").arg(described(*tag), type->Value("name")),
            Texts::tr("The element is laid out in the global element that was read last in front of the type, and not "
                      "where the type is used."),
            Texts::tr("Declare the element here with name and type, or refer to it inside of an anonymous type of a "
                      "global element."));
        addTrees(schema, *type, finding);
    }
}

} // namespace schemadoctor
