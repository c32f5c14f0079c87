#include "pagewriter_p.h"

#include <algorithm>

#include <xmlhelper/xmltext_p.h>

#include "facets_p.h"
#include "schemaoutline_p.h"

namespace {

/// Longer words of the schema's author explain an element and do not name it.
constexpr int MaxLabelLength = 60;
constexpr int MaxExplanationLength = 400;

/// Wider tables are written as sections.
constexpr int MaxColumns = 16;

constexpr int MaxNamedAttributes = 6;

/// A schema may ask for more elements in each of many than any page can show as missing.
constexpr int MaxSteps = 5000000;
constexpr int StepsForMark = 100;

constexpr int DeepestHeading = 6;

QString spanOf(const char* cssClass, const QString& markup)
{
    return QStringLiteral("<span class=\"%1\">").arg(QLatin1String(cssClass)) + markup + QLatin1String("</span>");
}

bool isUnit(const QString& attribute)
{
    return attribute.compare(QLatin1String("unit"), Qt::CaseInsensitive) == 0;
}

bool isDeclared(const Place& place, const QString& attribute)
{
    return std::binary_search(place.attributes.begin(), place.attributes.end(), attribute);
}

} // namespace

QString escapedForPage(const QString& text)
{
    QString safe = representableText(text, "ReportPage").toHtmlEscaped();
    safe.replace(QLatin1Char('\''), QLatin1String("&#39;"));
    return safe.replace(QLatin1Char('\n'), QLatin1String("<br/>"));
}

bool PageWriter::Item::IsContainer() const
{
    return (place && !place->children.empty())
        || std::any_of(first, first + count, [](const ReportNode& node) { return !node.children.empty(); });
}

void PageWriter::Grid::Add(const QString& path, const QString& heading, const QString& value)
{
    const auto known = columns.constFind(path);
    const int column = known == columns.constEnd() ? int(headings.size()) : *known;
    if (known == columns.constEnd()) {
        columns.insert(path, column);
        headings.append(heading);
    }
    std::vector<QString>& row = rows.back();
    row.resize(std::max(row.size(), std::size_t(column) + 1));
    QString& cell = row[std::size_t(column)];
    cell += (cell.isEmpty() ? QString() : QStringLiteral("<br/>")) + value;
}

PageWriter::PageWriter(const SchemaOutline* outline, const QString& language, int rows)
    : m_pOutline(outline)
    , m_sLanguage(language)
    , m_iRowsOfTable(rows)
    , m_iSteps(MaxSteps)
{
}

void PageWriter::WriteReport(const ReportNode& root)
{
    writeContent(root, m_pOutline ? &m_pOutline->GetRoot() : nullptr, 1);
    endRows();
}

QString PageWriter::LabelOf(const Place* place, const QString& name) const
{
    const QString text = place ? m_pOutline->DocumentationOf(*place, m_sLanguage) : QString();
    if (text.isEmpty() || text.size() > MaxLabelLength) {
        return name;
    }
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
}

std::vector<PageWriter::Item> PageWriter::itemsOf(const ReportNode& node, const Place* place)
{
    std::vector<Item> items;
    for (const ReportNode& child : node.children) {
        if (!items.empty() && items.back().name == child.name) {
            ++items.back().count;
            continue;
        }
        const Place* const childPlace = place ? m_pOutline->FindChild(place, child.name) : nullptr;
        items.push_back({child.name, childPlace, &child, 1, place && !childPlace});
    }
    return place ? withMissing(items, *place) : items;
}

/// With what the place asks for and is not there, each behind what it would follow.
std::vector<PageWriter::Item> PageWriter::withMissing(const std::vector<Item>& present, const Place& place)
{
    m_iSteps -= int(place.children.size());
    if (m_iSteps <= 0) {
        return present;
    }
    QHash<QString, std::size_t> positions;
    for (std::size_t i = 0; i < present.size(); ++i) {
        positions.insert(present[i].name, i + 1);
    }
    std::vector<std::vector<Item>> behind(present.size() + 1);
    std::size_t position = 0;
    for (const auto& child : place.children) {
        const bool isPresent = positions.contains(child->name);
        position = isPresent ? positions.value(child->name) : position;
        if (!isPresent && child->IsRequired() && m_iSteps > 0) {
            m_iSteps -= StepsForMark;
            behind[position].push_back({child->name, child.get(), nullptr, 0, false});
        }
    }
    std::vector<Item> all = behind.front();
    for (std::size_t i = 0; i < present.size(); ++i) {
        all.push_back(present[i]);
        all.insert(all.end(), behind[i + 1].begin(), behind[i + 1].end());
    }
    return all;
}

