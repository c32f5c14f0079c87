#include "walktrial.h"

#include <algorithm>
#include <vector>

#include <QDomDocument>
#include <QHash>
#include <QPair>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/domparser.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/xmlevent.h>

#include "doctorlimits.h"

namespace schemadoctor {

namespace {

constexpr int None = SkeletonElement::None;

/// Attributes of the trial's document: which element of the tree it is, and that it is the second of two copies.
const QLatin1String IndexMark("index");
const QLatin1String CopyMark("copy");

/// The skeleton of a tree with all that a walk looks at.
class Skeleton
{
public:
    explicit Skeleton(const SkeletonTree& tree);

    QDomDocument& GetDocument() { return m_document; }
    const QDomElement& At(int index) const { return m_elements[std::size_t(index)]; }

private:
    QDomDocument m_document;
    std::vector<QDomElement> m_elements;
};

Skeleton::Skeleton(const SkeletonTree& tree)
{
    m_elements.reserve(tree.elements.size());
    for (const SkeletonElement& element : tree.elements) {
        QDomElement laidOut = m_document.createElement(element.name);
        laidOut.setAttribute(IndexMark, int(m_elements.size()));
        if (!element.type.isEmpty()) {
            laidOut.setAttribute(TypeAttribute(), element.type);
        }
        if (!element.defaultValue.isEmpty()) {
            laidOut.setAttribute(DefaultAttribute(), element.defaultValue);
        }
        QDomNode parent = element.parent == None ? QDomNode(m_document) : QDomNode(At(element.parent));
        parent.appendChild(laidOut);
        m_elements.push_back(laidOut);
    }
}

/// Which elements stand inside of which.
class Extents
{
public:
    explicit Extents(const SkeletonTree& tree);

    int SizeOf(int container) const { return m_ends[std::size_t(container)] - container; }
    bool IsInside(int index, int container) const
    {
        return container != None && container < index && index < m_ends[std::size_t(container)];
    }

private:
    std::vector<int> m_ends; ///< behind the last element inside of each
};

Extents::Extents(const SkeletonTree& tree)
    : m_ends(tree.elements.size())
{
    for (int index = int(tree.elements.size()) - 1; index >= 0; --index) {
        int& end = m_ends[std::size_t(index)];
        end = std::max(end, index + 1);
        const int parent = tree.elements[std::size_t(index)].parent;
        if (parent != None) {
            m_ends[std::size_t(parent)] = std::max(m_ends[std::size_t(parent)], end);
        }
    }
}

/// What a walk did with an element.
struct Record
{
    bool isAnnounced = false;
    bool isAnswered = false;
    bool isRefused = false; ///< a count of two
    bool isUncopied = false; ///< there would be too many copies
    int atStake = None; ///< the container on probation when it was announced last
    int kept = None; ///< a container that was on probation: the value that kept it
    bool isRemoved = false;
    bool isRemovedForAnother = false; ///< while it was on probation
};

/// Which values an observer of a walk fills.
enum class Answers {
    InsideProbation, ///< those that keep the container around them: whatever stands behind them is judged by itself
    WhereTheWalkWouldEnd, ///< besides, those that would have the walk go on behind the last child of a container
    All, ///< those that some setter takes
    InTwoCopies, ///< as where the walk would end, of two copies of all that may be repeated
};

/// What a walk did with the elements of the tree.
struct Outcome
{
    std::vector<Record> originals;
    std::vector<Record> copies; ///< with the second copies of them
};

/// Whether others are copied with an element that may be repeated. Its own copies stand where it stands itself.
bool hasCopiesOfOthers(const SkeletonElement& element)
{
    return mayBeRepeated(element) && !element.children.empty();
}

/// One walk, with the observer and the log of it.
class Walk : public IXMLHelper, public WalkLog
{
public:
    Walk(const SkeletonTree& tree, const Extents& extents, const OccursMap& occurs, const ChoiceMap& choices,
         Answers answers);

    DomParser& GetParser() { return m_parser; }
    const QDomElement& At(int index) const { return m_skeleton.At(index); }

    /// To be called once.
    const Outcome& Run();

