#ifndef MEASUREMENTPANEL_PANELWINDOW_H
#define MEASUREMENTPANEL_PANELWINDOW_H

#include <QMainWindow>

#include "pathwatch.h"
#include "presswatch.h"
#include "reportfolder.h"

class ButtonExplanation;
class Languages;
class LevelTrace;
class MeasurementTree;
class PanelSettings;
class QAction;
class QActionGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QMenu;
class QTableView;
class QToolBar;
class ReportMessage;
class SimulatedReceiver;
class VCReporting;
class XmlView;

/// A measurement screen: the values of the tree, the report widget in the tool bar, and what became of the reports.
///
/// What a screen has to do for its reports is all in here: make the report widget with schema, directory and tool bar
/// and add it to the tool bar; register the report items when a report is about to be made; have the paths watched, so
/// that the button follows them at once; and tell the operator of each press what became of it, in a message that
/// stays, in a list, and in the status line. Where the button is disabled its tool tip and the status line say why.
///
/// A report whose comment dialog is still open when the window closes would never reach the disk: the operator is asked
/// once for all of them.
///
/// Tree and receiver are not owned and must outlive the window.
class PanelWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param schema           as for the report widget: a bare file name lies in the directory of the application
    /// @param reportDirectory  need not exist; the button is disabled until it does
    PanelWindow(const MeasurementTree& tree, const SimulatedReceiver& receiver, const QString& schema,
                const QString& reportDirectory);
    ~PanelWindow() override;

    /// Offers the languages in the menu. Not owned; without them the window speaks the application's language.
    void OfferLanguages(Languages& languages);
    /// Remembers what the operator chooses from now on. Not owned; without them nothing is remembered.
    void Remember(PanelSettings& settings);

    void UseSchema(const QString& schema);
    void UseReportDirectory(const QString& directory);
    void AskForComment(bool isWanted);

Q_SIGNALS:
    /// A report has arrived in the report directory, at once or when its comment dialog was answered.
    void ReportWritten(const QString& path);
    /// A press has not led to a report in order. @param reason  as the status line shows it
    void ReportFailed(const QString& reason);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(PanelWindow)

    struct Readout
    {
        QGroupBox* box;
        QLabel* value;
        QLabel* note;
    };

    void createReadouts();
    Readout createReadout(const char* name, QLayout& row);
    void createLiveRow();
    void createReportView();
    void createStatusLine();
    void createToolBar();
    void createMenus();
    void createReporting();
    void watchPaths();

    void translate();
    void showValues();
    void showAvailability(bool isAvailable);
    QString missingPaths() const;
    QString schemaFile() const;
    void showReport(const QString& path);
    void showPress(const Press& press);
    void fitColumns();
    void showSelectedPress();
    void showPicture();

    void chooseSchema();
    void chooseReportDirectory();
    void speak(const QString& language);

    void leaveWithOpenDialogs(QCloseEvent* event);
    void saveAllAndLeave(QCloseEvent* event);
    void goThroughDialogs();
    void dialogAnswered(QWidget* dialog);

    const MeasurementTree& m_tree;
    const SimulatedReceiver& m_receiver;
    QString m_sSchema;
    QString m_sReportDirectory;
    Languages* m_pLanguages = nullptr;
    PanelSettings* m_pSettings = nullptr;
    PathWatch m_paths;
    PressWatch m_presses;

    // Children of the window, or of what it holds.
    ReportFolder* m_pFolder = nullptr;
    QToolBar* m_pToolBar = nullptr;
    VCReporting* m_pReporting = nullptr;
    QAction* m_pReportingAction = nullptr;
    ButtonExplanation* m_pExplanation = nullptr;
    QCheckBox* m_pAskForComment = nullptr;
    Readout m_frequency {};
    Readout m_bandwidth {};
    Readout m_level {};
    Readout m_azimuth {};
    LevelTrace* m_pTrace = nullptr; ///< null where the program is built without plots
    QTableView* m_pLog = nullptr;
    ReportMessage* m_pMessage = nullptr;
    QLabel* m_pReportName = nullptr;
    XmlView* m_pReportView = nullptr;
    QLabel* m_pLastPress = nullptr;
    QLabel* m_pAvailability = nullptr;
    QMenu* m_pFileMenu = nullptr;
    QAction* m_pQuit = nullptr;
    QMenu* m_pSettingsMenu = nullptr;
    QAction* m_pChooseSchema = nullptr;
    QAction* m_pChooseDirectory = nullptr;
    QMenu* m_pLanguageMenu = nullptr;
    QActionGroup* m_pLanguageActions = nullptr;

    QString m_sShownReport; ///< in the view; empty while there is none
    QString m_sComplaint; ///< what could not be done besides reports; shown until the next press
    int m_iLastPress = 0; ///< the number of the press in the status line; 0: none yet
    bool m_bAvailable = false;
    bool m_bLeaving = false; ///< the operator goes through the open dialogs in order to quit
};

#endif
