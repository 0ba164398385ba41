#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

/// On uninstall, removes the notification centre's folder from the install dir; in other modes does nothing.
void cleanLumara(const StepContext &context, RunMode mode);
