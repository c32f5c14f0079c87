#ifndef XMLHELPER_TREECHANGEDETECTOR_P_H
#define XMLHELPER_TREECHANGEDETECTOR_P_H

#include <QDomElement>
#include <QDomNodeList>
#include <QString>

class QDomDocument;

/// Tells at a constant cost whether anything in a document was changed since the last Reset(), by whomever.
///
/// Qt gives no notice of changes, but a node list that is held makes itself anew, when it is asked, once anything has
/// been inserted, removed or set; renaming an element alone does not make it do so. So a list of elements by name is
/// held over an element of our own, outside of the tree, whose child is renamed at each reset: the list keeps its old
/// length until something else changes.
///
/// Changes of attributes and, in Qt 5, of other documents count as well. Renaming an element (QDomElement::setTagName)
/// is not noticed. Should a Qt keep its lists in another way, every question is answered with yes.
class TreeChangeDetector
{
public:
    /// Counts as changed until the first reset.
    explicit TreeChangeDetector(const QDomDocument& document);

    /// Forgets the changes made so far.
    void Reset();

    /// Whether anything was changed since the last reset.
    bool IsChanged() const { return m_list.count() != m_iUnchangedLength; }

private:
    const QString m_sListedName;
    const QString m_sOtherName;
    QDomElement m_probe;
    QDomElement m_child;
    QDomNodeList m_list; ///< the child, under one of its two names
    int m_iUnchangedLength;
};

#endif
