#include "reportjournaldata_p.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMetaEnum>
#include <QScopedValueRollback>
#include <QSysInfo>

#include <arbase/vornos.h>
#include <xmlhelper/filesaving_p.h>

#include "reportids_p.h"
#include "reportsupervision_p.h"

namespace {

/// Watched reports that are written in one go.
constexpr std::size_t ReportsInOneGo = 50;

/// Milliseconds until what could not be written is tried again.
constexpr int PauseBetweenTries = 1000;

/// Milliseconds to wait for a process that sets a damaged journal aside.
constexpr int SetAsideTimeout = 5000;

QString nameOf(ReportSupervisor::State state)
{
    return QString::fromLatin1(QMetaEnum::fromType<ReportSupervisor::State>().valueToKey(int(state)));
}

/// A name for a damaged journal that nothing has.
QString nameAside(const QString& file)
{
    const QDateTime now = timeOf(VornOS::Create()->GetCurrentTime());
    const QString name = file + QStringLiteral(".damaged-") + now.toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    QString aside = name;
    for (int i = 2; QFile::exists(aside); ++i) {
        aside = QStringLiteral("%1-%2").arg(name).arg(i);
    }
    return aside;
}

QString cannotBeOpened(const QString& file, const QString& fault)
{
    return ReportJournal::tr("The journal %1 cannot be opened: %2.").arg(file, fault);
}

QString cannotBeRenamed(const QString& file)
{
    return ReportJournal::tr("The journal %1 is damaged and cannot be renamed.").arg(file);
}

void takeValues(QMap<QString, QString>& values, const QMap<QString, QString>& others)
{
    for (auto value = others.cbegin(); value != others.cend(); ++value) {
        values.insert(value.key(), value.value());
    }
}

StoredEntry entryOfFound(const QString& path, const ReportContent& content)
{
    StoredEntry entry;
    entry.id = ReportIds::OfFound(thisStation(), path);
    entry.station = thisStation();
    entry.begun = content.time;
    entry.path = path;
    entry.verdict = QStringLiteral("Found");
    entry.comment = content.comment;
    entry.values = content.values;
    entry.size = content.size;
    entry.hash = content.hash;
    entry.Renew();
    return entry;
}

} // namespace

QString journalPathOf(const QString& fileName)
{
    return fileName.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(openableFileName(fileName)).absoluteFilePath());
}

QString thisStation()
{
    return QSysInfo::machineHostName();
}

bool isHere(const ReportJournal::Entry& entry)
{
    return entry.station == thisStation();
}

ReportJournalData::ReportJournalData(ReportJournal& owner)
    : journal(owner)
    , intake([this](QStringList& files) { return TakeFound(files); },
             [this](const QString& folder, int added) { Q_EMIT journal.TakenIn(folder, added); })
{
    flushTimer.setSingleShot(true);
    QObject::connect(&flushTimer, &QTimer::timeout, &flushTimer, [this] { Flush(false); });
}

void ReportJournalData::Close()
{
    sender.reset();
    store.Close();
    sharedPlace.clear();
    file.clear();
}

bool ReportJournalData::OpenToRead(const QString& place, QString& message)
{
    Close();
    const QUrl url(place);
    if (isSharedPlace(url)) {
        const bool isOpen = store.OpenShared(url);
        message = isOpen ? QString() : store.Fault();
        return isOpen;
    }
    const QString path = journalPathOf(place);
    const bool isOpen = store.OpenToRead(path);
    message = isOpen ? QString() : cannotBeOpened(path, store.Fault());
    return isOpen;
}

bool ReportJournalData::Open(const QString& place, QString& message)
{
    if (place.isEmpty() || isSharedPlace(QUrl(place))) {
        return OpenToRead(place, message);
    }
    Close();
    file = journalPathOf(place);
    if (OpenFile(message)) {
        flushTimer.start(0);
        return true;
    }
    file.clear();
    return false;
}

bool ReportJournalData::OpenFile(QString& message)
{
    const JournalStore::Outcome outcome = store.OpenFile(file);
    if (outcome == JournalStore::Outcome::Damaged) {
        return SetAside(message);
    }
    if (outcome == JournalStore::Outcome::Refused) {
        message = cannotBeOpened(file, store.Fault());
        return false;
    }
    Share();
    return true;
}

