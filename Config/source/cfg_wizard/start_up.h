#pragma once

#include <functional>

class cfg_utilitys;

namespace Nvx::Wizard {

struct WizardPlan;

/// The result of a pass after the user has chosen another language: the interface is to be built again.
constexpr int languageChanged = 901;

/// Loads the translations and fonts of the stored language and performs a pass, and repeats that while the
/// pass returns languageChanged. Returns the result of the last pass, which is the process's exit code.
int runPasses(const cfg_utilitys &engine, const std::function<int()> &pass);

/// Performs one pass of the plan. Returns the exit code or languageChanged; without a window always 0.
int runPass(cfg_utilitys &engine, const WizardPlan &plan);

/// Runs the whole program after the engine has started: passes of one plan. The plan is made once, from the
/// mode of the command line, so the pages are the same after a change of language. Returns the exit code.
int runProgram(cfg_utilitys &engine);

} // namespace Nvx::Wizard
