// The installation run: every step in its order.

#include "cfg_utilities/cfg_utilitys.h"
#include "nvx_util/cpu_info.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "run/progress_view.h"

#include <QCoreApplication>

void cfg_utilitys::ProcessInstallation()
{
    const RunMode mode = m_state.runMode;
    log(LogLevel::step, tr("Beginning ") + m_state.modeWord(mode));
    tellPendingNotes();
    const Nvx::Util::CpuInfo cpuInfo(m_log, m_state.installDir);
    tellProcessors(cpuInfo);

    installTutorials(mode);
    installPython(mode);
    installMertleServer(mode);
    createParallelConfiguration(mode, cpuInfo);
    updateRegistry(mode);
    createFileAssociations(mode);
    // What is registered now may be of an older version, so the server is always registered afresh.
    uninstallServer();
    if (mode == RunMode::Install)
        installServer();
    createShortcuts(mode);
    installLaunchers(mode);
    m_machine.notifyAssociationsChanged();
    processFlagFile(Nvx::Product::flagsFile, mode);
    checkMaterialDatabase(mode);
    cleanLumara(mode);

    progress(LogLevel::step, tr("The installation or update is complete. Click finish to continue."));
    m_state.runComplete = true;
    if (m_progressView)
        m_progressView->runCompleteChanged();
}

void cfg_utilitys::tellPendingNotes()
{
    for (const QString &note : std::as_const(m_state.pendingNotes))
        log(LogLevel::step, note);
    if (!m_progressView)
        return;
    m_progressView->clear();
    for (const QString &note : std::as_const(m_state.pendingNotes))
        m_progressView->appendRow(note);
}

// This one line of the log has neither time nor level.
void cfg_utilitys::tellProcessors(const Nvx::Util::CpuInfo &cpuInfo)
{
    const QString text = tr("Processors: %1, Cores per processor: %2")
                             .arg(cpuInfo.processorCount())
                             .arg(cpuInfo.coresPerProcessor());
    m_log.append(text);
    if (m_progressView)
        m_progressView->appendRow(text);
    QCoreApplication::processEvents();
}
