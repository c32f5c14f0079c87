#ifndef MEASUREMENTPANEL_LEVELTRACE_H
#define MEASUREMENTPANEL_LEVELTRACE_H

#include <vector>

#include <QWidget>

#include "reportitems.h"

class QCPGraph;
class QCPItemText;
class QCPItemTracer;
class QCustomPlot;

/// A small live picture of the level over the frequency, with a marker on what a press would report.
///
/// The marker's text is made of the values as the report writes them, with the report's units, which are those of the
/// axes too; numbers have a decimal point in every language, because the report's have.
class LevelTrace : public QWidget
{
    Q_OBJECT

public:
    explicit LevelTrace(QWidget* parent = nullptr);
    ~LevelTrace() override;

    /// @param frequencies  in the unit of @p frequency, ascending; one level for each
    /// @param frequency    what a press would report, where the marker stands
    void Show(const std::vector<double>& frequencies, const std::vector<double>& levels, const ReportedValue& frequency,
              const ReportedValue& level);

    QString GetMarkerText() const;
    /// Where the marker stands, in the units of the axes.
    QPointF GetMarkerPosition() const;

    /// Says everything again, in the language of now.
    void Translate();

protected:
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY(LevelTrace)

    void useColours();

    QString m_sFrequencyUnit;
    QString m_sLevelUnit;

    // The plot is a child of this widget, and owns the rest.
    QCustomPlot* m_pPlot;
    QCPGraph* m_pTrace;
    QCPItemTracer* m_pMarker;
    QCPItemText* m_pMarkerText;
};

#endif
