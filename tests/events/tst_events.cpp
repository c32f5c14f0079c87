#include <QtTest>

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

#include <QDomDocument>

#include <xmlhelper/eventdelivery_p.h>
#include <xmlhelper/xmlhelper.h>

#include "domtext.h"
#include "scriptedobserver.h"

QT_WARNING_DISABLE_DEPRECATED

class TestEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void errorIdentifiersKeepTheirNumbers_data();
    void errorIdentifiersKeepTheirNumbers();
    void errorIdentifiersAreSigned32BitNumbers();
    void kindsKeepTheirNumbers_data();
    void kindsKeepTheirNumbers();
    void kindsAre32BitNumbers();

    void observerIsAPlainInterface();
    void observerIsCopiedAndMovedWithoutEffect();

    void everyEventClassIsPolymorphicAndCopyable();
    void kindIsSetByTheClassOnly();
    void gettersGiveCopiesAndAreNoQueriesOfConstEvents();

    void kindBelongsToTheClass();
    void elementBeginKeepsNodeNameAttributesAndText();
    void elementBeginKeepsTheOrderOfAttributes();
    void elementBeginWithoutAttributesAndTextIsEmptyNotNull_data();
    void elementBeginWithoutAttributesAndTextIsEmptyNotNull();
    void elementBeginMayHaveANullNode();
    void nodeOfElementBeginFollowsTheDocument();
    void nodeOfElementBeginOutlivesTheEvent();
    void elementEndKeepsItsName();
    void errorKeepsItsIdentifier_data();
    void errorKeepsItsIdentifier();
    void whatGettersGaveIsNotTiedToTheEvent();

    void copiesAreEqual();
    void assignmentReplacesEveryMember();
    void assignmentOfAnEventToItselfKeepsIt();
    void assignmentThroughTheBaseCopiesTheKind();

    void deletionThroughTheBaseRunsTheConcreteDestructor();
    void deletionThroughTheBaseReleasesTheMembers();

    void deliveredEventLivesUntilTheObserverReturns();
    void deliveryCallsTheObserverOnce();
    void nestedErrorArrivesBeforeTheOuterCallReturns();
    void senderStaysUsableAfterAnError();
    void reentrantBuilderDeliversNestedErrors();
};

namespace {

/// An event that counts how often its concrete class is destroyed.
template <class Event> class CountedEvent : public Event
{
public:
    template <class... Arguments>
    explicit CountedEvent(int& destroyed, Arguments&&... arguments)
        : Event(std::forward<Arguments>(arguments)...)
        , m_destroyed(destroyed)
    {
    }
    ~CountedEvent() override { ++m_destroyed; }

private:
    Q_DISABLE_COPY(CountedEvent)

    int& m_destroyed;
};

class CountingObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { ++m_iCalls; }

    int m_iCalls = 0;
};

/// Looks at a count while an event is with it.
class WatchingObserver : public IXMLHelper
{
public:
    explicit WatchingObserver(const int& watched)
        : m_watched(watched)
    {
    }
    void XmlUpdate(XmlEvent*) override { m_iSeen = m_watched; }

    int m_iSeen = -1;

private:
    const int& m_watched;
};

/// Answers an error, from inside it, with one further error.
class AnsweringObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        auto* const error = static_cast<ErrorEvent*>(event);
        m_log.append(QStringLiteral("enter %1").arg(error->GetErrorID()));
        if (error->GetErrorID() == CURRENT_TYPE_IS_NOT_DOUBLE) {
            deliver<ErrorEvent>(this, CURRENT_TYPE_IS_NOT_INTEGER);
        }
        m_log.append(QStringLiteral("leave %1").arg(error->GetErrorID()));
    }

    QStringList m_log;
};

template <class Event>
constexpr bool isEventClass
    = std::is_base_of_v<XmlEvent, Event>&& std::is_convertible_v<Event*, XmlEvent*>&& std::is_polymorphic_v<Event>&&
        std::has_virtual_destructor_v<Event>&& std::is_copy_constructible_v<Event>&& std::is_copy_assignable_v<Event>;

