#include "textrendering.h"

#include <algorithm>

#include <QStringList>

#include "buttonrendering.h"
#include "copiesrendering.h"
#include "model/texts.h"

namespace schemadoctor {

namespace {

QString indent(int level)
{
    return QString(2 * level, QLatin1Char(' '));
}

QString fileNameOf(const QString& file)
{
    return file.section(QLatin1Char('/'), -1);
}

QString wordsFor(const Place& place)
{
    return place.line > 0 ? QStringLiteral("%1:%2").arg(place.file).arg(place.line) : place.file;
}

QString wordsFor(const QVector<Facet>& facets)
{
    QStringList words;
    for (const Facet& facet : facets) {
        const QString one = facet.name + QLatin1Char(' ') + facet.value;
        words.append(facet.isChecked ? one : Texts::tr("%1 (not checked)").arg(one));
    }
    return words.join(QLatin1String(", "));
}

QString wordsForValues(const QStringList& enumeration)
{
    constexpr int shown = 8;
    const QString words = enumeration.mid(0, shown).join(QLatin1String(" | "));
    return enumeration.size() > shown ? Texts::tr("%1 | ... (%2 values)").arg(words).arg(enumeration.size()) : words;
}

QString wordsFor(Setters setters)
{
    const QStringList names = namesOf(setters);
    return names.isEmpty() ? Texts::tr("no setter") : Texts::tr("set by %1").arg(names.join(QLatin1String(", ")));
}

QString lineFor(const SkeletonElement& element)
{
    QStringList words;
    if (isContainer(element)) {
        words.append(element.children.empty() ? Texts::tr("empty") : Texts::tr("container"));
    } else {
        words.append(element.type);
    }
    if (!element.facets.isEmpty()) {
        words.append(wordsFor(element.facets));
    }
    if (!element.enumeration.isEmpty()) {
        words.append(wordsForValues(element.enumeration));
    }
    if (!element.defaultValue.isEmpty()) {
        words.append(Texts::tr("default %1").arg(element.defaultValue));
    }
    words.append(Texts::tr("occurs %1, counts: %2").arg(wordsForOccurs(element), wordsForCounts(element)));
    if (element.isChoiceAlternative) {
        words.append(element.choiceGroup == SkeletonElement::None
                         ? Texts::tr("alternative by name")
                         : Texts::tr("alternative of choice %1").arg(element.choiceGroup));
    }
    words.append(Texts::tr("unfilled: %1").arg(wordsForUnfilled(element)));
    if (!isContainer(element)) {
        words.append(wordsFor(element.setters));
    }
    return QStringLiteral("%1: %2  [%3]")
        .arg(element.name, words.join(QLatin1String("; ")),
             wordsFor(Place {fileNameOf(element.place.file), element.place.line}));
}

QString lineFor(const DeclaredAttribute& attribute)
{
    QStringList words;
    words.append(attribute.type.isEmpty() ? Texts::tr("no type") : attribute.type);
    if (!attribute.facets.isEmpty()) {
        words.append(wordsFor(attribute.facets));
    }
    if (!attribute.enumeration.isEmpty()) {
        words.append(wordsForValues(attribute.enumeration));
    }
    words.append(wordsFor(attribute.setters));
    return QStringLiteral("@%1: %2").arg(attribute.name, words.join(QLatin1String("; ")));
}

QString treeText(const SkeletonTree& tree)
{
    QString text;
    std::vector<int> levels(tree.elements.size(), 0);
    for (std::size_t index = 0; index < tree.elements.size(); ++index) {
        const SkeletonElement& element = tree.elements[index];
        const int level = element.parent == SkeletonElement::None ? 0 : levels[std::size_t(element.parent)] + 1;
        levels[index] = level;
        text += indent(level) + lineFor(element) + QLatin1Char('\n');
        for (const DeclaredAttribute& attribute : element.attributes) {
            text += indent(level + 1) + lineFor(attribute) + QLatin1Char('\n');
        }
    }
    return text;
}

QString includeText(const IncludedFile& file, int level)
{
    QString text = QStringLiteral("%1%2 (%3)\n").arg(indent(level), file.written, wordsFor(file));
    for (const IncludedFile& included : file.includes) {
        text += includeText(included, level + 1);
    }
    return text;
}

QString indented(const QString& text, int level)
{
    QString result;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        result += indent(level) + line + QLatin1Char('\n');
    }
    return result;
}

/// Two trees beside each other.
QString besideText(const QString& left, const QString& right)
{
    const QString meant = Texts::tr("as it is meant");
    const QStringList leftLines = QStringList {meant} + left.split(QLatin1Char('\n'));
    const QStringList rightLines = QStringList {Texts::tr("as it is laid out")} + right.split(QLatin1Char('\n'));
    int width = 0;
    for (const QString& line : leftLines) {
        width = std::max(width, int(line.size()));
    }
    QString text;
    for (int i = 0; i < std::max(leftLines.size(), rightLines.size()); ++i) {
        const QString line = leftLines.value(i).leftJustified(width) + QLatin1String("  |  ") + rightLines.value(i);
        text += indent(2) + line + QLatin1Char('\n');
    }
    return text;
}

QString findingText(const Finding& finding)
{
    QString text = QStringLiteral("%1: %2: %3 [%4]\n")
                       .arg(wordsFor(finding.place), wordFor(finding.severity), finding.what, finding.rule);
    if (!finding.path.isEmpty()) {
        text += indented(Texts::tr("element: %1").arg(finding.path), 2);
    }
    text += indented(Texts::tr("effect:  %1").arg(finding.effect), 2);
    text += indented(Texts::tr("instead: %1").arg(finding.remedy), 2);
    if (!finding.meantTree.isEmpty()) {
        text += besideText(finding.meantTree, finding.laidOutTree);
    }
    return text;
}

QString countText(const Examination& examination)
{
    const ElementCount& count = examination.count;
    return count.limit.isEmpty() ? Texts::tr("%1 elements are laid out.").arg(count.elements) : count.limit;
}

QString summaryOf(const QVector<Finding>& findings)
{
    int counts[3] = {};
    for (const Finding& finding : findings) {
        ++counts[int(finding.severity)];
    }
    return findings.isEmpty() ? Texts::tr("No findings.")
                              : Texts::tr("%1 errors, %2 warnings, %3 notes.")
                                    .arg(counts[int(Severity::Error)])
                                    .arg(counts[int(Severity::Warning)])
                                    .arg(counts[int(Severity::Note)]);
}

QString proofText(const Proof& proof)
{
    const QString tried = wordsFor(proof);
    return tried.isEmpty() ? tried : tried + QLatin1Char('\n');
}

} // namespace

