#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

/// Keeps what the registry holds of the product, and has the viewer configured. On install the product's
/// values are written and the uninstall entry's command gets the run's language; in other modes the user's
/// notification settings go, while the product's key for all users stays. Always returns 0. A value that the
/// registry refuses is a diagnostic warning.
int updateRegistry(const StepContext &context, RunMode mode);
