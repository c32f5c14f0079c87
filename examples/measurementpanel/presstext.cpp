#include "presstext.h"

#include <QDir>
#include <QFileInfo>

#include "press.h"

QString PressText::Verdict(const Press& press)
{
    switch (press.state) {
    case Press::State::WaitingForComment:
        return tr("waiting for comment");
    case Press::State::Written:
        return tr("written");
    case Press::State::Doubtful:
        return tr("written, breaks its schema");
    case Press::State::Discarded:
        return tr("not saved: cancelled");
    case Press::State::NotASchema:
        return tr("not made: no schema");
    case Press::State::SchemaGone:
        return tr("not in order: schema gone");
    case Press::State::SchemaNotUnderstood:
        return tr("not in order: schema not understood");
    case Press::State::SeveralRoots:
        return tr("not in order: several roots");
    case Press::State::DirectoryGone:
        return tr("not saved: directory gone");
    case Press::State::FileInPlaceOfDirectory:
        return tr("not saved: no directory");
    case Press::State::DirectoryNotWritable:
        return tr("not saved: directory not writable");
    case Press::State::DiskFull:
        return tr("not saved: disk full");
    case Press::State::Empty:
        return tr("not saved: file empty");
    case Press::State::Malformed:
        return tr("not saved: file incomplete");
    case Press::State::NotWritten:
        return tr("not saved");
    }
    return {};
}

QString PressText::Sentence(const Press& press)
{
    switch (press.state) {
    case Press::State::WaitingForComment:
        return tr("Report %1 is written when its comment dialog is answered.").arg(press.number);
    case Press::State::Written:
        return tr("Report written: %1").arg(QFileInfo(press.path).fileName());
    case Press::State::Doubtful:
        return tr("Report %1 is written, but it breaks a rule of its schema.").arg(press.number);
    case Press::State::Discarded:
        return tr("Report %1 is not saved: its comment dialog was closed with Cancel.").arg(press.number);
    case Press::State::NotASchema:
        return tr("Report %1 was not made: the name of the schema does not end in \".xsd\".").arg(press.number);
    case Press::State::SchemaGone:
        return tr("Report %1 is not in order: the schema could not be read, it is gone.").arg(press.number);
    case Press::State::SchemaNotUnderstood:
        return tr("Report %1 is not in order: the schema could not be read.").arg(press.number);
    case Press::State::SeveralRoots:
        return tr("Report %1 is not in order: its schema lays out several roots, so it is no XML document.")
            .arg(press.number);
    case Press::State::DirectoryGone:
        return tr("Report %1 could not be written: the report directory is gone.").arg(press.number);
    case Press::State::FileInPlaceOfDirectory:
        return tr("Report %1 could not be written: there is a file in place of the report directory.")
            .arg(press.number);
    case Press::State::DirectoryNotWritable:
        return tr("Report %1 could not be written: the report directory is not writable.").arg(press.number);
    case Press::State::DiskFull:
        return tr("Report %1 could not be written in full: the disk is full.").arg(press.number);
    case Press::State::Empty:
        return tr("Report %1 is not saved: its file is empty.").arg(press.number);
    case Press::State::Malformed:
        return tr("Report %1 is not saved in full: its file breaks off in line %2, column %3.")
            .arg(press.number)
            .arg(press.line)
            .arg(press.column);
    case Press::State::NotWritten:
        return tr("Report %1 could not be written: its file is not there.").arg(press.number);
    }
    return {};
}

namespace {

/// A measurement that is over can be saved only from its comment dialog, which still has it.
QString tryAgain(const Press& press)
{
    return press.dialog ? PressText::tr("Then open the comment dialog again and save: the values are still there.")
                        : PressText::tr("Then press the button again.");
}

QString sentences(const QString& first, const QString& second)
{
    return first.isEmpty() ? second : first + QLatin1Char(' ') + second;
}

} // namespace

QString PressText::Advice(const Press& press)
{
    const QString directory = QDir::toNativeSeparators(press.directory);
    const QString schema = QDir::toNativeSeparators(press.schema);
    switch (press.state) {
    case Press::State::WaitingForComment:
        return tr("Type the comment and press Ctrl+Enter. Nothing is on the disk before that.");
    case Press::State::Written:
        return press.isChecked ? tr("The file is there, well-formed, and keeps to its schema.")
                               : tr("The file is there, not empty and well-formed.");
    case Press::State::Doubtful:
        return sentences(press.finding, tr("Show the file to whoever keeps the schema."));
    case Press::State::Discarded:
        return tr("Open the comment dialog again to save it: the values are still there.");
    case Press::State::NotASchema:
        return tr("Choose a schema in the menu Settings; now it is %1.").arg(schema) + QLatin1Char(' ')
            + tr("Then press the button again.");
    case Press::State::SchemaGone:
        return tr("Bring the schema %1 back, or choose another one in the menu Settings. Then press the button again.")
            .arg(schema);
    case Press::State::SchemaNotUnderstood:
    case Press::State::SeveralRoots:
        return sentences(press.finding,
                         tr("Have the schema %1 mended, or choose another one in the menu Settings. "
                            "Then press the button again; what this press has written is no report.")
                             .arg(schema));
    case Press::State::DirectoryGone:
        return tr("Make the directory %1 again.").arg(directory) + QLatin1Char(' ') + tryAgain(press);
    case Press::State::FileInPlaceOfDirectory:
        return tr("Move the file %1 away and make a directory of that name.").arg(directory) + QLatin1Char(' ')
            + tryAgain(press);
    case Press::State::DirectoryNotWritable:
        return tr("Have the right to write given to you in %1.").arg(directory) + QLatin1Char(' ') + tryAgain(press);
    case Press::State::DiskFull:
        // The library takes a file back that it could not write whole, if the disk lets it.
        return (press.path.isEmpty() ? tr("Make room on the disk of %1.")
                                     : tr("Make room on the disk of %1, and delete the incomplete file."))
                   .arg(directory)
            + QLatin1Char(' ') + tryAgain(press);
    case Press::State::Empty:
    case Press::State::Malformed:
    case Press::State::NotWritten:
        return tr("Have the disk of %1 looked at.").arg(directory) + QLatin1Char(' ') + tryAgain(press);
    }
    return {};
}
