#ifndef XMLHELPERREPORTS_REPORTJOURNALDATA_P_H
#define XMLHELPERREPORTS_REPORTJOURNALDATA_P_H

#include <map>
#include <memory>
#include <set>

#include <QMap>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>

#include "folderintake_p.h"
#include "journalsender_p.h"
#include "journalstore_p.h"
#include "reportcontent_p.h"
#include "reportsupervisor.h"

/// The absolute name of a file, as entries have it. Links are not followed.
QString journalPathOf(const QString& fileName);

/// The name that entries have as their station when they are made here.
QString thisStation();

/// Whether an entry was made here: the path of another station's may lead to a file of this one, too.
bool isHere(const ReportJournal::Entry& entry);

/// What the journal does. All of it is the journal's thread's.
struct ReportJournalData
{
    /// A watched report that has changed.
    struct Update
    {
        ReportSupervisor::Verdict verdict;
        QString path;
        QString id; ///< of its entry, once that is written
        ReportContent content; ///< read when it has been checked since it was written
    };

    explicit ReportJournalData(ReportJournal& owner);
    void Close();
    bool Open(const QString& place, QString& message);
    bool OpenToRead(const QString& place, QString& message);
    bool OpenFile(QString& message);
    bool SetAside(QString& message);
    void Refill();
    QString MakeAnew();
    int TakeOver(const QString& damaged);
    void Share();

    bool OpenAgain(QString& message);
    bool Do(const std::function<bool()>& work, bool isChange = false);
    bool Change(const std::function<bool()>& change);
    bool Select(const ReportJournal::Query& query, std::vector<ReportJournal::Entry>& entries);
    void Trouble(const QString& message);

    void Watch(ReportSupervisor& reports);
    void Note(quint64 report);
    bool Flush(bool isLast);
    void Finish();
    Update UpdateOf(const ReportSupervisor::Verdict& verdict, bool isLast) const;
    QString IdOf(const Update& update);
    QString FindOneToGoOnWith(const Update& update);
    bool Write(Update& update);
    void TakeContent(StoredEntry& entry, const Update& update) const;
    void Forget(const Update& update);
    int TakeFound(QStringList& files);
    bool ReadUnknown(const QStringList& files, std::vector<StoredEntry>& entries, QStringList& unreadable);

    ReportJournal& journal;
    JournalStore store;
    QString file; ///< empty for a journal that can only be read
    QUrl sharedPlace; ///< empty for none
    QPointer<ReportSupervisor> supervisor;
    QStringList valueNames;
    QMap<QString, QString> givenValues; ///< for the next report
    std::map<quint64, QMap<QString, QString>> valuesOfBegun; ///< not written yet
    QSet<QString> unwritten; ///< ids of watched reports that could not be written yet
    std::map<quint64, ReportSupervisor::Verdict> changed; ///< as it was told last: the supervisor may forget it
    std::set<quint64> unread; ///< written, and not read since
    bool isFlushing = false; ///< somebody who is told may run an event loop
    QTimer flushTimer;
    FolderIntake intake;
    std::unique_ptr<JournalSender> sender;
    QString lastTrouble;
};

#endif
