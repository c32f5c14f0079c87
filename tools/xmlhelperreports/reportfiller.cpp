#include "reportfiller.h"

#include <algorithm>

#include <QDomElement>
#include <QFile>
#include <QFileInfo>

#include <xmlhelper/xmlcreatereport.h>

#include "givenvalues_p.h"
#include "reportfilling_p.h"

namespace {

bool isGood(const ReportFiller::Verdict& verdict)
{
    return verdict.state == ReportFiller::State::Written || verdict.state == ReportFiller::State::LeftOut;
}

bool isGoodOrDoubtful(const ReportFiller::Verdict& verdict)
{
    return isGood(verdict) || verdict.state == ReportFiller::State::Doubtful;
}

template <typename Read>
bool addBy(const Read& read, const QByteArray& text, std::vector<GivenValue>& values, QString* fault)
{
    QString what;
    const bool isRead = read(text, values, what);
    if (fault) {
        *fault = what;
    }
    return isRead;
}

} // namespace

struct ReportFillerData
{
    std::vector<GivenValue> values;
    ReportFiller::Source source;
    ReportFiller::Journal journal;
    ReportFiller::Validator validator;
    std::vector<ReportFiller::Verdict> verdicts;
    QStringList faults;
    bool isSchemaRead = false;
};

ReportFiller::ReportFiller()
    : m_pData(std::make_unique<ReportFillerData>())
{
}

ReportFiller::~ReportFiller() = default;

void ReportFiller::Add(const QString& name, const QVariant& value)
{
    if (value.isValid()) {
        m_pData->values.push_back({name, textOf(value), 0, -1});
    }
}

bool ReportFiller::AddJson(const QByteArray& json, QString* fault)
{
    return addBy(readJson, json, m_pData->values, fault);
}

bool ReportFiller::AddCsv(const QByteArray& csv, QString* fault)
{
    return addBy(readCsv, csv, m_pData->values, fault);
}

bool ReportFiller::AddText(const QByteArray& text, QString* fault)
{
    return addBy(readLines, text, m_pData->values, fault);
}

bool ReportFiller::AddFile(const QString& fileName, QString* fault)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (fault) {
            *fault = QStringLiteral("%1: The file cannot be opened").arg(fileName);
        }
        return false;
    }
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const QByteArray text = file.readAll();
    const bool isAdded = suffix == QLatin1String("json") ? AddJson(text, fault)
        : suffix == QLatin1String("csv")                 ? AddCsv(text, fault)
                                                         : AddText(text, fault);
    if (!isAdded && fault) {
        *fault = QStringLiteral("%1:%2").arg(fileName, *fault);
    }
    return isAdded;
}

void ReportFiller::SetSource(Source source)
{
    m_pData->source = std::move(source);
}

void ReportFiller::SetJournal(Journal journal)
{
    m_pData->journal = std::move(journal);
}

void ReportFiller::SetValidator(Validator validator)
{
    m_pData->validator = std::move(validator);
}

bool ReportFiller::Fill(const QString& schema, const QString& report)
{
    ReportFilling filling(m_pData->values, m_pData->source, m_pData->journal);
    const bool isMade = filling.Fill(schema, report);
    m_pData->isSchemaRead = filling.IsSchemaRead();
    m_pData->verdicts = filling.TakeVerdicts();
    m_pData->faults = filling.TakeComplaints();
    std::vector<Verdict>& verdicts = m_pData->verdicts;
    const auto isWell = m_pData->validator ? isGoodOrDoubtful : isGood;
    const bool isComplete = isMade && std::all_of(verdicts.begin(), verdicts.end(), isWell);
    if (!isComplete || !m_pData->validator) {
        return isComplete;
    }
    const QStringList sentences = m_pData->validator(schema, filling.WrittenFile());
    for (const QString& sentence : sentences) {
        verdicts.push_back({State::Invalid, QString(), QString(), sentence});
    }
    for (Verdict& verdict : verdicts) {
        if (sentences.isEmpty() && verdict.state == State::Doubtful) { // The validator knows what the builder does not.
            verdict.state = State::Written;
            verdict.reason.clear();
        }
    }
    return sentences.isEmpty();
}

bool ReportFiller::IsSchemaRead() const
{
    return m_pData->isSchemaRead;
}

const std::vector<ReportFiller::Verdict>& ReportFiller::GetVerdicts() const
{
    return m_pData->verdicts;
}

QStringList ReportFiller::Complaints() const
{
    QStringList complaints = m_pData->faults;
    for (const Verdict& verdict : m_pData->verdicts) {
        if (!isGood(verdict)) {
            const QString what
                = verdict.value.isEmpty() ? verdict.path : verdict.path + QLatin1Char('=') + verdict.value;
            complaints.append(what.isEmpty() ? verdict.reason : QStringLiteral("%1: %2").arg(what, verdict.reason));
        }
    }
    return complaints;
}

/// Whether the schema lets the element occur so often where it stands, 0 times too.
bool ReportFiller::isCountAllowed(XmlCreateReport& builder, QDomElement element, int count)
{
    return builder.CheckOccursMap(element.tagName(), element.tagName(), count, &element);
}

/// All that stands in a choice: names, and numbers in the order of reading.
QMultiHash<QString, int> ReportFiller::alternativesOf(const XmlCreateReport& builder)
{
    QMultiHash<QString, int> alternatives;
    for (const auto& [number, name] : builder.m_choices) {
        alternatives.insert(name, number);
    }
    return alternatives;
}

/// Lets @p put bring the written file to where the report goes.
bool ReportFiller::makeAside(XmlCreateReport& builder, const QString& schema, const QString& report,
                             const QString& writtenFile, const std::function<bool(SavedFile& file)>& put)
{
    return builder.makeReportAside(schema, report, writtenFile, put);
}

/// Lets a builder lay out a schema without a report. Null when the schema is not understood.
const QDomDocument* ReportFiller::layOut(XmlCreateReport& builder, const QString& schema, SchemaReadingLog& log)
{
    builder.createSchemaHandler(schema);
    return builder.layOut(schema, &log) ? builder.m_pDocument : nullptr;
}

/// Gives back what a builder holds for good otherwise.
void ReportFiller::release(XmlCreateReport& builder)
{
    builder.releaseReport();
}
