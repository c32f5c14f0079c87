#include "simpletypes.h"

#include <algorithm>

#include "mendwords.h"

namespace schemadoctor {

namespace {

constexpr int MostTypesInsideOfEachOther = 100;

const TextNode* childOf(const TextNode& tag, const char* name)
{
    const auto found = std::find_if(tag.children.begin(), tag.children.end(),
                                    [name](const std::unique_ptr<TextNode>& child) { return child->Is(name); });
    return found == tag.children.end() ? nullptr : found->get();
}

/// The facet that the same side of a range has otherwise; empty for others.
QString otherFacetOfSide(const QString& facet)
{
    static const std::map<QString, QString> others {
        {QStringLiteral("minInclusive"), QStringLiteral("minExclusive")},
        {QStringLiteral("minExclusive"), QStringLiteral("minInclusive")},
        {QStringLiteral("maxInclusive"), QStringLiteral("maxExclusive")},
        {QStringLiteral("maxExclusive"), QStringLiteral("maxInclusive")},
    };
    const auto found = others.find(facet);
    return found == others.end() ? QString() : found->second;
}

bool isFacet(const TextNode& tag)
{
    return tag.isOfSchemaNamespace && tag.Has("value");
}

} // namespace

SimpleValue SimpleTypes::Of(const TextNode& tag, const QString& qName)
{
    SimpleValue value;
    value.base = qName.section(QLatin1Char(':'), -1);
    if (m_set.IsBuiltIn(tag, qName)) {
        return value;
    }
    const TextNode* const type = m_set.Find(GlobalKind::Type, tag, qName);
    if (type && type->Is("simpleType")) {
        return OfDefinition(*type);
    }
    const bool mayChange = m_log.Change(tag, Mend::tr("the type '%1', which is defined nowhere").arg(qName),
                                        QStringLiteral("xs:string"));
    value.base = mayChange ? QStringLiteral("string") : QStringLiteral("anySimpleType");
    return value;
}

SimpleValue SimpleTypes::OfDefinition(const TextNode& simpleType)
{
    SimpleValue value;
    value.base = QStringLiteral("string");
    if (m_depth < MostTypesInsideOfEachOther && --m_typesLeft > 0) {
        ++m_depth;
        value = read(simpleType);
        --m_depth;
    }
    value.name = simpleType.Value("name");
    value.definition = &simpleType;
    return value;
}

SimpleValue SimpleTypes::read(const TextNode& simpleType)
{
    if (const TextNode* const list = childOf(simpleType, "list")) {
        return ofList(*list);
    }
    if (const TextNode* const unionTag = childOf(simpleType, "union")) {
        return ofUnion(*unionTag);
    }
    const TextNode* const restriction = childOf(simpleType, "restriction");
    return restriction ? ofRestriction(*restriction) : Of(simpleType, QStringLiteral("string"));
}

SimpleValue SimpleTypes::ofRestriction(const TextNode& restriction)
{
    const QString base = restriction.Value("base");
    const TextNode* const inner = childOf(restriction, "simpleType");
    SimpleValue value = inner ? OfDefinition(*inner) : Of(restriction, base);
    if (inner || !m_set.IsBuiltIn(restriction, base)) {
        m_log.Narrow(restriction, Mend::tr("a restriction of the type '%1'").arg(base),
                     Mend::tr("a restriction of xs:%1 with the facets of both").arg(value.base));
    }
    Restrict(value, restriction);
    return value;
}

void SimpleTypes::Restrict(SimpleValue& value, const TextNode& restriction) const
{
    QStringList enumeration;
    for (const auto& tag : restriction.children) {
        const QString text = tag->Value("value");
        if (!isFacet(*tag)) {
            continue;
        }
        if (tag->Is("enumeration")) {
            enumeration.append(text);
            continue;
        }
        const QString other = otherFacetOfSide(tag->localName);
        if (!other.isEmpty()) {
            value.RemoveFacet(other.toLatin1().constData());
        }
        value.SetFacet(tag->localName, text);
    }
    if (!enumeration.isEmpty()) {
        enumeration.removeDuplicates();
        value.enumeration = enumeration;
    }
}

/// One item is a list as well.
SimpleValue SimpleTypes::ofList(const TextNode& list)
{
    const TextNode* const inner = childOf(list, "simpleType");
    if (m_log.IsFormatKept()) {
        m_log.Narrow(list, QStringLiteral("xs:list"), Mend::tr("a single item"));
        return inner ? OfDefinition(*inner) : Of(list, list.Value("itemType"));
    }
    m_log.Change(list, QStringLiteral("xs:list"), Mend::tr("xs:string, which holds the items as a text"));
    SimpleValue value;
    value.base = QStringLiteral("string");
    value.isList = true;
    return value;
}

SimpleValue SimpleTypes::ofUnion(const TextNode& unionTag)
{
    std::vector<SimpleValue> members;
    const QStringList names = unionTag.Value("memberTypes").simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& name : names) {
        members.push_back(Of(unionTag, name));
    }
    for (const auto& child : unionTag.children) {
        if (child->Is("simpleType")) {
            members.push_back(OfDefinition(*child));
        }
    }
    return ofMembers(unionTag, members);
}

/// All texts of all members where each enumerates, any text where one member allows it, else the first member.
SimpleValue SimpleTypes::ofMembers(const TextNode& unionTag, const std::vector<SimpleValue>& members)
{
    SimpleValue value;
    value.base = QStringLiteral("string");
    const auto isText = [](const SimpleValue& one) { return one.base == QLatin1String("string") && one.IsPlain(); };
    if (members.empty() || std::any_of(members.begin(), members.end(), isText)) {
        m_log.Narrow(unionTag, QStringLiteral("xs:union"), QStringLiteral("xs:string"));
        return value;
    }
    if (std::all_of(members.begin(), members.end(), [](const auto& one) { return !one.enumeration.isEmpty(); })) {
        m_log.Narrow(unionTag, QStringLiteral("xs:union"), Mend::tr("one enumeration of all texts"));
        for (const SimpleValue& member : members) {
            value.enumeration += member.enumeration;
        }
        value.enumeration.removeDuplicates();
        return value;
    }
    m_log.Narrow(unionTag, QStringLiteral("xs:union"),
                 Mend::tr("its first member, a type on xs:%1").arg(members.front().base));
    return members.front();
}

} // namespace schemadoctor
