#ifndef SCHEMADOCTOR_HTMLWRITER_H
#define SCHEMADOCTOR_HTMLWRITER_H

#include <initializer_list>
#include <utility>

#include <QLatin1String>
#include <QString>

namespace schemadoctor {

/// Text as it stands in a page: markup characters escaped, characters that no page may hold replaced.
QString escaped(const QString& text);

/// Puts a page together from tags and texts. Only names of tags and attributes go in unescaped, and those are ours.
class HtmlWriter
{
public:
    struct Attribute
    {
        QLatin1String name;
        QString value;
    };

    void Start(QLatin1String tag, std::initializer_list<Attribute> attributes = {});
    void End(QLatin1String tag);
    void Text(const QString& text);

    /// A tag with nothing but text inside.
    void Element(QLatin1String tag, const QString& text, std::initializer_list<Attribute> attributes = {});

    /// A tag with a text of the page's own inside, such as its script.
    void OwnElement(QLatin1String tag, const QString& content);

    QString Page() const { return m_sPage; }

private:
    QString m_sPage;
};

} // namespace schemadoctor

#endif
