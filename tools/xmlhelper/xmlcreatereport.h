#ifndef XMLHELPER_XMLCREATEREPORT_H
#define XMLHELPER_XMLCREATEREPORT_H

#include <functional>
#include <list>

#include <QPointer>
#include <QString>

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/schemamodel.h>
#include <xmlhelper/xmlhelperexport.h>

class CommentDialogImpl;
class DomParser;
class QDateTime;
class QDomDocument;
class QDomElement;
class QTime;
class QXmlSimpleReader;
class ReportTeller;
class SchemaReadingLog;
struct SavedFile;
class XMLReader;
class XmlContentHandler;
class XmlSchemaHandler;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // QXmlSimpleReader: Qt keeps the SAX classes, with a warning.

/// Builds a report document from an XSD schema (W3C XML Schema), filled by an observer under the schema's rules.
///
/// CreateXmlFromSchema() does the whole job in one call. It reads the schema into a skeleton document that holds
/// every element the schema declares, and announces these elements one by one to the observer with an
/// ElemBeginEvent. The observer answers from inside IXMLHelper::XmlUpdate() with the operations below, which all
/// act on the element just announced. Refusals arrive at once as ErrorEvent, while the refused call is still on the
/// stack; the observer may answer them with another call, which may be refused again. So that answers come to an
/// end, errors are sent while no more than 100 are nested in each other, and a million within an outermost one;
/// what is cut off is traced. Elements that stay unfilled are removed when the schema allows them to be missing. In
/// the end the document is written to the report file, or handed to a comment dialog that writes it later.
///
/// A builder makes one document. The operations stay callable afterwards and then act on the element announced
/// last; before, they act as with no current element.
///
/// Every report that is written can be read back, as far as the observer does not edit the document by itself: of
/// texts the characters that W3C XML cannot carry (control characters, halves of surrogate pairs, U+FFFE, U+FFFF)
/// are dropped before they are checked, with a trace. The observer may edit the document through the nodes it is
/// given, and keep these, but must not give the document other content (QDomDocument::setContent()): Qt would free
/// nodes that are in use.
///
/// The observer is not owned and must outlive the builder's use of it, the end of CreateXmlFromSchema(). The
/// builder owns the document and the comment dialogs, and must not be destroyed while CreateXmlFromSchema() runs.
/// Everything runs on the caller's thread, which must be the GUI thread when the comment dialog is used.
///
/// A builder made with a null observer traces "XmlCreateReport: pCallback is NULL!"; it refuses
/// CreateXmlFromSchema(), and its other operations do nothing.
///
/// Copies are shallow: a copy shares the document, the dialogs and the duty to delete them with its source. Of a
/// builder and its copies exactly one may be destroyed.
class XMLHELPER_EXPORT XmlCreateReport
{
public:
    /// @param pCallback  receives every event; not owned
    explicit XmlCreateReport(IXMLHelper* pCallback);
    /// Copies every member as it is: pointers, maps and lists of pointers.
    /// @param other  copied
    XmlCreateReport(const XmlCreateReport& other);
    /// Copies every member as it is: pointers, maps and lists of pointers.
    /// @param other  copied
    /// @return this object
    XmlCreateReport& operator=(const XmlCreateReport& other);

    /// Deletes the comment dialogs, open ones too, without writing their reports, and then the document.
    ~XmlCreateReport();

    /// Creates the report, see above.
    ///
    /// The root gets the attributes xsi:noNamespaceSchemaLocation, the schema path with slashes, and xmlns:xsi. The
    /// file is written in UTF-8 with four spaces of indentation and replaces an earlier one.
    ///
    /// @param schemaPath         the schema file; back slashes separate folders on every platform
    /// @param reportPath         the file to write; back slashes as above
    /// @param showCommentDialog  false: write the file now. true: show the comment dialog, without blocking, which
    ///                           writes the file when the operator answers it
    /// @return whether the schema was read. After a failure the file is written all the same with what there is, and
    ///         false is returned. Also false, with nothing done, on the second call. Only ReportNews tells of a file
    ///         that cannot be written.
    bool CreateXmlFromSchema(QString schemaPath, QString reportPath, bool showCommentDialog);

    /// Sets the text of the current element, and tells the walk that the element has been dealt with.
    ///
    /// The element's schema type must contain "string"; "short" and "long" take every kind of value. The value must be
    /// one of the enumeration, if there is one. On success the element loses its type and enumeration.
    ///
    /// Sends NO_CURRENT_ELEMENT; CURRENT_TYPE_IS_UNKNOWN followed by CURRENT_TYPE_IS_NOT_STRING without a type;
    /// CURRENT_TYPE_IS_NOT_STRING for another type; VALUE_IS_NOT_VALID for a value outside the enumeration.
    ///
    /// @param value  written as it is, apart from characters that XML cannot carry
    void SetXmlValue(QString value);

