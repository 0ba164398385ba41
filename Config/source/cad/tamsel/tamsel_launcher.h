#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

struct CadPackages;
class LauncherBoxes;
struct SharedFolders;

/// For each edition of Tamsel whose box is ticked, handles the add-in of every year that was found.
void installTamselLauncher(const StepContext &context, const CadPackages &packages,
                           const LauncherBoxes &boxes, const SharedFolders &folders, RunMode mode);

/// Removes the manifest of the add-in for one year of Tamsel, and on install writes it into the launcher's
/// folder and copies it to where Tamsel looks.
void installTamselAddin(const StepContext &context, const SharedFolders &folders, RunMode mode, int year);
