#include <QtTest>

#include <memory>

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolButton>

#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <xmlhelper/vcreporting.h>

#include "measurementtree.h"
#include "panelwindow.h"
#include "simulatedreceiver.h"

class TestPanelWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheValuesOfTheTree();
    void aWeakSignalHasNoBearing();
    void saysWhetherSchemaAndDirectoryAreAvailable_data();
    void saysWhetherSchemaAndDirectoryAreAvailable();
    void noticesADirectoryThatIsMadeLater();
    void showsTheLastReport();
    void showsNoReportOfEarlierTimes();
    void waitsForTheComment();
    void saysWhatBecameOfAPress_data();
    void saysWhatBecameOfAPress();

private:
    PanelWindow& openWindow(const QString& schema, const QString& reports);
    QString labelText(const char* name) const;
    void press();

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MeasurementTree> m_tree;
    std::unique_ptr<SimulatedReceiver> m_receiver;
    std::unique_ptr<PanelWindow> m_window;
};

namespace {

const QString schemaFile = QStringLiteral(MEASUREMENTPANEL_SCHEMA);

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QWidget* openDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->isVisible() && widget->objectName() == QLatin1String("ToReportCommentDialog")) {
            return widget;
        }
    }
    return nullptr;
}

} // namespace

void TestPanelWindow::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_tree = std::make_unique<MeasurementTree>();
    m_receiver = std::make_unique<SimulatedReceiver>(*m_tree);
}

void TestPanelWindow::cleanup()
{
    m_window.reset();
    m_receiver.reset();
    m_tree.reset();
    m_directory.reset();
}

PanelWindow& TestPanelWindow::openWindow(const QString& schema, const QString& reports)
{
    m_window = std::make_unique<PanelWindow>(*m_tree, *m_receiver, schema, reports);
    m_window->show();
    return *m_window;
}

QString TestPanelWindow::labelText(const char* name) const
{
    return m_window->findChild<QLabel*>(QLatin1String(name))->text();
}

void TestPanelWindow::press()
{
    QTest::mouseClick(m_window->findChild<VCReporting*>()->GetReportButton(), Qt::LeftButton);
}

void TestPanelWindow::showsTheValuesOfTheTree()
{
    openWindow(schemaFile, m_directory->path());
    for (int channel = 0; channel < 2; ++channel) {
        QCOMPARE(labelText("FrequencyValue"), m_tree->Frequency().GetText());
        QCOMPARE(labelText("BandwidthValue"), m_tree->Bandwidth().GetText());
        QCOMPARE(labelText("LevelValue"), m_tree->Level().GetText());
        m_receiver->FinishChannel();
        m_receiver->Step();
    }
    QCOMPARE(labelText("FrequencyValue"), QStringLiteral("162.025 MHz"));
}

void TestPanelWindow::aWeakSignalHasNoBearing()
{
    openWindow(schemaFile, m_directory->path());
    QVERIFY(m_receiver->HasBearing());
    QCOMPARE(labelText("AzimuthValue"), m_tree->Azimuth().GetText());

    m_receiver->FinishChannel();
    m_receiver->FinishChannel();
    QVERIFY(!m_receiver->HasBearing());
    QCOMPARE(labelText("AzimuthValue"), QStringLiteral("no bearing"));
}

void TestPanelWindow::saysWhetherSchemaAndDirectoryAreAvailable_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("reports");
    QTest::addColumn<bool>("isAvailable");

    const QString here = QStringLiteral(".");
    const QString missing = QStringLiteral("missing");
    QTest::newRow("both") << schemaFile << here << true;
    QTest::newRow("no-schema") << QStringLiteral("/missing.xsd") << here << false;
    QTest::newRow("no-directory") << schemaFile << missing << false;
}

void TestPanelWindow::saysWhetherSchemaAndDirectoryAreAvailable()
{
    QFETCH(QString, schema);
    QFETCH(QString, reports);
    QFETCH(bool, isAvailable);
    openWindow(schema, m_directory->filePath(reports));

    QCOMPARE(labelText("availability").contains(QLatin1String("are available")), isAvailable);
    QCOMPARE(labelText("availability").contains(QLatin1String("is missing")), !isAvailable);
    QCOMPARE(m_window->findChild<VCReporting*>()->GetReportButton()->isEnabled(), isAvailable);
}

