#include "reportsupervision_p.h"

#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <arbase/vornos.h>
#include <xmlhelper/filesaving_p.h>

#include "reportfile_p.h"

namespace {

using ReportState = ReportSupervisor::State;

/// Tries before the event loop goes on.
constexpr int TriesInOneGo = 10;

/// The one behind @p last, or the first behind the end.
template <typename Container, typename Key> auto nextBehind(Container& container, const Key& last)
{
    const auto next = container.upper_bound(last);
    return next == container.end() ? container.begin() : next;
}

bool isUnfinished(ReportState state)
{
    return state == ReportState::Making || state == ReportState::Waiting || isKept(state);
}

/// One name for all ways to write the path of a file; links are not followed.
QString placeOf(const QString& fileName)
{
    return QDir::cleanPath(QFileInfo(fileName).absoluteFilePath());
}

QString folderOf(const QString& place)
{
    return QFileInfo(place).path();
}

} // namespace

bool isKept(ReportSupervisor::State state)
{
    return state == ReportState::Pending || state == ReportState::Blocked || state == ReportState::Offered;
}

bool isFile(ReportSupervisor::State state)
{
    return state == ReportState::Written || state == ReportState::NotWellFormed || state == ReportState::Invalid
        || state == ReportState::Gone;
}

QDateTime timeOf(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

bool writeContent(const QString& fileName, const QByteArray& content, QString* reason)
{
    SavedFile saved;
    const auto write = [&content](QIODevice& device) { return device.write(content) == content.size(); };
    const bool isWritten = saveFile(fileName, write, &saved);
    if (reason) {
        *reason = saved.reason;
    }
    return isWritten;
}

ReportSupervisorData::ReportSupervisorData(ReportSupervisor& owner)
    : supervisor(owner)
    , copies(std::make_shared<EmergencyCopies>())
    , watch([this] { Await(0); })
{
    retryTimer.setSingleShot(true);
    checkTimer.setSingleShot(true);
    QObject::connect(&retryTimer, &QTimer::timeout, &retryTimer, [this] { TryNext(); });
    QObject::connect(&checkTimer, &QTimer::timeout, &checkTimer, [this] { CheckNext(); });
    const auto takeLater = [this] {
        const auto take = [this] {
            TakeNotes();
            Tell();
        };
        QMetaObject::invokeMethod(&checkTimer, take, Qt::QueuedConnection);
    };
    inbox = std::make_shared<ReportInbox>(copies, takeLater);
    inbox->Listen();
}

ReportSupervisorData::~ReportSupervisorData()
{
    inbox->Close();
}

void ReportSupervisorData::TakeNotes()
{
    const std::vector<ReportNote> notes = inbox->Take();
    for (const ReportNote& note : notes) {
        // Long after its answer a dialog goes with its builder, when its report may be forgotten.
        const bool isOfDialog
            = note.kind == ReportNote::Kind::DialogHidden || note.kind == ReportNote::Kind::DialogShown;
        if (!isOfDialog || entries.count(note.report) > 0) {
            Take(note);
        }
    }
}

/// A report that was begun before the supervisor was there is known from now on.
void ReportSupervisorData::Take(const ReportNote& note)
{
    using Kind = ReportNote::Kind;
    Entry& entry = entries[note.report];
    ReportSupervisor::Verdict& verdict = entry.verdict;
    if (!verdict.begun.isValid()) {
        verdict.report = note.report;
        verdict.begun = timeOf(note.time);
    }
    if (note.kind == Kind::Begun) {
        verdict.reportPath = note.text;
        verdict.schemaPath = note.schemaPath;
        SetState(entry, ReportState::Making, QString());
    } else if (note.kind == Kind::SchemaRead) {
        verdict.schemaFault = note.text;
        SetState(entry, ReportState::Making, QString());
    } else if (note.kind == Kind::CommentAsked) {
        SetState(entry, ReportState::Waiting, QString());
    } else if (note.kind == Kind::Written) {
        SetWritten(entry, note.text, note.size);
    } else if (note.kind == Kind::NotWritten) {
        TakeNotWritten(entry, note.kept);
    } else if (note.kind == Kind::DialogShown) {
        if (verdict.state == ReportState::Closed) {
            SetState(entry, ReportState::Waiting, QString());
        }
    } else if (verdict.state == ReportState::Waiting) {
        SetState(entry, ReportState::Closed, ReportSupervisor::tr("not saved, closed by the operator"));
    }
}

/// An answer beyond the limits does not take the place of one that is kept.
void ReportSupervisorData::TakeNotWritten(Entry& entry, const KeptReport& kept)
{
    const bool hasDocument = !kept.content.isEmpty() || !kept.copy.isEmpty();
    if (!hasDocument && isKept(entry.verdict.state)) {
        return;
    }
    if (entry.verdict.reportPath.isEmpty()) { // It was forgotten, but its dialog was not.
        entry.verdict.reportPath = kept.reportPath;
        entry.verdict.schemaPath = kept.schemaPath;
    }
    SetKept(entry, kept);
    if (!hasDocument) {
        SetState(entry, ReportState::Failed, kept.reason);
    } else if (kept.reportPath.isEmpty()) {
        Block(entry, ReportSupervisor::tr("its path is not known"));
    } else {
        SetState(entry, ReportState::Pending, kept.reason);
        watch.Await(folderOf(entry.place));
    }
}

void ReportSupervisorData::SetState(Entry& entry, ReportState state, const QString& reason)
{
    ReportSupervisor::Verdict& verdict = entry.verdict;
    verdict.state = state;
    verdict.reason = reason;
    verdict.changed = timeOf(VornOS::Create()->GetCurrentTime());
    SetPending(entry, state == ReportState::Pending);
    if (isUnfinished(state)) {
        finished.erase(verdict.report);
    } else {
        finished.insert(verdict.report);
    }
    changed.insert(verdict.report);
}

/// Puts a report among those that are tried by themselves, or takes it from there.
void ReportSupervisorData::SetPending(const Entry& entry, bool isPending)
{
    const quint64 report = entry.verdict.report;
    const QString folder = folderOf(entry.place);
    if (isPending) {
        pendingAt[entry.place].insert(report);
        pendingIn[folder].reports.insert(report);
        if (!retryTimer.isActive()) {
            pace.Restart();
            retryTimer.start(pace.Next());
        }
        return;
    }
    const auto at = pendingAt.find(entry.place);
    if (at == pendingAt.end() || at->second.erase(report) == 0) {
        return;
    }
    const auto in = pendingIn.find(folder);
    in->second.reports.erase(report);
    if (at->second.empty()) {
        pendingAt.erase(at);
    }
    if (in->second.reports.empty()) {
        pendingIn.erase(in);
    }
    if (pendingIn.empty()) {
        retryTimer.stop();
        watch.Clear();
    }
}

/// Keeps the document of a report, or of one that is without a document none any more.
void ReportSupervisorData::SetKept(Entry& entry, const KeptReport& kept)
{
    SetPending(entry, false);
    if (!entry.kept.copy.isEmpty() && !kept.content.isEmpty()) { // which is not copied yet
        EmergencyCopies::Remove(entry.before);
        entry.before = entry.kept;
    } else if (kept.content.isEmpty()) {
        EmergencyCopies::Remove(entry.before);
        EmergencyCopies::Remove(entry.kept);
        entry.before = KeptReport();
    }
    entry.kept = kept;
    entry.place = kept.reportPath.isEmpty() ? QString() : placeOf(kept.reportPath);
    entry.verdict.isSafe = !kept.copy.isEmpty();
    entry.verdict.fileName.clear();
    entry.verdict.size = -1;
    entry.verdict.isChecked = false;
}

/// What stands in the way now may be something else than before.
void ReportSupervisorData::SetReason(Entry& entry, const QString& reason)
{
    if (!reason.isEmpty() && reason != entry.kept.reason) {
        entry.kept.reason = reason;
        entry.verdict.reason = reason;
        changed.insert(entry.verdict.report);
    }
}

void ReportSupervisorData::SetWritten(Entry& entry, const QString& fileName, qint64 size)
{
    SetKept(entry, KeptReport());
    entry.verdict.fileName = fileName;
    entry.verdict.size = size;
    SetState(entry, ReportState::Written, QString());
    unchecked.insert(entry.verdict.report);
    checkTimer.start(0);

    const QString place = placeOf(fileName);
    const auto others = pendingAt.find(place);
    if (others != pendingAt.end()) {
        const ReportNumbers numbers = others->second;
        for (const quint64 other : numbers) {
            Block(entries.at(other), ReportSupervisor::tr("another report has been written to its file since"));
        }
    }
    if (pendingIn.count(folderOf(place)) > 0) { // which takes files again
        pace.Restart();
        Await(pace.Next());
    }
}

ReportSupervisorData::Entry* ReportSupervisorData::FindKept(quint64 report)
{
    TakeNotes();
    const auto found = entries.find(report);
    return found != entries.end() && isKept(found->second.verdict.state) ? &found->second : nullptr;
}

/// Tells of everything that has changed, and forgets the oldest when all who were told have asked. Receivers may call
/// all operations, so nothing may be under way here.
void ReportSupervisorData::Tell()
{
    const QPointer<ReportSupervisor> self(&supervisor);
    const ReportNumbers numbers = std::exchange(changed, {});
    ++telling;
    for (const quint64 report : numbers) {
        if (self) {
            Q_EMIT self->Changed(report);
        }
    }
    if (!self || --telling > 0) {
        return;
    }
    for (auto oldest = finished.begin();
         int(finished.size()) > ReportSupervisor::MaxFinished + int(unchecked.size());) {
        entries.erase(*oldest);
        oldest = finished.erase(oldest);
    }
}

/// Tries to write a report that is pending. One with the same path that is newer shall be there in the end.
bool ReportSupervisorData::TryToWrite(Entry& entry)
{
    KeptReport& kept = entry.kept;
    if (*pendingAt.at(entry.place).rbegin() != entry.verdict.report) {
        return Block(entry, ReportSupervisor::tr("a newer report has the same file"));
    }
    if (!mayReplaceWhatIsThere(kept)) {
        return Block(entry, ReportSupervisor::tr("a newer file is there"));
    }
    const QByteArray content = EmergencyCopies::ContentOf(kept);
    if (content.isEmpty()) {
        entry.verdict.isSafe = false;
        return Block(entry, ReportSupervisor::tr("its copy %1 cannot be read").arg(kept.copy));
    }
    QString reason;
    if (writeContent(kept.reportPath, content, &reason)) {
        SetWritten(entry, QString(kept.reportPath), content.size());
        return true;
    }
    SetReason(entry, reason);
    KeepSafe(entry);
    watch.Await(folderOf(entry.place));
    return false;
}

bool ReportSupervisorData::Block(Entry& entry, const QString& why)
{
    SetState(entry, ReportState::Blocked, ReportSupervisor::tr("%1; it is kept: %2").arg(entry.kept.reason, why));
    return false;
}

/// Makes the emergency copy that could not be made before, and looks whether one that was made is still there.
bool ReportSupervisorData::KeepSafe(Entry& entry)
{
    ReportSupervisor::Verdict& verdict = entry.verdict;
    const bool isSafe = entry.kept.copy.isEmpty() ? copies->Keep(entry.kept)
        : verdict.isSafe                          ? EmergencyCopies::IsThere(entry.kept)
                                                  : !EmergencyCopies::ContentOf(entry.kept).isEmpty(); // it was damaged
    if (isSafe) {
        EmergencyCopies::Remove(entry.before);
        entry.before = KeptReport();
    }
    if (isSafe != verdict.isSafe) {
        verdict.isSafe = isSafe;
        changed.insert(verdict.report);
    }
    return isSafe;
}

/// One of each folder: where one fails, others do.
void ReportSupervisorData::TryNext()
{
    TakeNotes();
    bool isAnyWritten = false;
    for (int i = qMin(TriesInOneGo, int(pendingIn.size())); i > 0 && !pendingIn.empty(); --i) {
        const auto in = nextBehind(pendingIn, lastFolder);
        lastFolder = in->first;
        in->second.lastTried = *nextBehind(in->second.reports, in->second.lastTried);
        isAnyWritten = TryToWrite(entries.at(in->second.lastTried)) || isAnyWritten;
    }
    if (isAnyWritten) {
        pace.Restart();
    }
    if (!pendingIn.empty()) {
        retryTimer.start(isAnyWritten ? 0 : pace.Next());
    }
    Tell();
}

/// Tries in @p pause milliseconds, unless that is done sooner anyway.
void ReportSupervisorData::Await(int pause)
{
    if (!retryTimer.isActive() || retryTimer.remainingTime() > pause) {
        retryTimer.start(pause);
    }
}

void ReportSupervisorData::CheckNext()
{
    TakeNotes();
    if (!unchecked.empty()) {
        const auto entry = entries.find(*unchecked.begin());
        unchecked.erase(unchecked.begin());
        if (entry != entries.end() && isFile(entry->second.verdict.state)) {
            Check(entry->second);
        }
    }
    if (!unchecked.empty()) {
        checkTimer.start(0);
    }
    Tell();
}

/// A device or a pipe is not checked: what went there cannot be read again.
void ReportSupervisorData::Check(Entry& entry)
{
    const ReportSupervisor::Verdict& verdict = entry.verdict;
    const QFileInfo info(verdict.fileName);
    if (info.exists() && !info.isFile()) {
        return;
    }
    ReportState state = ReportState::Written;
    QString reason;
    bool isRead = true;
    QFile file(verdict.fileName);
    if (!info.exists()) {
        state = ReportState::Gone;
        reason = ReportSupervisor::tr("there is no such file any more");
    } else if (info.size() != verdict.size) {
        state = ReportState::Gone;
        reason = ReportSupervisor::tr("another file has taken its place");
    } else if (!file.open(QIODevice::ReadOnly)) {
        reason = ReportSupervisor::tr("it cannot be opened to check it");
        isRead = false;
    } else if (reason = faultOfXml(file); !reason.isEmpty()) {
        state = ReportState::NotWellFormed;
    } else if (validator) {
        reason = validator(verdict.schemaPath, verdict.fileName).join(QLatin1String("; "));
        state = reason.isEmpty() ? ReportState::Written : ReportState::Invalid;
    }
    if (verdict.isChecked != isRead || verdict.state != state || verdict.reason != reason) {
        entry.verdict.isChecked = isRead;
        SetState(entry, state, reason);
    }
}
