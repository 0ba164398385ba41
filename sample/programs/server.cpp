// Stands in for the product's server: a real service.
//
//     NVXServer.exe -i     registers itself as the service "NVX 2017 Server", started on demand
//     NVXServer.exe        started by the service control manager
//
// It writes its configuration and its log to the product's Analyze folder, and has the log open while it
// runs. A file next to it with its name and one of these endings makes it fail:
//
//     .fails-to-register   "-i" registers nothing and exits with 1
//     .refuses-to-stop     it does not accept a request to stop
//     .hangs-at-stop       it accepts the request and continues
//
// It checks for these files all the time; once they are deleted, it works as usual.

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
std::atomic<bool> acceptsStop{true};

std::wstring ownPath()
{
    wchar_t path[32768] = {};
    GetModuleFileNameW(nullptr, path, 32768);
    return path;
}

bool isToldTo(const wchar_t *ending)
{
    return GetFileAttributesW((ownPath() + ending).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring makeAnalyzeFolder()
{
    // From the shell: the environment of a service may differ from that of the users.
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
    if (state == SERVICE_RUNNING && acceptsStop)
        status.dwControlsAccepted = SERVICE_ACCEPT_STOP;
    if (state == SERVICE_STOP_PENDING)
        status.dwWaitHint = 1000;
    SetServiceStatus(statusHandle, &status);
}

DWORD WINAPI handleControl(DWORD control, DWORD /*eventType*/, void * /*event*/, void * /*context*/)
{
    if (control == SERVICE_CONTROL_INTERROGATE)
        return NO_ERROR;
    if (control != SERVICE_CONTROL_STOP || !acceptsStop)
        return ERROR_CALL_NOT_IMPLEMENTED;
    report(SERVICE_STOP_PENDING);
    SetEvent(stopRequested);
    return NO_ERROR;
}

void waitForStop()
{
    while (WaitForSingleObject(stopRequested, 100) != WAIT_OBJECT_0) {
        const bool acceptsNow = !isToldTo(L".refuses-to-stop");
        if (acceptsStop.exchange(acceptsNow) != acceptsNow)
            report(SERVICE_RUNNING);
    }
    while (isToldTo(L".hangs-at-stop"))
        Sleep(100);
}

void WINAPI serve(DWORD /*argc*/, wchar_t ** /*argv*/)
{
    stopRequested = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    acceptsStop = !isToldTo(L".refuses-to-stop");
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
    if (isToldTo(L".fails-to-register")) {
        std::puts("The server was told to fail.");
        return 1;
    }
    // Without quotes, part of a path with blanks could be taken as the program.
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
