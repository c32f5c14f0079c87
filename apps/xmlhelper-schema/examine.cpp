#include "examine.h"

#include <algorithm>
#include <tuple>

#include <xmlhelper/documentfile_p.h>

#include "reading/doctorlimits.h"
#include "reading/grammarcheck.h"
#include "reading/layoutplan.h"
#include "reading/libraryreading.h"
#include "reading/schematext.h"
#include "reading/treebuilder.h"
#include "rules/rule.h"

namespace schemadoctor {

namespace {

QString withLine(const QString& text, int line)
{
    return line > 0 ? QStringLiteral("line %1: %2").arg(line).arg(text) : text;
}

/// Why the top file cannot be examined; empty when it can.
QString unreadableReasonOf(const TextFile& file)
{
    if (file.isMissing) {
        return QStringLiteral("The file cannot be opened.");
    }
    if (file.isTooBig) {
        return QStringLiteral("The file is longer than the %1 bytes that are examined.").arg(MaxSchemaBytes);
    }
    if (!file.root) {
        return file.fault.isEmpty() ? QStringLiteral("The file holds no XML.")
                                    : QStringLiteral("No well-formed XML, ") + withLine(file.fault, file.faultLine);
    }
    return QString();
}

QString noTreeReasonOf(const LayoutPlan& plan)
{
    switch (plan.GetEnd()) {
    case LayoutPlan::End::TypeIsMissing:
        return QStringLiteral("The library gives the schema up: a definition that it refers to never comes.");
    case LayoutPlan::End::TypesWaitForEachOther:
        return QStringLiteral("The library gives the schema up: definitions wait for each other.");
    case LayoutPlan::End::LimitExceeded:
        return QStringLiteral("The library gives the schema up: ") + plan.GetLimit();
    case LayoutPlan::End::TooMuchForTheDoctor:
        return QStringLiteral("Too much to be shown: ") + plan.GetLimit();
    case LayoutPlan::End::Reached:
        break;
    }
    if (plan.GetCount().elements > MaxShownElements || plan.GetElementsOfAllDefinitions() > MaxLaidOutElements) {
        return QStringLiteral("Too much to be shown: trees of up to %1 elements are.").arg(MaxShownElements);
    }
    return QString();
}

int rootCountOf(const LibraryReading& reading)
{
    int count = 0;
    for (QDomElement root = reading.GetRoot(); !root.isNull(); root = root.nextSiblingElement()) {
        ++count;
    }
    return count;
}

/// Errors first; then the files in the order of reading, and the lines.
void sortFindings(QVector<Finding>& findings, const LayoutPlan& plan)
{
    QHash<QString, int> ranks;
    for (const TextFile* const file : plan.GetReadFiles()) {
        ranks.insert(file->name, int(ranks.size()));
    }
    std::stable_sort(findings.begin(), findings.end(), [&ranks](const Finding& left, const Finding& right) {
        const auto keyOf = [&ranks](const Finding& finding) {
            return std::make_tuple(-int(finding.severity), ranks.value(finding.place.file, int(ranks.size())),
                                   finding.place.line);
        };
        return keyOf(left) < keyOf(right);
    });
}

} // namespace

Examination examine(const QString& file)
{
    Examination examination;
    examination.file = file;
    SchemaText text;
    const TextFile& top = *text.Open(openableFileName(file));
    examination.unreadableReason = unreadableReasonOf(top);
    if (!examination.IsReadable()) {
        examination.texts[top.name] = top.text;
        examination.includes.written = file;
        examination.includes.file = top.name;
        examination.includes.state = top.isMissing ? IncludeState::Missing : IncludeState::Malformed;
        return examination;
    }

    // From the text first: it says whether the rest can be afforded.
    const LayoutPlan plan(text, file);
    examination.count = plan.GetCount();
    examination.includes = plan.GetIncludes();
    examination.rootCandidates = plan.GetRootCandidates();
    for (const TextFile* const read : plan.GetReadFiles()) {
        examination.texts[read->name] = read->text;
    }
    const QVector<GrammarFault> faults = grammarFaultsOf(top.name);
    examination.noTreeReason = noTreeReasonOf(plan);
    if (examination.noTreeReason.isEmpty()) {
        const LibraryReading reading(file);
        if (!reading.GetFault().isEmpty()) {
            examination.unreadableReason = QStringLiteral("The library cannot read the file, ")
                + withLine(reading.GetFault(), reading.GetFaultLine());
        } else {
            examination.tree = builtTree(reading, plan);
            examination.tree.rootCount = rootCountOf(reading);
        }
        if (examination.tree.IsEmpty()) {
            examination.noTreeReason = QStringLiteral("The library lays nothing out.");
        }
    }

    const Schema schema(plan, examination.tree, faults);
    for (const Rule& rule : allRules()) {
        Findings findings(schema, QString::fromLatin1(rule.name));
        rule.check(schema, findings);
        examination.findings += findings.Take();
    }
    sortFindings(examination.findings, plan);
    return examination;
}

} // namespace schemadoctor
