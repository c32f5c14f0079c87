#include "treebuilder.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QDomElement>
#include <QHash>
#include <QSet>

#include <xmlhelper/constants_p.h>

namespace schemadoctor {

namespace {

const QLatin1String RangeFacets[] = {MinInclusiveFacet, MinExclusiveFacet, MaxInclusiveFacet, MaxExclusiveFacet};

/// Behind so many attributes they are asked for by name: Qt lists them in a time that grows with the square.
constexpr int MaxListedAttributes = 256;

QString withoutPrefix(const QString& name)
{
    return name.contains(SchemaPrefix) ? name.mid(SchemaPrefix.size()) : name;
}

bool isEnumerationOfElement(const QString& attribute)
{
    bool isNumber = false;
    attribute.mid(EnumerationFacet.size()).toInt(&isNumber); // clazy:exclude=qstring-ref, which Qt 6 lacks
    return isNumber && attribute.startsWith(EnumerationFacet);
}

int enumerationNumber(const QString& attribute)
{
    int end = int(EnumerationFacet.size());
    while (end < attribute.size() && attribute.at(end).isDigit()) {
        ++end;
    }
    const QString number = attribute.mid(EnumerationFacet.size(), end - int(EnumerationFacet.size()));
    return number.toInt();
}

/// The values of the attributes called @p names in the order of their numbers.
QStringList valuesByNumber(const QDomElement& element, const QStringList& names)
{
    std::vector<std::pair<int, QString>> values;
    for (const QString& name : names) {
        values.emplace_back(enumerationNumber(name), element.attribute(name));
    }
    std::sort(values.begin(), values.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    QStringList sorted;
    for (const auto& value : values) {
        sorted.append(value.second);
    }
    return sorted;
}

/// What the text says about names, for the lines and for telling declared attributes from facets.
class DeclaredNames
{
public:
    explicit DeclaredNames(const LayoutPlan& plan);

    bool IsAttribute(const QString& name) const { return m_attributes.contains(name); }
    QStringList GetAttributes() const { return m_attributes.keys(); }
    const QSet<QString>& GetFacets() const { return m_facets; }
    const TextNode* FindElement(const QString& name) const { return m_elements.value(name); }
    const TextNode* FindAttribute(const QString& name, const TextNode* owner) const;
    int GroupOf(const TextNode* declaration) const;

private:
    QHash<QString, const TextNode*> m_elements;
    QHash<QString, std::vector<const TextNode*>> m_attributes;
    QSet<QString> m_facets; ///< of all restrictions, without prefix
    QHash<const TextNode*, int> m_choices;
};

DeclaredNames::DeclaredNames(const LayoutPlan& plan)
{
    for (const TextFile* const file : plan.GetReadFiles()) {
        for (const TextNode* const tag : file->tags) {
            const QString name = tag->Value(tag->Has("name") ? "name" : "ref");
            if (tag->qName == QLatin1String("xs:element") && !m_elements.contains(name)) {
                m_elements.insert(name, tag);
            } else if (tag->qName == QLatin1String("xs:attribute")) {
                m_attributes[name].push_back(tag);
            } else if (tag->qName == QLatin1String("xs:choice")) {
                m_choices.insert(tag, int(m_choices.size()) + 1);
            }
            if (tag->Around("restriction")) {
                m_facets.insert(withoutPrefix(tag->qName));
            }
        }
    }
}

/// The declaration inside of that of its owner, or in the type that the owner names, or the first of that name.
const TextNode* DeclaredNames::FindAttribute(const QString& name, const TextNode* owner) const
{
    const auto found = m_attributes.constFind(name);
    if (found == m_attributes.constEnd()) {
        return nullptr;
    }
    const QString type = owner ? owner->Value("type") : QString();
    for (const TextNode* const attribute : *found) {
        for (const TextNode* around = attribute->parent; around; around = around->parent) {
            if (around == owner || (!type.isEmpty() && around->IsGlobal() && around->Value("name") == type)) {
                return attribute;
            }
        }
    }
    return found->front();
}

int DeclaredNames::GroupOf(const TextNode* declaration) const
{
    const TextNode* const choice = declaration ? declaration->Around("choice") : nullptr;
    return m_choices.value(choice, LaidOutElement::None);
}

class TreeBuilder
{
public:
    TreeBuilder(const LibraryReading& reading, const LayoutPlan& plan);

    LaidOutTree Build();

private:
    int add(const QDomElement& element, int parent, int planNode);
    void annotate(LaidOutElement& laidOut, const QDomElement& element, const TextNode* declaration) const;
    QStringList attributesOf(const QDomElement& element) const;
    DeclaredAttribute declaredAttribute(const QString& name, const QStringList& all, const QDomElement& element,
                                        const TextNode* owner) const;
    void applyOccurs(int index);
    bool isBelowOwner(int index, const QString& owner) const;
    int matchingChild(int planNode, const QDomElement& element) const;

    const LibraryReading& m_reading;
    const LayoutPlan& m_plan;
    const DeclaredNames m_names;
    QHash<QString, int> m_firstElements;
    QHash<QString, int> m_choiceNumbers;
    LaidOutTree m_tree;
};

TreeBuilder::TreeBuilder(const LibraryReading& reading, const LayoutPlan& plan)
    : m_reading(reading)
    , m_plan(plan)
    , m_names(plan)
{
    for (const auto& [number, name] : reading.GetChoices()) {
        m_choiceNumbers.insert(name, number); // The greatest number of a name is the one that counts.
    }
}

LaidOutTree TreeBuilder::Build()
{
    const QDomElement root = m_reading.GetRoot();
    if (root.isNull()) {
        return m_tree;
    }
    struct Step
    {
        QDomElement element;
        int index;
        int planNode; ///< where to look for the plan's node of the next sibling
    };
    const int planRoot = m_plan.GetRoot();
    std::vector<Step> open {{root, add(root, LaidOutElement::None, planRoot), planRoot}};
    while (!open.empty()) {
        const Step step = open.back();
        QDomElement next = step.element.firstChildElement();
        if (!next.isNull()) {
            const int first
                = step.planNode == LayoutPlan::None ? LayoutPlan::None : m_plan.GetNode(step.planNode).firstChild;
            const int planNode = matchingChild(first, next);
            open.push_back({next, add(next, step.index, planNode), planNode});
            continue;
        }
        while (!open.empty()) {
            const Step last = open.back();
            open.pop_back();
            next = last.element.nextSiblingElement();
            if (!open.empty() && !next.isNull()) {
                const int sibling
                    = last.planNode == LayoutPlan::None ? LayoutPlan::None : m_plan.GetNode(last.planNode).next;
                const int planNode = matchingChild(sibling, next);
                open.push_back({next, add(next, open.back().index, planNode), planNode});
                break;
            }
        }
    }
    for (int index = 0; index < int(m_tree.elements.size()); ++index) {
        applyOccurs(index);
    }
    return m_tree;
}

/// The plan's node for an element; None from where on the plan has another shape.
int TreeBuilder::matchingChild(int planNode, const QDomElement& element) const
{
    const bool isMatching = planNode != LayoutPlan::None && m_plan.GetName(planNode) == element.tagName();
    return isMatching ? planNode : LayoutPlan::None;
}

int TreeBuilder::add(const QDomElement& element, int parent, int planNode)
{
    const int index = int(m_tree.elements.size());
    LaidOutElement& laidOut = m_tree.elements.emplace_back();
    laidOut.name = element.tagName();
    laidOut.parent = parent;
    if (parent != LaidOutElement::None) {
        std::vector<int>& siblings = m_tree.elements[std::size_t(parent)].children;
        laidOut.row = int(siblings.size());
        siblings.push_back(index);
    }
    if (!m_firstElements.contains(laidOut.name)) {
        m_firstElements.insert(laidOut.name, index);
    }
    const TextNode* const declaration
        = planNode == LayoutPlan::None ? m_names.FindElement(laidOut.name) : m_plan.GetNode(planNode).declaration;
    if (declaration) {
        laidOut.place = declaration->GetPlace();
        laidOut.choiceGroup = m_names.GroupOf(declaration);
        const bool isGlobal = declaration->IsGlobal();
        laidOut.minOccurs = !isGlobal && declaration->Has("minOccurs") ? declaration->Value("minOccurs").toInt() : 1;
        const QString maxOccurs = isGlobal ? QString() : declaration->Value("maxOccurs");
        laidOut.maxOccurs = maxOccurs.isEmpty()       ? std::max(1, laidOut.minOccurs)
            : maxOccurs == QLatin1String("unbounded") ? AcceptedCounts::Unbounded
                                                      : maxOccurs.toInt();
    }
    annotate(laidOut, element, declaration);
    return index;
}

void TreeBuilder::annotate(LaidOutElement& laidOut, const QDomElement& element, const TextNode* declaration) const
{
    laidOut.type = element.attribute(TypeAttribute());
    laidOut.defaultValue = element.attribute(DefaultAttribute());
    laidOut.setters = settersOfElement(laidOut.type);
    const QStringList all = attributesOf(element);
    QStringList enumeration;
    for (const QString& name : all) {
        if (m_names.IsAttribute(name)) {
            laidOut.attributes.append(declaredAttribute(name, all, element, declaration));
        } else if (isEnumerationOfElement(name)) {
            enumeration.append(name);
        }
    }
    laidOut.enumeration = valuesByNumber(element, enumeration);
    for (const QLatin1String& facet : RangeFacets) {
        if (element.hasAttribute(facet) && !m_names.IsAttribute(facet)) {
            laidOut.facets.append({facet, element.attribute(facet), true});
        }
    }
    for (const QString& name : all) {
        const bool isRange = std::find(std::begin(RangeFacets), std::end(RangeFacets), name) != std::end(RangeFacets);
        if (!isRange && !m_names.IsAttribute(name) && m_names.GetFacets().contains(name)) {
            laidOut.facets.append({name, element.attribute(name), false});
        }
    }
}

/// The names of all attributes, sorted.
QStringList TreeBuilder::attributesOf(const QDomElement& element) const
{
    QStringList names;
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.count();
    if (count <= MaxListedAttributes) {
        for (int i = 0; i < count; ++i) {
            names.append(attributes.item(i).nodeName());
        }
    } else {
        const QStringList declared = m_names.GetAttributes();
        const auto appendIfThere = [&](const QString& name) {
            if (element.hasAttribute(name)) {
                names.append(name);
            }
        };
        for (const QString& name : declared) {
            appendIfThere(name);
        }
        const QStringList owners = names;
        for (const QString& facet : m_names.GetFacets()) {
            const bool isEnumeration = facet.contains(EnumerationFacet);
            for (int number = 1; number <= (isEnumeration ? count : 1); ++number) {
                const QString name = isEnumeration ? facet + QString::number(number) : facet;
                appendIfThere(name);
                for (const QString& owner : owners) {
                    appendIfThere(name + owner);
                }
            }
        }
        appendIfThere(TypeAttribute());
        appendIfThere(DefaultAttribute());
    }
    names.sort();
    return names;
}

/// Facets and enumeration belong to an attribute when their names contain its name.
DeclaredAttribute TreeBuilder::declaredAttribute(const QString& name, const QStringList& all,
                                                 const QDomElement& element, const TextNode* owner) const
{
    DeclaredAttribute declared;
    declared.name = name;
    declared.type = element.attribute(name);
    declared.setters = settersOfAttribute(declared.type);
    if (const TextNode* const tag = m_names.FindAttribute(name, owner)) {
        declared.place = tag->GetPlace();
    }
    QStringList enumeration;
    for (const QString& other : all) {
        if (!other.contains(name)) {
            continue;
        }
        const auto facet = std::find_if(std::begin(RangeFacets), std::end(RangeFacets),
                                        [&other](const QLatin1String& one) { return other.contains(one); });
        if (facet != std::end(RangeFacets)) {
            declared.facets.append({*facet, element.attribute(other), true});
        } else if (other.contains(EnumerationFacet)) {
            enumeration.append(other);
        }
    }
    declared.enumeration = valuesByNumber(element, enumeration);
    return declared;
}

void TreeBuilder::applyOccurs(int index)
{
    LaidOutElement& element = m_tree.elements[std::size_t(index)];
    bool isOptional = false;
    const auto codes = m_reading.GetOccurs().find(element.name);
    if (codes != m_reading.GetOccurs().end()) {
        for (const auto& [code, owners] : codes->second) {
            if (std::none_of(owners.begin(), owners.end(),
                             [&](const QString& owner) { return isBelowOwner(index, owner); })) {
                continue;
            }
            const bool isOfMinimumZero = code % OptionalOccursFactor == 0;
            isOptional = isOptional || isOfMinimumZero;
            element.counts.takesZero = element.counts.takesZero || isOfMinimumZero;
            if (code == UnboundedOccurs || code / OptionalOccursFactor == UnboundedOccurs) {
                element.counts.greatest = AcceptedCounts::Unbounded;
            } else if (element.counts.greatest != AcceptedCounts::Unbounded) {
                element.counts.greatest = std::max(element.counts.greatest, code);
            }
        }
    }
    element.isChoiceAlternative = m_choiceNumbers.contains(element.name);
    element.choiceNumber = m_choiceNumbers.value(element.name, LaidOutElement::None);
    if (element.parent != LaidOutElement::None && (isOptional || element.isChoiceAlternative)) {
        element.fate = isContainer(element) ? Fate::IsRemovedWithItsValues : Fate::IsRemoved;
    }
}

/// Whether the element is one that the library finds below the first element of the owner's name: nothing of its own
/// name may stand between.
bool TreeBuilder::isBelowOwner(int index, const QString& owner) const
{
    const int first = m_firstElements.value(owner, LaidOutElement::None);
    if (first == LaidOutElement::None || owner.isEmpty()) {
        return false;
    }
    const std::vector<LaidOutElement>& elements = m_tree.elements;
    int ancestor = elements[std::size_t(index)].parent;
    while (ancestor != LaidOutElement::None && ancestor != first
           && elements[std::size_t(ancestor)].name != elements[std::size_t(index)].name) {
        ancestor = elements[std::size_t(ancestor)].parent;
    }
    return ancestor == first;
}

} // namespace

LaidOutTree builtTree(const LibraryReading& reading, const LayoutPlan& plan)
{
    return TreeBuilder(reading, plan).Build();
}

Setters settersOfElement(const QString& type)
{
    const auto has = [&type](const char* word) { return type.contains(QLatin1String(word)); };
    if (has("short") || has("long")) {
        return Setter::Text | Setter::Floating | Setter::Integer | Setter::Truth | Setter::DateTime | Setter::Time;
    }
    Setters setters;
    setters.setFlag(Setter::Text, has("string"));
    setters.setFlag(Setter::Floating, has("double"));
    setters.setFlag(Setter::Integer, has("integer") || type == QLatin1String("int"));
    setters.setFlag(Setter::Truth, has("bool"));
    setters.setFlag(Setter::DateTime, has("dateTime"));
    setters.setFlag(Setter::Time, has("time"));
    return setters;
}

Setters settersOfAttribute(const QString& type)
{
    const auto has = [&type](const char* word) { return type.contains(QLatin1String(word)); };
    Setters setters;
    setters.setFlag(Setter::Text, has("string"));
    setters.setFlag(Setter::Floating, has("double"));
    setters.setFlag(Setter::Integer, has("integer"));
    setters.setFlag(Setter::DateTime, has("dateTime"));
    return setters;
}

} // namespace schemadoctor