QString findingsTextOf(const Examination& examination)
{
    QString text;
    const QVector<FindingGroup> groups = groupsOf(examination.findings);
    for (const FindingGroup& group : groups) {
        if (group.count > 1) {
            text += wordsFor(group) + QLatin1Char('\n');
        }
        for (int index = group.first; index < group.first + group.count; ++index) {
            text += findingText(examination.findings.at(index));
        }
    }
    return text + summaryOf(examination.findings) + QLatin1Char('\n') + proofText(examination.proof);
}

QString textOf(const Examination& examination)
{
    QString text;
    if (examination.IsReadable()) {
        text += countText(examination) + QLatin1Char('\n');
        text += examination.tree.IsEmpty() ? examination.noTreeReason + QLatin1Char('\n') : treeText(examination.tree);
        text += copiesText(examination.tree) + buttonText(examination);
        if (!examination.includes.includes.empty()) {
            text += QLatin1Char('\n') + Texts::tr("Files") + QLatin1Char('\n') + includeText(examination.includes, 1);
        }
    } else {
        text += QStringLiteral("%1: %2\n").arg(examination.file, examination.unreadableReason);
    }
    if (examination.IsReadable() || !examination.findings.isEmpty()) {
        text += QLatin1Char('\n');
        text += findingsTextOf(examination);
    }
    return text;
}

} // namespace schemadoctor