QXmlAttributes attributesOf(const QStringList& names)
{
    QXmlAttributes attributes;
    for (const QString& name : names) {
        attributes.append(name, QString(), QString(), QStringLiteral("value of ") + name);
    }
    return attributes;
}

QStringList namesOf(const QXmlAttributes& attributes)
{
    QStringList names;
    for (int i = 0; i < attributes.count(); ++i) {
        names.append(attributes.qName(i));
    }
    return names;
}

/// A text of its own, whose sharing can be watched.
QString heapText(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

void TestEvents::errorIdentifiersKeepTheirNumbers_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("number");

    QTest::newRow("general-error") << int(IXMLHelper::GENERAL_ERROR) << -1;
    QTest::newRow("no-current-element") << int(IXMLHelper::NO_CURRENT_ELEMENT) << 7;
    QTest::newRow("current-type-is-unknown") << int(IXMLHelper::CURRENT_TYPE_IS_UNKNOWN) << 8;
    QTest::newRow("current-type-is-not-string") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_STRING) << 9;
    QTest::newRow("current-type-is-not-double") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) << 10;
    QTest::newRow("current-type-is-not-integer") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER) << 11;
    QTest::newRow("current-type-is-not-datetime") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME) << 12;
    QTest::newRow("current-type-is-not-time") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_TIME) << 13;
    QTest::newRow("current-type-is-not-boolean") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN) << 14;
    QTest::newRow("value-is-not-valid") << int(IXMLHelper::VALUE_IS_NOT_VALID) << 15;
    QTest::newRow("max-occurs-exceeded") << int(IXMLHelper::MAX_OCCURS_EXCEEDED) << 16;
}

void TestEvents::errorIdentifiersKeepTheirNumbers()
{
    QFETCH(int, id);
    QFETCH(int, number);
    QCOMPARE(id, number);
}

void TestEvents::errorIdentifiersAreSigned32BitNumbers()
{
    QVERIFY((std::is_same_v<std::underlying_type_t<IXMLHelper::ErrorID>, qint32>));
    QVERIFY(IXMLHelper::GENERAL_ERROR < 0);
}

void TestEvents::kindsKeepTheirNumbers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("number");

    QTest::newRow("none") << int(XmlEvent::EVENT_NONE) << 0;
    QTest::newRow("document-begin") << int(XmlEvent::EVENT_DOC_BEGIN) << 1;
    QTest::newRow("document-end") << int(XmlEvent::EVENT_DOC_END) << 2;
    QTest::newRow("element-begin") << int(XmlEvent::EVENT_ELEM_BEGIN) << 3;
    QTest::newRow("element-end") << int(XmlEvent::EVENT_ELEM_END) << 4;
    QTest::newRow("error") << int(XmlEvent::EVENT_ERROR) << 5;
}

void TestEvents::kindsKeepTheirNumbers()
{
    QFETCH(int, kind);
    QFETCH(int, number);
    QCOMPARE(kind, number);
}

void TestEvents::kindsAre32BitNumbers()
{
    QCOMPARE(sizeof(XmlEvent::type), std::size_t(4));
}

void TestEvents::observerIsAPlainInterface()
{
    QVERIFY(std::is_abstract_v<IXMLHelper>);
    QVERIFY(!std::has_virtual_destructor_v<IXMLHelper>);
    // Nobody destroys an observer by this class, and it adds nothing to be destroyed.
    QVERIFY(!std::is_destructible_v<IXMLHelper>);
    QVERIFY(std::is_trivially_destructible_v<CountingObserver>);
    // Nothing but the pointer to the dispatch table: no members.
    QCOMPARE(sizeof(IXMLHelper), sizeof(void*));
    QVERIFY((std::is_same_v<decltype(&IXMLHelper::XmlUpdate), void (IXMLHelper::*)(XmlEvent*)>));
}

