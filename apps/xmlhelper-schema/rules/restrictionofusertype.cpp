#include <xmlhelper/valuerules_p.h>

#include "rule.h"

namespace schemadoctor {

/// Those inside of simple and complex content are told about as such.
void restrictionOfUserType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"restriction"})) {
        const QString base = tag->Value("base");
        const bool isInContent = tag->parent && tag->parent->IsAnyOf({"simpleContent", "complexContent"});
        if (base.isEmpty() || isBuiltIn(base) || isInContent) {
            continue;
        }
        const QString effect = settersOfElement(base)
            ? Texts::tr("'%1' itself becomes the type, which setters know by a word in that name: its own type and "
                        "facets are not looked at.")
            : Texts::tr("'%1' itself becomes the type: its own type and facets are not looked at, and no "
                        "setter takes a type of that name.");
        findings.Add(
            Severity::Error, *tag, Texts::tr("The restriction is one of the type '%1'.").arg(base), effect.arg(base),
            Texts::tr("Restrict the type of XML Schema that '%1' stands on, and repeat its facets here.").arg(base));
    }
}

} // namespace schemadoctor
