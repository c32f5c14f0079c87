#ifndef MEASUREMENTPANEL_TESTS_PANELSCENE_H
#define MEASUREMENTPANEL_TESTS_PANELSCENE_H

#include <memory>

#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>

#include "panelwindow.h"

class QToolButton;

bool writeFile(const QString& path, const QByteArray& content);
QString readFile(const QString& path);

/// The open comment dialogs, in any order.
QList<QWidget*> openDialogs();
/// Closes those that an earlier test has left open: the library keeps them for good.
void forgetDialogs();
void typeComment(QWidget& dialog, const QString& comment);

/// Lets files grow no longer than nothing for as long as it lives: to whoever writes, the disk is full. Only on Unix.
class FullDisk
{
public:
    FullDisk();
    ~FullDisk();
    static bool IsPossible();

private:
    Q_DISABLE_COPY(FullDisk)
};

/// Answers questions like an operator who sees them come up, always by the button of that text, and counts them.
class Answer
{
public:
    explicit Answer(const QString& button);
    int GetQuestions() const { return m_iQuestions; }

private:
    Q_DISABLE_COPY(Answer)

    QTimer m_timer;
    int m_iQuestions = 0;
};

/// A measurement panel with a schema and a report directory of its own, both of which can go and come.
class PanelScene
{
public:
    PanelScene();
    ~PanelScene();

    PanelWindow& Window() { return *m_window; }
    SimulatedReceiver& Receiver() { return m_receiver; }
    ReportSupervisor& Supervisor() { return m_supervisor; }
    QSettings& Settings() { return m_settings; }
    VCReporting& Reporting() const { return *m_window->findChild<VCReporting*>(); }
    QToolButton& Button() const { return *Reporting().GetReportButton(); }
    template <class Widget> Widget* Find(const char* name) const
    {
        return m_window->findChild<Widget*>(QLatin1String(name));
    }
    QString LabelText(const char* name) const;
    /// How many reports stand in the list.
    int Rows() const;
    /// Has the button follow its paths at once, as coming back to the window does.
    void Look() { Reporting().EnableReportButton(true); }
    /// The path of the only report there is; empty when there are none or several.
    QString OnlyReport() const;

    /// Clicks the report button, in another millisecond than the press before.
    void Press();
    /// Asks for the comment dialog, clicks, and gives the dialog; null when there is none.
    QDialog* PressWithComment();
    /// The dialog that has come up last.
    QDialog* LastDialog() const { return m_pDialog; }

    QString Reports() const { return m_folder.filePath(QStringLiteral("reports")); }
    QString Schema() const { return m_folder.filePath(QStringLiteral("schemas/measurementreport.xsd")); }
    QStringList Written() const;
    bool RemoveReports();
    bool RestoreReports();
    bool RemoveSchema();
    bool RestoreSchema();

private:
    Q_DISABLE_COPY(PanelScene)

    QTemporaryDir m_folder;
    QSettings m_settings;
    SimulatedReceiver m_receiver;
    ReportSupervisor m_supervisor;
    QPointer<QDialog> m_pDialog;
    std::unique_ptr<PanelWindow> m_window;
};

#endif
