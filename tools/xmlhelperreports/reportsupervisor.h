#ifndef XMLHELPERREPORTS_REPORTSUPERVISOR_H
#define XMLHELPERREPORTS_REPORTSUPERVISOR_H

#include <functional>
#include <memory>
#include <vector>

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

#include <xmlhelperreports/xmlhelperreportsexport.h>

struct ReportSupervisorData;

/// Watches over every report of the process from its construction on, whoever makes it: tells what became of each, and
/// keeps those that could not be written. No widget is needed.
///
/// A program makes one before its first report, connects Changed(), and calls TakeOverEarlier() to have those offered
/// that earlier processes could not write. Reports are told apart by their numbers, and are ordered by them: times may
/// go back when the clock is set.
///
/// A report that could not be written is kept with its document, the comment included, and copied to the emergency
/// folder before the builder goes on, so that it outlives the process. It is tried again by itself, 1 s later at first
/// and every 60 s in the end, sooner when its missing folder comes back. A newer file is never replaced by it: neither
/// one that another report of the process has written to its path since, nor one there that differs from what was
/// there when it failed (where the folder was missing then: one with a later time). It then stays kept as Blocked until
/// SaveElsewhere(), TryAgain() or Discard(). Of two kept ones with one path the one with the higher number is newer.
///
/// Reports may be made on any thread. All operations belong to the supervisor's own thread, which needs an event loop:
/// files are tried again and checked from it, one after the other, never while a report is made. Several processes may
/// share one emergency folder on a local disk; each has a folder of its own there, with a lock.
class XMLHELPERREPORTS_EXPORT ReportSupervisor final : public QObject
{
    Q_OBJECT

public:
    /// Where a report stands.
    enum class State {
        Unknown, ///< there is no such report, or it was finished so long ago that it is forgotten
        Making, ///< it is being made
        Waiting, ///< its dialog waits for a comment
        Written, ///< the file is there; nothing is known against it
        NotWellFormed, ///< the file is there, and is no well-formed XML
        Invalid, ///< the file is there and well-formed; the validator refuses it
        Gone, ///< it was written, and its file is there no more or has become another one
        Pending, ///< it could not be written, is kept and tried again
        Blocked, ///< it is kept, and not tried again by itself: the reason says why
        Offered, ///< it is kept from an earlier process, and not tried until somebody says so
        Failed, ///< it was not written and is not kept: it is beyond the limits, or an observer of its builder has
                ///< thrown
        Closed, ///< its dialog was closed without an answer, so it was not saved
        Discarded, ///< it was kept and then discarded
    };
    Q_ENUM(State)

    /// What is known of a report.
    struct Verdict
    {
        quint64 report = 0; ///< its number; those of earlier processes begin at FirstEarlier
        QString reportPath; ///< as it was given; empty when the report was begun before the supervisor was there
        QString schemaPath; ///< as it was given
        QString schemaFault; ///< why the schema was not understood; empty when it was
        State state = State::Unknown; ///< where it stands
        QString reason; ///< of the state, without its stop; in the words of system, builder or validator where theirs
        QString fileName; ///< the file as it was opened; empty unless it has been written
        qint64 size = -1; ///< its bytes; -1 unless it has been written
        QDateTime begun; ///< by the platform's clock, UTC; of an earlier process: when it failed
        QDateTime changed; ///< when the state became what it is
        bool isChecked = false; ///< whether the file has been read since it was written
        bool isSafe = false; ///< of one that is kept: whether its copy in the emergency folder is there
    };

    /// Holds a written report against its schema. Gives a sentence without its stop for everything that speaks against
    /// the report, or nothing. The same as of ReportFiller.
    using Validator = std::function<QStringList(const QString& schemaPath, const QString& reportPath)>;

    /// The first number for reports of earlier processes; it is beyond all of this one.
    static constexpr quint64 FirstEarlier = quint64(1) << 63;

    /// How many finished reports are remembered. Those that are being made, waiting or kept are remembered always.
    static constexpr int MaxFinished = 1000;

    /// Listens from now on. The emergency folder is "unsaved-reports" in QStandardPaths::AppLocalDataLocation, which
    /// is not made before it is needed.
    /// @param parent  owns it; may be null
    explicit ReportSupervisor(QObject* parent = nullptr);

    /// Listens no more. What is kept and safe stays in the emergency folder for the next process, see MayQuit().
    ~ReportSupervisor() override;

    /// Sets where copies of kept reports go that fail from now on, and where TakeOverEarlier() looks. To be called
    /// first, as the copies that are there already stay where they are.
    /// @param folder  made when it is needed; empty for none, and then nothing outlives the process
    void SetEmergencyFolder(const QString& folder);

    /// Sets what judges files that are well-formed and checked from now on. Without one, they count as written.
    /// @param validator  is called from the event loop, and must neither call the supervisor nor run a loop; an empty
    /// function for none
    void SetValidator(Validator validator);

    /// Sets the pauses between tries. Each is twice the one before it, until one succeeds.
    /// @param first    milliseconds, 1,000 by default
    /// @param longest  milliseconds, 60,000 by default
    void SetPauses(int first, int longest);

    /// Takes over what processes that have ended left in the emergency folder, each as a report that is Offered. One
    /// that still runs is left alone, and of several who call this at once one gets the report. May be called again.
    /// @return a sentence for everything there that cannot be used; it is left as it is, and told again the next time
    QStringList TakeOverEarlier();

    /// @param report  its number
    /// @return what is known of it
    Verdict GetReport(quint64 report) const;

    /// @return all that are remembered: those of earlier processes, then those of this one in the order they began
    std::vector<Verdict> GetReports() const;

    /// @return those of GetReports() that are kept: Pending, Blocked and Offered
    std::vector<Verdict> GetKept() const;

    /// Tries at once to write a kept report to its path. From then on it is tried by itself, also one that was Offered.
    /// @param report  its number
    /// @return whether it is written; false too when it is not kept or when a newer file is there
    bool TryAgain(quint64 report);

    /// Writes a kept report to another path, whatever is there: it was the caller's choice. It is then Written.
    /// @param report    its number
    /// @param fileName  where to
    /// @return whether it is written; if not, all is as it was. False too when it is not kept
    bool SaveElsewhere(quint64 report, const QString& fileName);

    /// Gives up a kept report, its copy in the emergency folder included.
    /// @param report  its number
    /// @return whether it was kept
    bool Discard(quint64 report);

    /// Has the file of a written report checked again, from the event loop: whether it is still there and has its size,
    /// is well-formed, and is valid. Its verdict may be taken back, or given again.
    /// @param report  its number; of one that is not written nothing happens
    void Recheck(quint64 report);

    /// @return a sentence for each report that would be lost if the process ended now: it is being made, waits for a
    ///         comment, or is kept without a copy in the emergency folder, which is tried once more. Empty when none
    QStringList MayQuit();

    /// @return milliseconds until kept reports are tried again; -1 when none are
    int MsToNextTry() const;

Q_SIGNALS:
    /// Something in the verdict of a report has changed. Sent from the event loop of the supervisor's thread, or from
    /// within an operation that changes it; all operations may be called.
    /// @param report  its number, for GetReport()
    void Changed(quint64 report);

private:
    Q_DISABLE_COPY(ReportSupervisor)

    std::unique_ptr<ReportSupervisorData> m_pData;
};

#endif