void PageWriter::writeItem(const Item& item, int level)
{
    const QString label = LabelOf(item.place, item.name);
    if (item.first && item.IsContainer()) {
        writeContainers(item, label, level);
        return;
    }
    const QString text = item.place ? m_pOutline->DocumentationOf(*item.place, m_sLanguage) : QString();
    writeRow(label, item.first ? valuesOf(item) : missing(), text.size() > MaxLabelLength ? text : QString());
}

/// One as a section, several as a table, or as sections when the table would be too wide.
void PageWriter::writeContainers(const Item& item, const QString& heading, int level)
{
    endRows();
    Grid grid;
    if (item.count > 1 && fillGrid(grid, item, heading)) {
        m_sMarkup += QLatin1String("<div class=\"section\">\n");
        writeHeading(item, heading, level);
        writeGrid(grid);
        for (const auto& [title, inner] : grid.apart) {
            writeContainers(inner, title, level + 1);
        }
        m_sMarkup += QLatin1String("</div>\n");
        return;
    }
    for (std::size_t i = 0; i < item.count; ++i) {
        const QString number = item.count > 1 ? QStringLiteral(" %1").arg(i + 1) : QString();
        m_sMarkup += QLatin1String("<div class=\"section\">\n");
        writeHeading(item, heading + number, level);
        writeContent(item.first[i], item.place, level);
        endRows();
        m_sMarkup += QLatin1String("</div>\n");
    }
}

/// Values come before containers: behind those they would seem to belong to the last one.
void PageWriter::writeContent(const ReportNode& node, const Place* place, int level)
{
    for (const auto& [label, value] : ownValuesOf(node, place)) {
        writeRow(label, value);
    }
    const std::vector<Item> items = itemsOf(node, place);
    for (const bool isOfContainers : {false, true}) {
        for (const Item& item : items) {
            if ((item.first && item.IsContainer()) == isOfContainers) {
                writeItem(item, level + 1);
            }
        }
    }
}

void PageWriter::writeHeading(const Item& item, const QString& heading, int level)
{
    const QString tag = QStringLiteral("h%1").arg(std::min(level, DeepestHeading));
    m_sMarkup += QLatin1Char('<') + tag + QLatin1Char('>') + escapedForPage(heading);
    if (item.isLeftOver) {
        m_sMarkup += QLatin1Char(' ') + leftOver();
    }
    m_sMarkup += QLatin1String("</") + tag + QLatin1String(">\n");
    const QString text = item.place ? m_pOutline->DocumentationOf(*item.place, m_sLanguage) : QString();
    if (text.size() > MaxLabelLength) {
        m_sMarkup += QLatin1String("<p class=\"explanation\">") + escapedForPage(text.left(MaxExplanationLength))
            + QLatin1String("</p>\n");
    }
}

void PageWriter::writeRow(const QString& label, const QString& value, const QString& explanation)
{
    if (m_iRows == m_iRowsOfTable) {
        endRows();
    }
    if (m_iRows++ == 0) {
        m_sMarkup += QLatin1String("<table class=\"values\">\n");
    }
    m_sMarkup += QLatin1String("<tr><th>") + escapedForPage(label);
    if (!explanation.isEmpty()) {
        m_sMarkup
            += QLatin1String("<br/>") + spanOf("explanation", escapedForPage(explanation.left(MaxExplanationLength)));
    }
    m_sMarkup += QLatin1String("</th><td>") + value + QLatin1String("</td></tr>\n");
}

void PageWriter::endRows()
{
    m_sMarkup += m_iRows > 0 ? QLatin1String("</table>\n") : QLatin1String();
    m_iRows = 0;
}

