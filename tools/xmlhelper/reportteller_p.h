#ifndef XMLHELPER_REPORTTELLER_P_H
#define XMLHELPER_REPORTTELLER_P_H

#include <QtGlobal>

class CommentDialogImpl;
class QDomDocument;
class QString;
struct SavedFile;

/// Sends the news of one report. A receiver may delete whose report it is: what comes last in a function of these is
/// the signal.
class ReportTeller
{
public:
    /// Of no report: tells nothing.
    ReportTeller() = default;
    /// Of a new report, which is told.
    ReportTeller(const QString& reportPath, const QString& schemaPath);

    /// Whether somebody hears why a schema is not understood.
    bool IsSchemaAsked() const;
    void TellSchema(bool isUnderstood, const QString& reason) const;
    void TellComment(CommentDialogImpl* dialog) const;
    /// Tells that nothing becomes of the report, since an observer has thrown.
    void TellBrokenOff() const;
    /// Tells what became of the file that @p document was saved to.
    void TellFile(bool isWritten, const SavedFile& file, const QDomDocument& document) const;

private:
    quint64 m_iReport = 0;
};

#endif
