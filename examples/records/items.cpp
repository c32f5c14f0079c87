// Fills a report with a repeating container by the items of a report button.
//
// usage: records_items SCHEMA REPORT

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QToolBar>

#include <xmlhelper/xmlhelper.h>

#include "records.h"

namespace {

void addText(VCReporting& button, const char* name, const QString& text, int maxOccurs = 1,
             const QString& unit = QString())
{
    button.AddReportData(QString::fromLatin1(name), QString(), text, maxOccurs, QString(), 0, unit);
}

/// An item for each element of each copy, in the order of the copies: each is consumed by the element that it fills, so
/// that the next element of the same name gets the next one.
void addItems(VCReporting& button)
{
    const std::vector<Record> all = records();
    addText(button, "Station", QStringLiteral("Tower"));
    addText(button, "Emission", QString(), int(all.size())); // A container takes the number of copies and no value.
    for (const Record& record : all) {
        addText(button, "Frequency", QString::number(record.frequency, 'g', 12), 1, QStringLiteral("Hz"));
        addText(button, "Level", QString::number(record.level));
        addText(button, "Remark", record.remark);
    }
    addText(button, "Operator", QStringLiteral("Ada"), 2);
    addText(button, "Operator", QStringLiteral("Ben"), 2);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        return 1;
    }
    const QTemporaryDir folder; // The button names the report after the time.
    QToolBar toolBar;
    const bool consume = true;
    VCReporting button(arguments.at(1), folder.path(), &toolBar, false, "records", consume, QPixmap());
    addItems(button);
    const bool isMade = button.SlotToReport();
    const QStringList reports = QDir(folder.path()).entryList({QStringLiteral("*.xml")}, QDir::Files);
    QFile::remove(arguments.at(2));
    return isMade && reports.size() == 1 && QFile::copy(folder.filePath(reports.first()), arguments.at(2)) ? 0 : 1;
}
