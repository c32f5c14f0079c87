#ifndef XMLHELPER_DOMPARSER_H
#define XMLHELPER_DOMPARSER_H

#include <functional>
#include <list>
#include <memory>
#include <utility>
#include <vector>

#include <QDomDocument>
#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "constants_p.h"
#include "domattributes_p.h"
#include "ownerindex_p.h"
#include "schemamodel.h"
#include "treechangedetector_p.h"
#include "walklog_p.h"

class IXMLHelper;

/// Walks the skeleton document of a schema, announces every element to the observer and prunes what the observer left
/// unfilled although the schema allows it to be missing.
///
/// The report builder makes one for each report, gives it the document with SetDocument() and calls Walk() once. While
/// an element is announced (an ElemBeginEvent is being delivered) the observer fills it through the builder, which
/// works on GetCurrentElement() and says with ContinueAt() that the element has been dealt with. After an announcement
/// without such a notice the element is checked:
///
/// - an optional element or a choice alternative that has a type is removed;
/// - an optional container, or a container that is a choice alternative, goes on probation: it is removed when the
///   first value element met inside is left unfilled, and kept when a notice comes first;
/// - everything else stays, and MAX_OCCURS_EXCEEDED is sent, as a diagnosis rather than a failure.
///
/// Which elements are optional is decided by names, so elements of equal name in different places count as the same.
///
/// Observer and document are not owned. Removed nodes stay alive as long as the parser, so that its operations can be
/// called whatever was removed. One made with a null observer traces it and must not be used.
class DomParser
{
public:
    /// @param pCallback  the observer, not owned
    /// @param occurs     the parser's own from then on; move it in where the caller is done with it
    /// @param choices    copied
    DomParser(IXMLHelper* pCallback, OccursMap occurs, const ChoiceMap& choices);

    /// Takes the document to walk, not owned. Null is refused (false) and changes nothing.
    bool SetDocument(QDomDocument* document);

    /// Tells @p log from now on what becomes of the elements; not owned, null for nobody.
    void SetLog(WalkLog* log) { m_pLog = log; }

    /// Announces the document, its elements and its end. Gives false, and announces nothing, without a document that
    /// has a root element.
    bool Walk();

    /// The element announced last, always the same object; null before the first announcement. The element is a null
    /// one while a node of another kind is announced.
    QDomElement* GetCurrentElement();

    /// Says where the walk goes on after the announcement: behind @p element, or with @p revisit at @p element itself,
    /// which is then announced. A pointer to a null element ends the level. Gives false for a null pointer.
    bool ContinueAt(QDomElement* element, bool revisit);

    /// Lists the nodes called @p name below the first element called @p ownerName, or in the whole document when that
    /// is empty. The caller deletes the list.
    std::list<QDomNode>* SearchElements(const QString& name, const QString& ownerName);

    /// Whether @p element is one of those that SearchElements() lists below @p ownerName, found without making the
    /// list. An empty owner name is nobody's.
    bool IsBelowOwner(const QString& name, const QString& ownerName, const QDomNode& element);

    /// The greatest number of a choice alternative called @p name; NO_INDEX when there is none.
    int AlternativeNumber(const QString& name) const { return m_alternatives.value(name, NO_INDEX); }

    /// Whether the occurrence of elements called @p name is limited in any way.
    bool IsLimited(const QString& name) const;

    /// Whether @p element, called @p tagName, is one of those that IsBelowOwner() accepts for some owner under which
    /// @p name was declared with an occurs code that @p isWanted accepts. What it costs depends on how deep the element
    /// stands, not on the number of owners or elements.
    bool IsDeclaredAbove(const QString& name, const QString& tagName, const QDomNode& element,
                         const std::function<bool(int)>& isWanted);

    /// Whether @p name was declared to occur @p count times under an owner above @p element, see IsDeclaredAbove().
    bool IsCountDeclared(const QString& name, const QString& tagName, int count, const QDomElement& element);

    // The changes of the builder, which are to be made with these. Anything else that happens to the document is taken
    // for somebody else's change (see OwnerIndex).

    /// Removes @p node from its parent; gives a null node when it could not be removed.
    QDomNode Remove(const QDomNode& node);

