#ifndef MEASUREMENTPANEL_COMMANDLINE_H
#define MEASUREMENTPANEL_COMMANDLINE_H

#include <optional>

#include <QString>
#include <QStringList>

/// What the program is asked to do; what is not there is left to the settings. Paths are absolute.
struct CommandLine
{
    std::optional<QString> schema;
    std::optional<QString> reportDirectory;
    std::optional<QString> language;
    std::optional<QString> settings; ///< the file of the operator's settings
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