    void XmlUpdate(XmlEvent* event) override;
    void Announced(const QDomNode& node, Kind kind) override;
    void PutOnProbation(const QDomElement& container) override;
    void EndedProbation(const QDomElement& container) override;
    void Removed(const QDomElement& element, Removal why) override;
    void CountRefused(const QDomElement& element, int count) override;

private:
    /// An element of the tree, or what was copied of it.
    struct Place
    {
        int index = None;
        bool isCopy = false;
    };

    static int indexOf(const QDomElement& element) { return element.attribute(IndexMark).toInt(); }
    Record& at(const Place& place);
    void answer();
    bool isToAnswer() const;
    bool isCopied(QDomElement& element);

    const SkeletonTree& m_tree;
    const Extents& m_extents;
    const Answers m_answers;
    Skeleton m_skeleton;
    DomParser m_parser;
    Outcome m_outcome;
    std::vector<bool> m_areCopied;
    int m_copiedElements = 0;
    int m_copy = None; ///< the element whose second copy the walk is in
    Kind m_kind = Kind::Other;
    Place m_current;
    Place m_probation;
};

Walk::Walk(const SkeletonTree& tree, const Extents& extents, const OccursMap& occurs, const ChoiceMap& choices,
           Answers answers)
    : m_tree(tree)
    , m_extents(extents)
    , m_answers(answers)
    , m_skeleton(tree)
    , m_parser(this, occurs, choices)
    , m_outcome {std::vector<Record>(tree.elements.size()), std::vector<Record>(tree.elements.size())}
    , m_areCopied(tree.elements.size())
{
    m_parser.SetDocument(&m_skeleton.GetDocument());
}

const Outcome& Walk::Run()
{
    m_parser.SetLog(this);
    m_parser.Walk();
    return m_outcome;
}

Record& Walk::at(const Place& place)
{
    return (place.isCopy ? m_outcome.copies : m_outcome.originals)[std::size_t(place.index)];
}

void Walk::Announced(const QDomNode& node, Kind kind)
{
    const QDomElement element = node.toElement();
    m_kind = kind;
    const int index = indexOf(element);
    if (element.hasAttribute(CopyMark)) {
        m_copy = index;
    } else if (!m_extents.IsInside(index, m_copy)) {
        m_copy = None;
    }
    m_current = {index, m_copy != None};
    if (m_probation.index != index
        || m_probation.isCopy
            != m_current.isCopy) { // At the top level a container is announced again when it is on probation.
        at(m_current) = Record();
        at(m_current).atStake = m_probation.index;
    }
    at(m_current).isAnnounced = true;
}

void Walk::PutOnProbation(const QDomElement&)
{
    m_probation = m_current;
}

void Walk::EndedProbation(const QDomElement&)
{
    at(m_probation).kept = m_current.index;
    m_probation = Place();
}

void Walk::Removed(const QDomElement&, Removal why)
{
    Record& removed = at(why == Removal::Probation ? m_probation : m_current);
    removed.isRemoved = true;
    if (why == Removal::Probation) {
        removed.isRemovedForAnother = !m_extents.IsInside(m_current.index, m_probation.index);
        m_probation = Place();
    }
}

void Walk::CountRefused(const QDomElement&, int)
{
    at(m_current).isRefused = true;
}

void Walk::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN && m_current.index != 0) {
        answer();
    }
}

void Walk::answer()
{
    QDomElement* const element = m_parser.GetCurrentElement();
    if (isCopied(*element)) {
        m_parser.ContinueAt(element, true);
    } else if (isToAnswer()) {
        at(m_current).isAnswered = true;
        m_parser.ContinueAt(element, false);
    }
}

bool Walk::isToAnswer() const
{
    if (m_kind != Kind::Value) {
        return false;
    }
    switch (m_answers) {
    case Answers::All:
        return m_tree.elements[std::size_t(m_current.index)].setters != Setters();
    case Answers::WhereTheWalkWouldEnd:
    case Answers::InTwoCopies:
        if (m_probation.index != None && m_skeleton.At(m_probation.index).nextSibling().isNull()) {
            return true;
        }
        break;
    case Answers::InsideProbation:
        break;
    }
    return m_extents.IsInside(m_current.index, m_probation.index);
}

