#ifndef XMLHELPERREPORTS_JOURNALSTORE_P_H
#define XMLHELPERREPORTS_JOURNALSTORE_P_H

#include <functional>
#include <map>
#include <vector>

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "journalrows_p.h"

/// The database of a journal: an SQLite file, or a shared one of PostgreSQL. It belongs to the thread that opens it.
class JournalStore
{
public:
    enum class Outcome { Opened, Refused, Damaged };

    JournalStore() = default;
    ~JournalStore();

    /// How much of a file is held to be whole before it is used.
    enum class Check {
        Quick, ///< all but whether its indexes lead to its entries
        Whole, ///< of one that is suspect
    };

    /// Opens a file, or says what is wrong with it.
    Outcome OpenFile(const QString& file, Check check = Check::Quick);

    /// Opens a journal that is there, to read it; whatever else it is stays as it is.
    bool OpenToRead(const QString& file);

    /// Opens a damaged file, to read what is left.
    bool OpenDamaged(const QString& file);

    /// Opens a shared database.
    bool OpenShared(const QUrl& url);

    void Close();
    bool IsOpen() const { return m_database.isOpen(); }
    /// Whether the file that is open still has its name.
    bool IsCurrent() const;

    /// What went wrong last; empty when nothing did.
    const QString& Fault() const { return m_fault; }
    /// Whether that was the damage of the file.
    bool IsDamaged() const { return m_isDamaged; }

    /// Does something that changes the database, all of it or nothing. Nobody else changes it meanwhile.
    bool Change(const std::function<bool()>& change);

    /// The entry with that id, or that path, or one without id. Of several with one path the newest.
    StoredEntry Find(const QString& id);
    StoredEntry FindByPath(const QString& path);

    /// Those of a path that could not be written yet, the oldest first.
    std::vector<StoredEntry> FindUnwritten(const QString& path);

    /// Adds an entry, or takes it in place of an older version.
    bool Put(const StoredEntry& entry);

    /// Calls @p take for each that meets the query, the newest first.
    bool Select(const ReportJournal::Query& query, const std::function<void(const StoredEntry&)>& take);

    /// Calls @p take for each that can still be read of a damaged journal, the oldest first.
    void Rescue(const std::function<void(const StoredEntry&)>& take);

    /// Those that are not sent, the oldest first.
    std::vector<StoredEntry> Unsent(int limit);
    int CountUnsent();
    bool MarkSent(const StoredEntry& entry);

private:
    Q_DISABLE_COPY(JournalStore)

    bool open(const QString& driver, const std::function<void(QSqlDatabase&)>& set);
    bool openFile(const QString& file);
    bool prepareFile(const QString& file);
    bool checkFile(Check check);
    bool isJournal();
    bool make();
    bool makeTable(const QString& keyType);
    bool runOften(const QString& statement, const QVariantList& values,
                  const std::function<void(const QSqlQuery&)>& take = {});
    bool run(QSqlQuery& query, const QString& statement, const QVariantList& values = {});
    bool run(const QString& statement);
    QVariant ask(const QString& statement);
    StoredEntry findOne(const QString& condition, const QVariantList& values);
    bool refuse(const QString& fault);
    bool refuseOther();
    bool takeFault(const QSqlError& error);

    QSqlDatabase m_database;
    QString m_file;
    QByteArray m_identity; ///< of the file
    std::map<QString, QSqlQuery> m_prepared; ///< by their statements
    QString m_fault;
    bool m_isDamaged = false;
};

/// Whether a place is the URL of a shared database.
bool isSharedPlace(const QUrl& url);

#endif
