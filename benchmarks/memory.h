#ifndef XMLHELPER_BENCHMARKS_MEMORY_H
#define XMLHELPER_BENCHMARKS_MEMORY_H

#include <QStringList>

class Harness;
class Workspace;

// Peak memory is a property of a whole process: each task runs in a child of its own, a second start of this program,
// which prints its peak. What an idle child needs is subtracted.

/// Whether the first argument of the program names a task for such a child.
bool isMemoryTask(const char* argument);

/// Does the task and prints the peak in kB. Gives the exit code.
int runMemoryTask(int argc, char** argv);

QStringList memoryNames(const Harness& harness);

/// Measures the cases that the harness's filter lets through. Where the system does not tell a process its peak they
/// are reported as not measured.
void measureMemory(Harness& harness, const Workspace& workspace);

#endif
