#include "confinedchild.h"

#include <csignal>
#include <cstdio>

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>

namespace schemadoctor {

namespace {

constexpr rlim_t MaxProcessorSeconds = 1;

/// Long enough for the second that it may use, on a machine that has other work.
constexpr int MaxMilliseconds = 30000;
constexpr rlim_t MaxMemory = rlim_t(256) * 1024 * 1024;
/// The child's part. It ends without the parent's destructors and exit handlers.
[[noreturn]] void workInChild(const std::function<QByteArray()>& work, int output)
{
    // A limit for the address space would end a program that is run with an address sanitizer at once.
#if !defined(__SANITIZE_ADDRESS__)
    const rlimit memory {MaxMemory, MaxMemory};
    setrlimit(RLIMIT_DATA, &memory);
#endif
    const rlimit seconds {MaxProcessorSeconds, MaxProcessorSeconds};
    setrlimit(RLIMIT_CPU, &seconds);
    const rlimit noCore {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const QByteArray result = work();
    const char* data = result.constData();
    for (ssize_t left = result.size(); left > 0;) {
        const ssize_t written = write(output, data, std::size_t(left));
        if (written <= 0) {
            break;
        }
        data += written;
        left -= written;
    }
    _exit(0);
}

/// What the child writes until it ends; nothing when it takes too long.
QByteArray readAll(int input)
{
    QElapsedTimer timer;
    timer.start();
    QByteArray result;
    char buffer[65536];
    for (;;) {
        pollfd waiting {input, POLLIN, 0};
        const int left = MaxMilliseconds - int(timer.elapsed());
        if (left <= 0 || poll(&waiting, 1, left) <= 0) {
            return QByteArray();
        }
        const ssize_t count = read(input, buffer, sizeof buffer);
        if (count <= 0) {
            return result;
        }
        result.append(buffer, int(count));
    }
}

} // namespace

QByteArray resultOfChild(const std::function<QByteArray()>& work)
{
    int ends[2];
    if (pipe(ends) != 0) {
        return QByteArray();
    }
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        workInChild(work, ends[1]);
    }
    close(ends[1]);
    QByteArray result;
    if (child > 0) {
        result = readAll(ends[0]);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    close(ends[0]);
    return result;
}

} // namespace schemadoctor
