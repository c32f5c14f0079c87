#ifndef XMLHELPERREPORTS_REPORTFILLER_H
#define XMLHELPERREPORTS_REPORTFILLER_H

#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QMultiHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <xmlhelperreports/xmlhelperreportsexport.h>

class QDomDocument;
class QDomElement;
struct ReportFillerData;
class SchemaReadingLog;
class XmlCreateReport;
struct SavedFile;

/// Fills a report by a schema from named values, and tells what became of each of them. No widget is needed.
///
/// A program gives the values with Add(), AddFile() and their like, calls Fill(), and looks at its result or at the
/// verdicts. What is given stays for the next Fill(). One thread at a time; the values are the filler's own copies.
///
/// A value is given for a path. "/Survey/Emission[2]/Frequency" names an element from the root on,
/// "Emission[2]/Frequency" one by the end of its path, "Frequency" one by its name, and "Frequency@Unit" an attribute;
/// "./Station" begins below the root. An end that fits several places is refused, by their names. An index counts equal
/// names below one parent, from 1. Without one, equal names go to the next place that has no such value yet: of the
/// innermost element on the way that may repeat. A value of a record goes to the record's own of the outermost, and
/// equal names within one record go on below it.
///
/// Elements and containers repeat as often as values are given and the schema allows. Of a choice, the alternatives
/// without values go, and so do optional parts without values. What is required and has no value stays, as the builder
/// leaves it; a default of the schema counts as its value. Attributes without a value go.
///
/// What the builder knows of a schema is all that is known here. Not known is whether an attribute is required, where
/// one choice ends and the next begins, and whether a choice may be empty; in doubt a verdict says so. Where containers
/// of one name stand at several places, what is optional in them is known so at the first alone; at others it counts as
/// required. What a validator knows beyond that it may say, see SetValidator().
///
/// Facets that the builder does not check (lengths, patterns, digits, enumerations of numbers) are checked here,
/// against what is written. Those of attributes are known when they are bounds and enumerations of global attributes.
class XMLHELPERREPORTS_EXPORT ReportFiller final
{
public:
    /// What became of a value, an element or an attribute.
    enum class State {
        Written, ///< it is in the report; of a container that it is kept
        Refused, ///< the value breaks a rule of the schema, or its name is ambiguous
        NotAskedFor, ///< the value belongs to nothing that the schema declares
        Unfilled, ///< of an element: it is required and has no value
        LeftOut, ///< of an element or attribute: it has no value and is not in the report
        Doubtful, ///< it is in the report, and whether the schema allows that is not known
        Invalid, ///< of the report: a validator refuses it; the path is empty, and the reason what the validator says
    };

    /// What became of a value, or of an element or attribute that has none.
    struct Verdict
    {
        State state; ///< of the value, element or attribute
        QString path; ///< from the root on; of a value without a place as it was given
        QString value; ///< as a text; empty for an element without one
        QString reason; ///< a sentence without its stop; empty when there is nothing to say
    };

    /// Gives the value of an element or attribute, by its path from the root on, or an invalid QVariant. What may
    /// repeat is asked for one index after the other, until nothing below an index has a value.
    using Source = std::function<QVariant(const QString& path)>;

    /// Takes a line of text for each thing that happens; lines about an announced element are indented.
    using Journal = std::function<void(const QString& line)>;

    /// Holds a written report against its schema by other means than the builder. Gives a sentence without its stop for
    /// everything that speaks against the report, or nothing.
    using Validator = std::function<QStringList(const QString& schemaPath, const QString& reportPath)>;

    /// Without any value.
    ReportFiller();
    ~ReportFiller();

    /// Gives a value, as a text or typed. It is written as the type of its element asks for.
    /// @param name   the path
    /// @param value  converted to a text; numbers without loss. An invalid one is passed over
    void Add(const QString& name, const QVariant& value);

