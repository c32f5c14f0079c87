#include <QStringList>

#include "rule.h"

namespace schemadoctor {

/// The global declarations that nothing refers to compete, and the greatest name wins.
void rootChoice(const Schema& schema, Findings& findings)
{
    const QVector<RootCandidate>& candidates = schema.GetRecord().GetRootCandidates();
    const SkeletonTree& tree = schema.GetTree();
    if (tree.IsEmpty()) {
        return;
    }
    if (candidates.isEmpty()) {
        findings.Add(
            Severity::Error, tree.elements.front().place, tree.elements.front().name,
            Texts::tr("No global element is left for the root: something refers to each of them, or comes "
                      "in front of an include."),
            Texts::tr("The definition that was read last is taken: '%1'.").arg(tree.elements.front().name),
            Texts::tr("Declare the element that reports begin with globally, behind all includes, and refer to "
                      "it nowhere."));
        return;
    }
    if (candidates.size() < 2) {
        return;
    }
    QStringList names;
    for (const RootCandidate& candidate : candidates) {
        names.append(candidate.name);
    }
    const RootCandidate& chosen = candidates.last();
    findings.Add(Severity::Warning, chosen.place, chosen.name,
                 Texts::tr("%1 global declarations compete for the root of the report: %2.")
                     .arg(candidates.size())
                     .arg(names.join(QLatin1String(", "))),
                 Texts::tr("Nothing refers to them; '%1' wins, because its name is the greatest.").arg(chosen.name),
                 Texts::tr("Leave out what no report needs, or refer to it, so that only the root is left."));
}

} // namespace schemadoctor
