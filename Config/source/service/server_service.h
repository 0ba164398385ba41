#pragma once

#include "run/step_context.h"
#include "service/nvx_service.h"

#include <QCoreApplication>

/// The product's server as a service of the machine: registers it, removes it, and stops it for an update.
/// Whatever state the service is in, removing and then installing ends with a freshly registered one that
/// has been started, as far as the machine lets us.
class ServerService
{
    Q_DECLARE_TR_FUNCTIONS(ServerService)

public:
    /// What became of the installation. The numbers are those of the engine's operation.
    enum class Installed
    {
        Yes = 0,
        ProgramMissing = 1,    ///< there is no NVXServer.exe; the user has been told
        RegistrationFailed = 2 ///< the program did not register itself; the user has been told
    };

    ServerService(const StepContext &context, NvxService &service);

    /// Has the server program register itself, and starts the service. Boxes for the user block.
    Installed install();

    /// Stops the service, if need be by ending its processes, deletes it and removes the folders that the
    /// server works in. What fails is logged.
    void uninstall();

private:
    void stop();
    void endProcesses();
    void remove();
    void removeWorkFolders();
    bool isActive() const;
    template<typename Condition>
    bool waitUntil(const Condition &condition) const;

    StepContext m_context;
    NvxService &m_service;
};
