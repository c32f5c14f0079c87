#ifndef XMLHELPER_TESTS_HOSTILECONTENT_H
#define XMLHELPER_TESTS_HOSTILECONTENT_H

#include <vector>

#include <QByteArray>
#include <QMetaType>

/// What the parser owes to content.
enum class Verdict {
    Sound, ///< well-formed, and read as such
    Broken, ///< not well-formed, and refused
    Tolerated, ///< not sound, or in doubt, and up to the parser: it is known to take much that XML forbids
};
Q_DECLARE_METATYPE(Verdict)

struct HostileContent
{
    const char* name;
    QByteArray bytes;
    Verdict verdict;
};

/// Small pieces of content that a file may have. None exceeds a limit. The root of what is sound is called "r".
std::vector<HostileContent> hostileContents();

/// Adds the columns "bytes" and "verdict", and a row for each of the contents.
void addRowsOfHostileContent();

#endif
