#include "reportpage.h"

#include <algorithm>
#include <limits>

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QTextDocument>
#include <QtGui/qtguiglobal.h>

#if QT_CONFIG(pdf)
#include <QPdfWriter>
#endif

#include <xmlhelper/filesaving_p.h>

#include "pagewriter_p.h"
#include "reporttree_p.h"
#include "schemaoutline_p.h"

namespace {

/// What a picture is shown in at most, in rich text and on paper, in pixels.
constexpr int MaxPictureWidth = 600;

/// Printing a table takes Qt the square of its rows.
constexpr int RowsOfRichTable = 50;

/// Colours follow the reader's choice, but never on paper.
const char pageStyle[] = R"(
:root { color-scheme: light dark; --paper: #fdfdfb; --ink: #1c2126; --faint: #586069; --rule: #d5d9dd;
    --raised: #f1f3f4; --missing: #a61b1b; --leftover: #7a4a00; }
@media (prefers-color-scheme: dark) { :root { --paper: #15181b; --ink: #e6e8ea; --faint: #a3abb2; --rule: #363c42;
    --raised: #20252a; --missing: #ff9a92; --leftover: #f0bd6b; } }
body { max-width: 60rem; margin: 0 auto; padding: 1.2rem; background: var(--paper); color: var(--ink);
    font: 15px/1.45 system-ui, sans-serif; overflow-wrap: break-word; }
h1 { font-size: 1.5rem; margin: 0; }
h2, h3, h4, h5, h6 { margin: 1.2rem 0 .4rem; font-size: 1.1rem; break-after: avoid; }
h3, h4, h5, h6 { font-size: 1rem; }
p { margin: .3rem 0; }
.section .section { padding-left: .9rem; border-left: 2px solid var(--rule); }
.source, .explanation, .attributes, .caption { color: var(--faint); font-weight: 400; font-size: .9em; }
.faults { border-left: 4px solid var(--missing); background: var(--raised); padding: .5rem .9rem; margin: .8rem 0; }
.faults ul { margin: .2rem 0; padding-left: 1.2rem; }
.picture { margin: .8rem 0; }
.picture img { max-width: 100%; height: auto; }
table { border-collapse: collapse; margin: .4rem 0; font-variant-numeric: tabular-nums; }
th, td { text-align: left; vertical-align: top; padding: .25rem .7rem .25rem 0; border-bottom: 1px solid var(--rule); }
.values { width: 100%; }
.values th { font-weight: 400; color: var(--faint); width: 40%; }
.rows thead { background: var(--raised); }
.rows th, .rows td { padding: .25rem .6rem; }
.rows { display: block; overflow-x: auto; }
.missing { color: var(--missing); font-weight: 600; }
.leftover { color: var(--leftover); border-bottom: 1px dotted; }
@media print { :root { color-scheme: light; --paper: #fff; --ink: #000; --faint: #444; --rule: #bbb; --raised: #f3f3f3; --missing: #a61b1b;
    --leftover: #7a4a00; } body { max-width: none; padding: 0; font-size: 10pt; } .rows { display: table; }
    tr, .picture, .faults { break-inside: avoid; } thead { display: table-header-group; } }
)";

/// As much of it as Qt's documents know. They are shown on light and dark grounds, so only marks have a colour, which
/// can be read on both.
const char richStyle[] = R"(
h1 { font-size: x-large; } h2 { font-size: large; } h3, h4, h5, h6 { font-size: medium; }
th { text-align: left; font-weight: normal; }
.missing { color: #d03a32; font-weight: bold; }
.leftover { color: #b06c00; text-decoration: underline; }
.source, .explanation, .attributes, .caption { font-style: italic; }
)";

QString beginning(const QString& language, const QString& title, const char* style)
{
    return QStringLiteral("<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"%1\">\n<head>\n"
                          "<meta charset=\"utf-8\"/>\n"
                          "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src &#39;none&#39;; "
                          "style-src &#39;unsafe-inline&#39;; img-src data:\"/>\n"
                          "<meta name=\"viewport\" content=\"width=device-width\"/>\n<title>")
               .arg(language)
        + escapedForPage(title).remove(QStringLiteral("<br/>")) + QLatin1String("</title>\n<style>")
        + QLatin1String(style) + QLatin1String("</style>\n</head>\n<body>\n");
}

QString paragraph(const char* cssClass, const QString& text)
{
    return text.isEmpty() ? QString()
                          : QStringLiteral("<p class=\"%1\">").arg(QLatin1String(cssClass)) + escapedForPage(text)
            + QLatin1String("</p>\n");
}

bool tell(bool isSaved, const SavedFile& saved, QString* reason)
{
    if (!isSaved && reason) {
        *reason = saved.reason;
    }
    return isSaved;
}

WriteContent writerOf(const QByteArray& bytes)
{
    return [&bytes](QIODevice& device) { return device.write(bytes) == bytes.size(); };
}

} // namespace

struct ReportPageData
{
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    bool Read(const QString& reportPath, const QString& schemaPath);
    bool ReadContent(const QByteArray& content, const QString& schemaPath);
    QString Page(bool isRich) const;
    QStringList Lacks() const;

    QString title;
    QStringList faults;
    QImage picture;
    QString caption;
    QString fileName; ///< without its folder; empty without a file
    QString error;
    std::unique_ptr<ReportTree> tree; ///< null: there is no page
    std::unique_ptr<SchemaOutline> outline; ///< null: no labels and marks

private:
    bool finish(bool isRead, const QString& schemaPath);
    void readSchema(const QString& schemaPath);
    QString faultList() const;
    QString pictureMarkup(bool isRich) const;
    static QStringList marksOf(const PageWriter& writer);
};

bool ReportPageData::Read(const QString& reportPath, const QString& schemaPath)
{
    fileName = QFileInfo(openableFileName(reportPath)).fileName();
    tree = std::make_unique<ReportTree>();
    return finish(tree->Read(reportPath), schemaPath);
}

bool ReportPageData::ReadContent(const QByteArray& content, const QString& schemaPath)
{
    fileName.clear();
    tree = std::make_unique<ReportTree>();
    return finish(tree->ReadContent(content), schemaPath);
}

bool ReportPageData::finish(bool isRead, const QString& schemaPath)
{
    error.clear();
    outline.reset();
    if (!isRead) {
        error = tree->GetReason();
        tree.reset();
        return false;
    }
    if (!schemaPath.isEmpty()) {
        readSchema(schemaPath);
    }
    return true;
}

void ReportPageData::readSchema(const QString& schemaPath)
{
    outline = std::make_unique<SchemaOutline>();
    if (!outline->Read(schemaPath)) {
        error = tr("The schema is not understood: %1").arg(outline->GetReason());
    } else if (outline->GetRoot().name != tree->GetRoot().name) {
        error = tr("The schema is one of '%1', and the report is none.").arg(outline->GetRoot().name);
    }
    if (!error.isEmpty()) {
        outline.reset();
    }
}

QString ReportPageData::Page(bool isRich) const
{
    if (!tree) {
        return QString();
    }
    const QString language = tr("en", "the language of these texts, by its code");
    PageWriter writer(outline.get(), language, isRich ? RowsOfRichTable : std::numeric_limits<int>::max());
    writer.WriteReport(tree->GetRoot());
    const QString heading
        = !title.isEmpty() ? title : writer.LabelOf(outline ? &outline->GetRoot() : nullptr, tree->GetRoot().name);
    QString page = beginning(language, heading, isRich ? richStyle : pageStyle);
    page += QLatin1String("<h1>") + escapedForPage(heading) + QLatin1String("</h1>\n") + paragraph("source", fileName);
    page += faultList() + paragraph("marks", marksOf(writer).join(QLatin1Char(' '))) + pictureMarkup(isRich);
    QString values = writer.GetMarkup();
    if (isRich) { // Borders are no matter of its style sheets.
        values.replace(QLatin1String("<table class=\"values\">"),
                       QLatin1String("<table width=\"100%\" cellpadding=\"2\">"));
        values.replace(QLatin1String("<table class=\"rows\">"),
                       QLatin1String("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">"));
        values.replace(QLatin1String("<tr><th>"), QLatin1String("<tr><th width=\"35%\">"));
    }
    return page + values + QLatin1String("</body>\n</html>\n");
}

QString ReportPageData::faultList() const
{
    const QStringList sentences = error.isEmpty() ? faults : QStringList(error) + faults;
    if (sentences.isEmpty()) {
        return QString();
    }
    QString list = QLatin1String("<div class=\"faults\">\n<p>") + escapedForPage(tr("What speaks against this report:"))
        + QLatin1String("</p>\n<ul>\n");
    for (const QString& sentence : sentences) {
        list += QLatin1String("<li>") + escapedForPage(sentence) + QLatin1String("</li>\n");
    }
    return list + QLatin1String("</ul>\n</div>\n");
}

QString ReportPageData::pictureMarkup(bool isRich) const
{
    if (picture.isNull()) {
        return QString();
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.save(&png, "PNG");
    const QString width
        = isRich ? QStringLiteral(" width=\"%1\"").arg(std::min(picture.width(), MaxPictureWidth)) : QString();
    return QLatin1String("<div class=\"picture\"><img src=\"data:image/png;base64,")
        + QString::fromLatin1(png.data().toBase64()) + QLatin1String("\" alt=\"")
        + escapedForPage(caption).remove(QStringLiteral("<br/>")) + QLatin1Char('"') + width + QLatin1String("/>\n")
        + paragraph("caption", caption) + QLatin1String("</div>\n");
}

QStringList ReportPageData::marksOf(const PageWriter& writer)
{
    QStringList sentences;
    if (writer.GetMissing() > 0) {
        const QString count = tr("Missing: %1.").arg(writer.GetMissing());
        sentences.append(writer.IsEverythingMarked() ? count : tr("Missing: more than %1.").arg(writer.GetMissing()));
    } else if (!writer.IsEverythingMarked()) {
        sentences.append(tr("Whether anything is missing could not be told for all of the report."));
    }
    if (writer.GetLeftOver() > 0) {
        sentences.append(tr("Left over: %1.").arg(writer.GetLeftOver()));
    }
    return sentences;
}

QStringList ReportPageData::Lacks() const
{
    QStringList sentences = error.isEmpty() ? QStringList() : QStringList(error);
    if (outline) {
        PageWriter writer(outline.get(), QString(), std::numeric_limits<int>::max());
        writer.WriteReport(tree->GetRoot());
        sentences = marksOf(writer);
    }
    for (QString& sentence : sentences) {
        sentence.chop(sentence.endsWith(QLatin1Char('.')) ? 1 : 0);
    }
    return sentences;
}

ReportPage::ReportPage()
    : m_pData(std::make_unique<ReportPageData>())
{
}

ReportPage::~ReportPage() = default;
ReportPage::ReportPage(ReportPage&& other) noexcept = default;
ReportPage& ReportPage::operator=(ReportPage&& other) noexcept = default;

bool ReportPage::Read(const QString& reportPath, const QString& schemaPath)
{
    return m_pData->Read(reportPath, schemaPath);
}

bool ReportPage::ReadContent(const QByteArray& content, const QString& schemaPath)
{
    return m_pData->ReadContent(content, schemaPath);
}

QString ReportPage::GetError() const
{
    return m_pData->error;
}

void ReportPage::SetTitle(const QString& title)
{
    m_pData->title = title;
}

void ReportPage::SetFaults(const QStringList& sentences)
{
    m_pData->faults = sentences;
}

void ReportPage::SetPicture(const QImage& picture, const QString& caption)
{
    m_pData->picture = picture;
    m_pData->caption = caption;
}

QString ReportPage::ToHtml() const
{
    return m_pData->Page(false);
}

QString ReportPage::ToRichText() const
{
    return m_pData->Page(true);
}

QStringList ReportPage::LacksOf(const QString& schemaPath, const QString& reportPath)
{
    ReportPageData page;
    page.Read(reportPath, schemaPath);
    return page.Lacks();
}

bool ReportPage::SaveHtml(const QString& fileName, QString* reason) const
{
    SavedFile saved;
    saved.reason = ReportPageData::tr("There is no page.");
    const QByteArray page = ToHtml().toUtf8();
    return tell(!page.isEmpty() && saveFile(fileName, writerOf(page), &saved), saved, reason);
}

bool ReportPage::SavePdf(const QString& fileName, QString* reason) const
{
    SavedFile saved;
#if QT_CONFIG(pdf)
    if (!m_pData->tree || !qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        saved.reason = m_pData->tree ? ReportPageData::tr("The application has no fonts to write with.")
                                     : ReportPageData::tr("There is no page.");
        return tell(false, saved, reason);
    }
    QBuffer pdf;
    QPdfWriter writer(&pdf);
    pdf.open(QIODevice::WriteOnly);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(m_pData->fileName);
    QTextDocument document; // Without a page size, which lets it number the pages.
    document.setHtml(ToRichText());
    document.print(&writer);
    return tell(saveFile(fileName, writerOf(pdf.data()), &saved), saved, reason);
#else
    saved.reason = ReportPageData::tr("PDF cannot be written here.");
    return tell(false, saved, reason);
#endif
}
