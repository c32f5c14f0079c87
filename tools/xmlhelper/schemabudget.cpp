#include "schemabudget_p.h"

#include <QCoreApplication>

#include "domextent_p.h"
#include "limits_p.h"
#include "schemareadinglog_p.h"
#include "tracing_p.h"
#include "xmltext_p.h"

namespace {

const char BudgetComponent[] = "schemabudget";

} // namespace

void SchemaBudget::Refuse(const QString& reason)
{
    if (!m_bRefused) {
        m_bRefused = true;
        trace(reason, BudgetComponent, __LINE__);
        if (m_pLog) {
            m_pLog->ContentRefused(reason);
        }
    }
}

template <typename Number>
bool SchemaBudget::refuse(const char* sentence, qint64 asked, Number Limits::*limit, Number Limits::*traced)
{
    if (!m_bRefused) {
        m_bRefused = true;
        const QString text = QString::fromLatin1(sentence);
        trace(text.arg(limits().*(traced ? traced : limit)), BudgetComponent, __LINE__);
        if (m_pLog) {
            m_pLog->Refused(text, asked, limits().*limit, Limits().*limit);
        }
    }
    return false;
}

bool SchemaBudget::CheckName(const QString& name, const SchemaTag& tag)
{
    const bool isAllowed = isRepresentableName(name, "XmlSchemaHandler");
    if (!isAllowed && !m_bRefused && m_pLog) {
        m_pLog->NameRefused(name, tag);
    }
    m_bRefused = !isAllowed || m_bRefused;
    return !m_bRefused;
}

bool SchemaBudget::MayOpen(const QString& identity) const
{
    return !m_openFiles.contains(identity) && m_openFiles.size() < limits().includeDepth;
}

bool SchemaBudget::OpenFile(const QString& identity, int openTags)
{
    if (++m_iFiles > limits().schemaFiles) {
        return refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema consists of more than %1 files!"), m_iFiles,
                      &Limits::schemaFiles);
    }
    m_openFiles.append(identity);
    m_iOpenTags += openTags;
    return true;
}

bool SchemaBudget::TakeBytes(qint64 bytes)
{
    m_iBytes += bytes;
    return m_iBytes <= limits().schemaBytes
        || refuse(QT_TRANSLATE_NOOP("SchemaBudget",
                                    "The schema consists of more than %1 bytes, repeated includes counted again!"),
                  m_iBytes, &Limits::schemaBytes);
}

void SchemaBudget::CloseFile(int openTags)
{
    m_iOpenTags -= openTags;
    m_openFiles.removeLast();
}

bool SchemaBudget::CheckTag(int nesting)
{
    if (nesting > limits().elementNesting) {
        refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema is nested deeper than %1 elements!"), nesting,
               &Limits::elementNesting);
    } else if (m_iOpenTags + nesting > limits().openTags) {
        refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema and its includes are nested deeper than %1 elements!"),
               m_iOpenTags + nesting, &Limits::openTags);
    }
    return !m_bRefused;
}

bool SchemaBudget::TakeEnumerationValue(int number)
{
    m_bEnumerations = true;
    if (number > limits().enumerationValues) {
        refuse(QT_TRANSLATE_NOOP("SchemaBudget", "An enumeration has more than %1 values!"), number,
               &Limits::enumerationValues);
    }
    return !m_bRefused;
}

bool SchemaBudget::CheckElements(qint64 elements, const Share& share)
{
    return share.elements + elements <= limits().elements
        || refuseElements(share.elements + elements, &Limits::elements);
}

bool SchemaBudget::TakeElements(const DomExtent& extent, int enumerationValues, int copies, int level, Share& share)
{
    if (level + extent.levels > limits().elementNesting) {
        return refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema lays out elements nested deeper than %1!"),
                      level + extent.levels, &Limits::elementNesting);
    }
    const qint64 elements = qint64(copies) * extent.elements;
    const qint64 forNamedTypes = share.isOfNamedType ? elements : 0;
    if (!CheckElements(elements, share)) {
        return false;
    }
    if (m_iElements + elements > limits().elementsOfAllDefinitions) {
        return refuseElements(m_iElements + elements, &Limits::elementsOfAllDefinitions);
    }
    if (m_iElementsOfNamedTypes + forNamedTypes > limits().elementsOfNamedTypes) {
        return refuseElements(m_iElementsOfNamedTypes + forNamedTypes, &Limits::elementsOfNamedTypes);
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
        refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema lays out more than %1 attributes!"),
               m_iAttributes + attributes, &Limits::attributes);
    } else if (m_iEnumerationValues + enumerationValues > limits().copiedEnumerationValues) {
        refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema gives elements more than %1 values of enumerations!"),
               m_iEnumerationValues + enumerationValues, &Limits::copiedEnumerationValues);
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

/// Gives false. What is traced is the limit of a document: that is what all definitions are limited for.
bool SchemaBudget::refuseElements(qint64 asked, int Limits::*limit)
{
    return refuse(QT_TRANSLATE_NOOP("SchemaBudget", "The schema lays out more than %1 elements!"), asked, limit,
                  &Limits::elements);
}
