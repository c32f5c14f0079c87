#include "filling.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include <QDateTime>
#include <QDomDocument>
#include <QPair>
#include <QTextStream>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>
#include <xmlhelper/xmlhelper.h>
#include <xmlhelper/xmlserialiser_p.h>

#include "fitting.h"
#include "model/texts.h"
#include "reading/skeletonbuilder.h"

QT_WARNING_DISABLE_DEPRECATED

namespace schemadoctor {

namespace {

QDateTime someTime()
{
    return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC);
}

/// Fills as it is told, and asks the tree what was declared.
class FillingObserver : public IXMLHelper
{
public:
    FillingObserver(const SkeletonTree& tree, const Filling& filling)
        : m_tree(tree)
        , m_filling(filling)
        , m_builder(this)
    {
    }

    QByteArray Fill(const QString& schema);
    void XmlUpdate(XmlEvent* event) override;

private:
    int announced(const QDomElement& element);
    bool multiply(const QDomElement& element, const SkeletonElement& declared);
    void setAttributes(const QDomElement& element, const SkeletonElement& declared);
    void removeAttribute(const QDomElement& element, const QString& name);
    void setAttribute(const DeclaredAttribute& attribute);
    void setValue(const SkeletonElement& declared);
    QString nextText() { return QStringLiteral("text %1").arg(++m_values); }

    /// An announced element, and what is known of those directly in it.
    struct Level
    {
        QDomElement element;
        int index = SkeletonElement::None; ///< in the tree
        std::vector<QDomElement> children; ///< as they were before the first of them was announced
        std::size_t child = 0; ///< the one announced last, or where to begin

        bool FindChild(const QDomElement& announced);
    };

    const SkeletonTree& m_tree;
    const Filling& m_filling;
    std::vector<Level> m_levels; ///< from the root to the element announced last
    QDomDocument m_document;
    int m_values = 0; ///< given so far: keys of XML Schema must differ
    QList<QPair<QDomNode, QString>> m_multiplied; ///< below which parent, and the name
    XmlCreateReport m_builder;
};

QByteArray FillingObserver::Fill(const QString& schema)
{
    m_builder.CreateXmlFromSchema(schema, QStringLiteral("/dev/null"), false);
    QByteArray bytes;
    QTextStream stream(&bytes);
    if (!m_document.isNull()) {
        serialise(m_document, stream, 1);
        stream.flush();
    }
    return bytes;
}

void FillingObserver::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
        return;
    }
    const QDomNode node = static_cast<ElemBeginEvent*>(event)->GetElementNode();
    m_document = node.ownerDocument();
    const QDomElement element = node.toElement(); // A text below the root is announced, too.
    const int index = element.isNull() ? SkeletonElement::None : announced(element);
    if (index == SkeletonElement::None || !m_filling.isWanted[std::size_t(index)]) {
        return;
    }
    const SkeletonElement& declared = m_tree.elements[std::size_t(index)];
    if (m_filling.isTwice && multiply(element, declared)) {
        return; // It is announced once more.
    }
    setAttributes(element, declared);
    setValue(declared);
    m_builder.RemoveAttribute(DefaultAttribute()); // as whoever gives a value does
}

/// Gives which element of the tree it is. Names do not tell: alternatives of a choice may share them.
int FillingObserver::announced(const QDomElement& element)
{
    while (!m_levels.empty() && m_levels.back().element != element.parentNode()) {
        m_levels.pop_back();
    }
    const bool isRoot = m_levels.empty() && element.tagName() == m_tree.elements.front().name;
    int index = isRoot ? 0 : SkeletonElement::None;
    if (!m_levels.empty() && m_levels.back().index != SkeletonElement::None) {
        Level& around = m_levels.back();
        const std::vector<int>& declared = m_tree.elements[std::size_t(around.index)].children;
        index = around.FindChild(element) && around.child < declared.size() ? declared[around.child]
                                                                            : SkeletonElement::None;
    }
    m_levels.push_back({element, index, {}, 0});
    return index;
}

/// They are announced in their order; one that was made since stands behind the one that it is a copy of.
bool FillingObserver::Level::FindChild(const QDomElement& announced)
{
    if (children.empty()) {
        for (QDomElement one = element.firstChildElement(); !one.isNull(); one = one.nextSiblingElement()) {
            children.push_back(one);
        }
    }
    const auto last = children.cbegin() + std::ptrdiff_t(child);
    const auto found = std::find(last, children.cend(), announced);
    if (found != children.cend()) {
        child = std::size_t(found - children.cbegin());
        return true;
    }
    return last->tagName() == announced.tagName();
}

/// Makes a second one of an element that stands alone and may repeat. Gives whether there is one now.
bool FillingObserver::multiply(const QDomElement& element, const SkeletonElement& declared)
{
    const bool isMeantToRepeat = declared.maxOccurs == AcceptedCounts::Unbounded || declared.maxOccurs > 1;
    const QPair<QDomNode, QString> place {element.parentNode(), declared.name};
    if (!mayBeRepeated(declared) || !isMeantToRepeat || declared.minOccurs > 1 || m_multiplied.contains(place)) {
        return false;
    }
    m_multiplied.append(place);
    m_builder.SetElementMaxOccurs(declared.name, 2);
    return element.nextSiblingElement().tagName() == declared.name;
}

/// Optional attributes belong to everything, and are removed where only what is required is filled.
void FillingObserver::setAttributes(const QDomElement& element, const SkeletonElement& declared)
{
    for (const DeclaredAttribute& attribute : declared.attributes) {
        if (attribute.isRequired || m_filling.isWithOptionalAttributes) {
            setAttribute(attribute);
        } else {
            removeAttribute(element, attribute.name);
        }
    }
}

