#include "flowlayout_p.h"

FlowLayout::FlowLayout(QWidget* parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (!itemAt(index)) {
        return nullptr;
    }
    const auto item = m_items.begin() + index;
    QLayoutItem* const taken = item->release();
    m_items.erase(item);
    return taken;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return flow(width, [](QLayoutItem&, const QRect&) {});
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        size = item->isEmpty() ? size : size.expandedTo(item->minimumSize());
    }
    return size;
}

/// In one row.
QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (!item->isEmpty()) {
            size = QSize(size.width() + item->sizeHint().width() + spacing(),
                         qMax(size.height(), item->sizeHint().height()));
        }
    }
    return size;
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    flow(rect.width(),
         [&rect](QLayoutItem& item, const QRect& place) { item.setGeometry(place.translated(rect.topLeft())); });
}

/// Calls @p place for each item that is shown. Gives the height of all rows.
template <typename Place> int FlowLayout::flow(int width, Place place) const
{
    QPoint corner;
    int rowHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty()) {
            continue;
        }
        const QSize size = item->sizeHint();
        if (corner.x() > 0 && corner.x() + size.width() > width) {
            corner = QPoint(0, corner.y() + rowHeight + spacing());
            rowHeight = 0;
        }
        place(*item, QRect(corner, size));
        corner.rx() += size.width() + spacing();
        rowHeight = qMax(rowHeight, size.height());
    }
    return corner.y() + rowHeight;
}
