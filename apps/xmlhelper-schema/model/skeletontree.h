#ifndef SCHEMADOCTOR_SKELETONTREE_H
#define SCHEMADOCTOR_SKELETONTREE_H

#include <vector>

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <xmlhelper/valuerules_p.h>

#include "finding.h"

namespace schemadoctor {

/// An annotation of a restriction.
struct Facet
{
    QString name; ///< without prefix, without the name of an attribute behind it
    QString value;
    bool isChecked = false; ///< false: the library only keeps it, as an attribute of the report
};

/// What the report builder accepts as count of an element, SetElementMaxOccurs().
struct AcceptedCounts
{
    static constexpr int Unbounded = -1;

    bool isKnown = true; ///< false: it was not tried
    bool takesZero = false;
    int greatest = 0; ///< the greatest count above 0 that is accepted; 0: none is; Unbounded: any
};

/// An attribute that the schema declares for an element of the report.
struct DeclaredAttribute
{
    QString name;
    QString type; ///< as the library holds it, prefix included; may be empty
    QVector<Facet> facets; ///< those that the library finds for it by name
    QStringList enumeration; ///< likewise
    Setters setters; ///< none: it can be removed, but never be filled
    bool isRequired = false; ///< also where only the reference could say that it is not
    Place place;
};

/// What becomes of an element that nobody fills.
enum class Fate {
    Stays, ///< it is mandatory: it stays, with its annotations
    IsRemoved, ///< a value element that may be missing
    IsRemovedWithItsValues, ///< a container that may be missing: when its first value is unfilled, it goes whole
    IsRemovedWithItsContainer, ///< it stands before or with the first value of such a container
    IsRemovedWithAnother, ///< a container that may be missing and holds no value: an unfilled one behind it removes it
    IsUnknown, ///< it was not tried
};

/// An element of the skeleton, as the walk announces it.
struct SkeletonElement
{
    static constexpr int None = -1;

    int parent = None; ///< an index of SkeletonTree::elements
    int row = 0; ///< which child of its parent it is
    std::vector<int> children; ///< indices of SkeletonTree::elements, in document order

    QString name;
    QString type; ///< without prefix; empty for a container
    QString defaultValue;
    QVector<Facet> facets;
    QStringList enumeration;
    QVector<DeclaredAttribute> attributes; ///< sorted by name

    int minOccurs = 1; ///< as the library reads the declaration
    int maxOccurs = 1; ///< likewise; AcceptedCounts::Unbounded for any; 1 when it is not given
    AcceptedCounts counts;
    bool isChoiceAlternative = false; ///< by name, anywhere in the schema: as the library decides it
    int choiceGroup = None; ///< the number of the xs:choice around its declaration, in reading order, from 1
    int choiceBranch = None; ///< the position below that xs:choice, from 1, of what it stands in
    int choiceNumber = None; ///< the number by which the library lets it be discarded
    Fate fate = Fate::Stays;
    bool staysInCopies = false; ///< the fate is that of the first copy of the container around it
    bool isUntriedInCopies = false; ///< it stands in a container that is repeated, and too much for two of it
    bool isSingleInCopies = false; ///< so are the counts; in other copies none is accepted
    bool isNeverKept = false; ///< it goes even when everything is filled that a setter takes
    int goesInstead = None; ///< an element before it that is removed in its place
    Setters setters; ///< none for a container, and for a value that can never be filled

    Place place; ///< of the declaration
    Place particle; ///< of the tag that says how often it occurs: the declaration, or the reference to a global one
};

/// The skeleton document. Elements stand in document order, so what is below an element follows it.
struct SkeletonTree
{
    std::vector<SkeletonElement> elements; ///< [0] is the root; empty when nothing is laid out
    int rootCount = 0; ///< more than 1: further elements stand behind the root, which are none of these

    bool IsEmpty() const { return elements.empty(); }
};

/// The path of an element: names with a number where siblings share one, such as "/Report/Signal/Sample[2]".
QString pathOf(const SkeletonTree& tree, int element);

/// The element with that path; SkeletonElement::None when there is none.
int findByPath(const SkeletonTree& tree, const QString& path);

/// Leads from names to elements, of equal names to the first.
class NameIndex
{
public:
    static constexpr int AboveRoot = SkeletonElement::None;

    explicit NameIndex(const SkeletonTree& tree);

    /// The child of that name; SkeletonElement::None when there is none.
    int ChildOf(int parent, const QString& name) const
    {
        return m_children.value({parent, name}, SkeletonElement::None);
    }

private:
    QHash<QPair<int, QString>, int> m_children; ///< by parent, of the root AboveRoot, and name
};

bool isContainer(const SkeletonElement& element);
bool mayBeRepeated(const SkeletonElement& element); ///< a count above 1 is accepted

// Words for people, the same in every rendering.

QString
wordsForUnfilled(const SkeletonElement& element); ///< "stays", "is removed", "is removed in the first copy only"
QString wordsForCounts(const SkeletonElement& element); ///< "no count", "0 only", "1 to 5", "0 to 500", "any"
QStringList namesOf(Setters setters); ///< the argument types: "QString", "double", "int", "bool", "QDateTime", "QTime"

/// "0..5", "1", "2..unbounded": as written.
QString wordsForOccurs(const SkeletonElement& element);

} // namespace schemadoctor

#endif
