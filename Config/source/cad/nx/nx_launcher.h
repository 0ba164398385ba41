#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

struct CadPackages;
class LauncherBoxes;

/// When the box is ticked, enters the launcher's folder into custom_dirs.dat of every NX that was found, or
/// removes it from there. The file as it was before the first install is kept beside it with ".bak" added to
/// its name.
void installNXLauncher(const StepContext &context, const CadPackages &packages, const LauncherBoxes &boxes,
                       RunMode mode);
