#include "reportsupervisor.h"

#include <algorithm>
#include <utility>

#include <QDir>

#include <xmlhelper/filesaving_p.h>

#include "reportsupervision_p.h"

namespace {

/// As people write it: a report of the button has back slashes everywhere.
QString pathFor(const ReportSupervisor::Verdict& verdict)
{
    return QDir::toNativeSeparators(openableFileName(verdict.reportPath));
}

} // namespace

ReportSupervisor::ReportSupervisor(QObject* parent)
    : QObject(parent)
    , m_pData(std::make_unique<ReportSupervisorData>(*this))
{
}

ReportSupervisor::~ReportSupervisor() = default;

void ReportSupervisor::SetEmergencyFolder(const QString& folder)
{
    m_pData->copies->SetFolder(folder);
}

void ReportSupervisor::SetValidator(Validator validator)
{
    m_pData->validator = std::move(validator);
}

void ReportSupervisor::SetPauses(int first, int longest)
{
    m_pData->pace.SetPauses(first, longest);
    if (m_pData->retryTimer.isActive()) {
        m_pData->retryTimer.start(m_pData->pace.Next());
    }
}

QStringList ReportSupervisor::TakeOverEarlier()
{
    QStringList faults;
    const std::vector<KeptReport> reports = m_pData->copies->TakeOver(faults);
    for (const KeptReport& kept : reports) {
        const quint64 number = m_pData->nextEarlier++;
        ReportSupervisorData::Entry& entry = m_pData->entries[number];
        entry.verdict.report = number;
        entry.verdict.reportPath = kept.reportPath;
        entry.verdict.schemaPath = kept.schemaPath;
        entry.verdict.begun = timeOf(kept.time);
        m_pData->SetKept(entry, kept);
        m_pData->SetState(entry, State::Offered, kept.reason);
    }
    m_pData->Tell();
    return faults;
}

ReportSupervisor::Verdict ReportSupervisor::GetReport(quint64 report) const
{
    m_pData->TakeNotes();
    const auto found = m_pData->entries.find(report);
    return found == m_pData->entries.end() ? Verdict() : found->second.verdict;
}

std::vector<ReportSupervisor::Verdict> ReportSupervisor::GetReports() const
{
    m_pData->TakeNotes();
    std::vector<Verdict> verdicts;
    for (const auto& [number, entry] : m_pData->entries) {
        verdicts.push_back(entry.verdict);
    }
    return verdicts;
}

std::vector<ReportSupervisor::Verdict> ReportSupervisor::GetKept() const
{
    std::vector<Verdict> verdicts = GetReports();
    const auto isNotKept = [](const Verdict& verdict) { return !isKept(verdict.state); };
    verdicts.erase(std::remove_if(verdicts.begin(), verdicts.end(), isNotKept), verdicts.end());
    return verdicts;
}

bool ReportSupervisor::TryAgain(quint64 report)
{
    ReportSupervisorData::Entry* const entry = m_pData->FindKept(report);
    bool isWritten = false;
    if (entry && !entry->place.isEmpty()) {
        m_pData->SetState(*entry, State::Pending, entry->kept.reason);
        isWritten = m_pData->TryToWrite(*entry);
    }
    m_pData->Tell();
    return isWritten;
}

bool ReportSupervisor::SaveElsewhere(quint64 report, const QString& fileName)
{
    ReportSupervisorData::Entry* const entry = m_pData->FindKept(report);
    const QByteArray content = entry ? EmergencyCopies::ContentOf(entry->kept) : QByteArray();
    const QString name = openableFileName(fileName);
    const bool isWritten = !content.isEmpty() && writeContent(name, content);
    if (isWritten) {
        m_pData->SetWritten(*entry, name, content.size());
    }
    m_pData->Tell();
    return isWritten;
}

bool ReportSupervisor::Discard(quint64 report)
{
    ReportSupervisorData::Entry* const entry = m_pData->FindKept(report);
    if (entry) {
        m_pData->SetKept(*entry, KeptReport());
        m_pData->SetState(*entry, State::Discarded, QString());
    }
    m_pData->Tell();
    return entry;
}

void ReportSupervisor::Recheck(quint64 report)
{
    if (isFile(GetReport(report).state)) {
        m_pData->unchecked.insert(report);
        m_pData->checkTimer.start(0);
    }
}

QStringList ReportSupervisor::MayQuit()
{
    m_pData->TakeNotes();
    QStringList lost;
    for (auto& [number, entry] : m_pData->entries) {
        const Verdict& verdict = entry.verdict;
        if (verdict.state == State::Making) {
            lost.append(tr("%1 is being made").arg(pathFor(verdict)));
        } else if (verdict.state == State::Waiting) {
            lost.append(tr("%1 waits for a comment").arg(pathFor(verdict)));
        } else if (isKept(verdict.state) && !m_pData->KeepSafe(entry)) {
            lost.append(tr("%1 could not be written, and no copy of it either").arg(pathFor(verdict)));
        }
    }
    m_pData->Tell();
    return lost;
}

int ReportSupervisor::MsToNextTry() const
{
    return m_pData->retryTimer.remainingTime();
}
