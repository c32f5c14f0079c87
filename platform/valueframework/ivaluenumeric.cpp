#include <valueframework/ivaluenumeric.h>

IValueNumeric::~IValueNumeric() = default;