void PageWriter::beginGrid(const Grid& grid)
{
    m_sMarkup += QLatin1String("<table class=\"rows\">\n<thead><tr><th class=\"number\"></th>");
    for (const QString& heading : grid.headings) {
        m_sMarkup += QLatin1String("<th>") + escapedForPage(heading) + QLatin1String("</th>");
    }
    m_sMarkup += QLatin1String("</tr></thead>\n<tbody>\n");
}

void PageWriter::writeGrid(const Grid& grid)
{
    const QLatin1String end("</tbody></table>\n");
    beginGrid(grid);
    int number = 0;
    for (const std::vector<QString>& row : grid.rows) {
        if (number > 0 && number % m_iRowsOfTable == 0) {
            m_sMarkup += end;
            beginGrid(grid);
        }
        m_sMarkup += QStringLiteral("<tr><th class=\"number\">%1</th>").arg(++number);
        for (std::size_t i = 0; i < std::size_t(grid.headings.size()); ++i) {
            m_sMarkup += QLatin1String("<td>") + (i < row.size() ? row[i] : QString()) + QLatin1String("</td>");
        }
        m_sMarkup += QLatin1String("</tr>\n");
    }
    m_sMarkup += end;
}

/// Gives false, with nothing counted, when there are too many columns.
bool PageWriter::fillGrid(Grid& grid, const Item& item, const QString& heading)
{
    const int missingBefore = m_iMissing;
    const int leftOverBefore = m_iLeftOver;
    for (std::size_t i = 0; i < item.count; ++i) {
        grid.rows.emplace_back();
        fillRow(grid, item, item.first[i], QString(), QStringLiteral("%1 %2").arg(heading, QString::number(i + 1)));
        if (grid.headings.size() > MaxColumns) {
            m_iMissing = missingBefore;
            m_iLeftOver = leftOverBefore;
            return false;
        }
    }
    return true;
}

/// Adds what is in an element to the last row; what is in a single container below it, too.
void PageWriter::fillRow(Grid& grid, const Item& item, const ReportNode& node, const QString& path,
                         const QString& heading)
{
    const QString prefix = path.isEmpty() ? QString() : LabelOf(item.place, item.name) + QLatin1String(" / ");
    for (const auto& [label, value] : ownValuesOf(node, item.place)) {
        grid.Add(path + QLatin1Char('@') + label, prefix + label, value);
    }
    for (const Item& inner : itemsOf(node, item.place)) {
        const QString innerPath = path + QLatin1Char('/') + inner.name;
        const QString label = LabelOf(inner.place, inner.name);
        if (grid.headings.size() > MaxColumns) {
            return;
        }
        if (!inner.first || !inner.IsContainer()) {
            grid.Add(innerPath, prefix + label, inner.first ? valuesOf(inner) : missing());
        } else if (inner.count == 1 && !inner.isLeftOver) {
            fillRow(grid, inner, *inner.first, innerPath, heading);
        } else {
            grid.apart.emplace_back(heading + QStringLiteral(": ") + label, inner);
        }
    }
}

/// The attributes but the unit that have a value or should have one.
PageWriter::Values PageWriter::attributesOf(const ReportNode& node, const Place* place, const QString& unit)
{
    Values values;
    for (const auto& [name, value] : node.attributes) {
        if (!place && name != unit) {
            values.emplace_back(name, escapedForPage(value));
        }
    }
    for (const QString& name : place ? place->attributes : QStringList()) {
        const QString value = node.Attribute(name);
        const bool isUnset = value.isEmpty() || value == SchemaOutline::PlaceholderOf(*place, name);
        const bool isMissing
            = isUnset && m_pOutline->IsRequired(*place, name) && m_pOutline->ValueOfSchema(*place, name).isNull();
        const QString text = m_pOutline->DocumentationOf(*place, name, m_sLanguage);
        const QString label = text.isEmpty() || text.size() > MaxLabelLength ? name : text;
        if (isMissing) {
            values.emplace_back(label, missing());
        } else if (!value.isEmpty() && name != unit) {
            values.emplace_back(label, isUnset ? leftOver(value) : escapedForPage(value));
        }
    }
    return values;
}

