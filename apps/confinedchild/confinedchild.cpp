#include "confinedchild.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>

// A limit for the memory would end a program at once that is run with an address sanitizer. GCC and clang name it
// differently.
#if defined(__SANITIZE_ADDRESS__)
#define WITH_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITH_ADDRESS_SANITIZER
#endif
#endif

namespace {

/// Long enough for what it may use, on a machine that has other work.
constexpr int MillisecondsOfASecond = 30000;

void confine(int resource, rlim_t most)
{
    const rlimit limit {most, most};
    setrlimit(static_cast<__rlimit_resource_t>(resource), &limit);
}

void writeAll(int output, const QByteArray& bytes)
{
    const char* data = bytes.constData();
    for (ssize_t left = bytes.size(); left > 0;) {
        const ssize_t written = write(output, data, std::size_t(left));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            _exit(1);
        }
        data += written;
        left -= written;
    }
}

/// What the child writes until it ends. Gives whether it came to its end in time. Signals, such as that of a child's
/// end, interrupt the waiting.
bool readAll(int input, int milliseconds, QByteArray& result)
{
    QElapsedTimer timer;
    timer.start();
    char buffer[65536];
    for (;;) {
        pollfd waiting {input, POLLIN, 0};
        const int left = milliseconds - int(timer.elapsed());
        const int ready = left > 0 ? poll(&waiting, 1, left) : 0;
        const ssize_t count = ready > 0 ? read(input, buffer, sizeof buffer) : ready;
        if (count > 0) {
            result.append(buffer, int(count));
        } else if (count == 0) {
            return ready > 0;
        } else if (errno != EINTR) {
            return false;
        }
    }
}

/// Waits for the end of the child. Gives whether it has done all.
bool isDone(pid_t child)
{
    int status = 0;
    pid_t ended = -1;
    do {
        ended = waitpid(child, &status, 0);
    } while (ended < 0 && errno == EINTR);
    return ended == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

ChildResult resultOfChild(const std::function<void(const std::function<void(const QByteArray&)>& write)>& work,
                          const ChildLimits& limits)
{
    ChildResult result;
    int ends[2];
    if (pipe(ends) != 0) {
        return result;
    }
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
#ifndef WITH_ADDRESS_SANITIZER
        if (limits.bytes > 0) {
            confine(RLIMIT_DATA, rlim_t(limits.bytes));
        }
#endif
        confine(RLIMIT_CPU, rlim_t(limits.processorSeconds));
        confine(RLIMIT_CORE, 0);
        work([&ends](const QByteArray& bytes) { writeAll(ends[1], bytes); });
        _exit(0); // without the destructors and exit handlers of the program that goes on
    }
    close(ends[1]);
    if (child > 0) {
        const bool isInTime = readAll(ends[0], limits.processorSeconds * MillisecondsOfASecond, result.bytes);
        if (!isInTime) {
            kill(child, SIGKILL);
        }
        result.isWhole = isDone(child) && isInTime;
    }
    close(ends[0]);
    return result;
}
