#ifndef SCHEMADOCTOR_SCHEMARECORD_H
#define SCHEMADOCTOR_SCHEMARECORD_H

#include <map>
#include <memory>
#include <set>
#include <vector>

#include <QDomElement>
#include <QString>

#include <xmlhelper/schemamodel.h>
#include <xmlhelper/schemareadinglog_p.h>

#include "model/examination.h"
#include "schematext.h"

class XmlSchemaHandler;

namespace schemadoctor {

/// A schema as the library itself reads it, and what it tells of that on the way: the truth about what it understands.
///
/// The library reads with limits that are smaller than its own, so that every answer comes soon. What it tells of its
/// tags is given as tags of the text, which know lines and namespaces; where the two do not count alike, behind an
/// entity with tags in it, there is none.
class SchemaRecord : private SchemaReadingLog
{
public:
    enum class End {
        Reached, ///< a tree was laid out, or there is nothing to lay out
        TypeIsMissing,
        TypesWaitForEachOther,
        NameRefused,
        LimitExceeded,
        TooMuchForTheDoctor, ///< the library would go on
    };

    /// A declaration that took the place of an earlier one of its name.
    struct Replacement
    {
        const TextNode* earlier;
        const TextNode* later;
    };

    /// A name that XML does not allow.
    struct RefusedName
    {
        QString name;
        const TextNode* tag;
        bool isLeftOut; ///< the declaration is left out; else the schema is given up
    };

    struct AttributeOrigin
    {
        QString name;
        AttributeKind kind;
        const TextNode* tag; ///< null: unknown
    };

    /// Where an element of the skeleton comes from; null pointers where it is unknown.
    struct ElementOrigin
    {
        const TextNode* declaration = nullptr;
        const TextNode* reference = nullptr; ///< the tag that refers to the declaration, when it stands elsewhere
        std::vector<AttributeOrigin> attributes;
    };

    /// Lets the library read the file, as the report builder does.
    SchemaRecord(SchemaText& text, const QString& file);
    ~SchemaRecord() override;

    End GetEnd() const { return m_end; }
    const QString& GetLimit() const { return m_limit; } ///< which limit was exceeded, in a sentence

    const IncludedFile& GetIncludes() const { return m_includes; }
    /// The files in the order in which the library reads them, each once.
    const std::vector<const TextFile*>& GetReadFiles() const { return m_readFiles; }
    bool IsEverythingRead() const { return m_isEverythingRead; } ///< of the files that are included

    const std::vector<Replacement>& GetReplacements() const { return m_replacements; }
    const std::vector<RefusedName>& GetRefusedNames() const { return m_refusedNames; }
    /// The names that are defined nowhere, with the tags that refer to them. None when the reading ended early.
    const std::map<QString, std::vector<const TextNode*>>& GetMissing() const { return m_missing; }
    /// Tags whose type was not known yet when they were read.
    bool IsDeferred(const TextNode* tag) const { return m_deferred.count(tag) > 0; }

    const QVector<RootCandidate>& GetRootCandidates() const { return m_rootCandidates; }
    /// Global declarations that the end of an included file has made unfit for the root, with the include.
    const std::map<const TextNode*, const TextNode*>& GetHiddenRoots() const { return m_hiddenRoots; }

    /// Of a tag; of an unknown one the top file as a whole.
    Place PlaceOf(const TextNode* tag) const;

    QDomElement GetRoot() const; ///< of the skeleton; null when nothing is laid out
    /// Of the elements from the root on, in document order.
    const std::vector<ElementOrigin>& GetOrigins() const { return m_origins; }
    const OccursMap& GetOccurs() const { return m_occurs; }
    const ChoiceMap& GetChoices() const { return m_choices; }

private:
    Q_DISABLE_COPY(SchemaRecord)

    /// A file as often as it is begun.
    struct BegunFile
    {
        const TextFile* text;
        const TextNode* include;
        std::size_t tags; ///< that the library and the text have counted alike
    };

    void FileBegun(int file, const QString& written, const QString& opened, const SchemaTag& include,
                   bool isAgain) override;
    void FileSkipped(const QString& written, const QString& opened, const SchemaTag& include, bool isCyclic) override;
    void FileMissing(int file) override;
    void FileMalformed(int file, const QString& fault, int line) override;
    void FileEnded(int file) override;
    void TagBegun(const SchemaTag& tag, const QString& name, int line) override;
    void ReferenceDeferred(const SchemaTag& tag, const QString& name) override;
    void Defined(const QString& name, const SchemaTag& tag) override;
    void GlobalLeftOut(const QString& name, const SchemaTag& tag) override;
    void NameRefused(const QString& name, const SchemaTag& tag) override;
    void Refused(const QString& sentence, qint64 asked, qint64 inForce, qint64 greatest) override;
    void ContentRefused(const QString& sentence) override;
    void ReferenceNeverCame(const QString& name, const SchemaTag& reference, const QString& waiting,
                            bool isDefined) override;
    void UnusedGlobal(int file, const QString& name) override;
    void ElementLaidOut(const QDomElement& element, const SchemaTag& declaration, const SchemaTag& reference) override;
    void AttributeLaidOut(const QDomElement& element, const QString& name, AttributeKind kind,
                          const SchemaTag& tag) override;

    IncludedFile& addInclude(const QString& written, const QString& opened, const SchemaTag& include);
    const TextNode* tagOf(const SchemaTag& tag) const;
    void end(End end, const QString& sentence);

    SchemaText& m_text;
    std::unique_ptr<XmlSchemaHandler> m_handler;
    std::vector<BegunFile> m_begunFiles;
    std::vector<IncludedFile*> m_openFiles;
    IncludedFile m_includes;
    std::vector<const TextFile*> m_readFiles;
    bool m_isEverythingRead = true;
    std::map<QString, const TextNode*> m_definitions;
    std::vector<Replacement> m_replacements;
    std::vector<RefusedName> m_refusedNames;
    std::map<QString, std::vector<const TextNode*>> m_missing;
    std::set<const TextNode*> m_deferred;
    QVector<RootCandidate> m_rootCandidates;
    std::map<const TextNode*, const TextNode*> m_hiddenRoots;
    std::vector<ElementOrigin> m_origins;
    End m_end = End::Reached;
    QString m_limit;
    UnresolvedTypeMap m_unresolvedTypes;
    OccursMap m_occurs;
    TypeDefinitionMap m_handlerDefinitions;
    ChoiceMap m_choices;
};

} // namespace schemadoctor

#endif
