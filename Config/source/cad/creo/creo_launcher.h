#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

struct CadPackages;
class LauncherBoxes;

/// Sweeps old copies of the launcher out of the program's folder. When the box is ticked, also takes the
/// product's entries out of the protk.dat of every release of Creo Parametric that was found, and on install
/// puts one in front of each.
void installCreoLauncher(const StepContext &context, const CadPackages &packages, const LauncherBoxes &boxes,
                         RunMode mode);