/// Makes a copy of what may be repeated, once, and none within a copy: there it only asks.
bool Walk::isCopied(QDomElement& element)
{
    const std::size_t index = std::size_t(m_current.index);
    if (m_answers != Answers::InTwoCopies || !mayBeRepeated(m_tree.elements[index])
        || !m_parser.IsCountDeclared(element.tagName(), element.tagName(), 2, element) || m_current.isCopy
        || m_areCopied[index] || !hasCopiesOfOthers(m_tree.elements[index])) {
        return false;
    }
    const int size = m_extents.SizeOf(m_current.index);
    if (m_copiedElements + size > MaxShownElements) {
        at(m_current).isUncopied = true;
        return false;
    }
    m_areCopied[index] = true;
    m_copiedElements += size;
    m_parser.InsertCopies(element, 1);
    const OwnerIndex::OwnChange change = m_parser.Change();
    element.nextSibling().toElement().setAttribute(CopyMark, QString());
    return true;
}

/// What the walks did with the elements, as the tree tells it.
class Trial
{
public:
    Trial(SkeletonTree& tree, const OccursMap& occurs, const ChoiceMap& choices);

    bool IsAffordable() const;
    void Tell();

private:
    void tellCounts(Walk& walk);
    void tellFates(const Outcome& outcome);
    Outcome outcomeOf(Answers answers, bool isNeeded) const;
    AcceptedCounts countsOf(DomParser& parser, int index, const QDomElement& element) const;
    Fate fateOf(int index, const std::vector<Record>& records) const;
    void tellFate(int index, const std::vector<Record>& records);

    SkeletonTree& m_tree;
    const OccursMap& m_occurs;
    const ChoiceMap& m_choices;
    const Extents m_extents;
};

Trial::Trial(SkeletonTree& tree, const OccursMap& occurs, const ChoiceMap& choices)
    : m_tree(tree)
    , m_occurs(occurs)
    , m_choices(choices)
    , m_extents(tree)
{
}

/// A walk may look at all declarations of a name for each element that bears it, until one says that it is optional.
bool Trial::IsAffordable() const
{
    QHash<QString, qint64> declarations;
    for (const auto& [name, codes] : m_occurs) {
        for (const auto& [code, owners] : codes) {
            declarations[name] += isOptionalCode(code) ? 0 : qint64(owners.size());
        }
    }
    qint64 steps = 0;
    for (const SkeletonElement& element : m_tree.elements) {
        steps += 1 + declarations.value(element.name);
    }
    return steps <= MaxTrialSteps;
}

AcceptedCounts Trial::countsOf(DomParser& parser, int index, const QDomElement& element) const
{
    AcceptedCounts counts;
    const QString& name = m_tree.elements[std::size_t(index)].name;
    const auto codes = m_occurs.find(name);
    if (codes == m_occurs.end()) {
        return counts;
    }
    for (const auto& entry : codes->second) {
        const int code = entry.first;
        if (!parser.IsDeclaredAbove(name, name, element, [code](int other) { return other == code; })) {
            continue;
        }
        counts.takesZero = counts.takesZero || isCountAllowed(code, 0);
        const int greatest = greatestCountOf(code);
        if (greatest == UnboundedOccurs) {
            counts.greatest = AcceptedCounts::Unbounded;
        } else if (counts.greatest != AcceptedCounts::Unbounded) {
            counts.greatest = std::max(counts.greatest, greatest);
        }
    }
    return counts;
}

/// Siblings of one name stand below the same owners.
void Trial::tellCounts(Walk& walk)
{
    DomParser& parser = walk.GetParser();
    QHash<QPair<int, QString>, AcceptedCounts> known;
    for (int index = 0; index < int(m_tree.elements.size()); ++index) {
        SkeletonElement& element = m_tree.elements[std::size_t(index)];
        const QPair<int, QString> key(element.parent, element.name);
        if (!known.contains(key)) {
            known.insert(key, countsOf(parser, index, walk.At(index)));
        }
        element.counts = known.value(key);
        const int number = parser.AlternativeNumber(element.name);
        element.isChoiceAlternative = number != NO_INDEX;
        element.choiceNumber = element.isChoiceAlternative ? number : None;
    }
}

