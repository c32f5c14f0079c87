#ifndef MEASUREMENTPANEL_STORAGEPROBE_H
#define MEASUREMENTPANEL_STORAGEPROBE_H

#include <QString>

/// Why a directory takes no file.
enum class StorageFault { None, Gone, NotADirectory, NotWritable, Full };

/// Finds it out by making a file, somewhat longer than a report, and removing it again: rights, quotas and free space
/// have too many rules to be asked for one by one.
StorageFault probeStorage(const QString& directory);

#endif
