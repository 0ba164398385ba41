#include "nvx_util/terminal.h"

#include <unistd.h>

namespace Nvx::Util {

bool isStandardOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

} // namespace Nvx::Util
