#ifndef ARBASE_VORNOS_H
#define ARBASE_VORNOS_H

#include <arbase/arbaseexport.h>

/// Services of the operating system; of these, the clock.
class ARBASE_EXPORT VornOS
{
public:
    /// The process's one instance. Despite the name nothing is handed over: the caller never releases it.
    static VornOS* Create();

    /// Milliseconds since 1970-01-01T00:00 UTC, by the system clock or by the time source set instead.
    qint64 GetCurrentTime() const;

    /// Replaces the system clock, for tests and for applications that replay recorded time. The source is called at
    /// every question for the time; null gives the system clock back.
    static void SetTimeSource(qint64 (*source)());

private:
    Q_DISABLE_COPY(VornOS)

    VornOS() = default;
};

#endif
