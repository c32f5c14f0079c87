#include <arbase/errorhandler.h>

ErrorHandler& ErrorHandler::Instance()
{
    static ErrorHandler instance;
    return instance;
}

quint32 ErrorHandler::GetTraceMask() const
{
    return m_uTraceMask;
}

void ErrorHandler::SetTraceMask(quint32 mask)
{
    m_uTraceMask = mask;
}