    /// Gives the values of an object: names are paths below the object around them, "@name" is an attribute of it and
    /// "#text" its text; an array has the repeated ones, and null gives nothing. Each object of an array at the top is
    /// a record, numbered on from the records that are there; one without values is passed over. Nothing is given by a
    /// text that is not understood, or in which an object has a key twice.
    /// @param json   in UTF-8
    /// @param fault  becomes what is wrong, behind the number of the line; may be null
    /// @return whether the text was understood
    bool AddJson(const QByteArray& json, QString* fault = nullptr);

    /// Gives a record for each row below the first, which holds the paths. Cells are separated by whichever of comma,
    /// semicolon and tabulator the first row has, and may be quoted; empty ones give nothing. What is not quoted loses
    /// blanks around it. A value that does not repeat may stand in each row if it is the same. The records are numbered
    /// on from those that are there. Nothing is given by a text that is not understood.
    /// @param csv    in UTF-8
    /// @param fault  becomes what is wrong, behind the number of the row; may be null
    /// @return whether the text was understood
    bool AddCsv(const QByteArray& csv, QString* fault = nullptr);

    /// Gives a value for each line "path=value". Empty lines and those that begin with # are passed over. Nothing is
    /// given by a text that is not understood.
    /// @param text   in UTF-8
    /// @param fault  becomes what is wrong, behind the number of the line; may be null
    /// @return whether the text was understood
    bool AddText(const QByteArray& text, QString* fault = nullptr);

    /// Gives the values of a file: JSON, CSV or lines of text, by its suffix.
    /// @param fileName  ending in ".json", ".csv" or anything else
    /// @param fault     becomes what is wrong, behind the file and the line; may be null
    /// @return whether the file could be read and was understood
    bool AddFile(const QString& fileName, QString* fault = nullptr);

    /// Asks for values that are not given, as many as a document may have elements. Without a source none are asked.
    /// @param source  must not call the filler; an empty function for none
    void SetSource(Source source);

    /// Writes down what happens while the report is filled.
    /// @param journal  must not call the filler; an empty function for none
    void SetJournal(Journal journal);

    /// Has each report validated that is written and would be complete, or is in doubt only: the builder knows a part
    /// of XML Schema only, so without a validator a report may be called complete that the schema does not allow. What
    /// is doubtful in a report that the validator accepts counts as written. The library has none of its own. A report
    /// that goes to a device or a pipe is validated as a file of the same content.
    /// @param validator  must not call the filler; an empty function for none
    void SetValidator(Validator validator);

    /// Fills a report and writes it, which replaces an earlier one.
    /// @param schema  the schema file
    /// @param report  the file to write
    /// @return whether the schema was read, the file was written, every value is in it and nothing required is known
    ///         to be missing: whether all verdicts are Written or LeftOut, and the validator said nothing. Else the
    ///         file is written all the same with what there is. Nothing is written, and an earlier report stays, when
    ///         the schema gives no element or when the report would replace it
    bool Fill(const QString& schema, const QString& report);

    /// @return whether the schema of the last Fill() could be read and lays out an element
    bool IsSchemaRead() const;

    /// @return the verdicts of the last Fill(): one for each value, in the order given, then one for each element
    ///         without a value and each attribute left out, in document order, then one for each sentence of the
    ///         validator; none when the schema could not be read. They change with the next Fill()
    const std::vector<Verdict>& GetVerdicts() const;

    /// @return the verdicts because of which the last Fill() gave false, in a line each; before them what is no matter
    ///         of one value, such as a file that could not be written
    QStringList Complaints() const;

private:
    Q_DISABLE_COPY(ReportFiller)

    friend class ReportFilling;
    friend class SchemaOutline;
    static const QDomDocument* layOut(XmlCreateReport& builder, const QString& schema, SchemaReadingLog& log);
    static bool isCountAllowed(XmlCreateReport& builder, QDomElement element, int count);
    static QMultiHash<QString, int> alternativesOf(const XmlCreateReport& builder);
    static bool makeAside(XmlCreateReport& builder, const QString& schema, const QString& report,
                          const QString& writtenFile, const std::function<bool(SavedFile& file)>& put);
    static void release(XmlCreateReport& builder);

    std::unique_ptr<ReportFillerData> m_pData;
};

#endif
