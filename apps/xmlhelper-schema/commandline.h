#ifndef SCHEMADOCTOR_COMMANDLINE_H
#define SCHEMADOCTOR_COMMANDLINE_H

#include <QString>
#include <QStringList>

#include "mend/mend.h"

namespace schemadoctor {

/// What the program is asked for.
struct CommandLine
{
    enum class Show { Tree, Json, Html, Window, Fill, Help, Version, WrongUsage };

    Show show = Show::Tree;
    QString schema;
    QString page; ///< to write, for Show::Html
    QString values; ///< to read, for Show::Fill
    bool isToMend = false; ///< what is shown is the mending
    QString mended; ///< the schema to write, to be mended
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
