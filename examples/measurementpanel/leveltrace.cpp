// The plot's header is written with the keywords of Qt that this project does without.
#undef QT_NO_KEYWORDS

#include "leveltrace.h"

#include <qcustomplot.h>
#include <QEvent>
#include <QVBoxLayout>

#include <xmlhelperreportwidgets/panelcolours_p.h>

namespace {

constexpr int SmallestHeight = 170;
/// The range of levels that the receiver shows, in dBµV.
constexpr double LowestLevel = -20.0;
constexpr double HighestLevel = 80.0;
constexpr int TickLabelPadding = 8; ///< keeps the first labels of both axes apart
constexpr int MarkerDistance = 6;
constexpr int AreaAlpha = 40;

QVector<double> vectorOf(const std::vector<double>& values)
{
    return QVector<double>(values.begin(), values.end());
}

} // namespace

LevelTrace::LevelTrace(QWidget* parent)
    : QWidget(parent)
    , m_pPlot(new QCustomPlot(this))
    , m_pTrace(m_pPlot->addGraph())
    , m_pMarker(new QCPItemTracer(m_pPlot))
    , m_pMarkerText(new QCPItemText(m_pPlot))
{
    setMinimumHeight(SmallestHeight);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pPlot);

    m_pPlot->setLocale(QLocale::c());
    m_pPlot->yAxis->setRange(LowestLevel, HighestLevel);
    for (QCPAxis* const axis : {m_pPlot->xAxis, m_pPlot->yAxis}) {
        axis->setNumberFormat(QStringLiteral("g"));
        axis->setNumberPrecision(12);
    }
    m_pPlot->xAxis->ticker()->setTickCount(4);
    m_pPlot->xAxis->setTickLabelPadding(TickLabelPadding);
    m_pMarker->setStyle(QCPItemTracer::tsCircle);
    m_pMarkerText->position->setParentAnchor(m_pMarker->position);
    m_pMarkerText->position->setCoords(0, -MarkerDistance);
    m_pMarkerText->setPositionAlignment(Qt::AlignBottom | Qt::AlignHCenter);
    useColours();
    Translate();
}

LevelTrace::~LevelTrace() = default;

void LevelTrace::Show(const std::vector<double>& frequencies, const std::vector<double>& levels,
                      const ReportedValue& frequency, const ReportedValue& level)
{
    m_sFrequencyUnit = frequency.unit;
    m_sLevelUnit = level.unit;
    m_pTrace->setData(vectorOf(frequencies), vectorOf(levels), true);
    if (!frequencies.empty()) {
        m_pPlot->xAxis->setRange(frequencies.front(), frequencies.back());
        m_pMarker->setGraph(m_pTrace); // asks for data, so only now
        m_pMarker->setGraphKey(frequency.number);
        m_pMarker->updatePosition();
    }
    m_pMarkerText->setText(QStringLiteral("%1 %2, %3 %4").arg(frequency.text, frequency.unit, level.text, level.unit));
    Translate();
    m_pPlot->replot(QCustomPlot::rpQueuedReplot);
}

QString LevelTrace::GetMarkerText() const
{
    return m_pMarkerText->text();
}

QPointF LevelTrace::GetMarkerPosition() const
{
    return m_pMarker->position->coords();
}

void LevelTrace::Translate()
{
    m_pPlot->xAxis->setLabel(tr("Frequency in %1").arg(m_sFrequencyUnit));
    m_pPlot->yAxis->setLabel(tr("Level in %1").arg(m_sLevelUnit));
    setAccessibleName(tr("Level over frequency: %1").arg(GetMarkerText()));
}

void LevelTrace::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        useColours();
        m_pPlot->replot(QCustomPlot::rpQueuedReplot);
    } else if (event->type() == QEvent::LanguageChange) {
        Translate();
        m_pPlot->replot(QCustomPlot::rpQueuedReplot);
    }
    QWidget::changeEvent(event);
}

/// The plot knows nothing of palettes.
void LevelTrace::useColours()
{
    const QColor text = palette().color(QPalette::WindowText);
    const QColor accent = accentColour(palette());
    QColor area = accent;
    area.setAlpha(AreaAlpha);
    m_pPlot->setBackground(palette().color(QPalette::Base));
    for (QCPAxis* const axis : {m_pPlot->xAxis, m_pPlot->yAxis}) {
        axis->setBasePen(text);
        axis->setTickPen(text);
        axis->setSubTickPen(text);
        axis->setTickLabelColor(text);
        axis->setLabelColor(text);
        axis->grid()->setPen(QPen(palette().color(QPalette::Mid), 0, Qt::DotLine));
    }
    m_pTrace->setPen(accent);
    m_pTrace->setBrush(area);
    m_pMarker->setPen(QPen(text, 2));
    m_pMarker->setBrush(accent);
    m_pMarkerText->setColor(text);
}
