#include "filesizelimit.h"

#ifdef Q_OS_UNIX

#include <csignal>

#include <sys/resource.h>

namespace {

rlimit previousLimit;

void setLimit(const rlimit& limit)
{
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
        qFatal("The size of files could not be limited.");
    }
}

} // namespace

FileSizeLimit::FileSizeLimit(int bytes)
{
    // A write beyond the limit is to fail, not to end the process.
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &previousLimit);
    setLimit({rlim_t(bytes), previousLimit.rlim_max});
}

FileSizeLimit::~FileSizeLimit()
{
    setLimit(previousLimit);
    std::signal(SIGXFSZ, SIG_DFL);
}

bool FileSizeLimit::IsSupported()
{
    return true;
}

#else

FileSizeLimit::FileSizeLimit(int) { }

FileSizeLimit::~FileSizeLimit() = default;

bool FileSizeLimit::IsSupported()
{
    return false;
}

#endif
