#include "mendpage.h"

#include <iterator>

#include "htmlwriter.h"
#include "mend/mendwords.h"
#include "model/texts.h"
#include "pageparts.h"

namespace schemadoctor {

namespace {

/// Beside the style of all pages: two texts beside each other.
QString style()
{
    return resource(QStringLiteral("page.css"))
        + QStringLiteral("\n.both { display: grid; grid-template-columns: 1fr 1fr; gap: 1rem; padding: 1rem; }\n"
                         ".both > section { min-width: 0; }\n.rewrites { padding: 0 1rem; }\n");
}

/// Writes the page of one mending.
class MendPage
{
public:
    explicit MendPage(const Mending& mending)
        : m_mending(mending)
    {
    }

    QString Write();

private:
    void writeHead();
    void writeRewrites(const QString& heading, const QVector<Rewrite>& rewrites);
    void writeText(const QString& id, const QString& name, const QString& text);
    QString idOf(const QString& file) const;

    const Mending& m_mending;
    HtmlWriter m_writer;
};

QString MendPage::Write()
{
    writeHead();
    m_writer.Start(QLatin1String("body"));
    m_writer.Start(QLatin1String("main"));
    writeRewrites(Mend::tr("Written otherwise"), m_mending.rewrites);
    writeRewrites(Mend::tr("Left as it is, because it would change the format"), m_mending.left);
    m_writer.End(QLatin1String("main"));
    m_writer.Start(QLatin1String("div"), {{QLatin1String("class"), QStringLiteral("both")}});
    m_writer.Start(QLatin1String("section"));
    m_writer.Element(QLatin1String("h2"), Mend::tr("Original"));
    for (const auto& [file, text] : m_mending.texts) {
        writeText(idOf(file), file, text);
    }
    m_writer.End(QLatin1String("section"));
    m_writer.Start(QLatin1String("section"));
    m_writer.Element(QLatin1String("h2"), Mend::tr("Mended"));
    writeText(QStringLiteral("m"), Mend::tr("The mended schema"), QString::fromUtf8(m_mending.text));
    for (const char* const tag : {"section", "div", "body", "html"}) {
        m_writer.End(QLatin1String(tag));
    }
    return QStringLiteral("<!DOCTYPE html>\n") + m_writer.Page();
}

void MendPage::writeHead()
{
    const QString policy
        = QStringLiteral("default-src 'none'; base-uri 'none'; form-action 'none'; style-src %1").arg(hashOf(style()));
    m_writer.Start(QLatin1String("html"), {{QLatin1String("lang"), Texts::tr("en", "the language of the page")}});
    m_writer.Start(QLatin1String("head"));
    m_writer.Start(QLatin1String("meta"), {{QLatin1String("charset"), QStringLiteral("utf-8")}});
    m_writer.Start(
        QLatin1String("meta"),
        {{QLatin1String("http-equiv"), QStringLiteral("Content-Security-Policy")}, {QLatin1String("content"), policy}});
    m_writer.Element(QLatin1String("title"), Mend::tr("Mended schema"));
    m_writer.OwnElement(QLatin1String("style"), style());
    m_writer.End(QLatin1String("head"));
}

void MendPage::writeRewrites(const QString& heading, const QVector<Rewrite>& rewrites)
{
    if (rewrites.isEmpty()) {
        return;
    }
    m_writer.Start(QLatin1String("section"), {{QLatin1String("class"), QStringLiteral("rewrites")}});
    m_writer.Element(QLatin1String("h2"), heading);
    m_writer.Start(QLatin1String("ol"));
    for (const Rewrite& rewrite : rewrites) {
        const QString line = QString::number(rewrite.place.line);
        m_writer.Start(QLatin1String("li"));
        m_writer.Element(
            QLatin1String("a"), Mend::tr("Line %1").arg(line),
            {{QLatin1String("href"), QLatin1Char('#') + idOf(rewrite.place.file) + QLatin1Char('-') + line}});
        m_writer.Text(
            QStringLiteral(": %1 \u2192 %2 (%3)").arg(rewrite.before, rewrite.after, wordsFor(rewrite.effect)));
        m_writer.End(QLatin1String("li"));
    }
    m_writer.End(QLatin1String("ol"));
    m_writer.End(QLatin1String("section"));
}

void MendPage::writeText(const QString& id, const QString& name, const QString& text)
{
    m_writer.Start(QLatin1String("h3"));
    m_writer.Text(name);
    m_writer.End(QLatin1String("h3"));
    m_writer.Start(QLatin1String("div"), {{QLatin1String("class"), QStringLiteral("text")}});
    int line = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& words : lines) {
        m_writer.Element(QLatin1String("span"), words.endsWith(QLatin1Char('\r')) ? words.chopped(1) : words,
                         {{QLatin1String("id"), QStringLiteral("%1-%2").arg(id).arg(++line)}});
    }
    m_writer.End(QLatin1String("div"));
}

QString MendPage::idOf(const QString& file) const
{
    const auto found = m_mending.texts.find(file);
    return QStringLiteral("t%1").arg(std::distance(m_mending.texts.begin(), found));
}

} // namespace

QByteArray htmlOf(const Mending& mending)
{
    return MendPage(mending).Write().toUtf8();
}

} // namespace schemadoctor
