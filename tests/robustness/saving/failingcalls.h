#ifndef XMLHELPER_TESTS_FAILINGCALLS_H
#define XMLHELPER_TESTS_FAILINGCALLS_H

/// What may fail when a file is saved.
enum class Call { Write, Close, Rename };

/// While it lives, a call of this kind on this thread fails, though what has come before stays: the @p number-th,
/// counted from 1. A file that fails to close is closed.
class FailingCall
{
public:
    FailingCall(Call call, int number);
    ~FailingCall();

    FailingCall(const FailingCall&) = delete;
    FailingCall& operator=(const FailingCall&) = delete;

    /// Whether there were as many calls.
    static bool HasFailed();
};

#endif
