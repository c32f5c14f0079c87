#include "buttontrial.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

#include <QCoreApplication>
#include <QDataStream>
#include <QDomElement>
#include <QHash>
#include <QIODevice>

#include <confinedchild.h>
#include <xmlhelper/constants_p.h>
#include <xmlhelper/reportanswerer_p.h>
#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/xmlhelper.h>

#include "buttonfindings.h"
#include "proof/fitting.h"
#include "reading/doctorlimits.h"

QT_WARNING_DISABLE_DEPRECATED

namespace schemadoctor {

namespace {

/// An attribute of the trial's document: which element of the tree it is.
const QLatin1String IndexAttribute("xmlhelper-schema-index");

const QString& someIsoTime()
{
    static const QString time = QStringLiteral("2026-01-02T03:04:05Z");
    return time;
}

using Item = std::shared_ptr<const ReportData>;

Item itemOf(const QString& name, const QString& fixedText, const QString& unit = QString())
{
    return std::make_shared<ReportData>(name, QString(), fixedText, 1, QString(), 0, unit, false);
}

Item explicitItem(const QString& name, const ExplicitReportData& value)
{
    const auto item = std::make_shared<ReportData>(name, QString(), QString(), 1, QString(), 0, QString(), false);
    item->SetExplicitData(value);
    return item;
}

/// An item, and what it has written when it is written as one of a kind.
struct Probe
{
    Item item;
    ItemKind kind;
    QString written;
};

/// Of numbers, those with a fraction tell whether it is left out.
template <class Declared> std::vector<Probe> probesFor(const Declared& declared, const QString& name)
{
    std::vector<Probe> probes;
    const double fitting = fittingNumber(declared, 1.5, 0);
    for (const double number : {fitting, fitting + 0.25, fitting - 0.25, double(fittingInteger(declared, 1))}) {
        const QString text = QString::number(number, 'g', 12);
        const QString whole = text.section(QLatin1Char('.'), 0, 0);
        if (text != whole) {
            probes.push_back({itemOf(name, text), ItemKind::Number, text});
        }
        probes.push_back({itemOf(name, text), ItemKind::WholeNumber, whole});
    }
    const QString text = fittingText(declared, QStringLiteral("text"));
    probes.push_back({itemOf(name, text), ItemKind::Text, text});
    probes.push_back({itemOf(name, someIsoTime()), ItemKind::Time, someIsoTime()});
    probes.push_back({explicitItem(name, true), ItemKind::Truth, QStringLiteral("true")});
    const int integer = fittingInteger(declared, 1);
    probes.push_back({explicitItem(name, long(integer)), ItemKind::Integer, QString::number(integer)});
    return probes;
}

/// The greater kind stands for what it includes.
ItemKinds withoutIncluded(ItemKinds kinds)
{
    if (kinds.testFlag(ItemKind::Number)) {
        kinds.setFlag(ItemKind::WholeNumber, false);
    }
    if (kinds.testFlag(ItemKind::Text)) {
        kinds.setFlag(ItemKind::Time, false);
    }
    return kinds;
}

/// Answers the walk of a report builder by the button's own answerer.
class ButtonTrial : public IXMLHelper
{
public:
    ButtonTrial(const SkeletonTree& tree, std::vector<ButtonElement>& view)
        : m_tree(tree)
        , m_view(view)
        , m_areTried(tree.elements.size())
        , m_builder(this)
        , m_answerer(nullptr, false)
    {
    }

    void Run(const QString& schema) { m_answerer.MakeReport(&m_builder, schema, QStringLiteral("/dev/null"), false); }
    void XmlUpdate(XmlEvent* event) override;

private:
    void mark(const QDomElement& root);
    void tryElement(int index);
    void tryValue(const SkeletonElement& declared, ButtonFilling& filling);
    void tryAttribute(const DeclaredAttribute& declared, ButtonFilling& filling);
    void tryAttributeOfValue(const DeclaredAttribute& declared, ButtonFilling& filling);
    ItemKinds kindsOf(const DeclaredAttribute& declared, const QString& item, const Item& first, bool isFirst);
    void answer(const std::vector<Item>& items, const QString& attribute = QString(), bool isFirst = false);
    QXmlAttributes attributesWith(const QString& attribute, bool isFirst) const;
    void restore();
    void settle();

