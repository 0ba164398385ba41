// The launchers in the CAD systems.

#include "cad/com_launchers.h"
#include "cad/creo/creo_launcher.h"
#include "cad/nx/nx_launcher.h"
#include "cad/spaceclaim/spaceclaim_launcher.h"
#include "cad/tamsel/tamsel_launcher.h"
#include "cfg_utilities/cfg_utilitys.h"

void cfg_utilitys::installLaunchers(RunMode mode)
{
    installBrevantLauncher(mode);
    installCreoLauncher(mode);
    installSolidWorksLauncher(mode);
    installNXLauncher(mode);
    installTamselLauncher(mode);
    installSpaceClaimLauncher(mode);
}

void cfg_utilitys::installBrevantLauncher(RunMode mode)
{
    ::installBrevantLauncher(context(), *m_launcherBoxes, mode);
}

void cfg_utilitys::installCreoLauncher(RunMode mode)
{
    ::installCreoLauncher(context(), m_cadPackages, *m_launcherBoxes, mode);
}

void cfg_utilitys::installSolidWorksLauncher(RunMode mode)
{
    ::installSolidWorksLauncher(context(), *m_launcherBoxes, mode);
}

void cfg_utilitys::installNXLauncher(RunMode mode)
{
    ::installNXLauncher(context(), m_cadPackages, *m_launcherBoxes, mode);
}

void cfg_utilitys::installTamselLauncher(RunMode mode)
{
    ::installTamselLauncher(context(), m_cadPackages, *m_launcherBoxes, m_sharedFolders, mode);
}

void cfg_utilitys::installTamselAddin(RunMode mode, int year)
{
    ::installTamselAddin(context(), m_sharedFolders, mode, year);
}

void cfg_utilitys::installSpaceClaimLauncher(RunMode mode)
{
    ::installSpaceClaimLauncher(context(), *m_launcherBoxes, m_sharedFolders, mode);
}
