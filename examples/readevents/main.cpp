// Prints the events of an XML file, indented, each begin event with the element that it was paired with in the DOM.
//
// usage: readevents FILE

#include <cstdio>

#include <QCoreApplication>
#include <QDomElement>

#include <xmlhelper/xmlhelper.h>

class Printer : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            auto* const begin = static_cast<ElemBeginEvent*>(event);
            const QDomElement element = begin->GetElementNode().toElement();
            std::printf("%*sbegin %s, in the DOM <%s> at line %d\n", m_iIndent, "",
                        qUtf8Printable(begin->GetElementName()), qUtf8Printable(element.tagName()),
                        element.lineNumber());
            m_iIndent += 2;
        } else if (event->GetType() == XmlEvent::EVENT_ELEM_END) {
            m_iIndent -= 2;
            std::printf("%*send %s\n", m_iIndent, "",
                        qUtf8Printable(static_cast<ElemEndEvent*>(event)->GetElementName()));
        }
    }

private:
    int m_iIndent = 0;
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv); // decodes the arguments on every platform
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: readevents FILE\n");
        return 2;
    }
    Printer printer;
    XMLReader reader(&printer, nullptr);
    reader.SetXmlContent(arguments.at(1));
    if (!reader.ParseXml()) {
        std::fprintf(stderr, "%s is missing or malformed\n", qPrintable(arguments.at(1)));
        return 1;
    }
    std::printf("%d elements are called Station\n",
                static_cast<int>(reader.GetElement(QStringLiteral("Station"), QString())->size()));
    return 0;
}
