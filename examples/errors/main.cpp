// Gives one element a value of the wrong type and leaves another without any, and prints what each place says of it.
//
// usage: errors SCHEMA.xsd REPORT.xml

#include <cstdio>

#include <QCoreApplication>

#include <xmlhelper/xmlhelper.h>

class Observer : public IXMLHelper
{
public:
    bool Write(const QString& schema, const QString& report)
    {
        return m_builder.CreateXmlFromSchema(schema, report, false);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ERROR) {
            // Inside a call it is the answer to it; otherwise it is about the element announced last.
            std::printf("%s: error %d %s\n", qUtf8Printable(m_name),
                        static_cast<int>(static_cast<ErrorEvent*>(event)->GetErrorID()),
                        m_isCalling ? "in a call" : "of the walk");
        } else if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            m_name = static_cast<ElemBeginEvent*>(event)->GetElementName();
            m_isCalling = true;
            if (m_name == QLatin1String("Station") || m_name == QLatin1String("Frequency")) {
                m_builder.SetXmlValue(QStringLiteral("Tower"));
            }
            m_isCalling = false;
        }
    }

private:
    XmlCreateReport m_builder {this};
    QString m_name;
    bool m_isCalling = false;
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    // What became of the schema and of the file is told to whoever listens in the process.
    const ReportNews& news = ReportNews::Instance();
    QObject::connect(&news, &ReportNews::SchemaRead, &application,
                     [](quint64, bool isUnderstood, const QString& reason) {
                         std::printf("%s\n", isUnderstood ? "The schema is understood." : qUtf8Printable(reason));
                     });
    QObject::connect(&news, &ReportNews::Written, &application, [] { std::printf("The report is written.\n"); });
    QObject::connect(&news, &ReportNews::NotWritten, &application,
                     [](quint64, const QString& reason) { std::printf("%s\n", qUtf8Printable(reason)); });
    return Observer().Write(arguments.value(1), arguments.value(2)) ? 0 : 1;
}
