#include "reportwords_p.h"

#include <algorithm>
#include <array>

#include <QFileInfo>
#include <QStringList>

#include <xmlhelper/filesaving_p.h>

#include "panelcolours_p.h"

namespace {

using ReportState = ReportSupervisor::State;

constexpr int MaxNameInSentence = 40;

enum class Tone { Plain, Good, Bad, Pending };

struct StateWords
{
    ReportState state;
    const char* sign;
    Tone tone;
    const char* word;
    const char* sentence;
    const char* advice;
};

constexpr std::array<StateWords, 13> words {{
    {ReportState::Unknown, "·", Tone::Plain, QT_TRANSLATE_NOOP("ReportWords", "unknown"),
     QT_TRANSLATE_NOOP("ReportWords", "Nothing is known of report %1 any more."), ""},
    {ReportState::Making, "…", Tone::Pending, QT_TRANSLATE_NOOP("ReportWords", "being made"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is being made."), ""},
    {ReportState::Waiting, "?", Tone::Pending, QT_TRANSLATE_NOOP("ReportWords", "waits for a comment"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 waits for its comment."),
     QT_TRANSLATE_NOOP("ReportWords", "It is not on the disk before its dialog is answered.")},
    {ReportState::Written, "✓", Tone::Good, QT_TRANSLATE_NOOP("ReportWords", "written"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is written."), ""},
    {ReportState::NotWellFormed, "‼", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "damaged"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is written, but its file is damaged."),
     QT_TRANSLATE_NOOP("ReportWords", "Make the report again, and have the disk looked at.")},
    {ReportState::Invalid, "!", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "breaks its schema"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is written, but it breaks a rule of its schema."),
     QT_TRANSLATE_NOOP("ReportWords", "Show the file to whoever keeps the schema.")},
    {ReportState::Gone, "∅", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "gone"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 was written, but its file is gone."),
     QT_TRANSLATE_NOOP("ReportWords", "Bring the file back, or make the report again.")},
    {ReportState::Pending, "↻", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "not saved yet"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is not saved yet. It is tried again by itself."), ""},
    {ReportState::Blocked, "‖", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "not saved, kept"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is not saved. It is kept until you decide."),
     QT_TRANSLATE_NOOP("ReportWords", "Save it elsewhere, try again, or discard it.")},
    {ReportState::Offered, "«", Tone::Pending, QT_TRANSLATE_NOOP("ReportWords", "kept from earlier"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 could not be saved when the program ran before. It is kept."),
     QT_TRANSLATE_NOOP("ReportWords", "Try again, save it elsewhere, or discard it.")},
    {ReportState::Failed, "✗", Tone::Bad, QT_TRANSLATE_NOOP("ReportWords", "not saved"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 could not be saved, and is lost."),
     QT_TRANSLATE_NOOP("ReportWords", "Remove the cause and make the report again.")},
    {ReportState::Closed, "○", Tone::Plain, QT_TRANSLATE_NOOP("ReportWords", "closed, not saved"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is not saved: its comment dialog was closed."), ""},
    {ReportState::Discarded, "–", Tone::Plain, QT_TRANSLATE_NOOP("ReportWords", "discarded"),
     QT_TRANSLATE_NOOP("ReportWords", "Report %1 is not saved: it was discarded."), ""},
}};

/// Of one that was written without its schema: the file is there, and may lack anything, even its root.
constexpr StateWords withoutSchema {
    ReportState::Written,
    "§",
    Tone::Bad,
    QT_TRANSLATE_NOOP("ReportWords", "schema not understood"),
    QT_TRANSLATE_NOOP("ReportWords", "Report %1 is written, but its schema was not understood."),
    QT_TRANSLATE_NOOP("ReportWords", "Have the schema mended, and make the report again."),
};

/// Whether the schema is what has to be mended: the disk is not to blame for a file that a schema has spoiled.
bool isSchemaToBlame(const ReportSupervisor::Verdict& verdict)
{
    const bool isThere = verdict.state == ReportState::Written || verdict.state == ReportState::NotWellFormed;
    return isThere && !verdict.schemaFault.isEmpty();
}

const StateWords& wordsOf(const ReportSupervisor::Verdict& verdict)
{
    if (isSchemaToBlame(verdict)) {
        return withoutSchema;
    }
    const auto isIt = [&verdict](const StateWords& entry) { return entry.state == verdict.state; };
    return *std::find_if(words.begin(), words.end(), isIt);
}

/// Nothing for no words, which the translator would take for its catalogue's header.
QString translated(const char* text)
{
    return *text ? QCoreApplication::translate("ReportWords", text) : QString();
}

/// That of the state where there is one; a closed dialog says nothing more than the sentence does.
QString reasonOf(const ReportSupervisor::Verdict& verdict)
{
    if (verdict.state == ReportState::Closed) {
        return {};
    }
    const QString reason = isSchemaToBlame(verdict) ? verdict.schemaFault : verdict.reason;
    return reason.endsWith(QLatin1Char('.')) ? reason.chopped(1) : reason; // whoever's words they are
}

QString safety(const ReportSupervisor::Verdict& verdict)
{
    return verdict.isSafe ? ReportWords::tr("A copy is safe, also when the program ends.")
                          : ReportWords::tr("There is no copy of it: it would be lost if the program ended.");
}

QString checked(const ReportSupervisor::Verdict& verdict)
{
    return verdict.isChecked ? ReportWords::tr("The file is there, and no fault is known.")
                             : ReportWords::tr("The file is there, and is being checked.");
}

/// A name has no blanks to break the line at.
QString shortened(const QString& name)
{
    return name.size() <= MaxNameInSentence
        ? name
        : name.left(MaxNameInSentence / 2) + QChar(0x2026) + name.right(MaxNameInSentence / 2 - 1);
}

} // namespace

QString ReportWords::Name(const ReportSupervisor::Verdict& verdict)
{
    const QString name = QFileInfo(Path(verdict)).fileName();
    return name.isEmpty() ? tr("(without a name)") : name;
}

QString ReportWords::Sign(const ReportSupervisor::Verdict& verdict)
{
    return QString::fromUtf8(wordsOf(verdict).sign);
}

QColor ReportWords::Colour(const ReportSupervisor::Verdict& verdict, const QPalette& palette)
{
    switch (wordsOf(verdict).tone) {
    case Tone::Good:
        return goodColour(palette);
    case Tone::Bad:
        return badColour(palette);
    case Tone::Pending:
        return pendingColour(palette);
    case Tone::Plain:
        break;
    }
    return palette.color(QPalette::WindowText);
}

QString ReportWords::Word(const ReportSupervisor::Verdict& verdict)
{
    return translated(wordsOf(verdict).word);
}

QString ReportWords::Sentence(const ReportSupervisor::Verdict& verdict)
{
    return translated(wordsOf(verdict).sentence).arg(shortened(Name(verdict)));
}

QString ReportWords::Advice(const ReportSupervisor::Verdict& verdict, bool hasDialog)
{
    QStringList sentences;
    const QString reason = reasonOf(verdict);
    if (!reason.isEmpty()) {
        sentences.append(tr("Reason: %1.").arg(reason));
    } else if (verdict.state == ReportState::Written) {
        sentences.append(checked(verdict));
    }
    if (IsKept(verdict)) {
        sentences.append(safety(verdict));
    }
    if (verdict.state == ReportState::Closed && hasDialog) {
        sentences.append(tr("Its dialog can be opened again: the values are still there."));
    }
    sentences.append(translated(wordsOf(verdict).advice));
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

QString ReportWords::Kept(int count, int msToNextTry)
{
    if (count == 0) {
        return {};
    }
    const QString kept = tr("Not saved yet: %1.").arg(count);
    return msToNextTry < 0 ? kept : tr("%1 Next try in %2 s.").arg(kept).arg((msToNextTry + 999) / 1000);
}

bool ReportWords::HasFile(const ReportSupervisor::Verdict& verdict)
{
    return verdict.state == ReportState::Written || verdict.state == ReportState::NotWellFormed
        || verdict.state == ReportState::Invalid;
}

bool ReportWords::IsKept(const ReportSupervisor::Verdict& verdict)
{
    return verdict.state == ReportState::Pending || verdict.state == ReportState::Blocked
        || verdict.state == ReportState::Offered;
}

QString ReportWords::Path(const ReportSupervisor::Verdict& verdict)
{
    const QString path = verdict.fileName.isEmpty() ? verdict.reportPath : verdict.fileName;
    return path.isEmpty() ? path : QFileInfo(openableFileName(path)).absoluteFilePath();
}
