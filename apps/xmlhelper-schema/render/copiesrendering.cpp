#include "copiesrendering.h"

#include <map>

#include <QCoreApplication>
#include <QStringList>

#include <xmlhelper/skeletonwords_p.h>

namespace schemadoctor {

namespace {

class CopiesWords
{
    Q_DECLARE_TR_FUNCTIONS(schemadoctor::CopiesWords)

public:
    static QString Title() { return tr("In every copy but the first"); }
    static QString For(const SkeletonElement& element);

private:
    static QString wordsForRest(const SkeletonElement& element);
};

/// What is left in an element that stays: its annotations, and the default as its value.
QString CopiesWords::wordsForRest(const SkeletonElement& element)
{
    QStringList rest;
    if (!isContainer(element)) {
        rest.append(TypeAttribute());
    }
    for (const Facet& facet : element.facets) {
        rest.append(facet.name);
    }
    if (!element.enumeration.isEmpty()) {
        rest.append(EnumerationFacet);
    }
    const QString stays = rest.isEmpty()
        ? tr("stays when nothing fills it")
        : tr("stays when nothing fills it, with %1").arg(rest.join(QLatin1String(", ")));
    return element.defaultValue.isEmpty() ? stays : tr("%1 and the value '%2'").arg(stays, element.defaultValue);
}

QString CopiesWords::For(const SkeletonElement& element)
{
    QStringList words;
    if (element.staysInCopies) {
        words.append(wordsForRest(element));
    }
    if (element.isSingleInCopies) {
        words.append(tr("no count is accepted"));
    }
    if (element.isUntriedInCopies) {
        words.append(tr("was not tried"));
    }
    return words.join(QLatin1String("; "));
}

/// The nearest container around an element that may be repeated; None when there is none.
int repeatedAround(const SkeletonTree& tree, const SkeletonElement& element)
{
    int index = element.parent;
    while (index != SkeletonElement::None && !mayBeRepeated(tree.elements[std::size_t(index)])) {
        index = tree.elements[std::size_t(index)].parent;
    }
    return index;
}

} // namespace

QString copiesText(const SkeletonTree& tree)
{
    std::map<int, QString> lines; // by container
    for (const SkeletonElement& element : tree.elements) {
        const QString words = CopiesWords::For(element);
        const int container = words.isEmpty() ? SkeletonElement::None : repeatedAround(tree, element);
        if (container != SkeletonElement::None) {
            lines[container] += QStringLiteral("    %1: %2\n").arg(element.name, words);
        }
    }
    QString text;
    for (const auto& [container, words] : lines) {
        text += QStringLiteral("  %1\n").arg(pathOf(tree, container)) + words;
    }
    return text.isEmpty() ? text : QStringLiteral("\n%1\n%2").arg(CopiesWords::Title(), text);
}

} // namespace schemadoctor
