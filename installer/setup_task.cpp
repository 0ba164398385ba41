// What the set-up program and the MSI cannot do themselves:
//
//     NVXSetupTask check
//         Exits with 1618 (try again later) if a CAD system is running: a silent run would show a message
//         box.
//     NVXSetupTask reserve FOLDER
//         Creates the folder, or takes it over, as one that only administrators can write; see
//         reserved_folder.h. Exits with the error.
//     NVXSetupTask configure FOLDER SECONDS OPTION...
//         Runs NVXConfig.exe of the folder with the options and waits for it. Exits with its exit code; with
//         1460 if it did not end in time, after ending it and its children; with 2 if it or the server is
//         missing.
//     NVXSetupTask install FOLDER SECONDS OPTION...
//         The same; if it fails, runs NVXConfig.exe with "-U -S", which removes what the run has done.
//     NVXSetupTask register FOLDER TRANSLATORS
//         Sets the environment variables with the install folder, and the registered translators' folder.
//     NVXSetupTask unregister FOLDER TRANSLATORS
//         Removes those that name these folders, the translators' folder only if it no longer exists; before
//         that, the translators' folder and the parent folders if they are empty.

#include "guarded_programs.h"
#include "reserved_folder.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <windows.h>

#include <shellapi.h>
#include <tlhelp32.h>

namespace {

constexpr const wchar_t *environmentKey = L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment";
constexpr const wchar_t *translatorsKey = L"Software\\Velmora\\Kelvane\\Translators";
constexpr const wchar_t *folderValue = L"Folder";
constexpr const wchar_t *variables[] = {L"OSTRADE", L"OSTRADE2017DIR", L"OSTRADE2017TEMP"};

/// A removal asks nothing, so it ends by itself.
constexpr unsigned long undoSeconds = 1800;

struct CloseHandleLater
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseHandleLater>;

bool isFile(const std::wstring &path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// The path without "." at its end: an argument of an MSI's action ends with a backslash, after which a quote
/// would be part of the argument.
std::wstring folderOf(const std::wstring &argument)
{
    std::vector<wchar_t> path(32768);
    const DWORD length =
        GetFullPathNameW(argument.c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr);
    std::wstring folder(path.data(), length < path.size() ? length : 0);
    while (folder.size() > 3 && folder.back() == L'\\')
        folder.pop_back();
    return folder;
}

std::wstring parentOf(const std::wstring &folder)
{
    return folder.substr(0, folder.rfind(L'\\'));
}

int check()
{
    const Handle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL found = Process32FirstW(snapshot.get(), &entry); found;
         found = Process32NextW(snapshot.get(), &entry)) {
        for (const wchar_t *program : guardedPrograms) {
            if (lstrcmpiW(entry.szExeFile, program) == 0)
                return ERROR_INSTALL_ALREADY_RUNNING;
        }
    }
    return ERROR_SUCCESS;
}

/// Waits for a suspended process and returns its exit code.
DWORD exitCodeOf(const PROCESS_INFORMATION &process, DWORD milliseconds)
{
    const Handle job(CreateJobObjectW(nullptr, nullptr));
    const bool inJob = job && AssignProcessToJobObject(job.get(), process.hProcess);
    ResumeThread(process.hThread);
    if (WaitForSingleObject(process.hProcess, milliseconds) != WAIT_OBJECT_0) {
        if (inJob)
            TerminateJobObject(job.get(), ERROR_TIMEOUT);
        else
            TerminateProcess(process.hProcess, ERROR_TIMEOUT);
        return ERROR_TIMEOUT;
    }
    DWORD code = ERROR_GEN_FAILURE;
    GetExitCodeProcess(process.hProcess, &code);
    return code;
}

int configure(const std::wstring &folder, unsigned long seconds, const std::vector<std::wstring> &options)
{
    const std::wstring program = folder + L"\\NVXConfig.exe";
    // NVXConfig.exe splits its whole command line at blanks and would treat a part of its path that begins
    // with "-" as an option, so its path is passed separately.
    std::wstring commandLine = L"NVXConfig.exe";
    bool installs = false;
    for (const std::wstring &option : options) {
        commandLine += L' ' + option;
        installs = installs || option == L"-I";
    }
    if (!isFile(program) || (installs && !isFile(folder + L"\\NVXServer.exe")))
        return ERROR_FILE_NOT_FOUND;
    for (const wchar_t *variable : variables)
        SetEnvironmentVariableW(variable, folder.c_str());

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                        nullptr, folder.c_str(), &startup, &process)) {
        return static_cast<int>(GetLastError());
    }
    const Handle processHandle(process.hProcess);
    const Handle threadHandle(process.hThread);
    return static_cast<int>(exitCodeOf(process, seconds * 1000));
}

