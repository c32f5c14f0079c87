#ifndef XMLHELPER_REPORTNEWS_H
#define XMLHELPER_REPORTNEWS_H

#include <QByteArray>
#include <QDialog>
#include <QObject>
#include <QString>

#include <xmlhelper/xmlhelperexport.h>

/// Tells what becomes of every report of the process, whoever makes it: a button, a slot, or a builder by itself.
///
/// Reports are told apart by a number that is given once in a process, since paths repeat. Begun() comes first, then
/// SchemaRead(). A report with a comment goes on with CommentAsked(); each answer that writes ends in Written() or
/// NotWritten(), and after either another answer may follow. Nothing more comes when the dialog is closed with Cancel,
/// or goes unanswered. A report without a comment ends in one of the two, and every report whose observer throws in
/// NotWritten(), before the exception goes on. Of a report that is refused at once, because its builder has no observer
/// or has made one already, nothing is told.
///
/// Signals are sent from the thread that makes the report, while it is made, so that the next ones wait for those who
/// hear them. A receiver may delete the button, and make a report with a builder of its own; a press of the button is
/// refused while it makes one. In Written() and NotWritten() it may delete a builder that is its own, or the dialog
/// alone; in CommentAsked() too, if no other receiver comes behind it. In Begun() and SchemaRead() it must not, since
/// the builder goes on. A receiver in another thread gets the signals later, when that dialog may be gone.
///
/// What only a receiver needs, the reason of SchemaRead() and the content of NotWritten(), is made only when somebody
/// is connected to that signal. Where reports are made in several threads, receivers connect before that begins.
class XMLHELPER_EXPORT ReportNews final : public QObject
{
    Q_OBJECT

public:
    /// @return the one of the process. It lives until the process ends, or unloads the library
    static ReportNews& Instance();

Q_SIGNALS:
    /// A report is begun.
    /// @param report      its number, from 1
    /// @param reportPath  the file that shall be written, as it was given
    /// @param schemaPath  the schema, as it was given
    void Begun(quint64 report, const QString& reportPath, const QString& schemaPath);

    /// The schema has been read. One that is not understood gives a report all the same, of what was read of it.
    /// @param report        its number
    /// @param isUnderstood  whether it was understood
    /// @param reason        why not, a sentence in the application's language; empty when it was
    void SchemaRead(quint64 report, bool isUnderstood, const QString& reason);

    /// A dialog that asks for the comment is shown; nothing is written before the answer.
    /// @param report  its number
    /// @param dialog  the dialog, which belongs to the builder. Before its first answer the property "unsavedReport", a
    ///                QByteArray, is what it would write now, with the comment that has been typed: for who shows it,
    ///                so that it is empty when that is longer than 131,072 bytes
    void CommentAsked(quint64 report, QDialog* dialog);

    /// The file is there, whole, under its name.
    /// @param report    its number
    /// @param fileName  the file as it was opened, back slashes replaced where the platform needs it
    /// @param size      the bytes that were written
    void Written(quint64 report, const QString& fileName, qint64 size);

    /// The file could not be written; an earlier one of that name is as it was, unless it had to be written in place.
    /// @param report   its number
    /// @param reason   what the operating system or a limit says, a sentence without its stop
    /// @param content  what would have been written, the comment included; empty when it is beyond the limits or memory
    ///                 is short, when the schema gave nothing, or when an observer has thrown
    void NotWritten(quint64 report, const QString& reason, const QByteArray& content);

private:
    friend class ReportTeller;

    ReportNews();
    ~ReportNews() override;
};

#endif
