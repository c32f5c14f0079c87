#include <QString>

#include <vornappstartup/translationcenter.h>

// The entry routine of a library: it registers the translation context when the library is loaded and unregisters it
// when it is unloaded. It has nothing to do for threads, and it never fails.

#ifndef XMLHELPER_TRANSLATION_CONTEXT
#define XMLHELPER_TRANSLATION_CONTEXT "XMLHelper"
#endif

namespace {

QString translationContext()
{
    return QStringLiteral(XMLHELPER_TRANSLATION_CONTEXT);
}

void libraryLoaded()
{
    TranslationCenter::Instance().Register(translationContext());
}

void libraryUnloaded()
{
    TranslationCenter::Instance().Unregister(translationContext());
}

} // namespace

#ifdef Q_OS_WIN

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        libraryLoaded();
    } else if (reason == DLL_PROCESS_DETACH) {
        libraryUnloaded();
    }
    return TRUE;
}

#else

namespace {

__attribute__((constructor)) void loaded()
{
    libraryLoaded();
}

__attribute__((destructor)) void unloaded()
{
    libraryUnloaded();
}

} // namespace

#endif
