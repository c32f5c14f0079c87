#include <functional>

#include <QDomDocument>
#include <QtTest>

#include <xmlhelper/treechangedetector_p.h>

#include "domtext.h"

class TestTreeChangeDetector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsAsChangedUntilTheFirstReset();
    void noticesChanges_data();
    void noticesChanges();
    void noticesNothingElse_data();
    void noticesNothingElse();
};

using Change = std::function<void(QDomDocument& document)>;
Q_DECLARE_METATYPE(Change)

namespace {

void addRow(const char* name, const Change& change)
{
    QTest::newRow(name) << change;
}

QDomElement rootOf(QDomDocument& document)
{
    return document.documentElement();
}

} // namespace

void TestTreeChangeDetector::countsAsChangedUntilTheFirstReset()
{
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    TreeChangeDetector changes(document);
    QVERIFY(changes.IsChanged());
    changes.Reset();
    QVERIFY(!changes.IsChanged());
}

void TestTreeChangeDetector::noticesChanges_data()
{
    QTest::addColumn<Change>("change");
    addRow("an-element-appended", [](QDomDocument& d) { rootOf(d).appendChild(d.createElement(QStringLiteral("x"))); });
    addRow("an-element-inserted", [](QDomDocument& d) {
        rootOf(d).insertBefore(d.createElement(QStringLiteral("x")), rootOf(d).firstChild());
    });
    addRow("an-element-removed", [](QDomDocument& d) { rootOf(d).removeChild(rootOf(d).firstChild()); });
    addRow("an-element-moved", [](QDomDocument& d) { rootOf(d).appendChild(rootOf(d).firstChild()); });
    addRow("an-element-replaced", [](QDomDocument& d) {
        rootOf(d).replaceChild(d.createElement(QStringLiteral("x")), rootOf(d).firstChild());
    });
    addRow("an-element-taken-to-another-document", [](QDomDocument& d) {
        QDomDocument other = documentOf(QStringLiteral("<o/>"));
        rootOf(other).appendChild(rootOf(d).firstChild());
    });
    addRow("an-element-taken-from-another-document", [](QDomDocument& d) {
        QDomDocument other = documentOf(QStringLiteral("<o><x/></o>"));
        rootOf(d).appendChild(rootOf(other).firstChild());
    });
    addRow("a-text-appended", [](QDomDocument& d) { rootOf(d).appendChild(d.createTextNode(QStringLiteral("t"))); });
    addRow("a-comment-behind-the-root", [](QDomDocument& d) { d.appendChild(d.createComment(QStringLiteral("c"))); });
    addRow("new-content", [](QDomDocument& d) { d.setContent(QStringLiteral("<r><a/><b/></r>")); });
}

void TestTreeChangeDetector::noticesChanges()
{
    QFETCH(Change, change);
    QDomDocument document = documentOf(QStringLiteral("<r><a/><b/></r>"));
    TreeChangeDetector changes(document);
    // Twice, since the detector looks at one or the other of two states.
    for (int i = 0; i < 2; ++i) {
        changes.Reset();
        QVERIFY(!changes.IsChanged());
        change(document);
        QVERIFY(changes.IsChanged());
        QVERIFY(changes.IsChanged());
    }
}

void TestTreeChangeDetector::noticesNothingElse_data()
{
    QTest::addColumn<Change>("change");
    addRow("a-search", [](QDomDocument& d) { QCOMPARE(d.elementsByTagName(QStringLiteral("a")).count(), 1); });
    addRow("an-element-made", [](QDomDocument& d) { d.createElement(QStringLiteral("x")); });
    addRow("a-clone", [](QDomDocument& d) { rootOf(d).firstChild().cloneNode(false); });
    addRow("an-element-renamed", [](QDomDocument& d) { rootOf(d).setTagName(QStringLiteral("x")); });
}

void TestTreeChangeDetector::noticesNothingElse()
{
    QFETCH(Change, change);
    QDomDocument document = documentOf(QStringLiteral("<r><a/><b/></r>"));
    TreeChangeDetector changes(document);
    changes.Reset();
    change(document);
    QVERIFY(!changes.IsChanged());
}

QTEST_GUILESS_MAIN(TestTreeChangeDetector)
#include "tst_internals_treechangedetector.moc"
