#pragma once

namespace Nvx::Util {

/// True when the process's standard output is a terminal, where a line can be written over.
bool isStandardOutputTerminal();

} // namespace Nvx::Util
