#ifndef XMLHELPER_TESTS_SCHEMAFIXTURE_H
#define XMLHELPER_TESTS_SCHEMAFIXTURE_H

#include <QString>

#include <xmlhelper/xmlschemahandler.h>

#include "eventrecorder.h"

/// Reads one schema and shows what it leaves behind as text.
class SchemaFixture
{
public:
    /// @param schemaPath  what the handler is told to be the path of the schema
    explicit SchemaFixture(const QString& schemaPath = QStringLiteral("schema.xsd"));

    /// Reads the file called @p fileName with a parser that looks after namespaces; gives whether the parse succeeded.
    bool ReadFile(const QString& fileName);
    /// Lets the handler read the file called @p fileName, as the report builder does; gives the same.
    bool ReadFileByHandler(const QString& fileName);
    /// Reads a schema made of @p declarations; gives whether the parse succeeded.
    bool Read(const QString& declarations);
    /// Reads @p declarations and breaks off before the end of the schema, so that nothing is resolved yet.
    void ReadWithoutEnd(const QString& declarations);

    XmlSchemaHandler& Handler() { return m_handler; }
    /// The event lines that the observer has received; there must never be any.
    QStringList Events() const { return m_observer.Lines(); }

    /// The skeleton document, see domText().
    QString Skeleton() const;
    /// A line for each element name and occurs code: "name code: owner, owner".
    QString Occurs();
    /// A line for each entry: "number name".
    QString Choices();
    /// A line for each definition: "name used pending [names of the top elements of its fragment]".
    QString Definitions();
    /// How deep the elements of the definition that has the most levels are nested.
    int LevelsOfDefinitions();
    /// A line for each record: "name copies: owner in definition", with " behind anchor" and ", attribute".
    QString References();

private:
    Q_DISABLE_COPY(SchemaFixture)

    EventRecorder m_observer;
    XmlSchemaHandler m_handler;
};

/// A schema made of @p declarations.
QString schemaOf(const QString& declarations);

/// A row for each schema in @p folder, named after it: its path without ".xsd".
void addRowsForDataFiles(const QString& folder);

#endif
