#include "domparser.h"

#include <algorithm>
#include <list>
#include <map>
#include <memory>
#include <utility>

#include <QXmlAttributes>

#include "docbeginevent.h"
#include "docendevent.h"
#include "domattributes_p.h"
#include "domorder_p.h"
#include "elembeginevent.h"
#include "elementsearch_p.h"
#include "errorevent.h"
#include "eventdelivery_p.h"
#include "skeletonwords_p.h"
#include "tracing_p.h"
#include "valuerules_p.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

QXmlAttributes toSax(const DomAttributes& listed)
{
    const QString none = QLatin1String("");
    QXmlAttributes attributes;
    for (const QDomAttr& attribute : listed) {
        attributes.append(attribute.name(), none, none, attribute.value());
    }
    return attributes;
}

QString defaultIn(const DomAttributes& attributes)
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [](const QDomAttr& attribute) { return attribute.name() == DefaultAttribute(); });
    return found == attributes.end() ? QString() : found->value();
}

bool isValueElement(const QDomElement& element)
{
    return isValueType(element.attribute(TypeAttribute()));
}

/// Up to here listing the attributes takes less than knowing those that were listed.
constexpr int FewToList = 16;

/// Up to here a list of owners is looked through as it is.
constexpr std::size_t FewOwners = 8;

bool isLong(const std::map<int, std::list<QString>>& ownersOfCodes)
{
    return std::any_of(ownersOfCodes.begin(), ownersOfCodes.end(),
                       [](const auto& ownersOfCode) { return ownersOfCode.second.size() > FewOwners; });
}

/// Whether @p owner is listed with a code that is wanted.
template <class IsWanted>
bool isAmong(const std::map<int, std::list<QString>>& ownersOfCodes, const QString& owner, const IsWanted& isWanted)
{
    return std::any_of(ownersOfCodes.begin(), ownersOfCodes.end(), [&](const auto& ownersOfCode) {
        const std::list<QString>& owners = ownersOfCode.second;
        return isWanted(ownersOfCode.first) && std::find(owners.begin(), owners.end(), owner) != owners.end();
    });
}

/// The same for declarations in the order of the owners' names.
template <class IsWanted>
bool isAmong(const std::vector<std::pair<QString, int>>& declarations, const QString& owner, const IsWanted& isWanted)
{
    auto declaration = std::lower_bound(declarations.begin(), declarations.end(), owner,
                                        [](const auto& left, const QString& name) { return left.first < name; });
    while (declaration != declarations.end() && declaration->first == owner && !isWanted(declaration->second)) {
        ++declaration;
    }
    return declaration != declarations.end() && declaration->first == owner;
}

/// Whether a search for @p tagName that starts at @p root, the top node, reports @p element below it. A search for the
/// root's own name starts there, whatever else bears the name.
bool isBelowRoot(const QDomElement& root, const QString& tagName, const QDomNode& element)
{
    QDomNode above = element.prefix().isEmpty() ? element.parentNode() : QDomNode();
    while (!above.isNull() && above != root && above.nodeName() != tagName) {
        above = above.parentNode();
    }
    return above == root;
}

/// Whether a search for one of the owners meets an element that bears the name behind a prefix.
template <class IsOwner> bool isAnyBehindPrefix(OwnerIndex& index, const IsOwner& isOwner)
{
    const QStringList names = index.HasPrefixes() ? index.NamesBehindPrefixes() : QStringList();
    return std::any_of(names.begin(), names.end(),
                       [&](const QString& name) { return isOwner(name) && index.IsBehindPrefix(name); });
}

} // namespace

DomParser::DomParser(IXMLHelper* pCallback, OccursMap occurs, const ChoiceMap& choices)
    : m_pDocument(nullptr)
    , m_pCallback(pCallback)
    , m_pLog(nullptr)
    , m_bResume(false)
    , m_bRevisit(false)
    , m_bAnnounced(false)
{
    if (!checkObserver(pCallback, "DomParser", "domparser", 37)) {
        return;
    }
    m_occurs = std::move(occurs);
    for (const auto& [number, name] : choices) {
        m_alternatives.insert(name, number);
    }
    m_alternatives.remove(QString());
}

