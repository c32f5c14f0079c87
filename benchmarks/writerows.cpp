#include <memory>

#include <QDomDocument>
#include <QFile>
#include <QTextStream>

#include <xmlhelper/documentfile_p.h>
#include <xmlhelper/xmlwriter.h>

#include "baredom.h"
#include "inputs.h"
#include "rows.h"
#include "workspace.h"

namespace {

Contest save(const Workspace& workspace, int bytes)
{
    const QDomDocument document = documentOf(reportText(bytes));
    const QString path = workspace.Path(QStringLiteral("saved.xml"));
    const QString floorPath = workspace.Path(QStringLiteral("saved-floor.xml"));
    return {{{}, [=] { saveDocument(document, path); }, {}}, {{}, [=] { saveAtOnce(document, floorPath); }, {}}, [=] {
                const QByteArray saved = contentOf(path);
                const bool isRight = saved.size() >= bytes && saved == contentOf(floorPath);
                return isRight ? QString() : QStringLiteral("the files differ");
            }};
}

void writeByLibrary(const QString& path, const std::vector<ReportElement>& elements)
{
    XMLWriter writer;
    writer.CreateXmlFile(path, QStringLiteral("Survey"));
    for (const ReportElement& element : elements) {
        const bool isContainer = element.text.isEmpty();
        if (!isContainer) {
            writer.CreateXmlElement(element.name, element.text, false);
            continue;
        }
        writer.GoToXmlParent();
        writer.CreateXmlElement(element.name, QString(), true);
        writer.SetXmlAttribute(QStringLiteral("Site"), QStringLiteral("Hill"));
    }
    writer.SaveXmlFile();
}

void writeByHand(const QString& path, const std::vector<ReportElement>& elements)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<?xml version = '1.0' encoding = 'UTF-8'?><Survey/>"));
    QDomElement root = document.documentElement();
    QDomElement current = root;
    for (const ReportElement& element : elements) {
        QDomElement created = document.createElement(element.name);
        if (!element.text.isEmpty()) {
            current.appendChild(created);
            created.appendChild(document.createTextNode(element.text));
            continue;
        }
        root.appendChild(created);
        current = created;
        current.setAttribute(QStringLiteral("Site"), QStringLiteral("Hill"));
    }
    saveAtOnce(document, path);
}

Contest write(const Workspace& workspace, int count)
{
    const auto elements
        = std::make_shared<const std::vector<ReportElement>>(reportElements(Shape::RequiredGroups, count));
    const QString path = workspace.Path(QStringLiteral("written.xml"));
    const QString floorPath = workspace.Path(QStringLiteral("written-floor.xml"));
    return {
        {{}, [=] { writeByLibrary(path, *elements); }, {}}, {{}, [=] { writeByHand(floorPath, *elements); }, {}}, [=] {
            const QByteArray written = contentOf(path);
            const bool isRight = written.count("</") == count + 1 && written == contentOf(floorPath);
            return isRight ? QString() : QStringLiteral("the files differ");
        }};
}

} // namespace

std::vector<Row> saveRows(const Workspace& workspace)
{
    return {{QStringLiteral("save"),
             QStringLiteral("save into a QString and one write"),
             0.6,
             {10000, 1000000, 20000000},
             [&workspace](int bytes) { return save(workspace, bytes); }}};
}

std::vector<Row> writerRows(const Workspace& workspace)
{
    return {{QStringLiteral("writer"),
             QStringLiteral("the same calls on bare QDom and one write"),
             1.10,
             {1000, 10000, 100000},
             [&workspace](int count) { return write(workspace, count); }}};
}