void TestEvents::observerIsCopiedAndMovedWithoutEffect()
{
    QVERIFY(std::is_default_constructible_v<CountingObserver>);
    QVERIFY(std::is_copy_constructible_v<CountingObserver>);
    QVERIFY(std::is_move_constructible_v<CountingObserver>);
    QVERIFY(std::is_copy_assignable_v<IXMLHelper>);
    QVERIFY(std::is_move_assignable_v<IXMLHelper>);

    CountingObserver one;
    CountingObserver other;
    other.m_iCalls = 3;
    IXMLHelper& target = one;
    IXMLHelper& source = other;
    QCOMPARE(&(target = source), &target);
    QCOMPARE(one.m_iCalls, 0);
    QCOMPARE(&(target = std::move(source)), &target);
    QCOMPARE(one.m_iCalls, 0);
    QCOMPARE(other.m_iCalls, 3);
}

void TestEvents::everyEventClassIsPolymorphicAndCopyable()
{
    QVERIFY(isEventClass<XmlEvent>);
    QVERIFY(isEventClass<DocBeginEvent>);
    QVERIFY(isEventClass<DocEndEvent>);
    QVERIFY(isEventClass<ElemBeginEvent>);
    QVERIFY(isEventClass<ElemEndEvent>);
    QVERIFY(isEventClass<ErrorEvent>);

    QVERIFY(std::is_default_constructible_v<XmlEvent>);
    QVERIFY(std::is_default_constructible_v<DocBeginEvent>);
    QVERIFY(std::is_default_constructible_v<DocEndEvent>);
    QVERIFY((std::is_constructible_v<ElemBeginEvent, const QDomNode&, const QString&, const QXmlAttributes&,
                                     const QString&>));
    QVERIFY((std::is_constructible_v<ElemEndEvent, const QString&>));
    QVERIFY((std::is_constructible_v<ErrorEvent, IXMLHelper::ErrorID>));
}

void TestEvents::kindIsSetByTheClassOnly()
{
    QVERIFY((!std::is_constructible_v<XmlEvent, XmlEvent::type>));
    QVERIFY(!std::is_default_constructible_v<ElemBeginEvent>);
    QVERIFY(!std::is_default_constructible_v<ElemEndEvent>);
    QVERIFY(!std::is_default_constructible_v<ErrorEvent>);
    // The events that carry nothing have no member beside the kind.
    QCOMPARE(sizeof(DocBeginEvent), sizeof(XmlEvent));
    QCOMPARE(sizeof(DocEndEvent), sizeof(XmlEvent));
}

void TestEvents::gettersGiveCopiesAndAreNoQueriesOfConstEvents()
{
    QVERIFY((std::is_same_v<decltype(&XmlEvent::GetType), XmlEvent::type (XmlEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ElemBeginEvent::GetElementNode), QDomNode (ElemBeginEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ElemBeginEvent::GetElementName), QString (ElemBeginEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ElemBeginEvent::GetElementText), QString (ElemBeginEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ElemBeginEvent::GetElementAttributes), QXmlAttributes (ElemBeginEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ElemEndEvent::GetElementName), QString (ElemEndEvent::*)()>));
    QVERIFY((std::is_same_v<decltype(&ErrorEvent::GetErrorID), IXMLHelper::ErrorID (ErrorEvent::*)()>));
}

void TestEvents::kindBelongsToTheClass()
{
    const QString name = QStringLiteral("a");
    QCOMPARE(XmlEvent().GetType(), XmlEvent::EVENT_NONE);
    QCOMPARE(DocBeginEvent().GetType(), XmlEvent::EVENT_DOC_BEGIN);
    QCOMPARE(DocEndEvent().GetType(), XmlEvent::EVENT_DOC_END);
    QCOMPARE(ElemBeginEvent(QDomNode(), name, QXmlAttributes(), QString()).GetType(), XmlEvent::EVENT_ELEM_BEGIN);
    QCOMPARE(ElemEndEvent(name).GetType(), XmlEvent::EVENT_ELEM_END);
    QCOMPARE(ErrorEvent(IXMLHelper::GENERAL_ERROR).GetType(), XmlEvent::EVENT_ERROR);
}

