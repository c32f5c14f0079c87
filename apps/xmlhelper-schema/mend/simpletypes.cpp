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

/// What a facet takes the place of besides itself: what would contradict it, or say what it says.
QStringList othersReplacedBy(const QString& facet)
{
    static const std::map<QString, QStringList> others {
        {QStringLiteral("minInclusive"), {QStringLiteral("minExclusive")}},
        {QStringLiteral("minExclusive"), {QStringLiteral("minInclusive")}},
        {QStringLiteral("maxInclusive"), {QStringLiteral("maxExclusive")}},
        {QStringLiteral("maxExclusive"), {QStringLiteral("maxInclusive")}},
        {QStringLiteral("length"), {QStringLiteral("minLength"), QStringLiteral("maxLength")}},
    };
    const auto found = others.find(facet);
    return found == others.end() ? QStringList() : found->second;
}

bool isFacet(const TextNode& tag)
{
    return tag.isOfSchemaNamespace && tag.Has("value");
}

/// Of all facets of one kind, each once.
QStringList valuesOf(const TextNode& restriction, const char* facet)
{
    QStringList values;
    for (const auto& tag : restriction.children) {
        if (isFacet(*tag) && tag->Is(facet)) {
            values.append(tag->Value("value"));
        }
    }
    values.removeDuplicates();
    return values;
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
    value.isUnknown = !mayChange;
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
    Restrict(value, restriction);
    if (inner || !m_set.IsBuiltIn(restriction, base)) {
        const bool isInSteps = m_log.IsFormatKept() && !value.earlierPatterns.empty();
        const QString after = isInSteps ? Mend::tr("restrictions of xs:%1, one for each pattern that has to hold")
                                        : Mend::tr("a restriction of xs:%1 with the facets of both");
        m_log.Narrow(restriction, Mend::tr("a restriction of the type '%1'").arg(base), after.arg(value.base));
    }
    return value;
}

void SimpleTypes::Restrict(SimpleValue& value, const TextNode& restriction) const
{
    const QStringList enumeration = valuesOf(restriction, "enumeration");
    if (!enumeration.isEmpty()) { // Each text is one of the base: only what stands here or comes later says more.
        value.enumeration = enumeration;
        value.facets.clear();
        value.earlierPatterns.clear();
    }
    for (const auto& tag : restriction.children) {
        if (!isFacet(*tag) || tag->IsAnyOf({"enumeration", "pattern"})) {
            continue;
        }
        const bool isOfLength = tag->IsAnyOf({"minLength", "maxLength"});
        if (isOfLength && !value.Facet("length").isEmpty()) {
            continue; // That says more.
        }
        const QStringList others = othersReplacedBy(tag->localName);
        for (const QString& other : others) {
            value.RemoveFacet(other.toLatin1().constData());
        }
        value.SetFacet(tag->localName, tag->Value("value"));
    }
    value.AddPatterns(valuesOf(restriction, "pattern"));
}

SimpleValue SimpleTypes::ofList(const TextNode& list)
{
    const TextNode* const inner = childOf(list, "simpleType");
    SimpleValue value;
    value.base = QStringLiteral("string");
    value.item = std::make_shared<SimpleValue>(inner ? OfDefinition(*inner) : Of(list, list.Value("itemType")));
    value.list = &list;
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
    const auto isText
        = [](const SimpleValue& one) { return one.base == QLatin1String("string") && one.IsPlain() && !one.item; };
    if (members.empty() || std::any_of(members.begin(), members.end(), isText)) {
        m_log.Narrow(unionTag, QStringLiteral("xs:union"), QStringLiteral("xs:string"));
        return value;
    }
    value.enumeration = textsOf(members);
    if (!value.enumeration.isEmpty()) {
        m_log.Narrow(unionTag, QStringLiteral("xs:union"), Mend::tr("one enumeration of all texts"));
        return value;
    }
    m_log.Narrow(unionTag, QStringLiteral("xs:union"),
                 Mend::tr("its first member, a type on xs:%1").arg(members.front().base));
    return members.front();
}

/// What all of them enumerate and allow; empty where one enumerates nothing, or it cannot be decided.
QStringList SimpleTypes::textsOf(const std::vector<SimpleValue>& members)
{
    QStringList texts;
    for (const SimpleValue& member : members) {
        const std::optional<QStringList> allowed = m_check.AllowedOf(member);
        if (member.enumeration.isEmpty() || !allowed) {
            return QStringList();
        }
        texts += *allowed;
    }
    texts.removeDuplicates();
    return texts;
}

} // namespace schemadoctor
