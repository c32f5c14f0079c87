#ifndef MEASUREMENTPANEL_SUPERVISION_H
#define MEASUREMENTPANEL_SUPERVISION_H

#include <QDialog>

#include <xmlhelperreportwidgets/reportpanel.h>

/// All that a window does so that no report is lost and its operator knows what became of each. Another program can
/// take it over as it is: nothing in it knows who makes reports, or of what.
class Supervision : public QObject
{
    Q_OBJECT

public:
    /// @param supervisor  was made before the first report; outlives this, as do the settings
    /// @param window      is closed only when no report is lost by it, or the operator wants so; becomes the parent
    Supervision(ReportSupervisor& supervisor, QSettings& settings, QWidget& window);

    ReportPanel* GetPanel() const { return m_pPanel; } ///< the window puts it where it belongs

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void receiveDialog(quint64 report, QDialog* dialog);

    ReportSupervisor& m_supervisor;
    QWidget& m_window;
    ReportPanel* m_pPanel;
    int m_iDialogs = 0; ///< how many have come
};

#endif
