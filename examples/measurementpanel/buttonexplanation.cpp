#include "buttonexplanation.h"

#include <QEvent>
#include <QWidget>

ButtonExplanation::ButtonExplanation(QWidget& button)
    : QObject(&button)
    , m_button(button)
    , m_sOwnToolTip(button.toolTip())
    , m_sShown(m_sOwnToolTip)
{
    m_button.installEventFilter(this);
    if (m_button.parentWidget()) {
        m_button.parentWidget()->installEventFilter(this);
    }
}

ButtonExplanation::~ButtonExplanation() = default;

void ButtonExplanation::Explain(const QString& explanation)
{
    m_sExplanation = explanation;
    apply();
}

bool ButtonExplanation::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_button && event->type() == QEvent::ToolTipChange && m_button.toolTip() != m_sShown) {
        m_sOwnToolTip = m_button.toolTip();
        apply();
    } else if (watched != &m_button && event->type() == QEvent::LanguageChange) {
        m_sShown = m_sOwnToolTip;
        m_button.setToolTip(m_sOwnToolTip);
        QMetaObject::invokeMethod(this, &ButtonExplanation::apply, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void ButtonExplanation::apply()
{
    m_sShown = m_sExplanation.isEmpty() ? m_sOwnToolTip : m_sOwnToolTip + QLatin1Char('\n') + m_sExplanation;
    m_button.setToolTip(m_sShown);
}
