#include "reportinbox_p.h"

#include <utility>

#include <QEvent>
#include <QFileInfo>

#include <arbase/vornos.h>
#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/reportnews.h>

#include "dialogobject_p.h"

// A connection by function looks at the types of the signal; a dialog is not known here.
Q_DECLARE_OPAQUE_POINTER(QDialog*)

namespace {

using NoteKind = ReportNote::Kind;

ReportNote noteOf(NoteKind kind, quint64 report, const QString& text = QString())
{
    return {kind, report, VornOS::Create()->GetCurrentTime(), text, QString(), -1, KeptReport()};
}

enum class Heard { Hidden, Shown, Gone };

/// Hears when a dialog is hidden, shown again or gone. A dialog hides after each answer too; what has been told of the
/// file counts.
class DialogWatch : public QObject
{
public:
    /// @param dialog  owns it
    DialogWatch(QObject& dialog, std::function<void(Heard what)> heard)
        : QObject(&dialog)
        , m_heard(std::move(heard))
    {
        parent()->installEventFilter(this); // which is the dialog
    }
    ~DialogWatch() override { m_heard(Heard::Gone); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            m_heard(Heard::Hidden);
        } else if (event->type() == QEvent::Show && !event->spontaneous()) {
            m_heard(Heard::Shown);
        }
        return false;
    }

private:
    Q_DISABLE_COPY(DialogWatch)

    const std::function<void(Heard what)> m_heard;
};

/// The file that is meant, whatever the current folder will be.
QString absolutePathOf(const QString& reportPath)
{
    return reportPath.isEmpty() ? QString() : QFileInfo(openableFileName(reportPath)).absoluteFilePath();
}

} // namespace

ReportInbox::ReportInbox(std::shared_ptr<EmergencyCopies> copies, std::function<void()> wake)
    : m_pCopies(std::move(copies))
    , m_wake(std::move(wake))
{
}

/// Each connection holds the inbox, since a thread may be telling something while it is closed. What is told is taken
/// at once, in the thread that tells it.
void ReportInbox::Listen()
{
    const ReportNews* const news = &ReportNews::Instance();
    const auto self = shared_from_this();
    const auto connected = [news](auto signal, auto take) {
        return QObject::connect(news, signal, news, std::move(take), Qt::DirectConnection);
    };
    m_connections = {
        connected(&ReportNews::Begun,
                  [self](quint64 report, const QString& reportPath, const QString& schemaPath) {
                      self->putBegun(report, reportPath, schemaPath);
                  }),
        connected(&ReportNews::SchemaRead,
                  [self](quint64 report, bool, const QString& reason) {
                      self->put(noteOf(NoteKind::SchemaRead, report, reason));
                  }),
        connected(&ReportNews::CommentAsked,
                  [self](quint64 report, QDialog* dialog) { self->putCommentAsked(report, *objectOf(dialog)); }),
        connected(&ReportNews::Written,
                  [self](quint64 report, const QString& fileName, qint64 size) {
                      ReportNote note = noteOf(NoteKind::Written, report, fileName);
                      note.size = size;
                      self->takePaths(report);
                      self->put(std::move(note));
                  }),
        connected(&ReportNews::NotWritten,
                  [self](quint64 report, const QString& reason, const QByteArray& content) {
                      self->putNotWritten(report, reason, content);
                  }),
    };
}

void ReportInbox::Close()
{
    for (const QMetaObject::Connection& connection : m_connections) {
        QObject::disconnect(connection);
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_wake = nullptr;
}

std::vector<ReportNote> ReportInbox::Take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_notes, {});
}

void ReportInbox::put(ReportNote note)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_wake) {
        return;
    }
    m_notes.push_back(std::move(note));
    if (m_notes.size() == 1) {
        m_wake();
    }
}

void ReportInbox::putBegun(quint64 report, const QString& reportPath, const QString& schemaPath)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_paths.insert(report, {reportPath, schemaPath, false});
    }
    ReportNote note = noteOf(NoteKind::Begun, report, reportPath);
    note.schemaPath = schemaPath;
    put(std::move(note));
}

void ReportInbox::putCommentAsked(quint64 report, QObject& dialog)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_paths[report].hasDialog = true;
    }
    put(noteOf(NoteKind::CommentAsked, report));
    const auto heard = [inbox = weak_from_this(), report](Heard what) {
        if (const auto self = inbox.lock()) {
            if (what == Heard::Gone) {
                self->forget(report);
            }
            self->put(noteOf(what == Heard::Shown ? NoteKind::DialogShown : NoteKind::DialogHidden, report));
        }
    };
    new DialogWatch(dialog, heard);
}

void ReportInbox::putNotWritten(quint64 report, const QString& reason, const QByteArray& content)
{
    const Paths paths = takePaths(report);
    ReportNote note = noteOf(NoteKind::NotWritten, report, reason);
    const QString path = absolutePathOf(paths.reportPath);
    note.kept = {path, paths.schemaPath, reason, note.time, markOf(path), content, QString()};
    m_pCopies->Keep(note.kept);
    put(std::move(note));
}

/// The paths of a report. Without a dialog nothing more is told of it.
ReportInbox::Paths ReportInbox::takePaths(quint64 report)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Paths paths = m_paths.value(report);
    if (!paths.hasDialog) {
        m_paths.remove(report);
    }
    return paths;
}

void ReportInbox::forget(quint64 report)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_paths.remove(report);
}
