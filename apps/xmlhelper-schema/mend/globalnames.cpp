#include "globalnames.h"

#include <algorithm>

#include "mendwords.h"

namespace schemadoctor {

namespace {

QString candidateFor(const MendedElement& element, int attempt)
{
    const QString& given = element.value.name;
    const QString called = element.name.left(1).toUpper() + element.name.mid(1) + QLatin1String("Type");
    if (attempt == 0) {
        return given.isEmpty() ? called : given;
    }
    const QString base = given.isEmpty() ? called : given + QLatin1String("Type");
    return attempt == 1 ? base : base + QString::number(attempt);
}

} // namespace

GlobalNames::GlobalNames(const SchemaSet& set, RewriteLog& log, MendedElement& root)
    : m_set(set)
    , m_log(log)
{
    m_reserved.insert(root.name);
    reserve(root);
    claimAttributes(root);
    claimTypes(root);
}

bool GlobalNames::NeedsGlobal(const MendedElement& element, const MendedContent& siblings)
{
    if (element.IsPlain()) {
        return false;
    }
    const auto sameNames = std::count_if(siblings.begin(), siblings.end(),
                                         [&element](const auto& other) { return other.name == element.name; });
    return element.minOccurs > 1 || element.choice != MendedElement::None || sameNames > 1;
}

void GlobalNames::reserve(const MendedElement& element)
{
    for (const MendedElement& child : element.children) {
        if (NeedsGlobal(child, element.children)) {
            m_reserved.insert(child.name);
        }
        reserve(child);
    }
}

void GlobalNames::claimAttributes(MendedElement& element)
{
    for (MendedAttribute& attribute : element.attributes) {
        if (IsGlobal(attribute)) {
            claimAttribute(attribute);
        }
    }
    for (MendedElement& child : element.children) {
        claimAttributes(child);
    }
}

/// Two attributes of one name can be global only when they are the same.
void GlobalNames::claimAttribute(MendedAttribute& attribute)
{
    const auto known = std::find_if(m_attributes.begin(), m_attributes.end(),
                                    [&attribute](const auto& one) { return one.name == attribute.name; });
    const QString words = Mend::tr("the attribute '%1' with a type of its own").arg(attribute.name);
    const bool isFree = known == m_attributes.end() && m_reserved.count(attribute.name) == 0;
    if (isFree || (known != m_attributes.end() && known->value.IsSame(attribute.value))) {
        if (isFree) {
            m_attributes.push_back(attribute);
        }
        if (!attribute.declaration->IsGlobal()) {
            m_log.Narrow(*attribute.declaration, words, Mend::tr("a global attribute"));
        }
        return;
    }
    if (m_log.Change(*attribute.declaration, Mend::tr("%1, whose name another has").arg(words),
                     Mend::tr("an attribute of the type xs:%1").arg(attribute.value.base))) {
        attribute.value.enumeration.clear();
        attribute.value.facets.clear();
    }
}

void GlobalNames::claimTypes(const MendedElement& element)
{
    if (element.hasValue && !element.value.IsPlain()) {
        claimType(element);
    }
    for (const MendedElement& child : element.children) {
        claimTypes(child);
    }
}

void GlobalNames::claimType(const MendedElement& element)
{
    for (int attempt = 0;; ++attempt) {
        const QString name = candidateFor(element, attempt);
        const auto known
            = std::find_if(m_types.begin(), m_types.end(), [&name](const Type& type) { return type.name == name; });
        const bool isTaken = m_reserved.count(name) > 0
            || std::any_of(m_attributes.begin(), m_attributes.end(),
                           [&name](const MendedAttribute& attribute) { return attribute.name == name; });
        if (isTaken || (known != m_types.end() && !known->value.IsSame(element.value))) {
            continue;
        }
        if (known == m_types.end()) {
            m_types.push_back({name, element.value});
        }
        tellName(element, name);
        return;
    }
}

void GlobalNames::tellName(const MendedElement& element, const QString& name)
{
    const TextNode* const definition = element.value.definition;
    if (definition && definition->Value("name") != name) {
        m_log.Narrow(*definition,
                     definition->Has("name") ? Mend::tr("the type '%1'").arg(definition->Value("name"))
                                             : Mend::tr("a type without a name"),
                     Mend::tr("the type '%1'").arg(name));
    } else if (definition && element.declaration && !m_set.IsBefore(*definition, *element.declaration)) {
        m_log.Narrow(*definition, Mend::tr("the type '%1' behind its use").arg(name), Mend::tr("in front of it"));
    }
}

QString GlobalNames::TypeOf(const MendedElement& element) const
{
    if (element.value.IsPlain()) {
        return QLatin1String("xs:") + element.value.base;
    }
    for (int attempt = 0;; ++attempt) {
        const QString name = candidateFor(element, attempt);
        const auto known = std::find_if(m_types.begin(), m_types.end(), [&](const Type& type) {
            return type.name == name && type.value.IsSame(element.value);
        });
        if (known != m_types.end()) {
            return name;
        }
    }
}

} // namespace schemadoctor
