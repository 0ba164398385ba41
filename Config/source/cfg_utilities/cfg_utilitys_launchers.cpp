// The launchers in the CAD systems. Except installLaunchers, each operation only forwards to the step of its
// name in the module cad.

#include "cad/brevant/brevant.h"
#include "cad/cad_systems.h"
#include "cad/creo/creo.h"
#include "cad/launcher_step.h"
#include "cad/nx/nx.h"
#include "cad/solidworks/solidworks.h"
#include "cad/spaceclaim/spaceclaim.h"
#include "cad/tamsel/tamsel.h"
#include "cfg_utilities/cfg_utilitys.h"

using namespace Nvx;

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
