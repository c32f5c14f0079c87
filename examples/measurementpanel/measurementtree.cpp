#include "measurementtree.h"

#include <QDateTime>

#include <valueframework/node.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>

namespace {

/// Gives @p value its place below @p node, which owns it from here on.
template <typename Value> Value* addTo(Node* node, Value* value)
{
    new ValueItem(value, node);
    return value;
}

} // namespace

MeasurementTree::MeasurementTree()
{
    fillReceiver();
    fillDirectionFinder();
    fillStation();
}

MeasurementTree::~MeasurementTree() = default;

void MeasurementTree::fillReceiver()
{
    Node* const receiver = addNode("Receiver");
    addTo(receiver, new ValueText(QStringLiteral("Name"), QStringLiteral("Simulated receiver")));
    addTo(receiver, new ValueText(QStringLiteral("Serial"), QStringLiteral("SR-0417")));
    m_pStartedAt = addTo(
        receiver, new ValueText(QStringLiteral("StartedAt"), QDateTime::currentDateTime().toString(Qt::ISODate)));
    m_pDetector = addTo(receiver, new ValueText(QStringLiteral("Detector"), QStringLiteral("Peak")));
    m_pFrequency = addTo(receiver, new ValueSelection(QStringLiteral("Frequency")));
    m_pBandwidth = addTo(receiver, new ValueSelection(QStringLiteral("Bandwidth")));
    m_pLevel = addTo(receiver, new ValueNumeric(QStringLiteral("Level"), 0.0, QStringLiteral("dBµV")));
    m_pModulation = addTo(receiver, new ValueText(QStringLiteral("Modulation"), QString()));
}

void MeasurementTree::fillDirectionFinder()
{
    Node* const finder = addNode("DirectionFinder");
    m_pAzimuth = addTo(finder, new ValueNumeric(QStringLiteral("Azimuth"), 0.0, QStringLiteral("°")));
    m_pQuality = addTo(finder, new ValueNumeric(QStringLiteral("Quality"), 0.0, QStringLiteral("%")));
}

void MeasurementTree::fillStation()
{
    m_pStation = addNode("Station");
    addTo(m_pStation, new ValueText(QStringLiteral("Site"), QStringLiteral("Tower & Hilltop")));
    addTo(m_pStation, new ValueNumeric(QStringLiteral("Latitude"), 47.9959));
    addTo(m_pStation, new ValueNumeric(QStringLiteral("Longitude"), 7.8522));
}

Node* MeasurementTree::addNode(const char* name)
{
    return new Node(QLatin1String(name), m_tree.GetRoot());
}
