#include "emergencycopies_p.h"

#include <algorithm>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

constexpr int TriesForAFolder = 10;

const QLatin1String LockName("owner.lock");
const QLatin1String ContentEnding(".xml");
const QLatin1String KnownEnding(".json");

/// The number as a text: JSON's own numbers do not hold all of 64 bits.
QString textOf(qint64 number)
{
    return QString::number(number);
}

QString hashOf(const QByteArray& content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

/// Writes a file whole or not at all, down to the disk.
bool store(const QString& fileName, const QByteArray& bytes)
{
    QSaveFile file(fileName);
    // What fails while the buffer is written would go unseen in commit().
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray knownOf(const KeptReport& report)
{
    const QJsonObject known {
        {QStringLiteral("reportPath"), report.reportPath},
        {QStringLiteral("schemaPath"), report.schemaPath},
        {QStringLiteral("reason"), report.reason},
        {QStringLiteral("time"), textOf(report.time)},
        {QStringLiteral("size"), textOf(report.content.size())},
        {QStringLiteral("sha256"), hashOf(report.content)},
        {QStringLiteral("folderWasThere"), report.found.isFolderThere},
        {QStringLiteral("fileWasThere"), report.found.isThere},
        {QStringLiteral("fileSize"), textOf(report.found.size)},
        {QStringLiteral("fileTime"), textOf(report.found.time)},
    };
    return QJsonDocument(known).toJson();
}

QString textIn(const QJsonObject& known, const char* name)
{
    return known.value(QLatin1String(name)).toString();
}

/// What is known of the copy called @p copy; empty when that cannot be read, or its content is not what it says.
QJsonObject readKnown(const QString& copy)
{
    const QJsonObject known = QJsonDocument::fromJson(bytesOf(copy + KnownEnding)).object();
    const QByteArray content = bytesOf(copy + ContentEnding);
    const bool isWhole = !content.isEmpty() && textIn(known, "size") == textOf(content.size())
        && textIn(known, "sha256") == hashOf(content);
    return isWhole ? known : QJsonObject();
}

KeptReport reportOf(const QString& copy, const QJsonObject& known)
{
    KeptReport report;
    report.reportPath = textIn(known, "reportPath");
    report.schemaPath = textIn(known, "schemaPath");
    report.reason = textIn(known, "reason");
    report.time = textIn(known, "time").toLongLong();
    report.found.isFolderThere = known.value(QLatin1String("folderWasThere")).toBool();
    report.found.isThere = known.value(QLatin1String("fileWasThere")).toBool();
    report.found.size = textIn(known, "fileSize").toLongLong();
    report.found.time = textIn(known, "fileTime").toLongLong();
    report.copy = copy;
    return report;
}

QString inFolder(const QString& folder, const QString& name)
{
    return folder + QLatin1Char('/') + name;
}

/// The names of the copies in a folder without their endings, in the order in which they were made. Half ones count.
QStringList copiesIn(const QString& folder)
{
    QStringList names;
    const QStringList endings {QLatin1Char('*') + ContentEnding, QLatin1Char('*') + KnownEnding};
    const QStringList files = QDir(folder).entryList(endings, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        names.append(inFolder(folder, QFileInfo(file).completeBaseName()));
    }
    names.removeDuplicates();
    return names;
}

/// Removes the lock of a process that has ended although it seems to live: in a container processes get the same
/// numbers at each start, so the number in a lock may be that of another one by now, or of this one. The system knows
/// better: as long as a process lives, it holds the file of its lock, which is not removed then. It does so before
/// anything is written there, so an empty one is left alone.
bool isLeftByNobody(QLockFile& lock)
{
    qint64 process = 0;
    QString computer;
    QString program;
    return lock.error() == QLockFile::LockFailedError && lock.getLockInfo(&process, &computer, &program)
        && lock.removeStaleLockFile();
}

} // namespace

FileMark markOf(const QString& path)
{
    const QFileInfo info(path);
    FileMark mark;
    mark.isFolderThere = QFileInfo::exists(info.path());
    mark.isThere = info.exists();
    if (mark.isThere) {
        mark.size = info.size();
        mark.time = info.lastModified().toMSecsSinceEpoch();
    }
    return mark;
}

bool mayReplaceWhatIsThere(const KeptReport& report)
{
    const FileMark now = markOf(report.reportPath);
    return !now.isThere || now == report.found || (!report.found.isFolderThere && now.time < report.time);
}

EmergencyCopies::EmergencyCopies()
    : m_folder(inFolder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation),
                        QStringLiteral("unsaved-reports")))
{
}

/// Folders that hold nothing any more go; one that holds something is not removed.
EmergencyCopies::~EmergencyCopies()
{
    for (const Shelf& shelf : m_shelves) {
        shelf.lock->unlock();
        QDir().rmdir(shelf.folder);
    }
}

void EmergencyCopies::SetFolder(const QString& folder)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_folder = folder.isEmpty() ? QString() : QFileInfo(folder).absoluteFilePath();
    m_ownFolder.clear();
}

