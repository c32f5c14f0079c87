#ifndef XMLHELPER_OWNERINDEX_H
#define XMLHELPER_OWNERINDEX_H

#include <vector>

#include <QDomDocument>
#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>

#include "treechangedetector.h"

/// Knows of certain names which element bears each of them first in a document, as ElementSearch::FirstMatch() would
/// find it from the root, without searching again for every question.
///
/// The index is made when it is first asked. It is kept current through the changes that are made with its own
/// operations, and made anew after any other change. Of elements that are renamed (QDomElement::setTagName), which
/// nothing tells of, it notices the first one of a name when that is asked for, and one that is given a name that
/// nobody had; for others Invalidate() must be called. Only elements of the searched names are stored; the document is
/// not owned.
class OwnerIndex
{
public:
    OwnerIndex(const QDomDocument& document, const QSet<QString>& names);

    /// Brings the index up to date. Gives false for a document in which a search by name may find something else than
    /// the first element of that name (see ElementSearch), or that has content behind its root: then it cannot be used.
    bool Refresh();

    /// Whether @p element is the first in the document of all that are called @p name, which is its own name and one of
    /// the names of the index. To be asked after Refresh() has given true.
    bool IsFirst(const QDomNode& element, const QString& name);

    /// Has the index made anew before it is used next.
    void Invalidate() { m_bCurrent = false; }

    /// Removes @p node from its parent; gives a null node when it could not be removed.
    QDomNode Remove(const QDomNode& node);

    /// Inserts @p copies deep copies of @p element behind it.
    void InsertCopies(const QDomElement& element, int copies);

    /// While one lives, changes of texts and attributes are not taken for somebody else's. They may be nested.
    class OwnChange
    {
    public:
        /// @param index  null: there is none yet
        explicit OwnChange(OwnerIndex* index);
        ~OwnChange();

    private:
        Q_DISABLE_COPY(OwnChange)

        OwnerIndex* m_pIndex;
    };

private:
    Q_DISABLE_COPY(OwnerIndex)

    /// The elements of one name as they were when the index was made, in reverse order. Those that have been removed
    /// since then are dropped when they are met.
    struct Bearers
    {
        std::vector<QDomElement> elements;
        bool isCopied = false; ///< since then there are others
    };

    void beginOwnChange();
    void endOwnChange();
    void noticeChanges();
    void make();
    bool isOutdated(const Bearers& bearers, const QDomNode& element, const QString& name) const;
    bool isIndexable(const QDomNode& node) const;
    bool isInDocument(const QDomNode& node) const;

    QDomDocument m_document;
    TreeChangeDetector m_changes;
    QHash<QString, Bearers> m_bearers;
    bool m_bCurrent; ///< the index describes the document as it was at the last reset of the detector
    bool m_bUsable;
    int m_iOwnChanges; ///< under way
};

#endif
