#include "tracing_p.h"

#include <arbase/errorhandler.h>
#include <arbase/trace.h>

bool isTracing()
{
    return (ErrorHandler::Instance().GetTraceMask() & TraceMaskXmlHelper) != 0;
}

void trace(const QString& message, const char* component, int line)
{
    if (isTracing()) {
        _Q_Trace(message, QLatin1String("tools/xmlhelper/") + QLatin1String(component),
                 static_cast<unsigned short>(line));
    }
}

bool checkObserver(const void* observer, const char* className, const char* component, int line)
{
    if (observer) {
        return true;
    }
    trace(QLatin1String(className) + QStringLiteral(": pCallback is NULL!"), component, line);
    return false;
}
