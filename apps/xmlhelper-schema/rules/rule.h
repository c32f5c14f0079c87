#ifndef SCHEMADOCTOR_RULE_H
#define SCHEMADOCTOR_RULE_H

#include <initializer_list>
#include <set>
#include <tuple>
#include <vector>

#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

#include "model/finding.h"
#include "model/skeletontree.h"
#include "model/texts.h"
#include "reading/grammarcheck.h"
#include "reading/schemarecord.h"
#include "reading/schematext.h"

namespace schemadoctor {

/// All that a rule can look at. Nothing of it changes while the rules run, and no rule knows of another.
class Schema
{
public:
    Schema(const SchemaRecord& record, const SkeletonTree& tree, const QVector<GrammarFault>& faults);

    const SchemaRecord& GetRecord() const { return m_record; }
    const SkeletonTree& GetTree() const { return m_tree; }
    const QVector<GrammarFault>& GetFaults() const { return m_faults; }
    const std::vector<const TextFile*>& GetFiles() const { return m_record.GetReadFiles(); }

    /// The tags of these names that the library can see, in all files, in the order of reading.
    std::vector<const TextNode*> Tags(std::initializer_list<const char*> names) const;

    /// The global declaration of that name; null when there is none.
    const TextNode* FindGlobal(std::initializer_list<const char*> tags, const QString& name) const;

    /// The first element that was laid out for a declaration; SkeletonElement::None when there is none.
    int FirstElementOf(const TextNode& declaration) const;

private:
    const SchemaRecord& m_record;
    const SkeletonTree& m_tree;
    const QVector<GrammarFault>& m_faults;
    QHash<QPair<QPair<QString, int>, QString>, int> m_firstElements;
    QHash<QString, std::vector<const TextNode*>> m_globals;
};

/// Takes the findings of one rule.
class Findings
{
public:
    Findings(const Schema& schema, const QString& rule);

    /// Adds a finding about a tag and gives it, to be completed: valid until the next is added.
    Finding& Add(Severity severity, const TextNode& tag, const QString& what, const QString& effect,
                 const QString& remedy);

    /// Adds a finding about a place, and about the laid-out element of that index when one is given.
    Finding& Add(Severity severity, const Place& place, const QString& subject, const QString& what,
                 const QString& effect, const QString& remedy, int element = SkeletonElement::None);

    /// What was found; when it is more than anybody reads, the last one says how many are left out.
    QVector<Finding> Take();

private:
    const Schema& m_schema;
    const QString m_rule;
    QVector<Finding> m_findings;
    Finding m_leftOut;
    int m_leftOutCount = 0;
};

/// Keeps a rule from telling of a declaration as often as it is laid out. Several may stand in one line.
class ToldDeclarations
{
public:
    /// Whether it is the first time.
    bool Add(const Place& place, const QString& name, const QString& type)
    {
        return m_told.emplace(place.file, place.line, name, type).second;
    }

private:
    std::set<std::tuple<QString, int, QString, QString>> m_told;
};

using Check = void (*)(const Schema& schema, Findings& findings);

struct Rule
{
    const char* name; ///< the identifier in findings, and the folder of its test
    Check check;
};

/// All rules.
const std::vector<Rule>& allRules();

// What several rules ask.

/// The name of what a tag declares, or of what it refers to; empty for a tag without a name.
QString nameOf(const TextNode& tag);

/// "xs:element 'Name'".
QString described(const TextNode& tag);

/// The named type in which a tag stands; null when it stands in a global element or attribute.
const TextNode* namedTypeAround(const TextNode& tag);

/// The global declaration in which a tag stands, or which it is.
const TextNode* globalAround(const TextNode& tag);

/// Whether a type name is one of XML Schema's own, as the library decides it.
bool isBuiltIn(const QString& type);

/// The name behind the prefix.
QString localPart(const QString& name);

/// The number as the library reads it in minOccurs or maxOccurs.
int occursOf(const TextNode& tag, const char* attribute, int otherwise);

/// Every include below a file, in the order of reading.
std::vector<const IncludedFile*> includesBelow(const IncludedFile& file);

/// Whether a group around an element may occur more than once, so that the element is meant to.
bool isInRepeatedGroup(const TextNode& tag);

/// What the author means below a declaration, and what is laid out for it: for Finding::meantTree and laidOutTree.
QString meantTreeOf(const Schema& schema, const TextNode& declaration);
QString laidOutTreeOf(const Schema& schema, const TextNode& declaration);
void addTrees(const Schema& schema, const TextNode& declaration, Finding& finding);

} // namespace schemadoctor

#endif
