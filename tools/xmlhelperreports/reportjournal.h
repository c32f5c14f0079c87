#ifndef XMLHELPERREPORTS_REPORTJOURNAL_H
#define XMLHELPERREPORTS_REPORTJOURNAL_H

#include <memory>
#include <vector>

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

#include <xmlhelperreports/xmlhelperreportsexport.h>

class QIODevice;
class QUrl;
class ReportSupervisor;
struct ReportJournalData;

/// Remembers every report, over sessions and programs, in an SQLite database. No widget is needed.
///
/// A program calls Open() with a file on a local disk, then Watch() with its supervisor: from then on each report of
/// the process is an entry that follows what becomes of it. TakeIn() adds the reports that lie in a folder already, and
/// those that others write there. Several programs may have one journal open at once.
///
/// Entries are ordered by their numbers in the journal, which grow whatever the clock says, and are told apart by their
/// ids, which are the same in every journal that an entry comes to.
///
/// A damaged journal is renamed to one that ends in ".damaged-" and the time, and made anew: from what can still be
/// read of it, from the reports that are watched, and from the folders that are taken in. Troubled() or Open() says so.
///
/// With Share() the entries of many stations come together in one PostgreSQL database, too. The file on the disk always
/// comes first: entries wait there while the database cannot be reached, and each arrives once. They are sent from a
/// thread of the journal, so that nobody waits for the network. A program that shall see all of them calls Open() with
/// the database's URL; such a journal can be read only, as can a file that is opened with OpenToRead().
///
/// All operations belong to the journal's own thread, which needs an event loop: what is watched is written from it,
/// never while a report is made, and tried again every second while that fails.
class XMLHELPERREPORTS_EXPORT ReportJournal final : public QObject
{
    Q_OBJECT

public:
    /// What the journal knows of a report.
    struct Entry
    {
        qint64 number = 0; ///< its place in this journal, from 1
        QString id; ///< a UUID; empty when there is no such entry
        QString station; ///< the name of the computer
        QDateTime begun; ///< UTC, by the clock of the station; of one that was found: when its file was last changed
        QString path; ///< absolute, of the file, or of what was asked for while there is none
        QString schemaPath; ///< as it was given; empty for one that was found
        QString verdict; ///< the name of a ReportSupervisor::State, such as "Written", or "Found"
        QString reason; ///< of the verdict, without its stop
        QString comment; ///< of the operator, as it is in the report
        QString label; ///< as set by SetLabel()
        QMap<QString, QString> values; ///< those that the application named
        qint64 size = -1; ///< of the file in bytes; -1 while there is none
        QByteArray hash; ///< of the file, SHA-256 in hexadecimal digits; empty while there is none
    };

    /// Which entries to look for: those that meet all that is set.
    struct Query
    {
        QString text; ///< in path, schema, reason, comment, label or values, in upper or lower case
        QString verdict; ///< the whole of it
        QString label; ///< the whole of it
        QDateTime from; ///< begun then or later
        QDateTime to; ///< begun before
        qint64 before = 0; ///< entries with lower numbers, for the next page; 0 for all
        int limit = 100; ///< at most so many, the newest first; -1 for all
    };

    /// An entry with what Verify() says of its file.
    struct Finding
    {
        Entry entry; ///< as the journal has it
        QString fault; ///< a sentence without its stop
    };

    /// @param parent  owns it; may be null
    explicit ReportJournal(QObject* parent = nullptr);

    /// Writes what is not written yet, and has the supervisor tell what it knows, see ReportSupervisor::MayQuit(). What
    /// could not be sent waits in the journal for the next process.
    ~ReportJournal() override;

    /// Opens a journal, and makes it when it is missing. One that was open before is closed. Watches and folders stay.
    /// @param place    a file, or the URL of a shared database, `postgresql://user@host:port/name?option=value`, where
    ///                 the option host may be the folder of a socket. To reach it takes some seconds at most
    /// @param message  why it cannot be opened, or that a damaged one was set aside; empty when all is well; may be
    ///                 null
    /// @return whether it is open
    bool Open(const QString& place, QString* message = nullptr);

