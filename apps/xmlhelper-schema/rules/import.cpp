#include "rule.h"

namespace schemadoctor {

void importedSchema(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"import", "redefine", "override"})) {
        findings.Add(Severity::Error, *tag,
                     Texts::tr("<%1> names the schema '%2'.").arg(tag->qName, tag->Value("schemaLocation")),
                     tag->Is("import")
                         ? Texts::tr("It is passed over: nothing of that schema is read.")
                         : Texts::tr("That schema is not read; what stands inside the tag is read as if it "
                                     "stood beside it."),
                     Texts::tr("Use xs:include, and put what is taken from there under no namespace."));
    }
}

} // namespace schemadoctor
