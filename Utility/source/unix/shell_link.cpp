#include "nvx_util/shell_link.h"

#include "platform.h"

namespace Nvx::Util::Platform {

qint32 createShellLink(const ShellLink & /*link*/)
{
    return shellLinksMissing;
}

} // namespace Nvx::Util::Platform
