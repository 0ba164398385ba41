#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

namespace Nvx::Util {
class CpuInfo;
}

/// On install, writes the solver's default configuration file, sized to the machine's processors, and makes
/// the folder in which parallel analyses run; in other modes does nothing. The two are independent: what
/// fails is logged at level 1. A text that the system's code page cannot write is not written at all.
void createParallelConfiguration(const StepContext &context, RunMode mode, const Nvx::Util::CpuInfo &cpuInfo);
