#include "htmlrendering.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QHash>

#include "htmlwriter.h"
#include "model/texts.h"
#include "pageparts.h"

namespace schemadoctor {

namespace {

constexpr int shownElements = 10000;
constexpr int shownFindings = 5000;
constexpr int shownCharacters = 4 * 1024 * 1024;
constexpr int unfoldedElements = 300; // a longer tree starts folded below its first level

QString wordsForMany(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return Texts::tr("errors");
    case Severity::Warning:
        return Texts::tr("warnings");
    default:
        return Texts::tr("notes");
    }
}

QString counted(int count, Severity severity)
{
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? wordFor(severity) : wordsForMany(severity));
}

QString wordsForElements(int count)
{
    return count == 1 ? Texts::tr("1 element laid out.") : Texts::tr("%1 elements laid out.").arg(count);
}

QString fileNameOf(const QString& file)
{
    return file.section(QLatin1Char('/'), -1);
}

// Writes the page of one examination.
class Page
{
public:
    explicit Page(const Examination& examination)
        : m_examination(examination)
    {
        numberTexts();
        assignFindings();
    }

    QString Write()
    {
        writeHead();
        m_writer.Start(QLatin1String("body"));
        m_writer.Element(
            QLatin1String("a"), Texts::tr("Skip to the findings"),
            {{QLatin1String("class"), QStringLiteral("skip")}, {QLatin1String("href"), QStringLiteral("#findings")}});
        writeHeader();
        m_writer.Start(QLatin1String("main"));
        writeTreeSection();
        writeFindingsSection();
        m_writer.End(QLatin1String("main"));
        writeTexts();
        m_writer.OwnElement(QLatin1String("script"), m_script);
        m_writer.End(QLatin1String("body"));
        m_writer.End(QLatin1String("html"));
        return QStringLiteral("<!DOCTYPE html>\n") + m_writer.Page();
    }

private:
    const SkeletonElement& element(int index) const { return m_examination.tree.elements[std::size_t(index)]; }
    int elementCount() const { return int(m_examination.tree.elements.size()); }

    // The top file first, then by name; as much as the page can bear.
    void numberTexts()
    {
        qsizetype characters = 0;
        const auto take = [&](const QString& file, const QString& text) {
            characters += text.size();
            if (characters <= shownCharacters && !m_textNumbers.contains(file)) {
                m_textNumbers.insert(file, int(m_textNumbers.size()));
                m_shownTexts.append(file);
            }
        };
        const auto top = m_examination.texts.find(m_examination.includes.file);
        if (top != m_examination.texts.end()) {
            take(top->first, top->second);
        }
        for (const auto& [file, text] : m_examination.texts) {
            take(file, text);
        }
    }

    void assignFindings()
    {
        QHash<QString, int> elementOfPath;
        for (int number = 0; number < m_examination.findings.size(); ++number) {
            const Finding& finding = m_examination.findings.at(number);
            ++m_severityCounts[finding.severity];
            if (finding.path.isEmpty() || number >= shownFindings) {
                continue;
            }
            if (!elementOfPath.contains(finding.path)) {
                elementOfPath.insert(finding.path, findByPath(m_examination.tree, finding.path));
            }
            const int index = elementOfPath.value(finding.path);
            if (index != SkeletonElement::None && index < shownElements) {
                m_elementOfFinding.insert(number, index);
                m_findingsOfElement[index].append(number);
            }
        }
    }

    void writeHead()
    {
        const QString policy = QStringLiteral("default-src 'none'; base-uri 'none'; form-action 'none'; style-src %1; "
                                              "script-src %2")
                                   .arg(hashOf(m_style), hashOf(m_script));
        m_writer.Start(QLatin1String("html"), {{QLatin1String("lang"), Texts::tr("en", "the language of the page")}});
        m_writer.Start(QLatin1String("head"));
        m_writer.Start(QLatin1String("meta"), {{QLatin1String("charset"), QStringLiteral("utf-8")}});
        m_writer.Start(QLatin1String("meta"),
                       {{QLatin1String("http-equiv"), QStringLiteral("Content-Security-Policy")},
                        {QLatin1String("content"), policy}});
        m_writer.Start(QLatin1String("meta"),
                       {{QLatin1String("name"), QStringLiteral("viewport")},
                        {QLatin1String("content"), QStringLiteral("width=device-width, initial-scale=1")}});
        m_writer.Element(QLatin1String("title"), Texts::tr("%1 - schema doctor").arg(fileNameOf(m_examination.file)));
        m_writer.OwnElement(QLatin1String("style"), m_style);
        m_writer.End(QLatin1String("head"));
    }

