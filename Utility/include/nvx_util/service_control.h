#pragma once

#include <QString>

#include <chrono>

namespace Nvx::Util {

/// The state of a service, from the service control manager.
enum class ServiceState
{
    NotInstalled, ///< there is no service with this name
    Stopped,      ///< or its process has ended without reporting that it stopped
    Active        ///< running, starting or stopping, or access to its state is denied
};

/// The result of asking a service to stop.
enum class ServiceStop
{
    Refused,  ///< not installed, not running, or not accepting the request now
    Stopped,  ///< it has stopped, and its process has ended
    NotInTime ///< it accepted the request and was still stopping at the time-out
};

/// The services of a machine. A service is given by the name under which it is registered. Without a service
/// control manager no service is installed and every request fails.
class ServiceControl
{
public:
    ServiceControl() = default;
    ServiceControl(const ServiceControl &) = delete;
    ServiceControl &operator=(const ServiceControl &) = delete;
    virtual ~ServiceControl() = default;

    virtual ServiceState state(const QString &name) const = 0;

    /// The registered description; empty if there is none.
    virtual QString description(const QString &name) const = 0;

    /// Starts a service without arguments. True if its program has been started; the service itself may still
    /// be starting.
    virtual bool start(const QString &name) = 0;

    /// Asks a service to stop, and waits up to the time-out for its process to end.
    virtual ServiceStop stop(const QString &name, std::chrono::milliseconds timeout) = 0;

    /// Deletes a service, or marks it for deletion: it is deleted once it has stopped and no program has it
    /// open. Until then its name cannot be registered again. True also if it was already marked.
    virtual bool remove(const QString &name) = 0;
};

} // namespace Nvx::Util
