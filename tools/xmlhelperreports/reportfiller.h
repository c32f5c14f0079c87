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

class QDomElement;
class XmlCreateReport;

/// Fills a report by a schema from named values, and tells what became of each of them. No widget is needed.
///
/// A program gives the values with Add(), AddFile() and their like, calls Fill(), and looks at its result or at the
/// verdicts. What is given stays for the next Fill(). One thread at a time; the values are the filler's own copies.
///
/// A value is given for a path. "/Survey/Emission[2]/Frequency" names an element from the root on,
/// "Emission[2]/Frequency" one by the end of its path, "Frequency" one by its name, and "Frequency@Unit" an attribute;
/// "./Station" begins below the root. An end that fits several places is refused, by their names. An index counts equal
/// names below one parent, from 1. Without one, equal names go to the next place: of the innermost element on the way
/// that may repeat, or for a record of the outermost.
///
/// Elements and containers repeat as often as values are given and the schema allows. Of a choice, the alternatives
/// without values go, and so do optional parts without values. What is required and has no value stays, as the builder
/// leaves it; a default of the schema counts as its value. Attributes without a value go.
///
/// What the builder knows of a schema is all that is known here. Not known is whether an attribute is required, where
/// one choice ends and the next begins, and whether a choice may be empty; in doubt a verdict says so. Facets that the
/// builder does not check (lengths, patterns, digits, enumerations of numbers) are checked here.
class XMLHELPERREPORTS_EXPORT ReportFiller final
{
public:
    enum class State {
        Written, ///< it is in the report; of a container that it is kept
        Refused, ///< the value breaks a rule of the schema, or its name is ambiguous
        NotAskedFor, ///< the value belongs to nothing that the schema declares
        Unfilled, ///< of an element: it is required and has no value
        LeftOut, ///< of an element or attribute: it has no value and is not in the report
        Doubtful, ///< it is in the report, and whether the schema allows that is not known
    };

    /// What became of a value, or of an element that has none.
    struct Verdict
    {
        State state;
        QString path; ///< from the root on; as it was given when it belongs to nothing
        QString value; ///< as a text; empty for an element without one
        QString reason; ///< a sentence without its stop; empty when there is nothing to say
    };

    /// Gives the value of an element or attribute, by its path from the root on, or an invalid QVariant. What may
    /// repeat is asked for one index after the other, until nothing below an index has a value.
    using Source = std::function<QVariant(const QString& path)>;

    /// Takes a line of text for each thing that happens; lines about an announced element are indented.
    using Journal = std::function<void(const QString& line)>;

    ReportFiller();
    ~ReportFiller();

    /// Gives a value, as a text or typed. It is written as the type of its element asks for.
    /// @param name   the path
    /// @param value  converted to a text; numbers without loss. An invalid one is passed over
    void Add(const QString& name, const QVariant& value);

    /// Gives the values of an object: names are paths below the object around them, "@name" is an attribute of it and
    /// "#text" its text; an array has the repeated ones. Each object of an array at the top is a record. Nothing is
    /// given by null, nor by text that is not understood.
    /// @param fault  becomes what is wrong, with its place; may be null
    /// @return whether it was understood
    bool AddJson(const QByteArray& json, QString* fault = nullptr);

    /// Gives a record for each row below the first, which holds the paths. Cells are separated by whichever of comma,
    /// semicolon and tabulator the first row has, and may be quoted; empty ones give nothing. A value that does not
    /// repeat may stand in each row if it is the same. Parameters and result as above.
    bool AddCsv(const QByteArray& csv, QString* fault = nullptr);

    /// Gives a value for each line "path=value". Empty lines and those that begin with # are passed over. Parameters
    /// and result as above.
    bool AddText(const QByteArray& text, QString* fault = nullptr);

    /// Gives the values of a file: JSON, CSV or lines of text, by its suffix. Parameters and result as above.
    bool AddFile(const QString& fileName, QString* fault = nullptr);

    /// Asks for values that are not given. It must not call the filler. An empty function ends that.
    void SetSource(Source source);

    /// Writes down what happens while the report is filled. An empty function ends that.
    void SetJournal(Journal journal);

    /// Fills a report and writes it, which replaces an earlier one. Not to be called from a source or journal.
    /// @param schema  the schema file
    /// @param report  the file to write
    /// @return whether the schema was read, the file was written, every value is in it and nothing required is known
    ///         to be missing: whether all verdicts are Written or LeftOut. Else the file is written all the same with
    ///         what there is, as far as that is possible
    bool Fill(const QString& schema, const QString& report);

    /// Whether the schema of the last Fill() could be read and lays out an element.
    bool IsSchemaRead() const;

    /// Of the last Fill(): one for each value, in the order given, then one for each element without a value and each
    /// attribute left out, in document order.
    const std::vector<Verdict>& GetVerdicts() const;

    /// The verdicts of the last Fill() because of which it gave false, in a line each; also what is no matter of one
    /// value, such as a file that could not be written.
    QStringList Complaints() const;

private:
    Q_DISABLE_COPY(ReportFiller)

    friend class ReportFilling;
    static bool isCountAllowed(XmlCreateReport& builder, QDomElement element, int count);
    static QMultiHash<QString, int> alternativesOf(const XmlCreateReport& builder);
    static void release(XmlCreateReport& builder);

    struct Private;
    std::unique_ptr<Private> m_pPrivate;
};

#endif
