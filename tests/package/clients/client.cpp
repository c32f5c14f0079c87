// Reads an XML document, lets the report button make a report, and prints what comes of both. How it finds the library
// is the affair of those who build it.

#include <QApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QToolBar>
#include <QToolButton>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/xmlhelper.h>

#ifdef HOST_HAS_ARBASE
#include <arbase/hostarbaseexport.h>
#include <arbase/trace.h>
#endif

static_assert(XMLHELPER_VERSION >= XMLHELPER_VERSION_CHECK(1, 0, 0), "Clients compare versions.");
static_assert(XMLHELPER_VERSION < XMLHELPER_VERSION_CHECK(XMLHELPER_VERSION_MAJOR, XMLHELPER_VERSION_MINOR + 1, 0),
              "Each part counts more than those behind it.");

namespace {

void print(const QString& line)
{
    QTextStream(stdout) << line << '\n';
}

class Printer : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            print(QStringLiteral("read: ") + static_cast<ElemBeginEvent*>(event)->GetElementName());
        }
    }
};

void readDocument()
{
    QDomDocument document;
    document.setContent(QStringLiteral("<bands><band/></bands>"));
    Printer printer;
    XMLReader reader(&printer, nullptr);
    reader.SetXmlContent(document);
    if (!reader.ParseXml()) {
        print(QStringLiteral("The document was not parsed."));
    }
}

/// The client headers name the value tree, so whoever has them has that.
void writeTree(const QDir& folder)
{
    const Tree tree;
    new ValueItem(new ValueText(QStringLiteral("Site"), QStringLiteral("Tower")), tree.GetRoot());
    const QString path = folder.filePath(QStringLiteral("tree.txt"));
    XMLWriter writer;
    writer.CreateXmlFile(path, QStringLiteral("Station"));
    writer.CreateElementsFromNode(tree.GetRoot());
    writer.SaveXmlFile();
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        print(QStringLiteral("written: ") + (file.readAll().contains("<Site>Tower</Site>") ? "Site" : "nothing"));
    }
}

QString writtenSchema(const QDir& folder)
{
    const QString path = folder.filePath(QStringLiteral("report.xsd"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                   "<xs:element name=\"Report\"><xs:complexType><xs:sequence>"
                   "<xs:element name=\"Frequency\" type=\"xs:double\"/>"
                   "</xs:sequence></xs:complexType></xs:element></xs:schema>");
    }
    return path;
}

void pressReportButton(const QDir& folder)
{
    QToolBar toolBar;
    auto* reporting
        = new VCReporting(writtenSchema(folder), folder.path(), &toolBar, true, "reporting", false, QPixmap());
    reporting->AddReportData(QStringLiteral("Frequency"), QString(), QStringLiteral("98.5"), 1, QString(), 0,
                             QString());
    reporting->EnableReportButton(true);
    reporting->GetReportButton()->click();
}

void printReports(const QDir& folder)
{
    const QStringList reports = folder.entryList({QStringLiteral("*.xml")}, QDir::Files);
    for (const QString& name : reports) {
        QFile file(folder.filePath(name));
        QDomDocument report;
        if (file.open(QIODevice::ReadOnly) && report.setContent(&file)) {
            const QDomElement value = report.documentElement().firstChildElement();
            print(QStringLiteral("reported: %1 %2").arg(value.tagName(), value.text()));
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;

#ifdef HOST_HAS_ARBASE
    _Q_Trace(QStringLiteral("the client's own"), QString(), 0);
    const XMLReader unusable(nullptr, nullptr);
#endif
    readDocument();
    writeTree(QDir(folder.path()));
    pressReportButton(QDir(folder.path()));
    printReports(QDir(folder.path()));
    return 0;
}
