#ifndef SCHEMADOCTOR_DOCTORWINDOW_H
#define SCHEMADOCTOR_DOCTORWINDOW_H

#include <QMainWindow>

#include "model/examination.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QSortFilterProxyModel;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;

namespace schemadoctor {

class LaidOutTreeModel;
class SchemaTextView;

/// The examination in a window: the tree, the schema's text at the line of what is chosen, and the findings.
///
/// Choosing an element shows its declaration; choosing a finding shows its line, its element and all that it says.
/// Object names: filter, tree, file, text, findings, details.
class DoctorWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DoctorWindow(const Examination& examination, QWidget* parent = nullptr);

private:
    QWidget* makeTreePane();
    QWidget* makeTextPane();
    QWidget* makeFindingsPane();
    QTreeWidgetItem* makeItem(int number) const;
    void fillFindings();

    void showElement(const QModelIndex& index);
    void showFinding(int number);
    void showPlace(const Place& place);
    void showText(const QString& file);

    const Examination m_examination;
    LaidOutTreeModel* m_pModel; // all of these are children
    QSortFilterProxyModel* m_pProxy;
    QLineEdit* m_pFilter;
    QTreeView* m_pTree;
    QComboBox* m_pFile;
    SchemaTextView* m_pText;
    QTreeWidget* m_pFindings;
    QPlainTextEdit* m_pDetails;
};

} // namespace schemadoctor

#endif
