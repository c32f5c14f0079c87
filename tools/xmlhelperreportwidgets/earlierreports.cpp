#include "earlierreports_p.h"

#include <algorithm>
#include <utility>

#include <QDir>

#include "reportwords_p.h"

#ifdef XMLHELPERREPORTWIDGETS_HAS_JOURNAL
#include <QFileInfo>
#include <QMetaEnum>
#include <QSet>
#include <QSysInfo>

#include <xmlhelperreports/reportjournal.h>
#endif

namespace {

/// Far beyond the numbers of this process, and below those that the supervisor gives to what it takes over.
constexpr quint64 FirstNumber = quint64(1) << 62;

/// As a journal has it.
QString fileOf(const ReportSupervisor::Verdict& verdict)
{
    const QString path = ReportWords::Path(verdict);
    return path.isEmpty() ? path : QDir::cleanPath(path);
}

} // namespace

EarlierReports::EarlierReports(const ReportSupervisor& supervisor, QObject* parent)
    : QObject(parent)
    , m_supervisor(supervisor)
{
    connect(&supervisor, &ReportSupervisor::Changed, this, &EarlierReports::dropReplaced);
}

EarlierReports::~EarlierReports() = default;

bool EarlierReports::IsNumber(quint64 report)
{
    return report >= FirstNumber && report < ReportSupervisor::FirstEarlier;
}

/// What is only being made has replaced nothing yet.
void EarlierReports::dropReplaced(quint64 report)
{
    if (m_reports.empty()) {
        return;
    }
    const ReportSupervisor::Verdict verdict = m_supervisor.GetReport(report);
    if (!ReportWords::HasFile(verdict) && !ReportWords::IsKept(verdict)) {
        return;
    }
    const QString file = fileOf(verdict);
    const auto isReplaced = [&file](const ReportSupervisor::Verdict& earlier) { return earlier.reportPath == file; };
    const auto rest = std::remove_if(m_reports.begin(), m_reports.end(), isReplaced);
    if (rest != m_reports.end()) {
        m_reports.erase(rest, m_reports.end());
        Q_EMIT Changed();
    }
}

#ifdef XMLHELPERREPORTWIDGETS_HAS_JOURNAL

namespace {

/// Entries that are read at once.
constexpr int PageSize = 100;

/// Entries that are read for the list at most: what the supervisor remembers may stand before the others.
constexpr int MaxRead = ReportSupervisor::MaxFinished + PageSize;

using ReportState = ReportSupervisor::State;

/// Who was making or keeping the report has ended, or is another program: what it knew last says nothing any more.
ReportState stateOf(const QString& verdict)
{
    if (verdict == QLatin1String("Found")) {
        return ReportState::Written;
    }
    bool isKnown = false;
    const int value = QMetaEnum::fromType<ReportState>().keyToValue(verdict.toLatin1().constData(), &isKnown);
    ReportSupervisor::Verdict last;
    last.state = isKnown ? ReportState(value) : ReportState::Unknown;
    const bool isUnfinished = last.state == ReportState::Making || last.state == ReportState::Waiting;
    return isUnfinished || ReportWords::IsKept(last) ? ReportState::Unknown : last.state;
}

ReportSupervisor::Verdict verdictOf(const ReportJournal::Entry& entry)
{
    ReportSupervisor::Verdict verdict;
    verdict.report = FirstNumber + quint64(entry.number);
    verdict.reportPath = entry.path;
    verdict.schemaPath = entry.schemaPath;
    verdict.state = stateOf(entry.verdict);
    verdict.reason = verdict.state == ReportState::Unknown ? QString() : entry.reason;
    verdict.begun = entry.begun;
    if (ReportWords::HasFile(verdict) || verdict.state == ReportState::Gone) {
        verdict.fileName = entry.path;
        verdict.size = entry.size;
        verdict.isChecked = true;
    }
    return verdict;
}

ReportJournal::Query queryOf(qint64 number)
{
    ReportJournal::Query query;
    query.before = number + 1;
    query.limit = 1;
    return query;
}

/// What the journal remembers of a file, and whether that is still so.
ReportSupervisor::Verdict verdictOfNow(const ReportJournal& journal, const ReportJournal::Entry& entry)
{
    ReportSupervisor::Verdict verdict = verdictOf(entry);
    if (verdict.fileName.isEmpty()) {
        return verdict;
    }
    const std::vector<ReportJournal::Finding> findings = journal.Verify(queryOf(entry.number));
    if (!findings.empty() || !QFileInfo::exists(entry.path)) {
        verdict.state = ReportState::Gone;
        verdict.reason = findings.empty() ? QString() : findings.front().fault;
    } else if (verdict.state == ReportState::Gone) { // It has come back.
        verdict.state = ReportState::Written;
        verdict.reason.clear();
    }
    return verdict;
}

QSet<QString> filesOf(const std::vector<ReportSupervisor::Verdict>& reports)
{
    QSet<QString> files;
    for (const ReportSupervisor::Verdict& verdict : reports) {
        files.insert(fileOf(verdict));
    }
    return files;
}

/// What is known of a report already is newer than what the journal has.
ReportSupervisor::Verdict newestOf(const std::vector<ReportSupervisor::Verdict>& known,
                                   const ReportSupervisor::Verdict& verdict)
{
    const auto isIt = [&verdict](const ReportSupervisor::Verdict& one) { return one.report == verdict.report; };
    const auto found = std::find_if(known.begin(), known.end(), isIt);
    return found == known.end() ? verdict : *found;
}

bool isSameVerdict(const ReportSupervisor::Verdict& one, const ReportSupervisor::Verdict& other)
{
    return one.state == other.state && one.reason == other.reason && one.size == other.size;
}

} // namespace

