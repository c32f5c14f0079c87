#include "presswatch.h"

#include <QFileInfo>
#include <QToolButton>

#include <arbase/vornos.h>
#include <xmlhelper/vcreporting.h>

#include "findings.h"
#include "reportfile.h"
#include "storageprobe.h"

PressWatch::PressWatch(QObject* parent)
    : QObject(parent)
{
    connect(&m_dialogs, &CommentDialogs::Answered, this, &PressWatch::finish);
}

PressWatch::~PressWatch() = default;

void PressWatch::Follow(VCReporting& reporting, const QString& schema, const QString& directory)
{
    m_sSchema = schema;
    m_sDirectory = directory;
    connect(&reporting, &VCReporting::PrepareToReport, this, &PressWatch::begin);
    connect(&reporting, &VCReporting::ReportSuccessful, this, [this] { m_outcomes[m_iPresses] = Outcome::Made; });
    connect(&reporting, &VCReporting::ReportNotSuccessful, this,
            [this] { m_outcomes[m_iPresses] = Outcome::SchemaNotUnderstood; });
    // The widget has connected itself first, so this is called when it has done its work.
    connect(reporting.GetReportButton(), &QToolButton::clicked, this, &PressWatch::end);
}

void PressWatch::Reopen(const Press& press)
{
    Press waiting = press;
    waiting.state = Press::State::WaitingForComment;
    waiting.path.clear();
    CommentDialogs::Show(*press.dialog);
    put(waiting);
}

void PressWatch::begin()
{
    ++m_iPresses;
    Q_EMIT Began(m_iPresses);
    m_outcomes[m_iPresses] = Outcome::NotMade;
    m_moments[m_iPresses].first = VornOS::Create()->GetCurrentTime();
}

void PressWatch::end()
{
    m_moments[m_iPresses].last = VornOS::Create()->GetCurrentTime();
    Press press;
    press.number = m_iPresses;
    press.time = QDateTime::fromMSecsSinceEpoch(m_moments[m_iPresses].first);
    press.schema = m_sSchema;
    press.directory = m_sDirectory;
    press.dialog = m_dialogs.TakeNew();
    if (press.dialog) {
        press.state = Press::State::WaitingForComment;
        put(press);
    } else {
        judge(press);
    }
}

void PressWatch::finish(QWidget* dialog)
{
    if (const Press* const press = m_log.Find(dialog)) {
        judge(*press);
    }
}

void PressWatch::judge(Press press)
{
    press.finding.clear();
    press.path = reportMadeBetween(m_moments[press.number].first, m_moments[press.number].last, press.directory);
    switch (m_outcomes[press.number]) {
    case Outcome::NotMade:
        press.state = Press::State::NotASchema;
        break;
    case Outcome::SchemaNotUnderstood:
        press.state = faultOfSchema(press);
        break;
    case Outcome::Made:
        judgeReport(press);
        break;
    }
    put(press);
}

void PressWatch::judgeReport(Press& press) const
{
    const FileVerdict verdict = judgeFile(press.path);
    press.line = verdict.line;
    press.column = verdict.column;
    switch (verdict.kind) {
    case FileVerdict::Kind::Missing:
        findReason(press, press.dialog ? Press::State::Discarded : Press::State::NotWritten);
        break;
    case FileVerdict::Kind::Empty:
        findReason(press, Press::State::Empty);
        break;
    case FileVerdict::Kind::Malformed:
        findReason(press, Press::State::Malformed);
        break;
    case FileVerdict::Kind::SeveralRoots:
        press.state = Press::State::SeveralRoots;
        break;
    case FileVerdict::Kind::Sound:
        press.isChecked = areReportsChecked();
        press.finding = firstFindingInReport(press.path, press.schema);
        press.state = press.finding.isEmpty() ? Press::State::Written : Press::State::Doubtful;
        break;
    }
}

void PressWatch::findReason(Press& press, Press::State otherwise)
{
    switch (probeStorage(press.directory)) {
    case StorageFault::Gone:
        press.state = Press::State::DirectoryGone;
        break;
    case StorageFault::NotADirectory:
        press.state = Press::State::FileInPlaceOfDirectory;
        break;
    case StorageFault::NotWritable:
        press.state = Press::State::DirectoryNotWritable;
        break;
    case StorageFault::Full:
        press.state = Press::State::DiskFull;
        break;
    case StorageFault::None:
        press.state = otherwise;
        break;
    }
}

Press::State PressWatch::faultOfSchema(Press& press) const
{
    if (!QFileInfo::exists(press.schema)) {
        return Press::State::SchemaGone;
    }
    press.finding = firstFindingInSchema(press.schema);
    return Press::State::SchemaNotUnderstood;
}

void PressWatch::put(const Press& press)
{
    m_log.Put(press);
    Q_EMIT Judged(press);
}
