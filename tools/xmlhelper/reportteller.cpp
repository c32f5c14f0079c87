#include "reportteller_p.h"

#include <atomic>
#include <new>

#include <QCoreApplication>
#include <QMetaMethod>

#include "commentdialogimpl.h"
#include "documentfile_p.h"
#include "filesaving_p.h"
#include "reportnews.h"

namespace {

quint64 newReportNumber()
{
    static std::atomic<quint64> last {0};
    return ++last;
}

/// What would have been written. That nothing was written is told without it, too.
QByteArray contentOf(const SavedFile& file, const QDomDocument& document)
{
    try {
        return file.isTooLong ? QByteArray() : savedBytesOf(document);
    } catch (const std::bad_alloc&) {
        return QByteArray();
    }
}

} // namespace

ReportTeller::ReportTeller(const QString& reportPath, const QString& schemaPath)
    : m_iReport(newReportNumber())
{
    Q_EMIT ReportNews::Instance().Begun(m_iReport, reportPath, schemaPath);
}

bool ReportTeller::IsSchemaAsked() const
{
    return ReportNews::Instance().isSignalConnected(QMetaMethod::fromSignal(&ReportNews::SchemaRead));
}

void ReportTeller::TellSchema(bool isUnderstood, const QString& reason) const
{
    Q_EMIT ReportNews::Instance().SchemaRead(m_iReport, isUnderstood, reason);
}

void ReportTeller::TellComment(CommentDialogImpl* dialog) const
{
    Q_EMIT ReportNews::Instance().CommentAsked(m_iReport, dialog);
}

void ReportTeller::TellBrokenOff() const
{
    const QString reason = QCoreApplication::translate("ReportNews", "Filling the report was broken off by an error");
    Q_EMIT ReportNews::Instance().NotWritten(m_iReport, reason, QByteArray());
}

void ReportTeller::TellFile(bool isWritten, const SavedFile& file, const QDomDocument& document) const
{
    ReportNews& news = ReportNews::Instance();
    if (m_iReport == 0) {
        return;
    }
    if (isWritten) {
        Q_EMIT news.Written(m_iReport, file.name, file.size);
    } else if (news.isSignalConnected(QMetaMethod::fromSignal(&ReportNews::NotWritten))) {
        Q_EMIT news.NotWritten(m_iReport, file.reason, contentOf(file, document));
    }
}
