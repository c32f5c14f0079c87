#ifndef SCHEMADOCTOR_SKELETONTREEMODEL_H
#define SCHEMADOCTOR_SKELETONTREEMODEL_H

#include <QAbstractItemModel>

#include "model/skeletontree.h"

namespace schemadoctor {

/// The laid-out tree for a view: a row for each element, and before an element's children a row for each attribute.
class SkeletonTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Type, Limits, Occurs, Counts, Unfilled, SetBy, ColumnCount };

    /// @param tree  is referred to and must outlive the model
    explicit SkeletonTreeModel(const SkeletonTree& tree, QObject* parent = nullptr);

    /// Of an element, or of its attribute of that name. An invalid index for SkeletonElement::None, and without such an
    /// attribute.
    QModelIndex IndexOf(int element, const QString& attribute = QString()) const;

    /// The element that a row is, or that has the attribute.
    int ElementOf(const QModelIndex& index) const;

    /// The name of the attribute that a row is; empty for an element.
    QString AttributeOf(const QModelIndex& index) const;

    /// Of the declaration behind a row, an attribute's too.
    Place PlaceOf(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    // A row is known by the element that holds it, and its number there; the root is held by nothing.
    struct Row
    {
        int element; ///< None for an attribute
        const DeclaredAttribute* pAttribute; ///< null for an element
    };
    Row rowAt(const QModelIndex& index) const;
    const SkeletonElement& element(int index) const { return m_tree.elements[std::size_t(index)]; }

    const SkeletonTree& m_tree;
};

} // namespace schemadoctor

#endif
