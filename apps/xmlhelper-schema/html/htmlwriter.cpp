#include "htmlwriter.h"

#include <algorithm>

namespace schemadoctor {

namespace {

bool isForbidden(QChar character)
{
    return character.unicode() < 0x20 && character != QLatin1Char('\n') && character != QLatin1Char('\t');
}

} // namespace

QString escaped(const QString& text)
{
    QString safe = text.toHtmlEscaped();
    safe.replace(QLatin1Char('\''), QLatin1String("&#39;"));
    std::replace_if(safe.begin(), safe.end(), isForbidden, QChar(QChar::ReplacementCharacter));
    return safe;
}

void HtmlWriter::Start(QLatin1String tag, std::initializer_list<Attribute> attributes)
{
    m_sPage += QLatin1Char('<') + tag;
    for (const Attribute& attribute : attributes) {
        m_sPage += QLatin1Char(' ') + attribute.name;
        if (!attribute.value.isNull()) {
            m_sPage += QLatin1String("=\"") + escaped(attribute.value) + QLatin1Char('"');
        }
    }
    m_sPage += QLatin1Char('>');
}

void HtmlWriter::End(QLatin1String tag)
{
    m_sPage += QLatin1String("</") + tag + QLatin1String(">\n");
}

void HtmlWriter::Text(const QString& text)
{
    m_sPage += escaped(text);
}

void HtmlWriter::Element(QLatin1String tag, const QString& text, std::initializer_list<Attribute> attributes)
{
    Start(tag, attributes);
    Text(text);
    End(tag);
}

void HtmlWriter::OwnElement(QLatin1String tag, const QString& content)
{
    Start(tag);
    m_sPage += content;
    End(tag);
}

} // namespace schemadoctor
