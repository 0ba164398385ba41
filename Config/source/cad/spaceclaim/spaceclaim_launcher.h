#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

class LauncherBoxes;
struct SharedFolders;

/// When the box is ticked, removes the product's add-in from SpaceClaim's folder of add-ins, and on install
/// copies it there. The folder stays in any case.
void installSpaceClaimLauncher(const StepContext &context, const LauncherBoxes &boxes,
                               const SharedFolders &folders, RunMode mode);
