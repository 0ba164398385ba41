#include "nvx_util/shell_link.h"
#include "platform.h"

namespace Nvx::Util::Platform {

// There is no Windows shell.

QString commonDesktopFolder()
{
    return QString();
}

void notifyAssociationsChanged() {}

qint32 createShellLink(const ShellLink & /*link*/)
{
    return shellLinksMissing;
}

} // namespace Nvx::Util::Platform
