#ifndef CONFINEDCHILD_H
#define CONFINEDCHILD_H

#include <functional>

#include <QByteArray>

/// What a process may use that is let to do what may need too much.
struct ChildLimits
{
    int processorSeconds = 1;
    qint64 bytes = 256 * 1024 * 1024; ///< of data; 0: any number
};

struct ChildResult
{
    QByteArray bytes; ///< what was written before the end
    bool isWhole = false; ///< false: the process was ended for what it used, or could not be made
};

/// Lets a process of its own do what may need too long or too much. It shares what this one holds, as it is at the
/// call, and changes none of it; @p work gives its result to the function that it is handed, in one or in several
/// pieces.
ChildResult resultOfChild(const std::function<void(const std::function<void(const QByteArray&)>& write)>& work,
                          const ChildLimits& limits = ChildLimits());

#endif
