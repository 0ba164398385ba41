// The search for CAD systems, and the installation run.

#include "cad/cad_systems.h"
#include "cad/launcher_step.h"
#include "cad/registry_listing.h"
#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_utilities/installation_steps.h"
#include "nvx_util/cpu_info.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "run/progress_view.h"

#include <QCoreApplication>

using namespace Nvx;
using namespace Nvx::Run;

void cfg_utilitys::searchCADPackages()
{
    if (m_state.cadSearchSuppressed)
        return;
    log(LogLevel::step, tr("Searching for CAD Packages"));
    const Cad::CadSearch search = Cad::searchCadPackages(Cad::MachineRegistryListing(), m_state.foundWord());
    for (const QString &line : search.lines)
        log(LogLevel::step, line);
    m_cadPackages = search.packages;
    for (const auto &[launcher, label] : search.checkBoxes) {
        m_launcherCheckBoxes->setFound(launcher, label.has_value());
        if (label)
            m_launcherCheckBoxes->setLabel(launcher, *label);
    }
    log(LogLevel::step, tr("Finished searching for CAD Packages"));
}

void cfg_utilitys::ProcessInstallation()
{
    const RunMode mode = m_state.runMode;
    const std::shared_ptr<void> hold = holdLogoff();
    log(LogLevel::step, tr("Beginning ") + m_state.modeWord(mode));
    reportPendingNotes();
    const Util::CpuInfo cpuInfo(m_log, m_state.installDir);
    reportProcessors(cpuInfo);

    for (const Engine::InstallationStep &step : Engine::installationSteps())
        step.run({.engine = *this, .context = context(), .mode = mode, .cpuInfo = cpuInfo});

    progress(LogLevel::step, tr("The installation or update is complete. Click finish to continue."));
    m_state.runComplete = true;
    if (m_progressView)
        m_progressView->runCompleteChanged();
}

std::shared_ptr<void> cfg_utilitys::holdLogoff()
{
    return m_machine.holdLogoff(
        tr("NVX Configuration Utility"),
        tr("%1 is being configured. If you sign out now, it stays incomplete.").arg(Product::fullName));
}

void cfg_utilitys::reportPendingNotes()
{
    for (const QString &note : std::as_const(m_state.pendingNotes))
        log(LogLevel::step, note);
    if (!m_progressView)
        return;
    m_progressView->clear();
    for (const QString &note : std::as_const(m_state.pendingNotes))
        m_progressView->appendRow(note);
}

// This line of the log deliberately has no time and no level.
void cfg_utilitys::reportProcessors(const Util::CpuInfo &cpuInfo)
{
    const QString text = tr("Processors: %1, Cores per processor: %2")
                             .arg(cpuInfo.processorCount())
                             .arg(cpuInfo.coresPerProcessor());
    m_log.append(text);
    if (m_progressView)
        m_progressView->appendRow(text);
    QCoreApplication::processEvents();
}

Cad::LauncherStep cfg_utilitys::launcherStep(RunMode mode)
{
    return {context(), m_cadPackages, *m_launcherCheckBoxes, m_sharedFolders, mode};
}

void cfg_utilitys::installLaunchers(RunMode mode)
{
    const Cad::LauncherStep step = launcherStep(mode);
    for (const Cad::CadSystem &system : Cad::cadSystems())
        system.install(step);
}