bool DomParser::SetDocument(QDomDocument* document)
{
    if (!document) {
        return false;
    }
    m_pDocument = document;
    m_pOwners.reset();
    return true;
}

WalkLog::Kind DomParser::kindOf(const QDomNode& node) const
{
    if (node == m_root) {
        return WalkLog::Kind::Root;
    }
    if (!node.isElement()) {
        return WalkLog::Kind::Other;
    }
    return isValueElement(node.toElement()) ? WalkLog::Kind::Value : WalkLog::Kind::Container;
}

bool DomParser::Walk()
{
    if (!m_pCallback || !m_pDocument || m_pDocument->documentElement().isNull()) {
        return false;
    }
    m_pOwners.reset();
    deliver<DocBeginEvent>(m_pCallback);
    m_root = m_pDocument->documentElement();
    standOn(m_root);
    announce(m_root, attributesOf(m_root), QLatin1String(""));

    // A stack of our own: siblings of pruned containers are walked one level deeper, without a limit.
    m_levels.push_back({m_root.firstChild(), QLatin1String("")});
    while (!m_levels.empty()) {
        const QDomNode node = m_levels.back().node;
        const bool isTopLevel = m_levels.size() == 1;
        if (!node.isNull() && (isTopLevel || !node.isText())) {
            visit();
            continue;
        }
        m_levels.pop_back();
        if (!m_levels.empty()) {
            leave(m_levels.back());
        }
    }
    deliver<DocEndEvent>(m_pCallback);
    return true;
}

QDomElement* DomParser::GetCurrentElement()
{
    keepParent(); // An observer may have moved the element.
    return m_bAnnounced ? &m_currentElement : nullptr;
}

bool DomParser::ContinueAt(QDomElement* element, bool revisit)
{
    if (!element) {
        return false;
    }
    m_resumeNode = *element;
    m_bResume = true;
    m_bRevisit = revisit;
    return true;
}

std::list<QDomNode>* DomParser::SearchElements(const QString& name, const QString& ownerName)
{
    auto results = std::make_unique<std::list<QDomNode>>();
    if (m_pDocument) {
        const ElementSearch search(m_pDocument->lastChild());
        QDomElement start = m_pDocument->documentElement();
        if (!ownerName.isEmpty()) {
            start = search.FirstMatch(ownerName, start).toElement();
        }
        if (!start.isNull()) {
            search.AppendMatches(name, start, *results);
        }
    }
    return results.release();
}

bool DomParser::IsBelowOwner(const QString& name, const QString& ownerName, const QDomNode& element)
{
    if (!m_pDocument || ownerName.isEmpty()) {
        return false;
    }
    const ElementSearch search(m_pDocument->lastChild());
    const QDomElement start = search.FirstMatch(ownerName, m_pDocument->documentElement()).toElement();
    return !start.isNull() && search.IsMatch(name, start, element);
}

bool DomParser::IsLimited(const QString& name) const
{
    return m_occurs.find(name) != m_occurs.end();
}

template <class IsWanted>
bool DomParser::isBelowOwnerOf(const Limits& limits, const QString& tagName, const QDomNode& element,
                               const IsWanted& isWanted)
{
    const Declarations* const sorted = isLong(limits.second) ? &sortedDeclarations(limits) : nullptr;
    const auto isOwner = [&](const QString& owner) {
        return sorted ? isAmong(*sorted, owner, isWanted) : isAmong(limits.second, owner, isWanted);
    };
    const QDomElement root = m_pDocument->documentElement();
    const QDomNode top = m_pDocument->lastChild();
    if (!root.prefix().isEmpty()) {
        return isFoundBelowOwner(isOwner, tagName, element);
    }
    // Among many owners, the root takes as long to find as the answer.
    if (!sorted && top == root && isOwner(root.tagName()) && isBelowRoot(root, tagName, element)) {
        return true;
    }
    OwnerIndex& index = owners();
    if (element == root) { // A search that starts at the root reports the root too.
        return top == root && (isOwner(tagName) || isAnyBehindPrefix(index, isOwner));
    }
    if (!index.GoTo(element)) {
        return top != root && top.isElement() && isBelowTop(isOwner, tagName, element);
    }
    // A search for the root's name, or for one behind a prefix, reports the top node, whose name is searched for then.
    const bool isTopReported = (top != root && isOwner(root.tagName())) || isAnyBehindPrefix(index, isOwner);
    const QString topName = isTopReported ? top.nodeName() : QString();
    for (std::size_t level = element.prefix().isEmpty() ? index.Levels() : 0; level-- > 0;) {
        const QString& name = index.NameAt(level);
        if ((isOwner(name) || name == topName) && index.IsFirstAt(level)) {
            return true;
        }
        if (name == tagName) {
            return false; // A match hides what is below it.
        }
    }
    return false;
}

