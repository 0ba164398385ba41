#pragma once

#include "cad/launcher_check_boxes.h"
#include "run/run_state.h"
#include "run/step_context.h"

#include <QString>

namespace Nvx::Cad {

struct CadPackages;
struct SharedFolders;

/// What the installation or removal of a launcher works with.
struct LauncherStep
{
    Run::StepContext context;
    const CadPackages &packages;
    const LauncherCheckBoxes &checkBoxes;
    const SharedFolders &folders;
    Run::RunMode mode; ///< anything but Install removes

    bool isInstall() const { return mode == Run::RunMode::Install; }
    bool isChecked(Launcher launcher) const { return checkBoxes.isChecked(launcher); }
};

/// Unregisters a COM library with the system's regsvr32, and on install registers it again. library is its
/// path below the install dir, with "/".
void configureComLibrary(const LauncherStep &step, const QString &library);

} // namespace Nvx::Cad
