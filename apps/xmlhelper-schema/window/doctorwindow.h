#ifndef SCHEMADOCTOR_DOCTORWINDOW_H
#define SCHEMADOCTOR_DOCTORWINDOW_H

#include <functional>

#include <QMainWindow>

#include "model/examination.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSortFilterProxyModel;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;

namespace schemadoctor {

class SkeletonTreeModel;
class SchemaTextView;
class SchemaWatcher;

/// The examination in a window: the tree, the schema's text at the line of what is chosen, and the findings.
///
/// Choosing an element shows its declaration; choosing a finding shows its line, its element, all that it says, and
/// both trees beside each other: as it is meant, and as it is laid out. When one of the files changes on the disk, the
/// schema is examined anew, and what was chosen stays chosen as long as it is there. Another schema is opened from the
/// menu, or dropped on the window. One that cannot be read says so above the panes.
///
/// Object names: message, filter, tree, file, text, findings, details, trees, meant, laidOut, openDialog, mendDialog,
/// refusal; of actions: open, reload, mend.
class DoctorWindow : public QMainWindow
{
    Q_OBJECT

public:
    using Examine = std::function<Examination(const QString& file)>;

    /// @param examine  examines what is opened or reloaded
    DoctorWindow(const Examination& examination, Examine examine, QWidget* parent = nullptr);

    /// What is shown.
    const Examination& GetExamination() const { return m_examination; }

    /// Examines another schema and shows it.
    void Open(const QString& file);

    /// Mends the schema into another file, as the command does, and shows what was written otherwise in a window of its
    /// own, or why it was not.
    void Mend(const QString& out);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What is chosen, in words that another examination of the schema understands.
    struct Choice
    {
        QString element; ///< its path; of an attribute, that of the element
        QString attribute;
        Finding finding; ///< without a rule when none is
        bool isOfFinding = false; ///< the finding was chosen last, not the element
    };

    QWidget* makeCentre();
    void makeMenu();
    QWidget* makeTreePane();
    QWidget* makeTextPane();
    QWidget* makeFindingsPane();
    QWidget* makeTrees();
    QTreeWidgetItem* makeItem(int number) const;

    void chooseFile();
    void chooseMended();
    void reload();
    void examineAnew(const QString& file);
    void showExamination(const Examination& examination);
    void fillTree();
    void fillFiles();
    void fillFindings();
    void fillMessage();

    Choice choice() const;
    void choose(const Choice& wanted);
    void chooseFirst();
    bool chooseElement(const Choice& wanted);
    bool chooseFinding(const Finding& wanted);
    void showElement(const QModelIndex& index);
    void showFinding(int number);
    void showPlace(const Place& place);
    void showText(const QString& file);

    Examination m_examination;
    const Examine m_examine;
    Choice m_choice; ///< the last one: kept while the file cannot be read
    SkeletonTreeModel* m_pModel = nullptr; // all of these are children
    QSortFilterProxyModel* m_pProxy;
    SchemaWatcher* m_pWatcher;
    QLabel* m_pMessage;
    QLabel* m_pSummary;
    QLineEdit* m_pFilter;
    QTreeView* m_pTree;
    QComboBox* m_pFile;
    SchemaTextView* m_pText;
    QTreeWidget* m_pFindings;
    QPlainTextEdit* m_pDetails;
    QWidget* m_pTrees;
    QPlainTextEdit* m_pMeant;
    QPlainTextEdit* m_pLaidOut;
};

} // namespace schemadoctor

#endif
