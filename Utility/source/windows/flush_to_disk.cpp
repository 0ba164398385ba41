#include "platform.h"

#include <io.h>

namespace Nvx::Util::Platform {

bool flushToDisk(int descriptor)
{
    return _commit(descriptor) == 0;
}

} // namespace Nvx::Util::Platform
