// The CAD systems of the machine: which there are, and whether they run.

#include "cad/cad_search.h"
#include "cad/machine_registry_listing.h"
#include "cad/process_guard.h"
#include "cfg_utilities/cfg_utilitys.h"

void cfg_utilitys::searchCADPackages()
{
    if (m_state.cadSearchSuppressed)
        return;
    log(LogLevel::step, tr("Searching for CAD Packages"));
    const CadSearch search = searchCadPackages(MachineRegistryListing(), m_state.foundWord());
    for (const QString &line : search.lines)
        log(LogLevel::step, line);
    m_cadPackages = search.packages;
    for (const LauncherBox &box : search.boxes) {
        m_launcherBoxes->setFound(box.launcher, box.found);
        if (!box.label.isEmpty())
            m_launcherBoxes->setLabel(box.launcher, box.label);
    }
    log(LogLevel::step, tr("Finished searching for CAD Packages"));
}

bool cfg_utilitys::checkRunningCAD()
{
    return guardAgainstRunningCad(context());
}

bool cfg_utilitys::checkRunningProduct(OnMatch onMatch)
{
    return guardAgainstRunningProduct(context(), onMatch);
}
