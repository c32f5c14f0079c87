#ifndef SCHEMADOCTOR_SCHEMAWATCHER_H
#define SCHEMADOCTOR_SCHEMAWATCHER_H

#include <map>
#include <utility>

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace schemadoctor {

/// Tells when one of several files is written, replaced by another one, gone or back.
///
/// Editors write a file in pieces, or another one that takes its place; so the files are looked at a moment later, and
/// folders are watched with them, of which a missing one is stood for by what holds it.
class SchemaWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SchemaWatcher(QObject* parent = nullptr);

    /// Watches these files from now on, in place of others. They need not be there.
    /// @param since  when they were begun to be read: what was written later counts as a change
    void Watch(const QStringList& files, const QDateTime& since);

Q_SIGNALS:
    /// Once for all that has changed.
    void Changed();

private:
    /// When a file was written, and its size; -1 for one that is not there.
    using Look = std::pair<QDateTime, qint64>;
    static Look lookAt(const QString& file);

    void watchPaths();
    void compare();

    QFileSystemWatcher m_watcher;
    QTimer m_moment;
    std::map<QString, Look> m_looks; ///< by file
};

} // namespace schemadoctor

#endif
