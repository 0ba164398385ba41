#include "nvx_util/own_process.h"

#include "platform.h"
#include "windows/file_rights.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <aclapi.h>
#include <array>
#include <future>
#include <sddl.h>
#include <thread>

#include <knownfolders.h>
#include <objbase.h>
#include <shlobj.h>

namespace Nvx::Util {

namespace {

// QCoreApplication::applicationDirPath needs an application object.
QString ownFolder()
{
    std::array<wchar_t, 32768> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QFileInfo(QString::fromWCharArray(path.data(), static_cast<qsizetype>(length))).absolutePath();
}

void setVariable(const wchar_t *name, const QString &value)
{
    if (!value.isEmpty())
        _wputenv_s(name, QDir::toNativeSeparators(value).toStdWString().c_str());
}

void setFolder(const wchar_t *name, const KNOWNFOLDERID &id)
{
    PWSTR path = nullptr;
    if (SUCCEEDED(SHGetKnownFolderPath(id, 0, nullptr, &path)))
        setVariable(name, QString::fromWCharArray(path));
    CoTaskMemFree(path);
}

QString windowsFolder()
{
    std::array<wchar_t, MAX_PATH> path{};
    const UINT length = GetSystemWindowsDirectoryW(path.data(), static_cast<UINT>(path.size()));
    return length < path.size() ? QString::fromWCharArray(path.data(), static_cast<qsizetype>(length))
                                : QString();
}

// The headers know the policy and its call only for newer systems than the oldest one that is supported.
void refuseUsersJunctions()
{
    using SetPolicy = BOOL(WINAPI *)(int, PVOID, SIZE_T);
    constexpr int redirectionTrustPolicy = 16;
    DWORD enforced = 1;
    const FARPROC call = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetProcessMitigationPolicy");
    if (call)
        reinterpret_cast<SetPolicy>(reinterpret_cast<void *>(call))(redirectionTrustPolicy, &enforced,
                                                                    sizeof enforced);
}

} // namespace

// Before main, the loader has already loaded the libraries that the executable and Qt are linked with. It
// looks for each in the executable's folder first, which only administrators can write, then in System32. All
// of them are in one of the two, so the folders that follow, the working folder and the path, are not
// reached. Libraries that are loaded later, by name or with a plug-in, may be missing.
void trustOwnFolderOnly()
{
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    SetDllDirectoryW(L""); // for the programs that this one starts: not the working folder

    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString &name : names) {
        if (isVariableOfQt(name))
            qunsetenv(name.toLocal8Bit().constData());
    }
    QCoreApplication::setLibraryPaths({ownFolder()});
}

void trustSystemsFoldersOnly()
{
    refuseUsersJunctions();
    setFolder(L"APPDATA", FOLDERID_RoamingAppData);
    setFolder(L"PUBLIC", FOLDERID_Public);
    for (const wchar_t *name : {L"ProgramData", L"ALLUSERSPROFILE"})
        setFolder(name, FOLDERID_ProgramData);
    const QString windows = windowsFolder();
    for (const wchar_t *name : {L"SystemRoot", L"windir"})
        setVariable(name, windows);
    if (!windows.isEmpty())
        setVariable(L"ComSpec", windows + QStringLiteral("\\System32\\cmd.exe"));
}

namespace Platform {

namespace {

// In all sessions of the machine.
constexpr wchar_t mutexName[] = L"Global\\Velmora NVX 2017 Configuration";

// The administrators own it, and only they and the system can open it.
constexpr wchar_t mutexRights[] = L"O:BAD:P(A;;GA;;;BA)(A;;GA;;;SY)";

Handle openMutex()
{
    PSECURITY_DESCRIPTOR rights = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(mutexRights, SDDL_REVISION_1, &rights, nullptr))
        return Handle();
    const Descriptor owned(rights);
    SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), rights, FALSE};
    return Handle(CreateMutexExW(&attributes, mutexName, 0, SYNCHRONIZE | MUTEX_MODIFY_STATE | READ_CONTROL));
}

// Anybody can create an object with our name before us, and let us wait for it.
bool belongsToAdministrators(HANDLE object)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(object, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr,
                        nullptr, &descriptor) != ERROR_SUCCESS)
        return false;
    const Descriptor owned(descriptor);
    return IsWellKnownSid(owner, WinBuiltinAdministratorsSid) || IsWellKnownSid(owner, WinLocalSystemSid);
}

class MutexLock final : public RunLock
{
public:
    MutexLock()
        : m_mutex(openMutex())
    {
        if (m_mutex && !belongsToAdministrators(m_mutex.get()))
            m_mutex.reset();
    }

    ~MutexLock() override
    {
        if (m_isOurs)
            ReleaseMutex(m_mutex.get());
    }

    Turn wait(std::chrono::milliseconds timeout) override
    {
        if (m_isOurs)
            return Turn::Ours;
        if (!m_mutex)
            return Turn::Unknown;
        switch (WaitForSingleObject(m_mutex.get(), static_cast<DWORD>(timeout.count()))) {
        case WAIT_OBJECT_0:
        case WAIT_ABANDONED: // the run that had it was killed
            m_isOurs = true;
            return Turn::Ours;
        case WAIT_TIMEOUT:
            return Turn::OtherRuns;
        default:
            return Turn::Unknown;
        }
    }

private:
    Handle m_mutex;
    bool m_isOurs = false;
};

} // namespace

std::shared_ptr<RunLock> runLock()
{
    return std::make_shared<MutexLock>();
}

namespace {

constexpr wchar_t logoffWindow[] = L"Velmora NVX 2017 Configuration";

LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_QUERYENDSESSION:
        return FALSE;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

// The system asks windows. A run blocks its thread and may have no window, so this one is hidden and has a
// thread of its own.
class LogoffHold
{
public:
    LogoffHold(const QString &title, const QString &reason)
    {
        std::promise<HWND> promise;
        std::future<HWND> created = promise.get_future();
        m_thread = std::thread(serve, std::move(promise), title.toStdWString(), reason.toStdWString());
        m_window = created.get();
    }
    LogoffHold(const LogoffHold &) = delete;
    LogoffHold &operator=(const LogoffHold &) = delete;
    ~LogoffHold()
    {
        if (m_window)
            PostMessageW(m_window, WM_CLOSE, 0, 0);
        m_thread.join();
    }

    explicit operator bool() const { return m_window != nullptr; }

private:
    static void serve(std::promise<HWND> created, const std::wstring &title, const std::wstring &reason)
    {
        const HWND window = create(title);
        if (window)
            ShutdownBlockReasonCreate(window, reason.c_str());
        created.set_value(window);
        MSG message;
        while (window && GetMessageW(&message, nullptr, 0, 0) > 0)
            DispatchMessageW(&message);
    }

    static HWND create(const std::wstring &title)
    {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = handleMessage;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = logoffWindow;
        RegisterClassW(&windowClass); // fails if it has been registered before
        return CreateWindowExW(0, logoffWindow, title.c_str(), WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                               windowClass.hInstance, nullptr);
    }

    std::thread m_thread;
    HWND m_window = nullptr;
};

} // namespace

std::shared_ptr<void> holdLogoff(const QString &title, const QString &reason)
{
    auto hold = std::make_shared<LogoffHold>(title, reason);
    return *hold ? hold : nullptr;
}

} // namespace Platform

} // namespace Nvx::Util