/// The same for an element outside of the root, where a search may start at the top node only.
template <class IsOwner>
bool DomParser::isBelowTop(const IsOwner& isOwner, const QString& tagName, const QDomNode& element)
{
    OwnerIndex& index = owners();
    index.GoToEnd();
    const QDomElement top = m_pDocument->lastChild().toElement();
    const QString rootName = m_pDocument->documentElement().tagName();
    if (element == top || index.HasPrefixes()) {
        return isFoundBelowOwner(isOwner, tagName, element);
    }
    return isOwner(rootName) && ElementSearch(top).IsMatch(tagName, top, element)
        && (top.nodeName() == rootName || index.IsBelowRoot(rootName));
}

/// The same, found by searches.
template <class IsOwner>
bool DomParser::isFoundBelowOwner(const IsOwner& isOwner, const QString& tagName, const QDomNode& element)
{
    const QSet<QString> names = ownerNames();
    return std::any_of(names.begin(), names.end(), [&](const QString& owner) {
        return isOwner(owner) && isBelowAnyCalled(owner, tagName, element);
    });
}

bool DomParser::IsDeclaredAbove(const QString& name, const QString& tagName, const QDomNode& element,
                                const std::function<bool(int)>& isWanted)
{
    const auto limits = m_occurs.find(name);
    return limits != m_occurs.end() && m_pDocument && isBelowOwnerOf(*limits, tagName, element, isWanted);
}

bool DomParser::IsCountDeclared(const QString& name, const QString& tagName, int count, const QDomElement& element)
{
    const auto isAllowed = [count](int occursCode) { return isCountAllowed(occursCode, count); };
    const bool isDeclared = IsDeclaredAbove(name, tagName, element, isAllowed);
    if (!isDeclared && m_pLog) {
        m_pLog->CountRefused(element, count);
    }
    return isDeclared;
}

/// Asks for the names of the nodes that are found, because a search that starts at its owner finds the top node.
bool DomParser::isBelowAnyCalled(const QString& ownerName, const QString& tagName, const QDomNode& element)
{
    const std::unique_ptr<std::list<QDomNode>> owners(SearchElements(ownerName, QString()));
    return std::any_of(owners->begin(), owners->end(),
                       [&](const QDomNode& owner) { return IsBelowOwner(tagName, owner.nodeName(), element); });
}

QDomNode DomParser::Remove(const QDomNode& node)
{
    if (m_pLog) {
        m_pLog->Removed(node.toElement(), WalkLog::Removal::Builder);
    }
    return takeOut(node);
}

QDomNode DomParser::takeOut(const QDomNode& node)
{
    if (m_pOwners) {
        m_pOwners->Forget(node);
    }
    m_removedNodes.push_back(node);
    const OwnerIndex::OwnChange change = Change();
    return node.parentNode().removeChild(node);
}

void DomParser::InsertCopies(const QDomElement& element, int copies)
{
    if (m_pLog) {
        m_pLog->Copied(element, copies);
    }
    const OwnerIndex::OwnChange change = Change();
    QDomNode parent = element.parentNode();
    for (int copy = 0; copy < copies; ++copy) {
        parent.insertAfter(element.cloneNode(true), element);
    }
}

void DomParser::SetAttribute(const QString& name, const QString& value)
{
    changeAttributes([&] { m_currentElement.setAttribute(name, value); });
}

void DomParser::RemoveAttribute(const QString& name)
{
    changeAttributes([&] { m_currentElement.removeAttribute(name); });
}

