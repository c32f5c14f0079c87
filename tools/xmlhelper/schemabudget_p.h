#ifndef XMLHELPER_SCHEMABUDGET_P_H
#define XMLHELPER_SCHEMABUDGET_P_H

#include <QString>
#include <QStringList>

struct DomExtent;
struct Limits;
struct SchemaTag;
class SchemaReadingLog;

/// Counts what the files of one schema ask for together, and refuses what goes beyond the limits in force: one sentence
/// is traced, and the schema has failed from then on.
///
/// The handlers of all files share one. They ask before they lay anything out, for all copies of it at once, so that a
/// refusal comes before the first copy is made. Every question is answered with whether the reading goes on.
class SchemaBudget
{
public:
    /// How many elements have been laid into one definition.
    struct Share
    {
        int elements = 0;
        bool isOfNamedType = false;
        bool isMeasured = false; ///< when its definition is whole: what was read for it may have landed elsewhere
    };

    /// Hears of the refusal; null for nobody, not owned.
    void SetLog(SchemaReadingLog* log) { m_pLog = log; }

    bool IsRefused() const { return m_bRefused; }
    /// Fails the schema for its content. Only the first reason is traced.
    void Refuse(const QString& reason);

    /// Whether an element or an attribute of the skeleton may have the name; traces and refuses one that XML does not
    /// allow.
    /// @param tag  the one that gives the name
    bool CheckName(const QString& name, const SchemaTag& tag);

    /// Whether a file may be read inside those that are being read: it is none of them, and they are not too many.
    bool MayOpen(const QString& identity) const;
    bool IsOpen(const QString& identity) const { return m_openFiles.contains(identity); }
    /// @param openTags  of the file that includes it
    bool OpenFile(const QString& identity, int openTags);
    /// Whether so many bytes more may be read.
    bool TakeBytes(qint64 bytes);
    void CloseFile(int openTags);

    /// @param nesting  of the tag in its file
    bool CheckTag(int nesting);
    /// @param number  of the value in its enumeration
    bool TakeEnumerationValue(int number);
    bool HasEnumerations() const { return m_bEnumerations; }

    /// Whether so many elements more may be laid into a definition.
    bool CheckElements(qint64 elements, const Share& share);
    /// Takes one of @p copies of so much, if all of them may be laid out on @p level into a definition.
    bool TakeElements(const DomExtent& extent, int enumerationValues, int copies, int level, Share& share);

    /// Whether so many attributes, of which some are values of enumerations, may be copied to other elements.
    bool CheckAttributes(qint64 attributes, qint64 enumerationValues);
    bool TakeAttributes(int attributes, int enumerationValues);

private:
    /// Gives false. The sentence has "%1" where the limit that was passed stands, or the one that is @p traced instead.
    template <typename Number>
    bool refuse(const char* sentence, qint64 asked, Number Limits::*limit, Number Limits::*traced = nullptr);
    bool refuseElements(qint64 asked, int Limits::*limit);

    QStringList m_openFiles;
    int m_iOpenTags = 0; ///< of the files that include the one being read
    int m_iFiles = 0;
    qint64 m_iBytes = 0;
    int m_iElements = 0;
    int m_iElementsOfNamedTypes = 0;
    int m_iAttributes = 0;
    int m_iEnumerationValues = 0; ///< that elements have received by copying
    bool m_bEnumerations = false; ///< some have been read
    bool m_bRefused = false;
    SchemaReadingLog* m_pLog = nullptr; ///< not owned
};

#endif
