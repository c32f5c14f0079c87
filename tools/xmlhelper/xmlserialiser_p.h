#ifndef XMLHELPER_XMLSERIALISER_P_H
#define XMLHELPER_XMLSERIALISER_P_H

class QDomNode;
class QTextStream;

/// Writes @p node and what is below it to @p stream as QDomNode::save() does, to the same characters and in the
/// encoding that a document declares. Gives whether all of it was written: it ends when the stream fails and, with a
/// trace, where more would be written than limits().savedBytes.
///
/// Qt recurses over the levels of a document, and needs a time that grows with the square of the number of characters
/// to escape in one text. Here any depth will do, and the time grows with the length of the text; beside the elements
/// that are open there is never more of it in memory than 2 million characters, and what the stream makes of them.
bool serialise(const QDomNode& node, QTextStream& stream, int indent);

#endif
