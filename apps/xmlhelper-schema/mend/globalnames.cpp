#include "globalnames.h"

#include <xmlhelper/valuerules_p.h>

#include "mendwords.h"
#include "names.h"

namespace schemadoctor {

namespace {

/// What a type is called first.
QString wantedName(const MendedElement& element)
{
    const QString called = capitalised(element.name) + QLatin1String("Type");
    return element.value.name.isEmpty() ? called : element.value.name;
}

/// Values allow the same in the same words where this is the same.
QString keyOf(const SimpleValue& value)
{
    QStringList parts {value.base};
    for (const QStringList& step : value.earlierPatterns) {
        parts << step << QString();
    }
    parts += value.enumeration;
    for (const auto& facet : value.facets) {
        parts << facet.first << facet.second;
    }
    return parts.join(QChar(0));
}

/// Types of one name are the same where this is.
QString keyOf(const MendedElement& element)
{
    return wantedName(element) + QChar(0) + keyOf(element.value);
}

/// The type that the last restriction of a value restricts.
SimpleValue withoutLastStep(const SimpleValue& value)
{
    SimpleValue step;
    step.base = value.base;
    for (const QStringList& patterns : value.earlierPatterns) {
        step.AddPatterns(patterns);
    }
    return step;
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

std::vector<MendedElement*> GlobalNames::NeedingGlobals(MendedContent& content)
{
    std::map<QString, int> counts;
    for (const MendedElement& element : content) {
        ++counts[element.name];
    }
    std::vector<MendedElement*> needing;
    for (MendedElement& element : content) {
        const bool isSeveral = element.minOccurs > 1 || counts[element.name] > 1;
        if (!element.IsPlain() && (isSeveral || element.choice != MendedElement::None)) {
            needing.push_back(&element);
        }
    }
    return needing;
}

void GlobalNames::reserve(MendedElement& element)
{
    for (const MendedElement* const child : NeedingGlobals(element.children)) {
        m_reserved.insert(child->name);
    }
    for (MendedElement& child : element.children) {
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
    const auto known = m_attributeIndex.find(attribute.name);
    const QString words = Mend::tr("the attribute '%1' with a type of its own").arg(attribute.name);
    const bool isKnown = known != m_attributeIndex.end();
    const bool isFree = !isKnown && m_reserved.count(attribute.name) == 0;
    if (isFree || (isKnown && m_attributes[known->second].value.IsSame(attribute.value))) {
        if (isFree) {
            m_attributeIndex.emplace(attribute.name, m_attributes.size());
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
    } else {
        attribute.isInPlace = true;
    }
}

void GlobalNames::claimTypes(const MendedElement& element)
{
    for (const MendedAttribute& attribute : element.attributes) {
        claimSteps(attribute.value);
    }
    if (element.hasValue && !element.value.IsPlain()) {
        claimType(element);
    }
    for (const MendedElement& child : element.children) {
        claimTypes(child);
    }
}

void GlobalNames::claimType(const MendedElement& element)
{
    QString& name = m_typeNames[keyOf(element)];
    if (name.isEmpty()) {
        claimSteps(element.value);
        name = nameFor(element);
        m_types.push_back({name, element.value});
    }
    tellName(element, name);
}

void GlobalNames::claimSteps(const SimpleValue& value)
{
    if (value.earlierPatterns.empty()) {
        return;
    }
    const SimpleValue step = withoutLastStep(value);
    claimSteps(step);
    QString& name = m_stepNames[keyOf(step)];
    if (name.isEmpty()) {
        name = nameForStep(step.base);
        m_types.push_back({name, step});
    }
}

/// A name that nothing has yet.
QString GlobalNames::nameFor(const MendedElement& element)
{
    const QString wanted = wantedName(element);
    int& attempt = m_attempts[wanted];
    for (;; ++attempt) {
        const QString base = element.value.name.isEmpty() ? wanted : wanted + QLatin1String("Type");
        const QString name = attempt == 0 ? wanted : attempt == 1 ? base : base + QString::number(attempt);
        if (claimName(name)) {
            return name;
        }
    }
}

/// A setter knows its types by the word that their names hold, and finds no other word here.
QString GlobalNames::nameForStep(const QString& base)
{
    const bool isOfIntegers = settersOfElement(base) == Setters(Setter::Integer);
    const QString wanted = (isOfIntegers ? wordOf(Setter::Integer) : base) + QLatin1String(".patterns");
    int& attempt = m_attempts[wanted];
    for (;;) {
        const QString name = ++attempt == 1 ? wanted : wanted + QString::number(attempt);
        if (claimName(name)) {
            return name;
        }
    }
}

bool GlobalNames::claimName(const QString& name)
{
    return m_reserved.count(name) == 0 && m_attributeIndex.count(name) == 0 && m_takenNames.insert(name).second;
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
    return m_typeNames.at(keyOf(element));
}

QString GlobalNames::BaseOf(const SimpleValue& value) const
{
    return value.earlierPatterns.empty() ? QLatin1String("xs:") + value.base
                                         : m_stepNames.at(keyOf(withoutLastStep(value)));
}

} // namespace schemadoctor
