#ifndef XMLHELPER_DOMEXTENT_P_H
#define XMLHELPER_DOMEXTENT_P_H

class QDomNode;

/// How much there is of a piece of a document.
struct DomExtent
{
    int elements; ///< how many elements
    int levels; ///< how deep they are nested
    int attributes; ///< how many attributes they have
};

/// The extent of @p node and everything below it. Uses no recursion, so that any document can be measured.
DomExtent extentOf(const QDomNode& node);

/// How many elements @p node and its ancestors are.
int levelOf(const QDomNode& node);

#endif
