#pragma once

namespace Nvx::Util {

/// True if the process's standard output is a terminal, where a line can be overwritten.
bool isStandardOutputTerminal();

} // namespace Nvx::Util
