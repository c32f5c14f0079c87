#include "faultinjection.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <typeinfo>

#include <cxxabi.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <sys/types.h>
#include <unistd.h>

// The definitions of a program come before those of its libraries, for the libraries too, so every call of the
// functions below passes here.

namespace {

struct Plan
{
    bool isActive;
    Fault fault;
    int callsLeft;
    bool hasStruck;
    bool isUnwound;
    const void** taker;
};

thread_local Plan plan;

/// Whether this call is the one that is to fail.
bool strikes(Fault fault)
{
    if (!plan.isActive || plan.fault != fault || plan.callsLeft == 0 || --plan.callsLeft > 0) {
        return false;
    }
    plan.hasStruck = true;
    return true;
}

/// The same for memory, asked for at @p taker.
bool allocationFails(const void* taker)
{
    if (!strikes(Fault::Allocation)) {
        return false;
    }
    *plan.taker = taker;
    errno = ENOMEM;
    return true;
}

template <typename Function> Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int openOriginal(const char* name, const char* path, int flags, mode_t mode)
{
    if (strikes(Fault::Open)) {
        errno = EMFILE;
        return -1;
    }
    return original<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

} // namespace

FaultInjection::FaultInjection(Fault fault, int number, bool isUnwound, const void** taker)
{
    plan = {true, fault, number, false, isUnwound, taker};
}

FaultInjection::~FaultInjection()
{
    plan.isActive = false;
}

bool FaultInjection::HasStruck()
{
    return plan.hasStruck;
}

namespace __cxxabiv1 {

extern "C" void __cxa_throw(void* exception, std::type_info* type, void (*destroy)(void*))
{
    if (plan.isActive && !plan.isUnwound && *type == typeid(std::bad_alloc)) {
        _exit(EndedByBadAlloc);
    }
    original<void (*)(void*, std::type_info*, void (*)(void*))>("__cxa_throw")(exception, type, destroy);
    std::abort(); // It does not come back.
}

} // namespace __cxxabiv1

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* memory, size_t size);

// While calls are counted, memory that is given begins as zeros. Qt's XML library is compiled without exceptions: one
// that goes through it leaves a list with an entry that was never set, and what is deleted by that later was otherwise
// whatever had stood in the memory, which differs from run to run.

void* malloc(size_t size)
{
    if (allocationFails(__builtin_return_address(0))) {
        return nullptr;
    }
    return plan.isActive ? __libc_calloc(1, size) : __libc_malloc(size);
}

void* calloc(size_t count, size_t size)
{
    if (allocationFails(__builtin_return_address(0))) {
        return nullptr;
    }
    return __libc_calloc(count, size);
}

void* realloc(void* memory, size_t size)
{
    if (allocationFails(__builtin_return_address(0))) {
        return nullptr;
    }
    const size_t before = plan.isActive ? malloc_usable_size(memory) : size;
    void* const resized = __libc_realloc(memory, size);
    if (resized && size > before) {
        std::memset(static_cast<char*>(resized) + before, 0, size - before);
    }
    return resized;
}

ssize_t write(int file, const void* bytes, size_t count)
{
    const auto write = original<ssize_t (*)(int, const void*, size_t)>("write");
    const bool isShortened = plan.isActive && plan.fault == Fault::ShortWrite && plan.hasStruck;
    if (strikes(Fault::Write) || isShortened) {
        errno = ENOSPC;
        return -1;
    }
    return strikes(Fault::ShortWrite) ? write(file, bytes, count / 2) : write(file, bytes, count);
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openOriginal("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openOriginal("open64", path, flags, mode);
}

} // extern "C"
