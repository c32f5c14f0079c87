#include <QtTest>

#include <memory>
#include <type_traits>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

#include <xmlhelper/treesnapshot_p.h>

static_assert(std::is_empty_v<Tree>, "This is the tree of the platform.");

/// For a tree without GetRoot(). One with it is moved, renamed and covered by the tests of the report items.
class TestTreeSnapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsNothingInATreeThatDoesNotShowItsRoot_data();
    void findsNothingInATreeThatDoesNotShowItsRoot();
};

void TestTreeSnapshot::findsNothingInATreeThatDoesNotShowItsRoot_data()
{
    QTest::addColumn<bool>("isKept");
    QTest::newRow("asked-once") << false;
    QTest::newRow("asked-for-one-report") << true;
}

void TestTreeSnapshot::findsNothingInATreeThatDoesNotShowItsRoot()
{
    QFETCH(bool, isKept);
    const Tree tree;
    Node top(QStringLiteral("Top"), nullptr);
    auto* const value = new ValueText(QStringLiteral("Mode"), QStringLiteral("FM"));
    const auto* const item = new ValueItem(value, &top);
    const auto snapshot = isKept ? std::make_unique<TreeSnapshot>() : nullptr;
    for (int question = 0; question < 2; ++question) {
        QVERIFY(!TreeSnapshot::Holds(tree, item));
        QVERIFY(!TreeSnapshot::Holds(tree, value));
        QVERIFY(!TreeSnapshot::Holds(tree, static_cast<const TreeItem*>(nullptr)));
    }
}

QTEST_GUILESS_MAIN(TestTreeSnapshot)
#include "tst_internals_treesnapshot.moc"
