#include "cad/com_launchers.h"

#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/launcher_boxes.h"
#include "run/reporter.h"

#include <QCoreApplication>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ComLaunchers)
};

/// library is named by its path below the install dir, with "/".
void registerLibrary(const StepContext &context, const QString &library, RunMode mode)
{
    const auto registrar = QStringLiteral("regsvr32");
    const auto unregister = QStringLiteral("-u");
    const auto silently = QStringLiteral("-s");
    const QString path = Nvx::Util::joinPath(context.state.installDir, library);

    CommandRunner runner(context);
    runner.runSystemCommand(registrar, {unregister, silently, path}, QString());
    if (mode == RunMode::Install)
        runner.runSystemCommand(registrar, {silently, path}, QString());
}

} // namespace

void installBrevantLauncher(const StepContext &context, const LauncherBoxes &boxes, RunMode mode)
{
    if (!boxes.isTicked(Launcher::Brevant))
        return;
    context.reporter.progress(LogLevel::step, Messages::tr("Configure Brevant"));
    registerLibrary(context, QStringLiteral("Launchers/Brevant/NVX_2017_Brevant.dll"), mode);
}

void installSolidWorksLauncher(const StepContext &context, const LauncherBoxes &boxes, RunMode mode)
{
    if (!boxes.isTicked(Launcher::SolidWorks))
        return;
    context.reporter.progress(LogLevel::step, QStringLiteral("SolidWorks"));
    registerLibrary(context, QStringLiteral("Launchers/SolidWorks/NVX_2017_SolidWorks.dll"), mode);
}
