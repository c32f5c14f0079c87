#include "failingcalls.h"

#include <cerrno>

#include <dlfcn.h>
#include <sys/types.h>

// The definitions of a program come before those of its libraries, for the libraries too, so every call of the
// functions below passes here.

namespace {

struct Plan
{
    bool isActive;
    Call call;
    int callsLeft;
    bool hasFailed;
};

thread_local Plan plan;

bool fails(Call call, int error)
{
    if (!plan.isActive || plan.call != call || plan.callsLeft == 0 || --plan.callsLeft > 0) {
        return false;
    }
    plan.hasFailed = true;
    errno = error;
    return true;
}

template <typename Function> Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

FailingCall::FailingCall(Call call, int number)
{
    plan = {true, call, number, false};
}

FailingCall::~FailingCall()
{
    plan.isActive = false;
}

bool FailingCall::HasFailed()
{
    return plan.hasFailed;
}

extern "C" {

ssize_t write(int file, const void* bytes, size_t count)
{
    static const auto next = original<ssize_t (*)(int, const void*, size_t)>("write");
    return fails(Call::Write, ENOSPC) ? -1 : next(file, bytes, count);
}

int close(int file)
{
    static const auto next = original<int (*)(int)>("close");
    const int result = next(file);
    return fails(Call::Close, EIO) ? -1 : result;
}

int rename(const char* from, const char* to)
{
    static const auto next = original<int (*)(const char*, const char*)>("rename");
    return fails(Call::Rename, EIO) ? -1 : next(from, to);
}

} // extern "C"
