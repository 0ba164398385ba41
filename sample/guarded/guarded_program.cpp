// Stands in for a running CAD system or program of the product. It creates the file "EXECUTABLE.running" and
// runs until there is a file "EXECUTABLE.stop"; then it deletes both and ends.

#include <cstdio>
#include <string>

#include <windows.h>

namespace {

bool exists(const std::wstring &path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring ownPath()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

} // namespace

int wmain()
{
    const std::wstring path = ownPath();
    const std::wstring running = path + L".running";
    const std::wstring stop = path + L".stop";
    std::FILE *file = _wfopen(running.c_str(), L"w");
    if (!file)
        return 1;
    std::fclose(file);
    while (!exists(stop))
        Sleep(20);
    DeleteFileW(running.c_str());
    DeleteFileW(stop.c_str());
    return 0;
}
