#include "schemaset.h"

#include <optional>

#include <QDir>
#include <QFileInfo>

#include <xmlhelper/filesaving_p.h>

#include "mendwords.h"
#include "reading/doctorlimits.h"

namespace schemadoctor {

namespace {

std::optional<GlobalKind> kindOf(const TextNode& tag)
{
    static const std::map<QString, GlobalKind> kinds {
        {QStringLiteral("element"), GlobalKind::Element},
        {QStringLiteral("attribute"), GlobalKind::Attribute},
        {QStringLiteral("complexType"), GlobalKind::Type},
        {QStringLiteral("simpleType"), GlobalKind::Type},
        {QStringLiteral("group"), GlobalKind::Group},
        {QStringLiteral("attributeGroup"), GlobalKind::AttributeGroup},
    };
    const auto found = tag.isOfSchemaNamespace ? kinds.find(tag.localName) : kinds.end();
    return found == kinds.end() ? std::nullopt : std::make_optional(found->second);
}

/// The redefinition of that name in which a tag stands: there the name means what is redefined.
const TextNode* redefinitionAround(const TextNode& tag, GlobalKind kind, const QString& name)
{
    const TextNode* global = &tag;
    while (global->parent && !global->parent->Is("redefine")) {
        global = global->parent;
    }
    return global->parent && kindOf(*global) == kind && global->Value("name") == name ? global : nullptr;
}

} // namespace

SchemaSet::SchemaSet(const QString& file)
{
    read(openableFileName(file));
    for (const TextNode* const global : GetGlobals(GlobalKind::Element)) {
        m_substitutes[Find(GlobalKind::Element, *global, global->Value("substitutionGroup"))].push_back(global);
    }
}

void SchemaSet::read(const QString& fileName)
{
    if (!m_names.insert(QDir::cleanPath(fileName)).second) {
        return;
    }
    const TextFile& file = *m_text.Open(fileName);
    m_characters += file.text.size();
    if (file.isTooBig || m_characters > MaxSchemaBytes) {
        m_refusal = Mend::tr("The files are longer than the %1 bytes that are mended.").arg(MaxSchemaBytes);
    } else if (!file.root || !file.fault.isEmpty()) {
        m_refusal = Mend::tr("%1 is no well-formed XML.").arg(fileName);
    } else if (!file.root->Is("schema")) {
        m_refusal = Mend::tr("%1 is no XML Schema.").arg(fileName);
    }
    if (!m_refusal.isEmpty()) {
        return;
    }
    m_files.push_back(&file);
    for (const auto& tag : file.root->children) {
        if (tag->IsAnyOf({"include", "redefine", "import"})) {
            follow(*tag);
        }
    }
    for (const TextNode* const tag : file.tags) {
        m_positions.emplace(tag, int(m_positions.size()));
    }
    addGlobals(*file.root);
}

void SchemaSet::follow(const TextNode& include)
{
    const QString file = LocationOf(include);
    if (include.Is("import") || !QFileInfo(file).isFile()) {
        m_unread.push_back(&include);
        return;
    }
    m_includes.push_back(&include);
    addGlobals(include); // What is redefined counts before what is read.
    read(file);
}

QString SchemaSet::LocationOf(const TextNode& include) const
{
    return QFileInfo(include.file->name).dir().filePath(include.Value("schemaLocation"));
}

/// The first declaration of a name counts; those that it redefines follow it.
void SchemaSet::addGlobals(const TextNode& parent)
{
    for (const auto& tag : parent.children) {
        const std::optional<GlobalKind> kind = kindOf(*tag);
        if (!kind) {
            continue;
        }
        const auto [found, isFirst] = m_globals.emplace(std::make_pair(*kind, tag->Value("name")), tag.get());
        if (isFirst) {
            m_ordered[*kind].push_back(tag.get());
        } else {
            redefine(*found->second, *tag);
        }
    }
}

/// What was redefined already is redefined by the last redefinition.
void SchemaSet::redefine(const TextNode& first, const TextNode& original)
{
    const TextNode* last = &first;
    for (auto next = m_redefined.find(last); next != m_redefined.end(); next = m_redefined.find(last)) {
        last = next->second;
    }
    if (last->parent->Is("redefine")) {
        m_redefined.emplace(last, &original);
    }
}

QString SchemaSet::namespaceOf(const TextNode& tag, const QString& qName) const
{
    const QString prefix = qName.contains(QLatin1Char(':')) ? qName.section(QLatin1Char(':'), 0, 0) : QString();
    const auto found = tag.file->namespaces.find(prefix);
    return found == tag.file->namespaces.end() ? QString() : found->second;
}

bool SchemaSet::IsOfOtherNamespace(const TextNode& tag, const QString& qName) const
{
    const QString space = namespaceOf(tag, qName);
    return !space.isEmpty() && space != SchemaNamespace && space != GetTop().root->Value("targetNamespace");
}

const TextNode* SchemaSet::Find(GlobalKind kind, const TextNode& tag, const QString& qName) const
{
    const QString space = namespaceOf(tag, qName);
    if (!space.isEmpty() && space != GetTop().root->Value("targetNamespace")) {
        return nullptr;
    }
    if (space.isEmpty() && qName.contains(QLatin1Char(':'))) {
        return nullptr; // such as xml:lang
    }
    const QString name = qName.section(QLatin1Char(':'), -1);
    if (const TextNode* const redefinition = redefinitionAround(tag, kind, name)) {
        const auto original = m_redefined.find(redefinition);
        return original == m_redefined.end() ? nullptr : original->second;
    }
    const auto found = m_globals.find({kind, name});
    return found == m_globals.end() ? nullptr : found->second;
}

const std::vector<const TextNode*>& SchemaSet::GetGlobals(GlobalKind kind) const
{
    static const std::vector<const TextNode*> none;
    const auto found = m_ordered.find(kind);
    return found == m_ordered.end() ? none : found->second;
}

std::vector<const TextNode*> SchemaSet::GetSubstitutes(const TextNode& head) const
{
    std::vector<const TextNode*> substitutes {&head};
    std::set<const TextNode*> known {&head};
    for (std::size_t index = 0; index < substitutes.size(); ++index) {
        const auto found = m_substitutes.find(substitutes[index]);
        for (const TextNode* const one :
             found == m_substitutes.end() ? std::vector<const TextNode*>() : found->second) {
            if (known.insert(one).second) {
                substitutes.push_back(one);
            }
        }
    }
    return substitutes;
}

bool SchemaSet::IsBuiltIn(const TextNode& tag, const QString& qName) const
{
    return namespaceOf(tag, qName) == SchemaNamespace;
}

bool SchemaSet::IsBefore(const TextNode& first, const TextNode& second) const
{
    return m_positions.at(&first) < m_positions.at(&second);
}

} // namespace schemadoctor
