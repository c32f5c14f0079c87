#include "reportjournal.h"

#include <utility>

#include <QFileInfo>
#include <QIODevice>
#include <QThread>
#include <QUrl>
#include <QUuid>

#include <arbase/vornos.h>
#include <xmlhelper/reportnews.h>

#include "reportjournaldata_p.h"
#include "reportsupervision_p.h"

namespace {

/// A row of a table as RFC 4180 has it.
QByteArray csvRow(const QStringList& cells)
{
    QStringList quoted;
    for (QString cell : cells) {
        const bool isPlain = !cell.contains(QLatin1Char('"')) && !cell.contains(QLatin1Char(','))
            && !cell.contains(QLatin1Char('\n')) && !cell.contains(QLatin1Char('\r'));
        quoted.append(isPlain ? cell
                              : QLatin1Char('"') + cell.replace(QLatin1Char('"'), QLatin1String("\"\""))
                              + QLatin1Char('"'));
    }
    return quoted.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

QStringList fixedColumns()
{
    return {QStringLiteral("Time"),    QStringLiteral("Station"), QStringLiteral("Report"), QStringLiteral("Schema"),
            QStringLiteral("Verdict"), QStringLiteral("Comment"), QStringLiteral("Label")};
}

QStringList fixedCells(const ReportJournal::Entry& entry)
{
    return {entry.begun.toString(Qt::ISODateWithMs),
            entry.station,
            entry.path,
            entry.schemaPath,
            entry.verdict,
            entry.comment,
            entry.label};
}

bool hasFileHere(const ReportJournal::Entry& entry)
{
    return !entry.hash.isEmpty() && isHere(entry);
}

/// What speaks against the file of an entry now; empty when nothing does.
QString faultOf(const ReportJournal::Entry& entry)
{
    const QFileInfo file(entry.path);
    if (!file.exists()) {
        return ReportJournal::tr("there is no such file any more");
    }
    if (file.size() != entry.size) {
        return ReportJournal::tr("the file has changed, it has %1 bytes instead of %2")
            .arg(file.size())
            .arg(entry.size);
    }
    const QByteArray hash = hashOf(entry.path);
    if (hash.isEmpty()) {
        return ReportJournal::tr("the file cannot be read");
    }
    return hash == entry.hash ? QString() : ReportJournal::tr("the file has changed");
}

} // namespace

ReportJournal::ReportJournal(QObject* parent)
    : QObject(parent)
    , m_pData(std::make_unique<ReportJournalData>(*this))
{
}

ReportJournal::~ReportJournal()
{
    m_pData->Finish();
}

bool ReportJournal::Open(const QString& place, QString* message)
{
    QString text;
    const bool isOpen = m_pData->Open(place, text);
    if (message) {
        *message = text;
    }
    return isOpen;
}

bool ReportJournal::OpenToRead(const QString& place, QString* message)
{
    QString text;
    const bool isOpen = m_pData->OpenToRead(place, text);
    if (message) {
        *message = text;
    }
    return isOpen;
}

bool ReportJournal::Share(const QUrl& url)
{
    if (m_pData->file.isEmpty() || (!url.isEmpty() && !isSharedPlace(url))) {
        return false;
    }
    m_pData->sharedPlace = url;
    m_pData->Share();
    return true;
}

int ReportJournal::Unsent() const
{
    return m_pData->file.isEmpty() || !m_pData->store.IsOpen() ? 0 : m_pData->store.CountUnsent();
}

void ReportJournal::Watch(ReportSupervisor& supervisor)
{
    connect(&supervisor, &ReportSupervisor::Changed, this, [this](quint64 report) { m_pData->Note(report); });
    const auto takeValues = [this, home = thread()](quint64 report) { // Other threads must not touch the journal.
        if (QThread::currentThread() == home && !m_pData->givenValues.isEmpty()) {
            m_pData->valuesOfBegun[report] = std::exchange(m_pData->givenValues, {});
        }
    };
    connect(&ReportNews::Instance(), &ReportNews::Begun, this, takeValues, Qt::DirectConnection);
    m_pData->Watch(supervisor);
}

void ReportJournal::SetValueNames(const QStringList& names)
{
    m_pData->valueNames = names;
}

void ReportJournal::AddValue(const QString& name, const QString& value)
{
    m_pData->givenValues.insert(name, value);
}

QString ReportJournal::Record(const Entry& entry)
{
    StoredEntry stored;
    static_cast<Entry&>(stored) = entry;
    stored.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    stored.station = thisStation();
    stored.Renew();
    if (!stored.begun.isValid()) {
        stored.begun = timeOf(VornOS::Create()->GetCurrentTime());
    }
    if (!m_pData->Change([this, &stored] { return m_pData->store.Put(stored); })) {
        return QString();
    }
    Q_EMIT Changed(stored.id);
    return stored.id;
}

void ReportJournal::TakeIn(const QString& folder)
{
    m_pData->intake.Add(journalPathOf(folder));
}

ReportJournal::Entry ReportJournal::Find(const QString& id) const
{
    Entry entry;
    m_pData->Do([this, &id, &entry] {
        entry = m_pData->store.Find(id);
        return m_pData->store.Fault().isEmpty();
    });
    return entry;
}

std::vector<ReportJournal::Entry> ReportJournal::Search(const Query& query) const
{
    std::vector<Entry> entries;
    m_pData->Select(query, entries);
    return entries;
}

bool ReportJournal::SetLabel(const QString& id, const QString& label)
{
    const auto change = [this, &id, &label] {
        StoredEntry entry = m_pData->store.Find(id);
        entry.label = label;
        entry.Renew();
        return !entry.id.isEmpty() && m_pData->store.Put(entry);
    };
    const bool isSet = m_pData->Change(change);
    if (isSet) {
        Q_EMIT Changed(id);
    }
    return isSet;
}

QStringList ReportJournal::Export(QIODevice& device, const Query& query, const QStringList& elements) const
{
    QStringList faults;
    bool isTaken = true;
    const auto write = [&device, &isTaken](const QStringList& cells) {
        const QByteArray row = csvRow(cells);
        isTaken = isTaken && device.write(row) == row.size();
    };
    write(fixedColumns() + elements);
    std::vector<Entry> entries;
    if (!m_pData->Select(query, entries)) {
        faults.append(tr("the journal cannot be read"));
    }
    for (const Entry& entry : entries) {
        const bool isToRead = hasFileHere(entry) && !elements.isEmpty();
        const ReportContent content = isToRead ? readContent(entry.path, elements) : ReportContent();
        if (isToRead && !content.isRead) {
            faults.append(tr("%1 cannot be read").arg(entry.path));
        }
        QStringList cells = fixedCells(entry);
        for (const QString& element : elements) {
            cells.append(content.isRead ? content.values.value(element) : entry.values.value(element));
        }
        write(cells);
    }
    if (!isTaken) {
        faults.append(tr("not all could be written: %1").arg(device.errorString()));
    }
    return faults;
}

std::vector<ReportJournal::Finding> ReportJournal::Verify(const Query& query) const
{
    std::vector<Finding> findings;
    const std::vector<Entry> entries = Search(query);
    for (const Entry& entry : entries) {
        const QString fault = hasFileHere(entry) ? faultOf(entry) : QString();
        if (!fault.isEmpty()) {
            findings.push_back({entry, fault});
        }
    }
    return findings;
}
