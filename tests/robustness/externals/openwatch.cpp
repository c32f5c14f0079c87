#include "openwatch.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

OpenWatch::OpenWatch(const QString& fileName)
    : m_iEvents(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , m_iWatch(inotify_add_watch(m_iEvents, QFile::encodeName(fileName).constData(), IN_OPEN | IN_ACCESS))
{
}

OpenWatch::~OpenWatch()
{
    close(m_iEvents);
}

bool OpenWatch::HasBeenOpened()
{
    char events[4096];
    bool isAnySeen = false;
    while (read(m_iEvents, events, sizeof events) > 0) {
        isAnySeen = true;
    }
    return isAnySeen;
}
