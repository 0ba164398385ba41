// The operations that only forward to the modules of the steps.

#include "cad/brevant/brevant.h"
#include "cad/creo/creo.h"
#include "cad/launcher_step.h"
#include "cad/nx/nx.h"
#include "cad/process_guard.h"
#include "cad/solidworks/solidworks.h"
#include "cad/spaceclaim/spaceclaim.h"
#include "cad/tamsel/tamsel.h"
#include "cfg_utilities/cfg_utilitys.h"
#include "localization/util_localization_tool.h"
#include "service/server_service.h"
#include "setup/archive_components.h"
#include "setup/file_associations.h"
#include "setup/material_database.h"
#include "setup/parallel_configuration.h"
#include "setup/product_registry.h"
#include "setup/shortcuts.h"
#include "setup/user_files.h"

using namespace Nvx;

int cfg_utilitys::runCommand(const QString &program, const QStringList &arguments, const QString &workFolder,
                             int timeoutMs)
{
    return Run::CommandRunner(context()).runCommand(program, arguments, workFolder, timeoutMs);
}

bool cfg_utilitys::removeDirectory(const QString &path)
{
    return Run::CommandRunner(context()).removeDirectory(path);
}

bool cfg_utilitys::removeMatchingFiles(const QString &folder, const QString &pattern)
{
    return Run::CommandRunner(context()).removeMatchingFiles(folder, pattern);
}

int cfg_utilitys::installTutorials(RunMode mode)
{
    return Setup::ArchiveComponents(context()).installTutorials(mode);
}

int cfg_utilitys::installPython(RunMode mode)
{
    return Setup::ArchiveComponents(context()).installPython(mode);
}

int cfg_utilitys::installMertleServer(RunMode mode)
{
    return Setup::ArchiveComponents(context()).installMertleServer(mode);
}

void cfg_utilitys::createParallelConfiguration(RunMode mode, const Util::CpuInfo &cpuInfo)
{
    Setup::createParallelConfiguration(context(), mode, cpuInfo);
}

int cfg_utilitys::updateRegistry(RunMode mode)
{
    return Setup::updateRegistry(context(), mode);
}

int cfg_utilitys::configureViewer(RunMode mode)
{
    return Setup::configureViewer(context(), mode);
}

int cfg_utilitys::createFileAssociations(RunMode mode)
{
    return Setup::createFileAssociations(context(), mode);
}

int cfg_utilitys::createShortcuts(RunMode mode)
{
    return Setup::createShortcuts(context(), mode);
}

int cfg_utilitys::createShortcut(const QString &target, const QString &linkPath, const QString &description,
                                 const QString &iconPath, const QString &arguments)
{
    return Setup::createShortcut(context(), target, linkPath, description, iconPath, arguments);
}

int cfg_utilitys::checkMaterialDatabase(RunMode mode)
{
    return Setup::MaterialDatabase(context()).check(mode);
}

void cfg_utilitys::resetSorvane(RunMode mode)
{
    Setup::UserFiles(context()).resetSorvane(mode);
}

void cfg_utilitys::cleanLumara(RunMode mode)
{
    Setup::UserFiles(context()).cleanLumara(mode);
}

void cfg_utilitys::removeOldFiles(Engine::OldFiles treatment)
{
    if (treatment == Engine::OldFiles::Keep)
        return;
    Setup::UserFiles(context()).removeOldFiles();
    m_log.close();
    if (m_state.silent)
        Setup::UserFiles(context()).removeLog();
}

int cfg_utilitys::installServer()
{
    return static_cast<int>(Service::ServerService(context(), m_service).install());
}

int cfg_utilitys::uninstallServer()
{
    Service::ServerService(context(), m_service).uninstall();
    return 0;
}

int cfg_utilitys::stopServices(RunMode mode)
{
    const std::shared_ptr<void> hold = holdLogoff();
    uninstallServer();
    if (mode == RunMode::Install)
        installServer();
    return 0;
}

void cfg_utilitys::initLocalizationTool()
{
    if (!m_localizationTool)
        m_localizationTool = std::make_unique<util::util_localization_tool>(context());
}

bool cfg_utilitys::checkRunningCAD()
{
    return Cad::guardAgainstRunningCad(context());
}

bool cfg_utilitys::checkRunningProduct(Run::OnMatch onMatch)
{
    return Cad::guardAgainstRunningProduct(context(), onMatch);
}

void cfg_utilitys::installBrevantLauncher(RunMode mode)
{
    Cad::installBrevantLauncher(launcherStep(mode));
}

void cfg_utilitys::installCreoLauncher(RunMode mode)
{
    Cad::installCreoLauncher(launcherStep(mode));
}

void cfg_utilitys::installSolidWorksLauncher(RunMode mode)
{
    Cad::installSolidWorksLauncher(launcherStep(mode));
}

void cfg_utilitys::installNXLauncher(RunMode mode)
{
    Cad::installNxLauncher(launcherStep(mode));
}

void cfg_utilitys::installTamselLauncher(RunMode mode)
{
    Cad::installTamselLauncher(launcherStep(mode));
    Cad::installTamselArchitectureLauncher(launcherStep(mode));
    Cad::installTamselMepLauncher(launcherStep(mode));
}

void cfg_utilitys::installTamselAddin(RunMode mode, int year)
{
    Cad::installTamselAddin(launcherStep(mode), year);
}

void cfg_utilitys::installSpaceClaimLauncher(RunMode mode)
{
    Cad::installSpaceClaimLauncher(launcherStep(mode));
}
