#include "reportpreview_p.h"

#include <QVariant>

namespace {

/// Milliseconds. A dialog does not tell that somebody types.
constexpr int PauseBetweenLooks = 1000;

} // namespace

ReportPreview::ReportPreview(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(PauseBetweenLooks);
    connect(&m_timer, &QTimer::timeout, this, &ReportPreview::readAgain);
}

ReportPreview::~ReportPreview() = default;

void ReportPreview::Follow(QDialog* dialog)
{
    if (dialog != m_pDialog || !dialog) {
        m_pDialog = dialog;
        m_content = read();
    }
    if (!m_pDialog || m_content.isEmpty()) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_timer.start();
    }
}

QByteArray ReportPreview::read() const
{
    return m_pDialog ? m_pDialog->property("unsavedReport").toByteArray() : QByteArray();
}

/// A dialog that is hidden stays as it is.
void ReportPreview::readAgain()
{
    if (!m_pDialog || !m_pDialog->isVisible()) {
        return;
    }
    const QByteArray content = read();
    if (content != m_content) {
        m_content = content;
        Q_EMIT Changed();
    }
}
