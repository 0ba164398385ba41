#pragma once

#include <QString>

namespace Nvx::Util {
class Machine;
}

/// Controls one service by its name.
class ServiceController
{
public:
    /// The machine must outlive the controller.
    ServiceController(Nvx::Util::Machine &machine, const QString &serviceName);

    /// Has a service program register its own service, by running it with the argument "-i" and, when they
    /// are not empty, the account that the service is to run under and its password. The program writes the
    /// registration, its path and description included. Waits for the program's end. True when it ended
    /// with exit code 0.
    static bool install(Nvx::Util::Machine &machine, const QString &path, const QString &account,
                        const QString &password);

    /// Whether the service control manager knows the service.
    bool isInstalled() const;

    /// Starts the service without arguments. True when its program has been started.
    bool start();

    /// Stops the service. True when it took the request; it is then given some time to stop, after which it
    /// may still be active.
    bool stop();

    /// Deletes the service from the service control manager. True on success; the name is free again once
    /// the service has stopped and no program looks at it any more.
    bool uninstall();

    /// The description that the service is registered with.
    QString serviceDescription() const;

    QString serviceName() const { return m_serviceName; }

private:
    Nvx::Util::Machine *m_machine;
    QString m_serviceName;
};
