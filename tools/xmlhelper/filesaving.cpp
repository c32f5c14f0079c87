#include "filesaving_p.h"

#include <climits>
#include <mutex>
#include <optional>
#include <string>

#include <QCoreApplication>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#ifdef Q_OS_UNIX
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <windows.h>
#endif

#include "limits_p.h"
#include "tracing_p.h"

namespace {

constexpr int MaxLinks = 40;

/// A save may last, but not for a day.
constexpr qint64 SecondsOfAStray = 24 * 60 * 60;
constexpr int MaxEntriesLookedAt = 10000;

const QLatin1String TemporaryPrefix(".xmlhelper-");
const QLatin1String TemporarySuffix(".part");

/// Whether a file that cannot be put in its place is written there. On Windows a folder does not tell beforehand
/// whether it takes new files, nor a file whether somebody reads it, who keeps it from being replaced.
#ifdef Q_OS_WIN
constexpr bool IsTriedInPlace = true;
constexpr int MaxPath = INT_MAX;
#else
constexpr bool IsTriedInPlace = false;
constexpr int MaxPath = PATH_MAX;
#endif

/// Takes everything, to tell its size.
class Counter : public QIODevice
{
public:
    Counter() { setOpenMode(WriteOnly | Unbuffered); }

private:
    qint64 readData(char*, qint64) override { return -1; } // unreached: it is open for writing only
    qint64 writeData(const char*, qint64 size) override { return size; }
};

#ifdef Q_OS_WIN
/// In the form that may have any length, as QFile opens it.
std::wstring nativeName(const QString& fileName)
{
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(fileName).absoluteFilePath()));
    const bool isOnServer = path.startsWith(QLatin1String("\\\\"));
    return (isOnServer ? QLatin1String("\\\\?\\UNC") + path.mid(1) : QLatin1String("\\\\?\\") + path).toStdWString();
}
#else
std::string nativeName(const QString& fileName)
{
    return QFile::encodeName(fileName).toStdString();
}
#endif

/// Removes the file of a name when it goes. That takes no memory, the lack of which may be why nothing was saved.
class Remover
{
public:
    explicit Remover(const QString& fileName)
        : m_name(nativeName(fileName))
    {
    }
    ~Remover()
    {
#ifdef Q_OS_WIN
        DeleteFileW(m_name.c_str());
#else
        ::unlink(m_name.c_str());
#endif
    }

    /// Removes nothing: the file is another's.
    void Release()
    {
        m_name.clear();
    }

private:
    Q_DISABLE_COPY(Remover)
    decltype(nativeName(QString())) m_name;
};

/// Whether what was to be written is beyond the limit, which is the reason then. Who refused to write it has traced it.
bool isTooLong(SavedFile& saved)
{
    saved.isTooLong = saved.size > limits().savedBytes;
    if (saved.isTooLong) {
        saved.reason
            = QCoreApplication::translate("FileSaving", "It would be longer than %1 bytes").arg(limits().savedBytes);
    }
    return saved.isTooLong;
}

/// Why @p file has not taken all. Where a part was taken the system tells with the next byte, which nobody reads if the
/// file is discarded.
QString faultOf(QFile& file, bool isDiscarded)
{
    const QString fault = file.errorString();
    if (!isDiscarded) {
        return fault;
    }
    file.unsetError();
    const bool isFlushed = file.putChar(' ') && file.flush();
    return isFlushed ? fault : file.errorString();
}

/// Writes to @p file and closes it, since some file systems tell only then that they could not write. Traces that.
/// @param isDiscarded  whether what was written in part goes away with the file
bool writeAndClose(const WriteContent& write, QFile& file, SavedFile& saved, bool isDiscarded = true)
{
    const bool isTaken = write(file);
    saved.size = file.pos();
    if (!isTaken && !isTooLong(saved)) {
        saved.reason = faultOf(file, isDiscarded);
    }
    file.close();
    const bool isWritten = isTaken && file.error() == QFile::NoError;
    if (isTaken && !isWritten) {
        saved.reason = file.errorString();
    }
    if (!isWritten && !saved.isTooLong) {
        trace(QStringLiteral("Only a part could be written of %1, it was discarded!").arg(saved.name), "filesaving",
              __LINE__);
    }
    return isWritten;
}

