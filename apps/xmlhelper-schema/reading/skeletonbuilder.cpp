#include "skeletonbuilder.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QDomElement>
#include <QHash>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

#include "walktrial.h"

namespace schemadoctor {

namespace {

/// In the order in which they are shown.
const QLatin1String RangeFacets[] = {MinInclusiveFacet, MinExclusiveFacet, MaxInclusiveFacet, MaxExclusiveFacet};

/// The range facets come first.
int rankOf(const Facet& facet)
{
    return int(std::find(std::begin(RangeFacets), std::end(RangeFacets), facet.name) - std::begin(RangeFacets));
}

/// The values of the attributes called @p names in the order of their numbers.
QStringList valuesByNumber(const QDomElement& element, const QStringList& names)
{
    std::vector<std::pair<int, QString>> values;
    for (const QString& name : names) {
        values.emplace_back(facetNameIn(name).number, element.attribute(name));
    }
    std::sort(values.begin(), values.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    QStringList sorted;
    for (const auto& value : values) {
        sorted.append(value.second);
    }
    return sorted;
}

/// Facets and enumeration belong to an attribute when their names contain its name.
DeclaredAttribute declaredAttribute(const SchemaRecord::AttributeOrigin& origin, const Place& place,
                                    const QStringList& all, const QDomElement& element)
{
    DeclaredAttribute declared;
    declared.name = origin.name;
    declared.type = element.attribute(origin.name);
    declared.setters = settersOfAttribute(declared.type);
    declared.place = place;
    declared.isRequired
        = origin.tag && (origin.tag->IsGlobal() || origin.tag->Value("use") == QLatin1String("required"));
    QStringList enumeration;
    for (const QString& other : all) {
        const QLatin1String facet = rangeFacetOfAttribute(other, origin.name);
        if (facet.size() > 0) {
            declared.facets.append({facet, element.attribute(other), true});
        } else if (isEnumerationOfAttribute(other, origin.name)) {
            enumeration.append(other);
        }
    }
    declared.enumeration = valuesByNumber(element, enumeration);
    return declared;
}

/// The position below the nearest xs:choice around a tag of what the tag stands in; None outside of any.
int branchOf(const TextNode* tag)
{
    const TextNode* const choice = tag->Around("choice");
    while (choice && tag->parent != choice) {
        tag = tag->parent;
    }
    const auto isTag = [tag](const std::unique_ptr<TextNode>& child) { return child.get() == tag; };
    return choice
        ? 1 + int(std::find_if(choice->children.begin(), choice->children.end(), isTag) - choice->children.begin())
        : SkeletonElement::None;
}

class SkeletonBuilder
{
public:
    explicit SkeletonBuilder(const SchemaRecord& record);

    SkeletonTree Build();

private:
    int add(const QDomElement& element, int parent);
    void applyDeclaration(SkeletonElement& laidOut, const SchemaRecord::ElementOrigin& origin) const;
    void annotate(SkeletonElement& laidOut, const QDomElement& element,
                  std::vector<SchemaRecord::AttributeOrigin> origins) const;

    const SchemaRecord& m_record;
    QHash<const TextNode*, int> m_choices; ///< the numbers of the xs:choice tags
    SkeletonTree m_tree;
};

SkeletonBuilder::SkeletonBuilder(const SchemaRecord& record)
    : m_record(record)
{
    for (const TextFile* const file : record.GetReadFiles()) {
        for (const TextNode* const tag : file->tags) {
            if (tag->qName == QLatin1String("xs:choice")) {
                m_choices.insert(tag, int(m_choices.size()) + 1);
            }
        }
    }
}

SkeletonTree SkeletonBuilder::Build()
{
    struct Step
    {
        QDomElement element;
        int index; // cppcheck-suppress unusedStructMember ; asked of the last step
    };
    const QDomElement root = m_record.GetRoot();
    std::vector<Step> open;
    if (!root.isNull()) {
        open.push_back({root, add(root, SkeletonElement::None)});
    }
    while (!open.empty()) {
        QDomElement next = open.back().element.firstChildElement();
        while (next.isNull() && open.size() > 1) {
            next = open.back().element.nextSiblingElement();
            open.pop_back();
        }
        if (next.isNull()) {
            break;
        }
        open.push_back({next, add(next, open.back().index)});
    }
    tryWalks(m_tree, m_record.GetOccurs(), m_record.GetChoices());
    return m_tree;
}

int SkeletonBuilder::add(const QDomElement& element, int parent)
{
    const int index = int(m_tree.elements.size());
    SkeletonElement& laidOut = m_tree.elements.emplace_back();
    laidOut.name = element.tagName();
    laidOut.parent = parent;
    if (parent != SkeletonElement::None) {
        std::vector<int>& siblings = m_tree.elements[std::size_t(parent)].children;
        laidOut.row = int(siblings.size());
        siblings.push_back(index);
    }
    const SchemaRecord::ElementOrigin& origin = m_record.GetOrigins()[std::size_t(index)];
    applyDeclaration(laidOut, origin);
    annotate(laidOut, element, origin.attributes);
    return index;
}

/// What a reference says of occurrences counts in place of what the declaration says.
void SkeletonBuilder::applyDeclaration(SkeletonElement& laidOut, const SchemaRecord::ElementOrigin& origin) const
{
    laidOut.place = m_record.PlaceOf(origin.declaration);
    laidOut.particle = laidOut.place;
    if (!origin.declaration) {
        return;
    }
    const bool isReferred = origin.reference && !origin.reference->Has("name");
    const TextNode& particle = isReferred ? *origin.reference : *origin.declaration;
    laidOut.particle = particle.GetPlace();
    laidOut.choiceGroup = m_choices.value(particle.Around("choice"), SkeletonElement::None);
    laidOut.choiceBranch = branchOf(&particle);
    if (particle.IsGlobal()) {
        return;
    }
    laidOut.minOccurs = particle.Has("minOccurs") ? particle.Value("minOccurs").toInt() : 1;
    const QString maxOccurs = particle.Value("maxOccurs");
    laidOut.maxOccurs = maxOccurs.isEmpty()       ? std::max(1, laidOut.minOccurs)
        : maxOccurs == QLatin1String("unbounded") ? AcceptedCounts::Unbounded
                                                  : maxOccurs.toInt();
}

void SkeletonBuilder::annotate(SkeletonElement& laidOut, const QDomElement& element,
                               std::vector<SchemaRecord::AttributeOrigin> origins) const
{
    using Kind = SchemaReadingLog::AttributeKind;
    std::sort(origins.begin(), origins.end(),
              [](const auto& left, const auto& right) { return left.name < right.name; });
    QStringList all;
    for (const SchemaRecord::AttributeOrigin& origin : origins) {
        all.append(origin.name);
    }
    QStringList enumeration;
    for (const SchemaRecord::AttributeOrigin& origin : origins) {
        const QString value = element.attribute(origin.name);
        if (origin.kind == Kind::Declared) {
            laidOut.attributes.append(declaredAttribute(origin, m_record.PlaceOf(origin.tag), all, element));
        }
        Facet facet {origin.name, value, false};
        facet.isChecked = rangeFacetOfElement(origin.name).size() > 0;
        // An attribute that is called like an annotation is taken for it.
        if (origin.name == TypeAttribute()) {
            laidOut.type = value;
        } else if (origin.name == DefaultAttribute()) {
            laidOut.defaultValue = value;
        } else if (isEnumerationOfElement(origin.name)) {
            enumeration.append(origin.name);
        } else if (facet.isChecked || origin.kind == Kind::Annotation) {
            laidOut.facets.append(facet);
        }
    }
    laidOut.setters = settersOfElement(laidOut.type);
    laidOut.enumeration = valuesByNumber(element, enumeration);
    std::stable_sort(laidOut.facets.begin(), laidOut.facets.end(),
                     [](const Facet& left, const Facet& right) { return rankOf(left) < rankOf(right); });
}

} // namespace

SkeletonTree builtTree(const SchemaRecord& record)
{
    return SkeletonBuilder(record).Build();
}

} // namespace schemadoctor