void TestEvents::elementBeginKeepsNodeNameAttributesAndText()
{
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    const QDomElement root = document.documentElement();
    ElemBeginEvent event(root, QStringLiteral("name"), attributesOf({QStringLiteral("k")}), QStringLiteral("text"));
    QCOMPARE(event.GetElementNode(), root);
    QCOMPARE(event.GetElementName(), QStringLiteral("name"));
    QCOMPARE(event.GetElementAttributes().count(), 1);
    QCOMPARE(event.GetElementAttributes().value(QStringLiteral("k")), QStringLiteral("value of k"));
    QCOMPARE(event.GetElementText(), QStringLiteral("text"));
}

void TestEvents::elementBeginKeepsTheOrderOfAttributes()
{
    const QStringList names {QStringLiteral("z"), QStringLiteral("a"), QStringLiteral("m")};
    ElemBeginEvent event(QDomNode(), QStringLiteral("e"), attributesOf(names), QString());
    QCOMPARE(namesOf(event.GetElementAttributes()), names);
}

void TestEvents::elementBeginWithoutAttributesAndTextIsEmptyNotNull_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty-text-stays-empty") << QStringLiteral("");
    QTest::newRow("null-text-becomes-empty") << QString();
}

void TestEvents::elementBeginWithoutAttributesAndTextIsEmptyNotNull()
{
    QFETCH(QString, text);
    ElemBeginEvent event(QDomNode(), QStringLiteral("e"), QXmlAttributes(), text);
    QCOMPARE(event.GetElementAttributes().count(), 0);
    QVERIFY(event.GetElementText().isEmpty());
    QVERIFY(!event.GetElementText().isNull());
}

void TestEvents::elementBeginMayHaveANullNode()
{
    ElemBeginEvent event(QDomNode(), QStringLiteral("e"), QXmlAttributes(), QString());
    QVERIFY(event.GetElementNode().isNull());
}

void TestEvents::nodeOfElementBeginFollowsTheDocument()
{
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    ElemBeginEvent event(document.documentElement(), QStringLiteral("r"), QXmlAttributes(), QString());
    document.documentElement().setAttribute(QStringLiteral("k"), QStringLiteral("later"));
    QCOMPARE(event.GetElementNode().toElement().attribute(QStringLiteral("k")), QStringLiteral("later"));

    event.GetElementNode().toElement().setAttribute(QStringLiteral("k"), QStringLiteral("back"));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("k")), QStringLiteral("back"));
}

void TestEvents::nodeOfElementBeginOutlivesTheEvent()
{
    QDomDocument document = documentOf(QStringLiteral("<r k='1'><a/></r>"));
    QDomNode kept;
    {
        ElemBeginEvent event(document.documentElement(), QStringLiteral("r"), QXmlAttributes(), QString());
        kept = event.GetElementNode();
    }
    document.removeChild(document.documentElement());
    QCOMPARE(domText(kept), QStringLiteral("<r k=\"1\">\n  <a/>\n</r>\n"));
}

void TestEvents::elementEndKeepsItsName()
{
    QCOMPARE(ElemEndEvent(QStringLiteral("p:name")).GetElementName(), QStringLiteral("p:name"));
}

void TestEvents::errorKeepsItsIdentifier_data()
{
    errorIdentifiersKeepTheirNumbers_data();
}

void TestEvents::errorKeepsItsIdentifier()
{
    QFETCH(int, id);
    QFETCH(int, number);
    QCOMPARE(int(ErrorEvent(static_cast<IXMLHelper::ErrorID>(id)).GetErrorID()), number);
}

void TestEvents::whatGettersGaveIsNotTiedToTheEvent()
{
    ElemBeginEvent event(QDomNode(), QStringLiteral("name"), attributesOf({QStringLiteral("k")}),
                         QStringLiteral("text"));
    QString name = event.GetElementName();
    name.append(QLatin1Char('!'));
    QString text = event.GetElementText();
    text.append(QLatin1Char('!'));
    QXmlAttributes attributes = event.GetElementAttributes();
    attributes.clear();
    QCOMPARE(event.GetElementName(), QStringLiteral("name"));
    QCOMPARE(event.GetElementText(), QStringLiteral("text"));
    QCOMPARE(event.GetElementAttributes().count(), 1);
}

