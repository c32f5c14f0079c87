#include "numberconversion_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int SignificantDigits = 12;
constexpr int Least = std::numeric_limits<int>::min();
constexpr int Greatest = std::numeric_limits<int>::max();

} // namespace

int toInt32(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(std::clamp(value, double(Least), double(Greatest)));
}

int toInt32(long value)
{
    return static_cast<int>(std::clamp<qint64>(value, Least, Greatest));
}

QString toReportText(double value)
{
    return QString::number(value, 'g', SignificantDigits);
}
