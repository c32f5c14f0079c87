#include "rule.h"

namespace schemadoctor {

namespace {

bool isOtherwisePrefixed(const QString& name)
{
    return name.contains(QLatin1Char(':')) && !name.startsWith(QLatin1String("xs:"));
}

} // namespace

void prefixedType(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"element", "attribute", "restriction", "extension"})) {
        for (const char* const attribute : {"type", "ref", "base"}) {
            const QString name = tag->Value(attribute);
            if (isOtherwisePrefixed(name)) {
                Finding& finding = findings.Add(
                    Severity::Error, *tag,
                    Texts::tr("%1=\"%2\" has a prefix that is not 'xs:'.").arg(QLatin1String(attribute), name),
                    isBuiltIn(name) ? Texts::tr("It contains 'xs:', so its first three characters are cut "
                                                "off and the rest counts as a type of XML Schema.")
                                    : Texts::tr("A definition called '%1' is looked up, prefix included; it "
                                                "never comes, and the whole schema is given up.")
                                          .arg(name),
                    Texts::tr("Write '%1' for a definition of the schema, 'xs:%1' for a type of XML Schema.")
                        .arg(localPart(name)));
                finding.cause = Texts::tr("the prefix '%1:'").arg(name.section(QLatin1Char(':'), 0, 0));
            }
        }
    }
}

} // namespace schemadoctor
