#include "fakeclock.h"

#include <arbase/vornos.h>

namespace {

qint64 shownTime = 0;

qint64 showTime()
{
    return shownTime;
}

} // namespace

FakeClock::FakeClock(const QDateTime& localTime)
{
    Set(localTime);
    VornOS::SetTimeSource(showTime);
}

FakeClock::~FakeClock()
{
    VornOS::SetTimeSource(nullptr);
}

void FakeClock::Set(const QDateTime& localTime)
{
    shownTime = localTime.toMSecsSinceEpoch();
}

void FakeClock::Advance(qint64 milliseconds)
{
    shownTime += milliseconds;
}
