#include "platform.h"

namespace Nvx::Util::Platform {

std::shared_ptr<void> claimFile(const QString & /*path*/)
{
    return std::make_shared<bool>(true);
}

} // namespace Nvx::Util::Platform
