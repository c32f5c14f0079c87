#ifndef XMLHELPERREPORTS_REPORTINBOX_P_H
#define XMLHELPERREPORTS_REPORTINBOX_P_H

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include <QHash>
#include <QObject>
#include <QString>

#include "emergencycopies_p.h"

/// Something that was told of a report.
struct ReportNote
{
    enum class Kind { Begun, SchemaRead, CommentAsked, Written, NotWritten, DialogHidden, DialogShown };

    Kind kind;
    quint64 report;
    qint64 time; ///< milliseconds since 1970 UTC, by the platform's clock
    QString text; ///< the path of the report, the schema's fault, the file name, or the reason
    QString schemaPath; ///< of a report that is begun
    qint64 size; ///< of a file that is written
    KeptReport kept; ///< of a report that is not written
};

/// Takes down what ReportNews tells on any thread, for one thread to read. What could not be written is copied to the
/// emergency folder before the teller goes on.
class ReportInbox : public std::enable_shared_from_this<ReportInbox>
{
public:
    /// @param copies  outlives everything that is told
    /// @param wake    is called for the first note that comes, and again after Take(), on the teller's thread
    ReportInbox(std::shared_ptr<EmergencyCopies> copies, std::function<void()> wake);

    void Listen();

    /// Listens no more. When it returns, no call of wake is under way.
    void Close();

    /// The notes since the last time, in the order in which they were told.
    std::vector<ReportNote> Take();

private:
    Q_DISABLE_COPY(ReportInbox)

    struct Paths
    {
        QString reportPath;
        QString schemaPath;
        bool hasDialog = false;
    };

    void put(ReportNote note);
    void putBegun(quint64 report, const QString& reportPath, const QString& schemaPath);
    void putCommentAsked(quint64 report, QObject& dialog);
    void putNotWritten(quint64 report, const QString& reason, const QByteArray& content);
    Paths takePaths(quint64 report);
    void forget(quint64 report);

    const std::shared_ptr<EmergencyCopies> m_pCopies;
    std::function<void()> m_wake;
    std::vector<QMetaObject::Connection> m_connections;
    std::mutex m_mutex;
    QHash<quint64, Paths> m_paths; ///< of reports that may still fail
    std::vector<ReportNote> m_notes;
};

#endif
