#ifndef XMLHELPER_TAGSCANNER_P_H
#define XMLHELPER_TAGSCANNER_P_H

class QIODevice;

/// Whether the content of @p device, read from where it stands to its end, surely nests its elements at most @p limit
/// deep, as a look at its tags shows. That is much faster than a parse, but knows little of XML: content with anything
/// but tags and text in it (comments, sections, instructions, a document type), or in an encoding in which a byte may
/// be something else than it is in ASCII, gives false, as does everything that is nested too deep.
bool isSurelyNestedWithin(int limit, QIODevice& device);

#endif
