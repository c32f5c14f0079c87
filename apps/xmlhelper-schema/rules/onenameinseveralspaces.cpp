#include "rule.h"

namespace schemadoctor {

void oneNameInSeveralSpaces(const Schema& schema, Findings& findings)
{
    for (const SchemaRecord::Replacement& replacement : schema.GetRecord().GetReplacements()) {
        const TextNode& earlier = *replacement.earlier;
        const TextNode& later = *replacement.later;
        findings.Add(Severity::Error, later,
                     Texts::tr("%1 is called like %2 in line %3 of %4.")
                         .arg(described(later), described(earlier))
                         .arg(earlier.line)
                         .arg(earlier.file->name.section(QLatin1Char('/'), -1)),
                     Texts::tr("Elements, attributes and types share one space of names: this one takes the place of "
                               "the earlier one for all that refers to the name from here on."),
                     Texts::tr("Give each global declaration and each type a name of its own."));
    }
}

} // namespace schemadoctor
