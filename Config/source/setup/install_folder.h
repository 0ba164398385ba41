#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Setup {

/// On install, lets only administrators write the install folder, and takes the folders of the product that
/// all users share over from a user who may have created them before; in other modes, does nothing. A folder
/// that cannot be secured is a line at level 1, and the run goes on.
void reserveInstallFolder(const Run::StepContext &context, Run::RunMode mode);

} // namespace Nvx::Setup
