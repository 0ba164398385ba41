#pragma once

#include <QString>

namespace Nvx::Util {
class Machine;
}

namespace Nvx::Service {

/// Controls one service by its name.
class ServiceController
{
public:
    /// The machine must outlive the controller.
    ServiceController(Util::Machine &machine, const QString &serviceName);

    /// Runs a service program with the argument "-i" to register its own service, path and description
    /// included. If account is not empty, the service will run under that account; account and password are
    /// further arguments. Waits until the program ends. Returns true if its exit code is 0.
    static bool install(Util::Machine &machine, const QString &path, const QString &account,
                        const QString &password);

    /// Whether the service control manager knows the service.
    bool isInstalled() const;

    /// Starts the service without arguments. Returns true if its program was started.
    bool start();

    /// Asks the service to stop and waits up to 20 seconds for it. Returns true if it accepted the request,
    /// even if it is still active afterwards.
    bool stop();

    /// Deletes the service from the service control manager. Returns true on success. The name can be used
    /// again once the service has stopped and no other program has it open.
    bool uninstall();

    /// The registered description of the service.
    QString serviceDescription() const;

    QString serviceName() const { return m_serviceName; }

private:
    Util::Machine *m_machine;
    QString m_serviceName;
};

} // namespace Nvx::Service
