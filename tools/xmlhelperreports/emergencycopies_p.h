#ifndef XMLHELPERREPORTS_EMERGENCYCOPIES_P_H
#define XMLHELPERREPORTS_EMERGENCYCOPIES_P_H

#include <memory>
#include <mutex>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

class QJsonObject;
class QLockFile;

/// What stands at a path, to know later whether it is still the same.
struct FileMark
{
    bool isFolderThere = false;
    bool isThere = false;
    qint64 size = 0;
    qint64 time = 0; ///< of the last change, milliseconds since 1970 UTC

    bool operator==(const FileMark& other) const
    {
        return isThere == other.isThere && size == other.size && time == other.time;
    }
};

/// What stands at @p path.
FileMark markOf(const QString& path);

/// A report that could not be written.
struct KeptReport
{
    QString reportPath; ///< absolute; empty when it is not known
    QString schemaPath;
    QString reason;
    qint64 time = 0; ///< when it failed, milliseconds since 1970 UTC
    FileMark found; ///< what was at its path then
    QByteArray content; ///< of the file; empty when it is in the copy
    QString copy; ///< the copy's files without their endings; empty when there is none
};

/// Whether a report may take the place of what is at its path now: whether that was there when it failed, or, where the
/// folder was missing then, is older.
bool mayReplaceWhatIsThere(const KeptReport& report);

/// The copies of reports that could not be written, in a folder that several processes share.
///
/// Each process has a folder of its own in it, made with the first copy, and holds a lock there while it lives. A copy
/// is two files: the content, then what is known of it with the content's size and hash, without which it does not
/// count. A folder whose owner has ended is taken over with its lock. Any thread may call.
class EmergencyCopies
{
public:
    EmergencyCopies();
    ~EmergencyCopies();

    /// Empty for none: then nothing is copied.
    void SetFolder(const QString& folder);

    /// Copies a report; it then holds the copy's name instead of its content. Gives whether it did.
    bool Keep(KeptReport& report);

    /// Whether both files of a copy are there; what is in them only ContentOf() knows.
    static bool IsThere(const KeptReport& report);

    /// The content of a report; null when its copy cannot be read or is damaged.
    static QByteArray ContentOf(const KeptReport& report);

    /// Removes the copy of a report, where it has one.
    static void Remove(const KeptReport& report);

    /// The reports of processes that have ended, oldest first; a sentence to @p faults for what cannot be used.
    std::vector<KeptReport> TakeOver(QStringList& faults);

private:
    Q_DISABLE_COPY(EmergencyCopies)

    struct Shelf
    {
        QString folder;
        std::unique_ptr<QLockFile> lock;
    };

    bool makeOwnShelf();
    bool isHeld(const QString& folder) const;
    static std::unique_ptr<QLockFile> lockLeft(const QString& folder, QStringList& faults);
    bool takeShelf(const QString& folder, QStringList& faults, std::vector<KeptReport>& reports);

    std::mutex m_mutex;
    QString m_folder;
    QString m_ownFolder;
    int m_lastCopy = 0;
    std::vector<Shelf> m_shelves;
};

#endif
