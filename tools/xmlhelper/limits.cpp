#include "limits_p.h"

namespace {

const Limits limitsOfTheLibrary;

thread_local const Limits* inForce = &limitsOfTheLibrary;

} // namespace

const Limits& limits()
{
    return *inForce;
}

LimitsInForce::LimitsInForce(const Limits& limits)
    : m_limits(limits)
    , m_pOuter(inForce)
{
    inForce = &m_limits;
}

LimitsInForce::~LimitsInForce()
{
    inForce = m_pOuter;
}
