#include "journalstore_p.h"

#include <algorithm>
#include <limits>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QUrlQuery>
#include <QUuid>
#include <QVariant>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

/// What marks the file as a journal.
constexpr int JournalMark = 0x584A524E;
constexpr int JournalVersion = 1;

/// Milliseconds to wait for other processes; each of them changes the file for some milliseconds.
constexpr int BusyTimeout = 2000;

/// Seconds to wait for an answer of a shared database.
constexpr int ConnectTimeout = 3;
constexpr int AnswerTimeout = 10;

/// Which file it is that has that name now; empty where the system does not tell, since files in use stay there.
QByteArray identityOf(const QString& fileName)
{
#ifdef Q_OS_UNIX
    struct stat status = {};
    if (::stat(QFile::encodeName(fileName).constData(), &status) == 0) {
        return QByteArray::number(quint64(status.st_dev)) + ':' + QByteArray::number(quint64(status.st_ino));
    }
#else
    Q_UNUSED(fileName)
#endif
    return QByteArray();
}

/// The ways in which processes of one computer share memory do not reach over a network.
bool isLocal(const QString& file)
{
    const QByteArray system = QStorageInfo(QFileInfo(file).absolutePath()).fileSystemType().toLower();
    return !system.startsWith("nfs") && !system.startsWith("smb") && !system.startsWith("cifs")
        && !system.startsWith("fuse.sshfs") && !system.startsWith("9p");
}

/// Options are those of PostgreSQL's own library, such as sslmode.
void setPlace(QSqlDatabase& database, const QUrl& url)
{
    QStringList options {QStringLiteral("connect_timeout=%1").arg(ConnectTimeout),
                         QStringLiteral("tcp_user_timeout=%1").arg(AnswerTimeout * 1000),
                         // Else an answer that never comes is waited for, when nothing more is to be sent.
                         QStringLiteral("keepalives_idle=5;keepalives_interval=2;keepalives_count=3")};
    QString host = url.host();
    const QList<QPair<QString, QString>> items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    for (const QPair<QString, QString>& item : items) {
        if (item.first == QLatin1String("host")) {
            host = item.second;
        } else {
            options.append(item.first + QLatin1Char('=') + item.second);
        }
    }
    database.setHostName(host);
    database.setPort(url.port());
    database.setUserName(url.userName());
    database.setPassword(url.password());
    database.setDatabaseName(url.path().mid(1));
    database.setConnectOptions(options.join(QLatin1Char(';')));
}

} // namespace

bool isSharedPlace(const QUrl& url)
{
    return url.scheme() == QLatin1String("postgresql") || url.scheme() == QLatin1String("postgres");
}

JournalStore::~JournalStore()
{
    Close();
}

void JournalStore::Close()
{
    m_prepared.clear();
    const QString connection = m_database.connectionName();
    m_database = QSqlDatabase();
    if (!connection.isEmpty()) {
        QSqlDatabase::removeDatabase(connection);
    }
}

bool JournalStore::open(const QString& driver, const std::function<void(QSqlDatabase&)>& set)
{
    Close();
    m_fault.clear();
    m_isDamaged = false;
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        return refuse(ReportJournal::tr("the driver %1 of Qt SQL is not installed").arg(driver));
    }
    m_database = QSqlDatabase::addDatabase(driver, QUuid::createUuid().toString());
    set(m_database);
    return m_database.open() || takeFault(m_database.lastError());
}

bool JournalStore::openFile(const QString& file)
{
    return open(QStringLiteral("QSQLITE"), [&file](QSqlDatabase& database) {
        database.setDatabaseName(file);
        database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(BusyTimeout));
    });
}

bool JournalStore::IsCurrent() const
{
    return IsOpen() && m_identity == identityOf(m_file);
}

JournalStore::Outcome JournalStore::OpenFile(const QString& file, Check check)
{
    if (openFile(file) && checkFile(check) && prepareFile(file)) {
        m_file = file;
        m_identity = identityOf(file);
        return Outcome::Opened;
    }
    Close();
    return m_isDamaged ? Outcome::Damaged : Outcome::Refused;
}

bool JournalStore::OpenToRead(const QString& file)
{
    if (!QFileInfo(file).isFile()) { // It would be made.
        return refuse(ReportJournal::tr("there is no such file"));
    }
    const bool isOpen = openFile(file) && checkFile(Check::Quick) && (isJournal() || refuseOther());
    if (!isOpen) {
        Close();
    }
    return isOpen;
}

bool JournalStore::OpenDamaged(const QString& file)
{
    return openFile(file);
}

