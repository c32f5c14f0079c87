#ifndef XMLHELPER_TAKEAPART_P_H
#define XMLHELPER_TAKEAPART_P_H

#include <list>

class QDomDocument;
class QDomNode;

/// Empties @p document, so that it may go although somebody may hold nodes of it. Qt leaves these with siblings,
/// parents and a document that have gone.
///
/// An element that is held keeps its name, its attributes and, where that was all it held besides elements, its text.
/// It has no parent, siblings or child elements any more; its document is another, empty one that stays for good.
void takeApart(const QDomDocument& document);

/// Does the same with those of @p nodes that have no parent, and with what is below them.
void takeApart(const std::list<QDomNode>& nodes);

#endif
