#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <span>

namespace Nvx::Util {
class CpuInfo;
}
class cfg_utilitys;

namespace Nvx::Engine {

/// What a step of the installation run receives.
struct StepArguments
{
    cfg_utilitys &engine;
    Run::StepContext context;
    Run::RunMode mode;
    const Util::CpuInfo &cpuInfo;
};

/// A step of the installation run.
struct InstallationStep
{
    const char *name; ///< of the operation that it calls
    void (*run)(const StepArguments &arguments);
};

/// The steps of the installation run, in their order.
std::span<const InstallationStep> installationSteps();

} // namespace Nvx::Engine
