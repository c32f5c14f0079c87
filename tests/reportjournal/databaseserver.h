#ifndef XMLHELPER_TESTS_DATABASESERVER_H
#define XMLHELPER_TESTS_DATABASESERVER_H

#include <QProcess>
#include <QString>
#include <QStringList>

/// A PostgreSQL server of its own in a folder, without a network: programs reach it by a socket there. It refuses to
/// run as root, and then runs as the user whom its package made.
class DatabaseServer
{
public:
    explicit DatabaseServer(const QString& folder);
    ~DatabaseServer();

    /// Why there can be none here; empty when there can.
    static QString Missing();

    /// Makes an empty database in the folder.
    bool Make();
    /// Stops the server, and takes out what journals have put into the database.
    bool Empty();
    /// Starts the server, and waits until it takes connections.
    bool Start();
    /// Ends it, and with it what programs are doing, as an administrator does.
    void Stop();
    /// Kills it in the middle of everything.
    void Kill();
    /// Lets it take connections and answer none.
    void Halt();
    void GoOn();

    /// Where the journal is.
    QString Url() const;

private:
    static QString programPath(const QString& name);
    static QStringList asUser(const QStringList& command);
    static bool runAsUser(const QStringList& command, const QByteArray& input = {});
    bool giveFolder() const;

    const QString m_folder;
    QProcess m_process;
};

#endif
