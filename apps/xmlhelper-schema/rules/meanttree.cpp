#include <algorithm>

#include <QSet>
#include <QStringList>

#include "reading/doctorlimits.h"
#include "rule.h"

namespace schemadoctor {

namespace {

constexpr int MaxRepetitionsShown = 4;

/// Groups that refer to each other may be many, and have no element at all.
constexpr int MaxSteps = 2000;

/// Lays a declaration out as XML Schema defines it, in lines.
class MeantTree
{
public:
    explicit MeantTree(const Schema& schema)
        : m_schema(schema)
    {
    }

    void AddElement(const TextNode& element, int level);
    QString GetText() const { return m_lines.join(QLatin1Char('\n')); }

private:
    void addContentOf(const TextNode& type, int level);
    void addContent(const TextNode& tag, int level);
    void addDefinition(const TextNode* definition, int level);
    void addLine(const QString& text, int level);
    bool isFull() const { return m_lines.size() >= MaxTreeLines || m_steps > MaxSteps; }

    const Schema& m_schema;
    QStringList m_lines;
    int m_steps = 0;
    QSet<const TextNode*> m_open; ///< definitions being laid out: one inside itself is not laid out again
};

void MeantTree::addLine(const QString& text, int level)
{
    if (m_lines.size() < MaxTreeLines - 1) {
        m_lines.append(QString(2 * level, QLatin1Char(' ')) + text);
    } else if (!isFull()) {
        m_lines.append(QStringLiteral("..."));
    }
}

void MeantTree::AddElement(const TextNode& element, int level)
{
    if (isFull()) {
        return;
    }
    if (element.Has("ref")) {
        const TextNode* const global = m_schema.FindGlobal({"element"}, element.Value("ref"));
        if (global && !m_open.contains(global)) {
            m_open.insert(global);
            AddElement(*global, level);
            m_open.remove(global);
        } else {
            addLine(element.Value("ref"), level);
        }
        return;
    }
    const int copies = element.IsGlobal() ? 1 : std::max(1, occursOf(element, "minOccurs", 1));
    for (int copy = 0; copy < std::min(copies, MaxRepetitionsShown); ++copy) {
        addLine(element.Value("name"), level);
        addDefinition(m_schema.FindGlobal({"complexType"}, element.Value("type")), level + 1);
        for (const auto& child : element.children) {
            if (child->Is("complexType")) {
                addContentOf(*child, level + 1);
            }
        }
    }
}

void MeantTree::addDefinition(const TextNode* definition, int level)
{
    if (definition && !m_open.contains(definition)) {
        m_open.insert(definition);
        addContentOf(*definition, level);
        m_open.remove(definition);
    }
}

/// Attributes first: they belong to the element itself.
void MeantTree::addContentOf(const TextNode& type, int level)
{
    for (const auto& child : type.children) {
        if (child->Is("attribute")) {
            addLine(QLatin1Char('@') + nameOf(*child), level);
        }
    }
    for (const auto& child : type.children) {
        addContent(*child, level);
    }
}

void MeantTree::addContent(const TextNode& tag, int level)
{
    ++m_steps;
    if (isFull()) {
        return;
    }
    if (tag.Is("element")) {
        AddElement(tag, level);
    } else if (tag.IsAnyOf({"group", "attributeGroup"}) && tag.Has("ref")) {
        addDefinition(m_schema.FindGlobal({"group", "attributeGroup"}, tag.Value("ref")), level);
    } else if (tag.Is("extension")) {
        addDefinition(m_schema.FindGlobal({"complexType"}, tag.Value("base")), level);
        addContentOf(tag, level);
    } else if (tag.IsAnyOf({"sequence", "choice", "all", "complexContent", "simpleContent", "restriction"})) {
        addContentOf(tag, level);
    }
}

void addLaidOut(const SkeletonTree& tree, int index, int level, QStringList& lines)
{
    const SkeletonElement& element = tree.elements[std::size_t(index)];
    const auto addLine = [&lines](const QString& text, int depth) {
        if (lines.size() < MaxTreeLines - 1) {
            lines.append(QString(2 * depth, QLatin1Char(' ')) + text);
        } else if (lines.size() < MaxTreeLines) {
            lines.append(QStringLiteral("..."));
        }
    };
    addLine(element.name, level);
    for (const DeclaredAttribute& attribute : element.attributes) {
        addLine(QLatin1Char('@') + attribute.name, level + 1);
    }
    for (const int child : element.children) {
        if (lines.size() >= MaxTreeLines) {
            return;
        }
        addLaidOut(tree, child, level + 1, lines);
    }
}

} // namespace

QString meantTreeOf(const Schema& schema, const TextNode& declaration)
{
    MeantTree tree(schema);
    tree.AddElement(declaration, 0);
    return tree.GetText();
}

QString laidOutTreeOf(const Schema& schema, const TextNode& declaration)
{
    const int element = schema.FirstElementOf(declaration);
    if (element == SkeletonElement::None) {
        return Texts::tr("(nothing)");
    }
    QStringList lines;
    addLaidOut(schema.GetTree(), element, 0, lines);
    return lines.join(QLatin1Char('\n'));
}

/// For a named type, its first user stands for it.
void addTrees(const Schema& schema, const TextNode& declaration, Finding& finding)
{
    const TextNode* shown = &declaration;
    if (!declaration.Is("element")) {
        shown = nullptr;
        for (const TextNode* const element : schema.Tags({"element"})) {
            if (localPart(element->Value("type")) == declaration.Value("name")) {
                shown = element;
                break;
            }
        }
    }
    if (shown) {
        finding.meantTree = meantTreeOf(schema, *shown);
        finding.laidOutTree = laidOutTreeOf(schema, *shown);
    }
}

} // namespace schemadoctor