/// Whether opening the file for writing would wait until somebody reads it, which may be never.
bool isPipeWithoutReader(const QString& fileName)
{
#ifdef Q_OS_UNIX
    const QByteArray path = QFile::encodeName(fileName);
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0 || !S_ISFIFO(status.st_mode)) {
        return false;
    }
    const int descriptor = ::open(path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return true;
    }
    ::close(descriptor);
#else
    Q_UNUSED(fileName)
#endif
    return false;
}

/// Takes back what was written of a file: half a document is of no use to anybody. A device stays, and so does a link,
/// over an empty file.
void discard(QFile& file)
{
    const QFileInfo info(file.fileName());
    if (info.isSymLink() || !info.isFile() || !file.remove()) {
        file.resize(0);
    }
}

/// The open file of this process that a name such as /dev/stdout leads to; none for other names.
std::optional<int> descriptorOf(const QString& fileName)
{
    QFileInfo link(fileName);
    for (int i = 0; i < MaxLinks && link.isSymbolicLink(); ++i) {
        if (QFileInfo(link.path()) == QFileInfo(QStringLiteral("/proc/self/fd"))) {
            return link.fileName().toInt();
        }
        link.setFile(link.symLinkTarget());
    }
    return std::nullopt;
}

/// Opens @p file when all that it shall hold may be written. Tells how much that is. What is open already is written on
/// where it is: what others have written there, or write behind it, stays.
bool openInPlace(const WriteContent& write, QFile& file, std::optional<int> descriptor, SavedFile& saved)
{
    if (isPipeWithoutReader(saved.name)) {
        saved.reason = QCoreApplication::translate("FileSaving", "Nobody reads the pipe");
        return false;
    }
    Counter counter; // What was there is lost with opening, so content that is too long must be known before.
    const bool isTaken = write(counter);
    saved.size = counter.pos();
    if (!isTaken) {
        isTooLong(saved);
        return false;
    }
    const bool isOpen = descriptor ? file.open(*descriptor, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    saved.reason = isOpen ? QString() : file.errorString();
    return isOpen;
}

bool saveInPlace(const WriteContent& write, SavedFile& saved)
{
    QFile file(saved.name);
    const std::optional<int> descriptor = descriptorOf(saved.name);
    if (!openInPlace(write, file, descriptor, saved)) {
        return false;
    }
    const qint64 size = saved.size;
    const bool isWritten = writeAndClose(write, file, saved, !descriptor && !file.isSequential());
    if (isWritten) {
        saved.size = size; // A pipe does not tell.
    } else if (!descriptor) {
        discard(file);
    }
    return isWritten;
}

/// The file that is meant by @p fileName, there or not, behind all links.
QFileInfo targetOf(const QString& fileName)
{
    QFileInfo target(fileName);
    for (int i = 0; i < MaxLinks && target.isSymbolicLink(); ++i) {
        target.setFile(target.exists() ? target.canonicalFilePath() : target.symLinkTarget());
    }
    return target;
}

/// Whether @p target is a file that another can take the place of, or none, in a folder that takes new files. A file
/// that must not be written must not be replaced either.
bool isReplaceable(const QFileInfo& target)
{
    const bool isFile = target.exists() ? target.isFile() && target.isWritable() : !target.isSymbolicLink();
    return isFile && !target.fileName().isEmpty() && !target.fileName().contains(QChar::Null)
        && (IsTriedInPlace || QFileInfo(target.path()).isWritable());
}

/// The old file's owner, group and permissions, for the one that takes its place. Gives whether there is no old one, or
/// all of it could be taken over.
bool takeAccess(const QFile& file, const QFileInfo& target)
{
#ifdef Q_OS_UNIX
    struct stat old = {};
    struct stat own = {};
    if (::stat(QFile::encodeName(target.filePath()).constData(), &old) != 0) {
        return true;
    }
    const bool isOwners = ::fstat(file.handle(), &own) == 0 && own.st_uid == old.st_uid && own.st_gid == old.st_gid;
    return (isOwners || ::fchown(file.handle(), old.st_uid, old.st_gid) == 0)
        && ::fchmod(file.handle(), old.st_mode & 07777) == 0;
#else
    Q_UNUSED(file)
    Q_UNUSED(target)
    return true;
#endif
}

/// Renames a file to the name of another, which is there no more then. QFile::rename() would not.
bool replace(const QString& target, const QString& file, SavedFile& saved)
{
    const auto from = nativeName(file);
    const auto to = nativeName(target);
#ifdef Q_OS_UNIX
    const bool isReplaced = std::rename(from.c_str(), to.c_str()) == 0;
#else
    const bool isReplaced = MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING);
#endif
    if (!isReplaced) {
        saved.reason = qt_error_string();
    }
    return isReplaced;
}

