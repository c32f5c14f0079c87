#include "reportingscene.h"

#include <QDir>
#include <QFile>
#include <QPointer>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/errorevent.h>

#include "domtext.h"

namespace {

QString refusalText(IXMLHelper::ErrorID id)
{
    switch (id) {
    case IXMLHelper::CURRENT_TYPE_IS_UNKNOWN:
        return QStringLiteral("unknown");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_STRING:
        return QStringLiteral("string");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE:
        return QStringLiteral("double");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER:
        return QStringLiteral("integer");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME:
        return QStringLiteral("dateTime");
    case IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN:
        return QStringLiteral("boolean");
    case IXMLHelper::VALUE_IS_NOT_VALID:
        return QStringLiteral("value");
    case IXMLHelper::MAX_OCCURS_EXCEEDED:
        return QStringLiteral("occurs");
    default:
        return QString::number(id);
    }
}

} // namespace

QString reportSchema(const QString& declarations)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='Report'>"
                          "<xs:complexType><xs:sequence>%1</xs:sequence></xs:complexType>"
                          "</xs:element></xs:schema>")
        .arg(declarations);
}

QString declaredElement(const QString& name, const QString& type)
{
    return QStringLiteral("<xs:element name='%1' type='xs:%2'/>").arg(name, type);
}

QString declaredElement(const QString& name, const QString& type, const QString& attributes)
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType><xs:simpleContent><xs:extension base='xs:%2'>%3"
                          "</xs:extension></xs:simpleContent></xs:complexType></xs:element>")
        .arg(name, type, attributes);
}

QString declaredAttribute(const QString& name, const QString& type)
{
    return QStringLiteral("<xs:attribute name='%1' type='xs:%2'/>").arg(name, type);
}

QString bodyText(const QDomDocument& report)
{
    const QDomElement root = report.documentElement();
    QString text;
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        text += domText(child);
    }
    return root.isNull() ? QStringLiteral("(no report)") : text;
}

QString bodyText(const QString& elements)
{
    return bodyText(documentOf(QStringLiteral("<Report>%1</Report>").arg(elements)));
}

void RecordingReporting::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
        auto* const begin = static_cast<ElemBeginEvent*>(event);
        m_announced.append(begin->GetElementName());
        m_elements.prepend(begin->GetElementNode().toElement());
    } else if (event->GetType() == XmlEvent::EVENT_ERROR && m_depth > 0) {
        m_refusals.append(refusalText(static_cast<ErrorEvent*>(event)->GetErrorID()));
    }
    const QPointer<RecordingReporting> self(this);
    ++m_depth;
    VCReporting::XmlUpdate(event);
    if (self) { // The test may have deleted it meanwhile.
        --m_depth;
    }
}

QDomElement RecordingReporting::Element(const QString& name) const
{
    for (const QDomElement& element : m_elements) {
        if (element.tagName() == name) {
            return element;
        }
    }
    return {};
}

void RecordingReporting::Forget()
{
    m_announced.clear();
    m_elements.clear();
    m_refusals.clear();
}

ReportingScene::ReportingScene(const QString& declarations, bool consume)
    : m_clock(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56, 7)))
{
    WriteSchemaFile(reportSchema(declarations));
    QDir().mkpath(Directory());
    m_reporting = std::make_unique<RecordingReporting>(SchemaFile(), Directory(), nullptr, true, "ToReport", consume,
                                                       QPixmap());
}

void ReportingScene::WriteSchemaFile(const QString& content) const
{
    QFile file(SchemaFile());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content.toUtf8());
    }
}

QStringList ReportingScene::ReportFiles() const
{
    return QDir(Directory()).entryList(QDir::Files, QDir::Name);
}

QDomDocument ReportingScene::Report() const
{
    return documentInFile(Directory() + QStringLiteral("/2017-03-31_12-34-56-7.xml"));
}

void ReportingScene::AddText(const QString& name, const QString& text, const QString& unit, int maxOccurs)
{
    m_reporting->AddReportData(name, QString(), text, maxOccurs, QString(), 0, unit);
}

QString ReportingScene::MakeReport()
{
    m_reporting->Forget();
    return m_reporting->SlotToReport() ? bodyText(Report()) : QStringLiteral("(failed)");
}
