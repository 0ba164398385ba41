// The installation run.

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_utilities/installation_steps.h"
#include "nvx_util/cpu_info.h"
#include "run/progress_view.h"

#include <QCoreApplication>

using namespace Nvx;
using namespace Nvx::Run;

void cfg_utilitys::ProcessInstallation()
{
    const RunMode mode = m_state.runMode;
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
