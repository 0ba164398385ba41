#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Setup {

/// Runs the configuration program of the product's 3-D viewer: on install, to install the configuration, in
/// any other mode, to remove it. Always returns 0; the program's result is only logged.
int configureViewer(const Run::StepContext &context, Run::RunMode mode);

} // namespace Nvx::Setup