    const SkeletonTree& m_tree;
    std::vector<ButtonElement>& m_view;
    std::vector<bool> m_areTried;
    std::map<std::tuple<QString, int, QString, QString>, int> m_known; ///< by declaration, the element tried for it
    QDomElement m_element; ///< that has been announced
    QDomElement m_laidOut; ///< as it was then
    QXmlAttributes m_attributes; ///< it was announced with
    Probe m_ownProbe {nullptr, ItemKind::Text, QString()}; ///< one that fills the element; none when nothing does
    bool m_isTrying = false;
    XmlCreateReport m_builder;
    ReportAnswerer m_answerer; // goes before the builder
};

void ButtonTrial::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() == XmlEvent::EVENT_ERROR && m_isTrying) {
        m_answerer.Answer(event);
    }
    if (event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
        return;
    }
    auto* const begin = static_cast<ElemBeginEvent*>(event);
    m_element = begin->GetElementNode().toElement();
    if (m_element.isNull()) {
        return;
    }
    if (m_element.parentNode().isDocument()) {
        mark(m_element);
        m_builder.RemoveAttribute(QString()); // The first operation of a builder knows no type, and truncates nothing.
    }
    bool isNumber = false;
    const int index = m_element.attribute(IndexAttribute).toInt(&isNumber);
    if (!isNumber || m_areTried[std::size_t(index)]) {
        return;
    }
    m_areTried[std::size_t(index)] = true;
    m_attributes = begin->GetElementAttributes();
    m_laidOut = m_element.cloneNode(false).toElement();
    tryElement(index);
    settle();
}

void ButtonTrial::mark(const QDomElement& root)
{
    QDomElement element = root;
    for (int index = 0; index < int(m_tree.elements.size()) && !element.isNull(); ++index) {
        element.setAttribute(IndexAttribute, index);
        QDomElement next = element.firstChildElement();
        for (; next.isNull() && element != root; element = element.parentNode().toElement()) {
            next = element.nextSiblingElement();
        }
        element = next;
    }
}

/// Once for all elements of one declaration.
void ButtonTrial::tryElement(int index)
{
    const SkeletonElement& declared = m_tree.elements[std::size_t(index)];
    ButtonElement& view = m_view[std::size_t(index)];
    const auto [known, isNew] = m_known.emplace(
        std::make_tuple(declared.place.file, declared.place.line, declared.name, declared.type), index);
    const ButtonElement& example = m_view[std::size_t(known->second)];
    const auto take = [](ButtonFilling& filling, const ButtonFilling& other) {
        const QString item = filling.item;
        const int others = filling.others;
        filling = other;
        filling.item = item;
        filling.others = others;
    };
    if (!isNew && example.attributes.size() == view.attributes.size()) {
        take(view.value, example.value);
        for (std::size_t i = 0; i < view.attributes.size(); ++i) {
            take(view.attributes[i], example.attributes[i]);
        }
        return;
    }
    tryValue(declared, view.value);
    for (int i = 0; i < declared.attributes.size(); ++i) {
        tryAttribute(declared.attributes.at(i), view.attributes[std::size_t(i)]);
    }
}

void ButtonTrial::tryValue(const SkeletonElement& declared, ButtonFilling& filling)
{
    m_ownProbe.item.reset();
    if (isContainer(declared)) {
        return;
    }
    for (const Probe& probe : probesFor(declared, filling.item)) {
        answer({probe.item});
        const bool isWritten = m_element.text() == probe.written;
        restore();
        if (isWritten) {
            filling.kinds |= probe.kind;
            m_ownProbe = m_ownProbe.item ? m_ownProbe : probe;
        }
    }
    filling.kinds = withoutIncluded(filling.kinds);
    answer({itemOf(QString(), QString())});
    filling.isStamped = !m_element.text().isEmpty();
    restore();
    filling.obstacle = filling.IsFilled() ? Obstacle::None
        : declared.setters == Setters()   ? Obstacle::NoSetter
                                          : Obstacle::NoOffer;
}

