#pragma once

#include <functional>

class cfg_utilitys;

/// What a pass answers when the user has chosen another language: the interface is to be built anew.
constexpr int languageChanged = 901;

/// Loads the translations of the remembered language and performs one pass, again and again as long as the
/// pass answers languageChanged. Returns the answer of the last pass, the process's exit code.
int runPasses(const cfg_utilitys &engine, const std::function<int()> &pass);

/// One pass: does what the plan for the engine's run mode says. Returns the exit code; a pass without a
/// window always answers 0.
int runPass(cfg_utilitys &engine);