bool JournalStore::checkFile(Check check)
{
    const QString finding = ask(check == Check::Quick ? QStringLiteral("PRAGMA quick_check(1)")
                                                      : QStringLiteral("PRAGMA integrity_check(1)"))
                                .toString();
    if (!m_fault.isEmpty()) {
        return false;
    }
    m_isDamaged = finding != QLatin1String("ok");
    return !m_isDamaged || refuse(finding);
}

/// A journal may be cut off from power: what was written last may be missing then, and it is whole all the same.
bool JournalStore::prepareFile(const QString& file)
{
    return run(isLocal(file) ? QStringLiteral("PRAGMA journal_mode = WAL") : QStringLiteral("PRAGMA journal_mode"))
        && run(QStringLiteral("PRAGMA synchronous = NORMAL")) && (isJournal() || Change([this] { return make(); }));
}

bool JournalStore::isJournal()
{
    return ask(QStringLiteral("PRAGMA application_id")).toInt() == JournalMark
        && ask(QStringLiteral("PRAGMA user_version")).toInt() == JournalVersion;
}

/// Another process may have been faster.
bool JournalStore::make()
{
    if (isJournal()) {
        return true;
    }
    if (ask(QStringLiteral("SELECT COUNT(*) FROM sqlite_master")).toInt() > 0) {
        return refuseOther();
    }
    return makeTable(QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT"))
        && run(QStringLiteral("PRAGMA application_id = %1").arg(JournalMark))
        && run(QStringLiteral("PRAGMA user_version = %1").arg(JournalVersion));
}

bool JournalStore::OpenShared(const QUrl& url)
{
    const auto makeOnce = [this] {
        // One process makes the table, and who may not make one can use it.
        return run(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(JournalMark))
            && (!ask(QStringLiteral("SELECT to_regclass('reports')")).toString().isEmpty()
                || makeTable(QStringLiteral("BIGSERIAL PRIMARY KEY")));
    };
    const auto setTo = [&url](QSqlDatabase& database) { setPlace(database, url); };
    const bool isOpen = isSharedPlace(url) && open(QStringLiteral("QPSQL"), setTo)
        && run(QStringLiteral("SET statement_timeout TO %1").arg(AnswerTimeout * 1000)) && Change(makeOnce);
    if (!isOpen) {
        Close();
    }
    return isOpen;
}

bool JournalStore::makeTable(const QString& keyType)
{
    return run(QStringLiteral("CREATE TABLE reports (number %1, id TEXT NOT NULL UNIQUE, station TEXT NOT NULL, "
                              "begun BIGINT, path TEXT NOT NULL, schema_path TEXT NOT NULL, verdict TEXT NOT NULL, "
                              "reason TEXT NOT NULL, comment TEXT NOT NULL, label TEXT NOT NULL, "
                              "named_values TEXT NOT NULL, size BIGINT NOT NULL, hash TEXT NOT NULL, "
                              "version BIGINT NOT NULL, words TEXT NOT NULL, sent BIGINT NOT NULL DEFAULT 0)")
                   .arg(keyType))
        && run(QStringLiteral("CREATE INDEX reports_by_path ON reports (path)"))
        && run(QStringLiteral("CREATE INDEX reports_unsent ON reports (number) WHERE sent < version"));
}

bool JournalStore::Change(const std::function<bool()>& change)
{
    const bool isFile = m_database.driverName() == QLatin1String("QSQLITE");
    if (!run(isFile ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("BEGIN"))) {
        return false;
    }
    if (change() && run(QStringLiteral("COMMIT"))) {
        return true;
    }
    if (IsOpen()) {
        static_cast<void>(m_database.rollback()); // The fault is that of the change.
    }
    return false;
}

StoredEntry JournalStore::findOne(const QString& condition, const QVariantList& values)
{
    StoredEntry entry;
    const QString statement = QStringLiteral("SELECT %1 FROM reports WHERE %2 LIMIT 1");
    runOften(statement.arg(QLatin1String(JournalColumns), condition), values,
             [&entry](const QSqlQuery& row) { entry = entryOf(row); });
    return entry;
}

StoredEntry JournalStore::Find(const QString& id)
{
    return findOne(QStringLiteral("id = ?"), {id});
}

StoredEntry JournalStore::FindByPath(const QString& path)
{
    return findOne(QStringLiteral("path = ? ORDER BY number DESC"), {path});
}

std::vector<StoredEntry> JournalStore::FindUnwritten(const QString& path)
{
    std::vector<StoredEntry> entries;
    QSqlQuery rows(m_database);
    const QString statement = QStringLiteral("SELECT %1 FROM reports WHERE path = ? AND verdict IN ('Pending', "
                                             "'Blocked', 'Offered') ORDER BY number");
    if (run(rows, statement.arg(QLatin1String(JournalColumns)), {path})) {
        while (rows.next()) {
            entries.push_back(entryOf(rows));
        }
    }
    return entries;
}

bool JournalStore::Put(const StoredEntry& entry)
{
    static const QString statement = statementToPut();
    return runOften(statement, columnsOf(entry));
}

bool JournalStore::Select(const ReportJournal::Query& query, const std::function<void(const StoredEntry&)>& take)
{
    QVariantList values;
    QString statement = QStringLiteral("SELECT %1 FROM reports WHERE %2 ORDER BY number DESC")
                            .arg(QLatin1String(JournalColumns), conditionsOf(query, values));
    if (query.limit >= 0) {
        statement += QStringLiteral(" LIMIT %1").arg(query.limit);
    }
    QSqlQuery rows(m_database);
    if (!run(rows, statement, values)) {
        return false;
    }
    while (rows.next()) {
        take(entryOf(rows));
    }
    return !rows.lastError().isValid() || takeFault(rows.lastError());
}

/// All that lies on a damaged page fails. The next number that does not is looked for: one by one, then in steps that
/// grow with the gap, since nothing says how far it goes.
void JournalStore::Rescue(const std::function<void(const StoredEntry&)>& take)
{
    const QString statement = QStringLiteral("SELECT %1 FROM reports WHERE number >= ? ORDER BY number");
    QSqlQuery rows(m_database);
    qint64 last = 0;
    for (qint64 from = 1; from < std::numeric_limits<qint64>::max() / 2; from += 1 + (from - last) / 64) {
        const bool isRead = run(rows, statement.arg(QLatin1String(JournalColumns)), {from});
        while (isRead && rows.next()) {
            const StoredEntry entry = entryOf(rows);
            last = entry.number;
            take(entry);
        }
        if (isRead && !rows.lastError().isValid()) {
            return;
        }
        from = std::max(from, last);
    }
}

std::vector<StoredEntry> JournalStore::Unsent(int limit)
{
    std::vector<StoredEntry> entries;
    QSqlQuery rows(m_database);
    const QString statement = QStringLiteral("SELECT %1 FROM reports WHERE sent < version ORDER BY number LIMIT %2");
    if (run(rows, statement.arg(QLatin1String(JournalColumns)).arg(limit))) {
        while (rows.next()) {
            entries.push_back(entryOf(rows));
        }
    }
    return entries;
}

int JournalStore::CountUnsent()
{
    const QVariant count = ask(QStringLiteral("SELECT COUNT(*) FROM reports WHERE sent < version"));
    return m_fault.isEmpty() ? count.toInt() : -1;
}

bool JournalStore::MarkSent(const StoredEntry& entry)
{
    return runOften(QStringLiteral("UPDATE reports SET sent = ? WHERE id = ? AND sent < ?"),
                    {entry.version, entry.id, entry.version});
}

/// Runs a statement that is prepared once.
bool JournalStore::runOften(const QString& statement, const QVariantList& values,
                            const std::function<void(const QSqlQuery&)>& take)
{
    m_fault.clear();
    const auto [found, isNew] = m_prepared.try_emplace(statement, m_database);
    QSqlQuery& query = found->second;
    query.setForwardOnly(true);
    bool isDone = !isNew || query.prepare(statement);
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    isDone = isDone && query.exec();
    while (isDone && take && query.next()) {
        take(query);
    }
    const QSqlError error = query.lastError();
    query.finish(); // What is not finished stands in the way of others.
    if (!isDone || error.isValid()) {
        m_prepared.erase(found);
        return takeFault(error);
    }
    return true;
}

bool JournalStore::run(QSqlQuery& query, const QString& statement, const QVariantList& values)
{
    m_fault.clear();
    query.setForwardOnly(true);
    bool isDone = query.prepare(statement);
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    isDone = isDone && query.exec();
    return isDone || takeFault(query.lastError());
}

bool JournalStore::run(const QString& statement)
{
    m_fault.clear();
    QSqlQuery query(m_database);
    return query.exec(statement) || takeFault(query.lastError());
}

QVariant JournalStore::ask(const QString& statement)
{
    m_fault.clear();
    QSqlQuery query(m_database);
    const bool isAnswered = query.exec(statement) && query.next();
    if (!isAnswered) {
        takeFault(query.lastError());
    }
    return isAnswered ? query.value(0) : QVariant();
}

bool JournalStore::refuse(const QString& fault)
{
    m_fault = fault;
    return false;
}

bool JournalStore::refuseOther()
{
    return refuse(ReportJournal::tr("it is a database of something else, or of a newer version"));
}

/// The numbers are those of SQLite for a file that is corrupt, or no database at all.
bool JournalStore::takeFault(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    m_isDamaged = m_database.driverName() == QLatin1String("QSQLITE") && (code == 11 || code == 26);
    const QString text = error.databaseText().trimmed();
    return refuse(text.isEmpty() ? error.text() : text);
}
