#include "nvx_util/own_process.h"

namespace Nvx::Util {

void trustOwnFolderOnly() {}

} // namespace Nvx::Util
