#include "rule.h"

namespace schemadoctor {

void anyElement(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"any"})) {
        const bool isRequired = tag->Value("minOccurs") != QLatin1String("0");
        findings.Add(isRequired ? Severity::Error : Severity::Note, *tag,
                     Texts::tr("xs:any leaves a place for elements that are not named."),
                     isRequired
                         ? Texts::tr("It is passed over: nothing is laid out there, though an element is required.")
                         : Texts::tr("It is passed over: no report has an element there."),
                     Texts::tr("Declare the elements that a report may have."));
    }
}

} // namespace schemadoctor
