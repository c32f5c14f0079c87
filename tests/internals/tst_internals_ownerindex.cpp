#include <QtTest>

#include <memory>

#include <QDomDocument>
#include <QSet>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/ownerindex_p.h>

#include "domtext.h"

/// What the index tells of a walk's place when others have changed the document before it. It looks again at as much as
/// the limit and the questions allow, and goes by what it has seen until then.
class TestInternalsOwnerIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheFirstOfAName();
    void noticesAtOnceWhatTheLimitAllowsToLookAt_data();
    void noticesAtOnceWhatTheLimitAllowsToLookAt();
    void noticesLateWhatIsBeyondTheLimit_data();
    void noticesLateWhatIsBeyondTheLimit();
    void noticesRenamedStepsAtOnceBeyondTheLimit();
    void noticesRenamedFirstsAtOnceBeyondTheLimit();
    void seesWhatFollowsElementsTakenAway();
    void noticesLateWhatFollowsElementsTakenAwayAtTheEnd();
    void findsNoneFirstOfRenamedElements();
    void findsNoneFirstOfElementsTakenAway();
    void knowsPrefixesBeforeThePlaceOnly();
    void knowsNoPrefixInsideOfItsName();
    void forgetsARemovedPrefix();
    void findsTheRootsNameAtTheEnd();

private:
    void makeIndex(int nodesLookedAtAgain);
    bool isGroupFirst(const QDomElement& group);
    QDomElement prefixedGroup();

    QDomDocument m_document;
    QDomElement m_before;
    QDomElement m_group;
    QDomElement m_nextGroup;
    std::unique_ptr<OwnerIndex> m_pIndex;
};

namespace {

/// What each question allows to look at again, beside the limit.
constexpr int NodesOfQuestion = 50;

/// A limit that forbids to look again before so many questions.
constexpr int QuestionsToWait = 10;
constexpr int NothingAtFirst = -QuestionsToWait * NodesOfQuestion;

using Change = void (*)(QDomElement element);

void rename(QDomElement element)
{
    element.setTagName(QStringLiteral("Group"));
    element.setAttribute(QStringLiteral("renamed"), 1); // Nothing tells of a name alone.
}

void insertInFront(QDomElement element)
{
    element.parentNode().insertBefore(element.ownerDocument().createElement(QStringLiteral("Group")), element);
}

void addRowsOfChanges()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("element-renamed-before-the-place") << Change(rename);
    QTest::newRow("element-put-before-the-place") << Change(insertInFront);
}

} // namespace

Q_DECLARE_METATYPE(Change)

void TestInternalsOwnerIndex::init()
{
    m_document = documentOf(QStringLiteral("<Root><Before/><Group><Value/></Group><Group><Value/></Group></Root>"));
    m_before = m_document.documentElement().firstChildElement();
    m_group = m_before.nextSiblingElement();
    m_nextGroup = m_group.nextSiblingElement();
}

void TestInternalsOwnerIndex::makeIndex(int nodesLookedAtAgain)
{
    Limits limits;
    limits.nodesLookedAtAgain = nodesLookedAtAgain;
    const LimitsInForce inForce(limits);
    m_pIndex = std::make_unique<OwnerIndex>(m_document, QSet<QString> {QStringLiteral("Group")});
}

/// Asks at the value of @p group.
bool TestInternalsOwnerIndex::isGroupFirst(const QDomElement& group)
{
    return m_pIndex->GoTo(group.firstChildElement()) && m_pIndex->IsFirstAt(1);
}

void TestInternalsOwnerIndex::findsTheFirstOfAName()
{
    makeIndex(0);
    QVERIFY(isGroupFirst(m_group));
    QVERIFY(!isGroupFirst(m_nextGroup));
}

void TestInternalsOwnerIndex::noticesAtOnceWhatTheLimitAllowsToLookAt_data()
{
    addRowsOfChanges();
}

void TestInternalsOwnerIndex::noticesAtOnceWhatTheLimitAllowsToLookAt()
{
    QFETCH(Change, change);
    makeIndex(1000);
    QVERIFY(isGroupFirst(m_group));
    change(m_before);
    QVERIFY(!isGroupFirst(m_group));
}

void TestInternalsOwnerIndex::noticesLateWhatIsBeyondTheLimit_data()
{
    addRowsOfChanges();
}

void TestInternalsOwnerIndex::noticesLateWhatIsBeyondTheLimit()
{
    QFETCH(Change, change);
    makeIndex(NothingAtFirst);
    QVERIFY(isGroupFirst(m_group));
    change(m_before);
    for (int question = 2; question <= QuestionsToWait; ++question) {
        QVERIFY(isGroupFirst(m_group));
    }
    QVERIFY(!isGroupFirst(m_group));
}

void TestInternalsOwnerIndex::noticesRenamedStepsAtOnceBeyondTheLimit()
{
    makeIndex(NothingAtFirst);
    QVERIFY(isGroupFirst(m_group));
    m_group.setTagName(QStringLiteral("Other"));
    QVERIFY(!isGroupFirst(m_group));
    QVERIFY(isGroupFirst(m_nextGroup));
}

