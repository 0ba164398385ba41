#pragma once

#include <functional>

class cfg_utilitys;
struct WizardPlan;

/// What a pass answers when the user has chosen another language: the interface is to be built anew.
constexpr int languageChanged = 901;

/// Loads the translations and fonts of the remembered language and performs one pass, again and again as long
/// as the pass answers languageChanged. Returns the answer of the last pass, the process's exit code.
int runPasses(const cfg_utilitys &engine, const std::function<int()> &pass);

/// One pass: does what the plan says. Returns the exit code, or languageChanged; a pass without a window
/// always answers 0.
int runPass(cfg_utilitys &engine, const WizardPlan &plan);

/// The whole program once the engine has started: passes of one plan, which is made from the command line's
/// mode, so that the pages that a changed language builds anew are the same ones. Returns the exit code.
int runProgram(cfg_utilitys &engine);