    /// Sets a floating-point number, written with 12 significant digits; truncated to an integer for "short".
    ///
    /// The type must contain "double" and the value must satisfy the range facets. On success the element loses the
    /// facets that were used and its type. 65535 as a facet counts as no facet.
    ///
    /// The format is chosen by an early look at the type, which the first operation of all cannot take: then the number
    /// is not truncated.
    ///
    /// Sends as for texts, with CURRENT_TYPE_IS_NOT_DOUBLE, and CURRENT_TYPE_IS_UNKNOWN twice, but once when it is the
    /// first operation of all.
    ///
    /// @param value  NaN is on neither side of a bound
    void SetXmlValue(double value);

    /// Sets an integer. The type must contain "integer" or be "int", and the value must satisfy the range facets. The
    /// type is removed before the range is checked, so a refused element has lost it.
    ///
    /// Sends as for texts, with CURRENT_TYPE_IS_NOT_INTEGER.
    ///
    /// @param value  written in decimal digits
    void SetXmlValue(int value);

    /// Sets "true" or "false". The type must contain "bool". Sends as for texts, with CURRENT_TYPE_IS_NOT_BOOLEAN.
    /// @param value  which of the two
    void SetXmlValue(bool value);

    /// Sets a date and time in ISO format (Qt::ISODate); an invalid one gives an empty text. The type must contain
    /// "dateTime". Sends as for texts, with CURRENT_TYPE_IS_NOT_DATETIME.
    /// @param value  written in its own time zone
    void SetXmlValue(QDateTime value);

    /// Sets a time in ISO format (Qt::ISODate). The type must contain "time". Sends as for texts, with
    /// CURRENT_TYPE_IS_NOT_TIME.
    /// @param value  written to the second
    void SetXmlValue(QTime value);

    /// A text literal would silently become a bool.
    void SetXmlValue(const char* value) = delete;

    /// Sets a declared attribute of the current element to a text.
    ///
    /// The attribute holds its declared type until it is set; that must contain "string". The value must be one of the
    /// attribute's enumeration, if there is one, which is removed on success. Setting attributes does not end the
    /// element's announcement. Enumeration and facets are found by the name being part of theirs, so those of an
    /// attribute whose name contains @p name count too.
    ///
    /// Sends CURRENT_TYPE_IS_NOT_STRING, also for an attribute that is not declared or already set, and
    /// VALUE_IS_NOT_VALID. Does nothing without a current element.
    ///
    /// @param name   the attribute
    /// @param value  written as it is, apart from characters that XML cannot carry
    void SetAttributeValue(QString name, QString value);

    /// Sets a declared attribute to a date and time in ISO format (Qt::ISODate). Its type must contain "dateTime".
    /// Sends CURRENT_TYPE_IS_NOT_DATETIME. Does nothing without a current element.
    /// @param name   the attribute
    /// @param value  written in its own time zone
    void SetAttributeValue(QString name, QDateTime value);

    /// Sets a declared attribute to an integer. Its type must contain "integer" and the value must satisfy its range
    /// facets, of which maxInclusive excludes its own value when there is a lower bound. The facets that were used are
    /// removed on success. Sends NO_CURRENT_ELEMENT, CURRENT_TYPE_IS_NOT_INTEGER, VALUE_IS_NOT_VALID.
    /// @param name   the attribute
    /// @param value  written in decimal digits
    void SetAttributeValue(QString name, int value);

    /// Sets a declared attribute to a floating-point number. Its type must contain "double". Checks as for integers;
    /// facets are read as integers, a fractional one counts as 0. Sends NO_CURRENT_ELEMENT, CURRENT_TYPE_IS_NOT_DOUBLE,
    /// VALUE_IS_NOT_VALID.
    /// @param name   the attribute
    /// @param value  written with 12 significant digits
    void SetAttributeValue(QString name, double value);

    /// Removes an attribute of the current element, whatever it holds. Does nothing when there is none.
    /// @param name  the attribute
    void RemoveAttribute(QString name);

