#include "platform.h"

namespace Nvx::Util::Platform {

// There is no shell to ask or to tell.

QString commonDesktopFolder()
{
    return QString();
}

void notifyAssociationsChanged() {}

} // namespace Nvx::Util::Platform
