#include "rule.h"

namespace schemadoctor {

/// In simple content, and in an extension, the attributes go to a carrier, which hands them to every user of the type.
void attributesAfterElements(const Schema& schema, Findings& findings)
{
    bool isBehindElements = false;
    for (const TextNode* const tag : schema.Tags({"element", "attribute", "complexType", "simpleType"})) {
        if (tag->IsGlobal()) {
            isBehindElements = false;
        }
        isBehindElements = isBehindElements || tag->Is("element");
        const TextNode* const type = tag->Is("attribute") ? namedTypeAround(*tag) : nullptr;
        if (!type || tag->Around("extension") || tag->Around("restriction")) {
            continue;
        }
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            Texts::tr("%1 belongs to the named type '%2'.").arg(described(*tag), type->Value("name")),
            isBehindElements ? Texts::tr("It goes to the element that was declared last in the type, and not to the "
                                         "element that is of the type.")
                             : Texts::tr("The type has no element in front of it to go to: it is lost."),
            Texts::tr("Write '%1', and each named type that it is used in, inside of the element that is of it, up "
                      "to the global element: only there attributes are understood, at any depth.")
                .arg(type->Value("name")));
        addTrees(schema, *type, finding);
    }
}

} // namespace schemadoctor
