// Stands for the product's server: a real service program.
//
//     NVXServer.exe -i     registers itself as the service "NVX 2017 Server", to be started by hand
//     NVXServer.exe        is how the service control manager starts it
//
// It writes its configuration and its log into the product's Analyze folder and keeps the log open as long as
// it runs. Files beside it, named as it is and with one of these endings, make it worse:
//
//     .fails-to-register   "-i" ends with 1 and registers nothing
//     .refuses-to-stop     it takes no request to stop
//     .hangs-at-stop       it takes the request and goes on
//
// It looks for them all the time, and behaves as soon as they are gone.

#include <atomic>
#include <cstdio>
#include <cstring>
#include <string>

#include <windows.h>

#include <shlobj.h>

namespace {

wchar_t serviceName[] = L"NVX 2017 Server";
wchar_t serviceDescription[] = L"Sample server: registered by itself.";

SERVICE_STATUS_HANDLE statusHandle = nullptr;
HANDLE stopRequested = nullptr;
std::atomic<bool> takesStop{true};

std::wstring ownPath()
{
    wchar_t path[32768] = {};
    GetModuleFileNameW(nullptr, path, 32768);
    return path;
}

bool isTold(const wchar_t *ending)
{
    return GetFileAttributesW((ownPath() + ending).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring makeAnalyzeFolder()
{
    // Asked of the shell: a service may have another environment than its users.
    wchar_t data[MAX_PATH] = {};
    SHGetFolderPathW(nullptr, CSIDL_COMMON_APPDATA, nullptr, SHGFP_TYPE_CURRENT, data);
    std::wstring folder = data;
    for (const wchar_t *name : {L"\\Velmora", L"\\NVX 2017", L"\\Analyze"}) {
        folder += name;
        CreateDirectoryW(folder.c_str(), nullptr);
    }
    return folder;
}

void report(DWORD state)
{
    SERVICE_STATUS status = {};
    status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    status.dwCurrentState = state;
    if (state == SERVICE_RUNNING && takesStop)
        status.dwControlsAccepted = SERVICE_ACCEPT_STOP;
    if (state == SERVICE_STOP_PENDING)
        status.dwWaitHint = 1000;
    SetServiceStatus(statusHandle, &status);
}

DWORD WINAPI handleControl(DWORD control, DWORD /*eventType*/, void * /*event*/, void * /*context*/)
{
    if (control == SERVICE_CONTROL_INTERROGATE)
        return NO_ERROR;
    if (control != SERVICE_CONTROL_STOP || !takesStop)
        return ERROR_CALL_NOT_IMPLEMENTED;
    report(SERVICE_STOP_PENDING);
    SetEvent(stopRequested);
    return NO_ERROR;
}

void waitForStop()
{
    while (WaitForSingleObject(stopRequested, 100) != WAIT_OBJECT_0) {
        const bool takesItNow = !isTold(L".refuses-to-stop");
        if (takesStop.exchange(takesItNow) != takesItNow)
            report(SERVICE_RUNNING);
    }
    while (isTold(L".hangs-at-stop"))
        Sleep(100);
}

void WINAPI serve(DWORD /*argc*/, wchar_t ** /*argv*/)
{
    stopRequested = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    takesStop = !isTold(L".refuses-to-stop");
    statusHandle = RegisterServiceCtrlHandlerExW(serviceName, handleControl, nullptr);
    const std::wstring folder = makeAnalyzeFolder();
    std::FILE *configuration = _wfopen((folder + L"\\solver_manager.cfg").c_str(), L"w");
    if (configuration)
        std::fclose(configuration);
    std::FILE *log = _wfopen((folder + L"\\solver_manager.log").c_str(), L"w");
    report(SERVICE_RUNNING);
    waitForStop();
    if (log)
        std::fclose(log);
    report(SERVICE_STOPPED);
}

int registerService()
{
    if (isTold(L".fails-to-register")) {
        std::puts("The server was told to fail.");
        return 1;
    }
    // Without the quotes a path with blanks could be read as that of another program.
    const std::wstring command = L'"' + ownPath() + L'"';
    const SC_HANDLE control = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CREATE_SERVICE);
    const SC_HANDLE service =
        CreateServiceW(control, serviceName, serviceName, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                       SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL, command.c_str(), nullptr, nullptr, nullptr,
                       nullptr, nullptr);
    if (!service) {
        std::printf("The server could not register itself: error %lu\n", GetLastError());
        return 1;
    }
    SERVICE_DESCRIPTIONW description = {serviceDescription};
    ChangeServiceConfig2W(service, SERVICE_CONFIG_DESCRIPTION, &description);
    CloseServiceHandle(service);
    CloseServiceHandle(control);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "-i") == 0)
        return registerService();
    const SERVICE_TABLE_ENTRYW table[] = {{serviceName, serve}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherW(table) ? 0 : 1;
}
