#ifndef XMLHELPER_TESTS_OPENWATCH_H
#define XMLHELPER_TESTS_OPENWATCH_H

#include <QString>

/// Tells whether a file is opened or read while the watch lives. Only Linux can tell.
class OpenWatch
{
public:
    explicit OpenWatch(const QString& fileName);
    ~OpenWatch();

    /// Whether the watch sees anything at all.
    bool IsWatching() const { return m_iWatch >= 0; }
    /// Whether the file has been opened or read since the last question.
    bool HasBeenOpened();

private:
    Q_DISABLE_COPY(OpenWatch)

    int m_iEvents;
    int m_iWatch;
};

#endif
