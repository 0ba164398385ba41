// Leaves the file "<own path>.loaded" when it is loaded. Compiled with PLANTED_INTERFACE, it is a plug-in of
// Qt for that interface.

#include <string>

#include <windows.h>

#ifdef PLANTED_INTERFACE
#include <QObject>

class PlantedPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PLANTED_INTERFACE FILE "planted_library.json")
};
#endif

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID /*reserved*/)
{
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(library, path.data(), MAX_PATH));
    path += L".loaded";
    CloseHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    return TRUE;
}

#ifdef PLANTED_INTERFACE
#include "planted_library.moc"
#endif
