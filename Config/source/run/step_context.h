#pragma once

namespace Nvx::Util {
class Machine;
}

namespace Nvx::Run {

class Reporter;
struct RunState;

/// What every step receives: the machine to configure, the reporter, and the state of the run.
struct StepContext
{
    Util::Machine &machine;
    Reporter &reporter;
    const RunState &state;
};

} // namespace Nvx::Run
