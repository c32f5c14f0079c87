#ifndef XMLHELPER_COMMENTDIALOGIMPL_H
#define XMLHELPER_COMMENTDIALOGIMPL_H

#include <array>
#include <memory>

#include <QByteArray>
#include <QDialog>
#include <QDomDocument>
#include <QString>

#include "reportteller_p.h"
#include "ui_commentdialog.h"

/// Shows the summary of a finished measurement report, takes the operator's comment and writes the report's file.
///
/// The report builder makes the dialog, gives it the document and the file name and calls ShowReportSummary(), which
/// shows it without blocking; several may be open at once. The file is written when the operator saves, with or without
/// a comment, or closes the dialog; Escape does what closing the window does. Only a close that is answered with
/// Cancel, or a dialog that is never answered, leaves the report unwritten.
///
/// The keyboard does everything: the focus starts in the comment, Tab goes on to "Save" and "No Comment", Ctrl+Enter
/// saves. A screen reader reads each value with its caption. When the application changes its language, an open dialog
/// changes with it. It grows where its texts need that, never beyond the screen.
///
/// The dialog belongs to the builder and is hidden, not destroyed, when it has been answered. Once its file is written
/// too, it gives back its window, all that is in it and its document, if that is its own, as soon as the event loop
/// runs again: what is left writes and shows nothing any more. Until then another answer replaces the earlier one. A
/// document that is not its own belongs to whoever made it and must outlive the dialog. Only ReportNews tells of a file
/// that cannot be written, and whoever hears of a file may delete the dialog; the next answer tries again. Characters
/// of the comment that W3C XML cannot carry are dropped, which is traced; when nothing is left, there is no comment.
class CommentDialogImpl : public QDialog, public Ui::CommentDialog
{
    Q_OBJECT
    /// What "Save" would write now, as ReportNews tells it. A signal would come before the slots, whose numbers are
    /// known.
    Q_PROPERTY(QByteArray unsavedReport READ UnsavedReport) // clazy:exclude=qproperty-without-notify

public:
    CommentDialogImpl();

    /// The document to summarise, comment and write; not owned.
    void SetDocument(QDomDocument* document);
    /// The document that was set, for the dialog's own. When the dialog has been answered and its file is written, the
    /// document goes at once.
    void OwnDocument(std::unique_ptr<QDomDocument> document);
    /// The full path of the file to write.
    void SetFileName(QString fileName);
    /// Who tells what becomes of the file; without, nobody does.
    void SetTeller(const ReportTeller& teller);
    /// Fills the labels from the document and the clock and shows the dialog.
    void ShowReportSummary();
    /// Empty without a document, of one that is long, and after the first answer.
    QByteArray UnsavedReport() const;

    void reject() override;
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Appends the comment, if there is one, as last child of the document's root, writes the file and hides.
    void SlotSaveWithComment();
    /// Writes the file without a comment and hides.
    void SlotSaveWithoutComment();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY(CommentDialogImpl)

    void wrapLongLines(int position, int removed, int added);
    std::array<QLabel*, 5> valueCaptions() const;
    void connectSaveKeys();
    void translate();
    void showTitle();
    void nameValues();
    void growToTexts();
    QDomElement appendedComment(const QString& comment) const;
    void appendComment(const QString& comment);
    void removeComment();
    void WriteReportFile();
    void writeAndHide();
    void giveBack();
    QDomElement firstElement(const QString& name) const;
    QDomElement firstElement(const QString& name, const QString& alternativeName) const;
    QString textWithUnit(const QString& name) const;

    QDomDocument* m_pDocument;
    QString m_sFileName;
    bool m_bSaved; ///< the file has been written

    QString m_sSummaryTime; ///< empty until the summary is shown
    QDomElement m_comment; ///< what an answer put into the document; null when there is none
    std::unique_ptr<QDomDocument> m_pOwnDocument; ///< null while the document is somebody else's
    bool m_bGivenBack; ///< the widgets have gone
    ReportTeller m_teller;
};

#endif
