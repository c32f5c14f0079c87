#ifndef ARBASE_VORNDATETIME_H
#define ARBASE_VORNDATETIME_H

#include <arbase/arbaseexport.h>
#include <QString>

namespace Vorn {

/// A point in time that can write itself as text.
class ARBASE_EXPORT DateTime
{
public:
    /// @param time  milliseconds since 1970-01-01T00:00 UTC, as VornOS::GetCurrentTime gives them
    explicit DateTime(qint64 time);

    /// The point in local time, written by a format with the letters of QDateTime::toString; what stands between
    /// single quotes is kept as it is. Names of days and months are English, whatever the user's language: the text
    /// ends up in file names.
    ///
    /// The milliseconds are counted, not written as the digits of a fraction: z gives 0 to 999 without leading zeros,
    /// zzz gives 000 to 999. Qt itself writes 5 ms as "005" and 500 ms as "5" for a single z.
    QString toString(const QString& format) const;

private:
    qint64 m_iTime;
};

} // namespace Vorn

#endif
