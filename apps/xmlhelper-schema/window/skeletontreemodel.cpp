#include "skeletontreemodel.h"

#include "model/texts.h"
#include <algorithm>

namespace schemadoctor {

namespace {

// What an index carries: one more than the element that holds the row, and 0 for the root.
quintptr idBelow(int holder)
{
    const int above = holder + 1;
    return quintptr(above);
}
int holderOf(const QModelIndex& index)
{
    return int(index.internalId()) - 1;
}

QString limitsOf(const QVector<Facet>& facets, const QStringList& enumeration)
{
    QStringList limits;
    for (const Facet& facet : facets) {
        const QString words = facet.name + QLatin1Char(' ') + facet.value;
        limits.append(facet.isChecked ? words : Texts::tr("%1 (not checked)").arg(words));
    }
    if (!enumeration.isEmpty()) {
        limits.append(enumeration.join(QStringLiteral(" | ")));
    }
    return limits.join(QStringLiteral(", "));
}

QString settersOf(Setters setters)
{
    const QStringList names = namesOf(setters);
    return names.isEmpty() ? Texts::tr("nothing can fill it") : names.join(QStringLiteral(", "));
}

QString textFor(const SkeletonElement& element, int column)
{
    switch (column) {
    case SkeletonTreeModel::Name:
        return element.name;
    case SkeletonTreeModel::Type:
        return element.type;
    case SkeletonTreeModel::Limits: {
        const QString limits = limitsOf(element.facets, element.enumeration);
        if (element.defaultValue.isEmpty()) {
            return limits;
        }
        const QString standard = Texts::tr("default %1").arg(element.defaultValue);
        return limits.isEmpty() ? standard : limits + QStringLiteral(", ") + standard;
    }
    case SkeletonTreeModel::Occurs:
        return element.choiceGroup == SkeletonElement::None
            ? wordsForOccurs(element)
            : Texts::tr("%1, choice %2").arg(wordsForOccurs(element)).arg(element.choiceGroup);
    case SkeletonTreeModel::Counts:
        return wordsForCounts(element);
    case SkeletonTreeModel::Unfilled:
        return wordsForUnfilled(element);
    case SkeletonTreeModel::SetBy:
        return isContainer(element) ? QString() : settersOf(element.setters);
    default:
        return QString();
    }
}

QString textFor(const DeclaredAttribute& attribute, int column)
{
    switch (column) {
    case SkeletonTreeModel::Name:
        return QLatin1Char('@') + attribute.name;
    case SkeletonTreeModel::Type:
        return attribute.type.isEmpty() ? Texts::tr("no type") : attribute.type;
    case SkeletonTreeModel::Limits:
        return limitsOf(attribute.facets, attribute.enumeration);
    case SkeletonTreeModel::SetBy:
        return settersOf(attribute.setters);
    default:
        return QString();
    }
}

} // namespace

SkeletonTreeModel::SkeletonTreeModel(const SkeletonTree& tree, QObject* parent)
    : QAbstractItemModel(parent)
    , m_tree(tree)
{
}

SkeletonTreeModel::Row SkeletonTreeModel::rowAt(const QModelIndex& index) const
{
    const int holder = holderOf(index);
    if (holder == SkeletonElement::None) {
        return {0, nullptr};
    }
    const SkeletonElement& above = element(holder);
    const int attributeCount = int(above.attributes.size());
    if (index.row() < attributeCount) {
        return {SkeletonElement::None, &above.attributes.at(index.row())};
    }
    return {above.children[std::size_t(index.row() - attributeCount)], nullptr};
}

QModelIndex SkeletonTreeModel::IndexOf(int number, const QString& attribute) const
{
    if (number == SkeletonElement::None) {
        return QModelIndex();
    }
    const SkeletonElement& wanted = element(number);
    if (!attribute.isEmpty()) {
        const auto found = std::find_if(wanted.attributes.begin(), wanted.attributes.end(),
                                        [&](const DeclaredAttribute& one) { return one.name == attribute; });
        return found == wanted.attributes.end()
            ? QModelIndex()
            : createIndex(int(found - wanted.attributes.begin()), 0, idBelow(number));
    }
    if (wanted.parent == SkeletonElement::None) {
        return createIndex(0, 0, idBelow(SkeletonElement::None));
    }
    return createIndex(int(element(wanted.parent).attributes.size()) + wanted.row, 0, idBelow(wanted.parent));
}

int SkeletonTreeModel::ElementOf(const QModelIndex& index) const
{
    const Row row = rowAt(index);
    return row.pAttribute ? holderOf(index) : row.element;
}

QString SkeletonTreeModel::AttributeOf(const QModelIndex& index) const
{
    const Row row = rowAt(index);
    return row.pAttribute ? row.pAttribute->name : QString();
}

Place SkeletonTreeModel::PlaceOf(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Place();
    }
    const Row row = rowAt(index);
    return row.pAttribute ? row.pAttribute->place : element(row.element).place;
}

QModelIndex SkeletonTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return QModelIndex();
    }
    return createIndex(row, column, idBelow(parent.isValid() ? rowAt(parent).element : SkeletonElement::None));
}

QModelIndex SkeletonTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(holderOf(child)) : QModelIndex();
}

int SkeletonTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return m_tree.IsEmpty() ? 0 : 1;
    }
    const Row row = rowAt(parent);
    if (row.pAttribute || parent.column() != 0) {
        return 0;
    }
    return int(element(row.element).attributes.size()) + int(element(row.element).children.size());
}

int SkeletonTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant SkeletonTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return QVariant();
    }
    const Row row = rowAt(index);
    return row.pAttribute ? textFor(*row.pAttribute, index.column()) : textFor(element(row.element), index.column());
}

QVariant SkeletonTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QStringList titles {tr("Element"),      tr("Type"),        tr("Limits"), tr("Occurs"),
                              tr("Counts taken"), tr("Unfilled it"), tr("Set by")};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(titles.value(section)) : QVariant();
}

} // namespace schemadoctor
