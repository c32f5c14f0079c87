#include "cputime.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <ctime>
#endif

double cpuSeconds()
{
#ifdef Q_OS_WIN
    constexpr double secondsOfATick = 1e-7;
    const auto secondsOf = [](const FILETIME& time) {
        return secondsOfATick * (4294967296.0 * time.dwHighDateTime + time.dwLowDateTime);
    };
    FILETIME begun {};
    FILETIME ended {};
    FILETIME inTheSystem {};
    FILETIME inTheProgram {};
    GetProcessTimes(GetCurrentProcess(), &begun, &ended, &inTheSystem, &inTheProgram);
    return secondsOf(inTheSystem) + secondsOf(inTheProgram);
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}
