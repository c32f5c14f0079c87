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

void Attributes::Rename(std::vector<MendedAttribute>& attributes)
{
    for (MendedAttribute& attribute : attributes) {
        attribute.name = allowedName(attribute);
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
