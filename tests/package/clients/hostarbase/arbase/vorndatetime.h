#ifndef HOSTARBASE_ARBASE_VORNDATETIME_H
#define HOSTARBASE_ARBASE_VORNDATETIME_H

#include <arbase/hostarbaseexport.h>
#include <QString>

namespace Vorn {

class HOSTARBASE_EXPORT DateTime
{
public:
    explicit DateTime(qint64 time);
    QString toString(const QString& format) const;

private:
    qint64 m_iTime;
};

} // namespace Vorn

#endif
