#ifndef MEASUREMENTPANEL_PRESSWATCH_H
#define MEASUREMENTPANEL_PRESSWATCH_H

#include <QHash>
#include <QObject>

#include "commentdialogs.h"
#include "press.h"
#include "sessionlog.h"

class VCReporting;

/// Follows each press of the report button to its end and says what became of it.
///
/// The report widget says whether it has read the schema, and no more: neither the file's name, nor whether it is
/// written. So this object looks for itself. It notes the time at which a press began and ended, which gives the names
/// that the file can have; looks whether the file is there and whole, at once or when the comment dialog of the press
/// has been answered; and where it is not, finds out why.
class PressWatch : public QObject
{
    Q_OBJECT

public:
    explicit PressWatch(QObject* parent = nullptr);
    ~PressWatch() override;

    /// Follows the presses of this widget, which must live no longer than this object.
    /// @param reporting  not owned; to be given before anybody else listens to it
    /// @param schema     the whole path, and of the directory too
    void Follow(VCReporting& reporting, const QString& schema, const QString& directory);
    /// The widget was given another schema.
    void SetSchema(const QString& schema) { m_sSchema = schema; }

    SessionLog& GetLog() { return m_log; }
    CommentDialogs& GetDialogs() { return m_dialogs; }

    /// Shows the comment dialog of a press again, which then waits again.
    void Reopen(const Press& press);

Q_SIGNALS:
    /// A report is about to be made. @param number  of the press
    void Began(int number);
    /// What became of a press; twice and more for those with a comment dialog.
    void Judged(const Press& press);

private:
    Q_DISABLE_COPY(PressWatch)

    enum class Outcome { NotMade, SchemaNotUnderstood, Made };

    struct Moments
    {
        qint64 first = 0;
        qint64 last = 0;
    };

    void begin();
    void end();
    void finish(QWidget* dialog);
    void judge(Press press);
    void judgeReport(Press& press) const;
    static void findReason(Press& press, Press::State otherwise);
    Press::State faultOfSchema(Press& press) const;
    void put(const Press& press);

    QString m_sSchema;
    QString m_sDirectory;
    CommentDialogs m_dialogs;
    SessionLog m_log;
    QHash<int, Moments> m_moments; ///< of each press, by its number
    QHash<int, Outcome> m_outcomes;
    int m_iPresses = 0;
};

#endif
