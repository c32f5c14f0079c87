#include "rule.h"

namespace schemadoctor {

void use(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"attribute"})) {
        const QString use = tag->Value("use");
        if (use == QLatin1String("prohibited")) {
            findings.Add(Severity::Warning, *tag, Texts::tr("%1 is prohibited.").arg(described(*tag)),
                         Texts::tr("It is laid out all the same, and stays unless the observer removes it."),
                         Texts::tr("Leave the attribute out of the schema."));
        } else if (use == QLatin1String("optional")) {
            findings.Add(Severity::Note, *tag, Texts::tr("%1 is optional.").arg(described(*tag)),
                         Texts::tr("The word is passed over: an attribute that is neither set nor removed stays in the "
                                   "report and holds its type."),
                         Texts::tr("Leave the word out, it is what XML Schema assumes; see that the observer sets or "
                                   "removes the attribute."));
        }
    }
}

} // namespace schemadoctor
