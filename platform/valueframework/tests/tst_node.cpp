#include <memory>
#include <QtTest>
#include <valueframework/node.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

namespace {

/// A value that counts itself, so that a test sees when it is deleted.
class CountedValue : public ValueText
{
public:
    explicit CountedValue(int* living)
        : ValueText(QStringLiteral("Counted"), QString())
        , m_living(living)
    {
        ++*m_living;
    }
    ~CountedValue() override { --*m_living; }

private:
    int* m_living;
};

QStringList namesOf(const Node& node)
{
    QStringList names;
    for (const TreeItem* item : node.GetTreeItems()) {
        names += item->GetName();
    }
    return names;
}

} // namespace

class TestNode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsStandInTheOrderTheyWereMade();
    void aNodeHasNoText();
    void aValueItemShowsItsValue();
    void aValueItemMayBeEmpty();
    void kindsAreToldApartByDynamicCast();
    void aNodeDeletesEverythingBelowIt();
    void aDeletedItemLeavesItsParent();
    void aDeletedValueLeavesItsItem();
    void aValueMovesToTheItemThatTakesItOver();
};

void TestNode::itemsStandInTheOrderTheyWereMade()
{
    Node top(QStringLiteral("Receiver"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Zeta"), QString()), &top);
    new Node(QStringLiteral("Alpha"), &top);
    new ValueItem(new ValueText(QStringLiteral("Mid"), QString()), &top);

    QCOMPARE(namesOf(top), QStringList({QStringLiteral("Zeta"), QStringLiteral("Alpha"), QStringLiteral("Mid")}));
}

void TestNode::aNodeHasNoText()
{
    Node top(QStringLiteral("Receiver"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), &top);

    QCOMPARE(top.GetName(), QStringLiteral("Receiver"));
    QCOMPARE(top.GetText(), QString());
    QVERIFY(!top.GetParent());
}

void TestNode::aValueItemShowsItsValue()
{
    auto* value = new ValueText(QStringLiteral("Mode"), QStringLiteral("FM"));
    const ValueItem item(value, nullptr);
    QCOMPARE(item.GetName(), QStringLiteral("Mode"));
    QCOMPARE(item.GetText(), QStringLiteral("FM"));
    QCOMPARE(item.GetValueObject(), value);

    value->SetText(QStringLiteral("AM"));
    QCOMPARE(item.GetText(), QStringLiteral("AM"));
}

void TestNode::aValueItemMayBeEmpty()
{
    Node top(QStringLiteral("Receiver"), nullptr);
    const auto* item = new ValueItem(nullptr, &top);

    QCOMPARE(top.GetTreeItems().size(), std::size_t(1));
    QVERIFY(!item->GetValueObject());
    QCOMPARE(item->GetName(), QString());
    QCOMPARE(item->GetText(), QString());
}

void TestNode::kindsAreToldApartByDynamicCast()
{
    Node top(QStringLiteral("Receiver"), nullptr);
    TreeItem* node = new Node(QStringLiteral("Node"), &top);
    TreeItem* valueItem = new ValueItem(new ValueText(QStringLiteral("Value"), QString()), &top);
    TreeItem* neither = new TreeItem(QStringLiteral("Neither"), &top);

    QVERIFY(dynamic_cast<Node*>(node));
    QVERIFY(!dynamic_cast<ValueItem*>(node));
    QVERIFY(dynamic_cast<ValueItem*>(valueItem));
    QVERIFY(!dynamic_cast<Node*>(valueItem));
    QVERIFY(!dynamic_cast<Node*>(neither));
    QVERIFY(!dynamic_cast<ValueItem*>(neither));
}

void TestNode::aNodeDeletesEverythingBelowIt()
{
    int living = 0;
    auto top = std::make_unique<Node>(QStringLiteral("Receiver"), nullptr);
    auto* inner = new Node(QStringLiteral("Inner"), top.get());
    new ValueItem(new CountedValue(&living), inner);
    new ValueItem(nullptr, inner);
    new ValueItem(new CountedValue(&living), top.get());
    QCOMPARE(living, 2);

    top.reset();
    QCOMPARE(living, 0);
}

void TestNode::aDeletedItemLeavesItsParent()
{
    int living = 0;
    Node top(QStringLiteral("Receiver"), nullptr);
    new Node(QStringLiteral("First"), &top);
    auto* second = new Node(QStringLiteral("Second"), &top);
    new Node(QStringLiteral("Third"), &top);
    new ValueItem(new CountedValue(&living), second);

    delete second;
    QCOMPARE(living, 0);
    QCOMPARE(namesOf(top), QStringList({QStringLiteral("First"), QStringLiteral("Third")}));
}

void TestNode::aDeletedValueLeavesItsItem()
{
    auto value = std::make_unique<ValueText>(QStringLiteral("Mode"), QStringLiteral("FM"));
    const ValueItem item(value.get(), nullptr);

    value.reset();
    QVERIFY(!item.GetValueObject());
    QCOMPARE(item.GetText(), QString());
}

void TestNode::aValueMovesToTheItemThatTakesItOver()
{
    int living = 0;
    auto* value = new CountedValue(&living);
    Node top(QStringLiteral("Receiver"), nullptr);
    auto* inner = new Node(QStringLiteral("Inner"), &top);
    const auto* former = new ValueItem(value, &top);
    const auto* owner = new ValueItem(value, inner);
    QVERIFY(!former->GetValueObject());
    QCOMPARE(owner->GetValueObject(), value);
    QCOMPARE(value->GetPathName(), QStringLiteral("Inner/Counted"));

    delete former;
    QCOMPARE(living, 1);
    delete owner;
    QCOMPARE(living, 0);
}

QTEST_GUILESS_MAIN(TestNode)

#include "tst_node.moc"
