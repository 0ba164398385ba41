#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Setup {

/// Removes the product's file types in every mode and, on install, creates them again, by registry scripts
/// that the Registry Editor imports. Always returns 0. Two failures are logged: the system's code page cannot
/// write a script, and the install dir is unknown because the start-up was abandoned. A script that cannot be
/// created is a diagnostic warning. None of these is imported.
int createFileAssociations(const Run::StepContext &context, Run::RunMode mode);

} // namespace Nvx::Setup
