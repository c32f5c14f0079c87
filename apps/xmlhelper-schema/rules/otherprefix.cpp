#include "rule.h"

namespace schemadoctor {

/// The library knows tags by the literal prefix "xs:".
void otherPrefix(const Schema& schema, Findings& findings)
{
    for (const TextFile* const file : schema.GetFiles()) {
        const QLatin1String prefix("xs:");
        for (const TextNode* const tag : file->tags) {
            if (tag->qName.startsWith(prefix) && tag->isOfSchemaNamespace) {
                continue;
            }
            if (tag->isOfSchemaNamespace) {
                findings.Add(
                    Severity::Error, *tag,
                    Texts::tr("The tags of XML Schema are written without the prefix 'xs:': <%1>.").arg(tag->qName),
                    Texts::tr("They are passed over without a word: nothing of them is laid out."),
                    Texts::tr("Declare xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" and write xs: in front "
                              "of every tag and every type of XML Schema."));
                break;
            }
            if (!tag->parent) {
                findings.Add(Severity::Error, *tag,
                             Texts::tr("The file is no XML schema: its root is <%1>.").arg(tag->qName),
                             Texts::tr("Nothing of it is laid out."),
                             Texts::tr("Write <xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"> as its root."));
                break;
            }
        }
    }
}

} // namespace schemadoctor
