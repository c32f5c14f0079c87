#ifndef XMLHELPERREPORTS_JOURNALSENDER_P_H
#define XMLHELPERREPORTS_JOURNALSENDER_P_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <QString>
#include <QUrl>

#include "retrypace_p.h"

class JournalStore;

/// Sends what is not sent of a journal to a shared database, in a thread of its own, as soon as it is woken, and again
/// and again while that fails. What other processes write into the journal is looked for in pauses.
///
/// An entry counts as sent when the shared database has it for sure. Where a process ends in between, it is sent again,
/// and is there already: the database keeps one of each id, the newest version.
class JournalSender
{
public:
    /// Entries in one go.
    static constexpr int EntriesInOneGo = 100;
    /// Milliseconds until it looks for entries of others.
    static constexpr int Pause = 60000;

    /// @param tell  hears from the thread how many are left, and why
    JournalSender(const QString& file, const QUrl& url, std::function<void(int unsent, const QString& fault)> tell,
                  int pause = Pause);
    /// Waits until the thread has ended, at most as long as the database may take for an answer.
    ~JournalSender();

    /// There is something to send.
    void Wake();

private:
    Q_DISABLE_COPY(JournalSender)

    void work();
    QString sendAll(JournalStore& journal, JournalStore& shared);
    bool isEnding();
    bool wait(bool isWell);

    const QString m_file;
    const QUrl m_url;
    const std::function<void(int, const QString&)> m_tell;
    const std::chrono::milliseconds m_pause;
    RetryPace m_pace;
    std::mutex m_mutex;
    std::condition_variable m_woken;
    bool m_isWoken = false;
    bool m_isEnding = false;
    std::thread m_thread;
};

#endif
