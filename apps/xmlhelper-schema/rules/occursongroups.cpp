#include "rule.h"

namespace schemadoctor {

void occursOnGroups(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags({"choice", "sequence", "all"})) {
        if (occursOf(*tag, "minOccurs", 1) != 1 || occursOf(*tag, "maxOccurs", 1) != 1) {
            findings.Add(Severity::Warning, *tag,
                         Texts::tr("%1 has minOccurs or maxOccurs of its own.").arg(tag->qName),
                         Texts::tr("They are passed over: what is inside is laid out once, and is optional or "
                                   "repeatable only by its own minOccurs and maxOccurs."),
                         Texts::tr("Write minOccurs and maxOccurs at the elements inside, or at an element around "
                                   "them."));
        }
    }
}

} // namespace schemadoctor
