#pragma once

#include <QString>

#include <chrono>

namespace Nvx::Util {

/// What the service control manager says of a service.
enum class ServiceState
{
    NotInstalled, ///< it knows no service of that name
    Stopped,      ///< also when its process has ended without a word
    Active        ///< running, on its way there or back, or its state is closed to us
};

/// What became of the request to stop a service.
enum class ServiceStop
{
    Refused,  ///< not installed, not running, or it takes no such request now
    Stopped,  ///< it has stopped, and its process has ended
    NotInTime ///< it took the request, and was still at it when the time was over
};

/// The services of a machine. A service is named by the name that it is registered under. Where there is no
/// service control manager no service is installed and every request fails.
class ServiceControl
{
public:
    ServiceControl() = default;
    ServiceControl(const ServiceControl &) = delete;
    ServiceControl &operator=(const ServiceControl &) = delete;
    virtual ~ServiceControl() = default;

    virtual ServiceState state(const QString &name) const = 0;

    /// The description that is registered for people; empty when there is none.
    virtual QString description(const QString &name) const = 0;

    /// Starts a service without arguments. True when its program has been started; the service itself may
    /// need some more time.
    virtual bool start(const QString &name) = 0;

    /// Asks a service to stop, and waits for it for no more than the time given.
    virtual ServiceStop stop(const QString &name, std::chrono::milliseconds patience) = 0;

    /// Deletes a service, or marks it for deletion: it goes once it has stopped and nobody looks at it any
    /// more, and until then its name is taken. True also when it was marked already.
    virtual bool remove(const QString &name) = 0;
};

} // namespace Nvx::Util
