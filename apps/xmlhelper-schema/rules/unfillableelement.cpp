#include <QHash>

#include "rule.h"
#include "typeadvice.h"

namespace schemadoctor {

namespace {

/// Whether the schema says that nothing is inside: such an element is complete as it is laid out.
bool isMeantToBeEmpty(const Schema& schema, const TextNode& declaration)
{
    if (schema.FindGlobal({"complexType"}, declaration.Value("type"))) {
        return true;
    }
    for (const auto& child : declaration.children) {
        if (child->Is("complexType")) {
            return true;
        }
    }
    return false;
}

/// What comes of it that no setter takes the element.
QString effectOn(const SkeletonElement& element)
{
    if (!element.isNeverKept) {
        return element.fate == Fate::Stays || element.fate == Fate::IsRemovedWithAnother
            ? Texts::tr("No setter takes it: the element stays empty in every report, with its annotations.")
            : Texts::tr("No setter takes it.");
    }
    return element.fate == Fate::IsRemovedWithItsContainer
        ? Texts::tr("No setter takes it: the element is removed from every report, with the container around it.")
        : Texts::tr("No setter takes it: the element is removed from every report.");
}

/// Of a declaration: its place and name.
QString declarationKey(const Place& place, const QString& name)
{
    return QStringLiteral("%1:%2:%3").arg(place.line).arg(name, place.file);
}

} // namespace

void unfillableElement(const Schema& schema, Findings& findings)
{
    QHash<QString, const TextNode*> declarations;
    for (const TextNode* const tag : schema.Tags({"element"})) {
        declarations.insert(declarationKey(tag->GetPlace(), tag->Value("name")), tag);
    }
    ToldDeclarations told;
    const SkeletonTree& tree = schema.GetTree();
    for (int index = 0; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        const bool hasAttributesOnly = isContainer(element) && !element.attributes.isEmpty();
        if (element.setters != Setters() || !element.children.empty() || hasAttributesOnly) {
            continue;
        }
        if (!told.Add(element.place, element.name, element.type)) {
            continue;
        }
        if (element.type.isEmpty()) {
            const TextNode* const declaration = declarations.value(declarationKey(element.place, element.name));
            if (!declaration || isMeantToBeEmpty(schema, *declaration)) {
                continue;
            }
        }
        findings.Add(element.fate == Fate::Stays ? Severity::Error : Severity::Warning, element.place, element.name,
                     element.type.isEmpty()
                         ? Texts::tr("The element '%1' has no type that is understood.").arg(element.name)
                         : Texts::tr("The element '%1' is of the type '%2'.").arg(element.name, element.type),
                     effectOn(element), adviceForElement(element.type), index);
    }
}

} // namespace schemadoctor
