#ifndef XMLHELPER_BENCHMARKS_FLOORWALK_H
#define XMLHELPER_BENCHMARKS_FLOORWALK_H

#include <list>
#include <vector>

#include <QDomDocument>
#include <QDomElement>

#include <xmlhelper/schemamodel.h>

class IXMLHelper;

/// What the schema says of an element that was left unfilled.
enum class Leave {
    Optional, ///< it may be missing
    Alternative, ///< it may be missing as an alternative of a choice, and has no limits of its own
    Required ///< it must not be missing
};

/// The walk of the report builder with the question "may this element be missing?" answered by a stub: the least that
/// the same walk can cost. It announces the same elements, sends the same errors and leaves the same document.
class FloorWalk
{
public:
    using Answer = Leave (*)(const QDomElement& element);

    /// The maps are copied, as the walk of the report builder has to; nothing is looked up in them.
    FloorWalk(IXMLHelper* observer, const OccursMap& occurs, const ChoiceMap& choices, Answer answer);

    bool SetDocument(QDomDocument* document);
    bool Walk();
    QDomElement* GetCurrentElement() { return &m_currentElement; }
    bool ContinueAt(QDomElement* element, bool revisit);

private:
    struct Level
    {
        QDomNode node;
        QString text;
    };

    void visit();
    bool checkCurrentElement();
    bool mayBeMissing();
    void remove(const QDomNode& node);

    IXMLHelper* m_observer;
    OccursMap m_occurs;
    ChoiceMap m_choices;
    Answer m_answer;
    QDomDocument* m_document = nullptr;
    QDomElement m_currentElement;
    QDomElement m_probationElement;
    QDomNode m_resumeNode;
    bool m_resume = false;
    bool m_revisit = false;
    std::vector<Level> m_levels;
    std::list<QDomNode> m_removedNodes; ///< kept alive until the walk has ended
};

#endif
