#include "service/service_controller.h"

#include "nvx_util/machine.h"
#include "nvx_util/service_control.h"

#include <QFileInfo>

#include <chrono>

using Nvx::Util::ProgramResult;
using Nvx::Util::ServiceState;
using Nvx::Util::ServiceStop;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Nvx::Service {

namespace {

// As long as Windows waits for a service when it shuts down.
constexpr std::chrono::milliseconds stopTimeout = 20s;

// A program that waits for input must not block a silent run for ever.
constexpr std::chrono::milliseconds registrationTimeout = 2min;

} // namespace

ServiceController::ServiceController(Util::Machine &machine, const QString &serviceName)
    : m_machine(&machine)
    , m_serviceName(serviceName)
{
}

bool ServiceController::install(Util::Machine &machine, const QString &path, const QString &account,
                                const QString &password)
{
    QStringList arguments = {u"-i"_s};
    if (!account.isEmpty())
        arguments << account << password;
    const ProgramResult result = machine.run({.program = path,
                                              .arguments = arguments,
                                              .workFolder = QFileInfo(path).path(),
                                              .timeoutMs = static_cast<int>(registrationTimeout.count()),
                                              .outputLimit = 0});
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
    return m_machine->services().stop(m_serviceName, stopTimeout) != ServiceStop::Refused;
}

bool ServiceController::uninstall()
{
    return m_machine->services().remove(m_serviceName);
}

QString ServiceController::serviceDescription() const
{
    return m_machine->services().description(m_serviceName);
}

} // namespace Nvx::Service
