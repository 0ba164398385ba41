#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

/// Has the product's 3-D viewer configure itself, or, in any mode but install, take its configuration back.
/// Always returns 0; what the viewer answers is a matter for the log.
int configureViewer(const StepContext &context, RunMode mode);
