#ifndef SCHEMADOCTOR_COMMANDLINE_H
#define SCHEMADOCTOR_COMMANDLINE_H

#include <QString>
#include <QStringList>

#include "mend/mend.h"

namespace schemadoctor {

/// What the program is asked for.
struct CommandLine
{
    enum class Show { Tree, Json, Html, Window, Fill, Mend, Help, Version, WrongUsage };

    Show show = Show::Tree;
    QString schema;
    QString otherFile; ///< the page or the schema to write, or the values to read
    QString page; ///< to show what was mended; empty for none
    bool isForPrograms = false; ///< what was mended is told as JSON
    MendOptions mending;
    bool isToProve = true; ///< by reports that are filled on trial
    QString language; ///< a code such as "de"; empty for that of the system
    bool isAsButton = false; ///< whether to try what the report button fills
    QString message; ///< the help, the version, or what is wrong
};

/// @param arguments  with the name of the program in front
CommandLine commandLineOf(const QStringList& arguments);

} // namespace schemadoctor

#endif
