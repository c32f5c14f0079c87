#ifndef XMLHELPERREPORTS_REPORTPAGE_H
#define XMLHELPERREPORTS_REPORTPAGE_H

#include <memory>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <xmlhelperreports/xmlhelperreportsexport.h>

class QImage;
struct ReportPageData;

/// A report as a page for people: HTML for a browser, rich text for Qt's own views, PDF for the archive.
///
/// A program calls Read() with the report and its schema, adds what it knows itself (a title, what a validator says, a
/// picture), and asks for the page in one form or several. Containers become sections and what repeats becomes tables;
/// values have their units beside them. Labels are the documentation in the schema, in the language of the page where
/// there is a text in it, else the first; without any the names of elements. The page speaks the language of the
/// application, as far as the library has a catalogue of it.
///
/// What the schema asks for and the report lacks is marked as missing. What stands in the report and is not declared,
/// and notes of the builder on elements that were never filled, are marked as left over. What the library knows of a
/// schema is all that is known: a schema that it does not understand gives a page without labels and marks.
///
/// Reports and schemas may be anybody's: nothing of them becomes markup, no entity is read, and the page has no script
/// and refers to nothing outside of itself. One thread at a time.
class XMLHELPERREPORTS_EXPORT ReportPage final
{
public:
    /// Without a report.
    ReportPage();
    ~ReportPage();
    /// @param other  can only be assigned to and destroyed afterwards
    ReportPage(ReportPage&& other) noexcept;
    /// @param other  can only be assigned to and destroyed afterwards
    /// @return this page
    ReportPage& operator=(ReportPage&& other) noexcept;

    /// Reads a report and its schema. Title, faults and picture stay.
    /// @param reportPath  the report
    /// @param schemaPath  empty for none, which gives a page without labels and marks; so does a schema that is not
    ///                    understood or lays out another root, and then the page says so, as does GetError()
    /// @return whether there is a page; else GetError() says why there is none, and the page is empty
    bool Read(const QString& reportPath, const QString& schemaPath);

    /// Reads a report that is in no file, such as one that waits for its comment, and its schema; else as Read().
    /// @param content     the bytes of the report
    /// @param schemaPath  as of Read()
    /// @return whether there is a page
    bool ReadContent(const QByteArray& content, const QString& schemaPath);

    /// @return what was wrong with the last Read() or ReadContent(), in a sentence; empty when nothing was
    QString GetError() const;

    /// Sets the title of the page.
    /// @param title  empty for one from the report
    void SetTitle(const QString& title);

    /// Sets what speaks against the report; it is shown at the top.
    /// @param sentences  of a validator, or anything else; none when nothing does
    void SetFaults(const QStringList& sentences);

    /// Sets the application's own picture, shown above the values.
    /// @param picture  a null image for none
    /// @param caption  stands below; may be empty
    void SetPicture(const QImage& picture, const QString& caption);

    /// @return the page as one file: with its style sheet, light or dark as the reader has it, and fit to be printed
    QString ToHtml() const;

    /// @return the same content for QTextDocument and QTextBrowser
    QString ToRichText() const;

    /// Writes ToHtml() in UTF-8, which replaces an earlier file as a whole or not at all.
    /// @param fileName  where to
    /// @param reason    becomes why it could not be written; may be null
    /// @return whether it was written
    bool SaveHtml(const QString& fileName, QString* reason = nullptr) const;

    /// Writes the page as PDF, on A4 with page numbers; else as SaveHtml(). A QGuiApplication is needed for its fonts.
    /// @param fileName  where to
    /// @param reason    becomes why it could not be written; may be null
    /// @return whether it was written
    bool SavePdf(const QString& fileName, QString* reason = nullptr) const;

    /// Judges a report by what its page would mark. To be set as the validator of ReportSupervisor or ReportFiller
    /// where there is none that knows all of XML Schema.
    /// @param schemaPath  the schema
    /// @param reportPath  the report
    /// @return how much is missing or that this could not be told, how much is left over, or why there is no page with
    ///         marks, in sentences without their stops; nothing when nothing would be marked
    static QStringList LacksOf(const QString& schemaPath, const QString& reportPath);

private:
    Q_DISABLE_COPY(ReportPage)

    std::unique_ptr<ReportPageData> m_pData;
};

#endif
