#ifndef XMLHELPER_TESTS_FLOWS_H
#define XMLHELPER_TESTS_FLOWS_H

#include <vector>

#include <QString>

/// One of the main things that applications do with the library, from making the objects to deleting them.
///
/// A flow leaves nothing behind but the files that it writes, and may be run any number of times in one folder.
struct Flow
{
    const char* name;
    /// Runs it in @p folder, which holds the inputs that writeInputs() makes. Gives what came of it, as text.
    QString (*run)(const QString& folder);
    /// The file that it writes into the folder; empty for none.
    QString writtenFile;
    /// Whether it makes widgets. Qt's widgets cannot be unwound: one whose making is broken off by an exception stays
    /// in the lists of Qt and of its parent.
    bool hasWidgets;
};

/// The flows, in the order in which they build on each other.
const std::vector<Flow>& flows();

/// Writes what the flows read into @p folder.
bool writeInputs(const QString& folder);

#endif
