#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Util {
class CpuInfo;
}

namespace Nvx::Setup {

/// On install, writes the solver's default configuration file, sized to the machine's processors, and creates
/// the folder in which parallel analyses run; in other modes, does nothing. The file and the folder are
/// independent of each other; a failure is logged. No file is written if one of its texts cannot be written
/// in the system's code page.
void createParallelConfiguration(const Run::StepContext &context, Run::RunMode mode,
                                 const Util::CpuInfo &cpuInfo);

} // namespace Nvx::Setup
