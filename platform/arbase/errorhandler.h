#ifndef ARBASE_ERRORHANDLER_H
#define ARBASE_ERRORHANDLER_H

#include <arbase/arbaseexport.h>

/// Holds the process's trace mask: one bit for each class of traces, all off at start.
///
/// The mask filters nothing by itself. Whoever is about to trace asks for the bit of its class first and spares itself
/// the message when the bit is off.
class ARBASE_EXPORT ErrorHandler
{
public:
    /// The process's one instance. It can be asked at any time, also while the process ends.
    static ErrorHandler& Instance();

    quint32 GetTraceMask() const;
    void SetTraceMask(quint32 mask);

private:
    Q_DISABLE_COPY(ErrorHandler)

    ErrorHandler() = default;

    quint32 m_uTraceMask = 0;
};

#endif
