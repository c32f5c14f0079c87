#ifndef XMLHELPERREPORTWIDGETS_FOCUSRING_P_H
#define XMLHELPERREPORTWIDGETS_FOCUSRING_P_H

#include <QWidget>

/// A frame around a list or a text that is seen while it has the keyboard, which styles often do not show.
class FocusRing : public QWidget
{
public:
    /// @param inner  becomes a child of the ring
    explicit FocusRing(QWidget& inner, QWidget* parent = nullptr);
    ~FocusRing() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Q_DISABLE_COPY(FocusRing)
};

#endif