/// Several processes may find the damage at once: the first renames the file, the others find the new one.
bool ReportJournalData::SetAside(QString& message)
{
    sender.reset();
    store.Close();
    QLockFile lock(file + QStringLiteral(".lock"));
    if (!lock.tryLock(SetAsideTimeout)) {
        message = cannotBeRenamed(file);
        return false;
    }
    const JournalStore::Outcome outcome = store.OpenFile(file, JournalStore::Check::Whole);
    message = outcome == JournalStore::Outcome::Damaged ? MakeAnew()
        : outcome == JournalStore::Outcome::Refused     ? cannotBeOpened(file, store.Fault())
                                                        : QString();
    if (!store.IsOpen()) {
        return false;
    }
    Refill();
    Share();
    return true;
}

/// Brings back what a new file may lack.
void ReportJournalData::Refill()
{
    intake.Restart();
    if (supervisor) {
        Watch(*supervisor);
    }
}

/// Gives what the operator shall know. The file itself goes last: from then on others may make a new one.
QString ReportJournalData::MakeAnew()
{
    const QString aside = nameAside(file);
    const QString log = QStringLiteral("-wal");
    QFile::remove(file + QStringLiteral("-shm"));
    QFile::rename(file + log, aside + log);
    if (!QFile::rename(file, aside)) {
        QFile::rename(aside + log, file + log);
        return cannotBeRenamed(file);
    }
    if (store.OpenFile(file) != JournalStore::Outcome::Opened) {
        return cannotBeOpened(file, store.Fault());
    }
    return ReportJournal::tr("The journal was damaged and is now %1; %2 entries of it are in a new one.")
        .arg(aside, QString::number(TakeOver(aside)));
}

/// Takes what can still be read of a damaged journal. Gives how many entries that is.
int ReportJournalData::TakeOver(const QString& damaged)
{
    std::vector<StoredEntry> entries;
    JournalStore old;
    if (old.OpenDamaged(damaged)) {
        old.Rescue([&entries](const StoredEntry& entry) {
            if (!entry.id.isEmpty()) { // Of a damaged row, anything may be left.
                entries.push_back(entry);
            }
        });
    }
    const auto put = [this, &entries] {
        return std::all_of(entries.begin(), entries.end(),
                           [this](const StoredEntry& entry) { return store.Put(entry); });
    };
    return !entries.empty() && store.Change(put) ? int(entries.size()) : 0;
}

void ReportJournalData::Share()
{
    sender.reset();
    if (sharedPlace.isEmpty()) {
        return;
    }
    sender = std::make_unique<JournalSender>(file, sharedPlace, [this](int unsent, const QString& fault) {
        const auto tell = [this, unsent, fault] { Q_EMIT journal.Sent(unsent, fault); };
        QMetaObject::invokeMethod(&flushTimer, tell, Qt::QueuedConnection);
    });
}

/// Opens the file again if that must be: another process may have set it aside, and somebody removed it. Gives whether
/// another is open now.
bool ReportJournalData::OpenAgain(QString& message)
{
    if (file.isEmpty() || store.IsCurrent() || !OpenFile(message)) {
        return false;
    }
    Refill();
    return true;
}

/// Works with the database; once more with a new one when it turns out to be damaged, or was set aside by another
/// process meanwhile, which may not have seen what was written.
bool ReportJournalData::Do(const std::function<bool()>& work, bool isChange)
{
    QString message;
    OpenAgain(message);
    bool isDone = store.IsOpen() && work();
    if (isDone && !file.isEmpty() && !store.IsCurrent()) {
        isDone = OpenAgain(message) && work();
    }
    if (!isDone && !file.isEmpty() && store.IsOpen() && store.IsDamaged()) {
        isDone = SetAside(message) && work();
    }
    if (message.isEmpty() && !isDone && store.IsOpen() && !store.Fault().isEmpty()) {
        message = ReportJournal::tr("The journal cannot be used: %1.").arg(store.Fault());
    }
    if (isChange || file.isEmpty() || !message.isEmpty()) { // That it can be read says nothing of writing.
        Trouble(message);
    }
    return isDone;
}