void TestEvents::copiesAreEqual()
{
    const XmlEvent plain;
    QCOMPARE(XmlEvent(plain).GetType(), XmlEvent::EVENT_NONE);
    const DocBeginEvent documentBegin;
    QCOMPARE(DocBeginEvent(documentBegin).GetType(), XmlEvent::EVENT_DOC_BEGIN);
    const DocEndEvent documentEnd;
    QCOMPARE(DocEndEvent(documentEnd).GetType(), XmlEvent::EVENT_DOC_END);

    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    ElemBeginEvent begin(document.documentElement(), QStringLiteral("r"), attributesOf({QStringLiteral("k")}),
                         QStringLiteral("text"));
    ElemBeginEvent beginCopy(begin);
    QCOMPARE(beginCopy.GetType(), XmlEvent::EVENT_ELEM_BEGIN);
    QCOMPARE(beginCopy.GetElementNode(), begin.GetElementNode());
    QCOMPARE(beginCopy.GetElementNode(), document.documentElement());
    QCOMPARE(beginCopy.GetElementName(), QStringLiteral("r"));
    QCOMPARE(namesOf(beginCopy.GetElementAttributes()), QStringList(QStringLiteral("k")));
    QCOMPARE(beginCopy.GetElementText(), QStringLiteral("text"));

    const ElemEndEvent end(QStringLiteral("r"));
    ElemEndEvent endCopy(end);
    QCOMPARE(endCopy.GetType(), XmlEvent::EVENT_ELEM_END);
    QCOMPARE(endCopy.GetElementName(), QStringLiteral("r"));

    const ErrorEvent error(IXMLHelper::VALUE_IS_NOT_VALID);
    ErrorEvent errorCopy(error);
    QCOMPARE(errorCopy.GetType(), XmlEvent::EVENT_ERROR);
    QCOMPARE(errorCopy.GetErrorID(), IXMLHelper::VALUE_IS_NOT_VALID);
}

void TestEvents::assignmentReplacesEveryMember()
{
    const QDomDocument document = documentOf(QStringLiteral("<r/>"));
    const ElemBeginEvent begin(document.documentElement(), QStringLiteral("r"), attributesOf({QStringLiteral("k")}),
                               QStringLiteral("text"));
    ElemBeginEvent otherBegin(QDomNode(), QStringLiteral("other"), QXmlAttributes(), QString());
    QCOMPARE(&(otherBegin = begin), &otherBegin);
    QCOMPARE(otherBegin.GetType(), XmlEvent::EVENT_ELEM_BEGIN);
    QCOMPARE(otherBegin.GetElementNode(), document.documentElement());
    QCOMPARE(otherBegin.GetElementName(), QStringLiteral("r"));
    QCOMPARE(namesOf(otherBegin.GetElementAttributes()), QStringList(QStringLiteral("k")));
    QCOMPARE(otherBegin.GetElementText(), QStringLiteral("text"));

    ElemEndEvent end(QStringLiteral("other"));
    end = ElemEndEvent(QStringLiteral("r"));
    QCOMPARE(end.GetElementName(), QStringLiteral("r"));

    ErrorEvent error(IXMLHelper::GENERAL_ERROR);
    error = ErrorEvent(IXMLHelper::MAX_OCCURS_EXCEEDED);
    QCOMPARE(error.GetErrorID(), IXMLHelper::MAX_OCCURS_EXCEEDED);

    DocBeginEvent documentBegin;
    documentBegin = DocBeginEvent();
    QCOMPARE(documentBegin.GetType(), XmlEvent::EVENT_DOC_BEGIN);
    DocEndEvent documentEnd;
    documentEnd = DocEndEvent();
    QCOMPARE(documentEnd.GetType(), XmlEvent::EVENT_DOC_END);
}

void TestEvents::assignmentOfAnEventToItselfKeepsIt()
{
    ElemBeginEvent event(QDomNode(), heapText("name"), attributesOf({QStringLiteral("k")}), heapText("text"));
    const ElemBeginEvent& itself = event;
    event = itself;
    QCOMPARE(event.GetElementName(), QStringLiteral("name"));
    QCOMPARE(event.GetElementText(), QStringLiteral("text"));
    QCOMPARE(event.GetElementAttributes().count(), 1);
}