void DomParser::RemoveAttributes(const DomAttributes& attributes)
{
    changeAttributes([&] {
        for (const QDomAttr& attribute : attributes) {
            m_currentElement.removeAttribute(attribute.name());
        }
    });
}

const QStringList* DomParser::FacetNames()
{
    if (m_currentElement.attributes().count() <= FewToList) {
        return nullptr;
    }
    if (m_facetElement != m_currentElement) {
        m_facetElement = m_currentElement;
        m_pFacetChanges.reset();
        return nullptr;
    }
    if (!areFacetsKnown()) {
        listFacets();
    }
    return &m_facetNames;
}

void DomParser::listFacets()
{
    m_facetNames.clear();
    for (const QDomAttr& attribute : attributesOf(m_currentElement)) {
        if (isPossibleFacet(attribute.name())) {
            m_facetNames.append(attribute.name());
        }
    }
    if (!m_pFacetChanges) {
        m_pFacetChanges = std::make_unique<TreeChangeDetector>(*m_pDocument);
    }
    m_pFacetChanges->Reset();
}

/// The names of the facets stay known over changes of our own.
template <class Edit> void DomParser::changeAttributes(const Edit& edit)
{
    const bool areKnown = areFacetsKnown();
    {
        const OwnerIndex::OwnChange change = Change();
        edit();
    }
    if (areKnown) {
        m_pFacetChanges->Reset();
    }
}

bool DomParser::areFacetsKnown() const
{
    return m_pFacetChanges && m_facetElement == m_currentElement && !m_pFacetChanges->IsChanged();
}

void DomParser::standOn(const QDomNode& node)
{
    m_currentElement = node.toElement();
    keepParent();
}

/// Once the parent is freed, the element must not be asked for its siblings: Qt leaves them as they were.
void DomParser::keepParent()
{
    const QDomNode parent = m_currentElement.parentNode();
    if (parent != m_currentParent && !parent.isNull()) {
        m_currentParent = parent;
    }
}

/// Goes on behind the node of a level whose children have been walked. The observer may have taken it out.
void DomParser::leave(Level& level)
{
    if (level.node.parentNode().isNull()) {
        m_removedNodes.push_back(level.node);
    }
    level.node = siblingBehind(level.node);
}

/// Announces the node on which the walk stands and moves on from it.
void DomParser::visit()
{
    const bool isTopLevel = m_levels.size() == 1;
    Level& level = m_levels.back();
    standOn(level.node);
    DomAttributes attributes = attributesOf(m_currentElement);
    takeText(level, isTopLevel, attributes);
    announce(level.node, attributes, level.text);

    if (takeNotice()) {
        keep(m_bRevisit ? WalkLog::Keeping::AnnouncedAgain : WalkLog::Keeping::Answered);
        if (!isTopLevel) {
            endProbation();
        }
        level.node = m_bRevisit ? m_resumeNode : siblingBehind(m_resumeNode);
    } else if (!checkCurrentElement()) {
        // Below the top level the node takes the place of what a notice from inside an error of the check has named.
        if (!isTopLevel) {
            m_resumeNode = level.node;
        }
        m_levels.push_back({level.node.firstChild(), QLatin1String("")});
    } else {
        level.node = m_resumeNode;
        // At the top level a container that goes on probation is announced once more, and walked then.
        if (!isTopLevel && !m_probationElement.isNull()) {
            m_levels.push_back({level.node.firstChild(), QLatin1String("")});
        }
    }
}

/// The text of an element without one is that of the last sibling that had one; receivers read values from the node.
/// Below the top level a default, one of the @p attributes, becomes the text.
void DomParser::takeText(Level& level, bool isTopLevel, DomAttributes& attributes)
{
    const QDomNode first = level.node.firstChild();
    if (first.isText()) {
        level.text = first.toText().data();
        return;
    }
    const QString defaultText = isTopLevel ? QString() : defaultIn(attributes);
    if (!defaultText.isEmpty()) {
        const OwnerIndex::OwnChange change = Change();
        m_currentElement.removeAttribute(DefaultAttribute());
        m_currentElement.appendChild(m_pDocument->createTextNode(defaultText));
        attributes = attributesOf(m_currentElement);
    }
}

