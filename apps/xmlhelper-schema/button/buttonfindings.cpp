#include "buttonfindings.h"

#include <set>
#include <tuple>

#include <QCoreApplication>

#include "reading/doctorlimits.h"

namespace schemadoctor {

namespace {

/// Looks at one value after the other.
class ButtonFindings
{
    Q_DECLARE_TR_FUNCTIONS(schemadoctor::ButtonFindings)

public:
    explicit ButtonFindings(const SkeletonTree& tree)
        : m_tree(tree)
    {
    }

    void LookAt(int element, const ButtonElement& view);
    const QVector<Finding>& GetFindings() const { return m_findings; }

private:
    void tellObstacle(int element, const QString& described, const Place& place, const ButtonFilling& filling);
    void tellOthers(int element, const QString& described, const Place& place, const ButtonFilling& filling);
    void tellUnit(int element, const DeclaredAttribute& attribute, const ButtonFilling& filling);
    static QString effectOf(Obstacle obstacle);
    static QString remedyOf(Obstacle obstacle);
    Finding* add(int element, const Place& place, const QString& rule, const QString& about);

    const SkeletonTree& m_tree;
    QVector<Finding> m_findings;
    std::set<std::tuple<QString, QString, QString, int>> m_told; ///< by rule, name, file and line
};

void ButtonFindings::LookAt(int element, const ButtonElement& view)
{
    const SkeletonElement& laidOut = m_tree.elements[std::size_t(element)];
    if (!isContainer(laidOut)) {
        const QString described = tr("the element '%1' of the type '%2'").arg(laidOut.name, laidOut.type);
        tellObstacle(element, described, laidOut.place, view.value);
        tellOthers(element, described, laidOut.place, view.value);
    }
    for (int i = 0; i < laidOut.attributes.size(); ++i) {
        const DeclaredAttribute& attribute = laidOut.attributes.at(i);
        const ButtonFilling& filling = view.attributes[std::size_t(i)];
        const QString described
            = tr("the attribute '%1' of '%2', of the type '%3'").arg(attribute.name, laidOut.name, attribute.type);
        tellObstacle(element, described, attribute.place, filling);
        if (!filling.isUnit) {
            tellOthers(element, described, attribute.place, filling);
        }
        tellUnit(element, attribute, filling);
    }
}

/// What no setter takes, is told to everybody.
void ButtonFindings::tellObstacle(int element, const QString& described, const Place& place,
                                  const ButtonFilling& filling)
{
    if (filling.obstacle == Obstacle::None || filling.obstacle == Obstacle::NoSetter) {
        return;
    }
    if (Finding* const finding = add(element, place, QStringLiteral("button-cannot-fill"), filling.item)) {
        finding->what = tr("The report button never fills %1.").arg(described);
        finding->effect = effectOf(filling.obstacle);
        finding->remedy = remedyOf(filling.obstacle);
    }
}

QString ButtonFindings::effectOf(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::IdleNumber:
        return tr("For the number of an item the button writes 65535.");
    case Obstacle::OtherAttribute:
        return tr("The button may fill another attribute of the element in its place.");
    default:
        return tr("A setter takes it, but the button offers no value of that kind, whatever items there are.");
    }
}

QString ButtonFindings::remedyOf(Obstacle obstacle)
{
    return obstacle == Obstacle::OtherAttribute
        ? tr("Declare it for an element with a value of its own, or fill it by an observer of the report builder.")
        : tr("Write another type, such as xs:string, or fill it by an observer of the report builder.");
}

void ButtonFindings::tellOthers(int element, const QString& described, const Place& place, const ButtonFilling& filling)
{
    if (filling.others == 0 || !filling.kinds) {
        return;
    }
    if (Finding* const finding = add(element, Place(), QStringLiteral("button-shared-item"), filling.item)) {
        finding->place = place;
        finding->what = tr("No item of the report button reaches %1 alone.").arg(described);
        finding->effect = tr("An item '%1' fills %2 values of that name, all with the same.")
                              .arg(filling.item)
                              .arg(filling.others + 1);
        finding->remedy = tr("Give it a name of its own, or a parent with a name of its own.");
    }
}

void ButtonFindings::tellUnit(int element, const DeclaredAttribute& attribute, const ButtonFilling& filling)
{
    if (!filling.isUnit) {
        return;
    }
    if (Finding* const finding = add(element, attribute.place, QStringLiteral("button-unit-of-node"), attribute.name)) {
        finding->what = tr("The unit of an item fills the attribute '%1', and an item of a value tree's node has none.")
                            .arg(attribute.name);
        finding->effect = attribute.enumeration.isEmpty()
            ? tr("For such an item the attribute keeps its type, '%1', as a text.").arg(attribute.type)
            : tr("For such an item the attribute keeps its type, '%1', which is none of its values: the report is not "
                 "valid.")
                  .arg(attribute.type);
        finding->remedy = tr("Register the item by its name and path, with a unit.");
    }
}

/// Once for each declaration of a name; null when it has been told, or when enough have been.
Finding* ButtonFindings::add(int element, const Place& place, const QString& rule, const QString& about)
{
    if (m_findings.size() >= MaxFindingsOfARule || !m_told.emplace(rule, about, place.file, place.line).second) {
        return nullptr;
    }
    m_findings.append(Finding());
    Finding& finding = m_findings.last();
    finding.severity = Severity::Warning;
    finding.rule = rule;
    finding.place = place;
    finding.subject = about;
    finding.path = pathOf(m_tree, element);
    return &finding;
}

} // namespace

void addButtonFindings(Examination& examination)
{
    ButtonFindings findings(examination.tree);
    for (std::size_t element = 0; element < examination.button.elements.size(); ++element) {
        findings.LookAt(int(element), examination.button.elements[element]);
    }
    examination.findings += findings.GetFindings();
}

} // namespace schemadoctor
