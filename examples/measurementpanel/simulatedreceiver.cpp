#include "simulatedreceiver.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>

#include "measurementtree.h"

namespace {

struct Channel
{
    double frequency; ///< in Hz
    const char* frequencyText;
    double bandwidth; ///< in Hz
    const char* bandwidthText;
    const char* modulation;
    double level; ///< in dBµV
    double azimuth; ///< in degrees
};

constexpr std::array<Channel, 4> Channels {{
    {98.5e6, "98.5 MHz", 150e3, "150 kHz", "FM", 47.0, 235.1},
    {121.5e6, "121.5 MHz", 8e3, "8 kHz", "AM", 6.0, 12.4},
    {162.025e6, "162.025 MHz", 25e3, "25 kHz", "PSK", 33.5, 359.7},
    {433.92e6, "433.92 MHz", 25e3, "25 kHz", "AM", 58.0, 81.9},
}};

constexpr int StepsPerChannel = 12;
constexpr int IntervalMs = 250;
constexpr std::size_t KeptLevels = 5;
constexpr int SweepSteps = 100; ///< on each side of the tuned frequency
constexpr double SweepWidth = 2.5; ///< on each side, in bandwidths
constexpr double NoiseFloor = -8.0; ///< in dBµV
constexpr double WeakestBearing = 30.0; ///< in percent

/// One decimal is what such a receiver shows.
double rounded(double value)
{
    return std::round(value * 10.0) / 10.0;
}

/// An angle from 0 up to, but not including, 360 degrees.
double wrapped(double degrees)
{
    const double angle = rounded(std::fmod(degrees + 360.0, 360.0));
    return angle < 360.0 ? angle : 0.0;
}

/// Even noise of our own making: the standard's distributions give different numbers with different libraries.
double evenNoise(std::minstd_rand& random, double amplitude)
{
    constexpr double greatest = std::minstd_rand::max();
    return amplitude * (2.0 * static_cast<double>(random()) / greatest - 1.0);
}

} // namespace

SimulatedReceiver::SimulatedReceiver(const MeasurementTree& tree, QObject* parent)
    : QObject(parent)
    , m_tree(tree)
{
    for (const Channel& channel : Channels) {
        m_tree.Frequency().AddChoice(channel.frequency, QString::fromUtf8(channel.frequencyText));
        m_tree.Bandwidth().AddChoice(channel.bandwidth, QString::fromUtf8(channel.bandwidthText));
    }
    connect(&m_timer, &QTimer::timeout, this, &SimulatedReceiver::Step);
    Step();
}

SimulatedReceiver::~SimulatedReceiver() = default;

void SimulatedReceiver::Start()
{
    m_timer.start(IntervalMs);
}

void SimulatedReceiver::Step()
{
    const int channel = (m_iSteps / StepsPerChannel) % static_cast<int>(Channels.size());
    if (m_iSteps % StepsPerChannel == 0) {
        tune(channel);
    }
    measure(channel);
    sweep(channel);
    ++m_iSteps;
    Q_EMIT Measured();
}

void SimulatedReceiver::FinishChannel()
{
    do {
        Step();
    } while (m_iSteps % StepsPerChannel != 0);
}

bool SimulatedReceiver::HasBearing() const
{
    return m_tree.Quality().GetNumericValue() >= WeakestBearing;
}

const std::deque<double>& SimulatedReceiver::GetLevels() const
{
    return m_levels;
}

const SimulatedReceiver::Spectrum& SimulatedReceiver::GetSpectrum() const
{
    return m_spectrum;
}

void SimulatedReceiver::tune(int channel)
{
    m_tree.Frequency().Select(channel);
    m_tree.Bandwidth().Select(channel);
    m_tree.Modulation().SetText(QString::fromUtf8(Channels[static_cast<std::size_t>(channel)].modulation));
    m_levels.clear();
}

void SimulatedReceiver::measure(int channel)
{
    const Channel& measured = Channels[static_cast<std::size_t>(channel)];
    const double level = rounded(measured.level + noise(2.5));
    m_tree.Level().SetValue(level);
    m_levels.push_back(level);
    if (m_levels.size() > KeptLevels) {
        m_levels.pop_front();
    }
    m_tree.Azimuth().SetValue(wrapped(measured.azimuth + noise(1.0)));
    // The stronger the signal, the better the bearing.
    m_tree.Quality().SetValue(std::clamp(std::round(2.0 * level), 0.0, 99.0));
}

/// A signal that is flat in its middle, falls off within its bandwidth and drowns in the noise.
void SimulatedReceiver::sweep(int channel)
{
    const Channel& swept = Channels[static_cast<std::size_t>(channel)];
    const double level = m_tree.Level().GetNumericValue();
    m_spectrum = {};
    for (int step = -SweepSteps; step <= SweepSteps; ++step) {
        const double distance = SweepWidth * step / SweepSteps; // in bandwidths
        const double signal = NoiseFloor + (level - NoiseFloor) * std::exp(-8.0 * std::pow(distance, 4));
        const double around = step == 0 ? 0.0 : evenNoise(m_sweepRandom, 1.5);
        m_spectrum.frequencies.push_back(swept.frequency + distance * swept.bandwidth);
        m_spectrum.levels.push_back(signal + around);
    }
}

double SimulatedReceiver::noise(double amplitude)
{
    return evenNoise(m_random, amplitude);
}
