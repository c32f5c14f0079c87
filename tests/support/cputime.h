#ifndef XMLHELPER_TESTS_CPUTIME_H
#define XMLHELPER_TESTS_CPUTIME_H

#include <QtGlobal>

/// The processor time that this process has taken, in seconds. What else the machine does is not in it, on any
/// platform: std::clock() tells the time of day on Windows.
double cpuSeconds();

/// The steps in which it goes on: a time may be longer by one than it is told.
#ifdef Q_OS_WIN
constexpr double CpuTimeStep = 0.016;
#else
constexpr double CpuTimeStep = 1e-6;
#endif

#endif
