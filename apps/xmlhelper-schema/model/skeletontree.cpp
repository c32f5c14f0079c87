#include "skeletontree.h"

#include <utility>

#include "texts.h"

namespace schemadoctor {

namespace {

/// The name of an element, with its number when a sibling shares the name.
QString stepOf(const SkeletonTree& tree, int index)
{
    const SkeletonElement& element = tree.elements[std::size_t(index)];
    if (element.parent == SkeletonElement::None) {
        return element.name;
    }
    int before = 0;
    int all = 0;
    for (const int sibling : tree.elements[std::size_t(element.parent)].children) {
        if (tree.elements[std::size_t(sibling)].name == element.name) {
            ++all;
            before += sibling < index ? 1 : 0;
        }
    }
    return all > 1 ? QStringLiteral("%1[%2]").arg(element.name).arg(before + 1) : element.name;
}

/// The child to which a step of a path leads.
int childAt(const SkeletonTree& tree, int parent, const QString& step)
{
    const QString name = step.section(QLatin1Char('['), 0, 0);
    int left = step == name ? 1 : step.mid(name.size() + 1).chopped(1).toInt();
    for (const int child : tree.elements[std::size_t(parent)].children) {
        if (tree.elements[std::size_t(child)].name == name && --left == 0) {
            return child;
        }
    }
    return SkeletonElement::None;
}

QString wordsFor(Fate fate)
{
    switch (fate) {
    case Fate::Stays:
        return Texts::tr("stays");
    case Fate::IsRemoved:
        return Texts::tr("is removed");
    case Fate::IsRemovedWithItsValues:
        return Texts::tr("is removed when its first value is unfilled");
    case Fate::IsRemovedWithItsContainer:
        return Texts::tr("is removed with the container around it");
    case Fate::IsRemovedWithAnother:
        return Texts::tr("stays, unless a value behind it is unfilled");
    case Fate::IsUnknown:
        break;
    }
    return Texts::tr("was not tried");
}

QString wordsFor(const AcceptedCounts& counts)
{
    if (!counts.isKnown) {
        return Texts::tr("not tried");
    }
    if (counts.greatest == AcceptedCounts::Unbounded) {
        return counts.takesZero ? Texts::tr("any") : Texts::tr("1 or more");
    }
    if (counts.greatest == 0) {
        return counts.takesZero ? Texts::tr("0 only") : Texts::tr("no count");
    }
    return Texts::tr("%1 to %2").arg(counts.takesZero ? 0 : 1).arg(counts.greatest);
}

/// With what holds for further copies of the container around an element.
QString withCopies(const QString& words, const SkeletonElement& element, bool isOtherwise)
{
    return element.isUntriedInCopies ? Texts::tr("%1 in the first copy, the others were not tried").arg(words)
        : isOtherwise                ? Texts::tr("%1 in the first copy only").arg(words)
                                     : words;
}

} // namespace

QString pathOf(const SkeletonTree& tree, int element)
{
    QString path;
    for (int index = element; index != SkeletonElement::None; index = tree.elements[std::size_t(index)].parent) {
        path.prepend(QLatin1Char('/') + stepOf(tree, index));
    }
    return path;
}

int findByPath(const SkeletonTree& tree, const QString& path)
{
    const QStringList steps = path.mid(1).split(QLatin1Char('/'));
    if (tree.IsEmpty() || !path.startsWith(QLatin1Char('/')) || steps.first() != tree.elements.front().name) {
        return SkeletonElement::None;
    }
    int index = 0;
    for (int step = 1; step < steps.size() && index != SkeletonElement::None; ++step) {
        index = childAt(tree, index, steps.at(step));
    }
    return index;
}

NameIndex::NameIndex(const SkeletonTree& tree)
{
    for (int index = int(tree.elements.size()) - 1; index >= 0; --index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        m_children.insert({element.parent, element.name}, index);
    }
}

bool isContainer(const SkeletonElement& element)
{
    return !isValueType(element.type);
}

bool mayBeRepeated(const SkeletonElement& element)
{
    return element.counts.greatest == AcceptedCounts::Unbounded || element.counts.greatest > 1;
}

QString wordsForUnfilled(const SkeletonElement& element)
{
    return withCopies(wordsFor(element.fate), element, element.staysInCopies);
}

QString wordsForCounts(const SkeletonElement& element)
{
    return withCopies(wordsFor(element.counts), element, element.isSingleInCopies);
}

QStringList namesOf(Setters setters)
{
    static const std::pair<Setter, QLatin1String> names[] = {
        {Setter::Text, QLatin1String("QString")},       {Setter::Floating, QLatin1String("double")},
        {Setter::Integer, QLatin1String("int")},        {Setter::Truth, QLatin1String("bool")},
        {Setter::DateTime, QLatin1String("QDateTime")}, {Setter::Time, QLatin1String("QTime")},
    };
    QStringList all;
    for (const auto& [setter, name] : names) {
        if (setters.testFlag(setter)) {
            all.append(name);
        }
    }
    return all;
}

QString wordsForOccurs(const SkeletonElement& element)
{
    if (element.maxOccurs == AcceptedCounts::Unbounded) {
        return QStringLiteral("%1..unbounded").arg(element.minOccurs);
    }
    return element.minOccurs == element.maxOccurs
        ? QString::number(element.minOccurs)
        : QStringLiteral("%1..%2").arg(element.minOccurs).arg(element.maxOccurs);
}

} // namespace schemadoctor
