#include "journalsender_p.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "journalstore_p.h"

namespace {

bool changeAll(JournalStore& store, const std::vector<StoredEntry>& entries,
               const std::function<bool(const StoredEntry&)>& change)
{
    return store.Change([&entries, &change] { return std::all_of(entries.begin(), entries.end(), change); });
}

} // namespace

JournalSender::JournalSender(const QString& file, const QUrl& url,
                             std::function<void(int unsent, const QString& fault)> tell, int pause)
    : m_file(file)
    , m_url(url)
    , m_tell(std::move(tell))
    , m_pause(pause)
    , m_thread([this] { work(); })
{
}

JournalSender::~JournalSender()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_woken.notify_one();
    m_thread.join();
}

void JournalSender::Wake()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWoken = true;
    }
    m_woken.notify_one();
}

void JournalSender::work()
{
    JournalStore journal;
    JournalStore shared;
    while (!isEnding()) {
        const QString fault = sendAll(journal, shared);
        if (!fault.isEmpty()) {
            shared.Close(); // A connection that was cut off does not come back.
        }
        m_tell(journal.IsOpen() ? journal.CountUnsent() : -1, fault);
        while (!wait(fault.isEmpty()) && fault.isEmpty() && journal.IsCurrent() && journal.CountUnsent() == 0) { }
    }
}

/// What went wrong; empty when all is sent.
QString JournalSender::sendAll(JournalStore& journal, JournalStore& shared)
{
    if (!journal.IsCurrent() && journal.OpenFile(m_file) != JournalStore::Outcome::Opened) {
        return journal.Fault();
    }
    std::vector<StoredEntry> entries = journal.Unsent(EntriesInOneGo);
    while (!entries.empty() && !isEnding()) {
        if (!shared.IsOpen() && !shared.OpenShared(m_url)) {
            return shared.Fault();
        }
        const auto put = [&shared](const StoredEntry& entry) { return shared.Put(entry); };
        if (!changeAll(shared, entries, put)) {
            return shared.Fault();
        }
        const auto mark = [&journal](const StoredEntry& entry) { return journal.MarkSent(entry); };
        if (!changeAll(journal, entries, mark)) {
            return journal.Fault();
        }
        entries = journal.Unsent(EntriesInOneGo);
    }
    return journal.Fault();
}

bool JournalSender::isEnding()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isEnding;
}

/// Gives whether it was woken. After a fault, news do not shorten the pause.
bool JournalSender::wait(bool isWell)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    bool isWoken = false;
    if (isWell) {
        m_pace.Restart();
        isWoken = m_woken.wait_for(lock, m_pause, [this] { return m_isWoken || m_isEnding; });
    } else {
        isWoken = m_woken.wait_for(lock, std::chrono::milliseconds(m_pace.Next()), [this] { return m_isEnding; });
    }
    m_isWoken = false;
    return isWoken;
}
