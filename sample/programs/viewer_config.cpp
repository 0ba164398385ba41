// Stands in for the program that configures the product's viewer. It writes its working folder and its
// arguments, one a line, to the file "last-start.txt" next to it, in UTF-8.

#include <cstdio>
#include <string>

#include <windows.h>

namespace {

std::string toUtf8(const std::wstring &text)
{
    if (text.empty())
        return std::string();
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring ownFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.rfind(L'\\'));
}

std::wstring workingFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return path;
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    std::string record = toUtf8(workingFolder()) + '\n';
    for (int i = 1; i < argc; ++i)
        record += toUtf8(argv[i]) + '\n';

    std::FILE *file = _wfopen((ownFolder() + L"\\last-start.txt").c_str(), L"wb");
    if (!file)
        return 1;
    const bool written = std::fwrite(record.data(), 1, record.size(), file) == record.size();
    std::puts(argc > 1 ? "The viewer is configured." : "The viewer's configuration is taken back.");
    return std::fclose(file) == 0 && written ? 0 : 1;
}
