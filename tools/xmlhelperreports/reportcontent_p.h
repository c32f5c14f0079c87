#ifndef XMLHELPERREPORTS_REPORTCONTENT_P_H
#define XMLHELPERREPORTS_REPORTCONTENT_P_H

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>

/// What the journal takes from the file of a report.
struct ReportContent
{
    bool isRead = false; ///< whether the file could be read; it need not be XML
    QDateTime time; ///< of its last change
    qint64 size = -1;
    QByteArray hash; ///< SHA-256, hexadecimal
    QString comment;
    QMap<QString, QString> values; ///< by name; those that are there
};

/// Reads a file, once for its hash and once for its values.
ReportContent readContent(const QString& fileName, const QStringList& names);

/// The hash alone; empty when the file cannot be read.
QByteArray hashOf(const QString& fileName);

#endif
