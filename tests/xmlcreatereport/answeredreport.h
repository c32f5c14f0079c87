#ifndef XMLHELPER_TESTS_ANSWEREDREPORT_H
#define XMLHELPER_TESTS_ANSWEREDREPORT_H

#include <functional>
#include <utility>

#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/xmlcreatereport.h>

#include "domtext.h"
#include "scriptedobserver.h"

/// What an observer does to the element that is being announced.
using Answer = std::function<void(XmlCreateReport& builder)>;
Q_DECLARE_METATYPE(Answer)

template <typename Value> Answer value(const Value& value)
{
    return [value](XmlCreateReport& builder) { builder.SetXmlValue(value); };
}

inline Answer text(const char* text)
{
    return value(QString::fromUtf8(text));
}

template <typename Value> Answer attribute(const char* name, const Value& value)
{
    return
        [name = QString::fromUtf8(name), value](XmlCreateReport& builder) { builder.SetAttributeValue(name, value); };
}

inline Answer attributeText(const char* name, const char* text)
{
    return attribute(name, QString::fromUtf8(text));
}

inline Answer removal(const char* name)
{
    return [name = QString::fromUtf8(name)](XmlCreateReport& builder) { builder.RemoveAttribute(name); };
}

inline Answer oneAfterTheOther(const Answer& first, const Answer& second)
{
    return [first, second](XmlCreateReport& builder) {
        first(builder);
        second(builder);
    };
}

using ErrorList = QList<IXMLHelper::ErrorID>;

inline QString errorText(const ErrorList& errors)
{
    QStringList numbers;
    for (const IXMLHelper::ErrorID error : errors) {
        numbers.append(QString::number(error));
    }
    return numbers.join(QLatin1Char(' '));
}

/// The names and values of "name=value name=value".
inline QList<std::pair<QString, QString>> pairsOf(const QByteArray& list)
{
    QList<std::pair<QString, QString>> pairs;
    const QStringList items = QString::fromUtf8(list).split(QLatin1Char(' '));
    for (const QString& item : items) {
        const int separator = int(item.indexOf(QLatin1Char('=')));
        if (separator > 0) {
            pairs.append({item.left(separator), item.mid(separator + 1)});
        }
    }
    return pairs;
}

/// An anonymous simple type: @p base restricted by the facets "name=value name=value".
inline QString simpleType(const char* base, const QByteArray& facets)
{
    QString restriction;
    for (const auto& [facet, value] : pairsOf(facets)) {
        restriction += QStringLiteral("<xs:%1 value='%2'/>").arg(facet, value);
    }
    return QStringLiteral("<xs:simpleType><xs:restriction base='xs:%1'>%2</xs:restriction></xs:simpleType>")
        .arg(QLatin1String(base), restriction);
}

inline QString elementOfType(const char* type)
{
    return QStringLiteral("<xs:element name='e' type='xs:%1'/>").arg(QLatin1String(type));
}

inline QString restrictedElement(const char* base, const QByteArray& facets)
{
    return QStringLiteral("<xs:element name='e'>%1</xs:element>").arg(simpleType(base, facets));
}

/// An element that declares the attributes "name=type name=type", and @p content. A declared attribute holds its type
/// until it is set, so this also makes elements that carry any other annotation, which a schema gives them by longer
/// ways.
inline QString elementWithAttributes(const QByteArray& attributes, const QString& content = QString())
{
    QString declarations;
    for (const auto& [name, type] : pairsOf(attributes)) {
        declarations += QStringLiteral("<xs:attribute name='%1' type='%2'/>").arg(name, type);
    }
    return QStringLiteral("<xs:element name='e'><xs:complexType>%1%2</xs:complexType></xs:element>")
        .arg(declarations, content);
}

/// What a schema declares in its root, which is called "report", and beside it.
struct Declarations
{
    Declarations() = default;
    Declarations(const QString& content, const QString& globals = QString())
        : inRoot(content)
        , besideRoot(globals)
    {
    }

    QString inRoot;
    QString besideRoot;
};
Q_DECLARE_METATYPE(Declarations)

/// The element in one line, with its attributes sorted: <e type="double"> "10" </e>
inline QString lineOf(const QDomNode& element)
{
    return domText(element).simplified();
}

/// What elementWithAttributes() and the like are after some annotations have gone and a text has come.
inline QString annotatedLine(const QByteArray& annotations, const QByteArray& removed = "",
                             const QString& text = QString())
{
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("e"));
    for (const auto& [name, value] : pairsOf(annotations)) {
        element.setAttribute(name, value);
    }
    const QStringList names = QString::fromUtf8(removed).split(QLatin1Char(' '));
    for (const QString& name : names) {
        element.removeAttribute(name);
    }
    if (!text.isNull()) {
        element.appendChild(document.createTextNode(text));
    }
    return lineOf(element);
}

