#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include "screen.h"

class TestButtonExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressWritesWhatTheScreenRegisters();
    void withoutADirectoryTheButtonIsGrey();
};

namespace {

/// The texts of the elements without children, in their order, each behind its name.
QStringList valuesOf(const QDomElement& element)
{
    const QDomElement first = element.firstChildElement();
    if (first.isNull()) {
        return {element.tagName() + QLatin1Char('=') + element.text()};
    }
    QStringList values;
    for (QDomElement child = first; !child.isNull(); child = child.nextSiblingElement()) {
        values += valuesOf(child);
    }
    return values;
}

QToolButton* buttonOf(const Screen& screen)
{
    auto* const reporting = screen.findChild<VCReporting*>();
    return reporting != nullptr ? reporting->GetReportButton() : nullptr;
}

} // namespace

void TestButtonExample::aPressWritesWhatTheScreenRegisters()
{
    const QTemporaryDir directory;
    const Screen screen(QStringLiteral(SCHEMA), directory.path());
    QToolButton* const button = buttonOf(screen);
    QVERIFY(button != nullptr);
    QTRY_VERIFY(button->isEnabled());
    button->click();

    const QStringList reports = QDir(directory.path()).entryList({QStringLiteral("*.xml")});
    QCOMPARE(reports.size(), 1);
    QFile file(directory.filePath(reports.first()));
    QDomDocument report;
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(report.setContent(&file));
    QCOMPARE(valuesOf(report.documentElement()),
             QStringList({QStringLiteral("Station=Tower"), QStringLiteral("Frequency=98500000"),
                          QStringLiteral("Level=-42.5")}));
    const QDomElement frequency = report.elementsByTagName(QStringLiteral("Frequency")).item(0).toElement();
    QCOMPARE(frequency.attribute(QStringLiteral("Unit")), QStringLiteral("Hz"));
}

void TestButtonExample::withoutADirectoryTheButtonIsGrey()
{
    const QTemporaryDir directory;
    const Screen screen(QStringLiteral(SCHEMA), directory.filePath(QStringLiteral("nowhere")));
    QToolButton* const button = buttonOf(screen);
    QVERIFY(button != nullptr);
    QVERIFY(!button->isEnabled());
}

QTEST_MAIN(TestButtonExample)

#include "tst_button_example.moc"
