#ifndef MEASUREMENTPANEL_PANELWINDOW_H
#define MEASUREMENTPANEL_PANELWINDOW_H

#include <QMainWindow>

#include "reportfolder.h"

class MeasurementTree;
class QCheckBox;
class QLabel;
class SimulatedReceiver;
class VCReporting;
class XmlView;

/// A measurement screen: the values of the tree, the report widget in the tool bar, and the last report.
///
/// What a screen has to do for its reports is all in here: make the report widget with schema, directory and tool bar
/// and add it to the tool bar; register the report items when PrepareToReport() asks for them; listen to what the
/// widget says. The status line tells whether schema and directory are available, and what became of the last press.
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

Q_SIGNALS:
    /// A report has arrived in the report directory, at once or when its comment dialog was answered.
    void ReportWritten(const QString& path);
    /// A press has not led to a report in order. @param reason  as the status line shows it
    void ReportFailed(const QString& reason);

private:
    Q_DISABLE_COPY(PanelWindow)

    enum class Outcome { NotMade, SchemaUnreadable, Made };

    struct Readout
    {
        QLabel* value;
        QLabel* note;
    };

    void createReporting(const QString& schema, const QString& reportDirectory);
    void createReadouts();
    Readout createReadout(const QString& caption, QLayout& row);
    void createReportView();
    void createStatusLine();

    void showValues();
    void showAvailability(bool isAvailable);
    void showReport(const QString& path);

    void beginPress();
    void endPress();
    void fail(const QString& reason);

    const MeasurementTree& m_tree;
    const SimulatedReceiver& m_receiver;
    ReportFolder m_folder;

    // Children of the window.
    VCReporting* m_pReporting = nullptr;
    QCheckBox* m_pAskForComment = nullptr;
    Readout m_frequency {};
    Readout m_bandwidth {};
    Readout m_level {};
    Readout m_azimuth {};
    QLabel* m_pReportName = nullptr;
    XmlView* m_pReportView = nullptr;
    QLabel* m_pLastPress = nullptr;
    QLabel* m_pAvailability = nullptr;

    long m_lPresses = 0;
    Outcome m_outcome = Outcome::NotMade;
};

#endif
