#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Setup {

/// Runs the configuration program of the product's 3-D viewer: on install, to install the configuration, in
/// any other mode, to remove it. Always returns 0; the program's result is only logged.
int configureViewer(const Run::StepContext &context, Run::RunMode mode);

/// Updates the product's registry values and configures the viewer. On install, writes the product's values
/// and puts the run's language into the uninstall entry's command. In other modes, removes the user's
/// notification settings; the product's key for all users stays. Always returns 0. A value that the registry
/// refuses is a diagnostic warning.
int updateRegistry(const Run::StepContext &context, Run::RunMode mode);

} // namespace Nvx::Setup