/// Removes what processes that ended while they saved have left in @p folder, so that it does not pile up. Looks once
/// for each folder, and not through all of a large one, because the operator waits.
void removeStrays(const QString& folder)
{
    static std::mutex mutex;
    static QSet<QString> seenFolders;
    const std::lock_guard<std::mutex> lock(mutex);
    if (seenFolders.contains(folder)) {
        return;
    }
    seenFolders.insert(folder);
    QDirIterator entries(folder, QDir::Files | QDir::Hidden);
    for (int i = 0; i < MaxEntriesLookedAt && entries.hasNext(); ++i) {
        entries.next();
        const QString name = entries.fileName();
        if (name.startsWith(TemporaryPrefix) && name.endsWith(TemporarySuffix)
            && entries.fileInfo().lastModified().secsTo(QDateTime::currentDateTime()) > SecondsOfAStray) {
            QFile::remove(entries.filePath());
        }
    }
}

/// A name of no file, beside @p target. It is short, whatever the other is called.
QString temporaryNameBeside(const QFileInfo& target)
{
    const QString number = QString::number(QRandomGenerator::system()->generate64(), 16);
    return target.path() + QLatin1Char('/') + TemporaryPrefix + number + TemporarySuffix;
}

} // namespace

QString openableFileName(const QString& fileName)
{
#ifdef Q_OS_WIN
    return fileName;
#else
    if (QFile::exists(fileName)) {
        return fileName;
    }
    QString slashed = fileName;
    return slashed.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
}

bool saveFile(const QString& fileName, const WriteContent& write, SavedFile* saved)
{
    SavedFile unasked;
    SavedFile& told = saved ? *saved : unasked;
    told.name = openableFileName(fileName);
    const QFileInfo target = targetOf(told.name);
    const QString temporaryName = temporaryNameBeside(target);
    if (!isReplaceable(target) || descriptorOf(told.name) || QFile::encodeName(temporaryName).size() >= MaxPath) {
        return saveInPlace(write, told);
    }
    removeStrays(target.absolutePath());
    Remover remover(temporaryName); // behind the closing; renamed, the file is there no more
    QFile file(temporaryName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        remover.Release();
        told.reason = file.errorString();
        return IsTriedInPlace && saveInPlace(write, told);
    }
    if (!takeAccess(file, target)) {
        return saveInPlace(write, told);
    }
    const bool isWritten = writeAndClose(write, file, told);
    if (isWritten && replace(target.filePath(), temporaryName, told)) {
        return true;
    }
    return isWritten && IsTriedInPlace && saveInPlace(write, told);
}
