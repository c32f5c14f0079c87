#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include <QHash>
#include <QRegularExpression>

#include "rule.h"

namespace schemadoctor {

namespace {

/// What a fault goes back to. Those that go back to the same are told once.
struct FaultOrigin
{
    QString key; ///< empty where the fault stands alone
    QString subject;
    QString cause;
    QString remedy;
};

QString firstCaptureIn(const QString& message, const QRegularExpression& pattern)
{
    return pattern.match(message).captured(1);
}

/// The prefix of a name that has no namespace; empty for other faults.
QString undeclaredPrefixIn(const QString& message)
{
    static const QRegularExpression pattern(
        QStringLiteral("'([^':]+):[^']*' of simple type 'xs:QName' has no corresponding namespace declaration"));
    return firstCaptureIn(message, pattern);
}

bool isTargetNamespace(const Schema& schema, const QString& space)
{
    const std::vector<const TextFile*>& files = schema.GetFiles();
    return std::any_of(files.begin(), files.end(), [&space](const TextFile* file) {
        return file->root && file->root->Value("targetNamespace") == space;
    });
}

/// The namespace that a name is of and the schema has nothing of; empty for other faults.
QString foreignNamespaceIn(const Schema& schema, const QString& message)
{
    static const QRegularExpression notImported(
        QStringLiteral("components in the namespace '([^']+)' are not allowed, since not indicated by an import"));
    static const QRegularExpression unresolved(QStringLiteral("The QName value '\\{([^}]+)\\}[^']*' does not resolve"));
    const QString space = firstCaptureIn(message, notImported);
    const QString other = space.isEmpty() ? firstCaptureIn(message, unresolved) : space;
    return isTargetNamespace(schema, other) ? space : other;
}

/// The prefix that the root of a file binds to a namespace; empty for the default namespace and for none.
QString prefixOf(const Schema& schema, const QString& fileName, const QString& space)
{
    QString found;
    for (const TextFile* const file : schema.GetFiles()) {
        for (const auto& [prefix, bound] : file->namespaces) {
            if (file->name == fileName && bound == space) {
                found = prefix;
            }
        }
    }
    return found;
}

FaultOrigin ofPrefix(const QString& prefix, const QString& remedy)
{
    const QString cause = Texts::tr("the prefix '%1:'").arg(prefix);
    return {cause, prefix, cause, remedy};
}

FaultOrigin originOf(const Schema& schema, const GrammarFault& fault)
{
    const QString undeclared = undeclaredPrefixIn(fault.message);
    if (!undeclared.isEmpty()) {
        return ofPrefix(undeclared, Texts::tr("Declare the prefix: xmlns:%1=\"...\".").arg(undeclared));
    }
    const QString space = foreignNamespaceIn(schema, fault.message);
    if (!space.isEmpty()) {
        const QString remedy
            = Texts::tr("Include the schema that defines these names, and refer to them without a namespace.");
        const QString prefix = prefixOf(schema, fault.place.file, space);
        const QString cause = Texts::tr("the namespace '%1'").arg(space);
        return prefix.isEmpty() ? FaultOrigin {cause, space, cause, remedy} : ofPrefix(prefix, remedy);
    }
    if (fault.message.contains(QLatin1String("components in no namespace are not allowed"))) {
        const QString cause = QStringLiteral("target-namespace");
        return {cause, QString(), cause,
                Texts::tr("Remove targetNamespace, and the namespace declaration that goes with it.")};
    }
    return {QString(), QString(), QString(), Texts::tr("Mend the schema.")};
}

/// Knows in which lines the tags begin that end in a line, where libxml2 sees them.
class TagBegins
{
public:
    explicit TagBegins(const Schema& schema)
    {
        for (const TextFile* const file : schema.GetFiles()) {
            for (const TextNode* const tag : file->tags) {
                m_lines[{file->name, tag->lastLine}].insert(tag->line);
            }
        }
    }

    /// The place itself when there are several.
    Place BeginAt(const Place& place) const
    {
        const auto found = m_lines.find({place.file, place.line});
        return found == m_lines.end() || found->second.size() > 1 ? place : Place {place.file, *found->second.begin()};
    }

private:
    std::map<std::pair<QString, int>, std::set<int>> m_lines;
};

QString whatIsSaid(const QString& message, int count)
{
    return count == 1 ? Texts::tr("libxml2 does not accept the schema: %1").arg(message)
                      : Texts::tr("libxml2 does not accept the schema: %1 The same of %2 other uses.")
                            .arg(message, QString::number(count - 1));
}

} // namespace

/// What a validator says about the schema as a schema: a report is checked against it later. What many names share,
/// such as a prefix that is not declared, is told once, at its first use.
void invalidSchema(const Schema& schema, Findings& findings)
{
    std::vector<FaultOrigin> origins;
    QHash<QString, int> uses; // of each origin
    for (const GrammarFault& fault : schema.GetFaults()) {
        origins.push_back(originOf(schema, fault));
        ++uses[origins.back().key];
    }
    const TagBegins begins(schema);
    for (std::size_t index = 0; index < origins.size(); ++index) {
        const FaultOrigin& origin = origins[index];
        const GrammarFault& fault = schema.GetFaults().at(int(index));
        const int count = origin.key.isEmpty() ? 1 : uses.take(origin.key);
        if (count > 0) {
            Finding& finding = findings.Add(
                Severity::Warning, begins.BeginAt(fault.place), origin.subject, whatIsSaid(fault.message, count),
                Texts::tr("The library does not look at it, but no report can be validated."), origin.remedy);
            finding.cause = origin.cause;
        }
    }
}

} // namespace schemadoctor
