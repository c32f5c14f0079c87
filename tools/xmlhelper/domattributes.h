#ifndef XMLHELPER_DOMATTRIBUTES_H
#define XMLHELPER_DOMATTRIBUTES_H

#include <vector>

#include <QDomAttr>

class QDomElement;

/// The attributes of @p element in the order of its attribute map, at a cost that grows with their number, where
/// QDomNamedNodeMap::item() counts from the start each time.
std::vector<QDomAttr> attributesOf(const QDomElement& element);

#endif
