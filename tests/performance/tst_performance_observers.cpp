#include <QtTest>

#include <algorithm>
#include <functional>

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlcreatereport.h>

#include "cputime.h"

/// What an observer does while an element is announced to it.
using Habit = std::function<void(XmlCreateReport& builder, QDomElement element)>;
Q_DECLARE_METATYPE(Habit)

/// Makes the declarations of a schema of some size.
using Maker = std::function<QString(int size)>;
Q_DECLARE_METATYPE(Maker)

/// What a walk costs must not depend on what an observer does, beyond its own edits. Processor time is measured, and
/// compared only with that of the same work on another size.
class TestPerformanceObservers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesATimeInProportionToTheSchema_data();
    void takesATimeInProportionToTheSchema();
    void leavesInDeepChainsCostLittleMore();
};

namespace {

class HabitualObserver : public IXMLHelper
{
public:
    explicit HabitualObserver(Habit habit)
        : m_builder(this)
        , m_habit(std::move(habit))
    {
    }

    bool Create(const QString& schemaPath, const QString& reportPath)
    {
        return m_builder.CreateXmlFromSchema(schemaPath, reportPath, false);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            m_habit(m_builder, static_cast<ElemBeginEvent*>(event)->GetElementNode().toElement());
        }
    }

private:
    XmlCreateReport m_builder;
    Habit m_habit;
};

/// The processor time of one report in seconds; negative when it fails.
double secondsOf(const QString& declarations, const Habit& habit)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("schema.xsd")));
    if (!file.open(QIODevice::WriteOnly)) {
        return -1;
    }
    file.write(QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Survey'>"
                              "<xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType></xs:element></xs:schema>")
                   .arg(declarations)
                   .toUtf8());
    file.close();
    HabitualObserver observer(habit);
    const double begin = cpuSeconds();
    const bool isCreated = observer.Create(file.fileName(), folder.filePath(QStringLiteral("report.xml")));
    return isCreated ? cpuSeconds() - begin : -1;
}

QString rows(int count)
{
    return QStringLiteral("<xs:element name='Row' type='xs:string' minOccurs='%1' maxOccurs='unbounded'/>").arg(count);
}

/// Containers of which each holds an optional value. They are declared one by one: of what is declared once to occur
/// often only the last one has content.
QString groups(int count)
{
    return QStringLiteral("<xs:element name='Group'><xs:complexType><xs:sequence>"
                          "<xs:element name='Value' type='xs:string' minOccurs='0'/></xs:sequence></xs:complexType>"
                          "</xs:element>")
        .repeated(count);
}

QString requiredGroups(int count)
{
    return groups(count).replace(QLatin1String("minOccurs='0'"), QLatin1String("maxOccurs='5'"));
}

/// Groups, and behind them parts that hold what others of the name do.
QString groupsThenRow(int count)
{
    return groups(count)
        + QStringLiteral("<xs:element name='Part'><xs:complexType><xs:sequence>"
                         "<xs:element name='Survey' type='xs:string' minOccurs='0'/></xs:sequence></xs:complexType>"
                         "</xs:element>")
              .repeated(count);
}

/// Groups whose values have the name of one that may be missing below the root.
QString groupsAndValue(int count)
{
    return QStringLiteral("<xs:element name='Value' type='xs:string' minOccurs='0'/>") + groups(count);
}

QDomElement takeEverySecondChild(const QDomElement& element)
{
    QDomElement taker = element.ownerDocument().createElement(QStringLiteral("Taker"));
    for (QDomNode kept = element.firstChild(); !kept.isNull(); kept = kept.nextSibling()) {
        taker.appendChild(kept.nextSibling());
    }
    return taker;
}

QDomElement prefixed(const QDomElement& neighbour, const QString& name)
{
    return neighbour.ownerDocument().createElementNS(QStringLiteral("urn:notes"), QStringLiteral("p:") + name);
}

