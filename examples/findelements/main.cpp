// Finds elements of an XML file by name: in the whole content, below a named element, and below the one that an event
// announces.
//
// usage: findelements FILE

#include <cstdio>

#include <QCoreApplication>
#include <QDomElement>

#include <xmlhelper/xmlhelper.h>

class Finder : public IXMLHelper
{
public:
    bool Read(const QString& file) { return m_reader.SetXmlContent(file) && m_reader.ParseXml(); }

    /// The list is the reader's, and its next search replaces it. The nodes in it may be kept.
    void Print(const QString& name, const QString& below)
    {
        const std::list<QDomNode>& found = *m_reader.GetElement(name, below);
        for (const QDomNode& node : found) {
            const QDomElement element = node.toElement();
            std::printf("%s in line %d: %s %s\n", qUtf8Printable(name), element.lineNumber(),
                        qUtf8Printable(element.text()), qUtf8Printable(element.attribute(QStringLiteral("Unit"))));
        }
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
            return;
        }
        const QString name = static_cast<ElemBeginEvent*>(event)->GetElementName();
        if (name == QLatin1String("Station")) {
            // Below this station only: an observer searches the element that it is being told of.
            const bool hasLevel = !m_reader.SearchBelowCurrentElement(QStringLiteral("Level"))->empty();
            std::printf("A station %s level\n", hasLevel ? "with a" : "without");
        }
    }

private:
    XMLReader m_reader {this, nullptr};
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Finder finder;
    if (!finder.Read(QCoreApplication::arguments().value(1))) {
        std::fprintf(stderr, "usage: findelements FILE\n");
        return 1;
    }
    finder.Print(QStringLiteral("Frequency"), QString()); // in the whole content
    finder.Print(QStringLiteral("Frequency"), QStringLiteral("Station")); // below the first station
    return 0;
}
