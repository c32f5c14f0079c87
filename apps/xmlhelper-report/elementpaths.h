#ifndef REPORTCHECK_ELEMENTPATHS_H
#define REPORTCHECK_ELEMENTPATHS_H

#include <libxml/tree.h>

#include <QHash>
#include <QString>

namespace reportcheck {

/// Where elements stand in a document that does not change: names, with a number where siblings share one, such as
/// "/Report/Signal/Sample[2]".
///
/// The children of an element are numbered once, so asking for every element of a document takes time in proportion to
/// its size.
class ElementPaths
{
public:
    QString PathOf(const xmlNode* element);

private:
    QString stepTo(const xmlNode* element);
    void numberChildren(const xmlNode* parent);

    QHash<const xmlNode*, QString> m_steps;
};

} // namespace reportcheck

#endif
