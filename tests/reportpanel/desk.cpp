#include "desk.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <QtTest>

#include <xmlhelperreportwidgets/reportwords_p.h>

Desk::Desk()
{
    station.Supervisor().SetPauses(3600000, 3600000); // nothing is tried by itself
    Renew();
}

Desk::~Desk() = default;

void Desk::Renew()
{
    panel = std::make_unique<ReportPanel>(station.Supervisor());
    panel->resize(Smallest);
    panel->show();
    if (!QTest::qWaitForWindowActive(panel.get())) {
        qFatal("The panel does not become active.");
    }
}

QString Desk::Page() const
{
    return Find<QTextBrowser>("reportPage")->toPlainText();
}

QString Desk::Xml() const
{
    return Find<QPlainTextEdit>("reportXml")->toPlainText();
}

void Desk::Press(const char* button) const
{
    QTest::mouseClick(Button(button), Qt::LeftButton);
}

void Desk::Click(int row) const
{
    const QPoint place = List()->visualRect(List()->model()->index(row, 0)).center();
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

quint64 Desk::Write(const char* name, const QByteArray& content) const
{
    const quint64 report = station.Begin(PathOf(name));
    station.Write(report, PathOf(name), content);
    return report;
}

quint64 Desk::Lose(const char* name) const
{
    return station.Lose(MissingFolder() + QLatin1Char('/') + QLatin1String(name));
}

bool Desk::Becomes(quint64 report, const QString& sign) const
{
    return QTest::qWaitFor([&] { return panel->GetShownReport() == report && Text("reportSign") == sign; });
}

bool isFileChosen(const Desk& desk, const char* button, const QString& fileName, int kind)
{
    const auto answer = [&fileName, kind](QFileDialog& dialog) {
        auto* const kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        for (int i = 0; i < kind; ++i) {
            QTest::keyClick(kinds, Qt::Key_Down);
        }
        auto* const name = dialog.findChild<QLineEdit*>();
        name->setText(fileName);
        QTest::keyClick(name, Qt::Key_Return);
    };
    return isAsked<QFileDialog>([&desk, button] { desk.Press(button); }, answer);
}

void press(QMessageBox& question, QMessageBox::ButtonRole role)
{
    const QList<QAbstractButton*> buttons = question.buttons();
    for (QAbstractButton* const button : buttons) {
        if (question.buttonRole(button) == role) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
}

QString signOf(ReportSupervisor::State state, const QString& schemaFault)
{
    ReportSupervisor::Verdict verdict;
    verdict.state = state;
    verdict.schemaFault = schemaFault;
    return ReportWords::Sign(verdict);
}
