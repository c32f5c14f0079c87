#include <map>
#include <QStringList>
#include <set>

#include "rule.h"

namespace schemadoctor {

namespace {

using Graph = std::map<QString, std::map<QString, const TextNode*>>;

/// Which definition refers to which, and by which tag; @p order takes the definitions in the order of reading.
Graph referencesOf(const Schema& schema, std::vector<QString>& order)
{
    Graph graph;
    for (const TextNode* const tag : schema.Tags({"element", "extension", "restriction", "group"})) {
        const TextNode* const around = globalAround(*tag);
        if (!around || !around->Has("name")) {
            continue;
        }
        for (const char* const attribute : {"type", "ref", "base"}) {
            const QString name = tag->Value(attribute);
            if (!name.isEmpty() && !isBuiltIn(name)) {
                order.push_back(around->Value("name"));
                graph[around->Value("name")].emplace(localPart(name), tag);
            }
        }
    }
    return graph;
}

/// Walks all references and tells of each that leads back to a definition on the way.
class CycleSearch
{
public:
    CycleSearch(const Schema& schema, Findings& findings)
        : m_isGivenUp(schema.GetRecord().GetEnd() == SchemaRecord::End::TypesWaitForEachOther)
        , m_graph(referencesOf(schema, m_order))
        , m_findings(findings)
    {
    }

    void Run();

private:
    struct Step
    {
        QString name;
        std::map<QString, const TextNode*>::const_iterator next;
        std::map<QString, const TextNode*>::const_iterator end;
    };

    void enter(const QString& name);
    void tell(const QString& name, const TextNode& reference);

    std::vector<QString> m_order;
    const bool m_isGivenUp;
    const Graph m_graph;
    Findings& m_findings;
    std::set<QString> m_done;
    std::set<QString> m_onTheWay;
    std::vector<Step> m_way;
};

/// With a stack of its own: schemas have chains of thousands of types.
void CycleSearch::Run()
{
    for (const QString& start : m_order) {
        if (m_done.count(start) == 0) {
            enter(start);
        }
        while (!m_way.empty()) {
            Step& step = m_way.back();
            if (step.next == step.end) {
                m_onTheWay.erase(step.name);
                m_way.pop_back();
                continue;
            }
            const auto& [name, reference] = *step.next++;
            const QString target = name;
            if (m_onTheWay.count(target) > 0) {
                tell(target, *reference);
            } else if (m_done.count(target) == 0) {
                enter(target);
            }
        }
    }
}

void CycleSearch::enter(const QString& name)
{
    m_done.insert(name);
    const auto references = m_graph.find(name);
    if (references != m_graph.end()) {
        m_onTheWay.insert(name);
        m_way.push_back({name, references->second.begin(), references->second.end()});
    }
}

void CycleSearch::tell(const QString& name, const TextNode& reference)
{
    QStringList cycle;
    for (auto step = m_way.rbegin(); step != m_way.rend(); ++step) {
        cycle.prepend(step->name);
        if (step->name == name) {
            break;
        }
    }
    cycle.append(name);
    m_findings.Add(m_isGivenUp ? Severity::Error : Severity::Warning, reference,
                   Texts::tr("Definitions contain each other: %1.").arg(cycle.join(QLatin1String(" > "))),
                   m_isGivenUp
                       ? Texts::tr("They wait for each other, and the whole schema is given up: the report holds "
                                   "nothing.")
                       : Texts::tr("The repetition ends where the library meets it: a report has no more levels "
                                   "than are laid out."),
                   Texts::tr("Write as many levels as reports have, each as a type of its own."));
}

} // namespace

void recursion(const Schema& schema, Findings& findings)
{
    CycleSearch(schema, findings).Run();
}

} // namespace schemadoctor
