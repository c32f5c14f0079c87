#ifndef XMLHELPER_SCHEMAREADINGLOG_P_H
#define XMLHELPER_SCHEMAREADINGLOG_P_H

#include <QString>

class QDomElement;
class QXmlAttributes;

/// A start tag in the files of a schema.
struct SchemaTag
{
    int file = -1; ///< in the order in which files are begun, from 0; one that is read twice has two numbers
    int number = -1; ///< in the order of the start tags of its file, from 0
};

/// Hears what the library makes of a schema, while it is read: for tools that explain schemas to their authors.
///
/// XmlSchemaHandler::SetLog() hands it to the handler of the top file, which shares it with those of included files.
/// For each file comes FileBegun(), then its tags, then whatever the end of the document brings, then FileEnded(). What
/// the skeleton holds is told at the very end, to those who ask for it. Every function does nothing by default.
class SchemaReadingLog
{
public:
    /// What an attribute of the skeleton is.
    enum class AttributeKind {
        Annotation, ///< type, default or facet of the element
        Declared, ///< an attribute that the schema declares for the element; told is the tag that stands in the element
        FacetOfDeclared, ///< a facet of the declared attribute whose name its own name ends with
    };

    SchemaReadingLog() = default;
    virtual ~SchemaReadingLog() = default;

    /// Whether it hears of elements and attributes that are laid out. To know where they come from, each carries a mark
    /// until the schema has been read.
    virtual bool HearsLayout() const { return true; }

    /// @param written  the name as the schema, or for the top file the caller, gives it
    /// @param opened   the name by which the file is opened
    /// @param include  the tag that includes it; no tag for the top file
    /// @param isAgain  the same file has been begun before
    virtual void FileBegun(int /*file*/, const QString& /*written*/, const QString& /*opened*/,
                           const SchemaTag& /*include*/, bool /*isAgain*/)
    {
    }
    /// An include that is passed over. Parameters as above.
    /// @param isCyclic  the file is being read already; else too many files are open
    virtual void FileSkipped(const QString& /*written*/, const QString& /*opened*/, const SchemaTag& /*include*/,
                             bool /*isCyclic*/)
    {
    }
    /// The file that has been begun cannot be opened.
    virtual void FileMissing(int /*file*/) { }
    /// The parser goes no further: what stands in front of the fault has been read.
    virtual void FileMalformed(int /*file*/, const QString& /*fault*/, int /*line*/) { }
    virtual void FileEnded(int /*file*/) { }

    /// Comes before anything that the tag brings about.
    /// @param line  where the parser stands, which is behind the tag's end
    virtual void TagBegun(const SchemaTag& /*tag*/, const QString& /*name*/, int /*line*/) { }
    /// The attributes of the tag that was told last, apart from declarations of namespaces.
    virtual void AttributesRead(const QXmlAttributes& /*attributes*/) { }
    /// A piece of the text that the tag begun last, and not ended yet, holds itself.
    virtual void TextRead(const QString& /*text*/) { }
    /// The tag begun last, and not ended yet, ends. Those of a malformed file may never end.
    virtual void TagEnded() { }
    /// The tag is none of the constructs that the library reads.
    virtual void TagPassedOver(const SchemaTag& /*tag*/) { }
    /// The tag becomes an annotation called @p name.
    virtual void FacetRead(const SchemaTag& /*tag*/, const QString& /*name*/) { }
    /// The tag refers to a definition that is not usable yet.
    virtual void ReferenceDeferred(const SchemaTag& /*tag*/, const QString& /*name*/) { }

    /// The definition is made; it takes the place of an earlier one of its name, if there is one.
    virtual void Defined(const QString& /*name*/, const SchemaTag& /*tag*/) { }
    /// XML does not allow the name of the global declaration: it is left out.
    virtual void GlobalLeftOut(const QString& /*name*/, const SchemaTag& /*tag*/) { }
    /// XML does not allow the name, and the schema is refused for it.
    virtual void NameRefused(const QString& /*name*/, const SchemaTag& /*tag*/) { }

    /// The schema asks for more than a limit in force allows.
    /// @param sentence  with "%1" where the limit stands
    /// @param asked     how much it would have been
    /// @param inForce   the limit that was exceeded
    /// @param greatest  the library's own value for that limit
    virtual void Refused(const QString& /*sentence*/, qint64 /*asked*/, qint64 /*inForce*/, qint64 /*greatest*/) { }
    /// What guards the parser has refused the content of a file, for the reason given in the sentence.
    virtual void ContentRefused(const QString& /*sentence*/) { }

    /// The whole schema is given up because of a reference.
    /// @param reference  the tag that refers to @p name
    /// @param waiting    the definition in which that tag stands
    /// @param isDefined  the definition is there, and waits for others itself
    virtual void ReferenceNeverCame(const QString& /*name*/, const SchemaTag& /*reference*/, const QString& /*waiting*/,
                                    bool /*isDefined*/)
    {
    }

    /// Nothing has used a global declaration with content when a file ends. At the end of the top file it is a
    /// candidate for the root, at the end of an included one it counts as used from then on. They come in the order of
    /// names: the last candidate wins, and without any the root is what was defined last.
    virtual void UnusedGlobal(int /*file*/, const QString& /*name*/) { }

    /// An element of the skeleton, in document order.
    /// @param declaration  the tag that declares it
    /// @param reference    the tag that refers to this declaration; no tag when the element stands where it is declared
    virtual void ElementLaidOut(const QDomElement& /*element*/, const SchemaTag& /*declaration*/,
                                const SchemaTag& /*reference*/)
    {
    }
    /// An attribute of the element that was told last, in any order.
    virtual void AttributeLaidOut(const QDomElement& /*element*/, const QString& /*name*/, AttributeKind /*kind*/,
                                  const SchemaTag& /*tag*/)
    {
    }

private:
    Q_DISABLE_COPY(SchemaReadingLog)
};

#endif
