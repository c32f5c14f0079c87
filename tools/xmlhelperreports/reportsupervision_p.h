#ifndef XMLHELPERREPORTS_REPORTSUPERVISION_P_H
#define XMLHELPERREPORTS_REPORTSUPERVISION_P_H

#include <map>
#include <memory>
#include <set>

#include <QString>
#include <QTimer>

#include "emergencycopies_p.h"
#include "folderwatch_p.h"
#include "reportinbox_p.h"
#include "reportsupervisor.h"
#include "retrypace_p.h"

/// Whether a report of that state is kept with its document.
bool isKept(ReportSupervisor::State state);

/// Whether one of that state has been written.
bool isFile(ReportSupervisor::State state);

/// Writes a file as the library saves. Gives whether all of it is there.
/// @param reason  becomes why not; may be null
bool writeContent(const QString& fileName, const QByteArray& content, QString* reason = nullptr);

/// The platform's time as it is shown.
QDateTime timeOf(qint64 milliseconds);

/// The order in which reports began: those of earlier processes are before all others.
struct OlderReport
{
    bool operator()(quint64 one, quint64 other) const
    {
        return one - ReportSupervisor::FirstEarlier < other - ReportSupervisor::FirstEarlier;
    }
};
using ReportNumbers = std::set<quint64, OlderReport>;

/// What the supervisor remembers, and what it does. All of it is the supervisor's thread's.
struct ReportSupervisorData
{
    struct Entry
    {
        ReportSupervisor::Verdict verdict;
        KeptReport kept;
        KeptReport before; ///< an earlier answer, whose copy stays until that of the last one is safe
        QString place; ///< where it shall be written while it is kept
    };

    /// Those of one folder that are tried by themselves, one in its turn.
    struct Queue
    {
        ReportNumbers reports;
        quint64 lastTried = 0;
    };

    explicit ReportSupervisorData(ReportSupervisor& owner);
    ~ReportSupervisorData();

    void TakeNotes();
    void Take(const ReportNote& note);
    void TakeNotWritten(Entry& entry, const KeptReport& kept);
    void SetState(Entry& entry, ReportSupervisor::State state, const QString& reason);
    void SetPending(const Entry& entry, bool isPending);
    void SetKept(Entry& entry, const KeptReport& kept);
    void SetReason(Entry& entry, const QString& reason);
    void SetWritten(Entry& entry, const QString& fileName, qint64 size);
    Entry* FindKept(quint64 report);
    void Tell();

    bool TryToWrite(Entry& entry);
    bool Block(Entry& entry, const QString& why);
    bool KeepSafe(Entry& entry);
    void TryNext();
    void Await(int pause);

    void CheckNext();
    void Check(Entry& entry);

    ReportSupervisor& supervisor;
    std::shared_ptr<EmergencyCopies> copies;
    std::shared_ptr<ReportInbox> inbox;
    ReportSupervisor::Validator validator;
    std::map<quint64, Entry, OlderReport> entries;
    int telling = 0; ///< how many Tell() are under way, each in a receiver of the one before
    ReportNumbers finished;
    ReportNumbers unchecked;
    ReportNumbers changed; ///< of which nobody has been told yet
    std::map<QString, ReportNumbers> pendingAt; ///< by place
    std::map<QString, Queue> pendingIn; ///< by folder
    QTimer retryTimer;
    QTimer checkTimer;
    RetryPace pace;
    FolderWatch watch;
    QString lastFolder;
    quint64 nextEarlier = ReportSupervisor::FirstEarlier;
};

#endif