/// Removes a declared attribute and its facets.
void FillingObserver::removeAttribute(const QDomElement& element, const QString& name)
{
    QStringList removed {name};
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString other = attributes.item(i).nodeName();
        if (isEnumerationOfAttribute(other, name) || rangeFacetOfAttribute(other, name).size() > 0) {
            removed.append(other);
        }
    }
    for (const QString& attribute : removed) {
        m_builder.RemoveAttribute(attribute);
    }
}

void FillingObserver::setAttribute(const DeclaredAttribute& attribute)
{
    if (attribute.setters.testFlag(Setter::Text)) {
        m_builder.SetAttributeValue(attribute.name, fittingText(attribute, nextText()));
    } else if (attribute.setters.testFlag(Setter::Integer)) {
        m_builder.SetAttributeValue(attribute.name, fittingInteger(attribute, ++m_values));
    } else if (attribute.setters.testFlag(Setter::Floating)) {
        m_builder.SetAttributeValue(attribute.name, fittingNumber(attribute, 1.5, 0));
    } else if (attribute.setters.testFlag(Setter::DateTime)) {
        m_builder.SetAttributeValue(attribute.name, someTime());
    }
}

/// The kinds in the order in which a type that takes several of them is most likely to mean one.
void FillingObserver::setValue(const SkeletonElement& declared)
{
    const Setters setters = declared.setters;
    if (setters.testFlag(Setter::Integer)) {
        m_builder.SetXmlValue(fittingInteger(declared, ++m_values));
    } else if (setters.testFlag(Setter::Text)) {
        m_builder.SetXmlValue(fittingText(declared, nextText()));
    } else if (setters.testFlag(Setter::Floating)) {
        m_builder.SetXmlValue(fittingNumber(declared, 1.5, 0));
    } else if (setters.testFlag(Setter::Truth)) {
        m_builder.SetXmlValue(true);
    } else if (setters.testFlag(Setter::DateTime)) {
        m_builder.SetXmlValue(someTime());
    } else if (setters.testFlag(Setter::Time)) {
        m_builder.SetXmlValue(someTime().time());
    }
}

/// Which elements belong to a report of which @p isLeftOut tells what does not, together with what is below that. Of
/// each choice the first branch is filled.
template <class IsLeftOut> std::vector<bool> wantedIn(const SkeletonTree& tree, const IsLeftOut& isLeftOut)
{
    std::vector<bool> isWanted(tree.elements.size(), false);
    std::map<std::pair<int, int>, int> branches; // of the choices below each parent
    for (std::size_t index = 0; index < tree.elements.size(); ++index) {
        const SkeletonElement& element = tree.elements[index];
        const bool isParentWanted = element.parent == SkeletonElement::None || isWanted[std::size_t(element.parent)];
        const bool isOfBranch = element.choiceGroup == SkeletonElement::None
            || branches.emplace(std::make_pair(element.parent, element.choiceGroup), element.choiceBranch).first->second
                == element.choiceBranch;
        isWanted[index] = isParentWanted && isOfBranch && element.maxOccurs != 0 && !isLeftOut(int(index));
    }
    return isWanted;
}

bool isOptional(const SkeletonElement& element)
{
    return element.parent != SkeletonElement::None && element.minOccurs == 0;
}

bool isAround(const SkeletonTree& tree, int outer, int inner)
{
    while (inner != SkeletonElement::None && inner != outer) {
        inner = tree.elements[std::size_t(inner)].parent;
    }
    return inner == outer;
}

} // namespace

std::vector<Filling> fillingsOf(const SkeletonTree& tree, int most, int& all)
{
    const auto isOptionalAt = [&tree](int index) { return isOptional(tree.elements[std::size_t(index)]); };
    const std::vector<bool> everything = wantedIn(tree, [](int) { return false; });
    const std::vector<bool> required = wantedIn(tree, isOptionalAt);
    std::vector<Filling> fillings {
        {Texts::tr("A report filled with nothing but what is required is not valid: %1"), required, false, false},
        {Texts::tr("A report filled with everything is not valid: %1"), everything, true, false},
        {Texts::tr("A report filled with everything, and twice what may repeat is not valid: %1"), everything, true,
         true},
        {Texts::tr("A report filled with nothing but what is required, and twice what may repeat is not valid: %1"),
         required, false, true},
    };
    all = int(fillings.size());
    fillings.resize(std::size_t(std::clamp(most, 0, all)));
    std::set<std::tuple<QString, int, QString>> declarations; // of the containers tried
    for (int container = 0; container < int(tree.elements.size()); ++container) {
        const SkeletonElement& element = tree.elements[std::size_t(container)];
        if (!isContainer(element) || !isOptional(element) || !everything[std::size_t(container)]
            || !declarations.emplace(element.place.file, element.place.line, element.name).second || ++all > most) {
            continue;
        }
        const auto isLeftOut = [&](int index) { return isOptionalAt(index) && !isAround(tree, index, container); };
        fillings.push_back({Texts::tr("A report filled with what is required and the optional '%1' is not valid: %2")
                                .arg(element.name),
                            wantedIn(tree, isLeftOut), false, false});
    }
    return fillings;
}

QByteArray filledReport(const QString& schema, const SkeletonTree& tree, const Filling& filling)
{
    return FillingObserver(tree, filling).Fill(schema);
}

} // namespace schemadoctor
