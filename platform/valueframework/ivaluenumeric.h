#ifndef VALUEFRAMEWORK_IVALUENUMERIC_H
#define VALUEFRAMEWORK_IVALUENUMERIC_H

#include <valueframework/valueframeworkexport.h>

/// What a value offers when it is a number. Ask a ValueBase for it with dynamic_cast.
class VALUEFRAMEWORK_EXPORT IValueNumeric
{
public:
    virtual ~IValueNumeric();

    /// The number in the value's base unit, without rounding for display.
    virtual double GetNumericValue() const = 0;
};

#endif