/// Of @p records, in which those of the tree or of its copies stand.
Fate Trial::fateOf(int index, const std::vector<Record>& records) const
{
    const Record& record = records[std::size_t(index)];
    if (!record.isAnnounced) {
        return Fate::IsUnknown;
    }
    if (record.isRemoved) {
        return record.isRemovedForAnother ? Fate::IsRemovedWithAnother : Fate::IsRemoved;
    }
    if (record.kept != None) {
        return m_extents.IsInside(record.kept, index) ? Fate::IsRemovedWithItsValues : Fate::IsRemovedWithAnother;
    }
    if (m_extents.IsInside(index, record.atStake)) {
        const int value = records[std::size_t(record.atStake)].kept;
        return value == index || m_extents.IsInside(value, index) ? Fate::IsRemovedWithItsContainer : Fate::Stays;
    }
    return record.isAnswered ? Fate::IsUnknown : Fate::Stays;
}

void Trial::tellFate(int index, const std::vector<Record>& records)
{
    SkeletonElement& element = m_tree.elements[std::size_t(index)];
    element.fate = fateOf(index, records);
    const int atStake = records[std::size_t(index)].atStake;
    element.goesInstead = element.fate == Fate::Stays && !m_extents.IsInside(index, atStake) ? atStake : None;
}

/// Of a walk that has nothing to show, records of nothing.
Outcome Trial::outcomeOf(Answers answers, bool isNeeded) const
{
    if (!isNeeded) {
        return {std::vector<Record>(m_tree.elements.size()), std::vector<Record>(m_tree.elements.size())};
    }
    return Walk(m_tree, m_extents, m_occurs, m_choices, answers).Run();
}

void Trial::tellFates(const Outcome& outcome)
{
    const std::vector<SkeletonElement>& elements = m_tree.elements;
    const Outcome further = outcomeOf(Answers::WhereTheWalkWouldEnd,
                                      std::any_of(outcome.originals.begin(), outcome.originals.end(),
                                                  [](const Record& record) { return !record.isAnnounced; }));
    const Outcome full
        = outcomeOf(Answers::All, std::any_of(elements.begin(), elements.end(), [](const SkeletonElement& element) {
                        return !isContainer(element) && element.setters == Setters();
                    }));
    const Outcome twice
        = outcomeOf(Answers::InTwoCopies, std::any_of(elements.begin(), elements.end(), hasCopiesOfOthers));
    for (int index = 1; index < int(elements.size()); ++index) {
        const std::size_t at = std::size_t(index);
        tellFate(index, outcome.originals[at].isAnnounced ? outcome.originals : further.originals);
        SkeletonElement& element = m_tree.elements[at];
        const SkeletonElement& parent = elements[std::size_t(element.parent)];
        element.isNeverKept = parent.isNeverKept || full.originals[at].isRemoved;
        element.staysInCopies = fateOf(index, twice.copies) == Fate::Stays && element.fate != Fate::Stays;
        element.isSingleInCopies = twice.copies[at].isRefused;
        element.isUntriedInCopies = parent.isUntriedInCopies || twice.originals[std::size_t(element.parent)].isUncopied;
    }
}

/// The counts are those of the skeleton before a walk changes it.
void Trial::Tell()
{
    Walk walk(m_tree, m_extents, m_occurs, m_choices, Answers::InsideProbation);
    tellCounts(walk);
    tellFates(walk.Run());
}

} // namespace

void tryWalks(SkeletonTree& tree, const OccursMap& occurs, const ChoiceMap& choices)
{
    if (tree.IsEmpty()) {
        return;
    }
    Trial trial(tree, occurs, choices);
    if (!trial.IsAffordable()) {
        for (SkeletonElement& element : tree.elements) {
            element.fate = element.parent == None ? Fate::Stays : Fate::IsUnknown;
            element.counts.isKnown = false;
        }
        return;
    }
    trial.Tell();
}

} // namespace schemadoctor
