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

constexpr int None = LaidOutElement::None;

/// Attributes of the trial's document: which element of the tree it is, and that it is the second of two copies.
const QLatin1String IndexMark("index");
const QLatin1String CopyMark("copy");

/// The skeleton of a tree with all that a walk looks at.
class Skeleton
{
public:
    explicit Skeleton(const LaidOutTree& tree);

    QDomDocument& GetDocument() { return m_document; }
    const QDomElement& At(int index) const { return m_elements[std::size_t(index)]; }

private:
    QDomDocument m_document;
    std::vector<QDomElement> m_elements;
};

Skeleton::Skeleton(const LaidOutTree& tree)
{
    m_elements.reserve(tree.elements.size());
    for (const LaidOutElement& element : tree.elements) {
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
    explicit Extents(const LaidOutTree& tree);

    int SizeOf(int container) const { return m_ends[std::size_t(container)] - container; }
    bool IsInside(int index, int container) const
    {
        return container != None && container < index && index < m_ends[std::size_t(container)];
    }

private:
    std::vector<int> m_ends; ///< behind the last element inside of each
};

Extents::Extents(const LaidOutTree& tree)
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
};

/// One walk, with the observer and the log of it.
class Walk : public IXMLHelper, public WalkLog
{
public:
    Walk(const LaidOutTree& tree, const Extents& extents, Answers answers, bool isToCopy);

    void Run(const OccursMap& occurs, const ChoiceMap& choices);

    const std::vector<Record>& GetRecords() const { return m_records; }
    const std::vector<Record>& GetRecordsOfCopies() const { return m_copies; }

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

    const LaidOutTree& m_tree;
    const Extents& m_extents;
    const Answers m_answers;
    const bool m_isToCopy;
    Skeleton m_skeleton;
    DomParser* m_parser = nullptr;
    std::vector<Record> m_records;
    std::vector<Record> m_copies;
    std::vector<bool> m_areCopied;
    int m_copiedElements = 0;
    int m_copy = None; ///< the element whose second copy the walk is in
    Kind m_kind = Kind::Other;
    Place m_current;
    Place m_probation;
};

Walk::Walk(const LaidOutTree& tree, const Extents& extents, Answers answers, bool isToCopy)
    : m_tree(tree)
    , m_extents(extents)
    , m_answers(answers)
    , m_isToCopy(isToCopy)
    , m_skeleton(tree)
    , m_records(tree.elements.size())
    , m_copies(tree.elements.size())
    , m_areCopied(tree.elements.size())
{
}

void Walk::Run(const OccursMap& occurs, const ChoiceMap& choices)
{
    DomParser parser(this, occurs, choices);
    parser.SetDocument(&m_skeleton.GetDocument());
    parser.SetLog(this);
    m_parser = &parser;
    parser.Walk();
    m_parser = nullptr;
}

