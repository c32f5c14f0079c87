#include "proof.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include <QDataStream>
#include <QHash>
#include <QIODevice>
#include <QSet>

#include <confinedchild.h>
#include <xmlhelper/filesaving_p.h>

#include "filling.h"
#include "model/texts.h"
#include "reading/doctorlimits.h"
#include "validation.h"

namespace schemadoctor {

namespace {

/// Reading a schema of so many characters takes about as long as filling one element.
constexpr int CharactersOfAnElement = 50;

/// How many reports the doctor has time for.
int affordableReports(const Examination& examination)
{
    qsizetype characters = 0;
    for (const auto& text : examination.texts) {
        characters += text.second.size();
    }
    const qsizetype cost = qsizetype(examination.tree.elements.size()) + characters / CharactersOfAnElement;
    return int(MaxProofElements / std::max(qsizetype(1), cost));
}

QByteArray filledAndValidated(const QString& file, const SkeletonTree& tree, const std::vector<Filling>& fillings)
{
    QVector<QByteArray> reports;
    for (const Filling& filling : fillings) {
        reports.append(filledReport(file, tree, filling));
    }
    QVector<ValidityError> errors;
    const bool isCompiled = validate(openableFileName(file), reports, errors);
    QByteArray result;
    QDataStream stream(&result, QIODevice::WriteOnly);
    stream << isCompiled << errors;
    return result;
}

using PlaceKey = std::pair<QString, int>;

PlaceKey keyOf(const Place& place)
{
    return {place.file, place.line};
}

/// Knows which places have to do with an element of the tree.
class Surroundings
{
public:
    Surroundings(const SkeletonTree& tree, const std::vector<const TextFile*>& files);

    /// The element of the tree under these names; the nearest around it when there is none.
    int Find(const QStringList& names) const;

    /// Whether a finding is about the element, its declaration or its type.
    bool IsAbout(const Finding& finding, int element);

private:
    const QString& pathTo(int element);
    const std::set<PlaceKey>& placesOf(int element);
    void addAround(const TextNode* tag, std::set<PlaceKey>& places) const;
    void addBelow(const TextNode& tag, std::set<PlaceKey>& places, QSet<const TextNode*>& visited) const;