bool ReportJournalData::Change(const std::function<bool()>& change)
{
    const bool isDone = !file.isEmpty() && Do([this, &change] { return store.Change(change); }, true);
    if (isDone && sender) {
        sender->Wake();
    }
    return isDone;
}

bool ReportJournalData::Select(const ReportJournal::Query& query, std::vector<ReportJournal::Entry>& entries)
{
    return Do([this, &query, &entries] {
        entries.clear();
        return store.Select(query, [&entries](const StoredEntry& entry) { entries.push_back(entry); });
    });
}

void ReportJournalData::Trouble(const QString& message)
{
    if (std::exchange(lastTrouble, message) != message && !message.isEmpty()) {
        Q_EMIT journal.Troubled(message);
    }
}

void ReportJournalData::Watch(ReportSupervisor& reports)
{
    supervisor = &reports;
    const std::vector<ReportSupervisor::Verdict> verdicts = reports.GetReports();
    for (const ReportSupervisor::Verdict& verdict : verdicts) {
        Note(verdict.report);
        if (isFile(verdict.state)) {
            unread.insert(verdict.report);
        }
    }
}

void ReportJournalData::Note(quint64 report)
{
    const ReportSupervisor::Verdict verdict = supervisor->GetReport(report);
    if (verdict.state == ReportSupervisor::State::Unknown) {
        return; // It was finished so long ago that the supervisor has forgotten it.
    }
    changed[report] = verdict;
    if (verdict.state == ReportSupervisor::State::Written && !verdict.isChecked) {
        unread.insert(report);
    }
    if (!flushTimer.isActive()) {
        flushTimer.start(0);
    }
}

/// Gives whether some reports were written. Files are read first, so that other processes do not wait for them.
bool ReportJournalData::Flush(bool isLast)
{
    if (changed.empty() || file.isEmpty() || isFlushing) {
        return false;
    }
    const QScopedValueRollback<bool> flushing(isFlushing, true);
    std::vector<Update> updates;
    std::map<quint64, ReportSupervisor::Verdict> taken; // Who hears of trouble may bring a newer state of a report.
    while (!changed.empty() && taken.size() < ReportsInOneGo) {
        updates.push_back(UpdateOf(changed.begin()->second, isLast));
        taken.insert(changed.extract(changed.begin()));
    }
    const auto write = [this, &updates] {
        return std::all_of(updates.begin(), updates.end(), [this](Update& update) { return Write(update); });
    };
    if (!Change(write)) {
        changed.merge(taken);
        flushTimer.start(PauseBetweenTries);
        return false;
    }
    for (const Update& update : updates) {
        Forget(update);
    }
    if (!changed.empty()) {
        flushTimer.start(0);
    }
    for (const Update& update : updates) {
        Q_EMIT journal.Changed(update.id);
    }
    return true;
}

/// Writes what is left. The supervisor may have heard something that it would tell from the event loop only.
void ReportJournalData::Finish()
{
    if (supervisor) {
        supervisor->MayQuit(); // It tells of all that it has heard.
        const std::set<quint64> unreadAtLast = unread;
        for (const quint64 report : unreadAtLast) {
            Note(report);
        }
    }
    while (Flush(true)) { }
}

/// @param isLast  there is no event loop any more from which the supervisor could check a file
ReportJournalData::Update ReportJournalData::UpdateOf(const ReportSupervisor::Verdict& verdict, bool isLast) const
{
    Update update;
    update.verdict = verdict;
    const QString& fileName = update.verdict.fileName;
    update.path = journalPathOf(fileName.isEmpty() ? update.verdict.reportPath : fileName);
    if (unread.count(verdict.report) > 0 && isFile(verdict.state) && (verdict.isChecked || isLast)) {
        update.content = readContent(fileName, valueNames);
    }
    return update;
}

QString ReportJournalData::IdOf(const Update& update)
{
    const QString known = ReportIds::Instance().Find(update.verdict);
    if (!known.isEmpty()) {
        return known;
    }
    const QString id = ReportIds::Instance().Make(update.verdict);
    if (update.path.isEmpty() || !store.Find(id).id.isEmpty()) {
        return id;
    }
    const QString earlier = FindOneToGoOnWith(update);
    if (earlier.isEmpty()) {
        return id;
    }
    ReportIds::Instance().Set(update.verdict, earlier);
    return earlier;
}

