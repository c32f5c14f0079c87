#include "baredom.h"

#include <QFile>
#include <QTextStream>

#include "inputs.h"

bool saveAtOnce(const QDomDocument& document, const QString& path)
{
    QString text;
    QTextStream stream(&text);
    document.save(stream, 4);
    stream.flush();
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QDomDocument buildReport(const std::vector<ReportElement>& elements, const QString& schema)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<?xml version='1.0' encoding='UTF-8'?><Survey/>"));
    QDomElement root = document.documentElement();
    QDomElement container = root;
    for (const ReportElement& element : elements) {
        QDomElement created = document.createElement(element.name);
        if (element.text.isEmpty()) {
            root.appendChild(created);
            container = created;
        } else {
            container.appendChild(created);
            created.appendChild(document.createTextNode(element.text));
        }
    }
    root.setAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"), schema);
    root.setAttribute(QStringLiteral("xmlns:xsi"), QStringLiteral("http://www.w3.org/2001/XMLSchema-instance"));
    return document;
}