    const SkeletonTree& m_tree;
    const NameIndex m_names;
    QHash<QString, QHash<int, std::vector<const TextNode*>>> m_tags; ///< by file and line
    QHash<QString, std::vector<const TextNode*>> m_globals;
    std::map<int, QString> m_paths; ///< of the elements asked for
    std::map<int, std::set<PlaceKey>> m_places; ///< likewise
};

Surroundings::Surroundings(const SkeletonTree& tree, const std::vector<const TextFile*>& files)
    : m_tree(tree)
    , m_names(tree)
{
    for (const TextFile* const file : files) {
        for (const TextNode* const tag : file->tags) {
            m_tags[file->name][tag->line].push_back(tag);
            if (tag->IsGlobal()) {
                m_globals[tag->Value("name")].push_back(tag);
            }
        }
    }
}

int Surroundings::Find(const QStringList& names) const
{
    int found = SkeletonElement::None;
    int next = NameIndex::AboveRoot;
    for (const QString& name : names) {
        next = m_names.ChildOf(next, name);
        if (next == SkeletonElement::None) {
            break;
        }
        found = next;
    }
    return found;
}

bool Surroundings::IsAbout(const Finding& finding, int element)
{
    if (finding.severity == Severity::Note) {
        return false;
    }
    const bool isAboutAll = finding.severity == Severity::Error && finding.place.line == 0;
    return isAboutAll || (!finding.path.isEmpty() && finding.path == pathTo(element))
        || placesOf(element).count(keyOf(finding.place)) > 0;
}

const QString& Surroundings::pathTo(int element)
{
    QString& path = m_paths[element];
    if (path.isEmpty()) {
        path = pathOf(m_tree, element);
    }
    return path;
}

const std::set<PlaceKey>& Surroundings::placesOf(int element)
{
    const auto [found, isNew] = m_places.emplace(element, std::set<PlaceKey>());
    const SkeletonElement& laidOut = m_tree.elements[std::size_t(element)];
    if (isNew) {
        QSet<const TextNode*> visited;
        for (const Place& place : {laidOut.place, laidOut.particle}) {
            for (const TextNode* const tag : m_tags.value(place.file).value(place.line)) {
                addAround(tag->parent, found->second);
                addBelow(*tag, found->second, visited);
            }
        }
    }
    return found->second;
}

void Surroundings::addAround(const TextNode* tag, std::set<PlaceKey>& places) const
{
    for (; tag; tag = tag->parent) {
        places.insert(keyOf(tag->GetPlace()));
    }
}

/// What stands inside a declaration, and inside the definitions that it names; of elements below it the tags alone.
void Surroundings::addBelow(const TextNode& tag, std::set<PlaceKey>& places, QSet<const TextNode*>& visited) const
{
    std::vector<const TextNode*> open {&tag};
    while (!open.empty()) {
        const TextNode* const node = open.back();
        open.pop_back();
        if (visited.contains(node)) {
            continue;
        }
        visited.insert(node);
        places.insert(keyOf(node->GetPlace()));
        if (node != &tag && node->Is("element")) {
            continue;
        }
        for (const auto& child : node->children) {
            open.push_back(child.get());
        }
        for (const char* const attribute : {"type", "ref", "base"}) {
            const QString name = node->Value(attribute).section(QLatin1Char(':'), -1);
            const std::vector<const TextNode*> named = m_globals.value(name);
            open.insert(open.end(), named.begin(), named.end());
        }
    }
}

bool isForetold(const ValidityError& error, int element, Surroundings& surroundings, const Examination& examination)
{
    // A misplaced element is told at what stands there instead, and what is laid out wrongly may land on a sibling: the
    // cause may lie with those around it.
    const int parent = examination.tree.elements[std::size_t(element)].parent;
    return std::any_of(examination.findings.begin(), examination.findings.end(), [&](const Finding& finding) {
        const bool mayLieAround = error.isOfContent || finding.severity == Severity::Error;
        return surroundings.IsAbout(finding, element)
            || (mayLieAround && parent != SkeletonElement::None && surroundings.IsAbout(finding, parent))
            || (error.names.isEmpty() && finding.severity == Severity::Error);
    });
}

Finding findingOf(const ValidityError& error, int element, const Filling& filling, const SkeletonTree& tree)
{
    const SkeletonElement& laidOut = tree.elements[std::size_t(element)];
    Finding finding;
    finding.severity = Severity::Warning;
    finding.rule = QStringLiteral("unforetold");
    finding.place = laidOut.place;
    finding.subject = laidOut.name;
    finding.what = filling.verdict.arg(error.sentence);
    finding.effect = Texts::tr("The library writes the report all the same and says nothing of it.");
    finding.remedy = Texts::tr("Compare the declaration with the tree, and write what differs in another way.");
    finding.path = pathOf(tree, element);
    return finding;
}

void addUnforetold(const QVector<ValidityError>& errors, const std::vector<Filling>& fillings,
                   const std::vector<const TextFile*>& files, Examination& examination)
{
    Surroundings surroundings(examination.tree, files);
    std::set<std::pair<PlaceKey, QString>> told;
    QVector<Finding> unforetold;
    for (const ValidityError& error : errors) {
        const int element = std::max(0, surroundings.Find(error.names));
        const PlaceKey place = keyOf(examination.tree.elements[std::size_t(element)].place);
        if (unforetold.size() < MaxFindingsOfARule && told.emplace(place, error.sentence).second
            && !isForetold(error, element, surroundings, examination)) {
            unforetold.append(findingOf(error, element, fillings[std::size_t(error.report)], examination.tree));
        }
    }
    examination.findings += unforetold;
}

/// Writes down how many of the reports are valid, and that the rest of @p all was left out.
void tellReports(const QVector<ValidityError>& errors, int count, int all, Proof& proof)
{
    std::set<int> invalid;
    for (const ValidityError& error : errors) {
        invalid.insert(error.report);
    }
    proof.reports = count;
    proof.validReports = count - int(invalid.size());
    if (count < all) {
        proof.leftOut = Texts::tr("Of %1 reports to be filled on trial, %2 were left out: they would take too long.")
                            .arg(all)
                            .arg(all - count);
    }
}

} // namespace

void prove(const QString& file, const std::vector<const TextFile*>& files, Examination& examination)
{
    int all = 0;
    const std::vector<Filling> fillings = fillingsOf(examination.tree, affordableReports(examination), all);
    ChildResult result;
    if (!fillings.empty()) {
        result = resultOfChild([&](const auto& write) { write(filledAndValidated(file, examination.tree, fillings)); });
    }
    bool isCompiled = false;
    QVector<ValidityError> errors;
    QDataStream stream(result.bytes);
    stream >> isCompiled >> errors;
    if (!result.isWhole) {
        examination.proof.leftOut = Texts::tr("No report was filled on trial: it would take too long.");
    } else if (!isCompiled) {
        examination.proof.leftOut = Texts::tr("No report was validated: libxml2 does not take the schema.");
    } else {
        tellReports(errors, int(fillings.size()), all, examination.proof);
        addUnforetold(errors, fillings, files, examination);
    }
}

} // namespace schemadoctor
