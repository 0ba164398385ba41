#include "nvx_util/service_control.h"

#include "platform.h"

#include <QByteArray>

#include <algorithm>
#include <memory>
#include <optional>
#include <thread>
#include <type_traits>

#include <windows.h>

namespace Nvx::Util::Platform {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds pollInterval{50};

struct CloseService
{
    void operator()(SC_HANDLE handle) const { CloseServiceHandle(handle); }
};
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, CloseService>;

struct CloseObject
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using ProcessHandle = std::unique_ptr<void, CloseObject>;

struct OpenedService
{
    ServiceHandle handle;
    bool isDenied = false;
};

/// Opens a service with certain rights. The handle is null if the service does not exist or access is denied.
OpenedService tryToOpen(const QString &name, DWORD rights)
{
    OpenedService service;
    const ServiceHandle control(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    if (!control)
        return service;
    service.handle.reset(OpenServiceW(control.get(), name.toStdWString().c_str(), rights));
    service.isDenied = !service.handle && GetLastError() == ERROR_ACCESS_DENIED;
    return service;
}

ServiceHandle open(const QString &name, DWORD rights)
{
    return tryToOpen(name, rights).handle;
}

std::optional<SERVICE_STATUS_PROCESS> statusOf(const ServiceHandle &service)
{
    SERVICE_STATUS_PROCESS status = {};
    DWORD needed = 0;
    if (!QueryServiceStatusEx(service.get(), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE *>(&status),
                              sizeof status, &needed))
        return std::nullopt;
    return status;
}

/// The process of the service, opened for waiting; null if there is none.
ProcessHandle processOf(const ServiceHandle &service)
{
    const auto status = statusOf(service);
    if (!status || status->dwProcessId == 0)
        return nullptr;
    return ProcessHandle(OpenProcess(SYNCHRONIZE, FALSE, status->dwProcessId));
}

/// Whether the process of a service has ended. The control manager may notice that late or never.
bool isWithoutProcess(const SERVICE_STATUS_PROCESS &status)
{
    if (status.dwProcessId == 0)
        return status.dwCurrentState == SERVICE_RUNNING; // when starting, it may not have one yet
    const ProcessHandle process(OpenProcess(SYNCHRONIZE, FALSE, status.dwProcessId));
    if (!process)
        return GetLastError() == ERROR_INVALID_PARAMETER; // no process has this id
    return WaitForSingleObject(process.get(), 0) == WAIT_OBJECT_0;
}

/// Waits until the service has stopped. A service whose state can no longer be queried counts as stopped.
bool waitUntilStopped(const ServiceHandle &service, Clock::time_point deadline)
{
    for (;;) {
        const auto status = statusOf(service);
        if (!status || status->dwCurrentState == SERVICE_STOPPED)
            return true;
        if (Clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(pollInterval);
    }
}

/// Waits for the end of a process. A service reports that it stopped before its process ends, and its files
/// are in use until then.
bool waitForEnd(const ProcessHandle &process, Clock::time_point deadline)
{
    if (!process)
        return true;
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
    return WaitForSingleObject(process.get(), static_cast<DWORD>(std::max<qint64>(0, left.count()))) ==
           WAIT_OBJECT_0;
}

class NativeServices final : public ServiceControl
{
public:
    ServiceState state(const QString &name) const override;
    QString description(const QString &name) const override;
    bool start(const QString &name) override;
    ServiceStop stop(const QString &name, milliseconds timeout) override;
    bool remove(const QString &name) override;
};

ServiceState NativeServices::state(const QString &name) const
{
    const OpenedService service = tryToOpen(name, SERVICE_QUERY_STATUS);
    if (!service.handle)
        return service.isDenied ? ServiceState::Active : ServiceState::NotInstalled;
    const auto status = statusOf(service.handle);
    if (!status)
        return ServiceState::Active;
    const bool isStopped = status->dwCurrentState == SERVICE_STOPPED || isWithoutProcess(*status);
    return isStopped ? ServiceState::Stopped : ServiceState::Active;
}

QString NativeServices::description(const QString &name) const
{
    const ServiceHandle service = open(name, SERVICE_QUERY_CONFIG);
    if (!service)
        return QString();
    DWORD needed = 0;
    QueryServiceConfig2W(service.get(), SERVICE_CONFIG_DESCRIPTION, nullptr, 0, &needed);
    QByteArray buffer(static_cast<qsizetype>(needed), '\0');
    if (needed < sizeof(SERVICE_DESCRIPTIONW) ||
        !QueryServiceConfig2W(service.get(), SERVICE_CONFIG_DESCRIPTION,
                              reinterpret_cast<BYTE *>(buffer.data()), needed, &needed))
        return QString();
    const wchar_t *text = reinterpret_cast<const SERVICE_DESCRIPTIONW *>(buffer.constData())->lpDescription;
    return text ? QString::fromWCharArray(text) : QString();
}

bool NativeServices::start(const QString &name)
{
    const ServiceHandle service = open(name, SERVICE_START);
    return service && StartServiceW(service.get(), 0, nullptr);
}

ServiceStop NativeServices::stop(const QString &name, milliseconds timeout)
{
    const ServiceHandle service = open(name, SERVICE_STOP | SERVICE_QUERY_STATUS);
    if (!service)
        return ServiceStop::Refused;
    const ProcessHandle process = processOf(service);
    const auto deadline = Clock::now() + timeout;
    SERVICE_STATUS ignored = {};
    if (!ControlService(service.get(), SERVICE_CONTROL_STOP, &ignored))
        return ServiceStop::Refused;
    const bool ended = waitUntilStopped(service, deadline) && waitForEnd(process, deadline);
    return ended ? ServiceStop::Stopped : ServiceStop::NotInTime;
}

bool NativeServices::remove(const QString &name)
{
    const ServiceHandle service = open(name, DELETE);
    return service && (DeleteService(service.get()) || GetLastError() == ERROR_SERVICE_MARKED_FOR_DELETE);
}

} // namespace

ServiceControl &services()
{
    static NativeServices services;
    return services;
}

} // namespace Nvx::Util::Platform
