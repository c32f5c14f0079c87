#ifndef XMLHELPER_OWNERINDEX_P_H
#define XMLHELPER_OWNERINDEX_P_H

#include <vector>

#include <QDomDocument>
#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>

#include "treechangedetector_p.h"

/// Knows of the elements above the place where a walk stands which are the first of their name in the document, as
/// ElementSearch::FirstMatch() would find it from the root, without a search for every question.
///
/// Only what stands before an element can be first in its place. So the index follows the walk with GoTo(), looks once
/// at each node that the walk has passed, and keeps the elements that bear one of the searched names. What happens
/// where the walk stands or behind it needs no notice, whoever does it, and what has been removed is dropped when it is
/// met.
///
/// What somebody else puts before the walk's place is found by looking again at all that lies before it. Nothing tells
/// such a change from any other, such as that of an attribute; so after each change of others the index looks again, as
/// far as Limits::nodesLookedAtAgain and some nodes more for each question allow: the work stays in proportion to the
/// walk. Of elements that are renamed, which nothing tells of, it notices those above the walk's place and those that
/// it takes for the first. The document is not owned.
class OwnerIndex
{
public:
    OwnerIndex(const QDomDocument& document, const QSet<QString>& names);

    /// Takes @p node for the walk's place, which moves forward in the document. Gives false when the node is not below
    /// the root; then the place stays.
    bool GoTo(const QDomNode& node);

    /// How many elements stand above the walk's place. The root is at level 0.
    std::size_t Levels() const { return m_path.size(); }

    const QString& NameAt(std::size_t level) const { return m_path[level].name; }

    /// Whether the element at @p level is the first in the document of all that bear its name, which is one of the
    /// searched ones or that of the top node; false for other names.
    bool IsFirstAt(std::size_t level);

    /// Whether elements with prefixes have been met, of which a search compares the names in other ways.
    bool HasPrefixes() const { return m_bPrefixes; }

    /// Says that @p node is about to be removed.
    void Forget(const QDomNode& node);

    /// While one lives, changes are not taken for somebody else's. They may be nested.
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

    enum class Rank { Unknown, First, Later };

    /// An element above the walk's place.
    struct Step
    {
        QDomElement element;
        QString name;
        QDomNode lastSeen; ///< of its children; all that stands before is seen, too. Null: none
        Rank rank;
    };

    /// The nodes of one name that have been passed, in document order.
    struct Bearers
    {
        std::vector<QDomElement> elements;
        std::size_t first = 0; ///< those before it are gone
        bool isHidden = false; ///< other nodes bear the name, behind which a search does not look
    };

    void beginOwnChange();
    void endOwnChange();
    void noticeChanges();
    bool isBelowPath(const QDomNode& node) const;
    bool followTo(const QDomNode& node);
    void lookAgainIfAllowed();
    std::size_t matchingLevels(const std::vector<QDomElement>& elements);
    void leave();
    void enter(const QDomElement& element);
    void seeChildrenUpTo(Step& step, const QDomNode& end);
    void see(const QDomNode& node);
    bool isFirst(const QDomElement& element, const QString& name);
    bool isInDocument(const QDomNode& node) const;

    QDomDocument m_document;
    TreeChangeDetector m_changes;
    QHash<QString, Bearers> m_bearers;
    std::vector<Step> m_path; ///< from the root down
    bool m_bPrefixes;
    bool m_bOutdated; ///< others have changed something since all was seen
    int m_iOwnChanges; ///< under way
    qint64 m_iSeen; ///< nodes, since the index looked at the root
    qint64 m_iAllowed; ///< nodes that may be looked at again
};

#endif
