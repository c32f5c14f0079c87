#ifndef MEASUREMENTPANEL_PRESS_H
#define MEASUREMENTPANEL_PRESS_H

#include <QDateTime>
#include <QPointer>
#include <QString>
#include <QWidget>

/// What is known of one press of the report button.
struct Press
{
    enum class State {
        WaitingForComment, ///< its comment dialog is open
        Written, ///< the file is there, not empty and well-formed
        Doubtful, ///< it is, but breaks a rule of its schema
        Discarded, ///< its comment dialog was closed with Cancel
        NotASchema, ///< the name of the schema does not end in ".xsd": nothing was made
        SchemaGone,
        SchemaNotUnderstood, ///< what was written, if anything, is no measurement report
        SeveralRoots, ///< the file is there, but the schema gave it several roots, so that it is no XML document
        DirectoryGone,
        FileInPlaceOfDirectory,
        DirectoryNotWritable,
        DiskFull, ///< or a quota used up; the file may be there in part
        Empty, ///< the file is there and empty, for no reason that can be found
        Malformed, ///< the file is there and breaks off, for no reason that can be found
        NotWritten, ///< the file is not there, for no reason that can be found
    };

    /// Whether a report in order is on the disk.
    bool IsSaved() const { return state == State::Written || state == State::Doubtful; }
    /// Whether the press has come to its end without one.
    bool IsFailed() const { return !IsSaved() && state != State::WaitingForComment; }

    int number = 0; ///< of this session, counted from 1
    QDateTime time;
    QString schema;
    QString directory;
    State state = State::NotWritten;
    QString path; ///< of the file; empty while there is none
    qint64 line = 0; ///< where a malformed file breaks off
    qint64 column = 0;
    QString finding; ///< what a check of the report or of its schema has found first; empty: nothing, or no check
    bool isChecked = false; ///< the report was held against its schema
    QPointer<QWidget> dialog; ///< the comment dialog, also when it has been answered; null without one
};

#endif
