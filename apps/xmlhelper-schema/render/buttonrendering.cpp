#include "buttonrendering.h"

#include <utility>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include "jsonkey.h"

namespace schemadoctor {

namespace {

class ButtonWords
{
    Q_DECLARE_TR_FUNCTIONS(schemadoctor::ButtonWords)

public:
    static QString For(const ButtonFilling& filling);
    static QString Title() { return tr("As the report button fills it"); }
    static QString Container() { return tr("container"); }

private:
    static QString wordsFor(ItemKinds kinds);
    static QString wordsFor(Obstacle obstacle);
};

QString ButtonWords::wordsFor(ItemKinds kinds)
{
    const std::pair<ItemKind, QString> words[] = {
        {ItemKind::Number, tr("a number")},
        {ItemKind::WholeNumber, tr("a number without its fraction")},
        {ItemKind::Text, tr("a text")},
        {ItemKind::Time, tr("an ISO date and time")},
        {ItemKind::Truth, tr("an explicit bool")},
        {ItemKind::Integer, tr("an explicit long")},
    };
    QStringList all;
    for (const auto& [kind, word] : words) {
        if (kinds.testFlag(kind)) {
            all.append(word);
        }
    }
    return all.join(QLatin1String(", "));
}

QString ButtonWords::wordsFor(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::NoSetter:
        return tr("never: no setter takes it");
    case Obstacle::IdleNumber:
        return tr("never: 65535 is written in place of a number");
    case Obstacle::OtherAttribute:
        return tr("never: another attribute may be filled in its place");
    case Obstacle::NoOffer:
    case Obstacle::None:
        break;
    }
    return tr("never: the button offers no value of its kind");
}

QString ButtonWords::For(const ButtonFilling& filling)
{
    QStringList words;
    if (filling.kinds) {
        words.append(tr("item '%1' with %2").arg(filling.item, wordsFor(filling.kinds)));
    }
    if (filling.kinds && filling.others > 0) {
        words.append(tr("which reaches %1 more").arg(filling.others));
    }
    if (filling.kinds && filling.isToFollow) {
        words.append(tr("registered behind that of the element"));
    }
    if (filling.isUnit) {
        words.append(tr("the unit of the element's item"));
    }
    if (filling.isStamped) {
        words.append(tr("the current time"));
    }
    return filling.IsFilled() ? words.join(QLatin1String("; ")) : wordsFor(filling.obstacle);
}

QString line(int level, const QString& name, const QString& words)
{
    return QStringLiteral("%1%2: %3\n").arg(QString(2 * level, QLatin1Char(' ')), name, words);
}

QJsonObject jsonFor(const ButtonFilling& filling)
{
    return {{key("item"), filling.item},
            {key("others"), filling.others},
            {key("takes"), QJsonArray::fromStringList(namesOf(filling.kinds))},
            {key("currentTime"), filling.isStamped},
            {key("unitOfItem"), filling.isUnit},
            {key("behindElement"), filling.isToFollow},
            {key("obstacle"), nameOf(filling.obstacle)}};
}

QJsonObject jsonFor(const SkeletonElement& element, const ButtonElement& view)
{
    QJsonArray attributes;
    for (int i = 0; i < element.attributes.size(); ++i) {
        QJsonObject attribute = jsonFor(view.attributes[std::size_t(i)]);
        attribute.insert(key("name"), element.attributes.at(i).name);
        attributes.append(attribute);
    }
    return {{key("name"), element.name},
            {key("value"), isContainer(element) ? QJsonValue() : QJsonValue(jsonFor(view.value))},
            {key("attributes"), attributes}};
}

} // namespace

QString buttonText(const Examination& examination)
{
    const ButtonView& button = examination.button;
    QString text = button.leftOut.isEmpty() ? QString() : QLatin1Char('\n') + button.leftOut + QLatin1Char('\n');
    if (!button.elements.empty()) {
        text += QLatin1Char('\n') + ButtonWords::Title() + QLatin1Char('\n');
    }
    std::vector<int> levels(button.elements.size(), 1);
    for (std::size_t index = 0; index < button.elements.size(); ++index) {
        const SkeletonElement& element = examination.tree.elements[index];
        const ButtonElement& view = button.elements[index];
        levels[index] += element.parent == SkeletonElement::None ? 0 : levels[std::size_t(element.parent)];
        text += line(levels[index], element.name,
                     isContainer(element) ? ButtonWords::Container() : ButtonWords::For(view.value));
        for (int i = 0; i < element.attributes.size(); ++i) {
            text += line(levels[index] + 1, QLatin1Char('@') + element.attributes.at(i).name,
                         ButtonWords::For(view.attributes[std::size_t(i)]));
        }
    }
    return text;
}

QJsonValue buttonJson(const Examination& examination)
{
    const ButtonView& button = examination.button;
    if (button.elements.empty()) {
        return QJsonValue();
    }
    QJsonArray elements;
    for (std::size_t index = 0; index < button.elements.size(); ++index) {
        elements.append(jsonFor(examination.tree.elements[index], button.elements[index]));
    }
    return elements;
}

} // namespace schemadoctor
