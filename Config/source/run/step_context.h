#pragma once

namespace Nvx::Util {
class Machine;
}
class Reporter;
struct RunState;

/// What every step is handed: the machine to act on, where to report, and the run it belongs to.
struct StepContext
{
    Nvx::Util::Machine &machine;
    Reporter &reporter;
    const RunState &state;
};