void announceVariables()
{
    SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Environment"),
                        SMTO_ABORTIFHUNG, 2000, nullptr);
}

LSTATUS setValue(const wchar_t *key, const wchar_t *name, const std::wstring &text)
{
    return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, name, REG_SZ, text.c_str(),
                           static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void removeValueIfEqual(const wchar_t *key, const wchar_t *name, const std::wstring &text)
{
    std::vector<wchar_t> value(32768);
    DWORD size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    const LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, value.data(), &size);
    if (status == ERROR_SUCCESS && lstrcmpiW(value.data(), text.c_str()) == 0)
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key, name);
}

void removeKeyIfEmpty(const wchar_t *path)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
        return;
    DWORD subkeys = 1;
    DWORD values = 1;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr, nullptr,
                     nullptr, nullptr);
    RegCloseKey(key);
    if (subkeys == 0 && values == 0)
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, path);
}

int registerFolders(const std::wstring &folder, const std::wstring &translators)
{
    LSTATUS status = setValue(translatorsKey, folderValue, translators);
    for (const wchar_t *variable : variables) {
        if (status == ERROR_SUCCESS)
            status = setValue(environmentKey, variable, folder);
    }
    announceVariables();
    return static_cast<int>(status);
}

int unregisterFolders(const std::wstring &folder, const std::wstring &translators)
{
    for (const wchar_t *variable : variables)
        removeValueIfEqual(environmentKey, variable, folder);
    RemoveDirectoryW(translators.c_str());
    RemoveDirectoryW(parentOf(translators).c_str());
    RemoveDirectoryW(folder.c_str());
    RemoveDirectoryW(parentOf(folder).c_str());
    if (GetFileAttributesW(translators.c_str()) == INVALID_FILE_ATTRIBUTES) {
        removeValueIfEqual(translatorsKey, folderValue, translators);
        removeKeyIfEmpty(translatorsKey);
        removeKeyIfEmpty(L"Software\\Velmora\\Kelvane");
    }
    announceVariables();
    return ERROR_SUCCESS;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t **const list = CommandLineToArgvW(GetCommandLineW(), &count);
    const std::vector<std::wstring> arguments(list, list + count);
    LocalFree(list);
    const std::wstring task = count > 1 ? arguments[1] : std::wstring();
    if (task == L"check" && count == 2)
        return check();
    if (task == L"reserve" && count == 3)
        return static_cast<int>(reserveFolder(folderOf(arguments[2])));
    if ((task == L"configure" || task == L"install") && count >= 4) {
        const std::wstring folder = folderOf(arguments[2]);
        const unsigned long seconds = std::wcstoul(arguments[3].c_str(), nullptr, 10);
        const int code = configure(folder, seconds, {arguments.begin() + 4, arguments.end()});
        if (code != ERROR_SUCCESS && task == L"install")
            configure(folder, undoSeconds, {L"-U", L"-S"});
        return code;
    }
    if (task == L"register" && count == 4)
        return registerFolders(folderOf(arguments[2]), folderOf(arguments[3]));
    if (task == L"unregister" && count == 4)
        return unregisterFolders(folderOf(arguments[2]), folderOf(arguments[3]));
    return ERROR_INVALID_PARAMETER;
}
