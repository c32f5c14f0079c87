#ifndef XMLHELPER_TESTS_FAULTINJECTION_H
#define XMLHELPER_TESTS_FAULTINJECTION_H

/// What can be made to fail. Only the calls of one thread count, the one that injects.
enum class Fault {
    Write, ///< write() fails: the disk is full
    ShortWrite, ///< write() takes half of the bytes, and fails from then on
    Open, ///< open() fails: no more file handles
    Allocation, ///< malloc() and its relatives give null
};

/// How a process ends that a FaultInjection ends.
constexpr int EndedByBadAlloc = 77;

/// Makes one call of a kind fail while it lives: the n-th from its construction on. One at a time.
class FaultInjection
{
public:
    /// @param isUnwound  false: std::bad_alloc ends the process where it is thrown
    /// @param taker      receives the place in the code to which an allocation gives null
    FaultInjection(Fault fault, int number, bool isUnwound, const void** taker);
    ~FaultInjection();
    FaultInjection(const FaultInjection&) = delete;
    FaultInjection& operator=(const FaultInjection&) = delete;

    /// Whether the call came. When it did not, the flow makes fewer calls of the kind.
    static bool HasStruck();
};

#endif
