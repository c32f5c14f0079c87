#ifndef XMLHELPERREPORTS_SCHEMAOUTLINE_P_H
#define XMLHELPERREPORTS_SCHEMAOUTLINE_P_H

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <QHash>
#include <QPair>
#include <QString>

#include <xmlhelper/xmlhelper.h>

#include "skeletonplaces_p.h"

/// What a schema says of the reports that are made from it, for who shows one: the places of its skeleton, as the
/// library lays them out, and the words of its author.
class SchemaOutline final : public IXMLHelper
{
public:
    SchemaOutline();
    ~SchemaOutline();

    /// Nobody hears of it, as nothing is made. Once.
    bool Read(const QString& schemaPath);
    const QString& GetReason() const { return m_sReason; } ///< why the schema is not understood, in a sentence

    const Place& GetRoot() const { return m_places->GetRoot(); }
    const Place* FindChild(const Place* place, const QString& name) const; ///< null when there is none, or no place

    /// The documentation in a language, or else the first one; empty when there is none.
    QString DocumentationOf(const Place& place, const QString& language) const;
    QString DocumentationOf(const Place& place, const QString& attribute, const QString& language) const;
    bool IsRequired(const Place& place, const QString& attribute) const;
    /// What the schema gives an attribute that is not there; null for nothing.
    QString ValueOfSchema(const Place& place, const QString& attribute) const;
    /// The value that an attribute holds until it is set; null for none.
    static QString PlaceholderOf(const Place& place, const QString& attribute);

    void XmlUpdate(XmlEvent* event) override;

private:
    Q_DISABLE_COPY(SchemaOutline)

    class Log;
    struct Declaration;
    using Texts = std::vector<std::pair<QString, QString>>; ///< by their languages

    void enter(const Place& place);
    static QString textIn(const Declaration* declaration, const QString& language);
    const Declaration* declarationOf(const Place& place, const QString& attribute) const;

    XmlCreateReport m_builder;
    std::unique_ptr<Log> m_log;
    std::unique_ptr<SkeletonPlaces> m_places;
    QHash<QPair<const Place*, QString>, const Place*> m_children;
    QHash<const Place*, int> m_laidOut; ///< the number of its element in the log
    QString m_sReason;
};

#endif
