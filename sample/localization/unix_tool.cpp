// Under Wine, runs a program of the host: the program whose path is in the file "<own path>.tool", with the
// same arguments. Waits for it, writes its output and returns its exit code. A path on a Windows drive among
// the arguments is converted to the path on the host.
//
// Under Wine a Windows program cannot wait for a program of the host, so a shell writes the result to files.

#include <cstdio>
#include <cstdlib>
#include <string>

#include <windows.h>

namespace {

using UnixFileName = char *(*)(const wchar_t *);

std::string utf8(const std::wstring &text)
{
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0,
                                         nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), size, nullptr,
                        nullptr);
    return bytes;
}

std::wstring wide(const std::string &bytes)
{
    std::wstring text(bytes.size(), L'\0');
    const int size = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), static_cast<int>(bytes.size()),
                                         text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(size));
    return text;
}

std::string hostPath(const std::wstring &path)
{
    static const auto convert = reinterpret_cast<UnixFileName>(reinterpret_cast<void *>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char *converted = convert ? convert(path.c_str()) : nullptr;
    if (!converted)
        return utf8(path);
    const std::string onHost = converted;
    HeapFree(GetProcessHeap(), 0, converted);
    return onHost;
}

std::string argument(const std::wstring &text)
{
    const bool onDrive = text.size() > 2 && text[1] == L':' && text[2] == L'\\';
    return onDrive ? hostPath(text) : utf8(text);
}

std::string quoted(const std::string &text)
{
    std::string result = "'";
    for (const char c : text)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

std::wstring ownPath()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

std::string contents(const std::wstring &path)
{
    FILE *file = _wfopen(path.c_str(), L"rb");
    std::string bytes;
    for (int c; file && (c = std::fgetc(file)) != EOF;)
        bytes += static_cast<char>(c);
    if (file)
        std::fclose(file);
    return bytes;
}

bool write(const std::wstring &path, const std::string &bytes)
{
    FILE *file = _wfopen(path.c_str(), L"wb");
    if (!file)
        return false;
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && whole;
}

bool startShell(const std::wstring &script)
{
    std::wstring commandLine = L"Z:\\bin\\sh \"" + wide(hostPath(script)) + L"\"";
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    return CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process) != 0;
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    const std::wstring base = ownPath();
    std::string tool = contents(base + L".tool");
    while (!tool.empty() && (tool.back() == '\n' || tool.back() == '\r'))
        tool.pop_back();
    if (tool.empty())
        return 127;

    const std::wstring run = base + L"." + std::to_wstring(GetCurrentProcessId());
    const std::wstring script = run + L".sh";
    const std::wstring output = run + L".out";
    const std::wstring exitCodeFile = run + L".exit";
    std::string command = "PATH=/usr/bin:/bin\n" + quoted(tool);
    for (int i = 1; i < argc; ++i)
        command += ' ' + quoted(argument(argv[i]));
    const std::string exitCodeOnHost = hostPath(exitCodeFile);
    command += " >" + quoted(hostPath(output)) + " 2>&1 </dev/null\necho $? >" +
               quoted(exitCodeOnHost + ".new") + "\nmv " + quoted(exitCodeOnHost + ".new") + ' ' +
               quoted(exitCodeOnHost) + '\n';
    if (!write(script, command) || !startShell(script))
        return 126;

    while (GetFileAttributesW(exitCodeFile.c_str()) == INVALID_FILE_ATTRIBUTES)
        Sleep(20);
    const std::string text = contents(output);
    std::fwrite(text.data(), 1, text.size(), stdout);
    const int exitCode = std::atoi(contents(exitCodeFile).c_str());
    for (const std::wstring &file : {script, output, exitCodeFile})
        DeleteFileW(file.c_str());
    return exitCode;
}
