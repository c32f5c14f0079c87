#include "examine.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include <QHash>
#include <QSet>

#include <xmlhelper/filesaving_p.h>

#include "button/buttontrial.h"
#include "model/texts.h"
#include "proof/proof.h"
#include "reading/doctorlimits.h"
#include "reading/grammarcheck.h"
#include "reading/schemarecord.h"
#include "reading/schematext.h"
#include "reading/skeletonbuilder.h"
#include "rules/rule.h"

namespace schemadoctor {

namespace {

QString withLine(const QString& text, int line)
{
    return line > 0 ? Texts::tr("line %1: %2").arg(line).arg(text) : text;
}

/// Why the top file cannot be examined; empty when it can.
QString unreadableReasonOf(const TextFile& file)
{
    if (file.isMissing) {
        return Texts::tr("The file cannot be opened.");
    }
    if (file.isTooBig) {
        return Texts::tr("The file is longer than the %1 bytes that are examined.").arg(MaxSchemaBytes);
    }
    if (!file.root) {
        return file.fault.isEmpty() ? Texts::tr("The file holds no XML.")
                                    : Texts::tr("No well-formed XML, %1").arg(withLine(file.fault, file.faultLine));
    }
    return QString();
}

/// Why there is no tree.
QString noTreeReasonOf(const SchemaRecord& record)
{
    switch (record.GetEnd()) {
    case SchemaRecord::End::TypeIsMissing:
        return Texts::tr("The library gives the schema up: a definition that it refers to never comes.");
    case SchemaRecord::End::TypesWaitForEachOther:
        return Texts::tr("The library gives the schema up: definitions wait for each other.");
    case SchemaRecord::End::NameRefused:
    case SchemaRecord::End::LimitExceeded:
        return Texts::tr("The library gives the schema up: %1").arg(record.GetLimit());
    case SchemaRecord::End::TooMuchForTheDoctor:
        return Texts::tr("Too much to be shown: %1").arg(record.GetLimit());
    case SchemaRecord::End::Reached:
        break;
    }
    return Texts::tr("The library lays nothing out.");
}

int rootCountOf(const SchemaRecord& record)
{
    int count = 0;
    for (QDomElement root = record.GetRoot(); !root.isNull(); root = root.nextSiblingElement()) {
        ++count;
    }
    return count;
}

/// What the library has made of the schema.
void tellReading(const SchemaRecord& record, Examination& examination)
{
    examination.includes = record.GetIncludes();
    examination.rootCandidates = record.GetRootCandidates();
    for (const TextFile* const read : record.GetReadFiles()) {
        examination.texts[read->name] = read->text;
    }
    if (examination.includes.state == IncludeState::Malformed) {
        examination.unreadableReason = Texts::tr("The library cannot read the file, %1")
                                           .arg(withLine(examination.includes.fault, examination.includes.faultLine));
    }
    examination.tree = builtTree(record);
    examination.tree.rootCount = rootCountOf(record);
    if (examination.tree.IsEmpty()) {
        examination.noTreeReason = noTreeReasonOf(record);
    }
    examination.count = {int(examination.tree.elements.size()), record.GetEnd() == SchemaRecord::End::LimitExceeded,
                         record.GetLimit()};
}

/// Groups of one cause: those with the worst findings first, and of these what the rules look at first, because what
/// follows often goes with it. In each, the worst first, then the files in the order of reading, and the lines.
void sortFindings(QVector<Finding>& findings, const SchemaRecord& record)
{
    QHash<QString, int> files;
    for (const TextFile* const file : record.GetReadFiles()) {
        files.insert(file->name, int(files.size()));
    }
    QHash<QString, std::pair<int, int>> causes; // how bad, and when it was found first
    for (int index = 0; index < int(findings.size()); ++index) {
        const Finding& finding = findings.at(index);
        auto cause = causes.find(causeOf(finding));
        if (cause == causes.end()) {
            cause = causes.insert(causeOf(finding), {0, index});
        }
        cause->first = std::min(cause->first, -int(finding.severity));
    }
    std::stable_sort(findings.begin(), findings.end(), [&](const Finding& left, const Finding& right) {
        const auto keyOf = [&](const Finding& finding) {
            return std::make_tuple(causes.value(causeOf(finding)), -int(finding.severity),
                                   files.value(finding.place.file, int(files.size())), finding.place.line);
        };
        return keyOf(left) < keyOf(right);
    });
}

/// Shows each pair of trees once, at the first finding that it belongs to.
void dropRepeatedTrees(QVector<Finding>& findings)
{
    QSet<QString> shown;
    for (Finding& finding : findings) {
        const QString pair = finding.meantTree + QChar(0) + finding.laidOutTree;
        if (shown.contains(pair)) {
            finding.meantTree.clear();
            finding.laidOutTree.clear();
        }
        shown.insert(pair);
    }
}

/// @param isByGrammar  whether libxml2 looks at the schema, too
Examination examined(const QString& file, bool isByGrammar, bool isToProve, bool isAsButton)
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

    // First: its process has the memory of this one, and a limit for it.
    const QVector<GrammarFault> faults = isByGrammar ? grammarFaultsOf(top.name) : QVector<GrammarFault>();
    const SchemaRecord record(text, file);
    tellReading(record, examination);
    const Schema schema(record, examination.tree, faults);
    for (const Rule& rule : allRules()) {
        Findings findings(schema, QString::fromLatin1(rule.name));
        rule.check(schema, findings);
        examination.findings += findings.Take();
    }
    if (isToProve && !examination.tree.IsEmpty()) {
        prove(file, record.GetReadFiles(), examination);
    }
    if (isAsButton && !examination.tree.IsEmpty()) {
        tryButton(file, examination);
    }
    sortFindings(examination.findings, record);
    dropRepeatedTrees(examination.findings);
    return examination;
}

} // namespace

Examination examine(const QString& file, bool isToProve, bool isAsButton)
{
    return examined(file, true, isToProve, isAsButton);
}

Examination examineAlone(const QString& file)
{
    return examined(file, false, false, false);
}

} // namespace schemadoctor