QString alternatives(int count)
{
    QString declarations;
    for (int i = 0; i < count; ++i) {
        declarations += QStringLiteral("<xs:element name='A%1' type='xs:string'/>").arg(i);
    }
    return QStringLiteral("<xs:choice>%1</xs:choice>").arg(declarations);
}

QString attributes(int count)
{
    QString declarations;
    for (int i = 0; i < count; ++i) {
        declarations += QStringLiteral("<xs:attribute name='a%1' type='xs:string'/>").arg(i);
    }
    return QStringLiteral("<xs:element name='e'><xs:complexType>%1</xs:complexType></xs:element>").arg(declarations);
}

/// Two chains of containers of the same names, of which the second holds leaves declared in each of them.
QString chains(int levels, int leaves)
{
    const auto chain = [levels](const QString& core) {
        QString text = core;
        for (int level = levels; level > 0; --level) {
            text = QStringLiteral("<xs:element name='C%1'><xs:complexType><xs:sequence>"
                                  "<xs:element name='Leaf' type='xs:string' maxOccurs='unbounded'/>%2"
                                  "</xs:sequence></xs:complexType></xs:element>")
                       .arg(level)
                       .arg(text);
        }
        return text;
    };
    return chain(QString())
        + chain(QStringLiteral("<xs:element name='Leaf' type='xs:string' minOccurs='%1' maxOccurs='%1'/>").arg(leaves));
}

} // namespace

void TestPerformanceObservers::takesATimeInProportionToTheSchema_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<int>("size");
    QTest::addColumn<Habit>("habit");
    const auto row = [](const char* name, const Maker& maker, int size, const Habit& habit) {
        QTest::newRow(name) << maker << size << habit;
    };
    const QString note = QStringLiteral("note");
    row("nothing", groups, 2000, [](XmlCreateReport&, const QDomElement&) {});
    row("nothing-where-all-declarations-are-alike", requiredGroups, 2000, [](XmlCreateReport&, const QDomElement&) {});
    row("sets-each-attribute-of-one-element", attributes, 1000, [](XmlCreateReport& builder, const QDomElement& e) {
        for (int i = e.attributes().count(); i-- > 0;) {
            builder.SetAttributeValue(QStringLiteral("a%1").arg(i), QStringLiteral("v"));
        }
    });
    row("sets-each-attribute-as-a-number-in-vain", attributes, 1000,
        [](XmlCreateReport& builder, const QDomElement& e) {
            for (int i = e.attributes().count(); i-- > 0;) {
                builder.SetAttributeValue(QStringLiteral("a%1").arg(i), i);
            }
        });
    row("sets-an-attribute-of-each-row-by-itself", rows, 2000,
        [=](XmlCreateReport&, QDomElement element) { element.setAttribute(note, note); });
    row("sets-an-attribute-in-each-group-by-itself", groups, 2000,
        [=](XmlCreateReport&, QDomElement element) { element.setAttribute(note, note); });
    row("removes-a-text-of-each-row-by-itself", rows, 2000,
        [=](XmlCreateReport&, QDomElement element) { element.removeChild(element.firstChild()); });
    row("comments-the-document-at-each-row", rows, 2000, [=](XmlCreateReport&, const QDomElement& element) {
        QDomDocument document = element.ownerDocument();
        document.appendChild(document.createComment(note));
    });
    row("comments-the-document-at-each-group", groups, 2000, [=](XmlCreateReport&, const QDomElement& element) {
        QDomDocument document = element.ownerDocument();
        document.appendChild(document.createComment(note));
    });
    row("appends-an-element-to-each-row", rows, 2000, [=](XmlCreateReport&, QDomElement element) {
        if (element.tagName() == QLatin1String("Row")) {
            element.appendChild(element.ownerDocument().createElement(note));
        }
    });
    row("appends-a-group-in-each-group", groups, 2000, [=](XmlCreateReport&, QDomElement element) {
        if (element.tagName() == QLatin1String("Value")) {
            element.parentNode().appendChild(element.ownerDocument().createElement(QStringLiteral("Group")));
        }
    });
    row("removes-an-element-of-each-group", groups, 2000, [](XmlCreateReport&, QDomElement element) {
        element.removeChild(element.firstChildElement(QStringLiteral("Value")));
    });
    row("adds-a-root", groups, 2000, [=](XmlCreateReport&, const QDomElement& element) {
        QDomDocument document = element.ownerDocument();
        if (element == document.lastChild()) {
            document.appendChild(document.createElement(note));
        }
    });
    row("adds-a-root-of-a-name-that-comes-late", groupsThenRow, 2000,
        [=](XmlCreateReport&, const QDomElement& element) {
            QDomDocument document = element.ownerDocument();
            if (element == document.lastChild()) {
                document.appendChild(document.createElement(QStringLiteral("Part")));
            }
        });
    row("adds-an-element-with-a-prefix", groups, 2000, [=](XmlCreateReport&, QDomElement element) {
        if (element == element.ownerDocument().documentElement()) {
            element.insertBefore(prefixed(element, note), QDomNode());
        }
    });
    row("adds-an-element-with-a-prefix-to-each-group", groups, 2000, [=](XmlCreateReport&, QDomElement element) {
        if (element.tagName() == QLatin1String("Value")) {
            element.parentNode().insertBefore(prefixed(element, note), element);
        }
    });
    row("gives-each-group-a-namesake-with-a-prefix", groups, 2000, [=](XmlCreateReport&, QDomElement element) {
        if (element.tagName() == QLatin1String("Value")) {
            element.parentNode().insertBefore(prefixed(element, QStringLiteral("Group")), element);
        }
    });
    row("moves-half-of-the-groups-below-another-root", groupsAndValue, 2000,
        [=](XmlCreateReport& builder, QDomElement element) {
            QDomDocument document = element.ownerDocument();
            if (document.lastChild() == document.documentElement()) {
                document.appendChild(takeEverySecondChild(element));
                element.setAttribute(QStringLiteral("type"), QStringLiteral("string"));
                builder.SetXmlValue(note);
            }
        });
    row("discards-each-alternative", alternatives, 3000,
        [](XmlCreateReport& builder, const QDomElement&) { builder.DiscardChoiceItem(); });
}

