#include "service/service_controller.h"

#include "nvx_util/machine.h"
#include "nvx_util/service_control.h"

#include <QFileInfo>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using Nvx::Util::ServiceState;
using Nvx::Util::ServiceStop;

namespace {

// The system gives a service twenty seconds when it shuts down.
constexpr std::chrono::seconds patienceAtStop{20};

// A program that waits for an answer must not hold a silent run for ever.
constexpr int registrationTimeoutMs = 120000;

} // namespace

ServiceController::ServiceController(Nvx::Util::Machine &machine, const QString &serviceName)
    : m_machine(&machine)
    , m_serviceName(serviceName)
{
}

bool ServiceController::install(Nvx::Util::Machine &machine, const QString &path, const QString &account,
                                const QString &password)
{
    ProgramCall call;
    call.program = path;
    call.arguments = QStringList{QStringLiteral("-i")};
    if (!account.isEmpty())
        call.arguments << account << password;
    call.workFolder = QFileInfo(path).path();
    call.timeoutMs = registrationTimeoutMs;
    call.outputLimit = 0;
    const ProgramResult result = machine.run(call);
    return result.outcome == ProgramResult::Outcome::Exited && result.exitCode == 0;
}

bool ServiceController::isInstalled() const
{
    return m_machine->services().state(m_serviceName) != ServiceState::NotInstalled;
}

bool ServiceController::start()
{
    return m_machine->services().start(m_serviceName);
}

bool ServiceController::stop()
{
    return m_machine->services().stop(m_serviceName, patienceAtStop) != ServiceStop::Refused;
}

bool ServiceController::uninstall()
{
    return m_machine->services().remove(m_serviceName);
}

QString ServiceController::serviceDescription() const
{
    return m_machine->services().description(m_serviceName);
}