bool EmergencyCopies::Keep(KeptReport& report)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (report.content.isEmpty() || m_folder.isEmpty() || !makeOwnShelf()) {
        return false;
    }
    // Filled with zeros, so that the names are in the order in which the copies were made.
    const QString copy = inFolder(m_ownFolder, QStringLiteral("%1").arg(++m_lastCopy, 10, 10, QLatin1Char('0')));
    if (!store(copy + ContentEnding, report.content) || !store(copy + KnownEnding, knownOf(report))) {
        QFile::remove(copy + ContentEnding);
        return false;
    }
    report.copy = copy;
    report.content.clear();
    return true;
}

bool EmergencyCopies::IsThere(const KeptReport& report)
{
    return QFileInfo::exists(report.copy + KnownEnding) && QFileInfo::exists(report.copy + ContentEnding);
}

QByteArray EmergencyCopies::ContentOf(const KeptReport& report)
{
    if (report.copy.isEmpty()) {
        return report.content;
    }
    return readKnown(report.copy).isEmpty() ? QByteArray() : bytesOf(report.copy + ContentEnding);
}

void EmergencyCopies::Remove(const KeptReport& report)
{
    if (!report.copy.isEmpty()) { // What is known goes first: without it, the rest does not count.
        QFile::remove(report.copy + KnownEnding);
        QFile::remove(report.copy + ContentEnding);
    }
}

std::vector<KeptReport> EmergencyCopies::TakeOver(QStringList& faults)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<KeptReport> reports;
    if (m_folder.isEmpty()) {
        return reports;
    }
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QString folder = inFolder(m_folder, name);
        auto lockFile = isHeld(folder) ? nullptr : lockLeft(folder, faults);
        if (!lockFile) {
            continue;
        }
        if (takeShelf(folder, faults, reports)) {
            m_shelves.push_back({folder, std::move(lockFile)});
        } else {
            lockFile->unlock();
            QDir().rmdir(folder);
        }
    }
    std::stable_sort(reports.begin(), reports.end(),
                     [](const KeptReport& one, const KeptReport& other) { return one.time < other.time; });
    return reports;
}

/// Makes the folder of this process and locks it, where that has not been done. Who takes over the folders of others
/// may see a new one before it is locked, and remove it; another one is made then.
bool EmergencyCopies::makeOwnShelf()
{
    if (!QFileInfo::exists(m_ownFolder)) {
        m_ownFolder.clear();
    }
    for (int i = 0; i < TriesForAFolder && !isHeld(m_ownFolder); ++i) {
        const QString number = QString::number(QRandomGenerator::system()->generate64(), 16);
        const QString name = QString::number(QCoreApplication::applicationPid()) + QLatin1Char('-') + number;
        const QString folder = inFolder(m_folder, name);
        if (!QDir().mkpath(folder)) {
            return false;
        }
        auto lockFile = std::make_unique<QLockFile>(inFolder(folder, LockName));
        lockFile->setStaleLockTime(0);
        if (lockFile->tryLock(0)) {
            m_ownFolder = folder;
            m_shelves.push_back({folder, std::move(lockFile)});
        } else {
            QDir().rmdir(folder);
        }
    }
    return isHeld(m_ownFolder);
}

bool EmergencyCopies::isHeld(const QString& folder) const
{
    return std::any_of(m_shelves.begin(), m_shelves.end(),
                       [&folder](const Shelf& shelf) { return shelf.folder == folder; });
}

/// Locks the folder of a process that has ended; null while it lives, and with a sentence where that cannot be done.
std::unique_ptr<QLockFile> EmergencyCopies::lockLeft(const QString& folder, QStringList& faults)
{
    auto lockFile = std::make_unique<QLockFile>(inFolder(folder, LockName));
    lockFile->setStaleLockTime(0); // However long ago it was made, it holds as long as its process lives.
    if (lockFile->tryLock(0) || (isLeftByNobody(*lockFile) && lockFile->tryLock(0))) {
        return lockFile;
    }
    if (lockFile->error() != QLockFile::LockFailedError) {
        faults.append(QCoreApplication::translate("ReportSupervisor", "the unsaved reports in %1 cannot be taken over")
                          .arg(folder));
    }
    return nullptr;
}

/// Gives whether there is a report in a folder that was locked.
bool EmergencyCopies::takeShelf(const QString& folder, QStringList& faults, std::vector<KeptReport>& reports)
{
    const std::size_t before = reports.size();
    const QStringList copies = copiesIn(folder);
    for (const QString& copy : copies) {
        const QJsonObject known = readKnown(copy);
        if (known.isEmpty()) {
            faults.append(QCoreApplication::translate("ReportSupervisor", "the unsaved report %1 is damaged")
                              .arg(copy + ContentEnding));
        } else {
            reports.push_back(reportOf(copy, known));
        }
    }
    return reports.size() > before;
}
