#ifndef VALUEFRAMEWORK_VALUENUMERIC_H
#define VALUEFRAMEWORK_VALUENUMERIC_H

#include <valueframework/ivaluenumeric.h>
#include <valueframework/valuebase.h>

/// A value that is a number in a unit.
class VALUEFRAMEWORK_EXPORT ValueNumeric : public ValueBase, public IValueNumeric
{
public:
    /// @param unit  the base unit, such as "Hz"; empty for a bare number
    ValueNumeric(const QString& name, double value, const QString& unit = QString());
    ~ValueNumeric() override;

    void SetValue(double value);
    double GetNumericValue() const override;

    /// The number, then a blank and the unit when there is one: "98500000 Hz". A point separates decimals whatever the
    /// user's language, trailing zeros are dropped, and 15 significant digits are written: as many as every double
    /// keeps, and no exponent up to the range of terahertz.
    QString GetText() const override;

private:
    double m_dValue;
    QString m_sUnit;
};

#endif