/// Of an element without a value, or whose value nothing fills, the attribute is filled by its item alone; that must be
/// so in whatever order Qt gives the attributes.
void ButtonTrial::tryAttribute(const DeclaredAttribute& declared, ButtonFilling& filling)
{
    answer({itemOf(QString(), QString())}, declared.name);
    filling.isStamped = m_element.attribute(declared.name) != m_laidOut.attribute(declared.name);
    restore();
    if (m_ownProbe.item) {
        tryAttributeOfValue(declared, filling);
    } else {
        filling.kinds = kindsOf(declared, filling.item, nullptr, false);
    }
    if (filling.IsFilled()) {
        return;
    }
    answer({itemOf(filling.item, QString::number(fittingInteger(declared, 1)))}, declared.name, true);
    const bool isIdle = m_element.attribute(declared.name).toDouble() == IdlePendingValue;
    restore();
    filling.obstacle = declared.setters == Setters()             ? Obstacle::NoSetter
        : isIdle                                                 ? Obstacle::IdleNumber
        : kindsOf(declared, filling.item, m_ownProbe.item, true) ? Obstacle::OtherAttribute
                                                                 : Obstacle::NoOffer;
}

void ButtonTrial::tryAttributeOfValue(const DeclaredAttribute& declared, ButtonFilling& filling)
{
    filling.kinds = kindsOf(declared, filling.item, m_ownProbe.item, false);
    const QString text = fittingText(declared, QStringLiteral("text"));
    answer({itemOf(filling.item, text), m_ownProbe.item}, declared.name);
    filling.isToFollow = m_element.text() != m_ownProbe.written;
    restore();
    const ReportData& own = *m_ownProbe.item;
    auto withUnit
        = std::make_shared<ReportData>(own.GetName(), QString(), m_ownProbe.written, 1, QString(), 0, text, false);
    if (own.GetExplicitData().GetType() != ExplicitReportData::EXPLICIT_NONE) {
        withUnit->SetExplicitData(own.GetExplicitData());
    }
    answer({withUnit}, declared.name);
    filling.isUnit = m_element.attribute(declared.name) == text;
    restore();
}

/// Which items for an attribute are written behind @p first, if any.
ItemKinds ButtonTrial::kindsOf(const DeclaredAttribute& declared, const QString& item, const Item& first, bool isFirst)
{
    ItemKinds kinds;
    for (const Probe& probe : probesFor(declared, item)) {
        answer(first ? std::vector<Item> {first, probe.item} : std::vector<Item> {probe.item}, declared.name, isFirst);
        kinds.setFlag(probe.kind, kinds.testFlag(probe.kind) || m_element.attribute(declared.name) == probe.written);
        restore();
    }
    return withoutIncluded(kinds);
}

/// Has the button answer the announcement with these items.
/// @param attribute  comes behind the other attributes, or before them
void ButtonTrial::answer(const std::vector<Item>& items, const QString& attribute, bool isFirst)
{
    m_answerer.Items().Clear();
    for (const Item& item : items) {
        m_answerer.Items().Append(item);
    }
    ElemBeginEvent event(m_element, m_element.tagName(), attributesWith(attribute, isFirst), QString());
    m_isTrying = true;
    m_answerer.Answer(&event);
    m_isTrying = false;
}

QXmlAttributes ButtonTrial::attributesWith(const QString& attribute, bool isFirst) const
{
    QXmlAttributes ordered;
    const auto append = [&](bool isAttribute) {
        for (int i = 0; i < m_attributes.count(); ++i) {
            const QString name = m_attributes.qName(i);
            if (name != IndexAttribute && (name == attribute) == isAttribute) {
                ordered.append(name, m_attributes.uri(i), m_attributes.localName(i), m_attributes.value(i));
            }
        }
    };
    append(isFirst);
    append(!isFirst);
    return ordered;
}

/// Gives the element what it was announced with.
void ButtonTrial::restore()
{
    for (QDomNode child = m_element.firstChild(); !child.isNull();) {
        const QDomNode next = child.nextSibling();
        if (child.isText()) {
            m_element.removeChild(child);
        }
        child = next;
    }
    const QDomNamedNodeMap attributes = m_laidOut.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        m_element.setAttribute(attribute.name(), attribute.value());
    }
}

/// Fills what holds a value, so that nothing is removed for want of it.
void ButtonTrial::settle()
{
    if (!isValueType(m_laidOut.attribute(TypeAttribute()))) {
        return;
    }
    const QDomNamedNodeMap attributes = m_laidOut.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        m_element.removeAttribute(attributes.item(i).nodeName());
    }
    m_element.setAttribute(TypeAttribute(), wordOf(Setter::Text));
    m_builder.SetXmlValue(QStringLiteral("text"));
}