void TestPerformanceObservers::takesATimeInProportionToTheSchema()
{
    QFETCH(Maker, maker);
    QFETCH(int, size);
    QFETCH(Habit, habit);
    Limits few;
    few.nodesLookedAtAgain = 1000; // so that the size of the schema counts, and not this
    const LimitsInForce inForce(few);
    const QString once = maker(size);
    const QString fourTimes = maker(4 * size);
    const double least = std::min({secondsOf(once, habit), secondsOf(once, habit), secondsOf(once, habit)});
    QVERIFY(least >= 0);
    const double most = std::min(secondsOf(fourTimes, habit), secondsOf(fourTimes, habit));
    // Four times the work takes four times as long; sixteen times where each part of it looks at all others.
    QVERIFY2(most < 8 * (least + CpuTimeStep), qPrintable(QStringLiteral("%1 s and %2 s").arg(least).arg(most)));
}

void TestPerformanceObservers::leavesInDeepChainsCostLittleMore()
{
    const Habit nothing = [](XmlCreateReport&, const QDomElement&) {};
    constexpr int leaves = 500;
    const auto secondsOfLeaves = [&](int levels) {
        const double without = secondsOf(chains(levels, 0), nothing);
        return std::max(0.0, secondsOf(chains(levels, leaves), nothing) - without);
    };
    const double flat = secondsOfLeaves(5);
    const double deep = secondsOfLeaves(200);
    QVERIFY2(deep < 40 * flat + 0.1, qPrintable(QStringLiteral("%1 s and %2 s").arg(flat).arg(deep)));
}

QTEST_GUILESS_MAIN(TestPerformanceObservers)
#include "tst_performance_observers.moc"
