#ifndef MEASUREMENTPANEL_SIMULATEDRECEIVER_H
#define MEASUREMENTPANEL_SIMULATEDRECEIVER_H

#include <deque>
#include <random>

#include <QObject>
#include <QTimer>

#include <valueframework/tree.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>

/// Stands in for a receiver with a direction finder: scans a few channels and keeps the values of its tree, which is
/// the living tree of the application, up to date. They depend on nothing but the number of measurements made.
class SimulatedReceiver : public QObject
{
    Q_OBJECT

public:
    /// Makes the first measurements at once.
    SimulatedReceiver();
    /// Makes all measurements on the next channel.
    void MeasureNextChannel();
    /// Measures by itself from now on, some times a second.
    void Start() { m_timer.start(250); }

    /// The value at a path of the tree, such as "Receiver/Frequency", as it is shown.
    QString TextOf(const char* path) const { return m_tree.GetValue(QLatin1String(path))->GetText(); }
    Node* GetStation() const { return m_pStation; }
    /// Whether the direction finder trusts its azimuth. On the second channel it does not.
    bool HasBearing() const { return m_pQuality->GetNumericValue() >= 30.0; }
    /// The latest levels of this channel in dBµV, the oldest first; five at most, one at least.
    const std::deque<double>& GetLevels() const { return m_levels; }

Q_SIGNALS:
    /// The values of the tree are new.
    void Measured();

private:
    void measure();
    double noise(double amplitude);

    Tree m_tree;
    QTimer m_timer;
    std::minstd_rand m_random; ///< with a seed that is always the same
    std::deque<double> m_levels;
    std::size_t m_iMeasurements = 0;

    // The tree's.
    Node* m_pStation;
    ValueSelection* m_pFrequency;
    ValueSelection* m_pBandwidth;
    ValueNumeric* m_pLevel;
    ValueNumeric* m_pAzimuth;
    ValueNumeric* m_pQuality;
};

#endif
