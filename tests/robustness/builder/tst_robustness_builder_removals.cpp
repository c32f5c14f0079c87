#include <QtTest>

#include <random>
#include <utility>

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlcreatereport.h>

/// Observers that take out of the document what the walk stands on, above, beside or in, and keep nothing of it.
///
/// Run with freed memory overwritten (MALLOC_PERTURB_, or AddressSanitizer), so that whoever follows a freed node ends
/// the process.
class TestRobustnessBuilderRemovals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void operationsStayCallableWhateverIsRemoved_data();
    void operationsStayCallableWhateverIsRemoved();

private:
    QTemporaryDir m_folder;
};

namespace {

/// Every name is an alternative somewhere, the root's too, so that everything can be discarded.
QByteArray schema()
{
    return R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:element name="r"><xs:complexType><xs:sequence>
    <xs:choice>
      <xs:element name="a" type="xs:string"/>
      <xs:element name="b" minOccurs="0"><xs:complexType><xs:sequence>
        <xs:element name="c" minOccurs="0" maxOccurs="unbounded"><xs:complexType><xs:sequence>
          <xs:element name="d" type="xs:short"/>
          <xs:element name="r" type="xs:double" minOccurs="0"/>
        </xs:sequence></xs:complexType></xs:element>
        <xs:element name="e" type="xs:string" default="x"/>
      </xs:sequence></xs:complexType></xs:element>
      <xs:element name="c"><xs:complexType><xs:sequence>
        <xs:element name="d" type="xs:string" maxOccurs="5"/>
        <xs:element name="b"><xs:complexType><xs:sequence>
          <xs:element name="e" type="xs:time"/>
        </xs:sequence></xs:complexType></xs:element>
      </xs:sequence></xs:complexType></xs:element>
      <xs:element name="r" type="xs:string"/>
      <xs:element name="z" type="xs:string"/>
    </xs:choice>
  </xs:sequence></xs:complexType></xs:element>
</xs:schema>)";
}

/// Keeps no node beyond an event.
class RemovingObserver : public IXMLHelper
{
public:
    RemovingObserver(unsigned seed, unsigned chance)
        : m_builder(this)
        , m_random(seed)
        , m_uChance(chance)
    {
    }

    void Run(const QString& schemaPath, const QString& reportPath)
    {
        m_builder.CreateXmlFromSchema(schemaPath, reportPath, false);
        for (int call = 0; call < 6; ++call) {
            operate();
        }
    }

    int Removals() const { return m_iRemovals; }

    void XmlUpdate(XmlEvent* event) override
    {
        if (++m_iEvents > 200) {
            return; // Copies of copies must come to an end.
        }
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            const QDomNode node = static_cast<ElemBeginEvent*>(event)->GetElementNode();
            const bool isOperatedBefore = below(2) == 0;
            if (isOperatedBefore && below(2) == 0) {
                operate();
            }
            if (below(m_uChance) == 0) {
                remove(node);
            }
            if (!isOperatedBefore && below(2) == 0) {
                operate();
            }
        } else if (event->GetType() == XmlEvent::EVENT_ERROR && below(4) == 0) {
            operate();
        }
    }

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random()) % bound; }

    void operate()
    {
        switch (below(10)) {
        case 0:
            m_builder.SetXmlValue(QStringLiteral("v"));
            break;
        case 1:
            m_builder.SetXmlValue(1.5);
            break;
        case 2:
            m_builder.SetXmlValue(QTime(1, 2, 3));
            break;
        case 3:
            m_builder.SetAttributeValue(QStringLiteral("default"), QStringLiteral("v"));
            break;
        case 4:
            m_builder.RemoveAttribute(QStringLiteral("type"));
            break;
        case 5:
        case 6:
            m_builder.SetElementMaxOccurs(QString(QLatin1Char("abcder"[below(6)])), static_cast<int>(below(4)));
            break;
        default:
            m_builder.DiscardChoiceItem();
            break;
        }
    }

    /// Takes the node, or one above or beside it, away from its parent.
    void remove(const QDomNode& node)
    {
        QDomNode victim = node;
        for (unsigned level = below(4); level > 0 && victim.parentNode().isElement(); --level) {
            victim = victim.parentNode();
        }
        if (below(5) == 0) {
            victim = below(2) == 0 ? victim.previousSibling() : victim.nextSibling();
        }
        QDomNode parent = victim.parentNode();
        QDomDocument document = node.ownerDocument();
        switch (below(3)) {
        case 0:
            parent.replaceChild(document.createElement(QStringLiteral("a")), victim);
            break;
        case 1: // What it is moved into is freed at once, unless somebody else holds it.
            document.createElement(QStringLiteral("b")).appendChild(victim);
            if (victim == node) {
                m_builder.RemoveAttribute(QStringLiteral("none"));
            }
            break;
        default:
            parent.removeChild(victim);
            break;
        }
        ++m_iRemovals;
    }

    XmlCreateReport m_builder;
    std::mt19937 m_random;
    unsigned m_uChance;
    int m_iEvents = 0;
    int m_iRemovals = 0;
};

} // namespace

void TestRobustnessBuilderRemovals::initTestCase()
{
    const QByteArray limited = schema();
    QByteArray unlimited = limited;
    for (const char* const occurs : {" minOccurs=\"0\"", " maxOccurs=\"unbounded\"", " maxOccurs=\"5\""}) {
        unlimited.replace(occurs, "");
    }
    for (const auto& [name, text] : {std::pair("limited.xsd", limited), std::pair("unlimited.xsd", unlimited)}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
}

void TestRobustnessBuilderRemovals::operationsStayCallableWhateverIsRemoved_data()
{
    QTest::addColumn<QString>("schemaName");
    QTest::addColumn<unsigned>("chance");
    // Without limits nobody asks where an element stands, and nobody else holds what is above it.
    for (const char* const name : {"limited.xsd", "unlimited.xsd"}) {
        QTest::addRow("by-the-operations-alone, %s", name) << QString::fromLatin1(name) << 1000000u;
        QTest::addRow("now-and-then, %s", name) << QString::fromLatin1(name) << 12u;
        QTest::addRow("often, %s", name) << QString::fromLatin1(name) << 3u;
    }
}

void TestRobustnessBuilderRemovals::operationsStayCallableWhateverIsRemoved()
{
    QFETCH(QString, schemaName);
    QFETCH(unsigned, chance);
    int removals = 0;
    for (unsigned seed = 1; seed <= 250; ++seed) {
        RemovingObserver observer(seed, chance);
        observer.Run(m_folder.filePath(schemaName), m_folder.filePath(QStringLiteral("report.xml")));
        removals += observer.Removals();
    }
    QVERIFY(chance > 100 || removals > 80);
}

QTEST_GUILESS_MAIN(TestRobustnessBuilderRemovals)
#include "tst_robustness_builder_removals.moc"
