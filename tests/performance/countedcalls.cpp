#include "countedcalls.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <QDomDocument>

namespace {

long visits = 0;
long writes = 0;
long reads = 0;

} // namespace

// A member function is called like a free one whose first parameter is the object. The linker knows it by its mangled
// name: it leads calls of NAME to __wrap_NAME, and what __real_NAME calls to NAME.
#define XMLHELPER_COUNT_MOVE(function, mangled)                                                                        \
    QDomNode real_##function(const QDomNode* node) __asm__("__real_" mangled);                                         \
    QDomNode counted_##function(const QDomNode* node) __asm__("__wrap_" mangled);                                      \
    QDomNode counted_##function(const QDomNode* node)                                                                  \
    {                                                                                                                  \
        ++visits;                                                                                                      \
        return real_##function(node);                                                                                  \
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#define XMLHELPER_NAME_PARAMETERS const QString& name
#define XMLHELPER_NAME_ARGUMENTS name
#define XMLHELPER_NAME_MANGLED "ERK7QString"
#else
#define XMLHELPER_NAME_PARAMETERS const QString &name, const QString &namespaceUri
#define XMLHELPER_NAME_ARGUMENTS name, namespaceUri
#define XMLHELPER_NAME_MANGLED "ERK7QStringS2_"
#endif

#define XMLHELPER_COUNT_MOVE_BY_NAME(function, mangled)                                                                \
    QDomElement real_##function(const QDomNode* node,                                                                  \
                                XMLHELPER_NAME_PARAMETERS) __asm__("__real_" mangled XMLHELPER_NAME_MANGLED);          \
    QDomElement counted_##function(const QDomNode* node,                                                               \
                                   XMLHELPER_NAME_PARAMETERS) __asm__("__wrap_" mangled XMLHELPER_NAME_MANGLED);       \
    QDomElement counted_##function(const QDomNode* node, XMLHELPER_NAME_PARAMETERS)                                    \
    {                                                                                                                  \
        ++visits;                                                                                                      \
        return real_##function(node, XMLHELPER_NAME_ARGUMENTS);                                                        \
    }

XMLHELPER_COUNT_MOVE(firstChild, "_ZNK8QDomNode10firstChildEv")
XMLHELPER_COUNT_MOVE(lastChild, "_ZNK8QDomNode9lastChildEv")
XMLHELPER_COUNT_MOVE(nextSibling, "_ZNK8QDomNode11nextSiblingEv")
XMLHELPER_COUNT_MOVE(previousSibling, "_ZNK8QDomNode15previousSiblingEv")
XMLHELPER_COUNT_MOVE(parentNode, "_ZNK8QDomNode10parentNodeEv")
XMLHELPER_COUNT_MOVE_BY_NAME(firstChildElement, "_ZNK8QDomNode17firstChildElement")
XMLHELPER_COUNT_MOVE_BY_NAME(nextSiblingElement, "_ZNK8QDomNode18nextSiblingElement")

QDomNodeList real_childNodes(const QDomNode* node) __asm__("__real__ZNK8QDomNode10childNodesEv");
QDomNodeList counted_childNodes(const QDomNode* node) __asm__("__wrap__ZNK8QDomNode10childNodesEv");
QDomNodeList counted_childNodes(const QDomNode* node)
{
    ++visits;
    return real_childNodes(node);
}

// The program's own functions come before those of the system's library, in the libraries it is linked with, too.
extern "C" ssize_t write(int file, const void* bytes, size_t count)
{
    ++writes;
    return static_cast<ssize_t>(syscall(SYS_write, file, bytes, count));
}

extern "C" ssize_t read(int file, void* bytes, size_t count)
{
    ++reads;
    return static_cast<ssize_t>(syscall(SYS_read, file, bytes, count));
}

long nodeVisits()
{
    return visits;
}

long writeCalls()
{
    return writes;
}

long readCalls()
{
    return reads;
}
