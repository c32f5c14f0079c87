#include <memory>
#include <QtTest>
#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

class TestTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLivingTreeIsTheInstance();
    void theLatestOfSeveralTreesIsTheInstance();
    void anEarlierTreeMayBeDeletedFirst();
    void everyValueIsFoundByItsPathName();
    void everyItemIsFoundByItsPath();
    void anUnknownPathGivesNull_data();
    void anUnknownPathGivesNull();
    void theFirstOfSeveralItemsOfOneNameIsFound();
    void aNodeIsPassedOverInTheSearchForAValue();
    void aNameMayHoldTheSeparator();
    void aDeletedItemIsNotFound();
    void aPathNameCountsFromBelowTheTopOfAFreeNode();
    void aValueWithoutANodeHasItsNameForAPath();

private:
    static ValueText* addValue(const char* name, Node* parent);
    static Node* addNode(const char* name, Node* parent);
};

ValueText* TestTree::addValue(const char* name, Node* parent)
{
    auto* value = new ValueText(QLatin1String(name), QStringLiteral("text of ") + QLatin1String(name));
    new ValueItem(value, parent);
    return value;
}

Node* TestTree::addNode(const char* name, Node* parent)
{
    return new Node(QLatin1String(name), parent);
}

void TestTree::theLivingTreeIsTheInstance()
{
    QVERIFY(!Tree::Instance());
    {
        Tree tree;
        QCOMPARE(Tree::Instance(), &tree);
        QVERIFY(tree.GetRoot());
    }
    QVERIFY(!Tree::Instance());
}

void TestTree::theLatestOfSeveralTreesIsTheInstance()
{
    Tree first;
    {
        Tree second;
        QCOMPARE(Tree::Instance(), &second);
    }
    QCOMPARE(Tree::Instance(), &first);
}

void TestTree::anEarlierTreeMayBeDeletedFirst()
{
    auto first = std::make_unique<Tree>();
    auto second = std::make_unique<Tree>();
    const auto third = std::make_unique<Tree>();

    second.reset();
    QCOMPARE(Tree::Instance(), third.get());
    first.reset();
    QCOMPARE(Tree::Instance(), third.get());
}

void TestTree::everyValueIsFoundByItsPathName()
{
    const Tree tree;
    Node* receiver = addNode("Receiver", tree.GetRoot());
    Node* signal = addNode("Signal", receiver);
    ValueText* top = addValue("Top", tree.GetRoot());
    ValueText* frequency = addValue("Frequency", receiver);
    ValueText* level = addValue("Level", signal);

    QCOMPARE(top->GetPathName(), QStringLiteral("Top"));
    QCOMPARE(frequency->GetPathName(), QStringLiteral("Receiver/Frequency"));
    QCOMPARE(level->GetPathName(), QStringLiteral("Receiver/Signal/Level"));
    for (ValueText* value : {top, frequency, level}) {
        QCOMPARE(tree.GetValue(value->GetPathName()), value);
    }
}

void TestTree::everyItemIsFoundByItsPath()
{
    const Tree tree;
    Node* receiver = addNode("Receiver", tree.GetRoot());
    Node* signal = addNode("Signal", receiver);
    addValue("Level", signal);

    QCOMPARE(tree.GetTreeItem(QStringLiteral("Receiver")), receiver);
    QCOMPARE(tree.GetTreeItem(QStringLiteral("Receiver/Signal")), signal);

    const TreeItem* level = tree.GetTreeItem(QStringLiteral("Receiver/Signal/Level"));
    QVERIFY(level);
    QCOMPARE(level->GetText(), QStringLiteral("text of Level"));
}

void TestTree::anUnknownPathGivesNull_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << "";
    QTest::newRow("unknown-name") << "Transmitter";
    QTest::newRow("name-in-other-case") << "receiver";
    QTest::newRow("beginning-of-a-name") << "Receiver/Lev";
    QTest::newRow("name-and-more") << "Receiver/Levels";
    QTest::newRow("without-the-node") << "Level";
    QTest::newRow("with-the-root") << "Root/Receiver/Level";
    QTest::newRow("separator-at-the-start") << "/Receiver/Level";
    QTest::newRow("item-without-a-name-has-no-path") << "Receiver/";
    QTest::newRow("doubled-separator") << "Receiver//Level";
    QTest::newRow("below-a-value") << "Receiver/Level/Level";
}

void TestTree::anUnknownPathGivesNull()
{
    QFETCH(QString, path);
    const Tree tree;
    Node* receiver = addNode("Receiver", tree.GetRoot());
    addValue("Level", receiver);
    new ValueItem(nullptr, receiver);
    new ValueItem(nullptr, tree.GetRoot());

    QVERIFY(!tree.GetValue(path));
    QVERIFY(!tree.GetTreeItem(path));
}

void TestTree::theFirstOfSeveralItemsOfOneNameIsFound()
{
    const Tree tree;
    Node* first = addNode("Receiver", tree.GetRoot());
    Node* second = addNode("Receiver", tree.GetRoot());
    ValueText* level = addValue("Level", first);
    addValue("Level", second);
    ValueText* azimuth = addValue("Azimuth", second);

    QCOMPARE(tree.GetTreeItem(QStringLiteral("Receiver")), first);
    QCOMPARE(tree.GetValue(QStringLiteral("Receiver/Level")), level);
    QCOMPARE(tree.GetValue(QStringLiteral("Receiver/Azimuth")), azimuth);
}

void TestTree::aNodeIsPassedOverInTheSearchForAValue()
{
    const Tree tree;
    Node* node = addNode("Level", tree.GetRoot());
    QVERIFY(!tree.GetValue(QStringLiteral("Level")));

    ValueText* value = addValue("Level", tree.GetRoot());
    QCOMPARE(tree.GetValue(QStringLiteral("Level")), value);
    QCOMPARE(tree.GetTreeItem(QStringLiteral("Level")), node);
}

void TestTree::aNameMayHoldTheSeparator()
{
    const Tree tree;
    ValueText* value = addValue("C/N", addNode("I/Q", addNode("I", tree.GetRoot())));

    QCOMPARE(value->GetPathName(), QStringLiteral("I/I/Q/C/N"));
    QCOMPARE(tree.GetValue(value->GetPathName()), value);
}

void TestTree::aDeletedItemIsNotFound()
{
    const Tree tree;
    Node* receiver = addNode("Receiver", tree.GetRoot());
    addValue("Level", receiver);

    delete receiver;
    QVERIFY(!tree.GetTreeItem(QStringLiteral("Receiver")));
    QVERIFY(!tree.GetValue(QStringLiteral("Receiver/Level")));
}

void TestTree::aPathNameCountsFromBelowTheTopOfAFreeNode()
{
    Node top(QStringLiteral("Free"), nullptr);
    Node* signal = addNode("Signal", &top);

    QCOMPARE(addValue("Frequency", &top)->GetPathName(), QStringLiteral("Frequency"));
    QCOMPARE(addValue("Level", signal)->GetPathName(), QStringLiteral("Signal/Level"));
}

void TestTree::aValueWithoutANodeHasItsNameForAPath()
{
    const ValueText loose(QStringLiteral("Loose"), QString());
    QCOMPARE(loose.GetPathName(), QStringLiteral("Loose"));

    const ValueItem item(new ValueText(QStringLiteral("Free"), QString()), nullptr);
    QCOMPARE(item.GetValueObject()->GetPathName(), QStringLiteral("Free"));
}

QTEST_GUILESS_MAIN(TestTree)

#include "tst_tree.moc"