/// The entry of an earlier process that could not write a report, or of somebody who found its file before the process
/// came to tell.
QString ReportJournalData::FindOneToGoOnWith(const Update& update)
{
    if (update.verdict.report >= ReportSupervisor::FirstEarlier) {
        const std::vector<StoredEntry> entries = store.FindUnwritten(update.path);
        const auto isOther = [this](const StoredEntry& entry) { return !unwritten.contains(entry.id); };
        const auto earlier = std::find_if(entries.begin(), entries.end(), isOther);
        return earlier == entries.end() ? QString() : earlier->id;
    }
    const StoredEntry found = store.FindByPath(update.path);
    const bool isSame
        = found.verdict == QLatin1String("Found") && isFile(update.verdict.state) && found.hash == hashOf(update.path);
    return isSame ? found.id : QString();
}

bool ReportJournalData::Write(Update& update)
{
    const ReportSupervisor::Verdict& verdict = update.verdict;
    update.id = IdOf(update);
    if (!store.Fault().isEmpty()) {
        return false;
    }
    StoredEntry entry = store.Find(update.id);
    if (!store.Fault().isEmpty()) {
        return false;
    }
    if (entry.id.isEmpty()) {
        entry.id = update.id;
        entry.begun = verdict.begun;
    }
    entry.station = thisStation();
    entry.path = update.path;
    entry.schemaPath = verdict.schemaPath;
    entry.verdict = nameOf(verdict.state);
    entry.reason = verdict.reason;
    entry.size = verdict.size;
    TakeContent(entry, update);
    entry.Renew();
    if (isKept(verdict.state)) {
        unwritten.insert(update.id);
    } else {
        unwritten.remove(update.id);
    }
    return store.Put(entry);
}

/// What a report holds stays as it is until the file is read again, or is there no more.
void ReportJournalData::TakeContent(StoredEntry& entry, const Update& update) const
{
    const auto given = valuesOfBegun.find(update.verdict.report);
    if (given != valuesOfBegun.end()) {
        takeValues(entry.values, given->second);
    }
    if (update.content.isRead) {
        entry.hash = update.content.hash;
        entry.comment = update.content.comment;
        takeValues(entry.values, update.content.values);
    } else if (!isFile(update.verdict.state) || unread.count(update.verdict.report) > 0) {
        entry.hash.clear();
    }
}

/// What is in the journal need not be remembered, unless it has changed since.
void ReportJournalData::Forget(const Update& update)
{
    const quint64 report = update.verdict.report;
    if (changed.count(report) > 0) {
        return;
    }
    valuesOfBegun.erase(report);
    if (update.content.isRead || !isFile(update.verdict.state) || update.verdict.isChecked) {
        unread.erase(report);
    }
}

bool ReportJournalData::ReadUnknown(const QStringList& files, std::vector<StoredEntry>& entries,
                                    QStringList& unreadable)
{
    entries.clear();
    unreadable.clear();
    for (const QString& path : files) {
        const bool isUnknown = store.FindByPath(path).id.isEmpty();
        if (!store.Fault().isEmpty()) {
            return false;
        }
        const ReportContent content = isUnknown ? readContent(path, valueNames) : ReportContent();
        if (content.isRead) {
            entries.push_back(entryOfFound(path, content));
        } else if (isUnknown) {
            unreadable.append(path);
        }
    }
    return true;
}

/// Gives how many were not known, and leaves those that cannot be read yet.
int ReportJournalData::TakeFound(QStringList& files)
{
    Flush(false); // A report of this process is told of rather than found.
    std::vector<StoredEntry> entries;
    QStringList unreadable;
    const auto readUnknown = [this, &files, &entries, &unreadable] { return ReadUnknown(files, entries, unreadable); };
    const auto put = [this, &entries] {
        return std::all_of(entries.begin(), entries.end(), [this](const StoredEntry& entry) {
            return !store.FindByPath(entry.path).id.isEmpty() || store.Put(entry); // Others may have been faster.
        });
    };
    if (!Do(readUnknown) || (!entries.empty() && !Change(put))) {
        return -1;
    }
    for (const StoredEntry& entry : entries) {
        Q_EMIT journal.Changed(entry.id);
    }
    files = unreadable;
    return int(entries.size());
}
