#ifndef XMLHELPERREPORTWIDGETS_ELIDEDLABEL_P_H
#define XMLHELPERREPORTWIDGETS_ELIDEDLABEL_P_H

#include <QLabel>

/// A line of plain text that is as wide as there is room: what does not fit is left out of its middle, so that the end
/// of a path stays. The whole text is in the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    ~ElidedLabel() override;

    /// What is shown of the text now.
    QString GetShownText() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY(ElidedLabel)
};

#endif
