#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

class LauncherBoxes;

// The launchers that a CAD system finds as COM libraries. When the box is ticked, the library is
// unregistered, and on install registered again, by the system's own program.

void installBrevantLauncher(const StepContext &context, const LauncherBoxes &boxes, RunMode mode);

void installSolidWorksLauncher(const StepContext &context, const LauncherBoxes &boxes, RunMode mode);
