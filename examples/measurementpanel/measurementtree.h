#ifndef MEASUREMENTPANEL_MEASUREMENTTREE_H
#define MEASUREMENTPANEL_MEASUREMENTTREE_H

#include <valueframework/tree.h>

class Node;
class ValueNumeric;
class ValueSelection;
class ValueText;

/// The value tree of the measurement panel, the living tree of the application from construction to destruction.
///
/// Below the root there are three nodes: "Receiver" and "DirectionFinder" with the values of the measurement, and
/// "Station" with what is known of the place. Report items find the values by their paths, such as
/// "Receiver/Frequency"; whoever measures or shows them asks here. The tree owns everything it gives out, and must
/// outlive the report items that name its values.
class MeasurementTree
{
public:
    MeasurementTree();
    ~MeasurementTree();

    /// Frequency and bandwidth are selections: numbers in hertz that are shown with a prefix, such as "98.5 MHz".
    ValueSelection& Frequency() const { return *m_pFrequency; }
    ValueSelection& Bandwidth() const { return *m_pBandwidth; }
    ValueNumeric& Level() const { return *m_pLevel; }
    ValueText& Modulation() const { return *m_pModulation; }
    ValueText& Detector() const { return *m_pDetector; }
    ValueText& StartedAt() const { return *m_pStartedAt; }

    ValueNumeric& Azimuth() const { return *m_pAzimuth; }
    /// In percent; 0 stands for no bearing at all.
    ValueNumeric& Quality() const { return *m_pQuality; }

    Node* GetStation() const { return m_pStation; }

private:
    Q_DISABLE_COPY(MeasurementTree)

    void fillReceiver();
    void fillDirectionFinder();
    void fillStation();
    Node* addNode(const char* name);

    Tree m_tree;

    // All of them the tree's.
    Node* m_pStation = nullptr;
    ValueSelection* m_pFrequency = nullptr;
    ValueSelection* m_pBandwidth = nullptr;
    ValueNumeric* m_pLevel = nullptr;
    ValueText* m_pModulation = nullptr;
    ValueText* m_pDetector = nullptr;
    ValueText* m_pStartedAt = nullptr;
    ValueNumeric* m_pAzimuth = nullptr;
    ValueNumeric* m_pQuality = nullptr;
};

#endif