Record& Walk::at(const Place& place)
{
    return (place.isCopy ? m_copies : m_records)[std::size_t(place.index)];
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
    QDomElement* const element = m_parser->GetCurrentElement();
    if (isCopied(*element)) {
        m_parser->ContinueAt(element, true);
    } else if (isToAnswer()) {
        at(m_current).isAnswered = true;
        m_parser->ContinueAt(element, false);
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
    const int greatest = m_tree.elements[index].counts.greatest;
    const bool isRepeatable = greatest == AcceptedCounts::Unbounded || greatest > 1;
    if (!m_isToCopy || !isRepeatable || (m_areCopied[index] && !m_current.isCopy)
        || !m_parser->IsCountDeclared(element.tagName(), element.tagName(), 2, element) || m_current.isCopy) {
        return false;
    }
    const int size = m_extents.SizeOf(m_current.index);
    if (m_copiedElements + size > MaxShownElements) {
        at(m_current).isUncopied = true;
        return false;
    }
    m_areCopied[index] = true;
    m_copiedElements += size;
    m_parser->InsertCopies(element, 1);
    const OwnerIndex::OwnChange change = m_parser->Change();
    element.nextSibling().toElement().setAttribute(CopyMark, QString());
    return true;
}

/// What the walks did with the elements, as the tree tells it.
class Trial
{
public:
    Trial(LaidOutTree& tree, const OccursMap& occurs, const ChoiceMap& choices);

    bool IsAffordable() const;
    void TellCounts();
    void TellFates();

private:
    AcceptedCounts countsOf(DomParser& parser, int index, const QDomElement& element) const;
    Fate fateOf(int index, const std::vector<Record>& records) const;
    void tellFate(int index, const Walk& walk, const Walk& further);

    LaidOutTree& m_tree;
    const OccursMap& m_occurs;
    const ChoiceMap& m_choices;
    const Extents m_extents;
};

Trial::Trial(LaidOutTree& tree, const OccursMap& occurs, const ChoiceMap& choices)
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
    for (const LaidOutElement& element : m_tree.elements) {
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
void Trial::TellCounts()
{
    Skeleton skeleton(m_tree);
    class Silent : public IXMLHelper
    {
        void XmlUpdate(XmlEvent*) override { }
    } observer;
    DomParser parser(&observer, m_occurs, m_choices);
    parser.SetDocument(&skeleton.GetDocument());
    QHash<QPair<int, QString>, AcceptedCounts> known;
    for (int index = 0; index < int(m_tree.elements.size()); ++index) {
        LaidOutElement& element = m_tree.elements[std::size_t(index)];
        const QPair<int, QString> key(element.parent, element.name);
        if (!known.contains(key)) {
            known.insert(key, countsOf(parser, index, skeleton.At(index)));
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

void Trial::tellFate(int index, const Walk& walk, const Walk& further)
{
    LaidOutElement& element = m_tree.elements[std::size_t(index)];
    const bool isReached = walk.GetRecords()[std::size_t(index)].isAnnounced;
    const std::vector<Record>& records = isReached ? walk.GetRecords() : further.GetRecords();
    element.fate = fateOf(index, records);
    const int atStake = records[std::size_t(index)].atStake;
    element.goesInstead = element.fate == Fate::Stays && !m_extents.IsInside(index, atStake) ? atStake : None;
}

void Trial::TellFates()
{
    Walk walk(m_tree, m_extents, Answers::InsideProbation, false);
    walk.Run(m_occurs, m_choices);
    Walk further(m_tree, m_extents, Answers::WhereTheWalkWouldEnd, false);
    further.Run(m_occurs, m_choices);
    Walk full(m_tree, m_extents, Answers::All, false);
    full.Run(m_occurs, m_choices);
    Walk twice(m_tree, m_extents, Answers::WhereTheWalkWouldEnd, true);
    twice.Run(m_occurs, m_choices);
    for (int index = 1; index < int(m_tree.elements.size()); ++index) {
        tellFate(index, walk, further);
        LaidOutElement& element = m_tree.elements[std::size_t(index)];
        const LaidOutElement& parent = m_tree.elements[std::size_t(element.parent)];
        element.isNeverKept = parent.isNeverKept || full.GetRecords()[std::size_t(index)].isRemoved;
        const std::vector<Record>& copies = twice.GetRecordsOfCopies();
        element.staysInCopies = fateOf(index, copies) == Fate::Stays && element.fate != Fate::Stays;
        element.isSingleInCopies = copies[std::size_t(index)].isRefused;
        element.isUntriedInCopies
            = parent.isUntriedInCopies || twice.GetRecords()[std::size_t(element.parent)].isUncopied;
    }
}

} // namespace

void tryWalks(LaidOutTree& tree, const OccursMap& occurs, const ChoiceMap& choices)
{
    if (tree.IsEmpty()) {
        return;
    }
    Trial trial(tree, occurs, choices);
    if (!trial.IsAffordable()) {
        for (LaidOutElement& element : tree.elements) {
            element.fate = element.parent == None ? Fate::Stays : Fate::IsUnknown;
            element.counts.isKnown = false;
        }
        return;
    }
    trial.TellCounts();
    trial.TellFates();
}

} // namespace schemadoctor
