#include <stdexcept>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelperreports/reportfiller.h>

#include "scriptedobserver.h"
#include "station.h"

using State = ReportSupervisor::State;

namespace {

/// The last report that is known.
ReportSupervisor::Verdict lastOf(Station& station)
{
    const std::vector<ReportSupervisor::Verdict> reports = station.Supervisor().GetReports();
    return reports.empty() ? ReportSupervisor::Verdict() : reports.back();
}

QString schemaOf(const Station& station)
{
    const QString schema = station.PathOf(QStringLiteral("survey.xsd"));
    writeFile(schema,
              "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Survey'><xs:complexType>"
              "<xs:sequence><xs:element name='Station' type='xs:string'/></xs:sequence></xs:complexType></xs:element>"
              "</xs:schema>");
    return schema;
}

/// The comment dialog that is open; null when there is none.
QDialog* openDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        auto* const dialog = qobject_cast<QDialog*>(widget);
        if (dialog && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

} // namespace

/// Reports that the library itself makes and tells of; nothing is told by the tests.
class TestReportSupervisorBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void watchesAFiller();
    void keepsTheCommentOfADialog();
    void seesADialogClosedWithCancel();
    void seesADialogThatGoesUnanswered();
    void seesAnObserverThatThrows();
};

void TestReportSupervisorBuilder::watchesAFiller()
{
    Station station;
    const QString schema = schemaOf(station);
    ReportFiller filler;
    filler.Add(QStringLiteral("Station"), QStringLiteral("Tower"));
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    QVERIFY(filler.Fill(schema, path));
    QCOMPARE(lastOf(station).state, State::Written);
    QTRY_VERIFY(lastOf(station).isChecked);
    QCOMPARE(lastOf(station).state, State::Written);
    QCOMPARE(lastOf(station).reportPath, path);
    QCOMPARE(lastOf(station).size, qint64(bytesOf(path).size()));

    QVERIFY(!filler.Fill(schema, station.PathOf(QStringLiteral("there/report.xml"))));
    const ReportSupervisor::Verdict verdict = lastOf(station);
    QCOMPARE(verdict.state, State::Pending);
    QVERIFY(verdict.isSafe);
    QVERIFY(!verdict.reason.isEmpty());
    QVERIFY(QDir(station.PathOf(QString())).mkdir(QStringLiteral("there")));
    QVERIFY(station.Supervisor().TryAgain(verdict.report));
    QCOMPARE(bytesOf(station.PathOf(QStringLiteral("there/report.xml"))), bytesOf(path));
    QCOMPARE(int(station.Supervisor().GetReports().size()), 2);
}

void TestReportSupervisorBuilder::keepsTheCommentOfADialog()
{
    Station station;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(schemaOf(station), station.PathOf(QStringLiteral("there/report.xml")), true));
    QCOMPARE(lastOf(station).state, State::Waiting);
    QCOMPARE(station.Supervisor().MayQuit().size(), 1);
    QDialog* const dialog = openDialog();
    QVERIFY(dialog);
    dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(QStringLiteral("windy"));
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("m_pSaveButton")), Qt::LeftButton);

    const ReportSupervisor::Verdict verdict = lastOf(station);
    QCOMPARE(verdict.state, State::Pending);
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
    QCOMPARE(station.Copies().size(), 2);
    QVERIFY(bytesOf(station.Copies()[1]).contains("windy"));
    QVERIFY(station.Supervisor().SaveElsewhere(verdict.report, station.PathOf(QStringLiteral("else.xml"))));
    QVERIFY(bytesOf(station.PathOf(QStringLiteral("else.xml"))).contains("windy"));
}

void TestReportSupervisorBuilder::seesADialogClosedWithCancel()
{
    Station station;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(builder.CreateXmlFromSchema(schemaOf(station), station.PathOf(QStringLiteral("report.xml")), true));
    QDialog* const dialog = openDialog();
    QVERIFY(dialog);
    dialog->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit"))->setPlainText(QStringLiteral("windy"));
    QTimer::singleShot(0, dialog, [] {
        auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        question->button(QMessageBox::Cancel)->click();
    });
    dialog->close();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(lastOf(station).state, State::Closed);
    QVERIFY(!QFile::exists(station.PathOf(QStringLiteral("report.xml"))));
    QCOMPARE(station.Supervisor().MayQuit(), QStringList());
}

void TestReportSupervisorBuilder::seesADialogThatGoesUnanswered()
{
    Station station;
    ScriptedObserver observer;
    {
        XmlCreateReport builder(&observer);
        QVERIFY(builder.CreateXmlFromSchema(schemaOf(station), station.PathOf(QStringLiteral("report.xml")), true));
        QCOMPARE(lastOf(station).state, State::Waiting);
    }
    QCOMPARE(lastOf(station).state, State::Closed);
}

void TestReportSupervisorBuilder::seesAnObserverThatThrows()
{
    /// Has had enough.
    class Thrower : public IXMLHelper
    {
    public:
        void XmlUpdate(XmlEvent*) override { throw std::runtime_error("no more"); }
    };
    Station station;
    Thrower observer;
    XmlCreateReport builder(&observer);
    const QString path = station.PathOf(QStringLiteral("report.xml"));
    QVERIFY_EXCEPTION_THROWN(builder.CreateXmlFromSchema(schemaOf(station), path, false), std::runtime_error);
    QCOMPARE(lastOf(station).state, State::Failed);
    QCOMPARE(lastOf(station).reason, QStringLiteral("Filling the report was broken off by an error"));
    QCOMPARE(station.Supervisor().MayQuit(), QStringList()); // Nothing of it is being made any more.
    QVERIFY(!QFile::exists(path));
}

QTEST_MAIN(TestReportSupervisorBuilder)
#include "tst_reportsupervisor_builder.moc"
