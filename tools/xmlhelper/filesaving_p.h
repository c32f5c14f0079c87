#ifndef XMLHELPER_FILESAVING_P_H
#define XMLHELPER_FILESAVING_P_H

#include <functional>

#include <QString>

class QIODevice;

/// The name by which the library opens the file called @p fileName, for reading and for writing.
///
/// Paths travel through the suite with back slashes. Where the platform does not separate folders by them, a name that
/// does not exist as given is opened with slashes instead. Nothing of it shows in stored paths.
QString openableFileName(const QString& fileName);

/// Writes all that a file shall hold, from the beginning each time it is called: once more to know whether it can,
/// where what was there is lost with opening. Gives whether everything was taken.
using WriteContent = std::function<bool(QIODevice& device)>;

/// What became of a file, for who tells it on.
struct SavedFile
{
    QString name; ///< as it was opened
    qint64 size = 0; ///< of all that was written
    QString reason; ///< why it could not be written, in the operating system's words where these are, without a stop
    bool isTooLong = false; ///< that is the reason
};

/// Writes the file called @p fileName. Gives whether everything was written; a file that cannot be opened, and a pipe
/// that nobody reads, are left alone.
///
/// The new file is written beside the old one, under a hidden temporary name, and takes its place when it is complete:
/// owner, group and permissions stay, a link keeps pointing. So one of the two is there whole, whenever the process
/// ends and whoever else saves under the same name. What could be written only in part is traced and removed. A
/// temporary file is left only by a process that is killed; the first save into a folder removes those of more than a
/// day ago.
///
/// A device, a pipe, and a file in a folder that takes no new ones, beside which no temporary name has room or whose
/// owner cannot be kept, are written in place. A file there of which only a part could be written is removed or, behind
/// a link, emptied. A file that this process has open, under a name such as /dev/stdout, is written on where it is.
///
/// @param saved  takes what became of the file, if it is given
bool saveFile(const QString& fileName, const WriteContent& write, SavedFile* saved = nullptr);

#endif