    /// What is kept alive although it is in the document no more.
    const std::list<QDomNode>& RemovedNodes() const { return m_removedNodes; }

    /// Inserts @p copies deep copies of @p element behind it.
    void InsertCopies(const QDomElement& element, int copies);

    /// Sets an attribute of the current element.
    void SetAttribute(const QString& name, const QString& value);

    /// Removes an attribute of the current element, if it is there.
    void RemoveAttribute(const QString& name);

    /// Removes @p attributes of the current element.
    void RemoveAttributes(const DomAttributes& attributes);

    /// The names of the attributes of the current element that may be facets: those that contain the name of one. Some
    /// of them may be gone. They are listed once, and again when somebody else has changed something. Null when it
    /// costs less to look at all attributes, because there are few or this is the first question about the element.
    const QStringList* FacetNames();

    /// To be held while texts and attributes are changed.
    OwnerIndex::OwnChange Change() { return OwnerIndex::OwnChange(m_pOwners.get()); }

private:
    Q_DISABLE_COPY(DomParser)

    using Limits = OccursMap::value_type; ///< a name with what limits its occurrence

    /// The owners of a name and the occurs codes that they go with, in the order of the owners' names, each once.
    using Declarations = std::vector<std::pair<QString, int>>;

    /// Where the walk stands among the children of one element.
    struct Level
    {
        QDomNode node;
        QString text; ///< of the last sibling that had one
    };

    template <class Edit> void changeAttributes(const Edit& edit);
    void listFacets();
    bool areFacetsKnown() const;
    QDomNode takeOut(const QDomNode& node);
    void standOn(const QDomNode& node);
    void keepParent();
    void leave(Level& level);
    void visit();
    void takeText(Level& level, bool isTopLevel, DomAttributes& attributes);
    void announce(const QDomNode& node, const DomAttributes& attributes, const QString& text);
    WalkLog::Kind kindOf(const QDomNode& node) const;
    bool takeNotice();
    void endProbation();
    void keep(WalkLog::Keeping why);
    bool checkCurrentElement();
    bool isOptional();
    bool isChoiceAlternative() const;
    void removeProbationElement();
    void removeCurrentElement(WalkLog::Removal why);
    bool isBelowAnyCalled(const QString& ownerName, const QString& tagName, const QDomNode& element);
    OwnerIndex& owners();
    QSet<QString> ownerNames() const;
    template <class IsWanted>
    bool isBelowOwnerOf(const Limits& limits, const QString& tagName, const QDomNode& element,
                        const IsWanted& isWanted);
    template <class IsOwner> bool isBelowTop(const IsOwner& isOwner, const QString& tagName, const QDomNode& element);
    template <class IsOwner>
    bool isFoundBelowOwner(const IsOwner& isOwner, const QString& tagName, const QDomNode& element);
    const Declarations& sortedDeclarations(const Limits& limits);

    QDomDocument* m_pDocument;
    QDomNode m_resumeNode; ///< where the walk goes on after a notice or a removal
    QDomElement m_root; ///< at which the walk began
    QDomElement m_currentElement;
    QDomNode m_currentParent;
    QDomElement m_facetElement; ///< about whose facets was asked last
    QStringList m_facetNames;
    std::unique_ptr<TreeChangeDetector> m_pFacetChanges; ///< null until the names are listed
    QDomElement m_probationElement; ///< kept only if something inside it is filled; null when there is none
    IXMLHelper* m_pCallback;
    WalkLog* m_pLog; ///< not owned; null: nobody wants to know
    OccursMap m_occurs;
    QHash<QString, Declarations> m_sortedDeclarations; ///< of names with many owners that have been asked for
    QHash<QString, int> m_alternatives; ///< the greatest number of each name
    bool m_bResume; ///< a notice is pending
    bool m_bRevisit; ///< the notice asks to announce its element

    bool m_bAnnounced; ///< anything has been announced
    std::vector<Level> m_levels; ///< from the children of the root down to where the walk stands

    /// Keeps alive what was removed, by the observer too where the walk comes by: the walk goes on inside a container
    /// that was removed from further below, and the current element may stay there, also when the walk has ended.
    std::list<QDomNode> m_removedNodes;
    std::unique_ptr<OwnerIndex> m_pOwners; ///< from the first question on that it answers
};

#endif
