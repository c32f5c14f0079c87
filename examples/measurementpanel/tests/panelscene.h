#ifndef MEASUREMENTPANEL_TESTS_PANELSCENE_H
#define MEASUREMENTPANEL_TESTS_PANELSCENE_H

#include <memory>

#include <QMessageBox>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>

#include "measurementtree.h"
#include "panelwindow.h"
#include "simulatedreceiver.h"

class QToolButton;

bool writeFile(const QString& path, const QByteArray& content);
QString readFile(const QString& path);

/// The open comment dialogs, the oldest first.
QList<QWidget*> openDialogs();
/// Hides those that an earlier test has left open: the library keeps them for good.
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

/// Makes a folder the only one where programs are looked for, for as long as it lives.
class ProgramFolder
{
public:
    explicit ProgramFolder(const QString& folder);
    ~ProgramFolder();

private:
    Q_DISABLE_COPY(ProgramFolder)

    QByteArray m_former;
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
    QToolButton& Button();
    template <class Widget> Widget* Find(const char* name) const
    {
        return m_window->findChild<Widget*>(QLatin1String(name));
    }
    QString LabelText(const char* name) const;
    QString Verdict(int row) const;

    /// Clicks the report button.
    void Press();
    /// Asks for the comment dialog, clicks, and gives the dialog; null when there is none.
    QWidget* PressWithComment();

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
    MeasurementTree m_tree;
    SimulatedReceiver m_receiver;
    std::unique_ptr<PanelWindow> m_window;
};

#endif
