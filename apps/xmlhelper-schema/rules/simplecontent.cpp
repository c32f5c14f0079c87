#include "rule.h"

namespace schemadoctor {

/// An extension in simple content is understood; a restriction is not.
void simpleContent(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"restriction"})) {
        if (tag->parent && tag->parent->Is("simpleContent")) {
            findings.Add(Severity::Error, *tag, Texts::tr("xs:simpleContent restricts '%1'.").arg(tag->Value("base")),
                         Texts::tr("The name of the base becomes the type, so that no setter takes it, and whatever "
                                   "else is inside becomes an attribute of the report."),
                         Texts::tr("Restrict a type of XML Schema in a named xs:simpleType, and extend that by the "
                                   "attributes in xs:simpleContent."));
        }
    }
}

} // namespace schemadoctor
