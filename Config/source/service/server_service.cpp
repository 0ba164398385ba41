#include "service/server_service.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/service_control.h"
#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/diagnostics.h"
#include "run/process_finder.h"
#include "run/product_files.h"
#include "run/reporter.h"
#include "run/run_state.h"

#include <QFile>

#include <chrono>

using Nvx::Util::joinPath;
using Nvx::Util::ServiceState;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Nvx::Service {

namespace {

constexpr std::chrono::milliseconds pollInterval = 100ms;
constexpr std::chrono::milliseconds waitLimit = 10s;

QString analyzeFolder()
{
    return joinPath(Util::System::getProgramDataPath(Product::fullName), u"Analyze"_s);
}

} // namespace

ServerService::ServerService(const StepContext &context, NvxService &service)
    : m_context(context)
    , m_service(service)
{
}

ServerService::Installed ServerService::install()
{
    const QString path = joinPath(m_context.state.installDir, Product::serverProgram);
    if (!QFile::exists(path)) {
        m_context.reporter.inform(
            LogLevel::failure,
            tr("Unable to find server executable; Check_ Installation Directory path:") + path);
        return Installed::ProgramMissing;
    }

    // The new server must start without the configuration and the log of the old one.
    removeProductFile(joinPath(analyzeFolder(), u"solver_manager.cfg"_s));
    removeProductFile(joinPath(analyzeFolder(), u"solver_manager.log"_s));

    if (!NvxService::install(m_context.machine, path, QString(), QString())) {
        qCWarning(diagnostics, "%ls has not registered its service", qUtf16Printable(path));
        m_context.machine.tell(Util::BoxKind::Critical, tr("Server Error"),
                               tr("Unable to install the server"));
        return Installed::RegistrationFailed;
    }

    // Both calls return copies, so the description shown to users is the one that the server has registered.
    m_service.serviceDescription() = tr("Manages communication between NVX components.");
    m_service.serviceName() = Product::serverService;
    if (!m_service.start())
        qCWarning(diagnostics, "The server has been registered, but could not be started");
    return Installed::Yes;
}

void ServerService::uninstall()
{
    m_context.reporter.log(LogLevel::step, tr("uninstallServer "));
    stop();
    remove();
    removeWorkFolders();
}

void ServerService::stop()
{
    if (!m_service.stop()) {
        m_context.reporter.log(LogLevel::step, tr("uninstallServer - could not stop service"));
        endProcesses();
        m_service.stop();
    } else if (isActive()) {
        qCWarning(diagnostics, "The server did not stop in time; its process is ended");
        endProcesses();
    }
    // The service control manager needs a moment to notice that a process has ended. Until then the service
    // could only be marked for deletion.
    waitUntil([this] { return !isActive(); });
}

void ServerService::endProcesses()
{
    const auto name = u"NVXServer"_s;
    findProcesses(m_context, {u"NVXSERVER.EXE"_s, u"NVXSERVER"_s}, {name, name}, OnMatch::Terminate,
                  QString());
}

void ServerService::remove()
{
    if (!m_service.isInstalled()) {
        m_context.reporter.log(LogLevel::step, tr("uninstallServer - service was not installed"));
        return;
    }
    if (!m_service.uninstall()) {
        m_context.reporter.log(LogLevel::step, tr("uninstallServer - could not uninstall service"));
        return;
    }
    // The server cannot register itself again while the name is in use.
    if (!waitUntil([this] { return !m_service.isInstalled(); }))
        qCWarning(diagnostics,
                  "The service will be deleted once it has stopped and no other program has it open");
}

void ServerService::removeWorkFolders()
{
    CommandRunner runner(m_context);
    runner.removeDirectory(analyzeFolder());
    runner.removeDirectory(joinPath(m_context.state.installDir, u"HPCAnalyze"_s));
}

bool ServerService::isActive() const
{
    return m_context.machine.services().state(m_service.serviceName()) == ServiceState::Active;
}

template<typename Condition>
bool ServerService::waitUntil(const Condition &condition) const
{
    for (auto waited = 0ms; waited < waitLimit; waited += pollInterval) {
        if (condition())
            return true;
        m_context.machine.sleep(pollInterval);
    }
    return condition();
}

} // namespace Nvx::Service
