#ifndef XMLHELPERREPORTS_SKELETONPLACES_P_H
#define XMLHELPERREPORTS_SKELETONPLACES_P_H

#include <functional>
#include <memory>
#include <vector>

#include <QDomElement>
#include <QHash>
#include <QMultiHash>
#include <QString>
#include <QStringList>

/// An element of the skeleton as a schema declares it: siblings of one name that follow each other are one place.
struct Place
{
    QString name;
    QString type; ///< empty for a container
    QString defaultValue;
    QStringList attributes; ///< declared ones, sorted
    QDomElement element; ///< of those laid out the one with most children: a repeated one may have left others empty
    const Place* parent = nullptr;
    std::vector<std::unique_ptr<Place>> children;
    int laidOut = 1; ///< how many of them are there
    int extent = 1; ///< elements of one of them, with all below
    bool isOptional = false; ///< as the library decides it
    bool isAlternative = false; ///< of a choice; the library counts what is in one too
    int greatest = 1; ///< how many of them the schema allows, and a document takes

    bool IsRequired() const { return !isOptional && !isAlternative; }
    bool MayRepeat() const { return greatest > 1; }
};

/// A way to places: names with indices from 1, where 0 stands for none.
struct ValuePath
{
    enum class Anchor {
        Root,
        BelowRoot, ///< but any place will do when there is none
        Anywhere,
    };
    struct Step
    {
        QString name;
        int index = 0;
    };

    Anchor anchor = Anchor::Anywhere;
    std::vector<Step> steps;
    QString attribute; ///< empty for the element itself
    bool isValid = true;
};
ValuePath parsedPath(const QString& name);

/// The places of a skeleton that nobody has changed yet. Changes afterwards do no harm.
class SkeletonPlaces
{
public:
    /// Whether the schema lets an element occur so often; 0 asks whether it may be missing.
    using IsCountAllowed = std::function<bool(const QDomElement& element, int count)>;

    SkeletonPlaces(const QDomElement& root, const QMultiHash<QString, int>& alternatives,
                   IsCountAllowed isCountAllowed);

    const Place& GetRoot() const { return *m_root; }

    /// The places that a path may mean.
    std::vector<const Place*> Find(const ValuePath& path) const;

private:
    std::unique_ptr<Place> build(const QDomElement& element, const Place* parent);
    void addChildren(Place& place);
    bool isWithin(const QString& name, const Place& parent) const;
    bool isAllowed(const Place& place, int count) const;
    int greatestCountOf(const Place& place) const;

    const QMultiHash<QString, int> m_alternatives;
    const IsCountAllowed m_isCountAllowed;
    QHash<QString, std::vector<const Place*>> m_placesOfNames;
    std::unique_ptr<Place> m_root;
};

#endif
