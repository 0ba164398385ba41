#include "platform.h"

namespace Nvx::Util::Platform {

// There is no Windows shell.

QString commonDesktopFolder()
{
    return QString();
}

void notifyAssociationsChanged() {}

} // namespace Nvx::Util::Platform