void TestPanelWindow::noticesADirectoryThatIsMadeLater()
{
    const QString reports = m_directory->filePath(QStringLiteral("later"));
    openWindow(schemaFile, reports);
    QVERIFY(labelText("availability").contains(QLatin1String("is missing")));

    QVERIFY(QDir().mkdir(reports));
    m_window->findChild<VCReporting*>()->EnableReportButton(true); // looks at once instead of with the next tick
    QVERIFY(labelText("availability").contains(QLatin1String("are available")));

    // From now on the directory is watched.
    const QSignalSpy written(m_window.get(), &PanelWindow::ReportWritten);
    QVERIFY(writeFile(QDir(reports).filePath(QStringLiteral("a.xml")), "<a/>"));
    QTRY_COMPARE(written.count(), 1);
}

void TestPanelWindow::showsTheLastReport()
{
    const PanelWindow& window = openWindow(schemaFile, m_directory->path());
    const QSignalSpy written(&window, &PanelWindow::ReportWritten);
    QCOMPARE(labelText("reportName"), QStringLiteral("No report yet"));

    press();
    QCOMPARE(written.count(), 1);
    const QString path = written.first().first().toString();
    const QString text = readFile(path);
    QVERIFY(!text.isEmpty());
    QCOMPARE(window.findChild<QPlainTextEdit*>(QStringLiteral("reportView"))->toPlainText(), text);
    QVERIFY(labelText("reportName").endsWith(QFileInfo(path).fileName()));
    QVERIFY(labelText("lastPress").endsWith(QFileInfo(path).fileName()));
}

void TestPanelWindow::showsNoReportOfEarlierTimes()
{
    QVERIFY(writeFile(m_directory->filePath(QStringLiteral("earlier.xml")), "<a/>"));
    openWindow(schemaFile, m_directory->path());
    QCOMPARE(labelText("reportName"), QStringLiteral("No report yet"));

    press();
    QVERIFY(!labelText("reportName").contains(QLatin1String("earlier")));
    QVERIFY(labelText("reportName").startsWith(QLatin1String("Last report: ")));
}

void TestPanelWindow::waitsForTheComment()
{
    const PanelWindow& window = openWindow(schemaFile, m_directory->path());
    const QSignalSpy written(&window, &PanelWindow::ReportWritten);
    const QSignalSpy failed(&window, &PanelWindow::ReportFailed);
    window.findChild<QCheckBox*>(QStringLiteral("askForComment"))->setChecked(true);

    press();
    QWidget* const dialog = openDialog();
    QVERIFY(dialog);
    QVERIFY(labelText("lastPress").contains(QLatin1String("when its comment dialog is answered")));
    QCOMPARE(written.count(), 0);

    QTest::keyClicks(dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), QStringLiteral("drifts"));
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);
    QTRY_COMPARE(written.count(), 1);
    QVERIFY(readFile(written.first().first().toString()).contains(QLatin1String("<Comment>drifts</Comment>")));
    QVERIFY(labelText("lastPress").startsWith(QLatin1String("Report written: ")));
    QCOMPARE(failed.count(), 0);
}

void TestPanelWindow::saysWhatBecameOfAPress_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("reports");
    QTest::addColumn<QString>("reason");

    const QString here = QStringLiteral(".");
    QTest::newRow("malformed-schema") << QStringLiteral("malformed.xsd") << here
                                      << QStringLiteral("the schema could not be read");
    QTest::newRow("schema-with-another-ending") << QStringLiteral("other.txt") << here << QStringLiteral("not made");
    QTest::newRow("file-in-place-of-the-directory")
        << QStringLiteral("good.xsd") << QStringLiteral("other.txt") << QStringLiteral("could not be written");
}

void TestPanelWindow::saysWhatBecameOfAPress()
{
    QFETCH(QString, schema);
    QFETCH(QString, reports);
    QFETCH(QString, reason);
    QVERIFY(writeFile(m_directory->filePath(QStringLiteral("malformed.xsd")), "<xs:schema>"));
    QVERIFY(writeFile(m_directory->filePath(QStringLiteral("other.txt")), "text"));
    QVERIFY(writeFile(m_directory->filePath(QStringLiteral("good.xsd")),
                      "<xs:schema><xs:element name='a' type='xs:string'/></xs:schema>"));
    const PanelWindow& window = openWindow(m_directory->filePath(schema), m_directory->filePath(reports));
    const QSignalSpy failed(&window, &PanelWindow::ReportFailed);

    press();
    QCOMPARE(failed.count(), 1);
    QCOMPARE(labelText("lastPress"), failed.first().first().toString());
    QVERIFY2(labelText("lastPress").contains(reason), qPrintable(labelText("lastPress")));
}

QTEST_MAIN(TestPanelWindow)

#include "tst_panelwindow.moc"
