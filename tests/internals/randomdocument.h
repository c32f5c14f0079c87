#ifndef XMLHELPER_TESTS_RANDOMDOCUMENT_H
#define XMLHELPER_TESTS_RANDOMDOCUMENT_H

#include <random>
#include <vector>

#include <QDomDocument>
#include <QString>

/// Makes documents at random, the same ones for the same seed, of all that a document may hold: nodes of every kind,
/// names with and without namespaces, texts full of what is escaped, document types.
class RandomDocument
{
public:
    explicit RandomDocument(unsigned seed)
        : m_random(seed)
    {
    }

    /// A small document.
    QDomDocument Make();

    /// A fragment of it, which takes some of its nodes away.
    QDomDocumentFragment TakeFragment(QDomDocument& document);

private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    QString anyOf(const std::vector<QString>& texts) { return texts[m_random() % texts.size()]; }
    QString anyText();
    QString anyName();
    QString anyNamespace();
    QDomDocument start();
    QDomNode makeNode(QDomDocument& document);
    QDomElement makeElement(QDomDocument& document);
    QDomAttr makeAttribute(QDomDocument& document);

    std::mt19937 m_random;
};

#endif
