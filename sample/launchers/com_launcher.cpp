// Stands in for a launcher that is a COM library: it registers and unregisters itself.

#include <olectl.h>
#include <string>

#include <windows.h>

#include <objbase.h>

namespace {

const std::wstring classKey = L"Software\\Classes\\CLSID\\" NVX_SAMPLE_CLASS;

std::wstring ownPath()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t *>(&ownPath), &library);
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

bool setText(const std::wstring &key, const wchar_t *name, const std::wstring &text)
{
    const DWORD bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(), bytes) ==
           ERROR_SUCCESS;
}

} // namespace

STDAPI DllRegisterServer()
{
    const std::wstring serverKey = classKey + L"\\InprocServer32";
    const bool isWritten = setText(classKey, nullptr, NVX_SAMPLE_TITLE) &&
                           setText(serverKey, nullptr, ownPath()) &&
                           setText(serverKey, L"ThreadingModel", L"Apartment");
    return isWritten ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer()
{
    const LONG result = RegDeleteTreeW(HKEY_LOCAL_MACHINE, classKey.c_str());
    return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND ? S_OK : SELFREG_E_CLASS;
}

// The sample has no objects.
STDAPI DllGetClassObject(REFCLSID, REFIID, void **object)
{
    *object = nullptr;
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow()
{
    return S_OK;
}
