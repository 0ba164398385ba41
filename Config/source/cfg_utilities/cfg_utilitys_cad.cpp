// The CAD systems of the machine: which of them are installed, and which are running.

#include "cad/cad_search.h"
#include "cad/machine_registry_listing.h"
#include "cad/process_guard.h"
#include "cfg_utilities/cfg_utilitys.h"

using namespace Nvx::Run;
using namespace Nvx;

void cfg_utilitys::searchCADPackages()
{
    if (m_state.cadSearchSuppressed)
        return;
    log(LogLevel::step, tr("Searching for CAD Packages"));
    const Cad::CadSearch search = searchCadPackages(Cad::MachineRegistryListing(), m_state.foundWord());
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

bool cfg_utilitys::checkRunningCAD()
{
    return Cad::guardAgainstRunningCad(context());
}

bool cfg_utilitys::checkRunningProduct(OnMatch onMatch)
{
    return Cad::guardAgainstRunningProduct(context(), onMatch);
}