    void writeHeader()
    {
        m_writer.Start(QLatin1String("header"));
        m_writer.Element(QLatin1String("h1"), m_examination.file);
        m_writer.Start(QLatin1String("p"));
        m_writer.Text(summary() + QLatin1Char(' ') + wordsFor(m_examination.proof));
        m_writer.Text(QStringLiteral(" "));
        m_writer.Element(QLatin1String("a"), Texts::tr("To the findings"),
                         {{QLatin1String("href"), QStringLiteral("#findings")}});
        m_writer.End(QLatin1String("p"));
        writeBar();
        m_writer.End(QLatin1String("header"));
    }

    QString summary() const
    {
        if (!m_examination.IsReadable()) {
            return Texts::tr("The schema cannot be read: %1").arg(m_examination.unreadableReason);
        }
        const QString findings = m_examination.findings.isEmpty()
            ? Texts::tr("No findings.")
            : QStringLiteral("%1, %2, %3.")
                  .arg(counted(severityCount(Severity::Error), Severity::Error),
                       counted(severityCount(Severity::Warning), Severity::Warning),
                       counted(severityCount(Severity::Note), Severity::Note));
        const ElementCount& count = m_examination.count;
        return (count.limit.isEmpty() ? wordsForElements(count.elements) : count.limit) + QLatin1Char(' ') + findings;
    }

    int severityCount(Severity severity) const
    {
        const auto found = m_severityCounts.find(severity);
        return found == m_severityCounts.end() ? 0 : found->second;
    }

