#include "filelook_p.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QFileInfo>

#include "reportwords_p.h"

namespace {

/// So long several changes count as one.
constexpr int Pause = 50;

/// So long after the last change all is looked at once more: Windows tells of a folder only when its time has changed,
/// and a change within the same tick of the file system's clock leaves that as it is.
constexpr int PauseBeforeLastLook = 500;

/// Files that are looked at before the event loop goes on.
constexpr std::size_t LooksInOneGo = 20;

bool isWritten(const ReportSupervisor::Verdict& verdict)
{
    return ReportWords::HasFile(verdict) || verdict.state == ReportSupervisor::State::Gone;
}

bool isStillTrue(const ReportSupervisor::Verdict& verdict)
{
    const QFileInfo info(verdict.fileName);
    const bool isThere = info.exists() && (!info.isFile() || info.size() == verdict.size);
    return isThere == ReportWords::HasFile(verdict);
}

} // namespace

FileLook::FileLook(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_lastLookTimer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FileLook::lookAtSome);
    connect(&m_lastLookTimer, &QTimer::timeout, this, &FileLook::Look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileLook::lookTwice);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        m_bChosenChanged = true;
        lookTwice();
    });
}

FileLook::~FileLook() = default;

void FileLook::Follow(const std::vector<ReportSupervisor::Verdict>& reports, quint64 chosen)
{
    m_written.clear();
    std::copy_if(reports.begin(), reports.end(), std::back_inserter(m_written), isWritten);
    m_chosen = chosen;
    watch();
}

void FileLook::Look()
{
    // What is under way is not begun anew: in a folder that changes all the time it would not come to its end.
    m_bLookAgain = m_next > 0;
    if (!m_timer.isActive()) {
        m_timer.start(Pause);
    }
}

void FileLook::lookTwice()
{
    Look();
    m_lastLookTimer.start(PauseBeforeLastLook);
}

void FileLook::lookAtSome()
{
    if (std::exchange(m_bChosenChanged, false)) {
        Q_EMIT Doubted(m_chosen);
        Q_EMIT ChosenChanged();
    }
    const std::size_t end = std::min(m_next + LooksInOneGo, m_written.size());
    for (; m_next < end; ++m_next) {
        if (!isStillTrue(m_written[m_next])) {
            Q_EMIT Doubted(m_written[m_next].report);
        }
    }
    if (m_next < m_written.size()) {
        m_timer.start(0);
        return;
    }
    m_next = 0;
    watch(); // what has taken the place of a file or a folder is watched only now
    if (std::exchange(m_bLookAgain, false)) {
        m_timer.start(Pause);
    }
}

/// Leaves alone what is watched already.
void FileLook::watch()
{
    QStringList wanted;
    for (const ReportSupervisor::Verdict& verdict : m_written) {
        const QFileInfo info(verdict.fileName);
        wanted.append(info.absolutePath());
        if (verdict.report == m_chosen && info.isFile()) {
            wanted.append(info.absoluteFilePath());
        }
    }
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.directories() + m_watcher.files();
    for (const QString& path : watched) {
        if (wanted.removeAll(path) == 0) {
            m_watcher.removePath(path);
        }
    }
    for (const QString& path : wanted) {
        if (QFileInfo::exists(path)) {
            m_watcher.addPath(path);
        }
    }
}