/// What stands on an element and is not declared: of notes of the skeleton the names, of others the values too.
QString PageWriter::leftOverAttributesOf(const ReportNode& node, const Place& place)
{
    QStringList names;
    for (const auto& [name, value] : node.attributes) {
        if (!isDeclared(place, name)) {
            names.append(isAnnotation(name, value) ? name : QStringLiteral("%1=\"%2\"").arg(name, value));
        }
    }
    if (names.isEmpty()) {
        return QString();
    }
    const bool isLong = names.size() > MaxNamedAttributes;
    names = names.mid(0, MaxNamedAttributes);
    return leftOver(names.join(QStringLiteral(", ")) + (isLong ? QStringLiteral(", …") : QString()));
}

/// What a container holds besides elements.
PageWriter::Values PageWriter::ownValuesOf(const ReportNode& node, const Place* place)
{
    Values values = attributesOf(node, place);
    const QString left = place ? leftOverAttributesOf(node, *place) : QString();
    if (!left.isEmpty()) {
        values.emplace_back(tr("Attributes"), left);
    }
    if (!node.text.isEmpty()) {
        values.emplace_back(tr("Text"), place ? leftOver(node.text) : escapedForPage(node.text));
    }
    return values;
}

QString PageWriter::valuesOf(const Item& item)
{
    QStringList values;
    for (std::size_t i = 0; i < item.count; ++i) {
        const QString value = valueOf(item.first[i], item.place);
        values.append(item.isLeftOver ? value + QLatin1Char(' ') + leftOver() : value);
    }
    return values.join(QStringLiteral("<br/>"));
}

QString PageWriter::valueOf(const ReportNode& node, const Place* place)
{
    const QString left = place ? leftOverAttributesOf(node, *place) : QString();
    QString unitAttribute;
    const QString unit = unitOf(node, place, unitAttribute);
    QString value = textOf(node, place);
    if (value.isNull()) {
        value = missing();
    } else if (!unit.isEmpty()) {
        value += QStringLiteral("&#160;") + spanOf("unit", escapedForPage(unit));
    }
    QStringList others;
    for (const auto& [label, other] : attributesOf(node, place, unitAttribute)) {
        others.append(escapedForPage(label) + QLatin1String(": ") + other);
    }
    if (!others.isEmpty()) {
        value += QLatin1Char(' ')
            + spanOf("attributes", QLatin1Char('(') + others.join(QStringLiteral(", ")) + QLatin1Char(')'));
    }
    return left.isEmpty() ? value : value + QLatin1Char(' ') + left;
}

/// Null when it is missing.
QString PageWriter::textOf(const ReportNode& node, const Place* place) const
{
    if (!node.text.isEmpty()) {
        return spanOf("value", escapedForPage(node.text));
    }
    if (place && !place->defaultValue.isEmpty()) {
        return spanOf("value", escapedForPage(place->defaultValue)) + QLatin1Char(' ')
            + spanOf("attributes", escapedForPage(tr("(by default)")));
    }
    return place && !place->type.isEmpty() && place->IsRequired() ? QString()
                                                                  : spanOf("attributes", QStringLiteral("–"));
}

/// @param attribute  becomes the one that holds the unit, or would; none that holds a placeholder, which is marked
QString PageWriter::unitOf(const ReportNode& node, const Place* place, QString& attribute) const
{
    for (const auto& [name, value] : node.attributes) {
        if (isUnit(name)
            && (!place || (isDeclared(*place, name) && value != SchemaOutline::PlaceholderOf(*place, name)))) {
            attribute = name;
            return value;
        }
    }
    for (const QString& name : place ? place->attributes : QStringList()) {
        if (isUnit(name)) {
            attribute = node.Attribute(name).isEmpty() ? name : QString();
            return m_pOutline->ValueOfSchema(*place, name);
        }
    }
    return QString();
}

QString PageWriter::missing()
{
    ++m_iMissing;
    return spanOf("missing", escapedForPage(tr("missing")));
}

QString PageWriter::leftOver(const QString& what)
{
    ++m_iLeftOver;
    return spanOf("leftover", escapedForPage(what.isEmpty() ? tr("left over") : tr("left over: %1").arg(what)));
}
