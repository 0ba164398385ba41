#pragma once

#include "run/step_context.h"
#include "service/nvx_service.h"

#include <QCoreApplication>

namespace Nvx::Service {

/// Registers the product's server as a service and removes it. Removing and then installing it results in a
/// newly registered and started service, whatever state it was in, unless the machine refuses.
class ServerService
{
    Q_DECLARE_TR_FUNCTIONS(ServerService)

public:
    /// The result of an installation. The numbers are what the engine's operation returns.
    enum class Installed
    {
        Yes = 0,
        ProgramMissing = 1,    ///< NVXServer.exe does not exist; a message box said so
        RegistrationFailed = 2 ///< the program did not register itself; a message box said so
    };

    ServerService(const Run::StepContext &context, NvxService &service);

    /// Runs the server program to register itself, and starts the service. Blocks while a message box is
    /// open.
    Installed install();

    /// Stops the service, by ending its processes if necessary, deletes it and removes the server's work
    /// folders. Failures are logged.
    void uninstall();

private:
    void stop();
    void endProcesses();
    void remove();
    void removeWorkFolders();
    bool isActive() const;
    template<typename Condition>
    bool waitUntil(const Condition &condition) const;

    Run::StepContext m_context;
    NvxService &m_service;
};

} // namespace Nvx::Service
