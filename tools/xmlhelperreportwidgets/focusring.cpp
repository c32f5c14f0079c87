#include "focusring_p.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr int RingWidth = 2;

} // namespace

FocusRing::FocusRing(QWidget& inner, QWidget* parent)
    : QWidget(parent)
{
    setBackgroundRole(QPalette::Highlight);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(RingWidth, RingWidth, RingWidth, RingWidth);
    layout->addWidget(&inner);
    inner.installEventFilter(this);
    setFocusProxy(&inner);
}

FocusRing::~FocusRing() = default;

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        setAutoFillBackground(event->type() == QEvent::FocusIn);
    }
    return QWidget::eventFilter(watched, event);
}