/// An observer that can also answer the beginning of the document, when no element has been announced.
class EarlyObserver : public ScriptedObserver
{
public:
    void OnDocument(std::function<void()> script) { m_document = std::move(script); }

    void XmlUpdate(XmlEvent* event) override
    {
        ScriptedObserver::XmlUpdate(event);
        if (event->GetType() == XmlEvent::EVENT_DOC_BEGIN && m_document) {
            m_document();
        }
    }

private:
    std::function<void()> m_document;
};

/// A report that is built from a schema of its own, in a folder of its own, while an observer answers.
class AnsweredReport
{
public:
    explicit AnsweredReport(const Declarations& declarations)
        : m_builder(&m_observer)
        , m_schema(QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>%1"
                                  "<xs:element name='report'><xs:complexType><xs:sequence>%2</xs:sequence>"
                                  "</xs:complexType></xs:element></xs:schema>")
                       .arg(declarations.besideRoot, declarations.inRoot))
    {
    }

    EarlyObserver& Observer() { return m_observer; }
    XmlCreateReport& Builder() { return m_builder; }

    /// Answers the first announcement of the element called @p name.
    void On(const char* name, const Answer& answer)
    {
        m_observer.OnElement(QString::fromUtf8(name), [this, answer, isAnswered = false](ElemBeginEvent&) mutable {
            if (!std::exchange(isAnswered, true)) {
                answer(m_builder);
            }
        });
    }

    /// Answers the element called "e" and notes what that makes of it and which errors it causes. An answer to the root
    /// comes before it: the first answer of a walk is a case of its own.
    void OnNoted(const Answer& answer)
    {
        On("report", removal("none"));
        OnNotedWithoutEarlierAnswer(answer);
    }

    void OnNotedWithoutEarlierAnswer(const Answer& answer)
    {
        m_observer.OnElement(QStringLiteral("e"), [this, answer](ElemBeginEvent& event) {
            const std::size_t errorsBefore = m_observer.Errors().size();
            answer(m_builder);
            m_errors.clear();
            for (std::size_t i = errorsBefore; i < m_observer.Errors().size(); ++i) {
                m_errors.append(IXMLHelper::ErrorID(m_observer.Errors()[i]));
            }
            m_element = lineOf(event.GetElementNode());
            ++m_iNotes;
        });
    }

    /// Reads the schema, walks, and writes the report.
    bool Create()
    {
        QFile file(fileName("schema.xsd"));
        return m_folder.isValid() && file.open(QIODevice::WriteOnly) && file.write(m_schema.toUtf8()) > 0
            && (file.close(), m_builder.CreateXmlFromSchema(file.fileName(), fileName("report.xml"), false));
    }

    /// The noted element right after the answer.
    QString Element() const { return m_element; }
    /// The errors that the noted answer caused, as errorText().
    QString Errors() const { return errorText(m_errors); }
    /// How often the noted element was announced.
    int Notes() const { return m_iNotes; }

    /// The root of the report as its file has it, without the location of the schema.
    QDomElement Written() const
    {
        QDomElement root = documentInFile(fileName("report.xml")).documentElement();
        root.removeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"));
        root.removeAttribute(QStringLiteral("xmlns:xsi"));
        return root;
    }
    QString WrittenLine() const { return lineOf(Written()); }

private:
    Q_DISABLE_COPY(AnsweredReport)

    QString fileName(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
    EarlyObserver m_observer;
    XmlCreateReport m_builder;
    QString m_schema;
    QString m_element;
    ErrorList m_errors;
    int m_iNotes = 0;
};

// Tables that answer one element: what the schema declares, the answer, and what the answer makes of the element.

inline void addAnswerColumns()
{
    QTest::addColumn<Declarations>("declarations");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("errors");
}

inline void answerRow(const QByteArray& rule, const Declarations& declarations, const Answer& answer,
                      const QString& element, const ErrorList& errors = {})
{
    QTest::newRow(rule.constData()) << declarations << answer << element << errorText(errors);
}

inline void answerRow(const QByteArray& rule, const Declarations& declarations, const Answer& answer,
                      const char* element, const ErrorList& errors = {})
{
    answerRow(rule, declarations, answer, QString::fromUtf8(element), errors);
}

/// Runs a row made by answerRow().
inline void checkAnswer()
{
    QFETCH(Declarations, declarations);
    QFETCH(Answer, answer);
    AnsweredReport report(declarations);
    report.OnNoted(answer);
    QVERIFY(report.Create());
    QCOMPARE(report.Notes(), 1);
    QTEST(report.Element(), "element");
    QTEST(report.Errors(), "errors");
}

#endif
