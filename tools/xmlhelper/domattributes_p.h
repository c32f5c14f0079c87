#ifndef XMLHELPER_DOMATTRIBUTES_P_H
#define XMLHELPER_DOMATTRIBUTES_P_H

#include <QDomAttr>
#include <QVarLengthArray>

class QDomElement;

/// Few elements have more attributes.
using DomAttributes = QVarLengthArray<QDomAttr, 8>;

/// The attributes of @p element in the order of its attribute map, at a cost that grows with their number, where
/// QDomNamedNodeMap::item() counts from the start each time.
///
/// Those of more than 500 are found by having Qt save the element. If more is below it than it has attributes, a copy
/// without that is saved, whose map need not have the same order among names that hash alike. On Qt 5 the time grows
/// with the square of the number of characters to escape in one value of such an element, and with that of the number
/// of attributes if one of the names is none that XML allows or has a prefix without a namespace.
DomAttributes attributesOf(const QDomElement& element);

#endif
