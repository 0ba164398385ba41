#include "nvx_util/terminal.h"

#include <windows.h>

namespace Nvx::Util {

// Only a console has a mode; the null device, which the run-time library treats as a terminal, does not.
bool isStandardOutputTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
}

} // namespace Nvx::Util
