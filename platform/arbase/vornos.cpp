#include <arbase/vornos.h>
#include <QDateTime>

namespace {

qint64 (*timeSource)() = nullptr;

}

VornOS* VornOS::Create()
{
    static VornOS instance;
    return &instance;
}

qint64 VornOS::GetCurrentTime() const
{
    return timeSource ? timeSource() : QDateTime::currentMSecsSinceEpoch();
}

void VornOS::SetTimeSource(qint64 (*source)())
{
    timeSource = source;
}
