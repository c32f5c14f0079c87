#ifndef SCHEMADOCTOR_LIBRARYREADING_H
#define SCHEMADOCTOR_LIBRARYREADING_H

#include <memory>

#include <QDomDocument>
#include <QString>

#include <xmlhelper/schemamodel.h>

namespace schemadoctor {

/// A schema as the library itself reads it: the truth about what it understands.
class LibraryReading
{
public:
    /// Reads the file as the report builder does.
    explicit LibraryReading(const QString& file);
    ~LibraryReading();

    bool IsParsed() const { return m_isParsed; }
    const QString& GetFault() const { return m_fault; } ///< why the text is no XML for the library; empty when it is
    int GetFaultLine() const { return m_faultLine; }

    QDomElement GetRoot() const;
    const OccursMap& GetOccurs() const { return m_occurs; }
    const ChoiceMap& GetChoices() const { return m_choices; }

private:
    Q_DISABLE_COPY(LibraryReading)
    class Handler;

    std::unique_ptr<Handler> m_handler;
    bool m_isParsed = false;
    QString m_fault;
    int m_faultLine = 0;
    UnresolvedTypeMap m_unresolvedTypes;
    OccursMap m_occurs;
    TypeDefinitionMap m_definitions;
    ChoiceMap m_choices;
};

} // namespace schemadoctor

#endif