void EarlierReports::SetJournal(ReportJournal* journal)
{
    if (m_pJournal) {
        m_pJournal->disconnect(this);
    }
    m_pJournal = journal;
    m_reports.clear();
    if (!journal) {
        return;
    }
    connect(journal, &QObject::destroyed, this, [this] {
        m_pJournal = nullptr;
        m_reports.clear();
        Q_EMIT Changed();
    });
    connect(journal, &ReportJournal::TakenIn, this, [this](const QString&, int added) {
        if (added > 0) {
            read();
            Q_EMIT Changed();
        }
    });
    ReportJournal::Query last;
    last.limit = 1;
    const std::vector<ReportJournal::Entry> entries = journal->Search(last);
    m_iLast = entries.empty() ? 0 : entries.front().number;
    read();
}

QString EarlierReports::IdOf(quint64 report) const
{
    if (!m_pJournal || !IsNumber(report)) {
        return QString();
    }
    const qint64 number = qint64(report - FirstNumber);
    const std::vector<ReportJournal::Entry> entries = m_pJournal->Search(queryOf(number));
    return entries.empty() || entries.front().number != number ? QString() : entries.front().id;
}

void EarlierReports::Recheck(quint64 report)
{
    const auto isIt = [report](const ReportSupervisor::Verdict& verdict) { return verdict.report == report; };
    const auto known = std::find_if(m_reports.begin(), m_reports.end(), isIt);
    if (known == m_reports.end() || !m_pJournal) {
        return;
    }
    const std::vector<ReportJournal::Entry> entries = m_pJournal->Search(queryOf(qint64(report - FirstNumber)));
    if (entries.empty() || FirstNumber + quint64(entries.front().number) != report) {
        return;
    }
    const ReportSupervisor::Verdict verdict = verdictOfNow(*m_pJournal, entries.front());
    if (!isSameVerdict(*known, verdict)) {
        *known = verdict;
        Q_EMIT Changed();
    }
}

/// Page after page. What a folder held before the journal knew it is of earlier sessions too.
void EarlierReports::read()
{
    const std::vector<ReportSupervisor::Verdict> known = std::exchange(m_reports, {});
    const QSet<QString> filesOfNow = filesOf(m_supervisor.GetReports());
    ReportJournal::Query query;
    query.limit = PageSize;
    for (int count = 0; count < MaxRead; count += PageSize) {
        const std::vector<ReportJournal::Entry> entries = m_pJournal->Search(query);
        for (const ReportJournal::Entry& entry : entries) {
            const bool isEarlier = entry.number <= m_iLast || entry.verdict == QLatin1String("Found");
            if (isEarlier && entry.station == QSysInfo::machineHostName() && !filesOfNow.contains(entry.path)
                && m_reports.size() < MaxListed) {
                m_reports.push_back(newestOf(known, verdictOf(entry)));
            }
        }
        if (int(entries.size()) < PageSize || m_reports.size() == MaxListed) {
            return;
        }
        query.before = entries.back().number;
    }
}

#else // Then nobody can make a journal.

void EarlierReports::SetJournal(ReportJournal* /*journal*/) { }

QString EarlierReports::IdOf(quint64 /*report*/) const
{
    return QString();
}

void EarlierReports::Recheck(quint64 /*report*/) { }

#endif
