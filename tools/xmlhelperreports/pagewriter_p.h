#ifndef XMLHELPERREPORTS_PAGEWRITER_P_H
#define XMLHELPERREPORTS_PAGEWRITER_P_H

#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

#include "reporttree_p.h"
#include "skeletonplaces_p.h"

class SchemaOutline;

/// A text as it stands in a page: nothing in it is markup, lines are kept, and characters that no page may hold are
/// gone.
QString escapedForPage(const QString& text);

/// Writes the elements of a report as markup: containers as sections, what repeats as tables, what is missing or left
/// over marked. Tags and classes are the writer's own; everything else is escaped. Its work is in proportion to the
/// report, whatever the schema asks for.
class PageWriter
{
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    /// @param outline   null: nothing has a label, and nothing is missing or left over
    /// @param language  of the labels
    /// @param rows      of a table at most; more follow in another one. Qt's documents take long to print a long table
    PageWriter(const SchemaOutline* outline, const QString& language, int rows);

    void WriteReport(const ReportNode& root);

    const QString& GetMarkup() const { return m_sMarkup; }
    QString LabelOf(const Place* place, const QString& name) const; ///< not escaped
    int GetMissing() const { return m_iMissing; }
    int GetLeftOver() const { return m_iLeftOver; }
    bool IsEverythingMarked() const { return m_iSteps > 0; } ///< else more may be missing

private:
    /// Elements of one name that follow each other, or a place that lacks its element.
    struct Item
    {
        QString name;
        const Place* place; ///< null: unknown, or not declared
        const ReportNode* first; ///< null: it is missing
        std::size_t count;
        bool isLeftOver;

        bool IsContainer() const;
    };

    /// A table whose rows have their values under the same headings.
    struct Grid
    {
        QHash<QString, int> columns; ///< by the path below the row
        QStringList headings;
        std::vector<std::vector<QString>> rows; ///< markup; one may have fewer cells than there are columns
        std::vector<std::pair<QString, Item>> apart; ///< what repeats within a row, with its heading

        void Add(const QString& path, const QString& heading, const QString& value);
    };
    using Values = std::vector<std::pair<QString, QString>>; ///< labels, and markup

    std::vector<Item> itemsOf(const ReportNode& node, const Place* place);
    std::vector<Item> withMissing(const std::vector<Item>& present, const Place& place);

    void writeItem(const Item& item, int level);
    void writeContainers(const Item& item, const QString& heading, int level);
    void writeContent(const ReportNode& node, const Place* place, int level);
    void writeHeading(const Item& item, const QString& heading, int level);
    void writeRow(const QString& label, const QString& value, const QString& explanation = QString());
    void writeGrid(const Grid& grid);
    void endRows();
    void beginGrid(const Grid& grid);

    bool fillGrid(Grid& grid, const Item& item, const QString& heading);
    void fillRow(Grid& grid, const Item& item, const ReportNode& node, const QString& path, const QString& heading);

    Values attributesOf(const ReportNode& node, const Place* place, const QString& unit = QString());
    QString leftOverAttributesOf(const ReportNode& node, const Place& place);
    Values ownValuesOf(const ReportNode& node, const Place* place);
    QString valuesOf(const Item& item);
    QString valueOf(const ReportNode& node, const Place* place);
    QString textOf(const ReportNode& node, const Place* place) const;
    QString unitOf(const ReportNode& node, const Place* place, QString& attribute) const;
    QString missing();
    QString leftOver(const QString& what = QString());

    const SchemaOutline* m_pOutline;
    const QString m_sLanguage;
    const int m_iRowsOfTable;
    QString m_sMarkup;
    int m_iRows = 0; ///< of the table of values that has been begun
    int m_iMissing = 0;
    int m_iLeftOver = 0;
    int m_iSteps; ///< that may still be taken to find what is missing
};

#endif
