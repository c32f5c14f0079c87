#ifndef HOSTARBASE_ARBASE_VORNOS_H
#define HOSTARBASE_ARBASE_VORNOS_H

#include <arbase/hostarbaseexport.h>

class HOSTARBASE_EXPORT VornOS
{
public:
    static VornOS* Create();
    qint64 GetCurrentTime() const;
};

#endif
