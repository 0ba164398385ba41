#include "platform.h"

#include <unistd.h>

namespace Nvx::Util::Platform {

bool flushToDisk(int descriptor)
{
    return fsync(descriptor) == 0;
}

} // namespace Nvx::Util::Platform