    /// Makes the current element occur @p count times: deep copies follow it, and the element is announced again, then
    /// each copy. The call is swallowed when @p name is the one given last, so that it may be repeated at every
    /// announcement.
    ///
    /// @param name   the name under which the schema limits the occurrence
    /// @param count  0 and 1 make no copy; negative ones are allowed by every limit. An element with minOccurs 0 and
    ///               maxOccurs n takes up to n * 100.
    ///
    /// Sends MAX_OCCURS_EXCEEDED when the count is not allowed or the element stands below no owner for which it is,
    /// when the document would exceed 500,000 elements or 2,000,000 attributes, when such calls have taken more work
    /// than multiplying each element of such a document would, and twice for a name without occurrence limits. Does
    /// nothing without a current element.
    void SetElementMaxOccurs(QString name, int count);

    /// Removes the current element as an unwanted alternative of a choice. The walk goes on behind the sibling that
    /// follows it. The last alternative of the schema is kept when as many have been discarded as its number says.
    ///
    /// Sends GENERAL_ERROR when the element is no alternative or may not be removed. Does nothing without a current
    /// element.
    void DiscardChoiceItem();

private:
    friend class ReportAnswerer; // gives back what a report that is over holds
    friend class ReportFiller; // the same, writes or only lays out, and asks which counts and choices the schema has

    /// The error events under way. A copy of a builder that is being answered has none itself.
    struct ErrorNesting
    {
        ErrorNesting() = default;
        ErrorNesting(const ErrorNesting&) { }
        // cppcheck-suppress operatorEqVarError ; what is under way stays
        ErrorNesting& operator=(const ErrorNesting&) { return *this; }

        int depth = 0; ///< events that the observer is answering just now
        int errors = 0; ///< sent since the outermost of them
        bool isDepthTraced = false; ///< since then: some were nested too deeply to be sent
        bool isNumberTraced = false; ///< there were too many
    };

    void CreateAndAppendTextNode(QString text);
    QString TypeControl(QString wanted);
    void Error(int id);
    bool CheckOccursMap(QString name, QString tagName, int count, QDomElement* element);

    using PutReport = std::function<bool(SavedFile& file)>;

    template <class End> bool makeReport(const QString& schemaPath, const QString& reportPath, const End& end);
    bool makeReportAside(const QString& schemaPath, const QString& reportPath, const QString& writtenPath,
                         const PutReport& put);
    void createSchemaHandler(const QString& schemaPath);
    bool layOut(const QString& schemaPath, SchemaReadingLog* log);
    bool readSchema(const QString& schemaPath);
    void createWalkers();
    void stampSchemaLocation(const QString& schemaPath);
    void showComment(const QString& reportPath, const ReportTeller& teller);
    void releaseReport();

    bool isErrorSent();
    bool refreshCurrentElement();
    bool isTypeAccepted(const QString& wanted, IXMLHelper::ErrorID refusal);
    bool isAttributeTypeAccepted(const QString& name, const QString& wanted, IXMLHelper::ErrorID refusal);
    template <class Facets> bool useEnumeration(const QString& value, const Facets& facets);
    template <typename Number> bool useRange(Number value);
    template <typename Number> bool useRange(const QString& name, Number value);
    bool copyCurrentElement(int count);
    bool isDiscardAllowed(const QString& tagName) const;

    QXmlSimpleReader* m_pSchemaReader; ///< only while the schema is parsed
    XmlContentHandler* m_pContentHandler; ///< never released, see createWalkers()
    XmlSchemaHandler* m_pSchemaHandler; ///< owned
    IXMLHelper* m_pCallback; ///< not owned
    QDomDocument* m_pDocument; ///< the schema handler's
    XMLReader* m_pReader; ///< never released, see createWalkers()
    QDomElement* m_pCurrentElement; ///< the DOM parser's; null until an operation has asked for it
    DomParser* m_pDomParser; ///< never released, see createWalkers()
    QString m_sLastMultipliedName;
    QString m_sUnused; ///< copied with the builder, never read
    [[maybe_unused]] bool m_bUnused; ///< copied with the builder, never read
    qint32 m_iDiscardedChoices;
    UnresolvedTypeMap m_unresolvedTypes;
    OccursMap m_occurs; ///< the DOM parser's from the walk on
    TypeDefinitionMap m_typeDefinitions;
    ChoiceMap m_choices;
    std::list<QPointer<CommentDialogImpl>> m_commentDialogs; ///< owned; null: who was told of it has deleted it

    std::list<QDomDocument*> m_dialogDocuments; ///< owned, one for each dialog
    int m_iElements; ///< laid out by the schema and made by copying
    int m_iAttributes; ///< the same of attributes
    qint64 m_iMultiplyingSteps; ///< work of the calls that multiplied an element, with or without copies
    ErrorNesting m_errorNesting;
};

QT_WARNING_POP

#endif
