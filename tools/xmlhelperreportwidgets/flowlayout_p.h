#ifndef XMLHELPERREPORTWIDGETS_FLOWLAYOUT_P_H
#define XMLHELPERREPORTWIDGETS_FLOWLAYOUT_P_H

#include <memory>
#include <vector>

#include <QLayout>

/// Lays widgets out in rows, as many in each as there is room for, so that no button is cut off on a narrow window or
/// in a long language.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    Q_DISABLE_COPY(FlowLayout)

    template <typename Place> int flow(int width, Place place) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

#endif
