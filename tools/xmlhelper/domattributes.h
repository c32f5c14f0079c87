#ifndef XMLHELPER_DOMATTRIBUTES_H
#define XMLHELPER_DOMATTRIBUTES_H

#include <QDomAttr>
#include <QVarLengthArray>

class QDomElement;

/// Few elements have more attributes.
using DomAttributes = QVarLengthArray<QDomAttr, 8>;

/// The attributes of @p element in the order of its attribute map, at a cost that grows with their number, where
/// QDomNamedNodeMap::item() counts from the start each time.
DomAttributes attributesOf(const QDomElement& element);

#endif