void TestEvents::assignmentThroughTheBaseCopiesTheKind()
{
    XmlEvent plain;
    plain = DocEndEvent();
    QCOMPARE(plain.GetType(), XmlEvent::EVENT_DOC_END);
    plain = ErrorEvent(IXMLHelper::GENERAL_ERROR);
    QCOMPARE(plain.GetType(), XmlEvent::EVENT_ERROR);
}

void TestEvents::deletionThroughTheBaseRunsTheConcreteDestructor()
{
    int destroyed = 0;
    const QString name = QStringLiteral("a");
    std::unique_ptr<XmlEvent> event = std::make_unique<CountedEvent<XmlEvent>>(destroyed);
    event.reset();
    QCOMPARE(destroyed, 1);
    event = std::make_unique<CountedEvent<DocBeginEvent>>(destroyed);
    event.reset();
    QCOMPARE(destroyed, 2);
    event = std::make_unique<CountedEvent<DocEndEvent>>(destroyed);
    event.reset();
    QCOMPARE(destroyed, 3);
    event = std::make_unique<CountedEvent<ElemBeginEvent>>(destroyed, QDomNode(), name, QXmlAttributes(), QString());
    event.reset();
    QCOMPARE(destroyed, 4);
    event = std::make_unique<CountedEvent<ElemEndEvent>>(destroyed, name);
    event.reset();
    QCOMPARE(destroyed, 5);
    event = std::make_unique<CountedEvent<ErrorEvent>>(destroyed, IXMLHelper::GENERAL_ERROR);
    event.reset();
    QCOMPARE(destroyed, 6);
}

void TestEvents::deletionThroughTheBaseReleasesTheMembers()
{
    const QString name = heapText("name");
    const QString text = heapText("text");
    std::unique_ptr<XmlEvent> event = std::make_unique<ElemBeginEvent>(QDomNode(), name, QXmlAttributes(), text);
    QVERIFY(!name.isDetached());
    QVERIFY(!text.isDetached());
    event.reset();
    QVERIFY(name.isDetached());
    QVERIFY(text.isDetached());

    event = std::make_unique<ElemEndEvent>(name);
    QVERIFY(!name.isDetached());
    event.reset();
    QVERIFY(name.isDetached());
}

void TestEvents::deliveredEventLivesUntilTheObserverReturns()
{
    int destroyed = 0;
    WatchingObserver observer(destroyed);
    deliver<CountedEvent<DocBeginEvent>>(&observer, destroyed);
    QCOMPARE(observer.m_iSeen, 0);
    QCOMPARE(destroyed, 1);
}

void TestEvents::deliveryCallsTheObserverOnce()
{
    CountingObserver observer;
    deliver<DocEndEvent>(&observer);
    QCOMPARE(observer.m_iCalls, 1);
}

void TestEvents::nestedErrorArrivesBeforeTheOuterCallReturns()
{
    AnsweringObserver observer;
    deliver<ErrorEvent>(&observer, IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE);
    const QStringList expected {QStringLiteral("enter 10"), QStringLiteral("enter 11"), QStringLiteral("leave 11"),
                                QStringLiteral("leave 10")};
    QCOMPARE(observer.m_log, expected);
}

void TestEvents::senderStaysUsableAfterAnError()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    builder.SetXmlValue(1);
    builder.SetXmlValue(2);
    const std::vector<int> expected {IXMLHelper::NO_CURRENT_ELEMENT, IXMLHelper::NO_CURRENT_ELEMENT};
    QVERIFY(observer.Errors() == expected);
}

void TestEvents::reentrantBuilderDeliversNestedErrors()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    int depth = 0;
    int deepest = 0;
    observer.OnError([&](int) {
        ++depth;
        deepest = std::max(deepest, depth);
        if (depth < 3) {
            builder.SetXmlValue(QStringLiteral("again"));
        }
        --depth;
    });
    builder.SetXmlValue(1.5);
    QCOMPARE(deepest, 3);
    const std::vector<int> expected(3, IXMLHelper::NO_CURRENT_ELEMENT);
    QVERIFY(observer.Errors() == expected);
}

QTEST_GUILESS_MAIN(TestEvents)
#include "tst_events.moc"
