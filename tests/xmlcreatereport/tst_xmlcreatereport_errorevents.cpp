#include <QtTest>

#include <functional>

#include <QDomElement>
#include <QTemporaryDir>

#include <xmlhelper/xmlhelper.h>

QT_WARNING_DISABLE_DEPRECATED

namespace {

using Answer = std::function<void(XmlCreateReport& builder, const QString& name, int announcement)>;

/// Writes down which error events arrive, behind the name of the element announced last: of a call of its own, or of
/// the walk.
class ErrorRecorder : public IXMLHelper
{
public:
    explicit ErrorRecorder(Answer answer)
        : m_builder(this)
        , m_answer(std::move(answer))
    {
    }

    QStringList Events(const QByteArray& declarations)
    {
        const QTemporaryDir folder;
        QFile schema(folder.filePath(QStringLiteral("schema.xsd")));
        if (schema.open(QIODevice::WriteOnly)) {
            schema.write("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + declarations + "</xs:schema>");
            schema.close();
        }
        m_builder.CreateXmlFromSchema(schema.fileName(), folder.filePath(QStringLiteral("report.xml")), false);
        return m_events;
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            m_name = static_cast<ElemBeginEvent*>(event)->GetElementName();
            m_isAnswering = true;
            m_answer(m_builder, m_name, ++m_announcements[m_name]);
            m_isAnswering = false;
        } else if (event->GetType() == XmlEvent::EVENT_ERROR) {
            const QString whose = m_isAnswering ? QStringLiteral("call") : QStringLiteral("walk");
            m_events.append(
                QStringLiteral("%1 %2 %3").arg(m_name, whose).arg(static_cast<ErrorEvent*>(event)->GetErrorID()));
        }
    }

private:
    XmlCreateReport m_builder;
    const Answer m_answer;
    QString m_name;
    QMap<QString, int> m_announcements;
    QStringList m_events;
    bool m_isAnswering = false;
};

QByteArray report(const QByteArray& content)
{
    return "<xs:element name='Report'><xs:complexType><xs:sequence>" + content
        + "</xs:sequence></xs:complexType></xs:element>";
}

QByteArray container(const QByteArray& occurs, const QByteArray& content)
{
    return "<xs:element name='Part' " + occurs + "><xs:complexType><xs:sequence>" + content
        + "</xs:sequence></xs:complexType></xs:element>";
}

const QByteArray Name("<xs:element name='Name' type='xs:string'/>");
const QByteArray Note("<xs:element name='Note' type='xs:string' minOccurs='0'/>");

void setNames(XmlCreateReport& builder, const QString& name, int)
{
    if (name == QLatin1String("Name")) {
        builder.SetXmlValue(QStringLiteral("x"));
    }
}

void nothing(XmlCreateReport&, const QString&, int) { }

} // namespace

Q_DECLARE_METATYPE(Answer)

/// Which error events come although all is well, and which say that something is wrong.
class TestXmlCreateReportErrorEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrive_data();
    void arrive();
};

void TestXmlCreateReportErrorEvents::arrive_data()
{
    QTest::addColumn<QByteArray>("declarations");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("events");
    const auto row = [](const char* name, const QByteArray& declarations, const Answer& answer, const char* events) {
        QTest::newRow(name) << declarations << answer << QString::fromLatin1(events);
    };
    const Answer twice = [](XmlCreateReport& builder, const QString& name, int announcement) {
        if (name == QLatin1String("Part")) {
            builder.SetElementMaxOccurs(name, 2);
        }
        setNames(builder, name, announcement);
    };

    row("required-container-with-limits", report(container("maxOccurs='3'", Name)), setNames, "Part walk 16");
    row("required-container-without-limits", report(container("", Name)), setNames, "Part walk 15,Part walk 16");
    row("optional-container", report(container("minOccurs='0'", Name)), setNames, "");
    row("copies-of-a-required-container", report(container("maxOccurs='3'", Name)), twice, "Part walk 16,Part walk 16");
    row("copies-of-an-optional-container", report(container("minOccurs='0' maxOccurs='3'", Name)), twice, "");
    row(
        "optional-container-in-a-copy",
        report("<xs:element name='Outer' maxOccurs='2'><xs:complexType><xs:sequence>" + Name
               + container("minOccurs='0'", Name) + "</xs:sequence></xs:complexType></xs:element>"),
        [](XmlCreateReport& builder, const QString& name, int announcement) {
            if (name == QLatin1String("Outer")) {
                builder.SetElementMaxOccurs(name, 2);
            }
            setNames(builder, name, announcement);
        },
        "Outer walk 16,Outer walk 16,Part walk 16");
    row("alternative-that-is-not-taken",
        report("<xs:choice>" + Name + "<xs:element name='Number' type='xs:integer'/></xs:choice>"), setNames,
        "Number walk 15");
    row(
        "value-offered-as-one-type-after-the-other", report("<xs:element name='Count' type='xs:integer'/>"),
        [](XmlCreateReport& builder, const QString& name, int) {
            if (name == QLatin1String("Count")) {
                builder.SetXmlValue(7.0);
                builder.SetXmlValue(7);
            }
        },
        "Count call 10");
    row(
        "root-that-holds-a-value", "<xs:element name='Report' type='xs:string'/>",
        [](XmlCreateReport& builder, const QString& name, int) {
            if (name == QLatin1String("Report")) {
                builder.SetXmlValue(QStringLiteral("x"));
            }
        },
        "");

    row("required-value-without-an-answer", report(Name), nothing, "Name walk 15,Name walk 16");
    row("required-value-with-limits-without-an-answer",
        report("<xs:element name='Name' type='xs:string' maxOccurs='2'/>"), nothing, "Name walk 16");
    row("optional-value-of-a-first-copy-without-an-answer", report(container("maxOccurs='2'", Name + Note)), setNames,
        "Part walk 16");
    row("optional-value-of-a-later-copy-without-an-answer", report(container("maxOccurs='2'", Name + Note)), twice,
        "Part walk 16,Part walk 16,Note walk 16");
    row(
        "count-beyond-the-limit", report(container("maxOccurs='3'", Name)),
        [](XmlCreateReport& builder, const QString& name, int announcement) {
            if (name == QLatin1String("Part")) {
                builder.SetElementMaxOccurs(name, 4);
            }
            setNames(builder, name, announcement);
        },
        "Part call 16,Part walk 16");
    row(
        "value-outside-of-its-range",
        report("<xs:element name='Count'><xs:simpleType><xs:restriction base='xs:integer'>"
               "<xs:maxInclusive value='3'/></xs:restriction></xs:simpleType></xs:element>"),
        [](XmlCreateReport& builder, const QString& name, int) {
            if (name == QLatin1String("Count")) {
                builder.SetXmlValue(7);
            }
        },
        "Count call 15,Count walk 15,Count walk 16");
}

void TestXmlCreateReportErrorEvents::arrive()
{
    QFETCH(QByteArray, declarations);
    QFETCH(Answer, answer);
    QFETCH(QString, events);
    QCOMPARE(ErrorRecorder(answer).Events(declarations).join(QLatin1Char(',')), events);
}

QTEST_GUILESS_MAIN(TestXmlCreateReportErrorEvents)
#include "tst_xmlcreatereport_errorevents.moc"