void DomParser::announce(const QDomNode& node, const DomAttributes& attributes, const QString& text)
{
    m_bAnnounced = true;
    if (m_pLog) {
        m_pLog->Announced(node, kindOf(node));
    }
    deliver<ElemBeginEvent>(m_pCallback, node, node.nodeName(), toSax(attributes), text);
}

bool DomParser::takeNotice()
{
    const bool isPending = m_bResume;
    m_bResume = false;
    return isPending;
}

void DomParser::endProbation()
{
    if (m_pLog && !m_probationElement.isNull()) {
        m_pLog->EndedProbation(m_probationElement);
    }
    m_probationElement = QDomElement();
}

void DomParser::keep(WalkLog::Keeping why)
{
    if (m_pLog) {
        m_pLog->Kept(m_currentElement, why);
    }
}

/// Decides what becomes of an element without a notice. Gives whether the position of the walk was changed.
bool DomParser::checkCurrentElement()
{
    if (!m_probationElement.isNull()) {
        if (!isValueElement(m_currentElement)) {
            keep(WalkLog::Keeping::Unjudged);
            return false;
        }
        removeProbationElement();
        return true;
    }
    const bool isOptionalElement = isOptional();
    if (!isOptionalElement && !isChoiceAlternative()) {
        keep(WalkLog::Keeping::Mandatory);
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::MAX_OCCURS_EXCEEDED);
        return false;
    }
    if (isValueElement(m_currentElement)) {
        removeCurrentElement(isOptionalElement ? WalkLog::Removal::Optional : WalkLog::Removal::Alternative);
    } else {
        if (m_pLog) {
            m_pLog->PutOnProbation(m_currentElement);
        }
        m_probationElement = m_currentElement;
        m_resumeNode = m_currentElement;
    }
    return true;
}

bool DomParser::isOptional()
{
    const QString name = m_currentElement.tagName();
    const auto limits = m_occurs.find(name);
    if (limits == m_occurs.end()) {
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::VALUE_IS_NOT_VALID);
        return false;
    }
    return isBelowOwnerOf(*limits, name, m_currentElement, isOptionalCode);
}

OwnerIndex& DomParser::owners()
{
    if (!m_pOwners) {
        m_pOwners = std::make_unique<OwnerIndex>(*m_pDocument, ownerNames());
    }
    return *m_pOwners;
}

QSet<QString> DomParser::ownerNames() const
{
    QSet<QString> names;
    QString last;
    for (const auto& limits : m_occurs) {
        for (const auto& ownersOfCode : limits.second) {
            for (const QString& owner : ownersOfCode.second) {
                if (owner != last) {
                    last = owner;
                    names.insert(owner);
                }
            }
        }
    }
    return names;
}

const DomParser::Declarations& DomParser::sortedDeclarations(const Limits& limits)
{
    Declarations& declarations = m_sortedDeclarations[limits.first];
    if (declarations.empty()) {
        for (const auto& [code, owners] : limits.second) {
            for (const QString& owner : owners) {
                declarations.push_back({owner, code});
            }
        }
        std::sort(declarations.begin(), declarations.end());
        declarations.erase(std::unique(declarations.begin(), declarations.end()), declarations.end());
    }
    return declarations;
}

bool DomParser::isChoiceAlternative() const
{
    return m_alternatives.contains(m_currentElement.tagName());
}

/// The walk goes on behind the container, one level deeper than the container stood.
void DomParser::removeProbationElement()
{
    if (m_pLog) {
        m_pLog->Removed(m_probationElement, WalkLog::Removal::Probation);
    }
    m_resumeNode = siblingBehind(m_probationElement);
    standOn(m_resumeNode);
    takeOut(m_probationElement);
    m_probationElement = QDomElement();
}

void DomParser::removeCurrentElement(WalkLog::Removal why)
{
    if (m_pLog) {
        m_pLog->Removed(m_currentElement, why);
    }
    m_resumeNode = siblingBehind(m_currentElement);
    if (takeOut(m_currentElement).isNull()) {
        deliver<ErrorEvent>(m_pCallback, IXMLHelper::GENERAL_ERROR);
    }
}
