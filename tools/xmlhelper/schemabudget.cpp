#include "schemabudget_p.h"

#include "domextent_p.h"
#include "limits_p.h"
#include "tracing_p.h"
#include "xmltext_p.h"

void SchemaBudget::Refuse(const QString& reason)
{
    if (!m_bRefused) {
        m_bRefused = true;
        trace(reason, "schemabudget", __LINE__);
    }
}

bool SchemaBudget::CheckName(const QString& name)
{
    m_bRefused = !isRepresentableName(name, "XmlSchemaHandler") || m_bRefused;
    return !m_bRefused;
}

bool SchemaBudget::MayOpen(const QString& identity) const
{
    return !m_openFiles.contains(identity) && m_openFiles.size() < limits().includeDepth;
}

bool SchemaBudget::OpenFile(const QString& identity, int openTags)
{
    if (++m_iFiles > limits().schemaFiles) {
        Refuse(QStringLiteral("The schema consists of more than %1 files!").arg(limits().schemaFiles));
        return false;
    }
    m_openFiles.append(identity);
    m_iOpenTags += openTags;
    return true;
}

void SchemaBudget::CloseFile(int openTags)
{
    m_iOpenTags -= openTags;
    m_openFiles.removeLast();
}

bool SchemaBudget::CheckTag(int nesting)
{
    if (nesting > limits().elementNesting) {
        Refuse(QStringLiteral("The schema is nested deeper than %1 elements!").arg(limits().elementNesting));
    } else if (m_iOpenTags + nesting > limits().openTags) {
        Refuse(
            QStringLiteral("The schema and its includes are nested deeper than %1 elements!").arg(limits().openTags));
    }
    return !m_bRefused;
}

bool SchemaBudget::TakeEnumerationValue(int number)
{
    m_bEnumerations = true;
    if (number > limits().enumerationValues) {
        Refuse(QStringLiteral("An enumeration has more than %1 values!").arg(limits().enumerationValues));
    }
    return !m_bRefused;
}

bool SchemaBudget::CheckElements(qint64 elements, const Share& share)
{
    return share.elements + elements <= limits().elements || refuseElements();
}

bool SchemaBudget::TakeElements(const DomExtent& extent, int enumerationValues, int copies, int level, Share& share)
{
    if (level + extent.levels > limits().elementNesting) {
        Refuse(QStringLiteral("The schema lays out elements nested deeper than %1!").arg(limits().elementNesting));
        return false;
    }
    const qint64 elements = qint64(copies) * extent.elements;
    const qint64 forNamedTypes = share.isOfNamedType ? elements : 0;
    if (!CheckElements(elements, share)) {
        return false;
    }
    if (m_iElements + elements > limits().elementsOfAllDefinitions
        || m_iElementsOfNamedTypes + forNamedTypes > limits().elementsOfNamedTypes) {
        return refuseElements();
    }
    if (!CheckAttributes(qint64(copies) * extent.attributes, qint64(copies) * enumerationValues)) {
        return false;
    }
    share.elements += extent.elements;
    m_iElements += extent.elements;
    m_iElementsOfNamedTypes += share.isOfNamedType ? extent.elements : 0;
    return TakeAttributes(extent.attributes, enumerationValues);
}

bool SchemaBudget::CheckAttributes(qint64 attributes, qint64 enumerationValues)
{
    if (m_iAttributes + attributes > limits().attributes) {
        Refuse(QStringLiteral("The schema lays out more than %1 attributes!").arg(limits().attributes));
    } else if (m_iEnumerationValues + enumerationValues > limits().copiedEnumerationValues) {
        Refuse(QStringLiteral("The schema gives elements more than %1 values of enumerations!")
                   .arg(limits().copiedEnumerationValues));
    }
    return !m_bRefused;
}

bool SchemaBudget::TakeAttributes(int attributes, int enumerationValues)
{
    if (CheckAttributes(attributes, enumerationValues)) {
        m_iAttributes += attributes;
        m_iEnumerationValues += enumerationValues;
    }
    return !m_bRefused;
}

/// Gives false.
bool SchemaBudget::refuseElements()
{
    Refuse(QStringLiteral("The schema lays out more than %1 elements!").arg(limits().elements));
    return false;
}
