#include "simulatedreceiver.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDateTime>

#include <valueframework/node.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

namespace {

struct Channel
{
    double frequency, bandwidth; ///< in Hz
    const char *frequencyText, *bandwidthText;
    double level, azimuth; ///< in dBµV, and in degrees
};
constexpr std::array<Channel, 4> Channels {{
    {98.5e6, 150e3, "98.5 MHz", "150 kHz", 47.0, 235.1},
    {121.5e6, 8e3, "121.5 MHz", "8 kHz", 6.0, 12.4},
    {162.025e6, 25e3, "162.025 MHz", "25 kHz", 33.5, 301.7},
    {433.92e6, 25e3, "433.92 MHz", "25 kHz", 58.0, 81.9},
}};
constexpr std::size_t MeasurementsPerChannel = 12, KeptLevels = 5;

/// Gives @p value its place below @p node, which owns it from here on.
template <typename Value> Value* addTo(Node* node, Value* value)
{
    new ValueItem(value, node);
    return value;
}

} // namespace

SimulatedReceiver::SimulatedReceiver()
{
    auto* const receiver = new Node(QStringLiteral("Receiver"), m_tree.GetRoot());
    addTo(receiver, new ValueText(QStringLiteral("Name"), QStringLiteral("Simulated receiver")));
    addTo(receiver, new ValueText(QStringLiteral("Serial"), QStringLiteral("SR-0417")));
    addTo(receiver, new ValueText(QStringLiteral("StartedAt"), QDateTime::currentDateTime().toString(Qt::ISODate)));
    addTo(receiver, new ValueText(QStringLiteral("Detector"), QStringLiteral("Peak")));
    addTo(receiver, new ValueText(QStringLiteral("Modulation"), QStringLiteral("AM")));
    m_pFrequency = addTo(receiver, new ValueSelection(QStringLiteral("Frequency")));
    m_pBandwidth = addTo(receiver, new ValueSelection(QStringLiteral("Bandwidth")));
    m_pLevel = addTo(receiver, new ValueNumeric(QStringLiteral("Level"), 0.0, QStringLiteral("dBµV")));
    auto* const finder = new Node(QStringLiteral("DirectionFinder"), m_tree.GetRoot());
    m_pAzimuth = addTo(finder, new ValueNumeric(QStringLiteral("Azimuth"), 0.0, QStringLiteral("°")));
    m_pQuality = addTo(finder, new ValueNumeric(QStringLiteral("Quality"), 0.0, QStringLiteral("%")));
    m_pStation = new Node(QStringLiteral("Station"), m_tree.GetRoot());
    addTo(m_pStation, new ValueText(QStringLiteral("Site"), QStringLiteral("Tower & Hilltop")));
    addTo(m_pStation, new ValueNumeric(QStringLiteral("Latitude"), 47.9959));
    addTo(m_pStation, new ValueNumeric(QStringLiteral("Longitude"), 7.8522));
    for (const Channel& channel : Channels) {
        m_pFrequency->AddChoice(channel.frequency, QString::fromUtf8(channel.frequencyText));
        m_pBandwidth->AddChoice(channel.bandwidth, QString::fromUtf8(channel.bandwidthText));
    }
    connect(&m_timer, &QTimer::timeout, this, &SimulatedReceiver::measure);
    MeasureNextChannel();
}

void SimulatedReceiver::MeasureNextChannel()
{
    do {
        measure();
    } while (m_iMeasurements % MeasurementsPerChannel != 0);
}

void SimulatedReceiver::measure()
{
    const std::size_t tuned = (m_iMeasurements / MeasurementsPerChannel) % Channels.size();
    if (m_iMeasurements++ % MeasurementsPerChannel == 0) {
        m_pFrequency->Select(static_cast<int>(tuned));
        m_pBandwidth->Select(static_cast<int>(tuned));
        m_levels.clear();
    }
    m_levels.push_back(Channels[tuned].level + noise(2.5));
    if (m_levels.size() > KeptLevels) {
        m_levels.pop_front();
    }
    m_pLevel->SetValue(m_levels.back());
    m_pAzimuth->SetValue(Channels[tuned].azimuth + noise(1.0));
    m_pQuality->SetValue(std::clamp(std::round(2.0 * m_levels.back()), 0.0, 99.0)); // the stronger, the better
    Q_EMIT Measured();
}

/// Even noise in tenths. The standard's distributions give other numbers with other libraries.
double SimulatedReceiver::noise(double amplitude)
{
    return std::round(10 * amplitude * (2.0 * static_cast<double>(m_random()) / std::minstd_rand::max() - 1.0)) / 10;
}
