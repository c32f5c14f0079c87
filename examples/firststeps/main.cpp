#include <QTextStream>
#include <xmlhelper/xmlhelper.h>

struct Printer final : IXMLHelper
{
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            QTextStream(stdout) << static_cast<ElemBeginEvent*>(event)->GetElementName() << Qt::endl;
        }
    }
};

int main(int argc, char** argv)
{
    Printer printer;
    XMLReader reader(&printer, nullptr);
    return argc == 2 && reader.SetXmlContent(QString::fromLocal8Bit(argv[1])) && reader.ParseXml() ? 0 : 1;
}
