#ifndef HOSTARBASE_ARBASE_ERRORHANDLER_H
#define HOSTARBASE_ARBASE_ERRORHANDLER_H

#include <arbase/hostarbaseexport.h>

class HOSTARBASE_EXPORT ErrorHandler
{
public:
    static ErrorHandler& Instance();

    /// Every class of traces is on in the host.
    quint32 GetTraceMask() const;
};

#endif
