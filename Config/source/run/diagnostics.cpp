#include "run/diagnostics.h"

namespace Nvx::Run {

Q_LOGGING_CATEGORY(diagnostics, "nvx.configuration")

} // namespace Nvx::Run
