#ifndef SCHEMADOCTOR_LAYOUTPLAN_H
#define SCHEMADOCTOR_LAYOUTPLAN_H

#include <list>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include <QString>
#include <QStringList>

#include "model/examination.h"
#include "schematext.h"

namespace schemadoctor {

/// What the library will lay out for a schema, worked out from the text before the library reads anything: how many
/// elements, each with the tag that declares it, and why it stops when it does.
///
/// It goes the library's steps with bare numbers in place of document nodes, so that it is cheap where the library is
/// not. What it says of structure is used to find lines; the tree that is shown is always the library's own, and tests
/// hold the two against each other.
class LayoutPlan
{
public:
    static constexpr int None = -1;

    /// An element, or the fragment that holds the elements of a definition.
    struct Node
    {
        int name = None; ///< None: a fragment
        int parent = None;
        int firstChild = None;
        int lastChild = None;
        int next = None;
        int annotations = 0; ///< attributes of the element
        const TextNode* declaration = nullptr;
    };

    struct Definition
    {
        int usedFlag = 0;
        int pendingCount = 0;
        int fragment = None;
        const TextNode* declaration = nullptr;
    };

    /// A reference whose definition was not there yet when it was read.
    struct Reference
    {
        int owner = None;
        int anchor = None;
        QString definitionName;
        bool isOfAttribute = false;
        const TextNode* place = nullptr;
        bool isServed = false;
    };

    /// A declaration that took the place of an earlier one of its name.
    struct Replacement
    {
        const TextNode* earlier;
        const TextNode* later;
    };

    enum class End {
        Reached, ///< a tree was laid out
        TypeIsMissing,
        TypesWaitForEachOther,
        LimitExceeded,
        TooMuchForTheDoctor, ///< the library would go on
    };

    /// Reads the top file and what it includes.
    LayoutPlan(SchemaText& text, const QString& file);
    ~LayoutPlan();

    End GetEnd() const;
    const QString& GetLimit() const; ///< which limit was exceeded, of the library or of the doctor, in a sentence
    ElementCount GetCount() const;
    int GetElementsOfAllDefinitions() const; ///< how much the library has to lay out on its way

    int GetRoot() const; ///< the root element; None when there is none
    const Node& GetNode(int index) const;
    QString GetName(int index) const;

    const IncludedFile& GetIncludes() const;
    const std::map<QString, Definition>& GetDefinitions() const;
    const std::vector<Replacement>& GetReplacements() const;
    const QVector<RootCandidate>& GetRootCandidates() const;

    /// The names that never came, with the tags that refer to them; those in a cycle when types wait for each other.
    const std::map<QString, std::vector<const TextNode*>>& GetMissing() const;

    /// Global declarations that an include behind them has made unfit for the root, with that include.
    const std::map<const TextNode*, const TextNode*>& GetHiddenRoots() const;

    /// Tags whose type was not known yet when they were read.
    bool IsDeferred(const TextNode* tag) const;

    /// The files in the order in which the library reads them, each once.
    const std::vector<const TextFile*>& GetReadFiles() const;

private:
    Q_DISABLE_COPY(LayoutPlan)
    class Reader;
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace schemadoctor

#endif
