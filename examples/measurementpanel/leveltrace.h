#ifndef MEASUREMENTPANEL_LEVELTRACE_H
#define MEASUREMENTPANEL_LEVELTRACE_H

#include <QPainter>
#include <QWidget>

#include "simulatedreceiver.h"

/// A small live picture of the level, from -20 to 80 dBµV: the latest measurements, the last one at the right.
class LevelTrace : public QWidget
{
public:
    explicit LevelTrace(const SimulatedReceiver& receiver)
    {
        connect(&receiver, &SimulatedReceiver::Measured, this, [this, &receiver] {
            m_levels.prepend(receiver.GetLevels().back());
            m_levels = m_levels.mid(0, 120);
            update();
        });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QPolygonF trace;
        double x = width();
        for (const double level : std::as_const(m_levels)) {
            trace.append(QPointF(x, height() * (80.0 - level) / 100.0));
            x -= width() / 119.0;
        }
        painter.fillRect(rect(), palette().base());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawPolyline(trace);
    }

private:
    QVector<double> m_levels;
};

#endif
