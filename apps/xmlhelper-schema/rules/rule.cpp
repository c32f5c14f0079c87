#include "rule.h"

#include <utility>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/skeletonwords_p.h>

#include "reading/doctorlimits.h"

namespace schemadoctor {

namespace {

QPair<QPair<QString, int>, QString> keyOf(const Place& place, const QString& name)
{
    return {{place.file, place.line}, name};
}

} // namespace

Schema::Schema(const SchemaRecord& record, const SkeletonTree& tree, const QVector<GrammarFault>& faults)
    : m_record(record)
    , m_tree(tree)
    , m_faults(faults)
{
    for (int index = int(tree.elements.size()) - 1; index >= 0; --index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        m_firstElements.insert(keyOf(element.place, element.name), index);
    }
    for (const TextFile* const file : GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            if (tag->IsGlobal()) {
                m_globals[tag->Value("name")].push_back(tag);
            }
        }
    }
}

std::vector<const TextNode*> Schema::Tags(std::initializer_list<const char*> names) const
{
    std::vector<const TextNode*> found;
    for (const TextFile* const file : GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            if (tag->qName.startsWith(SchemaPrefix) && tag->IsAnyOf(names)) {
                found.push_back(tag);
            }
        }
    }
    return found;
}

const TextNode* Schema::FindGlobal(std::initializer_list<const char*> tags, const QString& name) const
{
    const auto found = m_globals.constFind(localPart(name));
    if (found != m_globals.constEnd()) {
        for (const TextNode* const tag : *found) {
            if (tag->IsAnyOf(tags)) {
                return tag;
            }
        }
    }
    return nullptr;
}

int Schema::FirstElementOf(const TextNode& declaration) const
{
    return m_firstElements.value(keyOf(declaration.GetPlace(), declaration.Value("name")), SkeletonElement::None);
}

Findings::Findings(const Schema& schema, const QString& rule)
    : m_schema(schema)
    , m_rule(rule)
{
}

Finding& Findings::Add(Severity severity, const TextNode& tag, const QString& what, const QString& effect,
                       const QString& remedy)
{
    const int element = tag.Is("element") ? m_schema.FirstElementOf(tag) : SkeletonElement::None;
    return Add(severity, tag.GetPlace(), nameOf(tag), what, effect, remedy, element);
}

Finding& Findings::Add(Severity severity, const Place& place, const QString& subject, const QString& what,
                       const QString& effect, const QString& remedy, int element)
{
    Finding finding;
    finding.severity = severity;
    finding.rule = m_rule;
    finding.place = place;
    finding.subject = subject;
    finding.what = what;
    finding.effect = effect;
    finding.remedy = remedy;
    if (m_findings.size() >= MaxFindingsOfARule) {
        ++m_leftOutCount;
        return m_leftOut = finding;
    }
    if (element != SkeletonElement::None) {
        finding.path = pathOf(m_schema.GetTree(), element);
    }
    m_findings.append(finding);
    return m_findings.last();
}

QVector<Finding> Findings::Take()
{
    if (m_leftOutCount > 0) {
        m_leftOut.what = Texts::tr("%1 more of this kind are left out, the last of them here.").arg(m_leftOutCount);
        m_leftOut.meantTree.clear();
        m_leftOut.laidOutTree.clear();
        m_findings.append(m_leftOut);
    }
    return std::exchange(m_findings, {});
}

QString nameOf(const TextNode& tag)
{
    for (const char* const attribute : {"name", "ref", "base", "itemType", "memberTypes", "schemaLocation"}) {
        if (tag.Has(attribute)) {
            return tag.Value(attribute);
        }
    }
    return QString();
}

QString described(const TextNode& tag)
{
    const QString name = tag.Value(tag.Has("name") ? "name" : "ref");
    return name.isEmpty() ? tag.qName : QStringLiteral("%1 '%2'").arg(tag.qName, name);
}

const TextNode* globalAround(const TextNode& tag)
{
    const TextNode* node = &tag;
    while (node && node->parent && !node->IsGlobal()) {
        node = node->parent;
    }
    return node;
}

const TextNode* namedTypeAround(const TextNode& tag)
{
    const TextNode* const global = globalAround(tag);
    return global && global != &tag && global->IsAnyOf({"complexType", "simpleType"}) ? global : nullptr;
}

bool isBuiltIn(const QString& type)
{
    return type.contains(SchemaPrefix);
}

QString localPart(const QString& name)
{
    return name.section(QLatin1Char(':'), -1);
}

int occursOf(const TextNode& tag, const char* attribute, int otherwise)
{
    if (!tag.Has(attribute)) {
        return otherwise;
    }
    const QString value = tag.Value(attribute);
    return value == QLatin1String("unbounded") ? UnboundedOccurs : value.toInt();
}

std::vector<const IncludedFile*> includesBelow(const IncludedFile& file)
{
    std::vector<const IncludedFile*> all;
    for (const IncludedFile& included : file.includes) {
        all.push_back(&included);
        const std::vector<const IncludedFile*> below = includesBelow(included);
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

bool isInRepeatedGroup(const TextNode& tag)
{
    for (const TextNode* group = tag.parent; group && group->IsAnyOf({"sequence", "choice", "all"});
         group = group->parent) {
        const int maxOccurs = occursOf(*group, "maxOccurs", 1);
        if (maxOccurs < 0 || maxOccurs > 1) {
            return true;
        }
    }
    return false;
}

} // namespace schemadoctor
