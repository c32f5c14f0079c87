#include "schemafixture.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QtTest>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/domextent_p.h>

#include "domtext.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

struct Model
{
    explicit Model(XmlSchemaHandler& handler) { handler.HandOver(references, occurs, definitions, choices); }

    UnresolvedTypeMap references;
    OccursMap occurs;
    TypeDefinitionMap definitions;
    ChoiceMap choices;
};

bool parse(XmlSchemaHandler& handler, const QXmlInputSource& source)
{
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    reader.setErrorHandler(&handler);
    return reader.parse(source);
}

bool parseText(XmlSchemaHandler& handler, const QString& text)
{
    QXmlInputSource source;
    source.setData(text);
    return parse(handler, source);
}

QString topElements(const QDomNode& fragment)
{
    QStringList names;
    for (QDomElement child = fragment.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        names.append(child.tagName());
    }
    return names.join(QLatin1Char(' '));
}

QString recordText(const ElementPathRecord& record)
{
    QString text = record.ownerElement->isNull() ? QStringLiteral("nothing") : record.ownerElement->tagName();
    if (record.anchorElement) {
        text += QStringLiteral(" behind ") + record.anchorElement->tagName();
    }
    text += QStringLiteral(" in ") + record.definitionName;
    if (record.isAttributeReference) {
        text += QStringLiteral(", attribute");
    }
    return text;
}

} // namespace

SchemaFixture::SchemaFixture(const QString& schemaPath)
    : m_handler(&m_observer, schemaPath)
{
}

bool SchemaFixture::ReadFile(const QString& fileName)
{
    QFile file(fileName);
    return parse(m_handler, QXmlInputSource(&file));
}

bool SchemaFixture::ReadFileByHandler(const QString& fileName)
{
    QXmlSimpleReader reader;
    return m_handler.ReadFile(fileName, reader);
}

bool SchemaFixture::Read(const QString& declarations)
{
    return parseText(m_handler, schemaOf(declarations));
}

void SchemaFixture::ReadWithoutEnd(const QString& declarations)
{
    parseText(m_handler, QStringLiteral("<xs:schema>") + declarations);
}

QString SchemaFixture::Skeleton() const
{
    return domText(*m_handler.GetDocument());
}

QString SchemaFixture::Occurs()
{
    const Model model(m_handler);
    QString text;
    for (const auto& [name, codes] : model.occurs) {
        for (const auto& [code, owners] : codes) {
            const QStringList names(owners.begin(), owners.end());
            text += QStringLiteral("%1 %2: %3\n").arg(name).arg(code).arg(names.join(QStringLiteral(", ")));
        }
    }
    return text;
}

QString SchemaFixture::Choices()
{
    const Model model(m_handler);
    QString text;
    for (const auto& [number, name] : model.choices) {
        text += QStringLiteral("%1 %2\n").arg(number).arg(name);
    }
    return text;
}

QString SchemaFixture::Definitions()
{
    const Model model(m_handler);
    QString text;
    for (const auto& [name, definition] : model.definitions) {
        text += QStringLiteral("%1 %2 %3 [%4]\n")
                    .arg(name)
                    .arg(definition.usedFlag)
                    .arg(definition.pendingCount)
                    .arg(topElements(*definition.fragment));
    }
    return text;
}

int SchemaFixture::LevelsOfDefinitions()
{
    const Model model(m_handler);
    int levels = 0;
    for (const auto& named : model.definitions) {
        levels = std::max(levels, extentOf(*named.second.fragment).levels);
    }
    return levels;
}

QString SchemaFixture::References()
{
    const Model model(m_handler);
    QString text;
    for (const auto& [name, counts] : model.references) {
        for (const auto& [copies, records] : counts) {
            for (const ElementPathRecord& record : records) {
                text += QStringLiteral("%1 %2: %3\n").arg(name).arg(copies).arg(recordText(record));
            }
        }
    }
    return text;
}

QString schemaOf(const QString& declarations)
{
    return QStringLiteral("<xs:schema>") + declarations + QStringLiteral("</xs:schema>");
}

void addRowsForDataFiles(const QString& folder)
{
    QTest::addColumn<QString>("path");
    const QStringList files = QDir(folder).entryList({QStringLiteral("*.xsd")});
    QVERIFY(!files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        QTest::newRow(qPrintable(name)) << folder + QLatin1Char('/') + name;
    }
}
