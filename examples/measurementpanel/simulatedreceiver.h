#ifndef MEASUREMENTPANEL_SIMULATEDRECEIVER_H
#define MEASUREMENTPANEL_SIMULATEDRECEIVER_H

#include <deque>
#include <random>
#include <vector>

#include <QObject>
#include <QTimer>

class MeasurementTree;

/// Stands in for a receiver with a direction finder: scans a few channels and keeps the values of the tree alive.
///
/// It makes a dozen measurements on each channel. The noise comes from a generator with a fixed seed, so the values
/// depend on nothing but the number of measurements made. The second channel is too weak for a bearing.
///
/// The tree is not owned and must outlive the receiver.
class SimulatedReceiver : public QObject
{
    Q_OBJECT

public:
    /// Makes the first measurement at once.
    explicit SimulatedReceiver(const MeasurementTree& tree, QObject* parent = nullptr);
    ~SimulatedReceiver() override;

    /// Measures by itself from now on, some times a second.
    void Start();

    /// Makes one measurement.
    void Step();

    /// Makes the measurements that are left on this channel; all of the next one's when there are none left.
    void FinishChannel();

    /// Whether the direction finder trusts its azimuth.
    bool HasBearing() const;

    /// The latest levels of this channel, the oldest first; five at most, one at least.
    const std::deque<double>& GetLevels() const;

    /// The levels over the frequencies around the tuned one, as measured last.
    struct Spectrum
    {
        std::vector<double> frequencies; ///< in Hz, ascending
        std::vector<double> levels; ///< in dBµV; at the tuned frequency the level of the tree
    };
    const Spectrum& GetSpectrum() const;

Q_SIGNALS:
    /// The values of the tree are new.
    void Measured();

private:
    Q_DISABLE_COPY(SimulatedReceiver)

    void tune(int channel);
    void measure(int channel);
    void sweep(int channel);
    double noise(double amplitude);

    const MeasurementTree& m_tree;
    QTimer m_timer;
    std::minstd_rand m_random;
    std::deque<double> m_levels;
    std::minstd_rand m_sweepRandom; ///< of its own: the values must not depend on what else is shown
    Spectrum m_spectrum;
    int m_iSteps = 0;
};

#endif
