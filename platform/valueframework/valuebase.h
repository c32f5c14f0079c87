#ifndef VALUEFRAMEWORK_VALUEBASE_H
#define VALUEFRAMEWORK_VALUEBASE_H

#include <QString>
#include <valueframework/valueframeworkexport.h>

class ValueItem;

/// A live value of the application: a name, a text to show and, given to a ValueItem, a place in the value tree.
///
/// The item owns the value; a value without an item belongs to its creator.
class VALUEFRAMEWORK_EXPORT ValueBase
{
public:
    explicit ValueBase(const QString& name);
    virtual ~ValueBase();

    QString GetName() const;

    /// The path by which Tree::GetValue finds the value: the names below the root, joined by "/". In a free node the
    /// names count from below its top; a value without a node has its name alone for a path.
    QString GetPathName() const;

    virtual QString GetText() const = 0;

private:
    Q_DISABLE_COPY(ValueBase)
    friend class ValueItem; // gives the value its place

    void MoveTo(ValueItem* item);
    void LeaveItem();

    QString m_sName;
    ValueItem* m_pItem = nullptr; // the owner, or null
};

#endif
