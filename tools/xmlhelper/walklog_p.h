#ifndef XMLHELPER_WALKLOG_P_H
#define XMLHELPER_WALKLOG_P_H

#include <QtGlobal>

class QDomElement;
class QDomNode;

/// Is told by a DomParser what it does with the elements of its document, and why. Every hook is empty by default, and
/// must leave the document as it is; a walk without a log costs the question for it.
///
/// What becomes of an element is told behind its announcement: that it is kept, that it goes on probation, or that
/// something is removed. An element on probation may be removed at any later element that holds a value, and that one
/// is announced again then, unless the place where the walk goes on lies behind it.
class WalkLog
{
public:
    /// As what a node is announced.
    enum class Kind {
        Root,
        Value, ///< an element with a type
        Container, ///< an element without one
        Other, ///< a text or comment below the root
    };

    enum class Keeping {
        Answered, ///< the observer has dealt with it
        AnnouncedAgain, ///< the observer has asked for that, of this or of another element
        Mandatory, ///< unfilled, and neither optional nor an alternative
        Unjudged, ///< unfilled; whether it may be missing is not asked while another container is on probation
    };

    enum class Removal {
        Optional, ///< unfilled, with minOccurs 0
        Alternative, ///< unfilled, of a choice
        Probation, ///< a container on probation: the element announced last holds a value and is unfilled
        Builder, ///< the builder has removed it: an alternative that is not wanted
    };

    virtual ~WalkLog() = default;

    /// @p node is about to be announced.
    virtual void Announced(const QDomNode& node, Kind kind) { Q_UNUSED(node) Q_UNUSED(kind) }

    virtual void Kept(const QDomElement& element, Keeping why) { Q_UNUSED(element) Q_UNUSED(why) }

    /// An unfilled container that may be missing.
    virtual void PutOnProbation(const QDomElement& container) { Q_UNUSED(container) }

    /// The container on probation is kept, because an element was dealt with.
    virtual void EndedProbation(const QDomElement& container) { Q_UNUSED(container) }

    /// @p element is about to be removed.
    virtual void Removed(const QDomElement& element, Removal why) { Q_UNUSED(element) Q_UNUSED(why) }

    /// @p copies copies of @p element follow it.
    virtual void Copied(const QDomElement& element, int copies) { Q_UNUSED(element) Q_UNUSED(copies) }

    /// No owner above @p element was declared to hold @p count of it.
    virtual void CountRefused(const QDomElement& element, int count) { Q_UNUSED(element) Q_UNUSED(count) }
};

#endif
