#ifndef XMLHELPER_DOMORDER_P_H
#define XMLHELPER_DOMORDER_P_H

class QDomNode;

/// The node after @p node in document order below @p start, a null node at the end. Descends into elements only, and
/// not into @p node when @p isToSkipChildren is set. Uses no recursion.
QDomNode nextBelow(const QDomNode& start, const QDomNode& node, bool isToSkipChildren);

/// The sibling behind @p node. Qt leaves a node its siblings when it frees the parent, so one without a parent has
/// none.
QDomNode siblingBehind(const QDomNode& node);

/// The sibling before @p node, in the same way.
QDomNode siblingBefore(const QDomNode& node);

#endif
