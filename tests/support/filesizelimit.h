#ifndef XMLHELPER_TESTS_FILESIZELIMIT_H
#define XMLHELPER_TESTS_FILESIZELIMIT_H

#include <QtGlobal>

/// Lets no file grow beyond a size while it lives: a disk that becomes full in the middle of a write. One at a time.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(int bytes);
    ~FileSizeLimit();

    /// Whether the platform has such a limit; without, nothing is limited.
    static bool IsSupported();

private:
    Q_DISABLE_COPY(FileSizeLimit)
};

#endif