    /// Opens a journal to read it only. One that was open before is closed. A file that is missing, damaged or
    /// something else is left as it is.
    /// @param place    as of Open()
    /// @param message  why it cannot be opened; may be null
    /// @return whether it is open
    bool OpenToRead(const QString& place, QString* message = nullptr);

    /// Sends all entries to a shared database as well, those that were there before included, from now on. Those that
    /// other processes write into the file follow within a minute.
    /// @param url  as of Open(); an empty one for none any more
    /// @return false when the journal is not open on a file by Open(), or that is no URL of PostgreSQL; whether it can
    /// be reached is told by Sent()
    bool Share(const QUrl& url);

    /// @return how many entries have changed since they were sent to the shared database, or were never
    int Unsent() const;

    /// Makes an entry of each report from now on, and follows what becomes of it.
    /// @param supervisor  lives longer than the journal, or until its last report has been told of
    void Watch(ReportSupervisor& supervisor);

    /// Has values read from each report that is written from now on and checked by the supervisor, or found.
    /// @param names  elements and attributes as in ReportFiller, such as `Emission[2]/Frequency@Unit`. What a name
    ///               means several times is put together, with semicolons; a name that is no path gives nothing
    void SetValueNames(const QStringList& names);

    /// Gives a value to the entry of the next report that is begun in this thread. One read from the report by the same
    /// name takes its place.
    /// @param name   any
    /// @param value  as text
    void AddValue(const QString& name, const QString& value);

    /// Makes an entry of a report that nobody watched.
    /// @param entry  its number, id and station do not matter; without a time, it is now
    /// @return its id; empty when it could not be written
    QString Record(const Entry& entry);

    /// Takes in the reports of a folder, files that end in .xml, and those that come later. Their names are read once,
    /// and again, some time after something has changed there; their contents only if no entry has their path. All
    /// from the event loop, a few at once: the folder may hold any number. TakenIn() follows when all are known; what
    /// cannot be read is tried again later.
    /// @param folder  may be missing, and come later
    void TakeIn(const QString& folder);

    /// @param id  of an entry
    /// @return the entry; one without id when there is none
    Entry Find(const QString& id) const;

    /// @param query  what to look for
    /// @return what meets the query, the newest first; nothing when the journal cannot be read, which Troubled() tells
    std::vector<Entry> Search(const Query& query) const;

    /// Gives an entry a label.
    /// @param id     of the entry
    /// @param label  any text; empty for none
    /// @return whether it is there and the label written
    bool SetLabel(const QString& id, const QString& label);

    /// Writes a table in CSV as RFC 4180 has it, in UTF-8: a row of names, then one for each entry that meets the
    /// query, with Time, Station, Report, Schema, Verdict, Comment, Label and the elements.
    /// @param device    open for writing
    /// @param query     which entries
    /// @param elements  as in SetValueNames(). Where a report is gone, cannot be read, or was made at another station,
    ///                  the values of the entry stand in
    /// @return a sentence for each report that could not be read, for a journal that could not, and for a device that
    /// took not all
    QStringList Export(QIODevice& device, const Query& query, const QStringList& elements) const;

    /// Looks at the files of entries: which are gone, and which have changed since. Those that were never written, or
    /// at another station, are passed over: what lies here by their path is another file.
    /// @param query  which entries
    /// @return the entries with faults; none too when the journal cannot be read, which Troubled() tells
    std::vector<Finding> Verify(const Query& query) const;

Q_SIGNALS:
    /// An entry is new or has changed, by this journal object.
    /// @param id  of the entry
    void Changed(const QString& id);

    /// Something went wrong that the operator may want to know; it is said once while it lasts.
    /// @param message  a sentence
    void Troubled(const QString& message);

    /// The names of a folder have been read, and all of its reports that can be read have entries.
    /// @param folder  as entries have it, absolute
    /// @param added   how many had none before
    void TakenIn(const QString& folder, int added);

    /// Entries were sent to the shared database, or could not be.
    /// @param unsent  how many are left; -1 when that is not known
    /// @param fault   why; empty when all is well
    void Sent(int unsent, const QString& fault);

private:
    Q_DISABLE_COPY(ReportJournal)

    std::unique_ptr<ReportJournalData> m_pData;
};

#endif
