#include <limits>
#include <valueframework/valuenumeric.h>

ValueNumeric::ValueNumeric(const QString& name, double value, const QString& unit)
    : ValueBase(name)
    , m_dValue(value)
    , m_sUnit(unit)
{
}

ValueNumeric::~ValueNumeric() = default;

void ValueNumeric::SetValue(double value)
{
    m_dValue = value;
}

double ValueNumeric::GetNumericValue() const
{
    return m_dValue;
}

QString ValueNumeric::GetText() const
{
    const QString number = QString::number(m_dValue, 'g', std::numeric_limits<double>::digits10);
    return m_sUnit.isEmpty() ? number : number + QLatin1Char(' ') + m_sUnit;
}
