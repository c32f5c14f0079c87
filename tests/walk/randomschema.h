#ifndef XMLHELPER_TESTS_RANDOMSCHEMA_H
#define XMLHELPER_TESTS_RANDOMSCHEMA_H

#include <random>

#include <QString>

/// Writes schemas at random, the same ones for the same seed: few names, so that elements of equal name stand under
/// many owners and inside each other; named types with many users; choices; occurrence limits of every kind; defaults.
class RandomSchema
{
public:
    explicit RandomSchema(unsigned seed)
        : m_random(seed)
    {
    }

    QString Make();

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random()) % bound; }
    bool isOneIn(unsigned chance) { return below(chance) == 0; }
    QString elementName();
    QString occurs();
    QString element(int depth);
    QString content(int depth);

    std::mt19937 m_random;
    int m_iElementsLeft = 0;
    int m_iTypes = 0;
};

#endif
