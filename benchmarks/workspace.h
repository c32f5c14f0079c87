#ifndef XMLHELPER_BENCHMARKS_WORKSPACE_H
#define XMLHELPER_BENCHMARKS_WORKSPACE_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <QTemporaryDir>

/// The folder in which the benchmarks read and write, gone with the process.
class Workspace
{
public:
    /// The path of a file of that name.
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file and gives its path. Stops the program when it cannot be written.
    QString Write(const QString& name, const QByteArray& content) const;

    /// A path that cannot be written, for work whose file does not matter.
    QString Nowhere() const { return m_folder.filePath(QStringLiteral("missing/file.xml")); }

private:
    QTemporaryDir m_folder;
};

QByteArray contentOf(const QString& path);
QDomDocument documentOf(const QByteArray& content);

/// The document as text with sorted attributes and without white space between elements, to compare by.
QString canonicalText(const QByteArray& content);
QString canonicalText(const QDomDocument& document);

/// Says that two texts differ, and where; nothing when they are the same.
QString differenceOf(const QString& library, const QString& floor);

#endif