    // Only a browser that runs scripts shows it.
    void writeBar()
    {
        m_writer.Start(QLatin1String("div"),
                       {{QLatin1String("class"), QStringLiteral("bar")},
                        {QLatin1String("data-script"), QString()},
                        {QLatin1String("hidden"), QString()}});
        m_writer.Start(QLatin1String("input"),
                       {{QLatin1String("type"), QStringLiteral("search")},
                        {QLatin1String("id"), QStringLiteral("search")},
                        {QLatin1String("aria-label"), Texts::tr("Search for a name")},
                        {QLatin1String("placeholder"), Texts::tr("Search for a name (press /)")}});
        m_writer.Element(QLatin1String("button"), Texts::tr("Unfold all"),
                         {{QLatin1String("id"), QStringLiteral("unfold")}});
        m_writer.Element(QLatin1String("button"), Texts::tr("Fold all"),
                         {{QLatin1String("id"), QStringLiteral("fold")}});
        for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
            m_writer.Start(QLatin1String("label"));
            m_writer.Start(QLatin1String("input"),
                           {{QLatin1String("type"), QStringLiteral("checkbox")},
                            {QLatin1String("checked"), QString()},
                            {QLatin1String("data-severity"), nameOf(severity)}});
            m_writer.Text(QLatin1Char(' ') + wordsForMany(severity));
            m_writer.End(QLatin1String("label"));
        }
        m_writer.Element(QLatin1String("span"), QString(),
                         {{QLatin1String("id"), QStringLiteral("found")},
                          {QLatin1String("class"), QStringLiteral("faint")},
                          {QLatin1String("role"), QStringLiteral("status")},
                          {QLatin1String("data-words"), Texts::tr("%1 in the tree, %2 findings")}});
        m_writer.End(QLatin1String("div"));
    }

    void writeTreeSection()
    {
        m_writer.Start(QLatin1String("section"), {{QLatin1String("aria-label"), Texts::tr("Tree")}});
        m_writer.Element(QLatin1String("h2"), Texts::tr("What is laid out"));
        if (m_examination.tree.IsEmpty()) {
            m_writer.Element(QLatin1String("p"),
                             m_examination.IsReadable() ? m_examination.noTreeReason : m_examination.unreadableReason);
        } else {
            writeTree();
        }
        writeRootCandidates();
        writeIncludes();
        m_writer.End(QLatin1String("section"));
    }

    void writeTree()
    {
        if (elementCount() > shownElements) {
            m_writer.Element(QLatin1String("p"),
                             Texts::tr("The first %1 of %2 elements; --tree prints all of them.")
                                 .arg(shownElements)
                                 .arg(elementCount()));
        }
        m_writer.Start(QLatin1String("ul"), {{QLatin1String("class"), QStringLiteral("tree")}});
        writeElement(0, 0);
        m_writer.End(QLatin1String("ul"));
    }

    void writeElement(int index, int level)
    {
        const SkeletonElement& shown = element(index);
        const bool hasBranches = !shown.attributes.isEmpty() || !shown.children.empty();
        m_writer.Start(QLatin1String("li"));
        if (!hasBranches) {
            writeRow(index, QLatin1String("div"));
        } else {
            const bool isOpen = level == 0 || elementCount() <= unfoldedElements;
            isOpen ? m_writer.Start(QLatin1String("details"), {{QLatin1String("open"), QString()}})
                   : m_writer.Start(QLatin1String("details"));
            writeRow(index, QLatin1String("summary"));
            m_writer.Start(QLatin1String("ul"));
            for (const DeclaredAttribute& attribute : shown.attributes) {
                writeAttribute(attribute);
            }
            for (const int child : shown.children) {
                if (child < shownElements) {
                    writeElement(child, level + 1);
                }
            }
            m_writer.End(QLatin1String("ul"));
            m_writer.End(QLatin1String("details"));
        }
        m_writer.End(QLatin1String("li"));
    }

    void writeRow(int index, QLatin1String tag)
    {
        const SkeletonElement& shown = element(index);
        m_writer.Start(
            tag,
            {{QLatin1String("class"), QStringLiteral("row")}, {QLatin1String("id"), QStringLiteral("e%1").arg(index)}});
        m_writer.Element(QLatin1String("span"), shown.name, {{QLatin1String("class"), QStringLiteral("name")}});
        if (!shown.type.isEmpty()) {
            m_writer.Element(QLatin1String("span"), shown.type, {{QLatin1String("class"), QStringLiteral("type")}});
        }
        writeConstraints(shown.facets, shown.enumeration);
        if (!shown.defaultValue.isEmpty()) {
            writeFact(Texts::tr("default %1").arg(shown.defaultValue));
        }
        if (shown.parent != SkeletonElement::None) {
            writeFact(Texts::tr("occurs %1, counts taken: %2").arg(wordsForOccurs(shown), wordsForCounts(shown)));
        }
        if (shown.choiceGroup != SkeletonElement::None) {
            writeFact(Texts::tr("alternative of choice %1").arg(shown.choiceGroup));
        } else if (shown.isChoiceAlternative) {
            writeFact(Texts::tr("alternative by its name"));
        }
        writeFact(Texts::tr("unfilled it %1").arg(wordsForUnfilled(shown)));
        if (!isContainer(shown)) {
            writeSetters(shown.setters);
        }
        writePlace(shown.place);
        for (const int finding : m_findingsOfElement.value(index)) {
            writeMark(finding);
        }
        m_writer.End(tag);
    }

    void writeAttribute(const DeclaredAttribute& attribute)
    {
        m_writer.Start(QLatin1String("li"));
        m_writer.Start(QLatin1String("div"), {{QLatin1String("class"), QStringLiteral("row")}});
        m_writer.Element(QLatin1String("span"), QLatin1Char('@') + attribute.name,
                         {{QLatin1String("class"), QStringLiteral("name")}});
        m_writer.Element(QLatin1String("span"), attribute.type.isEmpty() ? Texts::tr("no type") : attribute.type,
                         {{QLatin1String("class"), QStringLiteral("type")}});
        writeConstraints(attribute.facets, attribute.enumeration);
        writeSetters(attribute.setters);
        writePlace(attribute.place);
        m_writer.End(QLatin1String("div"));
        m_writer.End(QLatin1String("li"));
    }

    void writeConstraints(const QVector<Facet>& facets, const QStringList& enumeration)
    {
        for (const Facet& facet : facets) {
            const QString words = facet.name + QLatin1Char(' ') + facet.value;
            writeFact(facet.isChecked ? words : Texts::tr("%1 (not checked)").arg(words));
        }
        if (!enumeration.isEmpty()) {
            writeFact(Texts::tr("one of %1").arg(enumeration.join(QStringLiteral(", "))));
        }
    }

    void writeSetters(Setters setters)
    {
        const QStringList names = namesOf(setters);
        if (names.isEmpty()) {
            m_writer.Element(QLatin1String("span"), Texts::tr("nothing can fill it"),
                             {{QLatin1String("class"), QStringLiteral("fact never")}});
        } else {
            writeFact(Texts::tr("set by %1").arg(names.join(QStringLiteral(", "))));
        }
    }

    void writeFact(const QString& words)
    {
        m_writer.Text(QStringLiteral(" "));
        m_writer.Element(QLatin1String("span"), words, {{QLatin1String("class"), QStringLiteral("fact")}});
    }

    void writeMark(int finding)
    {
        const Severity severity = m_examination.findings.at(finding).severity;
        m_writer.Text(QStringLiteral(" "));
        m_writer.Element(QLatin1String("a"), wordFor(severity),
                         {{QLatin1String("class"), QStringLiteral("severity ") + nameOf(severity)},
                          {QLatin1String("href"), QStringLiteral("#finding%1").arg(finding)}});
    }

    // A link to the line, when the page shows it.
    void writePlace(const Place& place)
    {
        if (place.file.isEmpty()) {
            return;
        }
        const QString words = place.line > 0 ? QStringLiteral("%1:%2").arg(fileNameOf(place.file)).arg(place.line)
                                             : fileNameOf(place.file);
        m_writer.Text(QStringLiteral(" "));
        if (m_textNumbers.contains(place.file)) {
            const int number = m_textNumbers.value(place.file);
            m_writer.Element(QLatin1String("a"), words,
                             {{QLatin1String("href"),
                               place.line > 0 ? QStringLiteral("#t%1-%2").arg(number).arg(place.line)
                                              : QStringLiteral("#t%1").arg(number)}});
        } else {
            m_writer.Element(QLatin1String("span"), words, {{QLatin1String("class"), QStringLiteral("faint")}});
        }
    }

    void writeRootCandidates()
    {
        if (m_examination.rootCandidates.size() < 2) {
            return;
        }
        m_writer.Element(QLatin1String("h2"), Texts::tr("Who could be the root"));
        m_writer.Start(QLatin1String("ul"));
        for (const RootCandidate& candidate : m_examination.rootCandidates) {
            m_writer.Start(QLatin1String("li"));
            m_writer.Element(QLatin1String("code"), candidate.name);
            m_writer.Text((candidate.isAttribute ? QLatin1Char(' ') + Texts::tr("(an attribute)") : QString())
                          + (candidate.isChosen
                                 ? QStringLiteral(" - ") + Texts::tr("is the root: the greatest name wins")
                                 : QString()));
            writePlace(candidate.place);
            m_writer.End(QLatin1String("li"));
        }
        m_writer.End(QLatin1String("ul"));
    }

    void writeIncludes()
    {
        if (m_examination.includes.includes.empty()) {
            return;
        }
        m_writer.Element(QLatin1String("h2"), Texts::tr("Files"));
        m_writer.Start(QLatin1String("ul"));
        writeInclude(m_examination.includes);
        m_writer.End(QLatin1String("ul"));
    }

    void writeInclude(const IncludedFile& file)
    {
        m_writer.Start(QLatin1String("li"));
        m_writer.Element(QLatin1String("code"), file.written);
        m_writer.Text(QStringLiteral(" - ") + wordsFor(file));
        writePlace(file.place);
        if (!file.includes.empty()) {
            m_writer.Start(QLatin1String("ul"));
            for (const IncludedFile& included : file.includes) {
                writeInclude(included);
            }
            m_writer.End(QLatin1String("ul"));
        }
        m_writer.End(QLatin1String("li"));
    }

    void writeFindingsSection()
    {
        m_writer.Start(
            QLatin1String("section"),
            {{QLatin1String("id"), QStringLiteral("findings")}, {QLatin1String("aria-label"), Texts::tr("Findings")}});
        m_writer.Element(QLatin1String("h2"), Texts::tr("Findings"));
        const int count = int(m_examination.findings.size());
        if (count == 0) {
            m_writer.Element(QLatin1String("p"), Texts::tr("There are none."));
        }
        if (count > shownFindings) {
            m_writer.Element(QLatin1String("p"),
                             Texts::tr("The first %1 of %2; --json prints all of them.").arg(shownFindings).arg(count));
        }
        const QVector<FindingGroup> groups = groupsOf(m_examination.findings);
        for (const FindingGroup& group : groups) {
            if (group.count > 1 && group.first < shownFindings) {
                m_writer.Element(QLatin1String("h3"), wordsFor(group));
            }
            for (int number = group.first; number < std::min(group.first + group.count, shownFindings); ++number) {
                writeFinding(number);
            }
        }
        m_writer.End(QLatin1String("section"));
    }

    void writeFinding(int number)
    {
        const Finding& finding = m_examination.findings.at(number);
        const QString severity = nameOf(finding.severity);
        m_writer.Start(QLatin1String("article"),
                       {{QLatin1String("class"), QStringLiteral("finding ") + severity},
                        {QLatin1String("id"), QStringLiteral("finding%1").arg(number)},
                        {QLatin1String("data-severity"), severity}});
        m_writer.Start(QLatin1String("h3"));
        m_writer.Element(QLatin1String("span"), wordFor(finding.severity),
                         {{QLatin1String("class"), QStringLiteral("severity ") + severity}});
        m_writer.Text(QStringLiteral(" ") + finding.what);
        m_writer.End(QLatin1String("h3"));
        m_writer.Start(QLatin1String("p"), {{QLatin1String("class"), QStringLiteral("faint")}});
        m_writer.Text(finding.rule);
        writePlace(finding.place);
        if (m_elementOfFinding.contains(number)) {
            m_writer.Text(QStringLiteral(" "));
            m_writer.Element(QLatin1String("a"), finding.path,
                             {{QLatin1String("href"), QStringLiteral("#e%1").arg(m_elementOfFinding.value(number))}});
        }
        m_writer.End(QLatin1String("p"));
        writeLabelled(Texts::tr("What the library does:"), finding.effect);
        writeLabelled(Texts::tr("Write instead:"), finding.remedy);
        if (!finding.meantTree.isEmpty() || !finding.laidOutTree.isEmpty()) {
            m_writer.Start(QLatin1String("div"), {{QLatin1String("class"), QStringLiteral("trees")}});
            writePiece(Texts::tr("As it is meant"), finding.meantTree);
            writePiece(Texts::tr("As it is laid out"), finding.laidOutTree);
            m_writer.End(QLatin1String("div"));
        }
        m_writer.End(QLatin1String("article"));
    }

    void writeLabelled(const QString& label, const QString& text)
    {
        if (text.isEmpty()) {
            return;
        }
        m_writer.Start(QLatin1String("p"));
        m_writer.Element(QLatin1String("span"), label + QLatin1Char(' '),
                         {{QLatin1String("class"), QStringLiteral("label")}});
        m_writer.Text(text);
        m_writer.End(QLatin1String("p"));
    }

    void writePiece(const QString& caption, const QString& piece)
    {
        m_writer.Start(QLatin1String("figure"));
        m_writer.Element(QLatin1String("figcaption"), caption, {{QLatin1String("class"), QStringLiteral("label")}});
        m_writer.Element(QLatin1String("pre"), piece);
        m_writer.End(QLatin1String("figure"));
    }

    void writeTexts()
    {
        m_writer.Start(QLatin1String("section"), {{QLatin1String("id"), QStringLiteral("texts")}});
        m_writer.Element(QLatin1String("h2"), Texts::tr("Schema"));
        for (const QString& file : std::as_const(m_shownTexts)) {
            writeText(m_textNumbers.value(file), file, m_examination.texts.at(file));
        }
        if (std::size_t(m_shownTexts.size()) < m_examination.texts.size()) {
            m_writer.Element(QLatin1String("p"), Texts::tr("Files that are too long for the page are left out."));
        }
        m_writer.End(QLatin1String("section"));
    }

    void writeText(int number, const QString& file, const QString& text)
    {
        m_writer.Start(QLatin1String("details"), {{QLatin1String("id"), QStringLiteral("t%1").arg(number)}});
        m_writer.Element(QLatin1String("summary"), file);
        m_writer.Start(QLatin1String("div"), {{QLatin1String("class"), QStringLiteral("text")}});
        int line = 0;
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (const QString& words : lines) {
            m_writer.Element(QLatin1String("span"), words.endsWith(QLatin1Char('\r')) ? words.chopped(1) : words,
                             {{QLatin1String("id"), QStringLiteral("t%1-%2").arg(number).arg(++line)}});
        }
        m_writer.End(QLatin1String("div"));
        m_writer.End(QLatin1String("details"));
    }

    const Examination& m_examination;
    const QString m_style = resource(QStringLiteral("page.css"));
    const QString m_script = resource(QStringLiteral("page.js"));
    HtmlWriter m_writer;
    QHash<QString, int> m_textNumbers; // of the files whose text is shown
    QStringList m_shownTexts;
    std::map<Severity, int> m_severityCounts;
    QHash<int, int> m_elementOfFinding;
    QHash<int, QVector<int>> m_findingsOfElement;
};

} // namespace

QByteArray htmlOf(const Examination& examination)
{
    return Page(examination).Write().toUtf8();
}

} // namespace schemadoctor
