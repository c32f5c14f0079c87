#ifndef MEASUREMENTPANEL_COMMANDLINE_H
#define MEASUREMENTPANEL_COMMANDLINE_H

#include <optional>

#include <QString>
#include <QStringList>

/// What the program is asked to do. Paths are absolute, except for the name of the schema beside the program.
struct CommandLine
{
    QString schema;
    QString reportDirectory;
    int presses = 0; ///< 0: a human operator presses
    std::optional<QString> comment;
    QString screenshot;

    bool isHelpWanted = false;
    QString fault; ///< what is wrong with the arguments; empty when nothing is
    QString help;
};

/// @param arguments  with the name of the program in front
CommandLine readCommandLine(const QStringList& arguments);

#endif
