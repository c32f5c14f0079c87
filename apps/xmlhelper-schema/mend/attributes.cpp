#include "attributes.h"

#include <algorithm>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

#include "mendwords.h"
#include "names.h"

namespace schemadoctor {

namespace {

constexpr int MostGroupsInsideOfEachOther = 100;

const TextNode* inlineTypeOf(const TextNode& declaration)
{
    const auto found = std::find_if(declaration.children.begin(), declaration.children.end(),
                                    [](const auto& child) { return child->Is("simpleType"); });
    return found == declaration.children.end() ? nullptr : found->get();
}

/// What an attribute is of that names no type.
SimpleValue anyText()
{
    SimpleValue value;
    value.base = QStringLiteral("anySimpleType");
    return value;
}

bool isAnnotation(const QString& name)
{
    return name == TypeAttribute() || name == DefaultAttribute() || isFacetOfType(name);
}

/// The first number in a name; 1 without any.
int numberIn(const QString& name)
{
    const auto isDigit = [](QChar one) { return one.isDigit(); };
    const auto begin = std::find_if(name.begin(), name.end(), isDigit);
    const auto end = std::find_if_not(begin, name.end(), isDigit);
    return begin == end ? 1 : QString(begin, int(end - begin)).toInt();
}

/// Whether a name is a part of what the library calls a facet, but not of the name of the facet's owner. Of the texts
/// of an enumeration it can only be the one whose number it holds.
bool isInAnyFacet(const QString& name, const SimpleValue& value, const QString& owner)
{
    const auto isIn = [&](const QString& facet) { return (facet + owner).contains(name) && !owner.contains(name); };
    const int number = numberIn(name);
    if (number > 0 && number <= value.enumeration.size() && isIn(EnumerationFacet + QString::number(number))) {
        return true;
    }
    return std::any_of(value.facets.begin(), value.facets.end(),
                       [&isIn](const auto& facet) { return isPossibleFacet(facet.first) && isIn(facet.first); });
}

} // namespace

void Attributes::Add(const TextNode& owner, std::vector<MendedAttribute>& attributes, int depth)
{
    for (const auto& tag : owner.children) {
        if (tag->Is("attribute")) {
            addOne(*tag, attributes);
        } else if (tag->Is("attributeGroup")) {
            const TextNode* const group = m_set.Find(GlobalKind::AttributeGroup, *tag, tag->Value("ref"));
            m_log.Narrow(*tag, QStringLiteral("xs:attributeGroup '%1'").arg(tag->Value("ref")),
                         Mend::tr("its attributes"));
            if (group && depth < MostGroupsInsideOfEachOther && --m_groupsLeft > 0) {
                Add(*group, attributes, depth + 1);
            }
        } else if (tag->Is("anyAttribute")) {
            m_log.Narrow(*tag, QStringLiteral("xs:anyAttribute"), Mend::tr("nothing"));
        }
    }
}

void Attributes::addOne(const TextNode& tag, std::vector<MendedAttribute>& attributes)
{
    const QString ref = tag.Value("ref");
    const TextNode* const declaration = ref.isEmpty() ? &tag : m_set.Find(GlobalKind::Attribute, tag, ref);
    const bool isRequired = tag.Value("use") == QLatin1String("required");
    if (!declaration) {
        const QString before = Mend::tr("the attribute '%1' of another namespace").arg(ref);
        if (!isRequired) {
            m_log.Narrow(tag, before, Mend::tr("nothing"));
        } else {
            m_log.Change(tag, before, Mend::tr("nothing"));
        }
        return;
    }
    const QString name = declaration->Value("name");
    const auto known = std::find_if(attributes.begin(), attributes.end(), [&name](const MendedAttribute& attribute) {
        return attribute.declaration->Value("name") == name;
    });
    if (tag.Value("use") == QLatin1String("prohibited")) {
        m_log.Narrow(tag, Mend::tr("the prohibited attribute '%1'").arg(name), Mend::tr("nothing"));
        if (known != attributes.end()) {
            attributes.erase(known);
        }
    } else if (known != attributes.end()) {
        *known = declared(tag, *declaration);
    } else {
        attributes.push_back(declared(tag, *declaration));
    }
}

MendedAttribute Attributes::declared(const TextNode& tag, const TextNode& declaration)
{
    MendedAttribute attribute;
    attribute.declaration = &declaration;
    attribute.reference = &tag;
    attribute.name = declaration.Value("name");
    attribute.isRequired = tag.Value("use") == QLatin1String("required");
    const TextNode* const type = inlineTypeOf(declaration);
    const SimpleValue value = type ? m_types.OfDefinition(*type)
        : declaration.Has("type")  ? m_types.Of(declaration, declaration.Value("type"))
                                   : anyText();
    const TextNode& fixing = tag.Has("fixed") ? tag : declaration;
    const bool isFixed = fixing.Has("fixed");
    attribute.value
        = m_mending.OfAttribute(isFixed ? m_mending.OfFixed(tag, fixing.Value("fixed")) : value, declaration);
    attribute.defaultValue = m_mending.DefaultOf(value, attribute.value, tag.Has("default") ? tag : declaration);
    return attribute;
}

QString Attributes::allowedName(const MendedAttribute& attribute)
{
    QString name = attribute.name;
    if (isAnnotation(name)) {
        name = QLatin1String("its") + capitalised(name);
        name.replace(QLatin1String("enumeration"), QLatin1String("listing"));
        name.replace(QLatin1String("Enumeration"), QLatin1String("Listing"));
        name.replace(QLatin1String("clusive"), QLatin1String("cluding"));
    }
    name = allowedXmlName(name);
    return name == attribute.name
            || m_log.Change(*attribute.declaration, Mend::tr("the attribute '%1'").arg(attribute.name),
                            Mend::tr("the attribute '%1'").arg(name))
        ? name
        : attribute.name;
}

/// Facets of the element and of its attributes are found by parts of names: an attribute must not be called like one,
/// nor like the number of a text of the element.
void Attributes::keepFromFacets(MendedAttribute& attribute, const MendedElement& element)
{
    const auto isInTheWay = [&](const QString& name) {
        const bool isOfOther
            = std::any_of(element.attributes.begin(), element.attributes.end(), [&](const auto& other) {
                  return other.name != attribute.name && isInAnyFacet(name, other.value, other.name);
              });
        const bool isOfElement = element.hasValue && isInAnyFacet(name, element.value, QString());
        const bool isForElement = element.hasValue && !attribute.value.enumeration.isEmpty()
            && isEnumerationOfElement(EnumerationFacet + QLatin1Char('1') + name);
        return isOfOther || isOfElement || isForElement;
    };
    const auto isTaken = [&](const QString& name) {
        return std::any_of(element.attributes.begin(), element.attributes.end(),
                           [&name](const auto& other) { return other.name == name; });
    };
    if (!isInTheWay(attribute.name)) {
        return;
    }
    QString name = QLatin1String("its") + capitalised(attribute.name);
    while (isInTheWay(name) || isTaken(name)) {
        name += QLatin1Char('_');
    }
    if (m_log.Change(*attribute.declaration, Mend::tr("the attribute '%1'").arg(attribute.name),
                     Mend::tr("the attribute '%1'").arg(name))) {
        attribute.name = name;
    }
}

void Attributes::Rename(MendedElement& element)
{
    std::vector<MendedAttribute>& attributes = element.attributes;
    for (MendedAttribute& attribute : attributes) {
        attribute.name = allowedName(attribute);
    }
    for (MendedAttribute& attribute : attributes) {
        keepFromFacets(attribute, element);
    }
    // Facets are found by parts of names: those of the longer would count for the shorter, too.
    for (MendedAttribute& longer : attributes) {
        const bool isContaining = std::any_of(attributes.begin(), attributes.end(), [&longer](const auto& other) {
            return other.name != longer.name && longer.name.contains(other.name);
        });
        if (isContaining && !longer.value.IsPlain()
            && m_log.Change(
                *longer.reference,
                Mend::tr("the facets of the attribute '%1', whose name contains that of another").arg(longer.name),
                Mend::tr("nothing"))) {
            longer.value.enumeration.clear();
            longer.value.facets.clear();
        }
    }
}

} // namespace schemadoctor
