#ifndef XMLHELPER_TESTS_COUNTEDCALLS_H
#define XMLHELPER_TESTS_COUNTEDCALLS_H

// Counts what a machine of any speed does equally often. The linker leads the calls here on their way to Qt and to the
// system, see the CMakeLists.txt of this folder.

/// Moves from one node of a document to another that the library has made so far: to a child, a sibling or the parent,
/// and lists of nodes asked for. What Qt does inside of its own functions does not count.
long nodeVisits();

/// Calls of this process so far to write(2).
long writeCalls();

/// Calls of this process so far to read(2).
long readCalls();

#endif
