#include "databaseserver.h"

#include <csignal>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>

#include <xmlhelperreports/reportjournal.h>

namespace {

const QString Account = QStringLiteral("postgres");

} // namespace

DatabaseServer::DatabaseServer(const QString& folder)
    : m_folder(folder)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

DatabaseServer::~DatabaseServer()
{
    Stop();
}

QString DatabaseServer::programPath(const QString& name)
{
    QStringList folders;
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    const QStringList names = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& version : names) {
        folders.append(versions.filePath(version + QStringLiteral("/bin")));
    }
    const QString found = QStandardPaths::findExecutable(name, folders);
    return found.isEmpty() ? QStandardPaths::findExecutable(name) : found;
}

QStringList DatabaseServer::asUser(const QStringList& command)
{
    return ::geteuid() != 0 ? command
                            : QStringList {QStringLiteral("setpriv"), QStringLiteral("--reuid=") + Account,
                                           QStringLiteral("--regid=") + Account, QStringLiteral("--clear-groups")}
            + command;
}

QString DatabaseServer::Missing()
{
    QString message;
    ReportJournal().Open(QStringLiteral("postgresql:///nowhere?host=/nowhere"), &message);
    if (message.contains(QStringLiteral("QPSQL"))) {
        return message;
    }
    if (programPath(QStringLiteral("initdb")).isEmpty() || programPath(QStringLiteral("postgres")).isEmpty()) {
        return QStringLiteral("PostgreSQL is not installed.");
    }
    const QStringList trial = asUser({QStringLiteral("true")});
    return QProcess::execute(trial.front(), trial.mid(1)) == 0
        ? QString()
        : QStringLiteral("There is no user whom the server may run as.");
}

bool DatabaseServer::runAsUser(const QStringList& command, const QByteArray& input)
{
    const QStringList all = asUser(command);
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(all.front(), all.mid(1));
    process.write(input);
    process.closeWriteChannel();
    return process.waitForFinished(120000) && process.exitCode() == 0;
}

bool DatabaseServer::giveFolder() const
{
    return ::geteuid() != 0 || QProcess::execute(QStringLiteral("chown"), {Account, m_folder}) == 0;
}

bool DatabaseServer::Make()
{
    return giveFolder()
        && runAsUser({programPath(QStringLiteral("initdb")), QStringLiteral("--no-sync"),
                      QStringLiteral("--auth=trust"), QStringLiteral("--username=station"),
                      QStringLiteral("--encoding=UTF8"), QStringLiteral("--no-locale"),
                      QStringLiteral("--pgdata=") + m_folder + QStringLiteral("/data")});
}

bool DatabaseServer::Empty()
{
    Stop();
    return runAsUser({programPath(QStringLiteral("postgres")), QStringLiteral("--single"), QStringLiteral("-F"),
                      QStringLiteral("-c"), QStringLiteral("log_checkpoints=off"), QStringLiteral("-D"),
                      m_folder + QStringLiteral("/data"), QStringLiteral("postgres")},
                     "DROP TABLE IF EXISTS reports\n");
}

/// What was left of one that was killed may stand in the way for a moment. Nothing is cut off from power here: what a
/// killed server has written is there without waiting for the disk.
bool DatabaseServer::Start()
{
    const QStringList command
        = asUser({programPath(QStringLiteral("postgres")), QStringLiteral("-D"), m_folder + QStringLiteral("/data"),
                  QStringLiteral("-k"), m_folder, QStringLiteral("-c"), QStringLiteral("listen_addresses="),
                  QStringLiteral("-F")});
    QElapsedTimer timer;
    for (timer.start(); !timer.hasExpired(60000);) {
        if (m_process.state() == QProcess::NotRunning) {
            m_process.start(command.front(), command.mid(1));
        }
        m_process.waitForReadyRead(100);
        ReportJournal journal;
        if (journal.Open(Url())) {
            return true;
        }
    }
    qWarning("%s", m_process.readAll().constData());
    return false;
}

void DatabaseServer::Stop()
{
    if (m_process.state() != QProcess::NotRunning) {
        GoOn();
        ::kill(pid_t(m_process.processId()), SIGINT);
        m_process.waitForFinished(60000);
    }
}

void DatabaseServer::Kill()
{
    m_process.kill();
    m_process.waitForFinished(60000);
}

void DatabaseServer::Halt()
{
    ::kill(pid_t(m_process.processId()), SIGSTOP);
}

void DatabaseServer::GoOn()
{
    ::kill(pid_t(m_process.processId()), SIGCONT);
}

QString DatabaseServer::Url() const
{
    return QStringLiteral("postgresql://station@/postgres?host=") + m_folder;
}
