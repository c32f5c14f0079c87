#ifndef MEASUREMENTPANEL_PANELWINDOW_H
#define MEASUREMENTPANEL_PANELWINDOW_H

#include <functional>
#include <vector>

#include <QMainWindow>
#include <QSettings>

#include <xmlhelper/vcreporting.h>
#include <xmlhelperreports/reportsupervisor.h>

#include "simulatedreceiver.h"

class QCheckBox;
class QLabel;
class QLineEdit;

/// A measurement screen: the report widget in the tool bar, the values of the receiver, and the panel that tells what
/// became of the reports. The report directory, the language and whether to ask for a comment are remembered.
class PanelWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Receiver, supervisor and settings outlive the window. The report button is disabled while a path is missing.
    PanelWindow(const SimulatedReceiver& receiver, ReportSupervisor& supervisor, QSettings& settings,
                const QString& schema, const QString& reportDirectory);

    void UseReportDirectory(const QString& directory);
    /// Has program, libraries and Qt speak a language, or that of the system if empty. It is English without
    /// catalogues.
    static void Speak(const QString& language);

protected:
    void changeEvent(QEvent* event) override;

private:
    void createMenus();
    void createLanguageMenu(QMenu& menu);
    void createToolBar();
    void createReporting();
    QWidget* createMeasurement();
    void say(const std::function<void()>& text);
    void showAvailability(bool isAvailable);

    const SimulatedReceiver& m_receiver;
    QSettings& m_settings;
    const QString m_sSchema;
    long m_iReports = 0;
    std::vector<std::function<void()>> m_texts;

    // Children of the window, or of what it holds.
    QAction* m_pMakeReport = nullptr;
    QToolBar* m_pToolBar = nullptr;
    VCReporting* m_pReporting = nullptr;
    QAction* m_pReportingAction = nullptr;
    QCheckBox* m_pAskForComment;
    QLineEdit* m_pDirectory;
    QLabel* m_pMissing;
};

#endif
