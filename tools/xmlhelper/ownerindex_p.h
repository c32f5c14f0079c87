#ifndef XMLHELPER_OWNERINDEX_P_H
#define XMLHELPER_OWNERINDEX_P_H

#include <list>
#include <vector>

#include <QDomDocument>
#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

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
/// it takes for the first. Of elements with prefixes, in whose place a search finds the top node, it knows those before
/// the walk's place. The document is not owned.
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

    /// Takes the end of what is below the root for the walk's place.
    void GoToEnd();

    /// Whether a node has the root's name, @p name, too. To be asked at the end.
    bool IsBelowRoot(const QString& name) const;

    /// Whether elements with prefixes have been met, of which a search compares the names in other ways.
    bool HasPrefixes() const { return !m_prefixed.isEmpty(); }

    /// The searched names that such elements bear behind their prefixes. A search for one of these finds the top node.
    QStringList NamesBehindPrefixes() const { return m_prefixed.keys(); }

    /// Whether a search for @p name meets such an element, not only inside of elements of that very name.
    bool IsBehindPrefix(const QString& name);

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
        std::vector<QDomElement> elements; ///< those that bear it behind a prefix among them
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
    void seePrefixed(const QDomElement& element);
    bool isFirst(const QDomElement& element, const QString& name);
    bool isFound(const QDomElement& element, const QString& name) const;
    bool isInDocument(const QDomNode& node) const;
    bool isBelowCalled(const QDomElement& element, const QString& name) const;

    QDomDocument m_document;
    TreeChangeDetector m_changes;
    QHash<QString, Bearers> m_bearers;
    QHash<QString, std::list<QDomElement>> m_prefixed; ///< that bear a name behind a prefix, in document order
    std::vector<Step> m_path; ///< from the root down
    bool m_bOutdated; ///< others have changed something since all was seen
    int m_iOwnChanges; ///< under way
    qint64 m_iSeen; ///< nodes, since the index looked at the root
    qint64 m_iAllowed; ///< nodes that may be looked at again
};

#endif
