#ifndef XMLHELPER_TESTS_RANDOMTREE_H
#define XMLHELPER_TESTS_RANDOMTREE_H

#include <random>
#include <vector>

#include <QDomDocument>
#include <QString>

/// Makes documents at random, the same ones in every run: elements of few names, so that equal names nest and repeat,
/// texts, sections, comments, and instructions that are called like the elements.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed)
        : m_random(seed)
    {
    }

    /// A document of about @p size nodes; every other one has a comment or an instruction behind its root.
    QDomDocument MakeDocument(int size);

    /// The names that its elements may have.
    static const std::vector<QString>& Names();

private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    QString anyName() { return Names()[static_cast<std::size_t>(below(static_cast<int>(Names().size())))]; }
    QDomNode makeNode(QDomDocument& document);

    std::mt19937 m_random;
};

/// @p top and everything below it in document order.
std::vector<QDomNode> nodesOf(const QDomNode& top);

#endif
