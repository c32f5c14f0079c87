#include "station.h"

#include <QDirIterator>
#include <QFile>

#include <xmlhelper/reportnews.h>

Station::Station()
{
    Restart();
}

Station::~Station() = default;

void Station::Restart()
{
    m_pSupervisor.reset();
    m_pSupervisor = std::make_unique<ReportSupervisor>();
    m_pSupervisor->SetEmergencyFolder(EmergencyFolder());
}

QStringList Station::Copies() const
{
    QStringList files;
    QDirIterator entries(EmergencyFolder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        if (entries.fileName() != QLatin1String("owner.lock")) {
            files.append(file);
        }
    }
    files.sort();
    return files;
}

quint64 Station::Begin(const QString& path) const
{
    static quint64 lastReport = 0;
    const quint64 report = ++lastReport;
    Q_EMIT ReportNews::Instance().Begun(report, path, QStringLiteral("survey.xsd"));
    Q_EMIT ReportNews::Instance().SchemaRead(report, true, QString());
    return report;
}

void Station::Write(quint64 report, const QString& path, const QByteArray& content) const
{
    writeFile(path, content);
    Q_EMIT ReportNews::Instance().Written(report, path, content.size());
}

void Station::Fail(quint64 report, const QByteArray& content) const
{
    Q_EMIT ReportNews::Instance().NotWritten(report, QStringLiteral("no space left on device"), content);
}

quint64 Station::Lose(const QString& path, const QByteArray& content) const
{
    const quint64 report = Begin(path);
    Fail(report, content);
    return report;
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written.", qPrintable(fileName));
    }
}
