#include "rule.h"

namespace schemadoctor {

void complexContent(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"complexContent"})) {
        bool isExtension = false;
        for (const auto& child : tag->children) {
            isExtension = isExtension || child->Is("extension");
        }
        const bool isNamed = namedTypeAround(*tag);
        Finding& finding = findings.Add(
            Severity::Error, *tag,
            isExtension ? Texts::tr("xs:complexContent derives a type by extension.")
                        : Texts::tr("xs:complexContent derives a type by restriction."),
            !isExtension  ? Texts::tr("Every tag inside the restriction becomes an attribute of the report; no element "
                                       "of it is laid out.")
                : isNamed ? Texts::tr("The elements of the base are not laid out, and those of the extension are lost "
                                      "with them: who uses the type gets no child.")
                          : Texts::tr("The elements of the base are not laid out, only those of the extension."),
            Texts::tr("Write all elements in one xs:complexType, without a base."));
        if (const TextNode* const element = tag->Around("element")) {
            addTrees(schema, *element, finding);
        } else if (const TextNode* const type = namedTypeAround(*tag)) {
            addTrees(schema, *type, finding);
        }
    }
}

} // namespace schemadoctor
