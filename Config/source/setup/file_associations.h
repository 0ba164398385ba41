#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

/// Takes the product's file types away in every mode, and on install binds them anew, by registry scripts
/// that the Registry Editor imports. Always returns 0. A script that cannot be created, or whose text the
/// system's code page cannot write, is logged at level 1 and not imported; nor is one for an install dir that
/// the start-up has left unknown.
int createFileAssociations(const StepContext &context, RunMode mode);
