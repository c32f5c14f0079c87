#include "reportids_p.h"

namespace {

/// What the ids of found files are made from.
const QUuid FoundFiles(0x3d1f5a52, 0x7c8e, 0x4f0b, 0x9b, 0x1d, 0x52, 0x6a, 0x0e, 0x77, 0xc4, 0x31);

QString idFrom(const QUuid& space, const QString& name)
{
    return QUuid::createUuidV5(space, name).toString(QUuid::WithoutBraces);
}

/// What tells a report from all others of the process. Each supervisor numbers those of earlier processes by itself.
QString nameOf(const ReportSupervisor::Verdict& report)
{
    const QString number = QString::number(report.report);
    return report.report < ReportSupervisor::FirstEarlier
        ? number
        : QStringLiteral("%1 %2 %3").arg(number, report.begun.toString(Qt::ISODateWithMs), report.reportPath);
}

} // namespace

ReportIds& ReportIds::Instance()
{
    static ReportIds ids;
    return ids;
}

QString ReportIds::Make(const ReportSupervisor::Verdict& report) const
{
    return idFrom(m_process, nameOf(report));
}

QString ReportIds::Find(const ReportSupervisor::Verdict& report)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_earlier.find(nameOf(report));
    return found == m_earlier.end() ? QString() : found->second;
}

void ReportIds::Set(const ReportSupervisor::Verdict& report, const QString& id)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_earlier[nameOf(report)] = id;
}

QString ReportIds::OfFound(const QString& station, const QString& path)
{
    return idFrom(FoundFiles, station + QLatin1Char(':') + path);
}
