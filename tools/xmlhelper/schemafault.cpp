#include "schemafault_p.h"

#include <algorithm>

#include "limits_p.h"

namespace {

/// A trace ends with more emphasis.
QString calmSentence(QString trace)
{
    return trace.endsWith(QLatin1Char('!')) ? trace.replace(trace.size() - 1, 1, QLatin1Char('.')) : trace;
}

} // namespace

QString SchemaFault::GetReason() const
{
    const auto told = std::find_if(m_sentences.begin(), m_sentences.end(),
                                   [](const QString& sentence) { return !sentence.isEmpty(); });
    return told == m_sentences.end() ? QString() : *told;
}

void SchemaFault::FileBegun(int, const QString&, const QString& opened, const SchemaTag&, bool)
{
    m_files.push_back(opened);
}

void SchemaFault::FileSkipped(const QString&, const QString& opened, const SchemaTag&, bool isCyclic)
{
    if (!isCyclic) {
        tell(IncludedFile, tr("%1 is included by too many files in a row.").arg(opened));
    }
}

void SchemaFault::FileMissing(int file)
{
    tell(file == 0 ? EndOfReading : IncludedFile, tr("%1 cannot be opened.").arg(m_files[std::size_t(file)]));
}

void SchemaFault::FileMalformed(int file, const QString& fault, int line)
{
    tell(file == 0 ? EndOfReading : IncludedFile,
         tr("%1 is not well-formed in line %2: %3.").arg(m_files[std::size_t(file)], QString::number(line), fault));
}

void SchemaFault::GlobalLeftOut(const QString& name, const SchemaTag&)
{
    tell(LeftOut, tr("No root is left, since XML does not allow the name '%1'.").arg(name));
}

void SchemaFault::NameRefused(const QString& name, const SchemaTag&)
{
    tell(EndOfReading, tr("XML does not allow the name '%1'.").arg(name));
}

void SchemaFault::Refused(const QString& sentence, qint64, qint64 inForce, qint64)
{
    const QString translated = QCoreApplication::translate("SchemaBudget", sentence.toUtf8().constData());
    tell(EndOfReading, calmSentence(translated.arg(inForce)));
}

void SchemaFault::ContentRefused(const QString& sentence)
{
    tell(EndOfReading, calmSentence(sentence));
}

void SchemaFault::ReferenceNeverCame(const QString& name, const SchemaTag&, const QString& waiting, bool isDefined)
{
    tell(Reference,
         isDefined ? tr("'%1' and '%2' wait for each other.").arg(waiting, name)
                   : tr("'%1', which the schema refers to, is defined nowhere.").arg(name));
}

void SchemaFault::tell(Weight weight, const QString& sentence)
{
    if (m_sentences[weight].isEmpty()) {
        m_sentences[weight] = sentence;
    }
}
