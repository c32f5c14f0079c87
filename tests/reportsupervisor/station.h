#ifndef XMLHELPER_TESTS_STATION_H
#define XMLHELPER_TESTS_STATION_H

#include <memory>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <xmlhelperreports/reportsupervisor.h>

class QDialog;

/// A program with a supervisor and an emergency folder, which tells of reports as the library does.
class Station
{
public:
    Station();
    ~Station();

    /// A supervisor as the next start has it, in place of the one before.
    void Restart();

    ReportSupervisor& Supervisor() { return *m_pSupervisor; }
    QString PathOf(const QString& name) const { return m_folder.filePath(name); }
    QString EmergencyFolder() const { return PathOf(QStringLiteral("emergency")); }

    /// The files in the emergency folder that are neither locks nor folders, with their paths.
    QStringList Copies() const;

    /// Tells that a report is begun and its schema understood. Gives its number.
    quint64 Begin(const QString& path) const;

    /// Writes a file and tells that it is the report's.
    void Write(quint64 report, const QString& path, const QByteArray& content = "<report/>") const;

    /// Tells that a report could not be written.
    void Fail(quint64 report, const QByteArray& content = "<report/>") const;

    /// Begins a report and lets it fail. Gives its number.
    quint64 Lose(const QString& path, const QByteArray& content = "<report/>") const;

    ReportSupervisor::State StateOf(quint64 report) const { return m_pSupervisor->GetReport(report).state; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ReportSupervisor> m_pSupervisor;
};

QByteArray bytesOf(const QString& fileName);
void writeFile(const QString& fileName, const QByteArray& content);

#endif
