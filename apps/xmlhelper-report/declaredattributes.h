#ifndef REPORTCHECK_DECLAREDATTRIBUTES_H
#define REPORTCHECK_DECLAREDATTRIBUTES_H

#include <QHash>
#include <QSet>
#include <QString>

namespace reportcheck {

/// The attributes that a schema declares, by name, with the texts that they hold until somebody fills them.
///
/// Names are all that counts here: a report does not tell which declaration an attribute comes from. What one holds is
/// what the library itself lays out for it.
class DeclaredAttributes
{
public:
    /// Nothing is known: no schema can be read from here.
    DeclaredAttributes() = default;

    /// What the schema file and its includes declare, as the library reads them; nothing is known of a schema that it
    /// gives up.
    static DeclaredAttributes FromSchema(const QString& file);

    bool IsKnown() const { return m_bKnown; }
    bool Has(const QString& attribute) const { return m_placeholders.contains(attribute); }
    bool IsPlaceholder(const QString& attribute, const QString& value) const;

    void Add(const QString& attribute, const QString& placeholder);

private:
    bool m_bKnown = false;
    QHash<QString, QSet<QString>> m_placeholders;
};

} // namespace reportcheck

#endif
