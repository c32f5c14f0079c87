#ifndef XMLHELPER_TESTS_SMALLSTACK_H
#define XMLHELPER_TESTS_SMALLSTACK_H

#include <functional>

/// Runs @p work to its end on a stack of 1 MB, which is what the main thread of an application has on Windows. Check
/// what came of it afterwards: Qt Test takes no comparisons from other threads.
void runOnSmallStack(const std::function<void()>& work);

#endif