void TestInternalsOwnerIndex::noticesRenamedFirstsAtOnceBeyondTheLimit()
{
    makeIndex(NothingAtFirst);
    QVERIFY(!isGroupFirst(m_nextGroup));
    m_group.setTagName(QStringLiteral("Other"));
    rename(m_nextGroup);
    QVERIFY(isGroupFirst(m_nextGroup));
}

/// The place from which to go on was one of them.
void TestInternalsOwnerIndex::seesWhatFollowsElementsTakenAway()
{
    makeIndex(NothingAtFirst);
    QVERIFY(m_pIndex->GoTo(m_group));
    m_document.documentElement().removeChild(m_before);
    QVERIFY(m_pIndex->GoTo(m_group));
    QVERIFY(m_pIndex->GoTo(m_nextGroup));
    QVERIFY(!isGroupFirst(m_nextGroup));
}

void TestInternalsOwnerIndex::noticesLateWhatFollowsElementsTakenAwayAtTheEnd()
{
    const QString name = QStringLiteral("Group");
    makeIndex(NothingAtFirst);
    QVERIFY(m_pIndex->GoTo(m_group));
    m_document.documentElement().removeChild(m_before);
    for (int question = 2; question <= QuestionsToWait; ++question) {
        m_pIndex->GoToEnd();
        QVERIFY(!m_pIndex->IsBelowRoot(name));
    }
    m_pIndex->GoToEnd();
    QVERIFY(m_pIndex->IsBelowRoot(name));
}

void TestInternalsOwnerIndex::findsNoneFirstOfRenamedElements()
{
    makeIndex(1000);
    QVERIFY(isGroupFirst(m_group));
    m_group.setTagName(QStringLiteral("Other"));
    m_nextGroup.setTagName(QStringLiteral("Other"));
    QVERIFY(!isGroupFirst(m_group));
    QVERIFY(!m_pIndex->IsBelowRoot(QStringLiteral("Group")));
}

void TestInternalsOwnerIndex::findsNoneFirstOfElementsTakenAway()
{
    makeIndex(1000);
    QVERIFY(m_pIndex->GoTo(m_group.firstChildElement()));
    m_document.documentElement().removeChild(m_group);
    m_document.documentElement().removeChild(m_nextGroup);
    QVERIFY(!m_pIndex->IsFirstAt(1));
}

QDomElement TestInternalsOwnerIndex::prefixedGroup()
{
    return m_document.createElementNS(QStringLiteral("urn:p"), QStringLiteral("p:Group"));
}

/// Behind the place it would have to be sought in the whole document, after each change of others.
void TestInternalsOwnerIndex::knowsPrefixesBeforeThePlaceOnly()
{
    m_document.documentElement().insertAfter(prefixedGroup(), m_group);
    makeIndex(1000);
    QVERIFY(isGroupFirst(m_group));
    QVERIFY(!m_pIndex->IsBehindPrefix(QStringLiteral("Group")));
    QVERIFY(!isGroupFirst(m_nextGroup));
    QVERIFY(m_pIndex->IsBehindPrefix(QStringLiteral("Group")));
    QCOMPARE(m_pIndex->NamesBehindPrefixes(), QStringList(QStringLiteral("Group")));
}

void TestInternalsOwnerIndex::knowsNoPrefixInsideOfItsName()
{
    m_group.appendChild(prefixedGroup());
    makeIndex(1000);
    QVERIFY(!isGroupFirst(m_nextGroup));
    QVERIFY(m_pIndex->HasPrefixes());
    QVERIFY(!m_pIndex->IsBehindPrefix(QStringLiteral("Group")));
}

void TestInternalsOwnerIndex::forgetsARemovedPrefix()
{
    const QDomNode prefixed = m_document.documentElement().insertBefore(prefixedGroup(), m_before);
    makeIndex(1000);
    QVERIFY(!isGroupFirst(m_group)); // A search finds the root in its place.
    QVERIFY(m_pIndex->IsBehindPrefix(QStringLiteral("Group")));
    m_document.documentElement().removeChild(prefixed);
    QVERIFY(isGroupFirst(m_group));
    QVERIFY(!m_pIndex->IsBehindPrefix(QStringLiteral("Group")));
}

void TestInternalsOwnerIndex::findsTheRootsNameAtTheEnd()
{
    const QString name = QStringLiteral("Root");
    makeIndex(1000);
    QVERIFY(isGroupFirst(m_group));
    m_pIndex->GoToEnd();
    QVERIFY(!m_pIndex->IsBelowRoot(name));
    QVERIFY(!isGroupFirst(m_nextGroup));
    const QDomNode namesake = m_nextGroup.appendChild(m_document.createElement(name));
    m_pIndex->GoToEnd();
    QVERIFY(m_pIndex->IsBelowRoot(name));
    m_nextGroup.removeChild(namesake);
    m_nextGroup.appendChild(m_document.createProcessingInstruction(name, name));
    m_pIndex->GoToEnd();
    QVERIFY(m_pIndex->IsBelowRoot(name));
}

QTEST_GUILESS_MAIN(TestInternalsOwnerIndex)
#include "tst_internals_ownerindex.moc"