/// The names of items that reach the values, and how many each reaches.
class ItemNames
{
public:
    explicit ItemNames(const SkeletonTree& tree);

    void Name(std::vector<ButtonElement>& view) const;

private:
    QString nameOf(const SkeletonElement& element) const;
    QString qualifiedNameOf(const SkeletonElement& element) const;

    const SkeletonTree& m_tree;
    QHash<QString, int> m_reached; ///< values by the names of the items that reach them
};

ItemNames::ItemNames(const SkeletonTree& tree)
    : m_tree(tree)
{
    for (const SkeletonElement& element : tree.elements) {
        if (!isContainer(element)) {
            ++m_reached[element.name];
            ++m_reached[qualifiedNameOf(element)];
        }
        for (const DeclaredAttribute& attribute : element.attributes) {
            ++m_reached[attribute.name];
        }
    }
}

QString ItemNames::qualifiedNameOf(const SkeletonElement& element) const
{
    const QString parent
        = element.parent == SkeletonElement::None ? QString() : m_tree.elements[std::size_t(element.parent)].name;
    return ReportItems::QualifiedName(parent, element.name);
}

/// The short name where it is enough.
QString ItemNames::nameOf(const SkeletonElement& element) const
{
    const bool isAlone = m_reached.value(element.name) <= 1 || element.parent == SkeletonElement::None;
    return isAlone ? element.name : qualifiedNameOf(element);
}

void ItemNames::Name(std::vector<ButtonElement>& view) const
{
    const auto name = [this](ButtonFilling& filling, const QString& item) {
        filling.item = item;
        filling.others = m_reached.value(item) - 1;
    };
    for (std::size_t i = 0; i < view.size(); ++i) {
        const SkeletonElement& element = m_tree.elements[i];
        name(view[i].value, isContainer(element) ? QString() : nameOf(element));
        for (const DeclaredAttribute& attribute : element.attributes) {
            name(view[i].attributes.emplace_back(), attribute.name);
        }
    }
}

/// What a child tells of a filling.
QDataStream& operator<<(QDataStream& stream, const ButtonFilling& filling)
{
    return stream << int(filling.kinds) << filling.isStamped << filling.isUnit << filling.isToFollow
                  << int(filling.obstacle);
}

QDataStream& operator>>(QDataStream& stream, ButtonFilling& filling)
{
    int kinds = 0;
    int obstacle = 0;
    stream >> kinds >> filling.isStamped >> filling.isUnit >> filling.isToFollow >> obstacle;
    filling.kinds = ItemKinds(kinds);
    filling.obstacle = Obstacle(obstacle);
    return stream;
}

QByteArray triedView(const QString& file, const SkeletonTree& tree, std::vector<ButtonElement> view)
{
    ButtonTrial(tree, view).Run(file);
    QByteArray result;
    QDataStream stream(&result, QIODevice::WriteOnly);
    for (const ButtonElement& element : view) {
        stream << element.value;
        for (const ButtonFilling& attribute : element.attributes) {
            stream << attribute;
        }
    }
    return result;
}

void readView(const QByteArray& result, std::vector<ButtonElement>& view)
{
    QDataStream stream(result);
    for (ButtonElement& element : view) {
        stream >> element.value;
        for (ButtonFilling& attribute : element.attributes) {
            stream >> attribute;
        }
    }
}

class TrialWords
{
    Q_DECLARE_TR_FUNCTIONS(schemadoctor::ButtonTrial)
};

} // namespace

void tryButton(const QString& file, Examination& examination)
{
    const SkeletonTree& tree = examination.tree;
    ButtonView& button = examination.button;
    button.leftOut = TrialWords::tr("What the report button fills was not tried: it would take too long.");
    if (tree.elements.size() > std::size_t(MaxProofElements)) {
        return;
    }
    std::vector<ButtonElement> view(tree.elements.size());
    ItemNames(tree).Name(view);
    const ChildResult result = resultOfChild([&](const auto& write) { write(triedView(file, tree, view)); });
    if (!result.isWhole) {
        return;
    }
    readView(result.bytes, view);
    button.elements = std::move(view);
    button.leftOut.clear();
    addButtonFindings(examination);
}

} // namespace schemadoctor
