#ifndef XMLHELPER_TESTS_FAKECLOCK_H
#define XMLHELPER_TESTS_FAKECLOCK_H

#include <QDateTime>

/// Sets the platform's clock while it lives; gives the system clock back at its end. One at a time.
class FakeClock
{
public:
    /// @param localTime  what the clock shows, in local time
    explicit FakeClock(const QDateTime& localTime);
    ~FakeClock();

    void Set(const QDateTime& localTime);
    void Advance(qint64 milliseconds);

private:
    Q_DISABLE_COPY(FakeClock)
};

#endif
