#ifndef SCHEMADOCTOR_MENDWINDOW_H
#define SCHEMADOCTOR_MENDWINDOW_H

#include <QMainWindow>

#include "mend/mendfile.h"

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace schemadoctor {

class SchemaTextView;

/// What was mended in a window: the list of what is written otherwise, of what was left, and of what the doctor still
/// finds; below it the original and the mended schema beside each other. Choosing an entry shows its line.
///
/// Object names: rewrites, file, original, mended.
class MendWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param mended  what was not refused
    explicit MendWindow(const MendedFile& mended, QWidget* parent = nullptr);

private:
    QWidget* makeTexts();
    void fillFiles();
    void fillList();
    void addRewrites(const QString& heading, const QVector<Rewrite>& rewrites);
    void addFindings();
    QTreeWidgetItem* addHeading(const QString& heading);
    void showPlaceOf(const QTreeWidgetItem& item);

    const MendedFile m_mended;
    QTreeWidget* m_pRewrites; // all of these are children
    QComboBox* m_pFile;
    SchemaTextView* m_pOriginal;
    SchemaTextView* m_pMended;
};

} // namespace schemadoctor

#endif
