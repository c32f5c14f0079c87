#include <functional>
#include <list>
#include <memory>

#include <QDomDocument>
#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/xmlreader.h>

#include "inputs.h"
#include "observers.h"
#include "rows.h"
#include "workspace.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// The work of a SAX pass without anybody who listens.
bool passOver(const QXmlInputSource& source)
{
    QXmlDefaultHandler nobody;
    QXmlSimpleReader parser;
    parser.setContentHandler(&nobody);
    parser.setErrorHandler(&nobody);
    return parser.parse(source);
}

struct Reading
{
    CountingObserver observer;
    std::unique_ptr<XMLReader> reader;
    QDomDocument floorDocument;
    bool isRead = false;
    bool isFloorRead = false;

    void renew()
    {
        observer = CountingObserver();
        reader = std::make_unique<XMLReader>(&observer, nullptr);
    }

    void drop()
    {
        reader->ReleaseContent();
        reader.reset();
    }
};

QString checkReading(const Reading& reading, int elements)
{
    const int announced = reading.observer.Count(XmlEvent::EVENT_ELEM_BEGIN);
    const int ended = reading.observer.Count(XmlEvent::EVENT_ELEM_END);
    if (!reading.isRead || !reading.isFloorRead || announced != elements || ended != elements) {
        return QStringLiteral("%1 elements begin and %2 end where there are %3")
            .arg(announced)
            .arg(ended)
            .arg(elements);
    }
    return QString();
}

/// The elements of a generated report: a root, and containers of nine values.
int elementsOf(const QByteArray& report)
{
    return 1 + static_cast<int>(report.count("<Station ")) * (ValuesOfGroup + 1);
}

Contest readFile(const Workspace& workspace, int bytes)
{
    const QByteArray content = reportText(bytes);
    const QString path = workspace.Write(QStringLiteral("report-%1.xml").arg(bytes), content);
    const int elements = elementsOf(content);
    auto reading = std::make_shared<Reading>();
    return {{[reading] { reading->renew(); },
             [reading, path] {
                 reading->reader->SetXmlContent(path);
                 reading->isRead = reading->reader->ParseXml();
             },
             [reading] { reading->drop(); }},
            {{},
             [reading, path] {
                 QFile file(path);
                 file.open(QIODevice::ReadOnly);
                 reading->isFloorRead = reading->floorDocument.setContent(&file);
                 file.close();
                 reading->isFloorRead = passOver(QXmlInputSource(&file)) && reading->isFloorRead;
             },
             [reading] { reading->floorDocument = QDomDocument(); }},
            [reading, elements] { return checkReading(*reading, elements); }};
}

Contest readDocument(const Workspace&, int bytes)
{
    const QByteArray content = reportText(bytes);
    const QDomDocument document = documentOf(content);
    const int elements = elementsOf(content);
    auto reading = std::make_shared<Reading>();
    return {{[reading, document] {
                 reading->renew();
                 reading->reader->SetXmlContent(document);
             },
             [reading] { reading->isRead = reading->reader->ParseXml(); }, [reading] { reading->drop(); }},
            {{},
             [reading, document] {
                 QXmlInputSource source;
                 source.setData(document.toString(1));
                 reading->isFloorRead = passOver(source);
             },
             {}},
            [reading, elements] { return checkReading(*reading, elements); }};
}

/// What anybody would write who knows the name and wants a list.
void collect(const QDomNode& parent, const QString& name, std::list<QDomNode>& results)
{
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.nodeName() == name) {
            results.push_back(node);
        } else {
            collect(node, name, results);
        }
    }
}

QDomNode firstOf(const QDomNode& parent, const QString& name)
{
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.nodeName() == name) {
            return node;
        }
        const QDomNode below = firstOf(node, name);
        if (!below.isNull()) {
            return below;
        }
    }
    return QDomNode();
}

/// Searches for the levels of a report of @p bytes bytes, in the whole of it or below an element that holds most of it.
Contest search(int bytes, const QString& ownerName)
{
    QByteArray content = reportText(bytes);
    content.replace("<Survey>", "<Survey><Head><Level/></Head><Body>").replace("</Survey>", "</Body></Survey>");
    const QDomDocument document = documentOf(content);
    const QString name = QStringLiteral("Level");
    const auto expected = static_cast<size_t>(content.count("<Station ")) + (ownerName.isEmpty() ? 1 : 0);

    struct Search
    {
        CountingObserver observer;
        XMLReader reader {&observer, nullptr};
        std::list<QDomNode>* found = nullptr;
        std::list<QDomNode> floorFound;
    };
    auto searching = std::make_shared<Search>();
    searching->reader.SetXmlContent(document);
    return {
        {{}, [=] { searching->found = searching->reader.GetElement(name, ownerName); }, {}},
        {{},
         [=] {
             searching->floorFound.clear();
             const QDomNode root = document.documentElement();
             collect(ownerName.isEmpty() ? root : firstOf(root, ownerName), name, searching->floorFound);
         },
         {}},
        [=] {
            const bool isRight = *searching->found == searching->floorFound && searching->floorFound.size() == expected;
            return isRight ? QString() : QStringLiteral("%1 found of %2").arg(searching->found->size()).arg(expected);
        }};
}

} // namespace

std::vector<Row> readRows(const Workspace& workspace)
{
    const std::vector<int> bytes = {10000, 1000000, 20000000};
    return {
        {QStringLiteral("read/file"), QStringLiteral("setContent and a SAX pass without listener"), 1.08, bytes,
         [&workspace](int size) { return readFile(workspace, size); }},
        {QStringLiteral("read/document"), QStringLiteral("toString(1) and a SAX pass without listener"), 1.0, bytes,
         [&workspace](int size) { return readDocument(workspace, size); }},
    };
}

std::vector<Row> searchRows(const Workspace&)
{
    const std::vector<int> bytes = {10000, 1000000, 20000000};
    const QString floor = QStringLiteral("a sibling walk by hand");
    return {
        {QStringLiteral("search/all"), floor, 1.3, bytes, [](int size) { return search(size, QString()); }},
        {QStringLiteral("search/below"), floor, 1.3, bytes,
         [](int size) { return search(size, QStringLiteral("Body")); }},
    };
}
